// Checking, rendering, judging and recoding one document.
#include "companions/deliver/preparation.h"

#include "companions/check/catalogue.h"
#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/preview/findings.h"
#include "companions/preview/listing.h"
#include "companions/shared/oneline.h"
#include "companions/shared/rendering.h"
#include "printer/company/commands.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::deliver {

namespace {

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

    /// @param told a finding with the line's end
    void take(const QString &told, shared::Level level)
    {
        const QString line = told.chopped(1);
        remark(prepared, line);
        if (level != shared::Level::Error)
            return;
        ++errors;
        prepared.end = Prepared::End::Refused;
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

/// Whether a stream ends before its document does.
bool isCutOff(const QList<preview::Finding> &findings)
{
    using preview::Code;
    return std::any_of(findings.begin(), findings.end(), [](const preview::Finding &finding) {
        return finding.code == Code::EmptyStream || finding.code == Code::LeftOpen
               || finding.code == Code::UnterminatedCommand;
    });
}

/// Renders a job that has no error; what keeps it from being sent is noted.
void render(Prepared &prepared)
{
    delivery::Contents &contents = prepared.contents;
    const shared::Rendered rendered = shared::rendered(contents.job, contents.settings);
    contents.rendered = rendered.stream;
    if (rendered.end == shared::Rendered::End::Complete)
        return;
    prepared.end = rendered.end == shared::Rendered::End::Refused ? Prepared::End::Refused
                                                                  : Prepared::End::Failed;
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
        judge.take(lineOf(settingsName, finding), infoOf(finding.code).level);
    for (const check::Finding &finding : checkJob(contents.job, &settings, &charset))
        judge.take(lineOf(name, finding), infoOf(finding.code).level);
    contents.catalogue = catalogueOf(settings);
}

/// Judges a stream; one that the renderer left unfinished is no fault of the job's.
void judgeStream(Prepared &prepared, const QString &name)
{
    Judge judge(prepared);
    const delivery::Contents &contents = prepared.contents;
    const bool isJob = !contents.job.isEmpty();
    const auto findings = preview::findings(contents.rendered, commands::lineWidth);
    for (const preview::Finding &finding : findings)
        judge.take(lineOf(name, isJob, finding), infoOf(finding.code).level);
    if (isJob && isCutOff(findings)) {
        prepared.end = Prepared::End::Failed;
        prepared.reason = u"the renderer did not come to the end of the document: look whether "
                          "the folder for temporary files is full"_s;
    }
}

} // namespace

QString Prepared::remark() const
{
    if (remarks.size() < 2)
        return remarks.value(0);
    return remarks.constFirst() + u" (and "_s + QString::number(remarks.size() - 1) + u" more)"_s;
}

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
        result.end = Prepared::End::Refused;
        result.reason = u"it is empty: neither a job nor a stream"_s;
        return result;
    }
    if (!result.contents.job.isEmpty()) {
        check(result, charset, name, settingsName);
        if (result.end == Prepared::End::Ready)
            render(result);
    }
    if (result.end != Prepared::End::Ready)
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
