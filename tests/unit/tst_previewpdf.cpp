// The paper as a PDF: its pages, and the rows on them.
#include "companions/preview/picture.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/program.h"
#include "support/test.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>

namespace tst_previewpdf {

using namespace korvel::preview;

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
        writeFile(path, Picture(roll(rows), columns).toPdf());

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

    /// Every row is on a page once, in order.
    void rowsOfAPdf()
    {
        constexpr int rows = 1305;
        const QTemporaryDir folder;
        const QString path = folder.filePath("roll.pdf");
        writeFile(path, Picture(roll(rows), columns).toPdf());

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
