// The tree of a settings store: as it was read, and as the toolkit's document once that is asked
// for.
#pragma once

#include <QDomDocument>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <memory>
#include <vector>

namespace libconfig {

class Tree;

/**
 * A pointer to the toolkit's document, which takes two kilobytes for a setting of nine bytes. It is
 * therefore made of what was read when it is asked for first; look-ups do without. From then on
 * the document alone counts, for whoever holds it may change it.
 *
 * The bodies: document.cpp what was read; dom.cpp whatever needs the toolkit's document, so that a
 * program that only looks settings up is linked without that library.
 */
class Document
{
public:
    Document();
    ~Document();
    Q_DISABLE_COPY_MOVE(Document)

    // A pointer, null until a file is read. To make the document is no change of the store, but
    // two threads must not ask for it at once.
    [[nodiscard]] QDomDocument *get() const;
    QDomDocument *operator->() const { return get(); }
    QDomDocument &operator*() const { return *get(); }
    explicit operator bool() const { return isSet; }
    friend bool operator==(const Document &document, std::nullptr_t) { return !document.isSet; }
    friend bool operator!=(const Document &document, std::nullptr_t) { return document.isSet; }

    /// Puts another document in its place, in which no order of settings is known.
    Document &operator=(std::unique_ptr<QDomDocument> other);

    /// Starts anew with an empty document.
    void clear();

    /// Adds what was read of a file: an element of that name with its settings and groups. Of an
    /// empty file nothing is added.
    void add(const QString &fileName, std::unique_ptr<Tree> read);

    /// Adds a group below an element of the document, with the settings and groups that were read
    /// of its body. An empty one is not added.
    void add(const QString &groupName, const Tree &body, QDomNode parent);

    /// What was read of a file, as long as nobody has asked for the document; null from then on.
    [[nodiscard]] const Tree *tree() const;

    /// The value of a key below the first element's first child; see Config::lookup().
    [[nodiscard]] QString lookup(const QString &key) const;

    // The order of settings, of which the toolkit keeps none: attributes are in a hash.

    /// Sets a setting of a group, and notes its place among the others when it is new.
    void set(QDomElement &group, const QString &name, const QString &value);

    /// Notes a setting that a group has, behind those noted before.
    void noteSetting(const QDomElement &group, const QString &name);

    /// Names of the settings that a group has, in the order in which they were noted; those that
    /// were not noted come last, by name.
    [[nodiscard]] QStringList settingNames(const QDomElement &group) const;

private:
    /// The toolkit's document.
    class Made
    {
    public:
        Made() = default;
        virtual ~Made() = default;
        Q_DISABLE_COPY_MOVE(Made)
        virtual void add(const QString &fileName, const Tree &read) = 0;
        [[nodiscard]] virtual QString lookup(const QString &key) const = 0;
    };
    class Dom;

    struct Read
    {
        QString fileName;
        std::unique_ptr<Tree> tree;
    };

    [[nodiscard]] Dom &dom() const;

    std::unique_ptr<Made> made;
    std::vector<Read> unmade; // in the order of reading; none is empty but the first
    bool isSet = false;       // a file was read, or a document put in its place
};

} // namespace libconfig
