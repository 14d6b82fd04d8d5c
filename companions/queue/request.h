// What CUPS asks of the filter and the backend, and what it hears from them.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace korvel::queue {

/// A job as CUPS hands it over: by arguments and by the environment.
struct Request
{
    QString job; // its number
    QString user;
    QString title;   // as the sender named it, or the name of the file
    int copies = 1;  // from 1
    QString id;      // of the document: the job-uuid
    QString queue;   // printer, not class
    QString charset; // asked for by the job, else the queue's
    QString device;  // URI
    bool isOfClass = false;
    QStringList files; // none where the job comes on standard input

    /// The job as lp and lpstat name it.
    [[nodiscard]] QString name() const { return queue + u'-' + job; }

    /// What a job is called in remarks of its lines.
    [[nodiscard]] QString file() const { return title.isEmpty() ? name() : title; }

    /// Who asks, for the journal.
    [[nodiscard]] QString origin() const;
};

/**
 * Reads job, user, title, copies, options and files.
 *
 * @param error when that is not what was given: what is wrong, in one line
 */
std::optional<Request> requestOf(const QStringList &arguments, QString &error);

/// The settings of a queue: its own, else those of all queues, whether they are there or not.
QString settingsOf(const QString &queue);

/// The journal of all queues.
QString journalPath();

/// What CUPS does with a message: all but Debug show where the state of the printer is shown.
enum class Level { Error, Info, Debug };

/// Tells CUPS something, in one line.
void tell(Level level, const QString &text);

/// Waits until CUPS has read what it was told. Of a filter that is gone before that, it only says
/// that a filter failed.
void waitUntilHeard();

/// Sets or takes back the sign that the printer is waited for.
void tellWaiting(bool waits);

} // namespace korvel::queue
