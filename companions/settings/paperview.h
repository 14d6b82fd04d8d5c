// The paper as a widget.
#pragma once

#include "companions/preview/picture.h"
#include "companions/shared/rendering.h"

#include <QWidget>

#include <optional>

namespace korvel::settings {

/// Columns of a line, from one on up to before another.
struct Span
{
    int from = 0;
    int to = 0;
};

/**
 * Shows the paper, or a message in its place. Lines are chosen by a click, or by the arrow keys and
 * Enter; rows count from 0.
 */
class PaperView : public QWidget
{
    Q_OBJECT

public:
    explicit PaperView(QWidget *parent = nullptr);

    /// Shows these rows, none of them lit.
    void showPaper(const QList<preview::PaperRow> &paperRows);

    /// Says why there is no paper.
    void showFailure(const shared::Rendered &rendered);

    /// Lights rows, or some columns of them.
    void light(const QList<int> &newRows, const std::optional<Span> &columns = {});

    /// The rows that are lit.
    [[nodiscard]] const QList<int> &lit() const { return litRows; }

    /// The row that the arrow keys are at, -1 for none.
    [[nodiscard]] int currentRow() const { return current; }

    /// Has the arrow keys go on from this row, or from the nearest that there is.
    void setCurrentRow(int row);

    /// Where a row begins in the text, or would behind its end.
    [[nodiscard]] int startOf(int row) const;

    /// Pixels of the screen for a dot of the picture.
    void setZoom(double factor);
    [[nodiscard]] double zoom() const { return factor; }

    /// The zoom at which the paper has this width, without what is beyond its edge; the present one
    /// while there is no paper.
    [[nodiscard]] double zoomForWidth(int width) const;

    /// Where a column begins, from the widget's left.
    [[nodiscard]] double leftOf(int column) const;

    /// Where columns of a row are.
    [[nodiscard]] QRectF rectOf(int row, const Span &columns) const;

    /// The middle of a column in a row.
    [[nodiscard]] QPoint placeOf(int row, int column = 0) const;

    /// The message that is shown; empty while the paper is.
    [[nodiscard]] QString message() const { return note; }

    /// All that is shown, line by line.
    [[nodiscard]] QString text() const;

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void rowChosen(int row, int column);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showMessage(const QString &text);
    void showContent();

    QList<preview::PaperRow> rows;
    std::optional<preview::Picture> picture;
    QString note;
    double factor = 1;
    QList<int> litRows;
    std::optional<Span> litColumns;
    int current = -1;
};

} // namespace korvel::settings
