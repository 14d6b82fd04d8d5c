// The ruler above the paper: its columns, and their edges to be dragged.
#pragma once

#include "companions/settings/columns.h"

#include <QWidget>

#include <functional>

namespace korvel::settings {

/// The same can be done with the fields of the form, which the keyboard reaches.
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

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] int edgeAt(double x) const;
    [[nodiscard]] int columnAt(double x) const;

    QList<ColumnEdge> columnEdges;
    std::function<double(int)> place;
    int moves = 0;                  // counted
    std::optional<ColumnEdge> held; // as it was when the button went down
};

} // namespace korvel::settings
