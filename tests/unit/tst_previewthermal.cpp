// The paper as a thermal printer leaves it: 8 dots a millimetre, each black or not.
#include "companions/preview/picture.h"
#include "support/pictures.h"
#include "support/test.h"

#include <QImage>
#include <QSet>

#include <algorithm>

namespace tst_previewthermal {

using namespace korvel::preview;

using Kind = PaperRow::Kind;

QImage imageOf(const QList<PaperRow> &rows, int width = columns)
{
    return Picture(rows, width, Look::thermal(width)).toImage(Qt::transparent);
}

QSet<QRgb> coloursOf(const QImage &image, const QRect &part)
{
    QSet<QRgb> colours;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            colours.insert(image.pixel(x, y));
    return colours;
}

const QRgb paper = Look::thermal(columns).paper.rgba();
const QRgb ink = Look::thermal(columns).ink.rgba();

class TestPreviewThermal : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(Picture::hasFont()); }

    void size_data()
    {
        QTest::addColumn<int>("width"); // of the paper, in characters
        QTest::addColumn<int>("rows");
        QTest::addColumn<QSize>("size");
        const auto row = [](const char *name, int width, int rows, QSize size) {
            QTest::newRow(name) << width << rows << size;
        };

        // 80 mm are 640 dots, 72 mm of them 576; rows have 48 dots of paper above and below.
        row("no rows", 32, 0, {640, 48 + 48});
        row("32 columns of 18 dots", 32, 1, {640, 48 + 36 + 48});
        row("one column is as large", 1, 1, {640, 48 + 36 + 48});
        row("42 columns of 13 dots", 42, 1, {640, 48 + 26 + 48});
        row("48 columns of 12 dots", 48, 2, {640, 48 + 48 + 48});
        row("64 columns of 9 dots", 64, 1, {640, 48 + 18 + 48});
        row("more columns take wider paper", 65, 1, {32 + 65 * 9 + 32, 48 + 18 + 48});
    }

    void size()
    {
        QFETCH(int, width);
        QFETCH(int, rows);
        QFETCH(QSize, size);
        const QImage image = imageOf(printed(QStringList(rows, "x")), width);
        QCOMPARE(image.size(), size);
        QCOMPARE(image.dotsPerMeterX(), 8000);
        QCOMPARE(image.dotsPerMeterY(), 8000);
    }

    /// Each dot is black or it is paper; the paper is no pure white.
    void dots()
    {
        const QImage image = imageOf(printed({"X Caffè 1.20 g@#", "", QString(32, 'x')}));
        const QRect inside(12, 12, 616, image.height() - 24);
        QCOMPARE(coloursOf(image, inside), QSet<QRgb>({paper, ink}));
        QVERIFY(paper != qRgb(255, 255, 255));
        QVERIFY(qGray(paper) > 224);
        QCOMPARE(coloursOf(image, {12, 84, 616, 36}), QSet<QRgb>({paper})); // the empty row
    }

    void columnsFillThePrintingWidth()
    {
        const QString block(QChar(0x2588));
        const QImage image = imageOf(printed({block + QString(30, ' ') + block}));
        const int middle = 48 + 18;
        for (const int x : {32 + 9, 32 + 576 - 9})
            QCOMPARE(image.pixel(x, middle), ink);
        for (const int x : {31 - 4, 32 + 18 + 4, 32 + 576 - 18 - 5, 32 + 576 + 4})
            QCOMPARE(image.pixel(x, middle), paper);
    }

    /// Bitmaps are made for 32 rows each: letters look the same in all of them.
    void everyRowIsPrinted()
    {
        QStringList texts;
        for (int i = 0; i < 100; ++i)
            texts.append(i % 7 == 3 ? QString() : "X 12");
        const QImage image = imageOf(printed(texts));
        const QImage first = image.copy(32, 48, 576, 36);
        const QImage empty = image.copy(32, 48 + 3 * 36, 576, 36);
        QVERIFY(first != empty);
        for (int i = 0; i < 100; ++i)
            QVERIFY2(image.copy(32, 48 + i * 36, 576, 36) == (i % 7 == 3 ? empty : first),
                     qPrintable(QString::number(i)));
    }

    /// The printer adds nothing up.
    void whatThePreviewAddsIsLeftOut()
    {
        const QImage image =
            imageOf({{Kind::Registered, "X"}, {Kind::Computed, "Sum"}, {Kind::Printed, "Y"}});
        QCOMPARE(image, imageOf(printed({"X", "Y"})));
    }

    void whatIsWiderThanThePaperIsRed()
    {
        const QImage image = imageOf(printed({QString(40, QChar(0x2588))}));
        QVERIFY(image.width() > 640);
        const QRect beyond(642, 48, image.width() - 642, 36);
        QCOMPARE(coloursOf(image, beyond), QSet<QRgb>({qRgba(0, 0, 0, 0), qRgb(0xC0, 0x20, 0x20)}));
    }

    void edgesAreTorn()
    {
        const QImage image = imageOf(printed({"x"}));
        for (const int y : {0, image.height() - 1})
            QVERIFY(coloursOf(image, {0, y, 640, 1}).contains(qRgba(0, 0, 0, 0)));
        QCOMPARE(coloursOf(image, {2, 12, 630, 30}), QSet<QRgb>({paper}));
    }
};

KORVEL_TEST(TestPreviewThermal)

} // namespace tst_previewthermal

#include "tst_previewthermal.moc"
