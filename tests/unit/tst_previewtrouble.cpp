// What korvel-preview does where it can neither read nor write.
#include "support/built.h"
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

#include <sys/stat.h>

namespace tst_previewtrouble {

class TestPreviewTrouble : public QObject
{
    Q_OBJECT

private slots:
    void aStreamOf4MebibytesAndNoMore()
    {
        constexpr qsizetype limit = 4 * 1024 * 1024;
        const QByteArray frame = documentOf({});
        const Desk desk(documentOf(QByteArray(limit - frame.size(), 'x')));
        const Run run = desk.run({"--list", "--quiet", "x.out"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(run.standardOutput.count('\n'), 3);
        QCOMPARE(run.standardOutput.count('x'), limit - frame.size() + 1); // and one of "text"

        QFile file(desk.path("x.out"));
        QVERIFY(file.open(QIODevice::Append));
        QCOMPARE(file.write("\n"), 1);
        file.close();
        VERIFY_TROUBLE(desk.run({"x.out"}));
        VERIFY_TROUBLE(desk.run({"/dev/zero"}));
    }

    void standardOutputThatTakesNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("paper") << QStringList{"x.out"};
        QTest::newRow("JSON") << QStringList{"--json", "x.out"};
        QTest::newRow("list") << QStringList{"--list", "x.out"};
        QTest::newRow("help") << QStringList{"--help"};
        QTest::newRow("version") << QStringList{"--version"};
    }

    void standardOutputThatTakesNothing()
    {
        QFETCH(QStringList, arguments);
        const Desk desk(documentOf("Ciao"));
        VERIFY_TROUBLE(preview(arguments, {desk.folder.path(), {}, {}, "/dev/full"}));
        // The same takes all that is written when there is no output to write.
        VERIFY_ENDED(desk.run(arguments), 0);
    }

    void closedStandardStreams()
    {
        const Desk desk(documentOf("Ciao"));
        const auto run = [&](const QString &closed, const QStringList &arguments) {
            return runProgram(
                "sh", QStringList{"-c", "exec \"$0\" \"$@\" " + closed, built::preview} + arguments,
                {desk.folder.path(), {}, {}});
        };
        VERIFY_TROUBLE(run("<&-", {"-"}));
        for (const QString &option : QStringList{"--columns=32", "--json", "--list", "--help"})
            VERIFY_TROUBLE(run(">&-", {option, "x.out"}));

        // What does not need them goes on.
        VERIFY_ENDED(run("<&-", {"x.out"}), 0);
        VERIFY_ENDED(run("2>&-", {"x.out"}), 0);
        VERIFY_ENDED(run("2>&-", {"--strict", "--columns=1", "x.out"}), 1);
        VERIFY_ENDED(run("2>&-", {"missing.out"}), 2);
        VERIFY_ENDED(run("<&- >&- 2>&-", {"-o", "y.png", "x.out"}), 0);
        QCOMPARE(sizeOfPng(bytesOf(desk.path("y.png"))), QSize(464, 24 + 24 + 24));
        QCOMPARE(bytesOf(desk.path("x.out")), documentOf("Ciao"));
    }

    void aPictureThatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<QStringList>("variables");
        // A sanitizer wants to be loaded first.
        const QStringList fullDisk = {"LD_PRELOAD=" + QString(built::failingCall),
                                      "KORVEL_FAULT_CALL=1", "KORVEL_FAULT_KIND=ENOSPC",
                                      "ASAN_OPTIONS=verify_asan_link_order=0"};

        QTest::newRow("PNG, no such folder") << "missing/y.png" << QStringList();
        QTest::newRow("PDF, no such folder") << "missing/y.pdf" << QStringList();
        QTest::newRow("PNG, a folder") << "folder.png" << QStringList();
        QTest::newRow("PDF, a folder") << "folder.pdf" << QStringList();
        QTest::newRow("PNG, a full disk") << "y.png" << fullDisk;
        QTest::newRow("PDF, a full disk") << "y.pdf" << fullDisk;
        QTest::newRow("PNG, a pipe") << "pipe.png" << QStringList();
        QTest::newRow("PDF, a pipe") << "pipe.pdf" << QStringList();
        QTest::newRow("PNG, a link to a pipe") << "link.png" << QStringList();
    }

    void aPictureThatCannotBeWritten()
    {
        QFETCH(QString, output);
        QFETCH(QStringList, variables);
        const Desk desk(documentOf("Ciao"));
        writeFile(desk.path("y.png"), "the one before");
        writeFile(desk.path("y.pdf"), "the one before");
        QVERIFY(QDir(desk.folder.path()).mkdir("folder.png"));
        QVERIFY(QDir(desk.folder.path()).mkdir("folder.pdf"));
        for (const QString &pipe : QStringList{"pipe.png", "pipe.pdf"})
            QCOMPARE(mkfifo(QFile::encodeName(desk.path(pipe)).constData(), 0600), 0);
        QVERIFY(QFile::link(desk.path("pipe.png"), desk.path("link.png")));
        const QStringList before = QDir(desk.folder.path()).entryList();

        const Run run = desk.run({"-o", output, "x.out"}, variables);
        VERIFY_TROUBLE(run);
        QVERIFY2(run.standardError.startsWith("korvel-preview: " + output.toUtf8() + ": "),
                 run.standardError.constData());

        // Nothing is lost, nothing is left behind, and what is no file stays what it is.
        QCOMPARE(QDir(desk.folder.path()).entryList(), before);
        QCOMPARE(bytesOf(desk.path("y.png")), "the one before");
        QCOMPARE(bytesOf(desk.path("y.pdf")), "the one before");
        for (const QString &pipe : QStringList{"pipe.png", "pipe.pdf"}) {
            struct stat status
            {
            };
            QCOMPARE(lstat(QFile::encodeName(desk.path(pipe)).constData(), &status), 0);
            QVERIFY2(S_ISFIFO(status.st_mode), qPrintable(pipe));
        }
    }
};

KORVEL_TEST(TestPreviewTrouble)

} // namespace tst_previewtrouble

#include "tst_previewtrouble.moc"
