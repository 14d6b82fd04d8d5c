// The settings while they are edited: one state for all views, each change undone by its name.
#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QUndoStack>

#include <memory>
#include <optional>
#include <utility>

class QTreeWidget;
class QTreeWidgetItem;

namespace korvel::settings {

/// Values of settings by where these stand: "korvel", the group, the key.
using Values = QHash<QStringList, QString>;

/// The rows of a view in their order, each with how deep it stands.
using Outline = QList<std::pair<int, QString>>;

/// What the renderer reads of a view, set but empty values too.
Values valuesOf(const QTreeWidget &view);

/**
 * The store's list view of a settings file, and all that is done to it.
 *
 * The view is the state; every change goes through here, so that it can be undone, and changed()
 * follows. A setting is named by its path: "korvel", its group, its key.
 */
class State : public QObject
{
    Q_OBJECT

public:
    explicit State(QObject *parent = nullptr);
    ~State() override;

    /// Begins anew with the view of a file. @param path of the file, which need not exist
    void begin(std::unique_ptr<QTreeWidget> newView, const QString &path);

    /// The view; null before begin(). Its rows are changed by the operations below alone.
    [[nodiscard]] QTreeWidget *view() const { return rows.get(); }

    [[nodiscard]] QUndoStack &history() { return stack; }

    // What a setting is: now, in the file as it was read or saved last, in the sample shop's
    // settings. Nothing where it is not set.
    [[nodiscard]] std::optional<QString> value(const QStringList &path) const;
    [[nodiscard]] std::optional<QString> fileValue(const QStringList &path) const;
    [[nodiscard]] std::optional<QString> sampleValue(const QStringList &path) const;

    /// Sets a setting, and adds it and its groups where they are missing; without a value, removes
    /// it. Nothing happens when it is so already.
    /// @param move changes of a setting with the same number, not 0, are undone as one
    void set(const QStringList &path, const std::optional<QString> &value, int move = 0);

    /// Changes the value in the row of one.
    void setValue(const QTreeWidgetItem &valueRow, const QString &value);

    /// Adds a setting to a group's row. @return its row
    QTreeWidgetItem *addSetting(QTreeWidgetItem &group, const QString &name, const QString &value);

    /// Adds a group with its first setting below a row, or as the first of all without one.
    /// @return its row
    QTreeWidgetItem *addGroup(QTreeWidgetItem *parent, const QString &name, const QString &setting,
                              const QString &value);

    /// Removes a setting or a group; of the groups around it those in which nothing else stands.
    void remove(QTreeWidgetItem &row);

    /// What is there now is what the file has.
    void markSaved();

    /// Whether the rows are others than those that the file has, or stand in another order.
    [[nodiscard]] bool isModified() const;

    /// The row of the group that all look-ups begin with, whatever its name; null without any.
    [[nodiscard]] static QTreeWidgetItem *firstGroup(const QTreeWidget &view);

    /// The first row that a path of names leads to; null when there is none.
    [[nodiscard]] QTreeWidgetItem *rowOf(const QStringList &path) const;

    /// Names from the top-level group on to a row; a value's row counts as its setting's.
    [[nodiscard]] static QStringList pathOf(const QTreeWidgetItem *row);

signals:
    void changed();

private:
    void noteChange();
    [[nodiscard]] QTreeWidgetItem *settingRow(const QStringList &path) const;
    void add(const QStringList &path, const QString &value);
    QTreeWidgetItem *insert(std::unique_ptr<QTreeWidgetItem> row, QTreeWidgetItem *parent,
                            int index, const QString &text);

    std::unique_ptr<QTreeWidget> rows;
    QString filePath;
    QUndoStack stack; // goes before the view, whose rows it knows
    Values present;
    Values inFile;
    Values inSample;
    Outline outlineInFile;
    bool beginning = false;
};

} // namespace korvel::settings
