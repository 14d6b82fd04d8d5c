// The form: the settings of one document, or of the language, as fields.
#pragma once

#include "companions/settings/fields.h"
#include "companions/settings/hints.h"

#include <QScrollArea>

class QLabel;
class QVBoxLayout;

namespace korvel::settings {

class FieldRow;
class State;

/**
 * A field for every setting that a document reads, set or not, in groups. What has no effect on the
 * paper stands last.
 */
class FormPane : public QScrollArea
{
    Q_OBJECT

public:
    /// @param settings   outlive the pane
    /// @param catalogues folders of catalogues
    FormPane(State &settings, QStringList catalogues, QWidget *parent = nullptr);

    /// Shows the settings of a document; of the language for none.
    void showDocument(const vocabulary::Method *method);

    /// The last field of the form; null for a form without any.
    [[nodiscard]] QWidget *lastField() const;

    /// Brings the fields in line with the state.
    void refresh(const QList<hints::Hint> &found);

    /// Gives the focus to the field of a setting; false when it is not in the form.
    bool choose(const QStringList &path);

    /// The row with the focus, or that had it last; null for none.
    [[nodiscard]] FieldRow *current() const { return currentRow; }

signals:
    /// The field of a setting has got the focus.
    void entered(const QStringList &path);

private:
    void addField(QVBoxLayout &layout, QLatin1StringView group, QLatin1StringView key);
    void addSections(QVBoxLayout &layout, const vocabulary::Method *method);

    State &state;
    const QStringList folders;
    QString group; // that is shown
    QLabel *warning = nullptr;
    QList<FieldRow *> rows;
    FieldRow *currentRow = nullptr;
};

} // namespace korvel::settings
