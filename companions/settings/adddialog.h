// Asks for a setting, or a group with its first setting, to be added to the tree.
#pragma once

#include <QDialog>
#include <QStringList>

class QComboBox;
class QDialogButtonBox;
class QLineEdit;

namespace korvel::settings {

/// Names are letters, digits, "-" and "_", so that both notations can hold them.
class AddDialog : public QDialog
{
    Q_OBJECT

public:
    /// What is asked for.
    enum class What { Setting, Group };

    /**
     * @param groups   names of groups to choose from; others may be typed
     * @param settings names of settings to choose from
     * @param taken    names that may not be given to what is added
     */
    AddDialog(What what, const QStringList &groups, const QStringList &settings, QStringList taken,
              QWidget *parent);

    [[nodiscard]] QString group() const;
    [[nodiscard]] QString setting() const;
    [[nodiscard]] QString value() const;

private:
    void check();

    const QStringList takenNames;
    QComboBox *groupBox = nullptr; // null where only a setting is asked for
    QComboBox *settingBox;
    QLineEdit *valueLine;
    QDialogButtonBox *buttons;
};

} // namespace korvel::settings
