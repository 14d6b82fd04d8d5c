// The options of pictures, and the files that they are written to.
#include "companions/preview/pictures.h"

#include "companions/preview/picture.h"
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
                                      u"Write a picture, .png, .svg or .pdf, instead; - for "
                                      "standard output."_s,
                                      u"file"_s);
const QCommandLineOption
    formatOption(u"format"_s, u"Of the picture, whatever its name: png, svg or pdf."_s, u"kind"_s);
const QCommandLineOption lookOption(u"look"_s,
                                    u"Of the picture: plain, or thermal, dot by dot on paper of "
                                    "80 mm."_s,
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

QByteArray bytesOf(const Picture &picture, const PictureRequest &request)
{
    const QColor around = request.transparent ? Qt::transparent : Qt::white;
    switch (request.format) {
    case Format::Svg:
        return picture.toSvg(request.title, around);
    case Format::Pdf:
        return picture.toPdf(request.title);
    case Format::Png:
        break;
    }
    QBuffer png;
    return QImageWriter(&png, "png").write(picture.toImage(around)) ? png.data() : QByteArray();
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
                    ? u"--format takes png, svg or pdf"_s
                    : u"--output takes a name that ends in .png, .svg or .pdf"_s;
    else if (look != "plain"_L1 && look != "thermal"_L1)
        error = u"--look takes plain or thermal"_s;
    else if (parser.isSet(transparentOption) && format == Format::Pdf)
        error = u"--transparent is for .png and .svg; a .pdf has nothing around the paper"_s;
    if (!error.isEmpty())
        return {};
    request.format = *format;
    request.thermal = look == "thermal"_L1;
    request.transparent = parser.isSet(transparentOption);
    return request;
}

int writePicture(const PictureRequest &request, const QList<PaperRow> &rows, int columns,
                 int status)
{
    if (!Picture::hasFont())
        return trouble(u"no font is installed; install a monospaced one, such as DejaVu"_s);
    const Picture picture(rows, columns, request.thermal ? Look::thermal(columns) : Look::plain());
    if (request.format != Format::Pdf && !picture.fitsImage())
        return trouble(u"the paper has "_s + QString::number(picture.rowCount())
                       + u" rows, too many or too wide for a .png or .svg, which holds "_s
                       + QString::number(Picture::mostRows) + u" of common width; write a .pdf"_s);
    const bool toOutput = request.path == "-"_L1;
    if (toOutput && isatty(STDOUT_FILENO) == 1)
        return trouble(u"standard output is a terminal, which shows no picture"_s);
    if (!toOutput && korvel::path::kindOf(request.path) == korvel::path::Kind::Other)
        return trouble(request.path + u": no regular file"_s);
    const QByteArray bytes = bytesOf(picture, request);
    if (bytes.isEmpty())
        return trouble(request.path + u": the picture cannot be made"_s);
    if (toOutput)
        return writeBytes(bytes, status);
    QString error;
    return writeWhole(request.path, bytes, error) ? status
                                                  : trouble(request.path + u": "_s + error);
}

} // namespace korvel::preview
