// korvel-journal forget: contents go, the chain stays.
#include "companions/journal/subcommands.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

int forget(const Call &call)
{
    delivery::Journal journal(call.journal, delivery::Journal::Access::Write);
    const auto [documents, kept] = journal.forget(call.before);
    QString text = counted(documents, u"document"_s) + u" forgotten"_s;
    if (kept > 0)
        text += u"; "_s + counted(kept, u"older one"_s) + u" kept, which "_s
                + (kept == 1 ? u"is"_s : u"are"_s) + u" not finished"_s;
    return writeOut(text + u'\n', Clean);
}

} // namespace korvel::journal
