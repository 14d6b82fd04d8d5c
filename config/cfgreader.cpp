// The brace notation, in: settings `name = "value";` and groups `name: { ... };`.
#include "config/config.h"

#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

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
    const QScopedValueRollback level(depth, depth + 1);
    if (groupName.isEmpty() || parent.isNull() || depth > deepestGroup)
        skipGroup();
    else
        loadStatements(document->createElement(groupName), parent);
}

/// Reads over a group, with all that it holds.
void Config::skipGroup()
{
    int open = 1;
    for (char c = 0; open > 0 && stream.get(c);) {
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
