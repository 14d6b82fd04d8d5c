// korvel-journal resolve: what a person saw on the paper.
#include "companions/journal/documents.h"
#include "companions/journal/subcommands.h"
#include "companions/shared/commandline.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

namespace {

using delivery::State;

QString quoted(const QString &id) { return u"document "_s + inOneLine(id); }

} // namespace

int resolve(const Call &call)
{
    delivery::Journal journal(call.journal, delivery::Journal::Access::Write);
    const auto document = journal.find(call.id);
    if (!document)
        return noDocument(call.id);
    // The lease was let go by the end of whoever sent it: nobody can take it up again.
    if (isAbandoned(*document))
        journal.change(call.id, State::InDoubt, document->device,
                       u"the process that sent it is gone"_s);
    const State before =
        journal.change(call.id, call.resolution, document->device, u"said by "_s + userName());
    const QString now = quoted(call.id) + u": "_s + infoOf(call.resolution).name;
    if (before == call.resolution)
        return writeOut(now + u" already\n"_s, Clean);
    if (before == State::Sending) {
        trouble(quoted(call.id) + u" is being sent; wait for its end"_s);
        return Findings;
    }
    if (!mayFollow(before, call.resolution)) {
        trouble(quoted(call.id) + u" is not in doubt, but "_s + infoOf(before).name);
        return Findings;
    }
    return writeOut(now
                        + (call.resolution == State::NotPrinted
                               ? u"; the next delivery with this id sends it again\n"_s
                               : u"\n"_s),
                    Clean);
}

} // namespace korvel::journal
