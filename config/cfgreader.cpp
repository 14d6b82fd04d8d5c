// The brace notation, in: settings `name = "value";` and groups `name: { ... };`.
#include "config/config.h"

#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <iostream>
#include <string>
#include <string_view>
#include <utility>

namespace libconfig {

namespace {

/// Adds a byte to a name or a value. Indentation is left out from the start.
void add(std::string &bytes, char c)
{
    if (!bytes.empty() || (c != ' ' && c != '\n'))
        bytes += c;
}

/// A name or a raw value: Latin-1, outer white space stripped, inner kept.
QString textOf(std::string_view bytes)
{
    return QString::fromLatin1(bytes.data(), qsizetype(bytes.size())).trimmed();
}

} // namespace

bool Config::openFile(const QString &name)
{
    const QByteArray path = QFile::encodeName(name);
    stream.close();
    stream.clear();
    // A FIFO would wait for a writer, a folder opens and fails on the first read.
    if (QFileInfo(name).isFile())
        stream.open(path.toStdString(), std::ios::in | std::ios::binary);
    if (stream.is_open())
        return true;

    std::cout << "Error in the method FileReader::open( " << path.toStdString()
              << " ): File Not Found" << std::endl;
    return false;
}

bool Config::openFile() { return openFile(fileName); }

void Config::closeFile() { stream.close(); }

/// Takes the next byte, if there is one, straight from the buffer: a stream checks itself over for
/// every byte it is asked for.
bool Config::next(char &c)
{
    using Traits = std::ifstream::traits_type;
    try {
        const Traits::int_type byte = stream.rdbuf()->sbumpc();
        c = Traits::to_char_type(byte);
        return !Traits::eq_int_type(byte, Traits::eof());
    } catch (const std::ios_base::failure &) {
        return false; // the file cannot be read any further
    }
}

bool Config::jump(char c)
{
    for (char read = 0; next(read);)
        if (read == c)
            return true;
    return false;
}

void Config::loadFile()
{
    if (!document)
        document = std::make_unique<QDomDocument>();
    openFile();
    QDomElement file = document->createElement(fileName);
    const bool closedByBrace = loadStatements(file, QDomNode());
    if (file.hasAttributes() || file.hasChildNodes())
        document->appendChild(file);
    if (!closedByBrace)
        closeFile();
}

void Config::loadFile(const QString &groupName, const QDomNode &parent)
{
    const QScopedValueRollback level(depth, depth + 1);
    if (groupName.isEmpty() || parent.isNull() || depth > deepestGroup)
        skipGroup();
    else
        loadStatements(parent.ownerDocument().createElement(groupName), parent);
}

/// Reads over a group, with all that it holds.
void Config::skipGroup()
{
    int open = 1;
    for (char c = 0; open > 0 && next(c);) {
        if (c == ':') {
            jump('{');
            ++open;
        } else if (c == '=') {
            jump(';');
        } else if (c == '}') {
            jump(';');
            --open;
        }
    }
}

/// Reads statements up to the '}' of their level (true) or the end of the file (false).
bool Config::loadStatements(QDomElement group, QDomNode parent)
{
    bool attached = false;
    const auto attachOnce = [&] {
        if (!std::exchange(attached, true))
            attach(group, parent);
    };

    std::string name;
    for (char c = 0; next(c);) {
        switch (c) {
        case ':':
            jump('{');
            attachOnce();
            loadFile(textOf(name), group);
            name.clear();
            break;
        case '=':
            set(group, textOf(name), readValue());
            attachOnce();
            name.clear();
            break;
        case '}':
            jump(';');
            return true;
        default:
            add(name, c);
        }
    }
    return false;
}

/// Reads up to the next ';' or the end of the file: Latin-1, outer white space stripped, then
/// every quote removed, so that blanks inside quotes survive.
QString Config::readValue()
{
    std::string bytes;
    for (char c = 0; next(c) && c != ';';)
        add(bytes, c);
    return textOf(bytes).remove(u'"');
}

} // namespace libconfig
