// One document of a run: read, prepared, delivered, reported.
#pragma once

#include "companions/deliver/reporting.h"
#include "companions/recode/codepage.h"
#include "delivery/journal.h"

#include <QStringList>

#include <chrono>
#include <optional>

namespace korvel::deliver {

/// What the command line asks for.
struct Task
{
    delivery::DeviceName device;
    recode::CodePage charset;
    QString id;       // empty where each document gets one of its own
    QString settings; // path; empty for the user's
    QString journal;  // the same
    std::chrono::seconds timeout{0};
    std::chrono::seconds wait{0};
    bool isDry = false;
    QStringList files = {};
};

/// A document that a task names by its file.
class Document
{
public:
    /// @param openJournal where it is recorded; null for a dry run
    Document(const Task &given, delivery::Journal *openJournal, QString path);

    /// Does all that the task asks for, and says in one line what came of it.
    Status deliver();

    /// What the journal calls it; empty for a dry run without an id.
    [[nodiscard]] const QString &name() const { return id; }

private:
    Status run();
    std::optional<Status> readSettings(QByteArray &settings, const QByteArray &job);
    Status send(const delivery::Contents &contents, const QString &remark = {});
    Status refused(const delivery::Contents &contents, const QString &reason);
    [[nodiscard]] Status told(const delivery::Outcome &outcome, const QString &named = {}) const;
    [[nodiscard]] Subject subject(const QString &named) const;
    [[nodiscard]] QString settingsPath() const;

    const Task &task;
    delivery::Journal *const journal;
    const QString file;
    const QString id;
    const QString origin; // who asks, for the journal
};

} // namespace korvel::deliver
