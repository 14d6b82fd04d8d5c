// Finding settings in the view, and changing it.
#include "companions/settings/state.h"

#include "companions/settings/edits.h"
#include "companions/settings/fields.h"
#include "companions/settings/jobs.h"
#include "config/config.h"

#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;
using libconfig::Config;

namespace korvel::settings {

namespace {

/// Notes the settings of a group and of those in it. An empty value gives way to a later one.
void noteValues(const QTreeWidgetItem &group, const QStringList &path, Values &values)
{
    for (int i = 0; i < group.childCount(); ++i) {
        const QTreeWidgetItem &row = *group.child(i);
        const QStringList own = path + QStringList(row.text(0));
        if (!Config::isSetting(&row)) {
            noteValues(row, own, values);
            continue;
        }
        QString &value = values[own];
        if (value.isEmpty())
            value = row.child(0)->text(0);
    }
}

void outline(const QTreeWidgetItem &row, int depth, Outline &all)
{
    all.append({depth, row.text(0)});
    for (int i = 0; i < row.childCount(); ++i)
        outline(*row.child(i), depth + 1, all);
}

Outline outlineOf(const QTreeWidget &view)
{
    Outline all;
    for (int i = 0; i < view.topLevelItemCount(); ++i)
        outline(*view.topLevelItem(i), 0, all);
    return all;
}

std::unique_ptr<QTreeWidgetItem> newSetting(const QString &name, const QString &value)
{
    auto row = std::make_unique<QTreeWidgetItem>(QStringList(name));
    auto *valueRow = new QTreeWidgetItem(row.get(), {value});
    valueRow->setFlags(valueRow->flags() | Qt::ItemIsEditable);
    return row;
}

std::unique_ptr<QTreeWidgetItem> newGroup(const QString &name,
                                          std::unique_ptr<QTreeWidgetItem> content)
{
    auto row = std::make_unique<QTreeWidgetItem>(QStringList(name));
    row->addChild(content.release());
    return row;
}

/// Where a setting goes in a group: behind the others, before the groups.
int placeForSetting(const QTreeWidgetItem &group)
{
    int place = 0;
    while (place < group.childCount() && Config::isSetting(group.child(place)))
        ++place;
    return place;
}

/// All rows below one that a path of names leads to.
void findRows(QTreeWidgetItem &parent, const QStringList &path, QList<QTreeWidgetItem *> &found)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        QTreeWidgetItem &row = *parent.child(i);
        if (row.text(0) != path.constFirst())
            continue;
        if (path.size() == 1)
            found.append(&row);
        else if (!Config::isSetting(&row))
            findRows(row, path.sliced(1), found);
    }
}

/// A change as "Undo" goes on.
QString namedSet(const QString &key, const QString &value)
{
    const vocabulary::Setting *setting = vocabulary::findSetting(key);
    const QString name = fields::nameOf(key);
    if (setting && setting->kind == vocabulary::Kind::Switch && value == vocabulary::on)
        return State::tr("%1 on").arg(name);
    if (setting && setting->kind == vocabulary::Kind::Switch && value == "false"_L1)
        return State::tr("%1 off").arg(name);
    return name + u' ' + (value.isEmpty() ? fields::emptyValue() : value);
}

} // namespace

QTreeWidgetItem *State::firstGroup(const QTreeWidget &view)
{
    const QTreeWidgetItem *file = view.topLevelItem(0);
    for (int i = 0; file && i < file->childCount(); ++i) {
        if (!Config::isSetting(file->child(i)))
            return file->child(i);
    }
    return nullptr;
}

Values valuesOf(const QTreeWidget &view)
{
    Values values;
    if (const QTreeWidgetItem *group = State::firstGroup(view))
        noteValues(*group, {group->text(0)}, values);
    return values;
}

State::State(QObject *parent)
    : QObject(parent)
{
    connect(&stack, &QUndoStack::indexChanged, this, &State::noteChange);
    // Without a name the store would make no row of the file, which all groups are below.
    const QString name = u":/examples/korvel.conf"_s;
    Config sample;
    sample.readBytes(resource(name), name, u"cfg"_s);
    inSample = valuesOf(*std::unique_ptr<QTreeWidget>(sample.newConfigListView()));
}

State::~State() { stack.disconnect(this); }

void State::begin(std::unique_ptr<QTreeWidget> newView, const QString &path)
{
    beginning = true; // what is forgotten is no change
    stack.clear();
    beginning = false;
    rows = std::move(newView);
    filePath = path;
    present = inFile = valuesOf(*rows);
    outlineInFile = outlineOf(*rows);
}

void State::noteChange()
{
    if (beginning)
        return;
    present = valuesOf(*rows);
    emit changed();
}

std::optional<QString> State::value(const QStringList &path) const
{
    const auto found = present.find(path);
    return found == present.end() ? std::nullopt : std::optional(*found);
}

std::optional<QString> State::fileValue(const QStringList &path) const
{
    const auto found = inFile.find(path);
    return found == inFile.end() ? std::nullopt : std::optional(*found);
}

std::optional<QString> State::sampleValue(const QStringList &path) const
{
    const auto found = inSample.find(path);
    return found == inSample.end() ? std::nullopt : std::optional(*found);
}

/// The row of the setting that counts: of several groups of a name, the first with a value.
QTreeWidgetItem *State::settingRow(const QStringList &path) const
{
    QTreeWidgetItem *group = firstGroup(*rows);
    if (!group || group->text(0) != path.constFirst())
        return nullptr;
    QList<QTreeWidgetItem *> found;
    findRows(*group, path.sliced(1), found);
    QTreeWidgetItem *first = nullptr;
    for (QTreeWidgetItem *row : found) {
        if (!Config::isSetting(row))
            continue;
        if (!row->child(0)->text(0).isEmpty())
            return row;
        if (!first)
            first = row;
    }
    return first;
}

void State::set(const QStringList &path, const std::optional<QString> &value, int move)
{
    QTreeWidgetItem *row = settingRow(path);
    if (!value && row)
        remove(*row);
    else if (value && !row)
        add(path, *value);
    else if (value && row->child(0)->text(0) != *value) {
        auto edit = std::make_unique<ValueEdit>(*rows, *row->child(0), *value,
                                                namedSet(path.constLast(), *value));
        edit->joinMove(move);
        stack.push(edit.release());
    }
}

void State::setValue(const QTreeWidgetItem &valueRow, const QString &value)
{
    if (valueRow.text(0) != value)
        stack.push(
            new ValueEdit(*rows, valueRow, value, namedSet(valueRow.parent()->text(0), value)));
}

/// Adds a setting that is not there, with those of its groups that are not.
void State::add(const QStringList &path, const QString &value)
{
    const QString text = namedSet(path.constLast(), value);
    QTreeWidgetItem *top = firstGroup(*rows);
    if (top && top->text(0) != path.constFirst())
        top = nullptr;
    QTreeWidgetItem *group = nullptr;
    for (int i = 0; top && i < top->childCount() && !group; ++i) {
        QTreeWidgetItem *row = top->child(i);
        if (row->text(0) == path[1] && !Config::isSetting(row))
            group = row;
    }
    auto row = newSetting(path[2], value);
    if (group) {
        insert(std::move(row), group, placeForSetting(*group), text);
        return;
    }
    row = newGroup(path[1], std::move(row));
    if (top) {
        insert(std::move(row), top, top->childCount(), text);
        return;
    }
    row = newGroup(path[0], std::move(row));
    if (QTreeWidgetItem *file = rows->topLevelItem(0))
        insert(std::move(row), file, placeForSetting(*file), text);
    else
        insert(newGroup(filePath, std::move(row)), nullptr, 0, text);
}

QTreeWidgetItem *State::insert(std::unique_ptr<QTreeWidgetItem> row, QTreeWidgetItem *parent,
                               int index, const QString &text)
{
    QTreeWidgetItem *added = row.get();
    Place place = parent ? placeOf(*rows, parent) : Place();
    place.append(index);
    stack.push(new RowEdit(*rows, std::move(row), place, text));
    return added;
}

QTreeWidgetItem *State::addSetting(QTreeWidgetItem &group, const QString &name,
                                   const QString &value)
{
    return insert(newSetting(name, value), &group, placeForSetting(group), namedSet(name, value));
}

QTreeWidgetItem *State::addGroup(QTreeWidgetItem *parent, const QString &name,
                                 const QString &setting, const QString &value)
{
    const QString text = tr("group %1").arg(name);
    auto row = newGroup(name, newSetting(setting, value));
    QTreeWidgetItem *added = row.get();
    if (!parent)
        row = newGroup(filePath, std::move(row));
    insert(std::move(row), parent, parent ? parent->childCount() : 0, text);
    return added;
}

void State::remove(QTreeWidgetItem &row)
{
    QTreeWidgetItem *highest = &row;
    while (highest->parent() && highest->parent()->childCount() == 1)
        highest = highest->parent();
    const QString name = row.text(0);
    stack.push(new RowEdit(*rows, *highest,
                           Config::isSetting(&row) ? tr("%1 not set").arg(fields::nameOf(name))
                                                   : tr("removal of %1").arg(name)));
}

void State::markSaved()
{
    inFile = present;
    outlineInFile = outlineOf(*rows);
    stack.setClean();
}

bool State::isModified() const { return !stack.isClean() && outlineOf(*rows) != outlineInFile; }

QTreeWidgetItem *State::rowOf(const QStringList &path) const
{
    QList<QTreeWidgetItem *> found;
    for (int i = 0; !path.isEmpty() && i < rows->topLevelItemCount(); ++i)
        findRows(*rows->topLevelItem(i), path, found);
    return found.value(0);
}

QStringList State::pathOf(const QTreeWidgetItem *row)
{
    QStringList path;
    if (row && row->parent() && Config::isSetting(row->parent()))
        row = row->parent();
    for (; row && row->parent(); row = row->parent())
        path.prepend(row->text(0));
    return path;
}

} // namespace korvel::settings
