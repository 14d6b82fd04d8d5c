// The brace notation, in: settings `name = "value";` and groups `name: { ... };`.
#include "config/config.h"

#include <QFile>

#include <iostream>

namespace libconfig {

namespace {

/// What stands before a ':' or '=': Latin-1, outer white space stripped, inner kept.
QString nameOf(const QByteArray &bytes) { return QString::fromLatin1(bytes).trimmed(); }

} // namespace

bool Config::openFile(const QString &name)
{
    const QByteArray path = QFile::encodeName(name);
    stream.close();
    stream.clear();
    stream.open(path.toStdString(), std::ios::in | std::ios::binary);
    if (stream.is_open())
        return true;

    std::cout << "Error in the method FileReader::open( " << path.toStdString()
              << " ): File Not Found" << std::endl;
    return false;
}

bool Config::openFile() { return openFile(fileName); }

void Config::closeFile() { stream.close(); }

bool Config::jump(char c)
{
    for (char read = 0; stream.get(read);)
        if (read == c)
            return true;
    return false;
}

void Config::loadFile()
{
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
    // The toolkit has no nameless elements: such a group is null and, with all below it, dropped.
    loadStatements(parent.isNull() ? QDomElement() : document->createElement(groupName), parent);
}

/// Reads statements up to the '}' of their level (true) or the end of the file (false).
bool Config::loadStatements(QDomElement group, QDomNode parent)
{
    QByteArray name;
    for (char c = 0; stream.get(c);) {
        switch (c) {
        case ':':
            jump('{');
            attach(group, parent);
            loadFile(nameOf(name), group);
            name.clear();
            break;
        case '=':
            set(group, nameOf(name), readValue());
            attach(group, parent);
            name.clear();
            break;
        case '}':
            jump(';');
            return true;
        default:
            name += c;
        }
    }
    return false;
}

/// Reads up to the next ';' or the end of the file: Latin-1, outer white space stripped, then
/// every quote removed, so that blanks inside quotes survive.
QString Config::readValue()
{
    QByteArray bytes;
    for (char c = 0; stream.get(c) && c != ';';)
        bytes += c;
    return nameOf(bytes).remove(u'"');
}

} // namespace libconfig
