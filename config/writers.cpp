// Both notations, out, and the dump of the tree.
#include "config/config.h"

#include "config/path.h"

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

void Config::buildConfigFile(const QString &name) const { writeFile(name, false); }

void Config::buildConfigXmlFile(const QString &name) const { writeFile(name, true); }

void Config::writeFile(const QString &name, bool asXml) const
{
    QFile file;
    if (!korvel::path::open(file, name.isEmpty() ? fileName : name, QIODevice::WriteOnly))
        return;
    QTextStream out(&file);
    write(out, asXml);
}

QByteArray Config::written() const
{
    QByteArray bytes;
    QTextStream out(&bytes);
    if (fileFormat == "cfg"_L1 || fileFormat == "xml"_L1)
        write(out, fileFormat == "xml"_L1);
    out.flush();
    return bytes;
}

/// Writes the settings outside every group, in the brace notation whatever the file's, and the
/// first top-level group, the only one that look-ups search.
void Config::write(QTextStream &out, bool asXml) const
{
    // Without a declaration, XML is UTF-8.
    out.setEncoding(asXml ? QStringConverter::Utf8 : QStringConverter::Latin1);
    const QDomElement top = document ? document->documentElement() : QDomElement();
    for (const QString &setting : settingNames(top))
        out << setting << valueOpener << top.attribute(setting) << statementCloser << '\n';
    const QDomNode first = top.firstChild();
    if (first.isNull())
        return;
    if (asXml)
        buildConfigXmlFile(first, out);
    else
        buildConfigFile(first, out);
}

void Config::buildConfigFile(const QDomNode &node, QTextStream &out) const
{
    writeBraces(node, {}, out);
}

void Config::writeBraces(const QDomNode &node, const QString &indent, QTextStream &out) const
{
    const QDomElement group = node.toElement();
    const QString inner = indent + level;
    out << indent << group.tagName() << ": \n";
    out << indent << "{\n";
    for (const QString &setting : settingNames(group))
        out << inner << setting << valueOpener << group.attribute(setting) << statementCloser
            << '\n';
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        writeBraces(child, inner, out);
    out << indent << "};\n\n";
}

void Config::buildConfigXmlFile(const QDomNode &node, QTextStream &out) const
{
    writeXml(node, {}, out);
}

void Config::writeXml(const QDomNode &node, const QString &indent, QTextStream &out) const
{
    const QDomElement group = node.toElement();
    const QString inner = indent + level;
    out << '\n' << indent << '<' << group.tagName();
    for (const QString &setting : settingNames(group))
        out << '\n' << inner << setting << valueOpener << group.attribute(setting) << '"';
    out << ">\n";
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        writeXml(child, inner, out);
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
