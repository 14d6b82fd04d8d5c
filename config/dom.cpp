// The toolkit's document, made of what was read, and the order of its settings.
#include "config/config.h"

#include "config/match.h"
#include "config/statements.h"
#include "config/tree.h"

#include <QHash>
#include <QSet>

#include <utility>

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

/// A node of the document, to be gone through as one of the tree that was read.
class Node
{
public:
    explicit Node(const QDomNode &inDocument)
        : node(inDocument)
    {
    }
    [[nodiscard]] bool isNull() const { return node.isNull(); }
    [[nodiscard]] bool isGroup() const { return node.isElement(); }
    [[nodiscard]] bool isNamed(QStringView name) const { return node.nodeName() == name; }
    [[nodiscard]] QString value(QStringView setting) const
    {
        return node.toElement().attribute(setting.toString());
    }
    [[nodiscard]] Node firstChild() const { return Node(node.firstChild()); }
    [[nodiscard]] Node nextSibling() const { return Node(node.nextSibling()); }

private:
    QDomNode node;
};

} // namespace

class Document::Dom : public Made
{
public:
    explicit Dom(std::unique_ptr<QDomDocument> owned)
        : document(std::move(owned))
    {
    }

    void add(const QString &fileName, const Tree &read) override
    {
        if (!read.isEmpty())
            document->appendChild(build(fileName, read, *document));
    }

    [[nodiscard]] QString lookup(const QString &key) const override
    {
        return match(Node(document->documentElement().firstChild()), key);
    }

    QDomElement build(const QString &name, const Tree &read, QDomDocument &factory);
    void set(QDomElement &group, const QString &name, const QString &value);
    void noteSetting(const QDomElement &group, const QString &name);
    [[nodiscard]] QStringList namesOf(const QDomElement &group) const;

    // The groups are held, so that none that is gone shares its identity with a new one.
    struct Settings
    {
        QDomElement group;
        QStringList names; // in the order in which they were first set
    };

    std::unique_ptr<QDomDocument> document;
    QHash<const void *, Settings> orders; // by the identity of the group's element
};

/// An element with the settings and groups of a tree.
QDomElement Document::Dom::build(const QString &name, const Tree &read, QDomDocument &factory)
{
    std::vector<QDomElement> elements;
    elements.reserve(read.groups().size());
    for (const Tree::Group &group : read.groups()) {
        const bool isTop = group.parent == Tree::none;
        elements.push_back(factory.createElement(isTop ? name : read.text(group.name)));
        if (!isTop)
            elements[group.parent].appendChild(elements.back());
    }
    for (const Tree::Setting &setting : read.settings())
        set(elements[setting.group], read.text(setting.name), read.text(setting.value));
    return elements.front();
}

void Document::Dom::set(QDomElement &group, const QString &name, const QString &value)
{
    if (!group.hasAttribute(name))
        noteSetting(group, name);
    group.setAttribute(name, value);
}

void Document::Dom::noteSetting(const QDomElement &group, const QString &name)
{
    Settings &settings = orders[Identity(group).get()];
    settings.group = group;
    settings.names.append(name);
}

QStringList Document::Dom::namesOf(const QDomElement &group) const
{
    QStringList names;
    const auto noted = orders.constFind(Identity(group).get());
    if (noted != orders.cend()) {
        for (const QString &name : noted->names) {
            if (group.hasAttribute(name))
                names.append(name);
        }
    }
    const QDomNamedNodeMap attributes = group.attributes();
    if (names.size() == attributes.count())
        return names;

    const QSet<QString> known(names.cbegin(), names.cend());
    QStringList others;
    for (int i = 0; i < attributes.count(); ++i) {
        if (const QString name = attributes.item(i).nodeName(); !known.contains(name))
            others.append(name);
    }
    others.sort();
    return names + others;
}

/// The document, made now of what was read unless it is there.
Document::Dom &Document::dom() const
{
    if (!made) {
        auto *self = const_cast<Document *>(this);
        self->made = std::make_unique<Dom>(std::make_unique<QDomDocument>());
        for (const Read &read : std::exchange(self->unmade, {}))
            self->made->add(read.fileName, *read.tree);
    }
    return static_cast<Dom &>(*made);
}

QDomDocument *Document::get() const { return isSet ? dom().document.get() : nullptr; }

Document &Document::operator=(std::unique_ptr<QDomDocument> other)
{
    clear();
    isSet = other != nullptr;
    if (isSet)
        made = std::make_unique<Dom>(std::move(other));
    return *this;
}

void Document::add(const QString &groupName, const Tree &body, QDomNode parent)
{
    QDomDocument factory = parent.ownerDocument();
    if (!body.isEmpty())
        parent.appendChild(dom().build(groupName, body, factory));
}

void Document::set(QDomElement &group, const QString &name, const QString &value)
{
    dom().set(group, name, value);
}

void Document::noteSetting(const QDomElement &group, const QString &name)
{
    dom().noteSetting(group, name);
}

QStringList Document::settingNames(const QDomElement &group) const { return dom().namesOf(group); }

// The operations of the store on nodes of the document.

void Config::loadFile(const QString &groupName, const QDomNode &parent)
{
    Tree body;
    try {
        Statements(*stream.rdbuf(), body).read();
    } catch (const std::ios_base::failure &) {
        return; // the file cannot be read any further
    }
    if (!groupName.isEmpty() && !parent.isNull())
        document.add(groupName, body, parent);
}

QString Config::lookup(const QDomNode &node, const QString &key) const
{
    return match(Node(node), key);
}

QStringList Config::settingNames(const QDomElement &group) const
{
    return document.settingNames(group);
}

} // namespace libconfig
