// What of the settings nothing reads: kept when saved, or removed.
#pragma once

#include "companions/settings/hints.h"

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

    /// Takes those of the hints that are about such.
    void refresh(const QList<hints::Hint> &found);

private:
    void remove();

    State &state;
    QList<hints::Hint> unread;
    QListWidget *list;
    QPushButton *removeButton;
};

} // namespace korvel::settings
