// Reading, comparing and saving a settings file through the store.
#include "companions/settings/document.h"

#include "companions/settings/fields.h"
#include "companions/settings/jobs.h"
#include "companions/shared/oneline.h"
#include "config/config.h"
#include "config/path.h"
#include "config/statements.h"
#include "config/tree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>
#include <QSet>
#include <QTreeWidget>

#include <optional>
#include <string>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using libconfig::Config;

namespace korvel::settings {

namespace {

/// A row of a view: a group, or a setting with its value.
struct Row
{
    QStringList path; // names from the top-level group on
    bool isSetting = false;
    bool isEmpty = false; // a group with nothing in it
    bool isTaken = false; // a group that is read back as a setting: its first group is empty
    QString value;
};

void addRows(const QTreeWidgetItem &parent, const QStringList &path, QList<Row> &rows)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        const QTreeWidgetItem &item = *parent.child(i);
        Row row;
        row.path = path + QStringList(item.text(0));
        row.isEmpty = item.childCount() == 0;
        row.isSetting = Config::isSetting(&item);
        if (row.isSetting) {
            row.value = item.child(0)->text(0);
            row.isTaken = (item.child(0)->flags() & Qt::ItemIsEditable) == 0;
        }
        rows.append(row);
        if (!row.isSetting)
            addRows(item, row.path, rows);
    }
}

/// All rows below the one that stands for the file.
QList<Row> rowsOf(const QTreeWidget &view)
{
    QList<Row> rows;
    for (int i = 0; i < view.topLevelItemCount(); ++i)
        addRows(*view.topLevelItem(i), {}, rows);
    return rows;
}

/// Rows to be found again by what they are called and what they are.
class RowsReadBack
{
public:
    explicit RowsReadBack(const QList<Row> &rows)
    {
        for (const Row &row : rows)
            left[{row.path, row.isSetting}].append(row);
    }

    /// Takes the row that another one was read back as; nothing when there is none.
    std::optional<Row> take(const Row &sought)
    {
        const auto found = left.find({sought.path, sought.isSetting});
        if (found == left.end() || found->isEmpty())
            return {};
        return found->takeFirst();
    }

private:
    QHash<std::pair<QStringList, bool>, QList<Row>> left;
};

QString asText(std::string_view bytes)
{
    return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// What stands in a file and not in its view, a line each: groups without settings, texts before
/// the end of a group, and settings that a later one of their name takes the place of.
QStringList readOver(const QByteArray &file)
{
    libconfig::Tree::ReadOver what;
    libconfig::Tree tree;
    tree.noteReadOver(what);
    libconfig::Memory bytes(file);
    libconfig::Statements(bytes, tree).read();
    QStringList lines;
    for (const std::string &name : what.groups)
        lines.append(SettingsDocument::tr("The group %1 has no settings.").arg(asText(name)));
    for (const std::string &text : what.texts)
        lines.append(
            SettingsDocument::tr("The text %1 is no setting.").arg(shared::quoted(asText(text))));
    QSet<std::pair<libconfig::Tree::Index, QString>> names;
    for (const libconfig::Tree::Setting &setting : tree.settings()) {
        const QString name = tree.text(setting.name);
        if (names.contains({setting.group, name}))
            lines.append(SettingsDocument::tr("The setting %1 stands twice; the last one is kept.")
                             .arg(name));
        names.insert({setting.group, name});
    }
    return lines;
}

/// Whether there is text behind the last group or setting of a file.
bool hasTail(const QByteArray &file)
{
    const QByteArray text = file.trimmed();
    return !text.isEmpty() && !text.endsWith(';');
}

/// Whether bytes are in the store's other notation, behind the mark that some programs put in
/// front.
bool beginsAsXml(QByteArrayView bytes)
{
    constexpr QByteArrayView mark = "\xEF\xBB\xBF";
    if (bytes.startsWith(mark))
        bytes = bytes.sliced(mark.size());
    return bytes.trimmed().startsWith('<');
}

// As no element can be called.
constexpr auto wrapperName = "/"_L1;

/// Calls the row that all others are below as the file is called. What stands in XML before the
/// first element keeps the store from making that row: it is made here.
void nameFileRow(QTreeWidget &view, const QString &path)
{
    if (view.topLevelItemCount() == 0)
        return;
    if (view.topLevelItem(0)->text(0) != wrapperName)
        view.addTopLevelItem(new QTreeWidgetItem({path}));
    QTreeWidgetItem *file = view.topLevelItem(view.topLevelItemCount() - 1);
    file->setText(0, path);
    while (view.topLevelItem(0) != file)
        file->addChild(view.takeTopLevelItem(0));
}

/// Whether one path begins with another.
bool isBelow(const QStringList &path, const QStringList &group)
{
    return path.size() > group.size() && path.first(group.size()) == group;
}

} // namespace

SettingsDocument::SettingsDocument(const QString &file)
    : filePath(korvel::path::forToolkit(file))
    , notation(u"cfg"_s)
{
}

bool SettingsDocument::exists() const { return QFileInfo::exists(filePath); }

void SettingsDocument::moveTo(const QString &file)
{
    filePath = korvel::path::forToolkit(file);
    notation = u"cfg"_s;
    lastSeen = bytesOnDisk();
    existed = exists();
}

std::unique_ptr<QTreeWidget> SettingsDocument::read()
{
    source = lastSeen = bytesOnDisk();
    existed = exists();
    notation = beginsAsXml(lastSeen) ? u"xml"_s : u"cfg"_s;
    Config store;
    store.readBytes(lastSeen, wrapperName, notation);
    std::unique_ptr<QTreeWidget> view(store.newConfigListView());
    nameFileRow(*view, filePath);
    return view;
}

QString SettingsDocument::readError() const
{
    QString error;
    if (exists())
        fileBytes(filePath, error);
    return error;
}

bool SettingsDocument::hasChanged() const
{
    return exists() != existed || bytesOnDisk() != lastSeen;
}

QStringList SettingsDocument::losses(const QTreeWidget &view) const
{
    QStringList lines;
    Config store;
    store.readBytes(written(view), filePath, notation);
    const std::unique_ptr<QTreeWidget> readBack(store.newConfigListView());

    const QList<Row> before = rowsOf(view);
    RowsReadBack after(rowsOf(*readBack));
    if (before.isEmpty() && !source.trimmed().isEmpty())
        lines.append(tr("Everything: nothing in the file could be read, and it would be emptied."));

    if (!beginsAsXml(source)) {
        lines += readOver(source);
        if (!before.isEmpty() && hasTail(source))
            lines.append(tr("The text at the end of the file is no setting."));
    }

    QStringList lost; // the group that was lost last, whose rows need no mention
    QString firstGroup;
    for (const Row &row : before) {
        const QString name = row.path.join(u'.');
        const bool isTop = row.path.size() == 1 && !row.isSetting;
        if (isTop && firstGroup.isEmpty() && !row.isEmpty)
            firstGroup = name;
        if (!lost.isEmpty() && isBelow(row.path, lost))
            continue;
        if (const auto kept = after.take(row); kept && !row.isTaken) {
            if (kept->value != row.value)
                lines.append(tr("%1 would be \"%2\" instead of \"%3\".")
                                 .arg(fields::labelOf(row.path), kept->value, row.value));
            continue;
        }
        lost = row.path;
        if (row.isEmpty)
            lines.append(tr("The group %1 has no settings.").arg(name));
        else if (isTop && name != firstGroup)
            lines.append(
                tr("The group %1 stands beside %2; only the first group of a file is kept.")
                    .arg(name, firstGroup));
        else if (!row.isSetting || row.isTaken)
            lines.append(tr("The group %1 would be moved to another place.").arg(name));
        else
            lines.append(tr("The setting %1 would be lost.").arg(fields::labelOf(row.path)));
    }
    return lines;
}

QString SettingsDocument::save(const QTreeWidget &view)
{
    const QString folder = QFileInfo(filePath).path();
    if (!QDir().mkpath(folder))
        return tr("The folder %1 cannot be made.").arg(folder);
    // The backup would be empty, and the one before it lost.
    if (QString error = readError(); !error.isEmpty())
        return error;
    const QByteArray expected = written(view);
    const QByteArray before = bytesOnDisk();
    const bool wasThere = exists();
    if (wasThere) {
        QSaveFile backup(filePath + u'~');
        if (!backup.open(QIODevice::WriteOnly) || backup.write(before) != before.size()
            || !backup.flush() || !backup.commit())
            return tr("The previous file could not be kept as %1; nothing was saved.")
                .arg(filePath + u'~');
    }
    QFile file(filePath);
    if (!file.open(QIODevice::ReadWrite))
        return tr("%1 cannot be written: %2").arg(filePath, file.errorString());
    file.resize(0);
    file.write(expected);
    file.close();
    const QByteArray written = bytesOnDisk();
    if (written != expected) {
        if (!wasThere)
            file.remove();
        else if (file.open(QIODevice::WriteOnly))
            file.write(before);
        return tr("%1 could not be written whole; the previous file was put back.").arg(filePath);
    }
    source = lastSeen = written;
    existed = true;
    return {};
}

QByteArray SettingsDocument::writtenBy(const QTreeWidget &view)
{
    return writtenBy(view, u"cfg"_s);
}

QByteArray SettingsDocument::writtenBy(const QTreeWidget &view, const QString &notation)
{
    Config store;
    store.readBytes({}, {}, notation);
    store.takeListView(&view);
    return store.written();
}

QByteArray SettingsDocument::bytesOnDisk() const
{
    QFile file(filePath);
    return QFileInfo(filePath).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll()
                                                                          : QByteArray();
}

} // namespace korvel::settings
