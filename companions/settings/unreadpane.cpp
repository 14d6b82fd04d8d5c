// The list and its one button.
#include "companions/settings/unreadpane.h"

#include "companions/settings/state.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

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

void UnreadPane::refresh(const QList<hints::Hint> &found)
{
    const int row = list->currentRow();
    unread.clear();
    list->clear();
    for (const hints::Hint &hint : found) {
        if (!hint.isUnread || !state.rowOf(hint.setting, hint.occurrence))
            continue;
        unread.append(hint);
        const auto value = state.value(hint.setting);
        list->addItem(hint.setting.join(u'.') + (value ? u" = "_s + *value : QString()));
    }
    removeButton->setEnabled(false);
    list->setCurrentRow(std::min(row, list->count() - 1));
}

void UnreadPane::remove()
{
    const int row = list->currentRow();
    if (row < 0)
        return;
    const hints::Hint hint = unread[row];
    if (QTreeWidgetItem *item = state.rowOf(hint.setting, hint.occurrence))
        state.remove(*item);
}

} // namespace korvel::settings
