// korvel-check: what is wrong with a job, before it is printed.
#include "companions/check/checks.h"
#include "companions/check/explain.h"
#include "companions/check/schema.h"
#include "companions/check/settingsfile.h"
#include "companions/recode/codepage.h"
#include "companions/shared/commandline.h"
#include "companions/shared/files.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"

#include <QCoreApplication>

#include <algorithm>
#include <memory>
#include <optional>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

using recode::CodePage;

namespace {

constexpr qint64 largestJob = 67'108'864; // 64 MiB

const QCommandLineOption settingsOption(u"settings"_s,
                                        u"Check by this settings file too, and the file itself."_s,
                                        u"file"_s);
const QCommandLineOption ignoreOption(u"ignore"_s,
                                      u"Leave out findings of these codes, parted by commas."_s,
                                      u"codes"_s);
const QCommandLineOption
    charsetOption(u"charset"_s, u"Say what the printer's code page lacks, too."_s, u"name"_s);
const QCommandLineOption strictOption(u"strict"_s, u"Let warnings count as errors."_s);
const QCommandLineOption jsonOption(u"json"_s, u"Write a JSON object for each finding."_s);
const QCommandLineOption listCodesOption(u"list-codes"_s, u"List all codes."_s);
const QCommandLineOption explainOption(u"explain"_s,
                                       u"Say what a code means, and what to do, by an example."_s,
                                       u"code"_s);
const QCommandLineOption schemaOption(u"schema"_s,
                                      u"Write a schema of jobs, RELAX NG or XSD: rng or xsd."_s);

/// Findings as lines, and the status that they make.
struct Report
{
    bool json;
    bool strict;
    QList<Code> ignored = {};
    QString lines = {};
    int status = Clean;

    void add(const QString &file, const QList<Finding> &findings)
    {
        for (const Finding &finding : findings) {
            const CodeInfo &info = infoOf(finding.code);
            if (ignored.contains(finding.code))
                continue;
            lines += json ? jsonLine(toJson(file, finding)) : lineOf(file, finding);
            if (strict || info.level == Level::Error)
                status = std::max<int>(status, Findings);
        }
    }
};

/// What stands alone: explanations and schemas. Nothing when none is asked for.
std::optional<int> tellAbout(const QCommandLineParser &parser)
{
    const bool schema = parser.isSet(schemaOption);
    if (!schema && !parser.isSet(explainOption) && !parser.isSet(listCodesOption))
        return {};
    const QStringList words = parser.positionalArguments();
    if (parser.optionNames().size() > 1 || words.size() > (schema ? 1 : 0))
        return trouble(u"--explain, --list-codes and --schema stand alone"_s);
    if (parser.isSet(listCodesOption))
        return writeOut(codeList(), Clean);
    if (schema) {
        const QString format = words.value(0, u"rng"_s);
        if (format != "rng"_L1 && format != "xsd"_L1)
            return trouble(u"there is no schema \""_s + format + u"\"; write rng or xsd"_s);
        return writeOut(QString::fromUtf8(format == "xsd"_L1 ? xmlSchema() : relaxNgSchema()),
                        Clean);
    }
    const QString name = parser.value(explainOption);
    const CodeInfo *row = findCode(name);
    return row ? writeOut(explained(*row), Clean) : trouble(noSuchCode(name, codeNames(codes())));
}

/// Checks the settings, then the jobs, as far as they can be read.
int checkFiles(const QCommandLineParser &parser, Report &report)
{
    QString error;
    const QString charsetName = parser.value(charsetOption);
    const auto charset = CodePage::named(charsetName.toUtf8());
    if (parser.isSet(charsetOption) && !charset)
        return trouble(korvel::recode::noCodePage(charsetName));
    std::unique_ptr<SettingsFile> settings;
    if (parser.isSet(settingsOption)) {
        const QString path = parser.value(settingsOption);
        const auto bytes = readSettings(path, error);
        if (!bytes)
            return trouble(path + u": "_s + error);
        settings = std::make_unique<SettingsFile>(*bytes);
        report.add(path, checkSettings(*settings));
    }
    if (const QString missing = remarkOnMissingSettings(); !settings && !missing.isEmpty())
        remark(missing);
    for (const QString &path : parser.positionalArguments()) {
        const auto job = readWhole(path, largestJob, error);
        if (!job)
            report.status = trouble(path + u": "_s + error);
        else if (isSettings(*job))
            report.status = trouble(path
                                    + u": settings, not a job; check them with "
                                      "korvel-check --settings FILE"_s);
        else
            report.add(path, checkJob(*job, settings.get(), charset ? &*charset : nullptr));
    }
    return writeOut(report.lines, report.status);
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Says what is wrong with print jobs, before they are printed."_s);
    parser.addPositionalArgument(u"JOB"_s, u"A job for korvel-print; - for standard input."_s,
                                 u"[JOB...]"_s);
    parser.addOptions({settingsOption, charsetOption, ignoreOption, strictOption, jsonOption,
                       listCodesOption, explainOption, schemaOption});
    if (const auto status = readCommandLine(parser, arguments))
        return *status;
    if (const auto status = tellAbout(parser))
        return *status;
    if (parser.positionalArguments().isEmpty() && !parser.isSet(settingsOption))
        return trouble(u"a job is needed; see --help"_s);

    Report report{parser.isSet(jsonOption), parser.isSet(strictOption)};
    for (const QString &names : parser.values(ignoreOption)) {
        for (const QString &name : names.split(u',')) {
            const CodeInfo *row = findCode(name);
            if (!row)
                return trouble(noSuchCode(name, codeNames(codes())));
            report.ignored.append(row->code);
        }
    }
    return checkFiles(parser, report);
}

} // namespace

} // namespace korvel::check

int main(int argc, char *argv[])
{
    prepareCompanion();
    const QCoreApplication application(argc, argv);
    return korvel::check::run(argumentsOf(argc, argv));
}
