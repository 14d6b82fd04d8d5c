// The objects of a PDF, one after the other, and the table of where they begin.
#include "companions/preview/dotpdf.h"

namespace korvel::preview {

namespace {

// Objects that are written last, under numbers that are known from the start.
constexpr int catalogue = 1;
constexpr int pageTree = 2;
constexpr int information = 3;
constexpr int reserved = 3;

QByteArray number(double value) { return QByteArray::number(value, 'g', 8); }
QByteArray reference(int object) { return QByteArray::number(object) + " 0 R"; }

QByteArray colourOf(const QColor &colour)
{
    return number(colour.redF()) + ' ' + number(colour.greenF()) + ' ' + number(colour.blueF());
}

/// A text as the format has it: UTF-16 with a byte order mark, in hexadecimal.
QByteArray textOf(const QString &text)
{
    QByteArray units = "<FEFF";
    for (const QChar unit : text)
        units += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0');
    return units + '>';
}

QByteArray compressed(const QByteArray &bytes)
{
    constexpr int sizeInFront = 4; // which the toolkit adds
    constexpr int fast = 1;
    return qCompress(bytes, fast).mid(sizeInFront);
}

} // namespace

DotPdf::DotPdf(const QString &title, int dotsPerMetre)
    : pointsOfDot(72 / 0.0254 / dotsPerMetre)
    , file("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n")
    , offsets(reserved)
{
    begin(information);
    file += "<< /Title " + textOf(title) + " /Creator (korvel-preview) >>\nendobj\n";
}

/// Begins an object, a new one for 0; its number.
int DotPdf::begin(int object)
{
    if (object == 0) {
        offsets.append(0);
        object = static_cast<int>(offsets.size());
    }
    offsets[object - 1] = file.size();
    file += QByteArray::number(object) + " 0 obj\n";
    return object;
}

int DotPdf::addStream(const QByteArray &dictionary, const QByteArray &bytes)
{
    const QByteArray stream = compressed(bytes);
    const int object = begin(0);
    file += "<< " + dictionary + "/Filter /FlateDecode /Length " + QByteArray::number(stream.size())
            + " >>\nstream\n" + stream + "\nendstream\nendobj\n";
    return object;
}

void DotPdf::beginPage(QSize size)
{
    page = size;
    stencils.clear();
    content = number(pointsOfDot) + " 0 0 " + number(-pointsOfDot) + " 0 "
              + number(size.height() * pointsOfDot) + " cm\n";
}

void DotPdf::addPaper(const QPolygon &outline, const QColor &paper, const QColor &edge)
{
    content += colourOf(paper) + " rg " + colourOf(edge) + " RG\n";
    const char *step = " m\n";
    for (const QPoint &point : outline) {
        content += number(point.x()) + ' ' + number(point.y()) + step;
        step = " l\n";
    }
    content += "b\n";
}

void DotPdf::addCut(int y, int width, const QColor &colour)
{
    content += "q " + colourOf(colour) + " RG 2 w [8 4] 0 d 0 " + number(y) + " m " + number(width)
               + ' ' + number(y) + " l S Q\n";
}

void DotPdf::addDots(const QImage &dots, int top, const QColor &colour)
{
    const qsizetype width = (dots.width() + 7) / 8;
    QByteArray bits;
    bits.reserve(width * dots.height());
    for (int y = 0; y < dots.height(); ++y)
        bits.append(reinterpret_cast<const char *>(dots.constScanLine(y)), width);
    const QByteArray height = QByteArray::number(dots.height());
    const int stencil =
        addStream("/Type /XObject /Subtype /Image /ImageMask true /Decode [1 0] "
                  "/BitsPerComponent 1 /Width "
                      + QByteArray::number(dots.width()) + " /Height " + height + ' ',
                  bits);
    const QByteArray name = "/S" + QByteArray::number(stencil);
    stencils += name + ' ' + reference(stencil) + '\n';
    content += "q " + colourOf(colour) + " rg " + QByteArray::number(dots.width()) + " 0 0 -"
               + height + " 0 " + QByteArray::number(top + dots.height()) + " cm " + name
               + " Do Q\n";
}

void DotPdf::endPage()
{
    const int drawn = addStream({}, content);
    pages.append(begin(0));
    file += "<< /Type /Page /Parent " + reference(pageTree) + " /MediaBox [0 0 "
            + number(page.width() * pointsOfDot) + ' ' + number(page.height() * pointsOfDot)
            + "] /Contents " + reference(drawn) + " /Resources << /XObject <<\n" + stencils
            + ">> >> >>\nendobj\n";
}

QByteArray DotPdf::end()
{
    begin(pageTree);
    file += "<< /Type /Pages /Count " + QByteArray::number(pages.size()) + " /Kids [\n";
    for (const int object : std::as_const(pages))
        file += reference(object) + '\n';
    file += "] >>\nendobj\n";
    begin(catalogue);
    file += "<< /Type /Catalog /Pages " + reference(pageTree) + " >>\nendobj\n";

    const QByteArray table = QByteArray::number(file.size());
    const QByteArray size = QByteArray::number(offsets.size() + 1);
    file += "xref\n0 " + size + "\n0000000000 65535 f \n";
    for (const qsizetype offset : std::as_const(offsets))
        file += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    file += "trailer\n<< /Size " + size + " /Root " + reference(catalogue) + " /Info "
            + reference(information) + " >>\nstartxref\n" + table + "\n%%EOF\n";
    return file;
}

} // namespace korvel::preview
