// How the tree grows while a settings file is read, and how it is gone through.
#include "config/tree.h"

namespace libconfig {

Tree::Tree()
    : groupList(1)
{
}

void Tree::beginGroup(std::string_view name, qint64 place)
{
    if (skipped > 0 || !attach() || name.empty() || depth == deepestGroup) {
        if (skipped == 0 && !isPending && !name.empty())
            leaveOut();
        ++skipped;
        return;
    }
    ++depth;
    pending = name;
    pendingPlace = place;
    isPending = true;
}

void Tree::endGroup()
{
    if (skipped > 0) {
        --skipped;
        return;
    }
    --depth;
    if (!isPending)
        current = groupList[current].parent;
    else if (readOver)
        readOver->groups.push_back(pending);
    isPending = false;
}

void Tree::passOver(std::string_view text)
{
    if (readOver && !text.empty())
        readOver->texts.emplace_back(text);
}

void Tree::addSetting(std::string_view name, std::string_view value, qint64 place)
{
    if (skipped > 0)
        return;
    const std::size_t nameOfGroup = isPending ? pending.size() : 0;
    if (settingList.size() == mostSettings
        || !hasRoomFor(nameOfGroup + name.size() + value.size())) {
        leaveOut();
        return;
    }
    if (!attach())
        return;
    const Text keptName = keep(name);
    const Text keptValue = keep(value);
    Index &last = groupList[current].lastSetting;
    settingList.push_back({keptName, keptValue, place, current, last});
    last = static_cast<Index>(settingList.size() - 1);
}

/// Puts the group that has begun last into the tree, unless it is there; false beyond a limit.
bool Tree::attach()
{
    if (!isPending)
        return true;
    if (groupList.size() > mostGroups || !hasRoomFor(pending.size())) {
        leaveOut();
        return false;
    }
    const auto index = static_cast<Index>(groupList.size());
    Group group;
    group.name = keep(pending);
    group.place = pendingPlace;
    group.parent = current;
    groupList.push_back(group);

    Group &parent = groupList[current];
    if (parent.lastChild == none)
        parent.firstChild = index;
    else
        groupList[parent.lastChild].next = index;
    parent.lastChild = index;
    current = index;
    isPending = false;
    return true;
}

Tree::Text Tree::keep(std::string_view text)
{
    const auto offset = static_cast<quint32>(texts.size());
    texts += text;
    return {offset, static_cast<quint32>(text.size())};
}

bool Tree::hasRoomFor(std::size_t characters) const
{
    return characters <= mostText - texts.size();
}

QLatin1StringView Tree::text(Text kept) const
{
    return {texts.data() + kept.offset, static_cast<qsizetype>(kept.length)};
}

bool Tree::Node::isNamed(QStringView name) const
{
    return tree->text(tree->groupList[group].name) == name;
}

QString Tree::Node::value(QStringView setting) const
{
    for (Index i = tree->groupList[group].lastSetting; i != none; i = tree->settingList[i].before) {
        if (tree->text(tree->settingList[i].name) == setting)
            return tree->text(tree->settingList[i].value);
    }
    return {};
}

Tree::Node Tree::Node::firstChild() const { return {*tree, tree->groupList[group].firstChild}; }

Tree::Node Tree::Node::nextSibling() const { return {*tree, tree->groupList[group].next}; }

} // namespace libconfig
