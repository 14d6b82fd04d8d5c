// Both notations, out, and the dump of the tree.
#include "config/config.h"

#include <QFile>
#include <QTextStream>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace libconfig {

namespace {

constexpr auto valueOpener = " = \""_L1;
constexpr auto statementCloser = "\";"_L1;
constexpr auto level = "    "_L1; // one level of indentation

std::string latin1(const QString &text) { return text.toLatin1().toStdString(); }

} // namespace

void Config::buildConfigFile(const QString &name) const
{
    writeFile(name, QStringConverter::Latin1,
              [this](const QDomNode &node, QTextStream &out) { buildConfigFile(node, out); });
}

void Config::buildConfigXmlFile(const QString &name) const
{
    // Without a declaration, XML is UTF-8.
    writeFile(name, QStringConverter::Utf8,
              [this](const QDomNode &node, QTextStream &out) { buildConfigXmlFile(node, out); });
}

/// Writes the settings outside every group, in the brace notation whatever the file's, and the
/// first top-level group, the only one that look-ups search.
void Config::writeFile(const QString &name, QStringConverter::Encoding encoding,
                       const std::function<void(const QDomNode &, QTextStream &)> &writeNode) const
{
    QFile file(name.isEmpty() ? fileName : name);
    if (file.fileName().isEmpty() || !file.open(QIODevice::WriteOnly))
        return;
    QTextStream out(&file);
    out.setEncoding(encoding);

    const QDomElement top = document ? document->documentElement() : QDomElement();
    for (const QString &setting : settingNames(top))
        out << setting << valueOpener << top.attribute(setting) << statementCloser << '\n';
    if (const QDomNode first = top.firstChild(); !first.isNull())
        writeNode(first, out);
}

void Config::buildConfigFile(const QDomNode &node, QTextStream &out) const
{
    static QString indent;

    const QDomElement group = node.toElement();
    out << indent << group.tagName() << ": \n";
    out << indent << "{\n";
    indent += level;
    for (const QString &setting : settingNames(group))
        out << indent << setting << valueOpener << group.attribute(setting) << statementCloser
            << '\n';
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        buildConfigFile(child, out);
    indent.remove(0, level.size());
    out << indent << "};\n\n";
}

void Config::buildConfigXmlFile(const QDomNode &node, QTextStream &out) const
{
    static QString indent;

    const QDomElement group = node.toElement();
    out << '\n' << indent << '<' << group.tagName();
    indent += level;
    for (const QString &setting : settingNames(group))
        out << '\n' << indent << setting << valueOpener << group.attribute(setting) << '"';
    out << ">\n";
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        buildConfigXmlFile(child, out);
    indent.remove(0, level.size());
    out << indent << "</" << group.tagName() << ">\n";
}

void Config::printConfigTree() const
{
    std::cout << "Tree \n";
    printConfigTree(document ? document->documentElement() : QDomElement());
    std::cout.flush();
}

void Config::printConfigTree(const QDomNode &node) const
{
    if (const QDomElement group = node.toElement(); !group.isNull()) {
        std::cout << latin1(group.tagName()) << '\n';
        for (const QString &setting : settingNames(group))
            std::cout << latin1(setting) << " = " << latin1(group.attribute(setting)) << '\n';
    }
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        printConfigTree(child);
}

} // namespace libconfig
