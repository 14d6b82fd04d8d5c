// The checker's findings and the vocabulary, brought to the rows of the tree.
#include "companions/settings/hints.h"

#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/check/vocabulary.h"
#include "companions/settings/state.h"
#include "companions/shared/oneline.h"
#include "config/config.h"

#include <QApplication>
#include <QHash>
#include <QStyle>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using namespace Qt::Literals::StringLiterals;
using libconfig::Config;

namespace korvel::settings::hints {

namespace {

/// What a finding means for the paper, in the user's language.
struct Warning
{
    check::Code code;
    const char *text;
};

// clang-format off
constexpr Warning warnings[] = {
    {check::Code::UnreadKey,
     QT_TRANSLATE_NOOP("korvel::settings::hints",
                       "No document reads this: the renderer passes it over.")},
    {check::Code::LostGroup,
     QT_TRANSLATE_NOOP("korvel::settings::hints",
                       "No document reads this: the renderer passes it over.")},
    {check::Code::NotTrue,
     QT_TRANSLATE_NOOP("korvel::settings::hints",
                       "Counts as off: only exactly \"true\" switches it on.")},
    {check::Code::NotANumber,
     QT_TRANSLATE_NOOP("korvel::settings::hints", "Not a whole number: counts as 0.")},
    {check::Code::Columns,
     QT_TRANSLATE_NOOP("korvel::settings::hints",
                       "Too wide for the paper: lines of more than 32 characters, "
                       "or no room for the description.")},
};
// clang-format on

QString localised(const char *text)
{
    return QCoreApplication::translate("korvel::settings::hints", text);
}

/// The warning of a code; empty for one whose findings say it themselves.
QString warningOf(check::Code code)
{
    for (const Warning &row : warnings) {
        if (code == row.code)
            return localised(row.text);
    }
    return {};
}

using Rows = QHash<QStringList, QList<QTreeWidgetItem *>>;

/// Notes the rows below a row by their paths of names. A setting has a value below it, and a value
/// may be called like a group.
void noteRows(QTreeWidgetItem &parent, const QStringList &path, Rows &rows)
{
    for (int i = 0; i < parent.childCount(); ++i) {
        QTreeWidgetItem &row = *parent.child(i);
        if (row.childCount() == 0)
            continue;
        const QStringList own = path + QStringList(row.text(0));
        rows[own].append(&row);
        noteRows(row, own, rows);
    }
}

/// Notes what nothing reads of the settings and groups in a group: in `korvel` those of documents
/// are read, in these what the vocabulary has.
void noteUnread(const QTreeWidgetItem &group, QList<QTreeWidgetItem *> &unread)
{
    const bool isOutermost = group.parent() && !group.parent()->parent();
    for (int i = 0; i < group.childCount(); ++i) {
        QTreeWidgetItem *row = group.child(i);
        const QString name = row->text(0);
        const bool isSetting = Config::isSetting(row);
        if (isOutermost && !isSetting && vocabulary::groupNames().contains(name))
            noteUnread(*row, unread);
        else if (isOutermost || !isSetting || !vocabulary::isRead(group.text(0), name))
            unread.append(row);
    }
}

/// Which documents of a group print by a setting, or read the group.
QString readBy(vocabulary::Documents documents)
{
    QStringList titles;
    for (const vocabulary::Method &method : vocabulary::methods()) {
        if ((documents & method.document) != 0)
            titles.append(vocabulary::titleOf(method));
    }
    return titles.isEmpty() ? QCoreApplication::translate("korvel::settings::hints",
                                                          "Nothing on the paper depends on it.")
                            : QCoreApplication::translate("korvel::settings::hints", "Read by: %1.")
                                  .arg(titles.join(u", "_s));
}

} // namespace

Hint ofXml()
{
    Hint hint;
    hint.text = QCoreApplication::translate(
        "korvel::settings::hints",
        "The renderer reads nothing of this file: it is written as XML. Save as, in the menu "
        "File, writes the settings as the renderer reads them.");
    hint.isOfAll = true;
    return hint;
}

Hint ofFirstGroup(const QString &name)
{
    Hint hint;
    hint.text = QCoreApplication::translate(
                    "korvel::settings::hints",
                    "The renderer reads nothing of this file: its first group is called %1, and "
                    "not \"korvel\".")
                    .arg(shared::quoted(name));
    hint.isOfAll = true;
    return hint;
}

QList<Hint> find(const QByteArray &settings)
{
    QList<Hint> found;
    const check::SettingsFile file(settings);
    for (const check::Finding &finding : checkSettings(file)) {
        const bool isUnread =
            finding.code == check::Code::UnreadKey || finding.code == check::Code::LostGroup;
        const QString warning = warningOf(finding.code);
        found.append({finding.setting, finding.occurrence,
                      warning.isEmpty() ? finding.text : warning, isUnread, false});
    }
    return found;
}

void mark(QTreeWidget &view, const QList<Hint> &found)
{
    const QSignalBlocker quiet(view); // a mark is no edit
    for (QTreeWidgetItemIterator it(&view); *it; ++it) {
        (*it)->setIcon(0, QIcon());
        (*it)->setToolTip(0, QString());
        (*it)->setData(0, Qt::AccessibleDescriptionRole, QVariant());
    }
    const QIcon icon = QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    Rows rows;
    for (int i = 0; i < view.topLevelItemCount(); ++i)
        noteRows(*view.topLevelItem(i), {}, rows);
    const auto markRow = [&](QTreeWidgetItem *row, const QString &text) {
        for (QTreeWidgetItem *item : {row, Config::isSetting(row) ? row->child(0) : row}) {
            item->setIcon(0, icon);
            item->setToolTip(0, text);
            item->setData(0, Qt::AccessibleDescriptionRole, text);
        }
    };
    for (const Hint &hint : found) {
        if (QTreeWidgetItem *row = rows.value(hint.setting).value(hint.occurrence))
            markRow(row, hint.text);
    }
    // The checker is silent about what another document would read.
    for (QTreeWidgetItem *row : unreadRows(view)) {
        if (row->toolTip(0).isEmpty())
            markRow(row, warningOf(check::Code::UnreadKey));
    }
}

QList<QTreeWidgetItem *> unreadRows(const QTreeWidget &view)
{
    QList<QTreeWidgetItem *> unread;
    const QTreeWidgetItem *file = view.topLevelItem(0);
    const QTreeWidgetItem *searched = State::firstGroup(view);
    for (int i = 0; file && i < file->childCount(); ++i) {
        QTreeWidgetItem *row = file->child(i);
        if (row == searched && row->text(0) == vocabulary::group::korvel)
            noteUnread(*row, unread);
        else
            unread.append(row);
    }
    return unread;
}

QString meaningOf(const QTreeWidgetItem *row)
{
    if (!row)
        return {};
    const QStringList path = State::pathOf(row);
    if (path.size() < 2)
        return {};
    const QString &group = path[1];
    const vocabulary::Documents documents = vocabulary::documentsOf(group);
    QString text;
    if (path.size() == 2 && documents != 0) {
        text = u"<b>"_s + group + u"</b><br>"_s + readBy(documents);
    } else if (path.size() == 3 && group == vocabulary::group::language) {
        for (const vocabulary::LanguageSetting &setting : vocabulary::languageSettings()) {
            if (path[2] == setting.key)
                text = u"<b>"_s + path[2] + u"</b><br>"_s
                       + translated(setting.meaning).toHtmlEscaped();
        }
    } else if (path.size() == 3 && documents != 0) {
        if (const vocabulary::Setting *setting = vocabulary::findSetting(path[2]))
            text = u"<b>"_s + path[2] + u"</b><br>"_s + translated(setting->meaning).toHtmlEscaped()
                   + u"<br>"_s + readBy(setting->documents & documents);
    }
    if (!row->toolTip(0).isEmpty())
        text += (text.isEmpty() ? u""_s : u"<br>"_s) + u"<i>"_s + row->toolTip(0).toHtmlEscaped()
                + u"</i>"_s;
    return text;
}

QString translated(const char *meaning)
{
    return QCoreApplication::translate("vocabulary", meaning).remove(u'`');
}

} // namespace korvel::settings::hints
