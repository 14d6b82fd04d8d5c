// The lines of the paper by the offsets of one text.
#include "companions/settings/paperaccess.h"

#include "companions/settings/paperview.h"

#include <QAccessibleWidget>

#include <algorithm>

namespace korvel::settings {

namespace {

/// A place in the text; both count from 0.
struct TextPlace
{
    int row;
    int column;
};

/// The text of a PaperView. The lines are parted by one character each.
class PaperText : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit PaperText(PaperView *paperView)
        : QAccessibleWidget(paperView, QAccessible::EditableText)
        , paper(paperView)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        return state;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? paper->text() : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QString text(int from, int to) const override
    {
        return paper->text().mid(from, to - from);
    }

    [[nodiscard]] int characterCount() const override
    {
        return static_cast<int>(paper->text().size());
    }

    [[nodiscard]] int cursorPosition() const override
    {
        return paper->startOf(std::max(paper->currentRow(), 0));
    }

    void setCursorPosition(int offset) override { paper->setCurrentRow(placeAt(offset).row); }

    [[nodiscard]] QRect characterRect(int offset) const override
    {
        const auto [row, column] = placeAt(offset);
        const QRect place = paper->rectOf(row, {column, column + 1}).toRect();
        return {paper->mapToGlobal(place.topLeft()), place.size()};
    }

    [[nodiscard]] int offsetAtPoint(const QPoint &point) const override
    {
        for (int offset = 0; offset < characterCount(); ++offset) {
            if (characterRect(offset).contains(point))
                return offset;
        }
        return -1;
    }

    // Nothing can be selected, all is visible on one sheet, and there is one kind of letters.
    void selection(int /*index*/, int *from, int *to) const override { *from = *to = 0; }
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int /*from*/, int /*to*/) override { }
    void removeSelection(int /*index*/) override { }
    void setSelection(int /*index*/, int /*from*/, int /*to*/) override { }
    void scrollToSubstring(int from, int /*to*/) override { setCursorPosition(from); }
    QString attributes(int /*offset*/, int *from, int *to) const override
    {
        *from = 0;
        *to = characterCount();
        return {};
    }

private:
    [[nodiscard]] TextPlace placeAt(int offset) const
    {
        const QString before = paper->text().first(std::clamp(offset, 0, characterCount()));
        return {static_cast<int>(before.count(u'\n')),
                static_cast<int>(before.size() - before.lastIndexOf(u'\n') - 1)};
    }

    PaperView *paper;
};

QAccessibleInterface *makeText(const QString & /*className*/, QObject *object)
{
    auto *paper = qobject_cast<PaperView *>(object);
    return paper ? new PaperText(paper) : nullptr; // it belongs to the toolkit
}

} // namespace

void makePaperReadable() { QAccessible::installFactory(makeText); }

} // namespace korvel::settings
