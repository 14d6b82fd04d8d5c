// Splitter or tabs.
#include "companions/settings/panes.h"

#include <QIcon>
#include <QTabWidget>

#include <algorithm>

namespace korvel::settings {

namespace {

int leastWidth(const QWidget &widget)
{
    return std::max(widget.minimumWidth(), widget.minimumSizeHint().width());
}

} // namespace

Panes::Panes(QWidget *documents, QTabWidget *theTabs, QWidget *paper)
    : left(documents)
    , tabs(theTabs)
    , right(paper)
{
    addWidget(left);
    addWidget(tabs);
    addWidget(right);
    setStretchFactor(1, 2);
    setStretchFactor(2, 3);
    setChildrenCollapsible(false);
    tabs->setUsesScrollButtons(true);
}

bool Panes::isNarrow() const { return count() == 1; }

/// Of the parts beside each other.
int Panes::neededWidth() const
{
    int widest = 0;
    for (int i = 0; i < tabs->count(); ++i) {
        const QWidget *page = tabs->widget(i);
        if (page != left && page != right)
            widest = std::max(widest, leastWidth(*page));
    }
    return leastWidth(*left) + widest + leastWidth(*right) + 2 * handleWidth();
}

QSize Panes::minimumSizeHint() const
{
    const int line = fontMetrics().height();
    return {12 * line, 5 * line};
}

void Panes::resizeEvent(QResizeEvent *event)
{
    if (const bool narrow = width() < neededWidth(); narrow != isNarrow())
        setNarrow(narrow);
    QSplitter::resizeEvent(event);
}

void Panes::setNarrow(bool narrow)
{
    QWidget *shown = tabs->currentWidget();
    if (narrow) {
        beside = saveState();
        tabs->insertTab(0, left, tr("Do&cuments"));
        tabs->addTab(right, tr("&Paper"));
        return;
    }
    // A tab of its own hides a part that another one is in front of.
    for (QWidget *part : {left, right})
        tabs->removeTab(tabs->indexOf(part));
    insertWidget(0, left);
    addWidget(right);
    left->show();
    right->show();
    restoreState(beside);
    if (tabs->indexOf(shown) >= 0)
        tabs->setCurrentWidget(shown);
}

void Panes::bringToFront(QWidget *part)
{
    if (tabs->indexOf(part) >= 0)
        tabs->setCurrentWidget(part);
}

void Panes::markPaper(const QIcon &mark)
{
    if (const int tab = tabs->indexOf(right); tab >= 0)
        tabs->setTabIcon(tab, mark);
}

QByteArray Panes::savedState() const { return isNarrow() ? beside : saveState(); }

void Panes::loadState(const QByteArray &state)
{
    if (isNarrow())
        beside = state;
    else
        restoreState(state);
}

} // namespace korvel::settings
