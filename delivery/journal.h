// The journal: what became of each document, as events that are appended and never changed.
#pragma once

#include "delivery/states.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>

namespace korvel::delivery {

namespace sqlite {
class Database;
}

/// The journal cannot be opened, read or written; one line that says why and what to do.
class JournalError : public std::runtime_error
{
public:
    explicit JournalError(const QString &text)
        : std::runtime_error(text.toStdString())
    {
    }
    [[nodiscard]] QString text() const { return QString::fromUtf8(what()); }
};

/// What a document is made of: kept once under its SHA-256, whoever else has the same.
struct Contents
{
    QByteArray job;      // as it was given; empty where a rendered stream was
    QByteArray settings; // that it was rendered with; empty for a stream
    QString catalogue;   // of the labels, as the settings name it; may be empty
    QByteArray rendered; // the stream as rendered, or as given
    QByteArray sent;     // the same in the printer's code page, byte for byte what goes out
    QString charset;     // that code page's name, in lower case
};

/// An event of a document.
struct Event
{
    qint64 number = 0; // from 1, without a gap
    QDateTime time;    // UTC, to the millisecond
    QString document;  // the id
    QString name;      // of the state that it brought, or "forgotten"
    QString device;    // as the caller gave it; empty where the event has none
    QString detail;    // a line for people: why; never has control characters
    QByteArray jobHash, settingsHash, catalogueHash, renderedHash, sentHash; // hex, or empty
    QString charset;
    QString origin;
    QByteArray lease;    // of the device, where it is being sent: see Lease; else empty
    QByteArray previous; // hash of the event before
    QByteArray hash;     // of all above
};

/// An event of the chain.
struct Head
{
    qint64 number = 0; // 0 of a journal without events
    QByteArray hash;   // in hex
};

/// Tells how far a long work is: so many of so many.
using Progress = std::function<void(qint64 done, qint64 all)>;

/// A document, as its last event left it.
struct Document
{
    QString id;
    State state = State::Accepted;
    QDateTime accepted; // first
    QDateTime changed;  // last
    QString device;     // that the last event names
    QString origin;     // who asked: user, queue, title, as the caller had it; may be empty
    QByteArray lease;   // that the sender holds while it is being sent; else empty
    QString detail;
    QByteArray jobHash, settingsHash, catalogueHash, renderedHash, sentHash; // hex, or empty
    QString charset;
    bool forgotten = false; // its contents are gone
};

/**
 * The journal in a file: one of SQLite, each operation on disk before it returns.
 *
 * All operations throw JournalError when the file cannot be read or written. A writer waits up to
 * ten seconds for another one. Several processes may have one journal open.
 */
class Journal
{
public:
    enum class Access {
        Write,         // made when it is not there, for its owner alone (0600), as is
                       // an empty one
        WriteForGroup, // the same, but his group may read it (0640)
        Read,          // nothing is changed, and nothing of the folder; rolls back what a killed
                       // writer left only where it may be written, and says so where not
    };

    /// Opens the journal in a file. A newer schema than this program's is refused, an older one is
    /// migrated in one transaction or, with Read, read as it is.
    Journal(const QString &path, Access access);
    ~Journal();
    Journal(Journal &&other) noexcept;

    /// Where a user's journal is unless another is named: below the folder for the user's data.
    /// Empty where the environment does not say where that is, which is no journal's path.
    static QString userPath();

    /// A document by its id; nothing when there is none.
    std::optional<Document> find(const QString &id);

    /// What a document was made of; all parts of one that was forgotten are empty, whoever else
    /// has the same.
    Contents contentsOf(const Document &document);

    /**
     * Takes a document in, or in again after it was refused: stores the contents and appends the
     * event "accepted".
     *
     * @param detail what is odd about it, in one line
     * @return false, with nothing changed, when there is one of that id that was not refused
     */
    bool accept(const QString &id, const Contents &contents, const QString &device,
                const QString &origin, const QString &detail = {});

    /**
     * Appends an event that brings a document into a state, if the state that it is in allows it:
     * looked up and written in one transaction.
     *
     * @param lease of the device, for Sending: as long as it is held, somebody sends
     * @return the state that it was in; when that does not allow it, nothing is changed (see
     *         mayFollow())
     */
    State change(const QString &id, State to, const QString &device, const QString &detail,
                 const QByteArray &lease = {});

    /// Notes a document as refused that was never accepted: contents as far as there are any.
    void refuse(const QString &id, const Contents &contents, const QString &device,
                const QString &origin, const QString &detail);

    /// All documents in the order of their first events, one after the other; others may write
    /// meanwhile.
    ///
    /// @param state only those in it
    /// @param since only those with an event at that time or later
    void eachDocument(std::optional<State> state, const QDateTime &since,
                      const std::function<void(const Document &)> &take,
                      const Progress &progress = {});

    /// All events at a time or later, in their order; others may write meanwhile.
    void eachEvent(const QDateTime &since, const std::function<void(const Event &)> &take,
                   const Progress &progress = {});

    /// The events of a document.
    QList<Event> events(const QString &id);

    /// The last event of all.
    Head head();

    /**
     * Looks for what was changed, taken out, moved or put in behind the journal's back: every event
     * and its place in the chain, what is made of the events, and all contents. Others may write
     * meanwhile.
     *
     * @param kept  an event that the chain must have
     * @param found gets each flaw, in a line
     * @return the last event of those that were looked at
     */
    Head verify(const std::optional<Head> &kept, const std::function<void(const QString &)> &found,
                const Progress &progress = {});

    /// What forget() did.
    struct Forgotten
    {
        qint64 documents = 0; // whose contents went
        qint64 kept = 0;      // that are old enough and not finished
    };

    /**
     * Removes the contents of finished documents (sent, printed, refused) whose last event was
     * before a time, but for contents that others have too; an event for each.
     */
    Forgotten forget(const QDateTime &before);

private:
    std::unique_ptr<sqlite::Database> database;
};

} // namespace korvel::delivery
