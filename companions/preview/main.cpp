// korvel-preview: what a command stream puts on paper, without the printer.
#include "companions/preview/findings.h"
#include "companions/preview/listing.h"
#include "companions/preview/picture.h"
#include "companions/preview/terminal.h"
#include "companions/shared/commandline.h"
#include "companions/shared/files.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "config/path.h"
#include "printer/company/commands.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QJsonDocument>

#include <cstdio>

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
const QCommandLineOption outputOption({u"o"_s, u"output"_s},
                                      u"Write a picture, .png or .pdf, instead."_s, u"file"_s);
const QCommandLineOption jsonOption(u"json"_s, u"Write a JSON object for each command instead."_s);
const QCommandLineOption listOption(u"list"_s, u"Write a line for each command instead."_s);
const QCommandLineOption quietOption({u"q"_s, u"quiet"_s},
                                     u"Do not say what is wrong; the exit status still does."_s);

/// Writes the picture that the file's name asks for; the status to end with.
int writePicture(const QString &path, const QList<preview::PaperRow> &rows, int columns, int status)
{
    if (!preview::Picture::hasFont())
        return trouble(u"no font is installed; install a monospaced one, such as DejaVu"_s);
    const preview::Picture picture(rows, columns);
    const bool pdf = path.endsWith(".pdf"_L1, Qt::CaseInsensitive);
    if (!pdf && !picture.fitsImage())
        return trouble(u"the paper has "_s + QString::number(picture.rowCount())
                       + u" rows, too many or too wide for a .png, which holds "_s
                       + QString::number(preview::Picture::mostRows)
                       + u" of common width; write a .pdf"_s);
    if (korvel::path::kindOf(path) == korvel::path::Kind::Other)
        return trouble(path + u": no regular file"_s);
    QBuffer png;
    const QByteArray bytes = pdf                                                  ? picture.toPdf()
                             : QImageWriter(&png, "png").write(picture.toImage()) ? png.data()
                                                                                  : QByteArray();
    if (bytes.isEmpty())
        return trouble(path + u": the picture cannot be made"_s);
    QString error;
    return writeWhole(path, bytes, error) ? status : trouble(path + u": "_s + error);
}

/// Writes what the options ask for; the status to end with.
int write(const QCommandLineParser &parser, const QByteArray &stream, int columns, int status)
{
    if (parser.isSet(outputOption))
        return writePicture(parser.value(outputOption), preview::paperOf(stream, columns), columns,
                            status);
    Output out;
    preview::Decoder decoder(stream);
    if (parser.isSet(jsonOption)) {
        while (const auto command = decoder.next())
            out << QString::fromUtf8(QJsonDocument(toJson(*command)).toJson(QJsonDocument::Compact))
                       + u'\n';
    } else if (parser.isSet(listOption)) {
        while (const auto command = decoder.next())
            out << listed(*command) + u'\n';
    } else {
        const preview::Box box(columns, preview::wantsColours());
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
    parser.addOptions({columnsOption, outputOption, jsonOption, listOption, quietOption});
    if (const auto status = readCommandLine(parser, arguments))
        return *status;

    if (parser.positionalArguments().size() != 1)
        return trouble(u"one stream is needed; see --help"_s);
    if (parser.isSet(outputOption) + parser.isSet(jsonOption) + parser.isSet(listOption) > 1)
        return trouble(u"--output, --json and --list exclude each other"_s);
    const QString output = parser.value(outputOption);
    if (parser.isSet(outputOption) && !output.endsWith(".png"_L1, Qt::CaseInsensitive)
        && !output.endsWith(".pdf"_L1, Qt::CaseInsensitive))
        return trouble(u"--output takes a name that ends in .png or .pdf"_s);
    bool isNumber = false;
    const int columns = parser.value(columnsOption).toInt(&isNumber);
    if (!isNumber || columns < 1 || columns > mostColumns)
        return trouble(u"--columns takes a number from 1 to "_s + QString::number(mostColumns));

    const QString path = parser.positionalArguments().constFirst();
    QString error;
    const auto stream = readWhole(path, largestStream, error);
    if (!stream)
        return trouble(path + u": "_s + error);

    const QList<preview::Finding> found = preview::findings(*stream, columns);
    if (!parser.isSet(quietOption)) {
        const QString name = inOneLine(path);
        for (const preview::Finding &finding : found)
            std::fputs(qUtf8Printable(name + u':' + QString::number(finding.line) + u": "_s
                                      + finding.text + u'\n'),
                       stderr);
    }
    return write(parser, *stream, columns, found.isEmpty() ? Clean : Findings);
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
