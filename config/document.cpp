// The toolkit's document, made of what was read, and the order of its settings.
#include "config/document.h"

#include "config/tree.h"

#include <QSet>

#include <utility>
#include <vector>

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

} // namespace

Document::Document() = default;

Document::~Document() = default;

QDomDocument *Document::get() const
{
    if (isSet && !made)
        const_cast<Document *>(this)->make();
    return made.get();
}

/// Makes the document of what was read.
void Document::make()
{
    made = std::make_unique<QDomDocument>();
    if (const std::unique_ptr<Tree> read = std::move(unmade); read && !read->isEmpty()) {
        const QDomElement file = build(unmadeName, *read, *made);
        made->appendChild(file);
    }
}

Document &Document::operator=(std::unique_ptr<QDomDocument> other)
{
    clear();
    made = std::move(other);
    isSet = made != nullptr;
    return *this;
}

void Document::clear()
{
    made.reset();
    unmade.reset();
    orders.clear();
    isSet = true;
}

void Document::add(const QString &fileName, std::unique_ptr<Tree> read)
{
    isSet = true;
    if (!made && (!unmade || unmade->isEmpty())) {
        unmade = std::move(read);
        unmadeName = fileName;
    } else if (!read->isEmpty()) {
        const QDomElement file = build(fileName, *read, *get());
        made->appendChild(file);
    }
}

void Document::add(const QString &groupName, const Tree &body, QDomNode parent)
{
    QDomDocument factory = parent.ownerDocument();
    if (!body.isEmpty())
        parent.appendChild(build(groupName, body, factory));
}

/// An element with the settings and groups of a tree.
QDomElement Document::build(const QString &name, const Tree &read, QDomDocument &factory)
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

void Document::set(QDomElement &group, const QString &name, const QString &value)
{
    if (!group.hasAttribute(name))
        noteSetting(group, name);
    group.setAttribute(name, value);
}

void Document::noteSetting(const QDomElement &group, const QString &name)
{
    Settings &settings = orders[Identity(group).get()];
    settings.group = group;
    settings.names.append(name);
}

QStringList Document::settingNames(const QDomElement &group) const
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

} // namespace libconfig
