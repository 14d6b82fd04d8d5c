// What can be done to the rows of the settings and undone: a value changed, a row added or removed.
#pragma once

#include <QList>
#include <QString>
#include <QTreeWidgetItem>
#include <QUndoCommand>

#include <memory>

class QTreeWidget;

namespace korvel::settings {

/// Where a row stands: its number among its siblings, from the top-level row on.
using Place = QList<int>;

Place placeOf(const QTreeWidget &view, const QTreeWidgetItem *row);

/// Changes the text of a value's row.
class ValueEdit : public QUndoCommand
{
public:
    /// @param text of the command, as "Undo" goes on
    ValueEdit(QTreeWidget &settings, const QTreeWidgetItem &row, QString value,
              const QString &text);

    /// The steps of one move count as one. @param move 0 for a change that stands alone
    void joinMove(int move) { moveId = move; }

    void redo() override;
    void undo() override;
    [[nodiscard]] int id() const override { return moveId == 0 ? -1 : moveId; }
    bool mergeWith(const QUndoCommand *other) override;

private:
    QTreeWidget &view;
    const Place place;
    const QString before;
    QString after;
    int moveId = 0;
};

/// Adds a row with what stands below it, or removes one.
class RowEdit : public QUndoCommand
{
public:
    /// Adds a row. @param toPlace the place that it will have
    RowEdit(QTreeWidget &settings, std::unique_ptr<QTreeWidgetItem> newRow, Place toPlace,
            const QString &text);

    /// Removes a row.
    RowEdit(QTreeWidget &settings, const QTreeWidgetItem &oldRow, const QString &text);

    void redo() override;
    void undo() override;

private:
    void insert();
    void take();

    QTreeWidget &view;
    std::unique_ptr<QTreeWidgetItem> row; // while it is not in the view
    const Place place;
    const bool adds;
};

} // namespace korvel::settings
