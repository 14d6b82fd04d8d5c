// korvel-preview: what a job or a command stream puts on paper, without the printer.
#include "companions/check/explain.h"
#include "companions/paper/ledger.h"
#include "companions/preview/findings.h"
#include "companions/preview/input.h"
#include "companions/preview/listing.h"
#include "companions/preview/pictures.h"
#include "companions/preview/terminal.h"
#include "companions/recode/codepage.h"
#include "companions/shared/commandline.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "printer/company/commands.h"

#include <QFile>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>

#include <unistd.h>

using korvel::recode::CodePage;
using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;
namespace commands = korvel::commands;
namespace check = korvel::check;
namespace preview = korvel::preview;

namespace {

constexpr int mostColumns = 255;

const QCommandLineOption columnsOption(u"columns"_s,
                                       u"Characters in a line of the paper, from 1 to 255."_s,
                                       u"number"_s, QString::number(commands::lineWidth));
const QCommandLineOption settingsOption(u"settings"_s,
                                        u"Render the job by these settings, not by the user's."_s,
                                        u"file"_s);
const QCommandLineOption jobOption(u"job"_s, u"Take it for a job, whatever it looks like."_s);
const QCommandLineOption streamOption(u"stream"_s,
                                      u"Take it for a stream, whatever it looks like."_s);
const QCommandLineOption
    charsetOption(u"charset"_s, u"The code page of an 8-bit printer that the stream is in."_s,
                  u"name"_s, u"UTF-8"_s);
const QCommandLineOption ignoreOption(u"ignore"_s,
                                      u"Leave out findings of these codes, parted by commas."_s,
                                      u"codes"_s);
const QCommandLineOption strictOption(u"strict"_s, u"Let warnings count as errors."_s);
const QCommandLineOption
    jsonOption(u"json"_s, u"Write a JSON object for each command, finding and sum instead."_s);
const QCommandLineOption listCodesOption(u"list-codes"_s, u"List all codes."_s);
const QCommandLineOption explainOption(u"explain"_s, u"Say what a code means, and what to do."_s,
                                       u"code"_s);
const QCommandLineOption schemaOption(u"schema"_s, u"Write the schema of the JSON."_s);
const QCommandLineOption listOption(u"list"_s, u"Write a line for each command instead."_s);
const QCommandLineOption quietOption({u"q"_s, u"quiet"_s},
                                     u"Do not say what is wrong; the exit status still does."_s);

/// Whether standard output is a terminal that wants colours.
bool wantsColours()
{
    return isatty(STDOUT_FILENO) == 1 && qEnvironmentVariableIsEmpty("NO_COLOR")
           && qgetenv("TERM") != "dumb";
}

/// Writes each command, behind it what is wrong with it, and the sum of each fiscal section.
void writeJson(Output &out, const preview::Input &input, const QList<preview::Finding> &found,
               const CodePage &page)
{
    for (const preview::Input::CheckError &error : input.errors)
        out << jsonLine(toJson(error.file, error.finding));
    if (input.said)
        out << jsonLine({{u"said"_s, *input.said}});
    auto next = found.begin();
    const auto writeSum = [&](const std::optional<preview::Sum> &sum) {
        if (sum)
            out << jsonLine(toJson(*sum));
    };
    const QByteArray end("}\n");
    preview::Ledger ledger;
    preview::Decoder decoder(input.stream, page);
    while (const auto command = decoder.next()) {
        for (; next != found.end() && next->offset < command->offset; ++next)
            out << jsonLine(toJson(*next));
        out << jsonOf(*command) << end;
        writeSum(ledger.take(*command));
    }
    for (; next != found.end(); ++next)
        out << jsonLine(toJson(*next));
    writeSum(ledger.end());
}

/// Writes what the options ask for; the status to end with.
int write(const QCommandLineParser &parser, const preview::Input &input,
          const QList<preview::Finding> &found, int columns, const CodePage &page, int status)
{
    Output out;
    preview::Decoder decoder(input.stream, page);
    if (parser.isSet(jsonOption)) {
        writeJson(out, input, found, page);
    } else if (parser.isSet(listOption)) {
        while (const auto command = decoder.next())
            out << listed(*command) + u'\n';
    } else {
        const preview::Box box(columns, wantsColours());
        out << box.top();
        preview::Roll roll(columns, [&](const preview::PaperRow &row) { out << box.line(row); });
        while (const auto command = decoder.next())
            roll.print(*command);
        roll.end();
        out << box.bottom();
    }
    return out.end(status);
}

/// Says what was found, the job's errors first.
void tell(const preview::Input &input, const QList<preview::Finding> &found)
{
    QString lines;
    if (!input.note.isEmpty())
        lines += programName() + u": "_s + inOneLine(input.note) + u'\n';
    for (const preview::Input::CheckError &error : input.errors)
        lines += lineOf(error.file, error.finding);
    if (input.said)
        lines += inOneLine(input.path) + u": "_s + *input.said + u'\n';
    for (const preview::Finding &finding : found)
        lines += lineOf(input.path, input.isJob, finding);
    std::fputs(lines.toUtf8().constData(), stderr);
}

/// The status that findings make.
int statusOf(const preview::Input &input, const QList<preview::Finding> &found, bool strict)
{
    const bool isWrong = std::any_of(found.begin(), found.end(), [&](const auto &finding) {
        return strict || infoOf(finding.code).level == Level::Error;
    });
    return isWrong || input.said || !input.errors.isEmpty() ? Findings : Clean;
}

/// Codes that are left out: the preview's own, and those of the checker.
struct Ignored
{
    QList<preview::Code> inStreams;
    QList<check::Code> inJobs;
};

/// Reads --ignore; the status to end with when it names no code.
std::optional<int> readIgnored(const QCommandLineParser &parser, Ignored &ignored)
{
    for (const QString &names : parser.values(ignoreOption)) {
        for (const QString &name : names.split(u',')) {
            if (const preview::CodeInfo *row = findCode(preview::codes(), name))
                ignored.inStreams.append(row->code);
            else if (const check::CodeInfo *ofJobs = check::findCode(name))
                ignored.inJobs.append(ofJobs->code);
            else
                return trouble(
                    noSuchCode(name, codeNames(preview::codes()) + codeNames(check::codes())));
        }
    }
    return {};
}

/// What stands alone: explanations and the schema. Nothing when none is asked for.
std::optional<int> tellAbout(const QCommandLineParser &parser)
{
    const bool schema = parser.isSet(schemaOption);
    if (!schema && !parser.isSet(explainOption) && !parser.isSet(listCodesOption))
        return {};
    if (parser.optionNames().size() > 1 || !parser.positionalArguments().isEmpty())
        return trouble(u"--explain, --list-codes and --schema stand alone"_s);
    if (parser.isSet(listCodesOption))
        return writeOut(codeList({preview::codes().begin(), preview::codes().end()}), Clean);
    if (schema) {
        QFile file(u":/preview.schema.json"_s);
        static_cast<void>(file.open(QIODevice::ReadOnly));
        return writeOut(QString::fromUtf8(file.readAll()), Clean);
    }
    const QString name = parser.value(explainOption);
    if (const preview::CodeInfo *row = findCode(preview::codes(), name))
        return writeOut(explained(*row, {}), Clean);
    if (const check::CodeInfo *row = check::findCode(name))
        return writeOut(check::explained(*row), Clean);
    return trouble(noSuchCode(name, codeNames(preview::codes()) + codeNames(check::codes())));
}

/// Why the options do not fit; empty when they do.
QString misuseOf(const QCommandLineParser &parser)
{
    if (parser.positionalArguments().size() != 1)
        return u"one job or stream is needed; see --help"_s;
    if (parser.isSet(streamOption) && parser.isSet(jobOption))
        return u"--stream and --job exclude each other"_s;
    if (parser.isSet(settingsOption) && parser.value(settingsOption).isEmpty())
        return u"--settings takes the name of a file"_s;
    return {};
}

/// Adds what the command line may hold.
void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        u"Shows what a job or a command stream puts on paper, and says what is wrong with it."_s);
    parser.addPositionalArgument(u"FILE"_s,
                                 u"A job, or what korvel-print wrote; - for standard input."_s);
    parser.addOptions({settingsOption, jobOption, streamOption, columnsOption, charsetOption});
    preview::addPictureOptions(parser);
    parser.addOptions({jsonOption, listOption, quietOption, ignoreOption, strictOption,
                       listCodesOption, explainOption, schemaOption});
}

int run(QCommandLineParser &parser, const QStringList &arguments)
{
    if (const auto status = readCommandLine(parser, arguments))
        return *status;
    if (const auto status = tellAbout(parser))
        return *status;
    if (const QString misuse = misuseOf(parser); !misuse.isEmpty())
        return trouble(misuse);
    QString error;
    auto picture = preview::pictureRequest(parser, error);
    if (!error.isEmpty())
        return trouble(error);
    if (picture.has_value() + parser.isSet(jsonOption) + parser.isSet(listOption) > 1)
        return trouble(u"--output, --json and --list exclude each other"_s);
    bool isNumber = false;
    const int columns = parser.value(columnsOption).toInt(&isNumber);
    if (!isNumber || columns < 1 || columns > mostColumns)
        return trouble(u"--columns takes a number from 1 to "_s + QString::number(mostColumns));
    const auto page = CodePage::named(parser.value(charsetOption).toUtf8());
    if (!page)
        return trouble(korvel::recode::noCodePage(parser.value(charsetOption)));
    Ignored ignored;
    if (const auto status = readIgnored(parser, ignored))
        return *status;

    const auto kind = parser.isSet(jobOption)      ? preview::InputKind::Job
                      : parser.isSet(streamOption) ? preview::InputKind::Stream
                                                   : preview::InputKind::ByContent;
    const auto input = preview::readInput(parser.positionalArguments().constFirst(), kind, *page,
                                          parser.value(settingsOption), ignored.inJobs, error);
    if (!input)
        return trouble(error);
    const QList<preview::Finding> found =
        preview::findings(input->stream, columns, ignored.inStreams, *page);
    if (!parser.isSet(quietOption))
        tell(*input, found);
    const int status = statusOf(*input, found, parser.isSet(strictOption));
    if (!picture)
        return write(parser, *input, found, columns, *page, status);
    picture->title =
        input->path == "-"_L1 ? u"Standard input"_s : inOneLine(input->path.section(u'/', -1));
    return writePicture(*picture, preview::paperOf(input->stream, columns, *page), columns, status);
}

} // namespace

int main(int argc, char *argv[])
{
    prepareCompanion();
    const QStringList arguments = argumentsOf(argc, argv);
    QCommandLineParser parser;
    describe(parser);
    static_cast<void>(parser.parse(arguments)); // which says later what is wrong with it
    // The toolkit would take options such as -style for its own.
    int programAlone = 1;
    if (!preview::wantsPicture(parser)) {
        const QCoreApplication application(programAlone, argv);
        return run(parser, arguments);
    }
    // A picture needs fonts, but no display; and a language that fontconfig knows.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FC_LANG", "en");
    const QGuiApplication application(programAlone, argv);
    return run(parser, arguments);
}
