// The settings store: life cycle, choice of the notation, look-up of dotted keys.
#include "config/config.h"

#include "config/statements.h"
#include "config/tree.h"

using namespace Qt::Literals::StringLiterals;

namespace libconfig {

namespace {

// A group of either tree: its name, the value of a setting, what is below it and beside it.

bool isGroup(const QDomNode &node) { return node.isElement(); }
bool isGroup(const Tree::Node &node) { return !node.isNull(); }

bool isNamed(const QDomNode &node, QStringView name) { return node.nodeName() == name; }
bool isNamed(const Tree::Node &node, QStringView name) { return node.name() == name; }

QString valueIn(const QDomNode &node, QStringView setting)
{
    return node.toElement().attribute(setting.toString());
}
QString valueIn(const Tree::Node &node, QStringView setting) { return node.value(setting); }

/// Looks below a node for the value of a key, whose first field must be the node's own name.
template<typename Node>
QString match(const Node &node, QStringView key)
{
    const qsizetype firstDot = key.indexOf(u'.');
    if (!isGroup(node) || !isNamed(node, firstDot < 0 ? key : key.first(firstDot)))
        return {};

    const QStringView rest = firstDot < 0 ? QStringView() : key.sliced(firstDot + 1);
    const qsizetype secondDot = rest.indexOf(u'.');
    const bool thirdFieldIsEmpty =
        secondDot < 0 || secondDot + 1 == rest.size() || rest[secondDot + 1] == u'.';
    if (thirdFieldIsEmpty)
        return valueIn(node, secondDot < 0 ? rest : rest.first(secondDot));

    const QStringView name = rest.first(secondDot);
    for (Node child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (!isNamed(child, name))
            continue;
        if (QString value = match(child, rest); !value.isEmpty())
            return value;
    }
    return {};
}

} // namespace

Config::Config(const QString &name, const QString &notation) { constructor(name, notation); }

void Config::readFile(const QString &name, const QString &notation) { constructor(name, notation); }

void Config::constructor(const QString &name, const QString &notation)
{
    fileName = name;
    fileFormat = notation;
    document.clear();
    if (fileFormat == "cfg"_L1)
        loadFile();
    else if (fileFormat == "xml"_L1)
        loadXmlFile();
}

void Config::readBytes(const QByteArray &bytes, const QString &name, const QString &notation)
{
    fileName = name;
    fileFormat = notation;
    document.clear();
    if (fileFormat == "cfg"_L1) {
        Memory memory(bytes);
        loadStatements(memory);
    } else if (fileFormat == "xml"_L1) {
        loadXml(bytes);
    }
}

QString Config::lookup(const QString &key) const
{
    if (const Tree *read = document.tree())
        return match(read->top(), key);
    return document ? lookup(document->documentElement().firstChild(), key) : QString();
}

QString Config::lookup(const QDomNode &node, const QString &key) const { return match(node, key); }

QStringList Config::settingNames(const QDomElement &group) const
{
    return document.settingNames(group);
}

} // namespace libconfig
