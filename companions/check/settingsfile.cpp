// The settings of a file, gone through group by group, and read again as they are meant.
#include "companions/check/settingsfile.h"

#include "companions/check/settingwords.h"
#include "companions/check/words.h"
#include "config/tree.h"
#include "vocabulary/settings.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using libconfig::Tree;

/// A setting of a tree that counts, and where the one before it stands that does not.
struct Counting
{
    Tree::Setting setting;
    std::optional<qint64> before;
};

/// The settings of each group of a tree, those that count, in the order of the file.
std::vector<std::vector<Counting>> settingsByGroup(const Tree &tree)
{
    std::vector<std::vector<Counting>> groups(tree.groups().size());
    std::vector<QHash<QLatin1StringView, std::size_t>> known(groups.size());
    for (const Tree::Setting &setting : tree.settings()) {
        auto &group = groups[setting.group];
        auto &names = known[setting.group];
        const QLatin1StringView name = tree.text(setting.name);
        if (const auto found = names.constFind(name); found != names.cend()) {
            group[*found] = {setting, group[*found].setting.place};
        } else {
            names.insert(name, group.size());
            group.push_back({setting, {}});
        }
    }
    return groups;
}

/// The value that a setting stands for.
QString meantBy(const SettingsFile::Entry &entry)
{
    const korvel::vocabulary::Setting *setting = korvel::vocabulary::findSetting(entry.meant);
    if (!setting)
        return entry.value;
    bool isNumber = false;
    (void)entry.value.toInt(&isNumber);
    if (isNumber && setting->kind == korvel::vocabulary::Kind::Number)
        return entry.value;
    const QString meant = meantValue(setting->kind, entry.value);
    return meant.isEmpty() ? entry.value : meant;
}

} // namespace

SettingsFile::SettingsFile(const QByteArray &bytes)
    : KVConfiguration(QByteArray()) // what is meant is read below
    , lineStarts{0}
{
    for (qsizetype feed = -1; (feed = bytes.indexOf('\n', feed + 1)) >= 0;)
        lineStarts.append(feed + 1);
    const Notation notation = readNotation(bytes);
    nothingRead = notation.isLost;
    for (const Slip &slip : notation.slips)
        slipsFound.append({placeOf(slip.offset), slip.code, slip.text, slip.setting, 0});
    readCorrected(bytes, notation.edits);
    leftOutCount = static_cast<qsizetype>(document.tree()->leftOut());
    if (!nothingRead)
        checkFirstGroup(notation.hasTop);
    gather();
    addMeanings();
    readMeant();
}

/// Reads a file with its slips corrected.
void SettingsFile::readCorrected(const QByteArray &bytes, const QList<Edit> &edits)
{
    QByteArray corrected;
    qint64 from = 0; // what is still to be taken over
    for (const Edit &edit : edits) {
        if (edit.offset > from)
            corrected += QByteArrayView(bytes).sliced(from, edit.offset - from);
        corrected += edit.text;
        from = std::max(from, edit.offset + edit.length);
        edited.append({corrected.size(), from});
    }
    corrected += QByteArrayView(bytes).sliced(from);
    readBytes(corrected, QString(), u"cfg"_s);
}

/// The first group that holds anything is the only one that is searched, and must be called korvel.
void SettingsFile::checkFirstGroup(bool hasTop)
{
    const Tree &tree = *document.tree();
    if (tree.isEmpty() && hasTop)
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
    const bool isNameless = name == QLatin1StringView(namelessGroup);
    const bool isMeant = isNameless || isNear(name, {top});
    const QString question = isMeant ? orName(top) : QString();
    const QString text = isNameless
                             ? filled(phrase::namelessFirstGroup, question)
                             : filled(phrase::otherFirstGroup, quoted(asSeen(name)), question);
    const Place place = placeOfCorrected(group.place);
    if (!isMeant)
        return lose(place, text, {name});
    slipsFound.append({place, Code::NoSettings, worded(Code::NoSettings, text), {name}, 0});
}

/// Notes that nothing is read, which is all there is to say.
void SettingsFile::lose(Place place, const QString &text, const QStringList &group)
{
    nothingRead = true;
    slipsFound = {{place, Code::NoSettings, worded(Code::NoSettings, text), group, 0}};
}

void SettingsFile::gather()
{
    const Tree &tree = *document.tree();
    const auto place = [this](qint64 corrected) { return placeOfCorrected(corrected); };
    const SettingsGroups found(tree, place);
    allGroups = found.all();
    groupsFound = found.findings();
    std::vector<Tree::Index> order(allGroups.size() + 1, Tree::file);
    for (Tree::Index index = 0; index < tree.groups().size(); ++index)
        order[static_cast<std::size_t>(found.indexOf(index) + 1)] = index;
    const auto settings = settingsByGroup(tree);
    QHash<QStringList, int> counts;
    for (const Tree::Index index : order) {
        const qsizetype group = found.indexOf(index);
        const QStringList path = group < 0 ? QStringList() : allGroups[group].path;
        for (const auto &[setting, before] : settings[index]) {
            const QString key = tree.text(setting.name);
            allEntries.append({path, key, tree.text(setting.value),
                               counts[path + QStringList(key)]++, group, place(setting.place),
                               before ? std::optional(place(*before)) : std::nullopt, QString()});
        }
    }
}

/// Finds what each setting stands for. A misspelt one beside the right one stands for nothing.
void SettingsFile::addMeanings()
{
    QSet<std::pair<qsizetype, QString>> known;
    for (const Entry &entry : std::as_const(allEntries))
        known.insert({entry.group, entry.key});
    for (Entry &entry : allEntries) {
        if (entry.group < 0 || allGroups[entry.group].meant.isEmpty())
            continue;
        const QString meant = meantKey(allGroups[entry.group].meant.constFirst(), entry.key);
        if (entry.key.isEmpty())
            withNameless += allGroups[entry.group].meant;
        if (meant == entry.key || !known.contains({entry.group, meant}))
            entry.meant = meant;
    }
}

/// Reads the file as it is meant.
void SettingsFile::readMeant()
{
    QString text = korvel::vocabulary::group::korvel + ":{"_L1;
    QString inGroup;
    for (qsizetype i = 0; i < allEntries.size() && !nothingRead; ++i) {
        const Entry &entry = allEntries[i];
        if (!entry.meant.isEmpty())
            inGroup += entry.meant + "=\""_L1 + meantBy(entry) + "\";"_L1;
        const bool isLast = i + 1 == allEntries.size() || allEntries[i + 1].group != entry.group;
        if (!isLast || inGroup.isEmpty())
            continue;
        for (const QString &group : allGroups[entry.group].meant)
            text += group + ":{"_L1 + inGroup + "};"_L1;
        inGroup.clear();
    }
    readBytes((text + "};"_L1).toLatin1(), QString(), u"cfg"_s);
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

/// Likewise, of a byte of the file with its slips corrected.
Place SettingsFile::placeOfCorrected(qint64 corrected) const
{
    const auto next =
        std::upper_bound(edited.begin(), edited.end(), corrected,
                         [](qint64 at, const Behind &behind) { return at < behind.corrected; });
    if (next == edited.begin())
        return placeOf(corrected);
    const Behind &last = *std::prev(next);
    return placeOf(last.offset + corrected - last.corrected);
}

} // namespace korvel::check
