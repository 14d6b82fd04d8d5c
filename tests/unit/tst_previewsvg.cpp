// The paper as an SVG: well-formed, in its size, each text in its cells, nothing from elsewhere.
#include "companions/preview/picture.h"
#include "support/pictures.h"
#include "support/test.h"

#include <QImage>
#include <QXmlStreamReader>

namespace tst_previewsvg {

using namespace korvel::preview;

using Kind = PaperRow::Kind;

/// The elements, each as its name, some attributes and its text: "text x=40 fill=#000000 Ciao".
QStringList elementsOf(const QByteArray &svg, const QStringList &attributes)
{
    QStringList elements;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            QString element = reader.name().toString();
            for (const QString &name : attributes)
                if (reader.attributes().hasAttribute(name))
                    element += ' ' + name + '=' + reader.attributes().value(name).toString();
            elements.append(element);
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            elements.last() += ' ' + reader.text().toString();
        }
    }
    if (reader.hasError())
        elements.append(reader.errorString());
    return elements;
}

class TestPreviewSvg : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(Picture::hasFont()); }

    void elements()
    {
        const QList<PaperRow> rows = {{Kind::Printed, "  2 x <Caffè>"},
                                      {Kind::Cut, {}},
                                      {Kind::Unknown, "é🍕"},
                                      {Kind::Printed, QString(33, 'y')}};
        const QByteArray svg = Picture(rows, columns).toSvg("a&b.out", Qt::transparent);
        // 464 dots of 1/203 inch, and beside them one character and 40 dots.
        QCOMPARE(elementsOf(svg, {"viewBox"}).first(), "svg viewBox=0 0 516 144");
        const QStringList expected = {
            "title a&b.out",
            "polygon fill=#ffffff",
            "text x=64 fill=#000000 textLength=12 2",
            "text x=88 fill=#000000 textLength=12 x",
            "text x=112 fill=#000000 textLength=84 <Caffè>",
            "path",
            "text x=40 fill=#c02020 textLength=12 é",
            "text x=64 fill=#c02020 🍕", // around its middle
            "text x=40 fill=#000000 textLength=384 " + QString(32, 'y'),
            "text x=476 fill=#c02020 textLength=12 y",
        };
        QCOMPARE(elementsOf(svg, {"x", "fill", "textLength"}).sliced(1), expected);
    }

    void around()
    {
        const Picture picture(printed({"x"}), columns);
        QCOMPARE(elementsOf(picture.toSvg("x"), {"fill"}).value(2), "rect fill=#ffffff");
        QVERIFY(!picture.toSvg("x", Qt::transparent).contains("<rect"));
    }

    /// Whole dots are the image itself, in the size of the paper.
    void dots()
    {
        const Picture picture(printed({"Ciao"}), columns, Look::thermal(columns));
        const QByteArray svg = picture.toSvg("x");
        QCOMPARE(elementsOf(svg, {"width", "height"}).first(), "svg width=80mm height=16.5mm");
        QXmlStreamReader reader(svg);
        while (!reader.atEnd() && reader.name() != QString("image"))
            reader.readNext();
        const QString data = reader.attributes().value("href").toString();
        const QString before = "data:image/png;base64,";
        QVERIFY(data.startsWith(before));
        const QImage image =
            QImage::fromData(QByteArray::fromBase64(data.sliced(before.size()).toLatin1()), "png");
        QCOMPARE(image.convertToFormat(QImage::Format_RGB32), picture.toImage());
    }
};

KORVEL_TEST(TestPreviewSvg)

} // namespace tst_previewsvg

#include "tst_previewsvg.moc"
