// The settings store: life cycle, choice of the notation, look-up of dotted keys.
#include "config/config.h"

using namespace Qt::Literals::StringLiterals;

namespace libconfig {

namespace {

/// Tells elements apart: the toolkit's handles to one element share what they point to.
class Identity : private QDomElement
{
public:
    explicit Identity(const QDomElement &element)
        : QDomElement(element)
    {
    }
    [[nodiscard]] const void *get() const { return impl; }
};

/// Looks below a node for the value of a key, whose first field must be the node's own name.
QString match(const QDomNode &node, QStringView key)
{
    const QDomElement element = node.toElement();
    const qsizetype firstDot = key.indexOf(u'.');
    if (element.isNull() || element.tagName() != (firstDot < 0 ? key : key.first(firstDot)))
        return {};

    const QStringView rest = firstDot < 0 ? QStringView() : key.sliced(firstDot + 1);
    const qsizetype secondDot = rest.indexOf(u'.');
    const bool thirdFieldIsEmpty =
        secondDot < 0 || secondDot + 1 == rest.size() || rest[secondDot + 1] == u'.';
    if (thirdFieldIsEmpty)
        return element.attribute((secondDot < 0 ? rest : rest.first(secondDot)).toString());

    const QStringView name = rest.first(secondDot);
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.nodeName() != name)
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
    document = std::make_unique<QDomDocument>();
    settingOrder.clear();
    if (fileFormat == "cfg"_L1)
        loadFile();
    else if (fileFormat == "xml"_L1)
        loadXmlFile();
}

QString Config::lookup(const QString &key) const
{
    return document ? lookup(document->documentElement().firstChild(), key) : QString();
}

QString Config::lookup(const QDomNode &node, const QString &key) const { return match(node, key); }

QStringList Config::settingNames(const QDomElement &group) const
{
    const QDomNamedNodeMap attributes = group.attributes();
    QStringList names = settingOrder.value(Identity(group).get()).names;
    if (names.size() == attributes.count())
        return names;

    names.clear();
    for (int i = 0; i < attributes.count(); ++i)
        names.append(attributes.item(i).nodeName());
    names.sort();
    return names;
}

void Config::set(QDomElement &group, const QString &name, const QString &value)
{
    if (!group.hasAttribute(name))
        noteSetting(group, name);
    group.setAttribute(name, value);
}

/// Hangs a group below its parent; nothing to do for a nameless one, or below one.
void Config::attach(const QDomElement &group, QDomNode &parent)
{
    if (!group.isNull() && !parent.isNull())
        parent.appendChild(group);
}

void Config::noteSetting(const QDomElement &group, const QString &name)
{
    Settings &settings = settingOrder[Identity(group).get()];
    settings.group = group;
    settings.names.append(name);
}

} // namespace libconfig
