// The pictures that korvel-preview writes into files.
#include "support/built.h"
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

#include <sys/stat.h>

namespace tst_previewpicturefiles {

class TestPreviewPictureFiles : public QObject
{
    Q_OBJECT

private slots:
    void permissionsOfAPicture()
    {
        const Desk desk(documentOf("Ciao"));
        const auto run = [&](const QString &mask) {
            return runProgram(
                "sh", {"-c", "umask " + mask + " && exec \"$0\" -o y.png x.out", built::preview},
                {desk.folder.path(), {}, {}});
        };
        const auto permissions = [&] {
            struct stat status = {};
            stat(desk.path("y.png").toUtf8().constData(), &status);
            return QByteArray::number(status.st_mode & 07777U, 8);
        };
        VERIFY_ENDED(run("027"), 0);
        QCOMPARE(permissions(), "640");
        VERIFY_ENDED(run("002"), 0); // of the one before
        QCOMPARE(permissions(), "640");
        QVERIFY(QFile::remove(desk.path("y.png")));
        VERIFY_ENDED(run("002"), 0);
        QCOMPARE(permissions(), "664");
    }

    void pictures_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QSize>("size"); // of a .png

        // 40 + 32 * 12 + 40 dots wide; 24 + 30 * 24 + 24 high for 30 rows.
        QTest::newRow("PNG") << QStringList{"--output", "y.png"} << QSize(464, 768);
        QTest::newRow("PNG, the short way") << QStringList{"-o", "y.PNG"} << QSize(464, 768);
        QTest::newRow("PNG on wider paper")
            << QStringList{"--output=y.png", "--columns=42"} << QSize(40 + 42 * 12 + 40, 768);
        // 32 + 576 + 32 dots wide; 48 + 30 * 36 + 48 high.
        QTest::newRow("PNG as a thermal printer has it")
            << QStringList{"-o", "y.png", "--look", "thermal"} << QSize(640, 1176);
        QTest::newRow("PNG by another name")
            << QStringList{"-o", "y", "--format", "png"} << QSize(464, 768);
        QTest::newRow("PDF") << QStringList{"-o", "y.pdf"} << QSize();
        QTest::newRow("PDF in capitals") << QStringList{"-oy.PDF"} << QSize();
    }

    void pictures()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QSize, size);
        const Desk desk(bytesOf(examples + "receipt.out"));
        const Run run = desk.run(arguments + QStringList("x.out"));
        VERIFY_ENDED(run, 0);
        QCOMPARE(linesOf(run.standardOutput + run.standardError), QStringList());
        const QStringList files = outputFiles(desk);
        QCOMPARE(files.size(), 1);
        const QByteArray picture = bytesOf(desk.path(files.constFirst()));
        QCOMPARE(sizeOfPng(picture), size);
        QCOMPARE(picture.startsWith("%PDF-"), !size.isValid());
    }

    void formats()
    {
        const Desk desk(documentOf("Ciao"));
        for (const QString &look : QStringList{"plain", "thermal"}) {
            const QStringList options = {"--look", look, "x.out", "-o"};
            VERIFY_ENDED(desk.run(options + QStringList{"y.svg"}), 0);
            const QByteArray svg = bytesOf(desk.path("y.svg"));
            QVERIFY2(svg.startsWith("<svg "), svg.constData());
            QVERIFY(svg.contains("<title>x.out</title>"));
            VERIFY_ENDED(desk.run(options + QStringList{"y.pdf"}), 0);
            QVERIFY(bytesOf(desk.path("y.pdf")).startsWith("%PDF-"));
        }
    }

    /// The same as into a file.
    void standardOutput()
    {
        const Desk desk(documentOf("Ciao"));
        for (const QString &format : QStringList{"png", "svg"}) {
            VERIFY_ENDED(desk.run({"-o", "y." + format, "x.out"}), 0);
            const Run run = desk.run({"-o", "-", "--format", format, "x.out"});
            VERIFY_ENDED(run, 0);
            QVERIFY(run.standardOutput == bytesOf(desk.path("y." + format)));
        }
        const Run pdf = desk.run({"--output=-", "--format=pdf", "x.out"});
        VERIFY_ENDED(pdf, 0);
        QVERIFY(pdf.standardOutput.startsWith("%PDF-"));
        const Run unasked = desk.run({"-o-", "x.out"});
        VERIFY_ENDED(unasked, 0);
        QVERIFY(unasked.standardOutput == bytesOf(desk.path("y.png")));
        const Run full = preview({"-o", "-", "x.out"}, {desk.folder.path(), {}, {}, "/dev/full"});
        VERIFY_TROUBLE(full);
    }

    void aroundThePaper()
    {
        const Desk desk(documentOf("Ciao"));
        constexpr int colourType = 25; // in a PNG: 2 without transparency, 6 with it
        VERIFY_ENDED(desk.run({"-o", "y.png", "x.out"}), 0);
        QCOMPARE(bytesOf(desk.path("y.png")).at(colourType), char(2));
        VERIFY_ENDED(desk.run({"-o", "y.png", "--transparent", "x.out"}), 0);
        QCOMPARE(bytesOf(desk.path("y.png")).at(colourType), char(6));
        VERIFY_ENDED(desk.run({"-o", "y.svg", "x.out"}), 0);
        QVERIFY(bytesOf(desk.path("y.svg")).contains("<rect "));
        VERIFY_ENDED(desk.run({"-o", "y.svg", "--transparent", "x.out"}), 0);
        QVERIFY(!bytesOf(desk.path("y.svg")).contains("<rect "));
    }

    void aPictureReplacesAnother()
    {
        const Desk desk(documentOf("Ciao"));
        writeFile(desk.path("y.png"), QByteArray(100000, 'x'));
        VERIFY_ENDED(desk.run({"-o", "y.png", "x.out"}), 0);
        const QByteArray picture = bytesOf(desk.path("y.png"));
        QCOMPARE(sizeOfPng(picture), QSize(464, 24 + 24 + 24));
        QVERIFY(!picture.contains(QByteArray(1000, 'x')));
    }

    void aRollThatAPngCannotHold()
    {
        const QByteArray line = "=\"/(x )\n";
        const Desk desk("=o\n" + line.repeated(1300) + "=o\n");
        VERIFY_ENDED(desk.run({"-o", "y.png", "x.out"}), 0);
        QCOMPARE(sizeOfPng(bytesOf(desk.path("y.png"))), QSize(464, 24 + 1300 * 24 + 24));

        const Desk longer("=o\n" + line.repeated(1301) + "=o\n");
        const Run run = longer.run({"-o", "y.png", "x.out"});
        VERIFY_TROUBLE(run);
        QVERIFY2(run.standardError.contains("1300") && run.standardError.contains(".pdf"),
                 run.standardError.constData());
        QCOMPARE(outputFiles(longer), QStringList());
        VERIFY_ENDED(longer.run({"-o", "y.pdf", "x.out"}), 0);
        QVERIFY(bytesOf(longer.path("y.pdf")).startsWith("%PDF-"));
    }

    void withoutAFontThereIsNoPicture()
    {
        const Desk desk(documentOf("Ciao"));
        const QTemporaryDir fonts;
        writeFile(fonts.filePath("none.conf"), "<fontconfig></fontconfig>\n");
        const QStringList noFonts = {"FONTCONFIG_FILE=" + fonts.filePath("none.conf"),
                                     "FONTCONFIG_PATH", "QT_QPA_FONTDIR"};
        for (const QString &output : QStringList{"y.png", "y.pdf"}) {
            const Run run = desk.run({"-o", output, "x.out"}, noFonts);
            VERIFY_TROUBLE(run);
            QVERIFY2(run.standardError.contains("font"), run.standardError.constData());
            QCOMPARE(outputFiles(desk), QStringList());
        }
        const Run paper = desk.run({"--columns=4", "x.out"}, noFonts);
        VERIFY_ENDED(paper, 0);
        QCOMPARE(QString::fromUtf8(paper.standardOutput), "┌────┐\n│Ciao│\n└────┘\n");
    }
};

KORVEL_TEST(TestPreviewPictureFiles)

} // namespace tst_previewpicturefiles

#include "tst_previewpicturefiles.moc"
