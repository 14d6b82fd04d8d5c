// korvel-preview: what a command stream puts on paper, without the printer.
#include "companions/preview/findings.h"
#include "companions/preview/listing.h"
#include "companions/preview/pictures.h"
#include "companions/preview/terminal.h"
#include "companions/recode/codepage.h"
#include "companions/shared/commandline.h"
#include "companions/shared/files.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "printer/company/commands.h"

#include <QGuiApplication>
#include <QJsonDocument>

#include <cstdio>

#include <unistd.h>

using korvel::recode::CodePage;
using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;
namespace commands = korvel::commands;
namespace preview = korvel::preview;

namespace {

constexpr qint64 largestStream = 4'194'304; // 4 MiB
constexpr int mostColumns = 255;

const QCommandLineOption columnsOption(u"columns"_s,
                                       u"Characters in a line of the paper, from 1 to 255."_s,
                                       u"number"_s, QString::number(commands::lineWidth));
const QCommandLineOption
    charsetOption(u"charset"_s, u"The code page of an 8-bit printer that the stream is in."_s,
                  u"name"_s, u"UTF-8"_s);
const QCommandLineOption jsonOption(u"json"_s, u"Write a JSON object for each command instead."_s);
const QCommandLineOption listOption(u"list"_s, u"Write a line for each command instead."_s);
const QCommandLineOption quietOption({u"q"_s, u"quiet"_s},
                                     u"Do not say what is wrong; the exit status still does."_s);

/// Whether standard output is a terminal that wants colours.
bool wantsColours()
{
    return isatty(STDOUT_FILENO) == 1 && qEnvironmentVariableIsEmpty("NO_COLOR")
           && qgetenv("TERM") != "dumb";
}

/// Writes what the options ask for; the status to end with.
int write(const QCommandLineParser &parser, const QByteArray &stream, int columns,
          const CodePage &page, int status)
{
    Output out;
    preview::Decoder decoder(stream, page);
    if (parser.isSet(jsonOption)) {
        while (const auto command = decoder.next())
            out << QString::fromUtf8(QJsonDocument(toJson(*command)).toJson(QJsonDocument::Compact))
                       + u'\n';
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

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Shows what a command stream puts on paper, and says what is wrong with it."_s);
    parser.addPositionalArgument(u"STREAM"_s, u"What korvel-print wrote; - for standard input."_s);
    parser.addOptions({columnsOption, charsetOption});
    preview::addPictureOptions(parser);
    parser.addOptions({jsonOption, listOption, quietOption});
    if (const auto status = readCommandLine(parser, arguments))
        return *status;

    if (parser.positionalArguments().size() != 1)
        return trouble(u"one stream is needed; see --help"_s);
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

    const QString path = parser.positionalArguments().constFirst();
    const auto stream = readWhole(path, largestStream, error);
    if (!stream)
        return trouble(path + u": "_s + error);

    const QList<preview::Finding> found = preview::findings(*stream, columns, *page);
    if (!parser.isSet(quietOption)) {
        const QString name = inOneLine(path);
        for (const preview::Finding &finding : found)
            std::fputs(qUtf8Printable(name + u':' + QString::number(finding.line) + u": "_s
                                      + finding.text + u'\n'),
                       stderr);
    }
    const int status = found.isEmpty() ? Clean : Findings;
    if (!picture)
        return write(parser, *stream, columns, *page, status);
    picture->title = path == "-"_L1 ? u"Standard input"_s : inOneLine(path.section(u'/', -1));
    return writePicture(*picture, preview::paperOf(*stream, columns, *page), columns, status);
}

} // namespace

int main(int argc, char *argv[])
{
    prepareCompanion();
    // A picture needs fonts, but no display; and a language that fontconfig knows.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FC_LANG", "en");
    // The toolkit would take options such as -style for its own.
    int programAlone = 1;
    const QGuiApplication application(programAlone, argv);
    return run(argumentsOf(argc, argv));
}
