// From the stream of a job to what CUPS does with the job.
#include "companions/queue/backend.h"

#include "companions/deliver/advice.h"
#include "companions/deliver/preparation.h"
#include "companions/queue/document.h"
#include "companions/queue/supervisor.h"
#include "companions/shared/files.h"
#include "delivery/delivery.h"

#include <QDeadlineTimer>

#include <cups/backend.h>

#include <chrono>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::queue {

using deliver::Prepared;
using delivery::Contents;
using delivery::End;
using delivery::Journal;
using delivery::JournalError;
using delivery::Order;
using delivery::Outcome;

namespace {

constexpr std::chrono::seconds forPrinter = 10s; // to answer; then it is tried again
constexpr std::chrono::seconds forByte = 30s;    // that it may take none
constexpr std::chrono::hours asLongAsItTakes{24 * 365 * 10};

constexpr auto tooManyFiles = "a job has one file: print each by itself"_L1;

QString toResume(const Request &request)
{
    return u"\"lp -i "_s + deliver::typed(request.name()) + u" -H resume\""_s;
}

QString toResolve(const Request &request, const QString &id)
{
    const QString resolve = deliver::toResolve(id, journalPath());
    return u"look at the paper, then run \""_s + resolve + u" printed\" or \""_s + resolve
           + u" not-printed\", and "_s + toResume(request);
}

/// The document of a copy, counted from 1.
QString idOfCopy(const Request &request, int copy)
{
    return copy == 1 ? request.id : request.id + u'/' + QString::number(copy);
}

/// Whether the job is being taken away: then its filters ended before they were done.
bool isEndComing()
{
    const QDeadlineTimer deadline(1s);
    while (!isToldToEnd() && !deadline.hasExpired())
        std::this_thread::sleep_for(20ms);
    return isToldToEnd();
}

/// The delivery of one job.
class Delivery
{
public:
    Delivery(const Request &given, const delivery::DeviceName &itsDevice,
             const recode::CodePage &page)
        : request(given)
        , device(itsDevice)
        , charset(page)
        , journal(journalPath(), Journal::Access::WriteForGroup)
    {
    }

    int run()
    {
        if (request.files.size() > 1)
            return refused({}, tooManyFiles);
        QString error;
        const auto bytes =
            shared::readUpTo(request.files.value(0, u"-"_s), deliver::largestDocument, error);
        if (!bytes)
            return held(u"the job cannot be read: "_s + error);
        if (bytes->endsWith(furtherFile))
            return refused({}, tooManyFiles);
        if (bytes->isEmpty())
            return nothingCame();
        if (bytes->size() > deliver::largestDocument)
            return refused({}, u"it has more than "_s + QString::number(deliver::largestDocument)
                                   + u" bytes, the most that is taken"_s);
        Contents contents = deliver::madeFrom(*bytes, {}, charset);
        if (!contents.job.isEmpty())
            return refused(contents, u"it is no command stream; a job is printed without "
                                     "\"-o raw\""_s);
        if (auto before = takenIn(journal, request.id, contents))
            return send(*before);
        return judge(std::move(contents));
    }

private:
    /// The filter refused the job and noted why, or did not come to its end.
    int nothingCame()
    {
        const auto document = journal.find(request.id);
        if (document && document->state == delivery::State::Refused) {
            tell(Level::Error, refusal(document->detail));
            return CUPS_BACKEND_CANCEL;
        }
        if (document && !delivery::nothingLeft(document->state))
            return held(u"its filter did not come to its end; the document itself is "_s
                        + infoOf(document->state).name);
        return refused({}, u"nothing came of it: its filter did not come to its end"_s);
    }

    /// A stream that came past the filter.
    int judge(Contents contents)
    {
        const Prepared ready = deliver::prepared(std::move(contents), charset, request.file(), {});
        for (const QString &remark : ready.remarks)
            tell(Level::Debug, remark);
        if (ready.end != Prepared::End::Ready)
            return refused(ready.contents, ready.reason);
        // Nobody else marks where one raw file ends and the next begins.
        if (documentsIn(ready.contents.rendered) > 1)
            return refused(ready.contents, tooManyFiles);
        return send(ready.contents, ready.remark());
    }

    int send(const Contents &contents, const QString &remark = {})
    {
        const QString misuse = misuseOf(request, contents.rendered);
        if (!misuse.isEmpty())
            return refused(contents, misuse);
        for (int copy = 1; copy <= request.copies; ++copy) {
            if (const QString reason = boundElsewhere(idOfCopy(request, copy), contents);
                !reason.isEmpty())
                return held(u"not sent: it was begun for "_s + reason
                            + u"; move it to that printer's queue with lpmove"_s);
            const int status = deliverCopy(copy, contents, remark);
            if (status != CUPS_BACKEND_OK)
                return status;
        }
        return CUPS_BACKEND_OK;
    }

    /// The device that a copy is bound to, if it is not this one, and why.
    QString boundElsewhere(const QString &id, const Contents &contents)
    {
        const auto first = journal.find(request.id);
        const auto document = journal.find(id);
        if (!first || first->state == delivery::State::Refused || first->device == device.text
            || (document && !delivery::nothingLeft(document->state)))
            return {};
        if (request.isOfClass && isFiscal(contents.rendered))
            return first->device + u", and a fiscal document goes to no other printer of a class"_s;
        if (contents.charset != charset.name().toLower())
            return first->device + u" in the code page "_s + contents.charset
                   + u", which is not this queue's"_s;
        return {};
    }

    int deliverCopy(int copy, const Contents &contents, const QString &remark)
    {
        QString said;
        Order order;
        order.id = idOfCopy(request, copy);
        order.origin = request.origin();
        order.remark = remark;
        order.device = device;
        order.contents = contents;
        order.timeout = forByte;
        order.connecting = forPrinter;
        order.wait = asLongAsItTakes;
        order.waiting = [&](const QString &reason) {
            if (reason != said) {
                tellWaiting(true);
                tell(Level::Info, u"waiting: "_s + reason);
                said = reason;
            }
        };
        order.isCalledOff = isToldToEnd;
        const Outcome outcome = delivery::deliver(journal, order);
        tellWaiting(false);
        return told(outcome, copy);
    }

    [[nodiscard]] int told(const Outcome &outcome, int copy) const
    {
        const QString nothing = copy == 1
                                    ? u"nothing was printed"_s
                                    : u"nothing was printed of copy "_s + QString::number(copy);
        switch (outcome.end) {
        case End::Sent:
            tell(Level::Info, u"sent: "_s + request.file());
            return CUPS_BACKEND_OK;
        case End::AlreadySent:
            tell(Level::Info, u"already sent: "_s + request.file());
            return CUPS_BACKEND_OK;
        case End::Refused:
            tell(Level::Error, u"refused, "_s + nothing + u": "_s + outcome.reason);
            return CUPS_BACKEND_CANCEL;
        case End::Unrecorded:
            tell(Level::Error, nothing + u": "_s + outcome.reason);
            return CUPS_BACKEND_STOP;
        case End::NotSent:
            tell(Level::Info, u"not sent: "_s + outcome.reason);
            return CUPS_BACKEND_RETRY_CURRENT;
        case End::InDoubt:
            break;
        }
        return held(u"in doubt: "_s + outcome.reason + u"; "_s
                    + toResolve(request, idOfCopy(request, copy)));
    }

    static int held(const QString &text)
    {
        tell(Level::Error, text);
        return CUPS_BACKEND_HOLD;
    }

    int refused(const Contents &contents, const QString &reason)
    {
        if (isEndComing())
            return CUPS_BACKEND_RETRY_CURRENT;
        refuse(journal, request, contents, reason);
        tell(Level::Error, refusal(reason));
        return CUPS_BACKEND_CANCEL;
    }

    const Request &request;
    const delivery::DeviceName &device;
    const recode::CodePage &charset;
    Journal journal;
};

/// Refuses a job in a code page that is none, when its filters have ended: what they say would
/// stand in the place of the reason.
int withoutCodePage(const Request &request)
{
    Journal journal(journalPath(), Journal::Access::WriteForGroup);
    const QString reason = recode::noCodePage(request.charset);
    QString error;
    shared::readUpTo(request.files.value(0, u"-"_s), deliver::largestDocument, error);
    refuse(journal, request, {}, reason);
    tell(Level::Error, refusal(reason));
    return CUPS_BACKEND_CANCEL;
}

/// What the journal knows of the copies of a job.
struct Known
{
    QString doubtful;   // the id of one that may have reached the printer; empty where none may
    bool isSent = true; // all of them
};

Known knownOf(const Request &request)
{
    using delivery::State;
    Journal journal(journalPath(), Journal::Access::Read);
    Known known;
    for (int copy = 1; copy <= request.copies; ++copy) {
        const QString id = idOfCopy(request, copy);
        const auto document = journal.find(id);
        const State state = document ? document->state : State::Accepted;
        if (state == State::Sending || state == State::InDoubt)
            return {id, false};
        known.isSent = known.isSent && (state == State::Sent || state == State::Printed);
    }
    return known;
}

} // namespace

int deliverJob(const Request &request)
{
    QString error;
    const auto device = deviceOf(request.device, error);
    if (!device) {
        tell(Level::Error, u"nothing was printed: "_s + error);
        return CUPS_BACKEND_STOP;
    }
    const auto charset = recode::CodePage::named(request.charset.toUtf8());
    try {
        if (!charset)
            return withoutCodePage(request);
        return Delivery(request, *device, *charset).run();
    } catch (const JournalError &missing) {
        tell(Level::Error, u"nothing was printed: "_s + missing.text());
        return CUPS_BACKEND_STOP;
    }
}

int deliveryLost(const Request &request)
{
    Known known{request.id, false}; // what cannot be looked up is in doubt
    try {
        known = knownOf(request);
    } catch (const JournalError &) {
    }
    if (known.isSent) {
        tell(Level::Info, u"sent: "_s + request.file());
        return CUPS_BACKEND_OK;
    }
    const QString ended = u"the delivery was ended from outside; "_s;
    if (known.doubtful.isEmpty())
        tell(Level::Error, u"not sent: "_s + ended + u"run "_s + toResume(request));
    else
        tell(Level::Error, u"in doubt: "_s + ended + toResolve(request, known.doubtful));
    return CUPS_BACKEND_HOLD;
}

} // namespace korvel::queue
