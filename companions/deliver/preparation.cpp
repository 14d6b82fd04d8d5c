// Checking, rendering, judging and recoding one document.
#include "companions/deliver/preparation.h"

#include "companions/check/catalogue.h"
#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/preview/findings.h"
#include "companions/shared/oneline.h"
#include "companions/shared/rendering.h"
#include "printer/company/commands.h"

using namespace Qt::Literals::StringLiterals;

namespace korvel::deliver {

namespace {

using End = Prepared::End;

constexpr qsizetype mostRemarks = 1000;

void remark(Prepared &prepared, const QString &line)
{
    if (prepared.remarks.size() < mostRemarks)
        prepared.remarks.append(line);
}

/// Notes what was found, and refuses for an error.
class Judge
{
public:
    explicit Judge(Prepared &judged)
        : prepared(judged)
    {
    }

    void take(const QString &line, bool isError)
    {
        remark(prepared, line);
        if (!isError)
            return;
        ++errors;
        prepared.end = End::Refused;
        if (errors == 1)
            first = line;
        prepared.reason = first;
        if (errors > 1)
            prepared.reason += u" (and "_s + QString::number(errors - 1) + u" more)"_s;
    }

private:
    Prepared &prepared;
    QString first;
    int errors = 0;
};

/// A finding of the checker in one line.
QString lineOf(const QString &file, const check::Finding &finding)
{
    return file + u':' + QString::number(finding.place.line) + u':'
           + QString::number(finding.place.column) + u": "_s
           + check::levelName(infoOf(finding.code).level) + u": "_s + finding.text + u" ["_s
           + infoOf(finding.code).name + u']';
}

/// Renders a job that has no error; what keeps it from being sent is noted.
void render(Prepared &prepared)
{
    delivery::Contents &contents = prepared.contents;
    const shared::Rendered rendered = shared::rendered(contents.job, contents.settings);
    contents.rendered = rendered.stream;
    if (rendered.end == shared::Rendered::End::Complete)
        return;
    prepared.end = rendered.end == shared::Rendered::End::Refused ? End::Refused : End::Failed;
    prepared.reason = rendered.reason();
}

/// Checks a job and its settings.
void check(Prepared &prepared, const recode::CodePage &charset, const QString &name,
           const QString &settingsName)
{
    Judge judge(prepared);
    delivery::Contents &contents = prepared.contents;
    const check::SettingsFile settings(contents.settings);
    for (const check::Finding &finding : checkSettings(settings))
        judge.take(lineOf(settingsName, finding),
                   infoOf(finding.code).level == check::Level::Error);
    for (const check::Finding &finding : checkJob(contents.job, &settings, &charset))
        judge.take(lineOf(name, finding), infoOf(finding.code).level == check::Level::Error);
    contents.catalogue = catalogueOf(settings);
}

/// Judges a stream; one that the renderer left unfinished is no fault of the job's.
void judgeStream(Prepared &prepared, const QString &name)
{
    Judge judge(prepared);
    const delivery::Contents &contents = prepared.contents;
    const bool isJob = !contents.job.isEmpty();
    for (const preview::Finding &finding :
         preview::findings(contents.rendered, commands::lineWidth))
        judge.take(name + u':' + QString::number(finding.line) + u": "_s + finding.text, true);
    if (isJob && prepared.end == End::Refused) {
        prepared.end = End::Failed;
        prepared.reason = u"the renderer did not come to the end of the document: look whether "
                          "the folder for temporary files is full"_s;
    }
}

} // namespace

delivery::Contents madeFrom(const QByteArray &file, const QByteArray &settings,
                            const recode::CodePage &charset)
{
    delivery::Contents contents;
    contents.charset = charset.name().toLower();
    if (file.startsWith('=')) {
        contents.rendered = file;
    } else {
        contents.job = file;
        contents.settings = settings;
    }
    return contents;
}

Prepared prepared(delivery::Contents contents, const recode::CodePage &charset, const QString &name,
                  const QString &settingsName)
{
    Prepared result;
    result.contents = std::move(contents);
    if (result.contents.job.isEmpty() && result.contents.rendered.isEmpty()) {
        result.end = End::Refused;
        result.reason = u"it is empty: neither a job nor a stream"_s;
        return result;
    }
    if (!result.contents.job.isEmpty()) {
        check(result, charset, name, settingsName);
        if (result.end == End::Ready)
            render(result);
    }
    if (result.end != End::Ready)
        return result;
    judgeStream(result, name);

    result.contents.sent = recode::recoded(
        result.contents.rendered, recode::CodePage::utf8(), charset, [&](const recode::Loss &loss) {
            remark(result, name + u':' + QString::number(loss.line) + u':'
                               + QString::number(loss.column) + u": \""_s
                               + QString::fromUcs4(&loss.character, 1) + u"\" is not in "_s
                               + charset.name() + u": \""_s + loss.substitute
                               + u"\" is sent in its place"_s);
        });
    return result;
}

} // namespace korvel::deliver
