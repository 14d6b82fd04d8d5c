// A settings file as a tree of groups and settings, in few bytes, with where each stands.
#pragma once

#include <QLatin1StringView>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace libconfig {

/**
 * What the brace notation says, in the order of the file.
 *
 * Names and values are Latin-1, as they stand in the file without outer white space, values without
 * quotes. Nothing is replaced: of several settings of one name in one group the last one counts. A
 * group is in the tree from its first setting or group on, so that one with nothing in it leaves no
 * trace.
 *
 * No real file comes near the limits. What lies beyond is read over: a group with all that it
 * holds, a setting alone.
 */
class Tree
{
public:
    static constexpr std::size_t mostGroups = 262'144;
    static constexpr std::size_t mostSettings = 262'144;
    static constexpr std::size_t mostText = 16'777'216; // characters of all names and values
    static constexpr std::size_t deepestGroup = 1000;

    using Index = quint32;
    static constexpr Index none = ~Index(0);
    static constexpr Index file = 0; // the group that stands for the file itself

    /// A name or a value, kept with all others in one text.
    struct Text
    {
        quint32 offset = 0;
        quint32 length = 0;
    };

    /// A group of the file.
    struct Group
    {
        Text name;
        qint64 place = 0; // bytes of the file before the name
        Index parent = none;
        Index firstChild = none;
        Index lastChild = none;
        Index next = none;        // of the same parent
        Index lastSetting = none; // of its own; Setting::before leads on
    };

    /// A setting of the file.
    struct Setting
    {
        Text name;
        Text value;
        qint64 place = 0; // bytes of the file before the name
        Index group = none;
        Index before = none; // the one of the same group that stands before it
    };

    /// A group in its place, to go through the tree.
    class Node
    {
    public:
        Node(const Tree &whole, Index index)
            : tree(&whole)
            , group(index)
        {
        }
        [[nodiscard]] bool isNull() const { return group == none; }
        [[nodiscard]] bool isGroup() const { return !isNull(); }
        [[nodiscard]] bool isNamed(QStringView name) const;
        /// The value of a setting of this group; empty when there is none.
        [[nodiscard]] QString value(QStringView setting) const;
        [[nodiscard]] Node firstChild() const;
        [[nodiscard]] Node nextSibling() const;

    private:
        const Tree *tree;
        Index group;
    };

    Tree();

    // What a reader has found, in the order of the file.

    /// A group begins; to be ended by endGroup(). A nameless one is read over.
    void beginGroup(std::string_view name, qint64 place);
    void endGroup();
    /// A setting of the group that has begun last.
    void addSetting(std::string_view name, std::string_view value, qint64 place);
    /// What leaves no trace: names of groups with nothing in them, and texts before the end of a
    /// group.
    struct ReadOver
    {
        std::vector<std::string> groups;
        std::vector<std::string> texts;
    };
    /// Takes note of that for the caller.
    void noteReadOver(ReadOver &what) { readOver = &what; }
    /// The text between the last setting of a group and its end; empty for none.
    void passOver(std::string_view text);
    /// A setting that is too long to be kept.
    void leaveOut() { ++leftOutCount; }

    // What the tree holds. A group's index is above its parent's; the file itself is the first.

    [[nodiscard]] const std::vector<Group> &groups() const { return groupList; }
    [[nodiscard]] const std::vector<Setting> &settings() const { return settingList; }
    [[nodiscard]] QLatin1StringView text(Text kept) const;
    [[nodiscard]] bool isEmpty() const { return groupList.size() == 1 && settingList.empty(); }

    /// How many groups and settings were read over because of a limit.
    [[nodiscard]] std::size_t leftOut() const { return leftOutCount; }

    /// The first top-level group, where look-ups start.
    [[nodiscard]] Node top() const { return {*this, groupList.front().firstChild}; }

private:
    [[nodiscard]] Text keep(std::string_view text);
    [[nodiscard]] bool hasRoomFor(std::size_t characters) const;
    bool attach();

    std::vector<Group> groupList;
    std::vector<Setting> settingList;
    std::string texts; // all names and values, one behind the other
    std::size_t leftOutCount = 0;
    ReadOver *readOver = nullptr;

    Index current = file; // the innermost group in the tree that has begun
    std::string pending;  // name of the group that has begun last, when it is not yet in the tree
    qint64 pendingPlace = 0;
    bool isPending = false;
    std::size_t depth = 0;   // of the group that has begun last
    std::size_t skipped = 0; // groups that have begun and are read over
};

} // namespace libconfig
