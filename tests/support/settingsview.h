// The rows of a list view of settings.
#pragma once

#include <QString>
#include <QStringList>
#include <QTreeWidget>

#include <algorithm>

inline void addRows(const QTreeWidgetItem *row, int depth, QStringList &lines)
{
    const QString mark = row->flags() & Qt::ItemIsEditable ? "*" : "";
    lines.append(QString(2 * depth, ' ') + mark + row->text(0));
    for (int i = 0; i < row->childCount(); ++i)
        addRows(row->child(i), depth + 1, lines);
}

/// All rows of a view, indented by depth, "*" before one that can be edited.
inline QStringList rowsOf(const QTreeWidget &view)
{
    QStringList lines;
    for (int i = 0; i < view.topLevelItemCount(); ++i)
        addRows(view.topLevelItem(i), 0, lines);
    return lines;
}

/// The row that names lead to below the file's: "korvel.receiptdoc.paperWidth", a repeated name
/// with its number, "doc#2"; null when there is none.
inline QTreeWidgetItem *rowAt(const QTreeWidget &view, const QString &path)
{
    QTreeWidgetItem *row = view.topLevelItem(0);
    for (const QString &step : path.split('.')) {
        const QString name = step.section('#', 0, 0);
        int left = std::max(1, step.section('#', 1, 1).toInt());
        QTreeWidgetItem *found = nullptr;
        for (int i = 0; row && i < row->childCount() && !found; ++i)
            if (row->child(i)->text(0) == name && --left == 0)
                found = row->child(i);
        row = found;
    }
    return row;
}

/// Sets a value as the view's editor does; a test of a setting that is not there ends.
inline void setValue(const QTreeWidget &view, const QString &path, const QString &value)
{
    QTreeWidgetItem *row = rowAt(view, path);
    if (!row || row->childCount() != 1)
        qFatal("there is no setting %s", qPrintable(path));
    row->child(0)->setText(0, value);
}
