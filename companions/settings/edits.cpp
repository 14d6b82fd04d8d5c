// Edits of the rows. A place is good for both ways: edits are undone in their reverse order.
#include "companions/settings/edits.h"

#include <QTreeWidget>

namespace korvel::settings {

namespace {

QTreeWidgetItem *rowAt(const QTreeWidget &view, const Place &place)
{
    QTreeWidgetItem *row = nullptr;
    for (const int step : place)
        row = row ? row->child(step) : view.topLevelItem(step);
    return row;
}

} // namespace

Place placeOf(const QTreeWidget &view, const QTreeWidgetItem *row)
{
    Place place;
    for (; row->parent(); row = row->parent())
        place.prepend(row->parent()->indexOfChild(const_cast<QTreeWidgetItem *>(row)));
    place.prepend(view.indexOfTopLevelItem(const_cast<QTreeWidgetItem *>(row)));
    return place;
}

ValueEdit::ValueEdit(QTreeWidget &settings, const QTreeWidgetItem &row, QString value,
                     const QString &text)
    : QUndoCommand(text)
    , view(settings)
    , place(placeOf(settings, &row))
    , before(row.text(0))
    , after(std::move(value))
{
}

void ValueEdit::redo() { rowAt(view, place)->setText(0, after); }

void ValueEdit::undo() { rowAt(view, place)->setText(0, before); }

bool ValueEdit::mergeWith(const QUndoCommand *other)
{
    const auto *next = static_cast<const ValueEdit *>(other);
    if (next->place != place)
        return false;
    after = next->after;
    setText(next->text());
    setObsolete(after == before);
    return true;
}

RowEdit::RowEdit(QTreeWidget &settings, std::unique_ptr<QTreeWidgetItem> newRow, Place toPlace,
                 const QString &text)
    : QUndoCommand(text)
    , view(settings)
    , row(std::move(newRow))
    , place(std::move(toPlace))
    , adds(true)
{
}

RowEdit::RowEdit(QTreeWidget &settings, const QTreeWidgetItem &oldRow, const QString &text)
    : QUndoCommand(text)
    , view(settings)
    , place(placeOf(settings, &oldRow))
    , adds(false)
{
}

void RowEdit::redo() { adds ? insert() : take(); }

void RowEdit::undo() { adds ? take() : insert(); }

void RowEdit::insert()
{
    if (QTreeWidgetItem *parent = rowAt(view, place.first(place.size() - 1))) {
        parent->insertChild(place.constLast(), row.release());
        parent->setExpanded(true);
    } else {
        view.insertTopLevelItem(place.constLast(), row.release());
    }
}

void RowEdit::take()
{
    if (QTreeWidgetItem *parent = rowAt(view, place.first(place.size() - 1)))
        row.reset(parent->takeChild(place.constLast()));
    else
        row.reset(view.takeTopLevelItem(place.constLast()));
}

} // namespace korvel::settings
