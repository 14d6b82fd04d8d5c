// The options of pictures and pages, and the files that they are written to.
#include "companions/preview/pictures.h"

#include "companions/preview/page.h"
#include "companions/preview/picture.h"
#include "companions/preview/rollpdf.h"
#include "companions/shared/files.h"
#include "companions/shared/output.h"
#include "config/path.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

#include <unistd.h>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

using Format = PictureRequest::Format;

const QCommandLineOption outputOption({u"o"_s, u"output"_s},
                                      u"Write a .png, .svg, .pdf or .html instead; - for standard "
                                      "output."_s,
                                      u"file"_s);
const QCommandLineOption formatOption(u"format"_s,
                                      u"Of the output, whatever its name: png, svg, pdf or html."_s,
                                      u"kind"_s);
const QCommandLineOption lookOption(u"look"_s,
                                    u"Of the picture, thermal being dot by dot on paper of 80 mm: "
                                    "plain or thermal."_s,
                                    u"name"_s, u"plain"_s);
const QCommandLineOption transparentOption(u"transparent"_s,
                                           u"Leave out what is around the paper."_s);

struct FormatName
{
    QLatin1StringView name; // as an option, and behind the point of a file's name
    Format format;
};

constexpr FormatName formats[] = {
    {"png"_L1, Format::Png},
    {"svg"_L1, Format::Svg},
    {"pdf"_L1, Format::Pdf},
    {"html"_L1, Format::Html},
};

std::optional<Format> formatCalled(const QString &name)
{
    for (const FormatName &row : formats)
        if (name == row.name)
            return row.format;
    return {};
}

/// The format that a file's name asks for.
std::optional<Format> formatOf(const QString &path)
{
    if (path == "-"_L1)
        return Format::Png;
    for (const FormatName &row : formats)
        if (path.endsWith(u'.' + row.name, Qt::CaseInsensitive))
            return row.format;
    return {};
}

QByteArray pngOf(const Picture &picture, const QColor &around)
{
    QBuffer png;
    return QImageWriter(&png, "png").write(picture.toImage(around)) ? png.data() : QByteArray();
}

/// The bytes of a PNG or an SVG.
QByteArray imageOf(const PictureRequest &request, const Shown &shown, const Reading &reading,
                   const Look &look, QString &error)
{
    QList<PaperRow> rows; // one at most that does not fit: there may be millions
    qsizetype count = 0;
    printRows(shown, reading, [&](const PaperRow &row) {
        if (Picture::shows(look, row) && count++ <= Picture::mostRows)
            rows.append(row);
    });
    const Picture picture(rows, reading.columns, look);
    if (!picture.fitsImage()) {
        error = u"the paper has "_s + QString::number(count)
                + u" rows, too many or too wide for a .png or .svg, which holds "_s
                + QString::number(Picture::mostRows) + u" of common width; write a .pdf"_s;
        return {};
    }
    const QColor around = request.transparent ? Qt::transparent : Qt::white;
    return request.format == Format::Svg ? picture.toSvg(request.title, around)
                                         : pngOf(picture, around);
}

/// All bytes of what is asked for.
QByteArray bytesOf(const PictureRequest &request, const QList<Shown> &shown, const Reading &reading,
                   QString &error)
{
    if (request.format == Format::Html)
        return pageOf(shown, reading, request.title);
    if (!Picture::hasFont()) {
        error = u"no font is installed; install a monospaced one, such as DejaVu"_s;
        return {};
    }
    const Look look = request.thermal ? Look::thermal(reading.columns) : Look::plain();
    if (request.format != Format::Pdf)
        return imageOf(request, shown.constFirst(), reading, look, error);
    RollPdf pdf(reading.columns, look, request.title);
    for (const Shown &one : shown)
        pdf.add([&](const Roll::TakeRow &take) { printRows(one, reading, take); });
    return pdf.end();
}

} // namespace

void addPictureOptions(QCommandLineParser &parser)
{
    parser.addOptions({outputOption, formatOption, lookOption, transparentOption});
}

bool wantsPicture(const QCommandLineParser &parser) { return parser.isSet(outputOption); }

std::optional<PictureRequest> pictureRequest(const QCommandLineParser &parser, QString &error)
{
    if (!parser.isSet(outputOption)) {
        for (const QCommandLineOption &option : {formatOption, lookOption, transparentOption})
            if (parser.isSet(option))
                error = u"--"_s + option.names().constFirst() + u" goes with --output"_s;
        return {};
    }
    PictureRequest request;
    request.path = parser.value(outputOption);
    const auto format = parser.isSet(formatOption) ? formatCalled(parser.value(formatOption))
                                                   : formatOf(request.path);
    const QString look = parser.value(lookOption);
    if (!format)
        error = parser.isSet(formatOption)
                    ? u"--format takes png, svg, pdf or html"_s
                    : u"--output takes a name that ends in .png, .svg, .pdf or .html"_s;
    else if (look != "plain"_L1 && look != "thermal"_L1)
        error = u"--look takes plain or thermal"_s;
    else if (format == Format::Html
             && (parser.isSet(lookOption) || parser.isSet(transparentOption)))
        error = u"--look and --transparent are for pictures, not for .html"_s;
    else if (parser.isSet(transparentOption) && format == Format::Pdf)
        error = u"--transparent is for .png and .svg; a .pdf has nothing around the paper"_s;
    if (!error.isEmpty())
        return {};
    request.format = *format;
    request.thermal = look == "thermal"_L1;
    request.transparent = parser.isSet(transparentOption);
    return request;
}

int writePicture(const PictureRequest &request, const QList<Shown> &shown, const Reading &reading,
                 int status)
{
    const bool toOutput = request.path == "-"_L1;
    if (toOutput && isatty(STDOUT_FILENO) == 1)
        return trouble(u"standard output is a terminal, which shows no picture"_s);
    if (!toOutput && korvel::path::kindOf(request.path) == korvel::path::Kind::Other)
        return trouble(request.path + u": no regular file"_s);
    QString error;
    const QByteArray bytes = bytesOf(request, shown, reading, error);
    if (bytes.isEmpty())
        return trouble(error.isEmpty() ? request.path + u": the picture cannot be made"_s : error);
    if (toOutput)
        return writeBytes(bytes, status);
    return writeWhole(request.path, bytes, error) ? status
                                                  : trouble(request.path + u": "_s + error);
}

} // namespace korvel::preview
