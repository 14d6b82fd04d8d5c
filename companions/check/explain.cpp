// How the codes of findings are explained.
#include "companions/check/explain.h"

#include "companions/check/examples.h"

namespace korvel::check {

namespace {

/// Lines, each with blanks before it.
QString indented(QString lines) { return u"    "_s + lines.replace(u'\n', "\n    "_L1) + u'\n'; }

QString shown(const Example &example)
{
    QString text;
    if (!example.settings.isEmpty())
        text += u"\nFor example, the settings\n\n"_s + indented(settingsOf(example, example.wrong));
    if (!example.job.isEmpty())
        text += (text.isEmpty() ? u"\nFor example, the job\n\n"_s : u"\nand the job\n\n"_s)
                + indented(jobOf(example, example.wrong));
    return text + u"\nmended by\n\n"_s + indented(mendedLinesOf(example));
}

} // namespace

QString explained(const CodeInfo &row)
{
    const Example *example = exampleOf(row.code);
    return shared::explained(row, example ? shown(*example) : QString());
}

QString codeList() { return shared::codeList({codes().begin(), codes().end()}); }

} // namespace korvel::check
