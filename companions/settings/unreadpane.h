// What of the settings nothing reads: kept when saved, or removed.
#pragma once

#include <QWidget>

class QListWidget;
class QPushButton;

namespace korvel::settings {

class State;

/// Lists groups and settings that nothing reads.
class UnreadPane : public QWidget
{
    Q_OBJECT

public:
    /// @param settings outlive the pane
    explicit UnreadPane(State &settings, QWidget *parent = nullptr);

    /// Brings the list in line with the state.
    void refresh();

    /// How many there are.
    [[nodiscard]] int count() const;

private:
    void remove();

    State &state;
    QListWidget *list;
    QPushButton *removeButton;
};

} // namespace korvel::settings
