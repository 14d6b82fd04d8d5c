// korvel-preview: what a job or a command stream puts on paper, without the printer.
#include "companions/check/explain.h"
#include "companions/preview/folders.h"
#include "companions/preview/pictures.h"
#include "companions/preview/terminal.h"
#include "companions/preview/writer.h"
#include "companions/recode/codepage.h"
#include "companions/shared/commandline.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "printer/company/commands.h"

#include <QFile>
#include <QGuiApplication>
#include <QSet>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

using recode::CodePage;

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

/// Codes that are left out: the preview's own, and those of the checker.
struct Ignored
{
    QList<Code> inStreams;
    QList<check::Code> inJobs;
};

/// Reads --ignore; the status to end with when it names no code.
std::optional<int> readIgnored(const QCommandLineParser &parser, Ignored &ignored)
{
    for (const QString &names : parser.values(ignoreOption)) {
        for (const QString &name : names.split(u',')) {
            if (const CodeInfo *row = findCode(codes(), name))
                ignored.inStreams.append(row->code);
            else if (const check::CodeInfo *ofJobs = check::findCode(name))
                ignored.inJobs.append(ofJobs->code);
            else
                return trouble(noSuchCode(name, codeNames(codes()) + codeNames(check::codes())));
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
        return writeOut(codeList({codes().begin(), codes().end()}), Clean);
    if (schema) {
        QFile file(u":/preview.schema.json"_s);
        static_cast<void>(file.open(QIODevice::ReadOnly));
        return writeOut(QString::fromUtf8(file.readAll()), Clean);
    }
    const QString name = parser.value(explainOption);
    if (const CodeInfo *row = findCode(codes(), name))
        return writeOut(explained(*row, {}), Clean);
    if (const check::CodeInfo *row = check::findCode(name))
        return writeOut(check::explained(*row), Clean);
    return trouble(noSuchCode(name, codeNames(codes()) + codeNames(check::codes())));
}

/// Why the options do not fit; empty when they do.
QString misuseOf(const QCommandLineParser &parser)
{
    if (parser.positionalArguments().isEmpty())
        return u"a job or a stream is needed; see --help"_s;
    if (parser.positionalArguments().count(u"-"_s) > 1)
        return u"standard input can be shown once"_s;
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
    parser.addPositionalArgument(u"FILE..."_s,
                                 u"Jobs, or what korvel-print wrote, or folders of them; - for "
                                 "standard input."_s);
    parser.addOptions({settingsOption, jobOption, streamOption, columnsOption, charsetOption});
    addPictureOptions(parser);
    parser.addOptions({jsonOption, listOption, quietOption, ignoreOption, strictOption,
                       listCodesOption, explainOption, schemaOption});
}

/// What is the same for each file.
struct Request
{
    InputKind kind = InputKind::ByContent;
    QString settings;
    Reading reading;
    Ignored ignored;
    bool strict = false;
    bool quiet = false;
};

/// Reads those; the status to end with when one of them is wrong.
std::optional<int> readRequest(const QCommandLineParser &parser, Request &request)
{
    bool isNumber = false;
    const int columns = parser.value(columnsOption).toInt(&isNumber);
    if (!isNumber || columns < 1 || columns > mostColumns)
        return trouble(u"--columns takes a number from 1 to "_s + QString::number(mostColumns));
    static const auto page = CodePage::named(parser.value(charsetOption).toUtf8());
    if (!page)
        return trouble(korvel::recode::noCodePage(parser.value(charsetOption)));
    request.reading = {columns, &*page};
    if (parser.isSet(jobOption))
        request.kind = InputKind::Job;
    if (parser.isSet(streamOption))
        request.kind = InputKind::Stream;
    request.settings = parser.value(settingsOption);
    request.strict = parser.isSet(strictOption);
    request.quiet = parser.isSet(quietOption);
    return readIgnored(parser, request.ignored);
}

/// Shows files one after the other, and keeps the status that they make.
class Show
{
public:
    Show(const Request &what, const Files &ofFiles)
        : request(what)
        , files(ofFiles)
    {
        for (const QString &path : files.passedOver)
            say(programName() + u": "_s
                + inOneLine(path + u" is neither a job nor a stream: passed over"_s) + u'\n');
    }

    /// Hands each on that can be read, and says what was found.
    void forEach(const std::function<void(Shown)> &take)
    {
        for (const QString &path : files.paths) {
            QString error;
            const auto input = readInput(path, request.kind, *request.reading.page,
                                         request.settings, request.ignored.inJobs, error);
            if (!input) {
                status = trouble(error);
                continue;
            }
            Shown shown{*input, {}};
            shown.found = findings(input->stream, request.reading.columns,
                                   request.ignored.inStreams, *request.reading.page);
            if (!input->note.isEmpty())
                say(programName() + u": "_s + inOneLine(input->note) + u'\n');
            for (const QString &line : told(shown))
                say(line);
            if (isWrong(shown, request.strict))
                status = std::max<int>(status, Findings);
            take(std::move(shown));
        }
    }

    int status = Clean;

private:
    /// Says a line once: several jobs have the same settings.
    void say(const QString &line)
    {
        if (!request.quiet && !said.contains(line))
            std::fputs(line.toUtf8().constData(), stderr);
        said.insert(line);
    }

    const Request &request;
    const Files &files;
    QSet<QString> said;
};

/// Writes one picture of all files.
int writePictureOf(PictureRequest &picture, Show &show, const Request &request, const Files &files)
{
    const bool isForOne = picture.format == PictureRequest::Format::Png
                          || picture.format == PictureRequest::Format::Svg;
    if (isForOne && files.paths.size() > 1)
        return trouble(u"a .png or .svg shows one job or stream; write a .pdf or .html"_s);
    QList<Shown> all;
    show.forEach([&](Shown shown) { all.append(std::move(shown)); });
    picture.title = files.title;
    return all.isEmpty() ? show.status : writePicture(picture, all, request.reading, show.status);
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
    auto picture = pictureRequest(parser, error);
    if (!error.isEmpty())
        return trouble(error);
    if (picture.has_value() + parser.isSet(jsonOption) + parser.isSet(listOption) > 1)
        return trouble(u"--output, --json and --list exclude each other"_s);
    Request request;
    if (const auto status = readRequest(parser, request))
        return *status;
    const auto files = filesOf(parser.positionalArguments(), error);
    if (!files)
        return trouble(error);

    Show show(request, *files);
    if (picture)
        return writePictureOf(*picture, show, request, *files);
    using Format = Writer::Format;
    std::optional<Writer> writer;
    show.forEach([&](const Shown &shown) {
        if (!writer)
            writer.emplace(parser.isSet(jsonOption)   ? Format::Json
                           : parser.isSet(listOption) ? Format::List
                                                      : Format::Paper,
                           request.reading, !files->isOneOfOne, wantsColours());
        writer->write(shown);
    });
    return writer ? writer->end(show.status) : show.status;
}

} // namespace

} // namespace korvel::preview

int main(int argc, char *argv[])
{
    prepareCompanion();
    const QStringList arguments = argumentsOf(argc, argv);
    QCommandLineParser parser;
    korvel::preview::describe(parser);
    static_cast<void>(parser.parse(arguments)); // which says later what is wrong with it
    // The toolkit would take options such as -style for its own.
    int programAlone = 1;
    if (!korvel::preview::wantsPicture(parser)) {
        const QCoreApplication application(programAlone, argv);
        return korvel::preview::run(parser, arguments);
    }
    // A picture needs fonts, but no display; and a language that fontconfig knows.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FC_LANG", "en");
    const QGuiApplication application(programAlone, argv);
    return korvel::preview::run(parser, arguments);
}
