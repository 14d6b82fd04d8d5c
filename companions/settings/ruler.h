// The ruler above the paper: its columns, and their edges to be dragged.
#pragma once

#include "companions/settings/columns.h"

#include <QWidget>

#include <functional>

class QPainter;

namespace korvel::settings {

/**
 * The same can be done with the fields of the form, which the keyboard reaches. An arrow at an end
 * stands for edges that are further out; a click on it asks for the nearest.
 */
class Ruler : public QWidget
{
    Q_OBJECT

public:
    explicit Ruler(QWidget *parent = nullptr);

    void setEdges(const QList<ColumnEdge> &newEdges);
    [[nodiscard]] const QList<ColumnEdge> &edges() const { return columnEdges; }

    /// @param newPlace where a column of the paper begins, from the ruler's left, in pixels
    void setScale(std::function<double(int column)> newPlace);

    [[nodiscard]] QSize sizeHint() const override;

    /// Where an edge stands, from the ruler's left.
    [[nodiscard]] int placeOf(const ColumnEdge &edge) const;

signals:
    /// An edge is dragged: its setting becomes this. The steps of one move have one number.
    void dragged(const QStringList &setting, int value, int move);

    /// An edge at this column is asked for, which is out of sight.
    void asked(int column);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    enum class End { Left, Right };
    [[nodiscard]] const ColumnEdge *beyond(End end) const;
    [[nodiscard]] const ColumnEdge *arrowAt(double x) const;
    void paintArrow(QPainter &painter, End end) const;
    [[nodiscard]] int edgeAt(double x) const;
    [[nodiscard]] int columnAt(double x) const;

    QList<ColumnEdge> columnEdges;
    std::function<double(int)> place;
    int moves = 0;                  // counted
    std::optional<ColumnEdge> held; // as it was when the button went down
};

} // namespace korvel::settings
