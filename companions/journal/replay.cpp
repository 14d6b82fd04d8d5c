// korvel-journal replay: documents rendered again, by today's renderer, and held against then.
#include "companions/journal/documents.h"
#include "companions/journal/subcommands.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "companions/shared/progress.h"
#include "companions/shared/rendering.h"

#include <algorithm>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

namespace {

/// Where two streams part, as a line that begins with 1.
qsizetype firstUnlikeLine(const QByteArray &one, const QByteArray &other)
{
    const auto end = std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first;
    return std::count(one.begin(), end, '\n') + 1;
}

class Replay
{
public:
    explicit Replay(delivery::Journal &of)
        : journal(of)
    {
    }

    /// Renders a document again; false when the renderer does not work.
    void add(const delivery::Document &document)
    {
        if (!failure.isEmpty())
            return;
        const delivery::Contents then = journal.contentsOf(document);
        if (then.job.isEmpty() || then.rendered.isEmpty()) {
            ++without;
            return;
        }
        const Rendered now = rendered(then.job, then.settings);
        if (!now.isThere() && now.end != Rendered::End::NoStream) {
            failure = now.reason();
            return;
        }
        if (now.stream == then.rendered) {
            ++same;
            return;
        }
        ++different;
        out << inOneLine(document.id) + u": differs from line "_s
                   + QString::number(firstUnlikeLine(now.stream, then.rendered)) + u'\n';
    }

    int end()
    {
        if (!failure.isEmpty()) {
            out.end(Trouble);
            return trouble(failure);
        }
        QString text = counted(same + different, u"document"_s) + u" rendered again: "_s
                       + QString::number(same) + u" the same, "_s + QString::number(different)
                       + u" different"_s;
        if (without > 0)
            text += u"; "_s + QString::number(without) + u" without a job"_s;
        out << text + u'\n';
        return out.end(different == 0 ? Clean : Findings);
    }

private:
    delivery::Journal &journal;
    Output out;
    QString failure; // of the renderer
    qint64 same = 0, different = 0, without = 0;
};

} // namespace

int replay(const Call &call)
{
    delivery::Journal journal(call.journal, delivery::Journal::Access::Read);
    Replay replay(journal);
    if (!call.id.isEmpty()) {
        const auto document = journal.find(call.id);
        if (!document)
            return noDocument(call.id);
        replay.add(*document);
        return replay.end();
    }
    ProgressLine progress(u"rendering"_s);
    journal.eachDocument(
        {}, {}, [&](const delivery::Document &document) { replay.add(document); },
        [&](qint64 done, qint64 all) { progress.show(done, all); });
    progress.clear();
    return replay.end();
}

} // namespace korvel::journal
