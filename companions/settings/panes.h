// The parts of the window: beside each other, or as tabs where there is no room for that.
#pragma once

#include <QByteArray>
#include <QSplitter>

class QTabWidget;

namespace korvel::settings {

/**
 * The documents, the tabs and the paper beside each other. Where these are wider than the window,
 * the documents and the paper become tabs behind the others: no screen is too small for the window.
 */
class Panes : public QSplitter
{
    Q_OBJECT

public:
    /// Takes the widgets over, from the left to the right.
    Panes(QWidget *documents, QTabWidget *tabs, QWidget *paper);

    /// Whether the parts are tabs.
    [[nodiscard]] bool isNarrow() const;

    /// Brings a part, or a page of the tabs, to the front; nothing where it is seen already.
    void bringToFront(QWidget *part);

    /// Marks the tab of the paper with an icon, if it has one. @param mark none for no mark
    void markPaper(const QIcon &mark);

    /// How wide the parts are beside each other, also while they are not; for loadState().
    [[nodiscard]] QByteArray savedState() const;
    void loadState(const QByteArray &state);

    /// What a tab needs, not all parts.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] int neededWidth() const;
    void setNarrow(bool narrow);

    QWidget *left;
    QTabWidget *tabs;
    QWidget *right;
    QByteArray beside; // the state when the parts were beside each other last
};

} // namespace korvel::settings
