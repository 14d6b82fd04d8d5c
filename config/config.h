// The settings store: a settings file, in either notation, as a tree that answers dotted keys.
#pragma once

#include "config/document.h"

#include <QByteArray>
#include <QDomDocument>
#include <QString>
#include <QStringList>

#include <fstream>

class QTextStream;
class QTreeWidget;
class QTreeWidgetItem;

namespace libconfig {

/**
 * Reads one settings file into a tree and answers dotted keys such as "korvel.language.file".
 *
 * Groups are elements, settings are attributes, all values are strings. The top element of the
 * tree is a wrapper named as the file; look-ups start below it. A store is filled once and then
 * only asked; it does no locking.
 *
 * Of either notation, a file's first 262,144 groups and 262,144 settings are read, nested up to
 * 1,000 levels, with names and values of 16,777,216 characters in all; the rest is read over.
 *
 * The bodies: config.cpp and cfgreader.cpp the brace notation in, and look-up by key; notations.cpp
 * the choice of the notation; xmlreader.cpp the other one; writers.cpp both, out; dom.cpp whatever
 * takes nodes of the toolkit's; listview.cpp the view, in a target of its own (korvel::listview),
 * so that nothing else needs widgets. statements.h takes the brace notation apart, tree.h keeps
 * what it says, document.h makes the toolkit's tree of that for whoever asks for it. A program that
 * only reads the brace notation and looks keys up is linked without the toolkit's library of trees.
 */
class Config
{
public:
    /// An empty store: nothing is read, every look-up answers the empty string.
    Config() = default;

    /// Reads a settings file; see constructor().
    Config(const QString &name, const QString &notation);

    Q_DISABLE_COPY_MOVE(Config)
    ~Config() = default;

    /// Reads a settings file into a store built empty; see constructor().
    void readFile(const QString &name, const QString &notation);

    /**
     * Reads a settings file into a fresh tree, whatever was read before.
     *
     * @param name     path of the file, and the name of the tree's top element
     * @param notation "cfg" for the brace notation or "xml"; with any other nothing is read
     *
     * A missing file leaves the tree empty; the brace notation says so on standard output. What is
     * no regular file, such as a folder or a FIFO, counts as missing, and so does one that cannot
     * be read to its end.
     */
    void constructor(const QString &name, const QString &notation);

    /// Reads bytes as constructor() reads a file of them. No file is touched; `name` is what the
    /// tree's top element is called, and what a writer without a name writes to.
    void readBytes(const QByteArray &bytes, const QString &name, const QString &notation);

    /**
     * Opens the stream of the brace notation on a file, as bytes.
     *
     * @return false when the file cannot be opened, with a line on standard output that says so
     */
    bool openFile(const QString &name);

    /// Opens the stream on the store's own file.
    bool openFile();

    /// Closes the stream.
    void closeFile();

    /// Reads the stream past the next `c`; false when the end of the file comes first.
    bool jump(char c);

    /// Reads the store's file in the brace notation into the tree.
    void loadFile();

    /**
     * Reads the body of one group of the brace notation, from behind its '{' to behind its "};".
     *
     * @param groupName name of the group; a nameless group is read over
     * @param parent    element that the group belongs to. The group is attached to it with its
     *                  first setting or subgroup, so one with nothing in it leaves no trace.
     */
    void loadFile(const QString &groupName, const QDomNode &parent);

    /// Reads the store's file in the XML notation. A missing or malformed one leaves the tree
    /// empty.
    void loadXmlFile();

    /**
     * The value of a setting.
     *
     * @param key fields joined by '.': the first top-level group, its nested groups, the setting
     * @return the value as stored, or the empty string when there is none. Only the first
     *         top-level group is searched; an empty value is passed over for one that a later
     *         group of the same name holds.
     */
    [[nodiscard]] QString lookup(const QString &key) const;

    /// The value that `key` has below `node`, its first field being the name of `node` itself.
    [[nodiscard]] QString lookup(const QDomNode &node, const QString &key) const;

    // The writers. What they write is what the readers read back, but for what a notation cannot
    // hold: a value goes out as stored, so a quote in it is lost in the brace notation, and a
    // quote, '<' or '&' makes the XML notation malformed. Settings keep the order in which they
    // were first set. A file that cannot be written is passed over without a word.

    /**
     * Writes the tree in the brace notation: the settings outside every group, then the first
     * top-level group; later ones, which no look-up finds, are left out.
     *
     * @param name file to write, as Latin-1; empty for the file that the tree was read from
     */
    void buildConfigFile(const QString &name) const;

    /// Writes one group and everything below it in the brace notation.
    void buildConfigFile(const QDomNode &node, QTextStream &out) const;

    /**
     * Writes the tree in the XML notation: like buildConfigFile(), but the group is XML, as UTF-8.
     * Settings outside every group come before it in the brace notation, which does not read back.
     */
    void buildConfigXmlFile(const QString &name) const;

    /// Writes one group and everything below it as XML: start and end tag on lines of their own,
    /// each setting on one.
    void buildConfigXmlFile(const QDomNode &node, QTextStream &out) const;

    /// What a writer would write in the store's own notation; nothing in any other.
    [[nodiscard]] QByteArray written() const;

    /// Shows the whole tree on standard output, for diagnosis: a line for each group and setting,
    /// without indentation, as Latin-1.
    void printConfigTree() const;

    /// Shows one node and everything below it.
    void printConfigTree(const QDomNode &node) const;

    // The list view: the tree in rows that can be edited, and back. Link to korvel::listview.

    /// The same as buildConfigListView().
    [[nodiscard]] QTreeWidget *newConfigListView() const;

    /**
     * Shows the tree in a new view of one column, "ConfigurationFile".
     *
     * A group is a row with a row for each of its settings, then for each of its groups; below a
     * setting's row stands its value, the only kind of row that can be edited.
     *
     * @return the view; it belongs to the caller and does not follow later changes of the tree
     */
    [[nodiscard]] QTreeWidget *buildConfigListView() const;

    /// Adds the rows of a node as a top-level row of the view.
    void buildConfigListView(const QDomNode &node, QTreeWidget *view) const;

    /// Adds the rows of a node below a row. A node that is no group has no row.
    void buildConfigListView(const QDomNode &node, QTreeWidgetItem *parent) const;

    /**
     * Replaces the tree by what the view shows and writes it to the store's file, in its notation.
     *
     * A row whose child has no child itself is a setting; a row without a child is an empty group.
     * A group deeper than the second level goes below the first group of the level above, not
     * below its own: the settings of this system have no such group. Null: nothing happens.
     */
    void loadListView(const QTreeWidget *view);

    /// Replaces the tree as loadListView() does, and writes nothing.
    void takeListView(const QTreeWidget *view);

    /**
     * Whether a row below a group's is read back as a setting: its own row's child, the value, has
     * none itself. A row without any child is an empty group.
     */
    [[nodiscard]] static bool isSetting(const QTreeWidgetItem *row);

    /// Reads one top-level row into an empty tree.
    void loadListView(const QTreeWidgetItem *item, QDomDocument *tree);

    /// Reads one row below the top into a group of its own, appended to the parent.
    void loadListView(const QTreeWidgetItem *item, QDomNode parent);

protected:
    /// Reads a file as constructor() does in the brace notation.
    void readBraces(const QString &name);

    /// Names of a group's settings in the order in which they were first set; those that came
    /// another way are last, by name.
    [[nodiscard]] QStringList settingNames(const QDomElement &group) const;

    QString fileName;     // path of the settings file, name of the top element
    QString fileFormat;   // "cfg" or "xml"
    std::ifstream stream; // what the brace notation is read from
    Document document;    // the tree; null until a file is read

private:
    bool loadStatements(std::streambuf &bytes);
    void loadXml(const QByteArray &bytes);
    void noteSettingOrder(const QByteArray &xml);
    void write(QTextStream &out, bool asXml) const;
    void writeFile(const QString &name, bool asXml) const;
    void writeBraces(const QDomNode &node, const QString &indent, QTextStream &out) const;
    void writeXml(const QDomNode &node, const QString &indent, QTextStream &out) const;
    void buildRows(const QDomNode &node, QTreeWidgetItem *groupRow) const;
    void loadRows(const QTreeWidgetItem *item, QDomElement &group, const QDomNode &parent);
};

} // namespace libconfig
