// The expert's view: the store's list view, edited in place, and what its rows mean.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class QVBoxLayout;

namespace korvel::settings {

class State;

/**
 * Shows the rows of the settings as they stand in the file. A value is edited by F2, Enter or a
 * double click on it or on its setting, and no other way; settings and groups are added and
 * removed.
 */
class ExpertPane : public QWidget
{
    Q_OBJECT

public:
    /// @param settings outlive the pane
    explicit ExpertPane(State &settings, QWidget *parent = nullptr);
    ~ExpertPane() override;

    /// Shows the view that the state began with. It stays the state's.
    void showView();

    /// Shows the meaning of the current row, and what can be done with it.
    void showCurrent();

    /// Opens the groups of this name, and scrolls to the first.
    void openGroup(const QString &name);

    /// Takes over what stands in an open editor.
    void closeEditor();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

signals:
    /// The row of a setting has become the current one, or has got the focus.
    void entered(const QStringList &path);

private:
    void edit(QTreeWidgetItem *row);
    void addSetting();
    void addGroup();
    void remove();
    [[nodiscard]] QTreeWidgetItem *currentGroup() const;

    State &state;
    QTreeWidget *view = nullptr; // the state's
    QVBoxLayout *layout;
    QLabel *meaning;
    QPushButton *addSettingButton;
    QPushButton *addGroupButton;
    QPushButton *removeButton;
};

} // namespace korvel::settings
