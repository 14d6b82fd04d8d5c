// The order of steps: accepted, lease, connected, sending, bytes, all taken, sent.
#include "delivery/delivery.h"

#include "delivery/chain.h"
#include "delivery/device.h"
#include "delivery/lease.h"

#include <algorithm>
#include <csignal>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::delivery {

namespace {

constexpr std::chrono::milliseconds
    pause(250); // until a printer that is off or busy is tried again

/// Whether a hash in the journal, which has none of no bytes, is that of these.
bool isHashOf(const QByteArray &hash, const QByteArray &bytes)
{
    return bytes.isEmpty() ? hash.isEmpty() : hash == hashOf(bytes);
}

/// Why a document that is made of something else may not have an id, and what to do so that nothing
/// comes out twice.
QString takenBy(const Document &document, const Contents &contents)
{
    const bool isSameJob = contents.job.isEmpty()
                               ? isHashOf(document.renderedHash, contents.rendered)
                               : isHashOf(document.jobHash, contents.job);
    const QString other = !isSameJob ? u"another document"_s
                          : isHashOf(document.settingsHash, contents.settings)
                              ? u"this document in the code page "_s + document.charset
                              : u"this document with other settings"_s;
    QString advice;
    if (!isSameJob)
        advice = u"give this one an id of its own"_s;
    else if (nothingLeft(document.state))
        advice = u"call with what it was given to, or leave that alone and take a new id"_s;
    else if (document.state == State::Sent || document.state == State::Printed)
        advice = u"with a new id it comes out once more"_s;
    else
        advice = u"look at the paper before it is sent under a new id"_s;
    return u"the id "_s + document.id + u" was given to "_s + other + u", which is "_s
           + infoOf(document.state).name + u": "_s + advice;
}

/// One delivery, from step to step.
class Delivery
{
public:
    Delivery(Journal &openJournal, const Order &given)
        : journal(openJournal)
        , order(given)
    {
    }

    Outcome run()
    {
        const QDeadlineTimer patience(order.wait);
        for (;;) {
            if (auto outcome = settle())
                return *outcome;
            Attempt attempt = isElsewhere ? Attempt() : reach();
            if (attempt.connection) {
                // Meanwhile another one may have sent it.
                if (auto outcome = settle())
                    return *outcome;
                if (isCalledOff())
                    return giveUp();
                if (!isElsewhere) {
                    if (auto outcome = send(attempt))
                        return *outcome;
                    continue;
                }
            }
            if (patience.hasExpired() || isCalledOff())
                return giveUp();
            if (order.waiting)
                order.waiting(reason);
            std::this_thread::sleep_for(
                std::min(pause, std::chrono::milliseconds(patience.remainingTime())));
        }
    }

private:
    /// The device, taken and open. The lease is given back last.
    struct Attempt
    {
        std::optional<Lease> lease = {};
        QByteArray leaseName = {};
        std::unique_ptr<Connection> connection = nullptr;
    };

    /// Brings the document as far as the journal knows of it; its end, if that is one already.
    std::optional<Outcome> settle()
    {
        Document document = takenIn();
        if (!isMadeOf(document, order.contents))
            return Outcome{End::Refused, takenBy(document, order.contents)};
        isElsewhere = document.state == State::Sending && Lease::isHeld(document.lease);
        if (isElsewhere) {
            reason = u"another process is sending it"_s;
            return {};
        }
        if (document.state == State::Sending) {
            try {
                doubt(order.id, document.device);
                document = takenIn();
            } catch (const JournalError &error) {
                return Outcome{End::InDoubt, error.text()};
            }
        }
        if (document.state == State::InDoubt)
            return Outcome{End::InDoubt, document.detail};
        if (document.state == State::Sent || document.state == State::Printed)
            return Outcome{End::AlreadySent};
        return {};
    }

    /// The document as it stands; taken in, if it is new or was refused.
    Document takenIn()
    {
        auto document = journal.find(order.id);
        while (!document || document->state == State::Refused) {
            journal.accept(order.id, order.contents, order.device.text, order.origin, order.remark);
            document = journal.find(order.id);
        }
        return *document;
    }

    /// Nobody sends it any more, and nobody wrote down how that ended.
    void doubt(const QString &id, const QString &device)
    {
        journal.change(id, State::InDoubt, device,
                       u"the process that was sending it ended before its end was known"_s);
    }

    /// The same of all documents that were being sent under a lease, which is now ours.
    void doubtThoseOf(const QByteArray &lease)
    {
        QList<Document> left;
        journal.eachDocument(State::Sending, {}, [&](const Document &document) {
            if (document.lease == lease)
                left.append(document);
        });
        for (const Document &document : left)
            doubt(document.id, document.device);
    }

    /// Takes the lease of the device, and opens it; otherwise says why not.
    Attempt reach()
    {
        const Places places = placesOf(order.device, QDeadlineTimer(order.connecting), reason);
        for (const auto &place : places) {
            auto lease = Lease::take(place->leaseName(), reason);
            if (!lease)
                continue;
            const QByteArray name = place->leaseName();
            doubtThoseOf(name);
            auto connection = place->connect(QDeadlineTimer(order.connecting), reason);
            if (connection && connection->isAlive(reason))
                return {std::move(lease), name, std::move(connection)};
        }
        return {};
    }

    /// Sends it; nothing, when another one came first.
    std::optional<Outcome> send(const Attempt &attempt)
    {
        const QByteArray bytes = toSend();
        const auto before = beginSending(attempt.leaseName);
        if (!before)
            return Outcome{End::InDoubt, reason};
        if (!mayFollow(*before, State::Sending))
            return {};
        const bool isTaken = attempt.connection->send(bytes, order.timeout, reason);
        try {
            if (!isTaken)
                journal.change(order.id, State::InDoubt, order.device.text, reason);
            else if (journal.change(order.id, State::Sent, order.device.text, {}) == State::Sending)
                return Outcome{End::Sent, {}};
            else
                reason = u"all was sent, but somebody wrote down meanwhile that it was not"_s;
        } catch (const JournalError &error) {
            reason = (isTaken ? u"all was sent, but that could not be written down: "_s
                              : reason + u"; "_s)
                     + error.text();
        }
        return Outcome{End::InDoubt, reason};
    }

    /// Writes down that it is being sent; the state before, or nothing where nobody can tell
    /// whether that is written.
    std::optional<State> beginSending(const QByteArray &lease)
    {
        try {
            return journal.change(order.id, State::Sending, order.device.text, {}, lease);
        } catch (const JournalError &error) {
            reason = error.text();
        }
        bool isUnwritten = false;
        try {
            isUnwritten = journal.find(order.id)->state != State::Sending;
        } catch (const JournalError &) {
        }
        if (isUnwritten)
            throw JournalError(reason);
        return {};
    }

    /// What goes out: what is on disk, as it was accepted.
    QByteArray toSend()
    {
        const Document document = *journal.find(order.id);
        QByteArray bytes = journal.contentsOf(document).sent;
        if (bytes.isEmpty() || !isHashOf(document.sentHash, bytes))
            throw JournalError(u"the journal no longer has what is to be sent as "_s + order.id
                               + u"; run \"korvel-journal verify\""_s);
        return bytes;
    }

    bool isCalledOff()
    {
        if (!order.isCalledOff || !order.isCalledOff())
            return false;
        if (reason.isEmpty())
            reason = u"it was called off"_s;
        return true;
    }

    /// The printer was not to be had in time.
    Outcome giveUp()
    {
        if (!isElsewhere)
            journal.change(order.id, State::NotSent, order.device.text, reason);
        return {End::NotSent, reason};
    }

    Journal &journal;
    const Order &order;
    QString reason;           // why it is not sent yet
    bool isElsewhere = false; // another process is sending it
};

} // namespace

bool isMadeOf(const Document &document, const Contents &contents)
{
    if (document.charset != contents.charset)
        return false;
    if (contents.job.isEmpty())
        return document.jobHash.isEmpty() && isHashOf(document.renderedHash, contents.rendered);
    return isHashOf(document.jobHash, contents.job)
           && isHashOf(document.settingsHash, contents.settings);
}

Outcome deliver(Journal &journal, const Order &order)
{
    std::signal(SIGPIPE, SIG_IGN);
    try {
        return Delivery(journal, order).run();
    } catch (const JournalError &error) {
        return {End::Unrecorded, error.text()};
    }
}

} // namespace korvel::delivery
