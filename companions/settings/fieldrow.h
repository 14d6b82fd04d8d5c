// A row of the form: a setting's name, its field, what it means, and what is wrong with it.
#pragma once

#include "companions/check/vocabulary.h"

#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>

class QLabel;
class QToolButton;

namespace korvel::settings {

class State;

class FieldRow : public QWidget
{
    Q_OBJECT

public:
    /**
     * @param settings   outlive the row
     * @param setting    its path: "korvel", the group, the key
     * @param catalogues folders of catalogues
     */
    FieldRow(State &settings, const QStringList &setting, const QStringList &catalogues,
             QWidget *parent = nullptr);

    [[nodiscard]] const QStringList &path() const { return settingPath; }

    /// What has the focus when the row is chosen.
    [[nodiscard]] QWidget *field() const { return editor; }

    /// Shows what the setting is now, and what is wrong with it.
    void refresh(const QString &warning);

    // What is done to a row of the form: removed from the file, or set back.
    void unset();
    void restoreFile();
    void restoreSample();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;

signals:
    /// The field has got the focus.
    void entered();

private:
    QWidget *makeEditor(const QStringList &catalogues);
    QWidget *makeNumber(QLatin1StringView name);
    QWidget *makeText();
    QWidget *makeCatalogues(const QStringList &catalogues);
    void lay(const QString &title);
    void dimMeaning();
    void fillMenu();
    [[nodiscard]] bool isBeingTyped() const;

    State &state;
    const QStringList settingPath;
    QString meaning;                                               // plain text
    std::function<void(const std::optional<QString> &)> showValue; // set with the editor
    QWidget *editor;
    QLabel *label;
    QLabel *meaningLabel;
    QLabel *warningLabel;
    QToolButton *more;
};

} // namespace korvel::settings
