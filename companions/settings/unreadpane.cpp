// The list and its one button.
#include "companions/settings/unreadpane.h"

#include "companions/settings/hints.h"
#include "companions/settings/state.h"
#include "config/config.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;
using libconfig::Config;

namespace korvel::settings {

UnreadPane::UnreadPane(State &settings, QWidget *parent)
    : QWidget(parent)
    , state(settings)
    , list(new QListWidget)
    , removeButton(new QPushButton(tr("Remove fr&om the file")))
{
    auto *layout = new QVBoxLayout(this);
    auto *text = new QLabel(tr("No document reads these. They are kept when the file is saved."));
    text->setWordWrap(true);
    layout->addWidget(text);
    list->setObjectName(u"unread"_s);
    list->setAccessibleName(tr("Settings and groups that nothing reads"));
    layout->addWidget(list, 1);
    removeButton->setObjectName(u"removeUnread"_s);
    layout->addWidget(removeButton, 0, Qt::AlignLeft);
    connect(removeButton, &QPushButton::clicked, this, &UnreadPane::remove);
    connect(list, &QListWidget::currentRowChanged, this,
            [this](int row) { removeButton->setEnabled(row >= 0); });
}

void UnreadPane::refresh()
{
    const int current = list->currentRow();
    list->clear();
    for (const QTreeWidgetItem *row : hints::unreadRows(*state.view())) {
        const QString name = State::pathOf(row).join(u'.');
        list->addItem(Config::isSetting(row) ? name + u" = "_s + row->child(0)->text(0) : name);
    }
    removeButton->setEnabled(false);
    list->setCurrentRow(std::min(current, list->count() - 1));
}

int UnreadPane::count() const { return list->count(); }

void UnreadPane::remove()
{
    if (QTreeWidgetItem *row = hints::unreadRows(*state.view()).value(list->currentRow()))
        state.remove(*row);
}

} // namespace korvel::settings
