// Editing in the tree: what begins it, and what becomes of it.
#include "companions/settings/expertpane.h"

#include "companions/check/vocabulary.h"
#include "companions/settings/adddialog.h"
#include "companions/settings/fields.h"
#include "companions/settings/hints.h"
#include "companions/settings/state.h"
#include "config/config.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;
using libconfig::Config;

namespace korvel::settings {

namespace {

/// Hands an edited value to the state, which changes the row.
class ValueDelegate : public QStyledItemDelegate
{
public:
    explicit ValueDelegate(State &settings)
        : QStyledItemDelegate(settings.view())
        , state(settings)
    {
    }

    void setModelData(QWidget *editor, QAbstractItemModel * /*model*/,
                      const QModelIndex &index) const override
    {
        if (const auto *line = qobject_cast<QLineEdit *>(editor))
            state.setValue(*state.view()->itemFromIndex(index), line->text());
    }

private:
    State &state;
};

QStringList namesBelow(const QTreeWidgetItem &group, bool settings)
{
    QStringList names;
    for (int i = 0; i < group.childCount(); ++i) {
        if (Config::isSetting(group.child(i)) == settings)
            names.append(group.child(i)->text(0));
    }
    return names;
}

/// The keys that are read in a group of that name and that it lacks.
QStringList missingKeys(const QString &group, const QStringList &present)
{
    QStringList keys;
    for (const fields::Field &field : fields::all()) {
        if (vocabulary::isRead(group, field.key) && !present.contains(field.key))
            keys.append(field.key);
    }
    return keys;
}

} // namespace

ExpertPane::ExpertPane(State &settings, QWidget *parent)
    : QWidget(parent)
    , state(settings)
    , layout(new QVBoxLayout(this))
    , meaning(new QLabel)
    , addSettingButton(new QPushButton(tr("Add a se&tting …")))
    , addGroupButton(new QPushButton(tr("Add a &group …")))
    , removeButton(new QPushButton(tr("Re&move")))
{
    addSettingButton->setObjectName(u"addSetting"_s);
    addGroupButton->setObjectName(u"addGroup"_s);
    removeButton->setObjectName(u"remove"_s);
    auto *buttons = new QGridLayout;
    buttons->addWidget(addSettingButton, 0, 0);
    buttons->addWidget(addGroupButton, 0, 1);
    buttons->addWidget(removeButton, 1, 0);
    buttons->setColumnStretch(2, 1);
    for (QPushButton *button : {addSettingButton, addGroupButton, removeButton})
        button->setAutoDefault(false);
    layout->addLayout(buttons);
    meaning->setObjectName(u"meaning"_s);
    meaning->setWordWrap(true);
    meaning->setTextFormat(Qt::RichText);
    meaning->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    layout->addWidget(meaning);
    connect(addSettingButton, &QPushButton::clicked, this, &ExpertPane::addSetting);
    connect(addGroupButton, &QPushButton::clicked, this, &ExpertPane::addGroup);
    connect(removeButton, &QPushButton::clicked, this, &ExpertPane::remove);
}

/// Keeps room for a meaning, so that the rows stay where they are, unless it is the rows that lack
/// it.
void ExpertPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int line = fontMetrics().lineSpacing();
    meaning->setMinimumHeight(height() > 20 * line ? 4 * line : 0);
}

ExpertPane::~ExpertPane()
{
    if (!view)
        return;
    // The view goes with the state; an editor that is still open would hand over its value.
    view->removeEventFilter(this);
    view->disconnect(this);
    view->setItemDelegate(nullptr);
    view->setParent(nullptr);
}

void ExpertPane::showView()
{
    view = state.view();
    view->setObjectName(u"settings"_s);
    view->setAccessibleName(tr("Rows of the settings file"));
    view->setHeaderLabels({tr("ConfigurationFile")});
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setExpandsOnDoubleClick(false);
    const int mark = view->fontMetrics().height();
    view->setIconSize({mark, mark});
    view->setItemDelegate(new ValueDelegate(state));
    view->installEventFilter(this);
    view->expandToDepth(1);
    layout->insertWidget(0, view, 1);
    setTabOrder(view, addSettingButton);
    setTabOrder(addSettingButton, addGroupButton);
    setTabOrder(addGroupButton, removeButton);
    connect(view, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *row) {
        showCurrent();
        if (row)
            emit entered(State::pathOf(row));
    });
    connect(view, &QTreeWidget::itemDoubleClicked, this, &ExpertPane::edit);
    showCurrent();
}

void ExpertPane::showCurrent()
{
    const QTreeWidgetItem *row = view->currentItem();
    meaning->setText(hints::meaningOf(row));
    addSettingButton->setEnabled(currentGroup() != nullptr);
    removeButton->setEnabled(row && row->parent());
}

void ExpertPane::openGroup(const QString &name)
{
    bool found = false;
    for (QTreeWidgetItemIterator row(view); *row; ++row) {
        if ((*row)->text(0) != name || (*row)->childCount() == 0)
            continue;
        view->expandRecursively(view->indexFromItem(*row));
        if (!found)
            view->scrollToItem(*row, QAbstractItemView::PositionAtTop);
        found = true;
    }
}

void ExpertPane::closeEditor()
{
    if (!view)
        return;
    for (QLineEdit *editor : view->viewport()->findChildren<QLineEdit *>()) {
        QMetaObject::invokeMethod(view, "commitData", Q_ARG(QWidget *, editor));
        QMetaObject::invokeMethod(
            view, "closeEditor", Q_ARG(QWidget *, editor),
            Q_ARG(QAbstractItemDelegate::EndEditHint, QAbstractItemDelegate::NoHint));
    }
}

/// Opens the editor of a value, or of a setting's value; other rows have none, and open.
void ExpertPane::edit(QTreeWidgetItem *row)
{
    if (row && row->parent() && Config::isSetting(row) && row->childCount() == 1) {
        row->setExpanded(true);
        row = row->child(0);
    }
    if (!row || (row->flags() & Qt::ItemIsEditable) == 0) {
        if (row)
            row->setExpanded(!row->isExpanded());
        return;
    }
    view->setCurrentItem(row);
    view->editItem(row);
}

/// Letters are neither a value nor a search: only these keys do something with a row.
bool ExpertPane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == view && event->type() == QEvent::FocusIn && view->currentItem())
        emit entered(State::pathOf(view->currentItem()));
    // An open editor passes the keys on that it leaves alone.
    if (watched != view || event->type() != QEvent::KeyPress || !view->hasFocus())
        return false;
    const auto *key = static_cast<const QKeyEvent *>(event);
    switch (key->key()) {
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        edit(view->currentItem());
        return true;
    case Qt::Key_Delete:
        remove();
        return true;
    default:
        return !key->text().isEmpty() && key->text()[0].isPrint()
               && (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0
               && !u"+-*"_s.contains(key->text());
    }
}

/// The group that the current row is or stands in; null without one.
QTreeWidgetItem *ExpertPane::currentGroup() const
{
    QTreeWidgetItem *row = view->currentItem();
    if (row && row->parent() && Config::isSetting(row->parent()) && row->childCount() == 0)
        row = row->parent();
    if (row && row->parent() && Config::isSetting(row))
        row = row->parent();
    return row;
}

void ExpertPane::addSetting()
{
    QTreeWidgetItem *group = currentGroup();
    if (!group)
        return;
    const QStringList present = namesBelow(*group, true);
    AddDialog dialog(AddDialog::What::Setting, {}, missingKeys(group->text(0), present), present,
                     this);
    if (dialog.exec() == QDialog::Accepted)
        view->setCurrentItem(state.addSetting(*group, dialog.setting(), dialog.value())->child(0));
}

/// Adds a group beside the current one, or the first of all. The file's row holds "korvel" alone.
void ExpertPane::addGroup()
{
    QTreeWidgetItem *file = view->topLevelItem(0);
    QTreeWidgetItem *parent = currentGroup();
    if (parent && parent->parent() && parent->parent() != file)
        parent = parent->parent();
    else if (!parent || parent == file)
        parent = file && file->childCount() > 0 ? file->child(0) : file;
    QStringList names = vocabulary::groupNames();
    QStringList present;
    if (parent && parent != file)
        present = namesBelow(*parent, false);
    else
        names = QStringList{vocabulary::group::korvel};
    for (const QString &name : present)
        names.removeAll(name);
    AddDialog dialog(AddDialog::What::Group, names, {}, present, this);
    if (dialog.exec() == QDialog::Accepted)
        view->setCurrentItem(
            state.addGroup(parent, dialog.group(), dialog.setting(), dialog.value()));
}

void ExpertPane::remove()
{
    QTreeWidgetItem *row = view->currentItem();
    if (row && row->parent() && Config::isSetting(row->parent()))
        row = row->parent();
    if (row && row->parent())
        state.remove(*row);
}

} // namespace korvel::settings
