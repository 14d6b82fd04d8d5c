// The paper as a picture: sizes, paper, ink and colours, dot by dot.
#include "companions/preview/picture.h"
#include "support/pictures.h"
#include "support/test.h"

#include <QImage>
#include <QPainter>

#include <algorithm>

namespace tst_previewpicture {

using namespace korvel::preview;

using Kind = PaperRow::Kind;

QImage imageOf(const QList<PaperRow> &rows)
{
    return Picture(rows, columns).toImage(Qt::transparent);
}

/// The cell of a character of the paper, both counted from 0.
QRect cellOf(int column, int row) { return {40 + column * 12, 24 + row * 24, 12, 24}; }

/// All dots of a part of an image.
QList<QColor> dotsOf(const QImage &image, const QRect &part)
{
    QList<QColor> dots;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            dots.append(image.pixelColor(x, y));
    return dots;
}

bool isPaper(const QColor &dot) { return dot == QColor(Qt::white); }
bool isBlack(const QColor &dot) { return dot.alpha() == 255 && dot.lightness() < 64; }
bool isTransparent(const QColor &dot) { return dot.alpha() == 0; }
bool isGrey(const QColor &dot)
{
    return dot.alpha() == 255 && dot.saturation() == 0 && dot.lightness() > 64
           && dot.lightness() < 192;
}
bool isRed(const QColor &dot)
{
    return dot.alpha() == 255 && dot.red() > 128 && dot.green() < 64 && dot.blue() < 64;
}

bool all(const QList<QColor> &dots, bool (*is)(const QColor &))
{
    return std::all_of(dots.begin(), dots.end(), is);
}
bool any(const QList<QColor> &dots, bool (*is)(const QColor &))
{
    return std::any_of(dots.begin(), dots.end(), is);
}

class TestPreviewPicture : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(Picture::hasFont()); }

    void size_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<int>("width"); // of the paper, in characters
        QTest::addColumn<QSize>("size");
        const auto row = [](const char *name, const QStringList &texts, int width, QSize size) {
            QTest::newRow(name) << texts << width << size;
        };

        row("no rows: both torn edges", {}, 32, {464, 24 + 24});
        row("one row", {"x"}, 32, {464, 24 + 24 + 24});
        row("an empty row is a row", {""}, 32, {464, 24 + 24 + 24});
        row("30 rows", QStringList(30, "x"), 32, {464, 24 + 720 + 24});
        row("a row as wide as the paper", {QString(32, 'x')}, 32, {464, 24 + 24 + 24});
        row("one column", {"x"}, 1, {40 + 12 + 40, 24 + 24 + 24});
        row("42 columns", {"x"}, 42, {40 + 504 + 40, 24 + 24 + 24});
        row("255 columns", {QString(255, 'x')}, 255, {40 + 3060 + 40, 24 + 24 + 24});
        row("an emoji takes two columns", {QString::fromUtf8("\xF0\x9F\x8D\x95").repeated(16)}, 32,
            {464, 24 + 24 + 24});
    }

    void size()
    {
        QFETCH(QStringList, texts);
        QFETCH(int, width);
        QFETCH(QSize, size);
        const Picture picture(printed(texts), width);
        QCOMPARE(picture.rowCount(), texts.size());
        QCOMPARE(picture.size(), size);
        const QImage image = picture.toImage();
        QCOMPARE(image.size(), size);
        // 203 dots an inch of 25.4 mm
        QCOMPARE(image.dotsPerMeterX(), 7992);
        QCOMPARE(image.dotsPerMeterY(), 7992);
    }

    void aWiderRowMakesThePictureWider()
    {
        const auto widthOf = [](int characters) {
            return Picture(printed({QString(characters, 'x')}), columns).size().width();
        };
        QCOMPARE(widthOf(columns), paperWidth);
        QVERIFY(widthOf(columns + 1) >= paperWidth + 12);
        for (const int more : {2, 10, 2600 - columns})
            QCOMPARE(widthOf(columns + more), widthOf(columns + 1) + (more - 1) * 12);
        // Whatever is wider ends in a mark.
        QCOMPARE(widthOf(2601), widthOf(2600));
        QCOMPARE(widthOf(100000), widthOf(2600));
    }

    void paperAndInk()
    {
        const QImage image = imageOf(printed({"X  X", "", QString(31, ' ') + "X"}));
        const auto cell = [&](int column, int row) { return dotsOf(image, cellOf(column, row)); };

        QVERIFY(any(cell(0, 0), isBlack));
        QVERIFY(all(cell(1, 0), isPaper));
        QVERIFY(all(cell(2, 0), isPaper));
        QVERIFY(any(cell(3, 0), isBlack));
        for (int column = 4; column < columns; ++column)
            QVERIFY(all(cell(column, 0), isPaper));
        for (int column = 0; column < columns; ++column)
            QVERIFY(all(cell(column, 1), isPaper));
        QVERIFY(all(cell(30, 2), isPaper));
        QVERIFY(any(cell(31, 2), isBlack));

        // The margins beside the rows.
        QVERIFY(all(dotsOf(image, {2, 24, 37, 3 * 24}), isPaper));
        QVERIFY(all(dotsOf(image, {40 + columns * 12, 24, 37, 3 * 24}), isPaper));
    }

    void everyLetterStaysInItsCell()
    {
        for (const QChar letter : QString("AMWgjQ#@_|/0")) {
            const QImage image = imageOf(printed({QString(3, ' ') + letter}));
            QVERIFY2(any(dotsOf(image, cellOf(3, 0)), isBlack)
                         || any(dotsOf(image, cellOf(3, 0)), isGrey),
                     qPrintable(letter));
            QVERIFY2(!any(dotsOf(image, cellOf(2, 0)), isBlack), qPrintable(letter));
            QVERIFY2(!any(dotsOf(image, cellOf(4, 0)), isBlack), qPrintable(letter));
        }
    }

    /// Columns are UTF-16 units, so that what follows an accent or an emoji stands in its column.
    void whatFollowsStandsInItsColumn_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("column"); // of the X at its end

        QTest::newRow("a letter") << "eX" << 1;
        QTest::newRow("an accented letter") << QString::fromUtf8("\xC3\xA8X") << 1;
        QTest::newRow("an accent of its own") << QString::fromUtf8("e\xCC\x80X") << 2;
        QTest::newRow("an emoji") << QString::fromUtf8("\xF0\x9F\x8D\x95X") << 2;
        QTest::newRow("half an emoji") << QString(QChar(0xD83C)) + "X" << 1;
    }

    void whatFollowsStandsInItsColumn()
    {
        QFETCH(QString, text);
        QFETCH(int, column);
        const QImage image = imageOf(printed({text}));
        const QImage alone = imageOf(printed({QString(column, ' ') + "X"}));
        QCOMPARE(dotsOf(image, cellOf(column, 0)), dotsOf(alone, cellOf(column, 0)));
        QVERIFY(any(dotsOf(image, cellOf(column, 0)), isBlack));
        QVERIFY(all(dotsOf(image, cellOf(column + 1, 0)), isPaper));
    }

    void edgesAreTorn()
    {
        const QImage image = imageOf(printed({"x", "x"}));
        const int bottom = image.height() - 1;
        for (const int y : {0, bottom}) {
            const QList<QColor> edge = dotsOf(image, {0, y, image.width(), 1});
            QVERIFY(any(edge, isTransparent));
            QVERIFY(!all(edge, isTransparent));
        }
        for (const QPoint corner :
             {QPoint(0, 0), QPoint(paperWidth - 1, 0), QPoint(0, bottom), QPoint(463, bottom)})
            QVERIFY(isTransparent(image.pixelColor(corner)));
        // A tooth is no longer than a third of what stands above the first row.
        QVERIFY(all(dotsOf(image, {2, 10, paperWidth - 4, 14}), isPaper));
        QVERIFY(all(dotsOf(image, {2, bottom - 23, paperWidth - 4, 14}), isPaper));
    }

    void aroundThePaperIsWhite()
    {
        const QList<PaperRow> rows = printed({QString(40, 'x')});
        const QImage image = Picture(rows, columns).toImage();
        QVERIFY(!image.hasAlphaChannel());
        QImage onWhite(image.size(), QImage::Format_RGB32);
        onWhite.fill(Qt::white);
        QPainter(&onWhite).drawImage(0, 0, imageOf(rows));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), QColor(Qt::white));
        QCOMPARE(image.pixelColor(20, 36), onWhite.pixelColor(20, 36));
    }

    void whatIsWiderThanThePaperIsRed()
    {
        const QString text = "X" + QString(30, ' ') + "XYX";
        const Picture picture(printed({text, "X"}), columns);
        const QImage image = picture.toImage(Qt::transparent);
        QVERIFY(image.width() > paperWidth);

        // The paper is as it is without what is beyond it.
        const QImage paper = imageOf(printed({text.left(columns), "X"}));
        QVERIFY(image.copy(0, 0, paperWidth - 1, image.height())
                == paper.copy(0, 0, paperWidth - 1, image.height()));
        QVERIFY(!any(dotsOf(paper, paper.rect()), isRed));

        // Behind its edge: red in the first row, and nothing but red.
        const QRect beyond(paperWidth + 1, 0, image.width() - paperWidth - 1, image.height());
        for (const QColor &dot : dotsOf(image, beyond))
            QVERIFY2(isTransparent(dot) || (dot.red() > dot.green() && dot.green() == dot.blue()),
                     qPrintable(dot.name(QColor::HexArgb)));
        const auto isRedInRow = [&](int row) {
            return any(dotsOf(image, {beyond.x(), 24 + row * 24, beyond.width(), 24}), isRed);
        };
        QVERIFY(isRedInRow(0));
        QVERIFY(!isRedInRow(1));
    }

    void aRowThatIsMuchTooWideEndsInAMark()
    {
        const auto imageOfRow = [](const QString &text) { return imageOf(printed({text})); };
        const QImage marked = imageOfRow(QString(2599, 'x') + u'…');
        QVERIFY(imageOfRow(QString(2601, 'x')) == marked);
        QVERIFY(imageOfRow(QString(5000, 'x')) == marked);
        QVERIFY(imageOfRow(QString(2600, 'x')) != marked);
    }

    void whatAnImageHolds_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("characters"); // of each
        QTest::addColumn<bool>("fits");

        QTest::newRow("nothing") << 0 << 0 << true;
        QTest::newRow("1300 rows") << 1300 << columns << true;
        QTest::newRow("1301 rows") << 1301 << columns << false;
        // 128,000,000 dots are 4096 in each row of dots of 1300 rows: room for 341 characters, less
        // what margins take. 2600 characters are 31,200 dots and margins, of which 4102 rows of
        // dots would be too many: those of 169 rows.
        QTest::newRow("1300 rows of 330 characters") << 1300 << 330 << true;
        QTest::newRow("1300 rows of 342 characters") << 1300 << 342 << false;
        QTest::newRow("165 rows of 2600 characters") << 165 << 2600 << true;
        QTest::newRow("169 rows of 2600 characters") << 169 << 2600 << false;
    }

    void whatAnImageHolds()
    {
        QFETCH(int, rows);
        QFETCH(int, characters);
        QFETCH(bool, fits);
        const Picture picture(printed(QStringList(rows, QString(characters, 'x'))), columns);
        QCOMPARE(picture.fitsImage(), fits);
    }

    void kindsHaveColours_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QColor>("colour");

        QTest::newRow("printed") << Kind::Printed << QColor(Qt::black);
        QTest::newRow("registered") << Kind::Registered << QColor(Qt::black);
        QTest::newRow("a deduction") << Kind::Deducted << QColor(Qt::black);
        QTest::newRow("computed by the preview") << Kind::Computed << QColor(0x80, 0x80, 0x80);
        QTest::newRow("unknown") << Kind::Unknown << QColor(0xC0, 0x20, 0x20);
    }

    void kindsHaveColours()
    {
        QFETCH(Kind, kind);
        QFETCH(QColor, colour);
        const QImage image = imageOf({{kind, QString(2, QChar(0x2588))}}); // full blocks
        QCOMPARE(image.pixelColor(cellOf(0, 0).center()), colour);
        QCOMPARE(image.pixelColor(cellOf(1, 0).center()), colour);
    }

    void whereAnotherDocumentFollowsThePaperIsCut()
    {
        const QImage image = imageOf({{Kind::Printed, "X"}, {Kind::Cut, {}}, {Kind::Printed, "X"}});
        const QRect between(2, 24 + 24, paperWidth - 4, 24);
        QVERIFY(any(dotsOf(image, between), isGrey));
        QVERIFY(any(dotsOf(image, between), isPaper));
        QVERIFY(!any(dotsOf(image, between), isBlack));
        // From edge to edge, and not at the rows beside it.
        QVERIFY(any(dotsOf(image, {2, between.y(), 38, 24}), isGrey));
        QVERIFY(any(dotsOf(image, {paperWidth - 40, between.y(), 38, 24}), isGrey));
        QVERIFY(all(dotsOf(image, cellOf(1, 0)), isPaper));
        QVERIFY(all(dotsOf(image, cellOf(1, 2)), isPaper));
    }

    void paintingLeavesTheRestAlone()
    {
        const Picture picture(printed({"X"}), columns);
        QImage image(picture.size() + QSize(50, 50), QImage::Format_ARGB32_Premultiplied);
        const QColor blue(0, 0, 255);
        image.fill(blue);
        QPainter painter(&image);
        picture.paint(painter);
        painter.end();
        QCOMPARE(image.pixelColor(0, 0), blue);
        for (const QColor &dot :
             dotsOf(image, {paperWidth + 1, 0, 49, image.height()})
                 + dotsOf(image, {0, picture.size().height() + 1, image.width(), 49}))
            QCOMPARE(dot, blue);
        QVERIFY(isPaper(image.pixelColor(20, 36)));
        QVERIFY(any(dotsOf(image, cellOf(0, 0)), isBlack));
    }
};

KORVEL_TEST(TestPreviewPicture)

} // namespace tst_previewpicture

#include "tst_previewpicture.moc"
