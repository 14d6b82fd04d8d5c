// The paper as a PDF: its pages, and the rows on them.
#include "companions/preview/picture.h"
#include "companions/preview/rollpdf.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/program.h"
#include "support/test.h"

#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>

namespace tst_previewpdf {

using namespace korvel::preview;

/// A PDF of these rolls.
QByteArray pdfOf(const QList<QList<PaperRow>> &rolls, const Look &look = Look::plain(),
                 const QString &title = {})
{
    RollPdf pdf(columns, look, title);
    for (const QList<PaperRow> &rows : rolls)
        pdf.add([&](const Roll::TakeRow &take) { std::for_each(rows.begin(), rows.end(), take); });
    return pdf.end();
}

class TestPreviewPdf : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(Picture::hasFont()); }

    void pagesOfAPdf_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<QList<int>>("rowsOfPages");

        QTest::newRow("no rows") << 0 << QList<int>{0};
        QTest::newRow("one row") << 1 << QList<int>{1};
        QTest::newRow("a receipt") << 30 << QList<int>{30};
        QTest::newRow("as much as a page holds") << 1300 << QList<int>{1300};
        QTest::newRow("one row more") << 1301 << QList<int>{1300, 1};
        QTest::newRow("two pages") << 2600 << QList<int>{1300, 1300};
        QTest::newRow("three pages") << 2601 << QList<int>{1300, 1300, 1};
    }

    void pagesOfAPdf()
    {
        QFETCH(int, rows);
        QFETCH(QList<int>, rowsOfPages);
        const QTemporaryDir folder;
        const QString path = folder.filePath("roll.pdf");
        writeFile(path, pdfOf({roll(rows)}));

        const Run info = runProgram("pdfinfo", {"-l", "-1", path}, {});
        QCOMPARE(info.status, 0);
        QCOMPARE(info.standardError, "");
        const QString text = QString::fromUtf8(info.standardOutput);
        QVERIFY2(text.contains(QRegularExpression("(?m)^Creator: +korvel-preview$")),
                 qPrintable(text));
        QVERIFY2(
            text.contains(QRegularExpression(QString("(?m)^Pages: +%1$").arg(rowsOfPages.size()))),
            qPrintable(text));
        // Dots of 1/203 inch in points of 1/72; a page is a whole number of points.
        QList<int> found;
        for (const auto &page :
             QRegularExpression("(?m)^Page +(\\d+ )?size: +([\\d.]+) x ([\\d.]+) pts")
                 .globalMatch(text)) {
            const double height = 24 + 24 * rowsOfPages.value(found.size()) + 24;
            QVERIFY2(std::abs(page.captured(2).toDouble() - 464 * 72 / 203.0) <= 1,
                     qPrintable(text));
            QVERIFY2(std::abs(page.captured(3).toDouble() - height * 72 / 203.0) <= 1,
                     qPrintable(text));
            found.append(rowsOfPages.value(found.size()));
        }
        QCOMPARE(found, rowsOfPages);
    }

    void titleOfAPdf()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("roll.pdf");
        for (const Look &look : {Look::plain(), Look::thermal(columns)}) {
            writeFile(path, pdfOf({roll(1)}, look, "Caffè 118.out"));
            const Run info = runProgram("pdfinfo", {path}, {});
            const QString text = QString::fromUtf8(info.standardOutput);
            QVERIFY2(text.contains(QRegularExpression("(?m)^Title: +Caffè 118.out$")),
                     qPrintable(text));
        }
    }

    /// Of a roll dot by dot: a page holds 31,200 dots of rows of 36, and is 80 mm wide.
    void pagesOfDots_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<QList<int>>("rowsOfPages");

        QTest::newRow("no rows") << 0 << QList<int>{0};
        QTest::newRow("as much as a page holds") << 866 << QList<int>{866};
        QTest::newRow("one row more") << 867 << QList<int>{866, 1};
    }

    void pagesOfDots()
    {
        QFETCH(int, rows);
        QFETCH(QList<int>, rowsOfPages);
        const QTemporaryDir folder;
        const QString path = folder.filePath("roll.pdf");
        writeFile(path, pdfOf({roll(rows)}, Look::thermal(columns)));
        const Run info = runProgram("pdfinfo", {"-l", "-1", path}, {});
        QCOMPARE(info.status, 0);
        QCOMPARE(info.standardError, "");
        const QString text = QString::fromUtf8(info.standardOutput);
        QList<int> found;
        for (const auto &page :
             QRegularExpression("(?m)^Page +(\\d+ )?size: +([\\d.]+) x ([\\d.]+) pts")
                 .globalMatch(text)) {
            const double millimetres = (48 + 36 * rowsOfPages.value(found.size()) + 48) / 8.0;
            QVERIFY(std::abs(page.captured(2).toDouble() / 72 * 25.4 - 80) < 0.01);
            QVERIFY(std::abs(page.captured(3).toDouble() / 72 * 25.4 - millimetres) < 0.1);
            found.append(rowsOfPages.value(found.size()));
        }
        QCOMPARE(found, rowsOfPages);
    }

    /// Dot by dot, a page is what the image is: drawn at 8 dots a millimetre.
    void dotsOfAPdf()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("roll.pdf");
        const QList<PaperRow> rows = {{PaperRow::Kind::Printed, "X  Caffè"},
                                      {PaperRow::Kind::Cut, {}},
                                      {PaperRow::Kind::Unknown, QString(40, 'x')}};
        const Picture picture(rows, columns, Look::thermal(columns));
        writeFile(path, pdfOf({rows}, Look::thermal(columns)));
        const Run run =
            runProgram("pdftoppm", {"-r", "203.2", "-aa", "no", "-aaVector", "no", "-png", path},
                       {folder.path(), {}, {}});
        QCOMPARE(run.status, 0);
        const QImage page = QImage::fromData(run.standardOutput);
        const QImage image = picture.toImage();
        // A part of a dot at the edges is a dot to who draws it.
        QVERIFY(
            QRect({}, QSize(2, 2))
                .contains(QPoint(page.width() - image.width(), page.height() - image.height())));
        for (const QRect &part : {QRect(32, 48, 576, 36), QRect(32, 120, 800, 36)}) {
            int other = 0;
            for (int y = part.top(); y <= part.bottom(); ++y)
                for (int x = part.left(); x < std::min(part.right(), image.width()); ++x)
                    other += page.pixelColor(x, y).lightness() / 128
                                     != image.pixelColor(x, y).lightness() / 128
                                 ? 1
                                 : 0;
            QCOMPARE(other, 0);
        }
    }

    /// Each roll begins on a page of its own, which is as long as it needs, and as wide.
    void severalRolls()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("day.pdf");
        const QList<QList<PaperRow>> rolls = {roll(2), {}, printed({QString(34, 'x')}), roll(1301)};
        for (const Look &look : {Look::plain(), Look::thermal(columns)}) {
            const bool isPlain = !look.dots;
            writeFile(path, pdfOf(rolls, look));
            const Run info = runProgram("pdfinfo", {"-l", "-1", path}, {});
            QList<QList<int>> sizes; // in dots
            for (const auto &page :
                 QRegularExpression("(?m)^Page +\\d+ size: +([\\d.]+) x ([\\d.]+) pts")
                     .globalMatch(QString::fromUtf8(info.standardOutput))) {
                const double points = isPlain ? 203.0 / 72 : 203.2 / 72;
                sizes.append({qRound(page.captured(1).toDouble() * points / 12),
                              qRound(page.captured(2).toDouble() * points / 12)});
            }
            // In 12 dots: 464 or 640 wide, with 2 columns and the margin beyond 528 or 708.
            const QList<QList<int>> plain = {{39, 8}, {39, 4}, {44, 6}, {39, 2604}, {39, 6}};
            const QList<QList<int>> thermal = {{53, 14}, {53, 8}, {59, 11}, {53, 2606}, {53, 1313}};
            QCOMPARE(sizes, isPlain ? plain : thermal);
        }
    }

    /// Every row is on a page once, in order.
    void rowsOfAPdf()
    {
        constexpr int rows = 1305;
        const QTemporaryDir folder;
        const QString path = folder.filePath("roll.pdf");
        writeFile(path, pdfOf({roll(rows)}));

        const Run run = runProgram("pdftotext", {path, "-"}, {});
        QCOMPARE(run.status, 0);
        QStringList found;
        for (const auto &match :
             QRegularExpression("row\\s*(\\d+)").globalMatch(QString::fromUtf8(run.standardOutput)))
            found.append("row " + match.captured(1));
        QStringList expected;
        for (const PaperRow &row : roll(rows))
            expected.append(row.text);
        QCOMPARE(found, expected);
    }
};

KORVEL_TEST(TestPreviewPdf)

} // namespace tst_previewpdf

#include "tst_previewpdf.moc"
