// korvel-journal verify and head: whether the journal is what was written, and its end.
#include "companions/journal/subcommands.h"
#include "companions/journal/words.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "companions/shared/progress.h"

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

int verify(const Call &call)
{
    delivery::Journal journal(call.journal, delivery::Journal::Access::Read);
    Output out;
    ProgressLine progress(u"verifying"_s);
    qint64 flaws = 0;
    const delivery::Head last = journal.verify(
        call.head,
        [&](const QString &flaw) {
            ++flaws;
            out << inOneLine(flaw) + u'\n';
        },
        [&](qint64 done, qint64 all) { progress.show(done, all); });
    progress.clear();
    if (flaws == 0)
        out << counted(last.number, u"event"_s) + u", nothing wrong; head "_s + textOf(last)
                   + u'\n';
    return out.end(flaws == 0 ? Clean : Findings);
}

int head(const Call &call)
{
    delivery::Journal journal(call.journal, delivery::Journal::Access::Read);
    return writeOut(textOf(journal.head()) + u'\n', Clean);
}

} // namespace korvel::journal
