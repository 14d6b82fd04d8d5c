// korvel-check: what is wrong with a job, before it is printed.
#include "companions/check/checks.h"
#include "companions/check/schema.h"
#include "companions/check/settingsfile.h"
#include "companions/shared/commandline.h"
#include "companions/shared/files.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "config/path.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <memory>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace check = korvel::check;

namespace {

constexpr qint64 largestFile = 67'108'864; // 64 MiB

const QCommandLineOption settingsOption(u"settings"_s,
                                        u"Check by this settings file too, and the file itself."_s,
                                        u"file"_s);
const QCommandLineOption strictOption(u"strict"_s, u"Let warnings count as errors."_s);
const QCommandLineOption jsonOption(u"json"_s, u"Write a JSON object for each finding."_s);
const QCommandLineOption explainOption(u"explain"_s, u"Say what a code means, and what to do."_s,
                                       u"code"_s);
const QCommandLineOption schemaOption(u"schema"_s, u"Write a RELAX NG schema of jobs."_s);

QString lineOf(const QString &file, const check::Finding &finding)
{
    return inOneLine(file) + u':' + QString::number(finding.place.line) + u':'
           + QString::number(finding.place.column) + u": "_s
           + check::levelName(infoOf(finding.code).level) + u": "_s + finding.text + u" ["_s
           + infoOf(finding.code).name + u"]\n"_s;
}

QString jsonOf(const QString &file, const check::Finding &finding)
{
    const QJsonObject object{
        {u"file"_s, file},
        {u"line"_s, finding.place.line},
        {u"column"_s, finding.place.column},
        {u"level"_s, QString(check::levelName(infoOf(finding.code).level))},
        {u"code"_s, QString(infoOf(finding.code).name)},
        {u"text"_s, finding.text},
    };
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n';
}

int explain(const QString &code)
{
    const check::CodeInfo *row = check::findCode(code);
    if (!row)
        return trouble(u"there is no code \""_s + code + u"\"; docs/checks.md has them all"_s);
    return writeOut(row->name + u" ("_s + check::levelName(row->level) + u")\n"_s + row->meaning
                        + u'\n' + row->advice + u'\n',
                    Clean);
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Says what is wrong with print jobs, before they are printed."_s);
    parser.addPositionalArgument(u"JOB"_s, u"A job for korvel-print; - for standard input."_s,
                                 u"[JOB...]"_s);
    parser.addOptions({settingsOption, strictOption, jsonOption, explainOption, schemaOption});
    if (const auto status = readCommandLine(parser, arguments))
        return *status;
    const QStringList jobs = parser.positionalArguments();
    if (parser.isSet(explainOption) || parser.isSet(schemaOption)) {
        if (!jobs.isEmpty() || parser.optionNames().size() > 1)
            return trouble(u"--explain and --schema stand alone"_s);
        return parser.isSet(explainOption)
                   ? explain(parser.value(explainOption))
                   : writeOut(QString::fromUtf8(check::relaxNgSchema()), Clean);
    }
    if (jobs.isEmpty() && !parser.isSet(settingsOption))
        return trouble(u"a job is needed; see --help"_s);

    int status = Clean;
    QString output;
    QString error;
    const bool json = parser.isSet(jsonOption);
    const bool strict = parser.isSet(strictOption);
    const auto report = [&](const QString &file, const QList<check::Finding> &findings) {
        for (const check::Finding &finding : findings) {
            output += json ? jsonOf(file, finding) : lineOf(file, finding);
            if (strict || infoOf(finding.code).level == check::Level::Error)
                status = std::max<int>(status, Findings);
        }
    };

    std::unique_ptr<check::SettingsFile> settings;
    if (parser.isSet(settingsOption)) {
        const QString path = parser.value(settingsOption);
        // The renderer reads its settings from nothing else.
        if (path == "-"_L1 || korvel::path::kindOf(path) == korvel::path::Kind::Other)
            return trouble(path + u": no regular file"_s);
        const auto bytes = readWhole(path, largestFile, error);
        if (!bytes)
            return trouble(path + u": "_s + error);
        settings = std::make_unique<check::SettingsFile>(*bytes);
        report(path, checkSettings(*settings));
    }
    for (const QString &path : jobs) {
        const auto job = readWhole(path, largestFile, error);
        if (job)
            report(path, checkJob(*job, settings.get()));
        else
            status = trouble(path + u": "_s + error);
    }
    return writeOut(output, status);
}

} // namespace

int main(int argc, char *argv[])
{
    prepareCompanion();
    const QCoreApplication application(argc, argv);
    return run(argumentsOf(argc, argv));
}
