// One line a document.
#include "companions/deliver/reporting.h"

#include "companions/deliver/advice.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"

#include <cstdio>

using namespace Qt::Literals::StringLiterals;
using korvel::delivery::End;

namespace korvel::deliver {

namespace {

/// Writes a line to standard output. Whether anybody reads it changes nothing of what was sent.
void tell(const QString &line)
{
    const QByteArray bytes = shared::inOneLine(line).toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

void complain(const QString &line) { static_cast<void>(shared::trouble(line)); }

QString toCallAgain(const Subject &subject)
{
    return subject.id.isEmpty() ? u"call again"_s : u"call again with --id "_s + typed(subject.id);
}

} // namespace

Status report(const Subject &subject, const delivery::Outcome &outcome)
{
    const QString of = subject.file + u": "_s;
    switch (outcome.end) {
    case End::Sent:
        tell(of + u"sent to "_s + subject.device + u" as "_s + subject.id);
        return Delivered;
    case End::AlreadySent:
        tell(of + u"already sent as "_s + subject.id);
        return Delivered;
    case End::Refused:
        complain(of + u"refused, nothing was sent: "_s + outcome.reason);
        return Wrong;
    case End::Unrecorded:
        complain(of + u"nothing was sent: "_s + outcome.reason);
        return NotPossible;
    case End::NotSent:
        complain(of + u"not sent: "_s + outcome.reason + u"; "_s + toCallAgain(subject));
        return Undelivered;
    case End::InDoubt:
        break;
    }
    complain(of + u"in doubt: "_s + outcome.reason + u"; look at the paper, then run \""_s
             + toResolve(subject.id, subject.journal)
             + u" printed\", or not-printed to send it again"_s);
    return Doubtful;
}

Status reportReady(const Subject &subject)
{
    tell(subject.file + u": would be sent to "_s + subject.device);
    return Delivered;
}

} // namespace korvel::deliver
