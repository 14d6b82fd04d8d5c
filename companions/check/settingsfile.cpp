// The settings of a file, gone through group by group.
#include "companions/check/settingsfile.h"

#include "companions/check/vocabulary.h"
#include "companions/check/words.h"
#include "companions/shared/nearest.h"
#include "config/tree.h"
#include "vocabulary/settings.h"

#include <QHash>

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using libconfig::Tree;

/// The settings of each group of a tree, those that count, in the order of the file.
std::vector<std::vector<Tree::Setting>> settingsByGroup(const Tree &tree)
{
    std::vector<std::vector<Tree::Setting>> groups(tree.groups().size());
    std::vector<QHash<QLatin1StringView, std::size_t>> known(groups.size());
    for (const Tree::Setting &setting : tree.settings()) {
        auto &group = groups[setting.group];
        auto &names = known[setting.group];
        const QLatin1StringView name = tree.text(setting.name);
        if (const auto found = names.constFind(name); found != names.cend()) {
            group[*found] = setting;
        } else {
            names.insert(name, group.size());
            group.push_back(setting);
        }
    }
    return groups;
}

/// The groups of a tree, each before those in it and these before the next one beside it.
std::vector<Tree::Index> groupsInOrder(const Tree &tree)
{
    std::vector<Tree::Index> order;
    Tree::Index group = Tree::file;
    while (group != Tree::none) {
        order.push_back(group);
        Tree::Index next = tree.groups()[group].firstChild;
        for (; next == Tree::none && group != Tree::none; group = tree.groups()[group].parent)
            next = tree.groups()[group].next;
        group = next;
    }
    return order;
}

} // namespace

SettingsFile::SettingsFile(const QByteArray &bytes)
    : KVConfiguration(QByteArray()) // what is meant is read below
    , lineStarts{0}
{
    for (qsizetype feed = -1; (feed = bytes.indexOf('\n', feed + 1)) >= 0;)
        lineStarts.append(feed + 1);
    Notation notation = readNotation(bytes);
    nothingRead = notation.isLost;
    for (const Slip &slip : notation.slips)
        slipsFound.append({placeOf(slip.offset), slip.code, slip.text, slip.setting, 0});
    read(bytes, notation.edits);
    if (!nothingRead)
        checkFirstGroup(bytes, notation);
}

/// Reads a file as it is meant.
void SettingsFile::read(const QByteArray &bytes, const QList<Edit> &edits)
{
    QByteArray meant;
    qint64 from = 0; // what is still to be taken over
    edited.clear();
    for (const Edit &edit : edits) {
        if (edit.offset > from)
            meant += QByteArrayView(bytes).sliced(from, edit.offset - from);
        meant += edit.text;
        from = std::max(from, edit.offset + edit.length);
        edited.append({meant.size(), from});
    }
    meant += QByteArrayView(bytes).sliced(from);
    readBytes(meant, QString(), u"cfg"_s);
}

/// The first group that holds anything is the only one that is searched, and must be called korvel.
void SettingsFile::checkFirstGroup(const QByteArray &bytes, Notation &notation)
{
    const Tree &tree = *document.tree();
    if (tree.isEmpty() && notation.hasTop)
        return; // all is meant to be at its default
    if (tree.isEmpty())
        return lose({}, phrase::noSetting, {});
    const Tree::Index first = tree.groups().front().firstChild;
    if (first == Tree::none)
        return lose({}, phrase::noGroup, {});
    const Tree::Group &group = tree.groups()[first];
    const QString name = tree.text(group.name);
    const QString top = korvel::vocabulary::group::korvel;
    if (name == top)
        return;
    const QString nearest = shared::nearest(name, {top});
    const QString question = nearest.isEmpty() ? QString() : filled(phrase::didYouMean, top);
    const QString text = filled(phrase::otherFirstGroup, quoted(name), question);
    if (nearest.isEmpty())
        return lose(placeOfMeant(group.place), text, {name});
    const qint64 offset = offsetOfMeant(group.place);
    slipsFound.append(
        {placeOf(offset), Code::NoSettings, worded(Code::NoSettings, text), {name}, 0});
    QList<Edit> &edits = notation.edits;
    const auto behind =
        std::upper_bound(edits.begin(), edits.end(), offset,
                         [](qint64 at, const Edit &edit) { return at < edit.offset; });
    edits.insert(behind, {offset, group.name.length, top.toLatin1()});
    read(bytes, edits);
}

/// Notes that nothing is read, which is all there is to say.
void SettingsFile::lose(Place place, const QString &text, const QStringList &group)
{
    nothingRead = true;
    slipsFound = {{place, Code::NoSettings, worded(Code::NoSettings, text), group, 0}};
}

QList<SettingsFile::Entry> SettingsFile::entries() const
{
    const Tree &tree = *document.tree();
    const auto settings = settingsByGroup(tree);
    const Tree::Index searched = tree.groups().front().firstChild;
    std::vector<QStringList> names(tree.groups().size()); // of a group, from the top-level one on
    std::vector<Tree::Index> tops(names.size(), Tree::none);
    QList<Entry> found;
    QHash<QStringList, int> counts;
    for (const Tree::Index index : groupsInOrder(tree)) {
        const Tree::Group &group = tree.groups()[index];
        if (index != Tree::file) {
            names[index] = names[group.parent] + QStringList(tree.text(group.name));
            tops[index] = group.parent == Tree::file ? index : tops[group.parent];
        }
        for (const Tree::Setting &setting : settings[index]) {
            const QString key = tree.text(setting.name);
            found.append({names[index], key, tree.text(setting.value),
                          counts[names[index] + QStringList(key)]++,
                          index != Tree::file && tops[index] == searched,
                          placeOfMeant(setting.place)});
        }
    }
    return found;
}

qsizetype SettingsFile::leftOut() const
{
    return static_cast<qsizetype>(document.tree()->leftOut());
}

QString SettingsFile::value(QLatin1StringView group, QLatin1StringView key) const
{
    return lookup(korvel::vocabulary::pathOf(group, key));
}

bool SettingsFile::isOn(QLatin1StringView group, QLatin1StringView key) const
{
    return value(group, key) == korvel::vocabulary::on;
}

int SettingsFile::number(QLatin1StringView group, QLatin1StringView key) const
{
    return value(group, key).toInt();
}

KVConfiguration &SettingsFile::forEngine() const
{
    // Back ends have had a pointer to what could be changed from the first.
    return const_cast<SettingsFile &>(*this);
}

/// Where a byte of the file stands; bytes are characters of Latin-1.
Place SettingsFile::placeOf(qint64 offset) const
{
    const auto next = std::upper_bound(lineStarts.begin(), lineStarts.end(), offset);
    return {next - lineStarts.begin(), offset - *std::prev(next) + 1};
}

/// Likewise, of a byte of the file as it is meant.
Place SettingsFile::placeOfMeant(qint64 meant) const { return placeOf(offsetOfMeant(meant)); }

qint64 SettingsFile::offsetOfMeant(qint64 meant) const
{
    const auto next =
        std::upper_bound(edited.begin(), edited.end(), meant,
                         [](qint64 at, const Behind &behind) { return at < behind.meant; });
    if (next == edited.begin())
        return meant;
    const Behind &last = *std::prev(next);
    return last.offset + meant - last.meant;
}

} // namespace korvel::check
