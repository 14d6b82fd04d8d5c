// The documents that korvel-printer-sim keeps, and their code page.
#include "support/built.h"
#include "support/simulatordesk.h"
#include "support/test.h"

#include <QDir>

#include <sys/inotify.h>
#include <sys/stat.h>

namespace tst_simulatorpaper {

const QString examples = KORVEL_SOURCE_DIR "/examples/expected/";

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

/// Names of a folder's files, as each came to be: "moved 0001.out".
QStringList changesSeenBy(int watch)
{
    alignas(inotify_event) std::array<char, 65536> buffer;
    QStringList changes;
    ssize_t size = 0;
    while ((size = ::read(watch, buffer.data(), buffer.size())) > 0) {
        for (ssize_t at = 0; at < size;) {
            const auto *const event = reinterpret_cast<const inotify_event *>(&buffer.at(at));
            changes.append((event->mask & IN_MOVED_TO ? "moved " : "written ")
                           + QString::fromLatin1(event->name));
            at += ssize_t(sizeof(inotify_event)) + event->len;
        }
    }
    return changes;
}

class TestSimulatorPaper : public QObject
{
    Q_OBJECT

private slots:
    /// The bytes are those that were sent; the paper is what the preview shows of them.
    void documentsAreKept()
    {
        const QTemporaryDir folder;
        const QString paper = folder.filePath("paper");
        Simulator simulator({anyPort, "--paper", paper});
        const QStringList streams = filesBelow(examples, "*.out");
        for (const QString &stream : streams)
            QCOMPARE(deliver(simulator.port(), bytesOf(stream)), Met::End);
        VERIFY_SIMULATED(simulator.end());
        QStringList names;
        for (int i = 0; i < streams.size(); ++i) {
            const QString name = QString::number(i + 1).rightJustified(4, '0');
            names << name + ".out" << name + ".txt";
            QCOMPARE(linesOf(bytesOf(paper + '/' + name + ".out")), linesOf(bytesOf(streams[i])));
            const Run preview = runProgram(built::preview, {streams[i]}, {});
            QCOMPARE(linesOf(bytesOf(paper + '/' + name + ".txt")),
                     linesOf(preview.standardOutput));
        }
        QCOMPARE(namesIn(paper), names);
    }

    void theWordsOfWhatIsCutOff()
    {
        const QTemporaryDir folder;
        Simulator simulator({anyPort, "--paper", folder.path()});
        QCOMPARE(deliver(simulator.port(), "=o\n" + line("a") + QByteArray("=\"/(\0\xff", 6)),
                 Met::End);
        VERIFY_SIMULATED(simulator.end());
        QCOMPARE(bytesOf(folder.filePath("0001.out")),
                 "=o\n" + line("a") + QByteArray("=\"/(\0\xff", 6));
        QCOMPARE(QString::fromUtf8(bytesOf(folder.filePath("0001.txt"))),
                 QString("┌────────────────────────────────┐\n"
                         "│a                               │\n"
                         "┊=\"/(\\x00\\xff                    ┊\n"
                         "└────────────────────────────────┘\n"
                         "cut off: its end did not come\n"));
    }

    /// Under its name a file is never seen before it is whole, and the paper comes last.
    void filesAppearWhole()
    {
        const QTemporaryDir folder;
        const int watch = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
        QVERIFY(inotify_add_watch(watch, QFile::encodeName(folder.path()).constData(),
                                  IN_CREATE | IN_MODIFY | IN_MOVED_TO)
                >= 0);
        Simulator simulator({anyPort, "--paper", folder.path(), "--documents=2"});
        QCOMPARE(deliver(simulator.port(), documentOf("a") + documentOf("b")), Met::End);
        VERIFY_SIMULATED(simulator.finish());
        QStringList changes = changesSeenBy(watch);
        ::close(watch);
        const QRegularExpression whole("^\\w+ \\d{4}\\.(out|txt)$");
        QCOMPARE(changes.filter(whole), QStringList({"moved 0001.out", "moved 0001.txt",
                                                     "moved 0002.out", "moved 0002.txt"}));
    }

    /// Where documents lie already, none is replaced.
    void numbersGoOn()
    {
        const QTemporaryDir folder;
        for (const char *const name : {"0007.out", "0012.txt", "12.out", "0099.out.x", "x0098.out"})
            writeFile(folder.filePath(name), "old");
        Simulator simulator({anyPort, "--paper", folder.path()});
        QCOMPARE(deliver(simulator.port(), documentOf("a")), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QVERIFY(run.standardOutput.contains("\ndocument 13: "));
        QCOMPARE(namesIn(folder.path()),
                 QStringList({"0007.out", "0012.txt", "0013.out", "0013.txt", "0099.out.x",
                              "12.out", "x0098.out"}));
        QCOMPARE(bytesOf(folder.filePath("0013.out")), documentOf("a"));
        QCOMPARE(bytesOf(folder.filePath("0012.txt")), "old");
    }

    /// What cannot be kept is said, and counts at the end; the printer goes on.
    void aFolderThatIsGone()
    {
        const QTemporaryDir folder;
        const QString paper = folder.filePath("paper");
        Simulator simulator({anyPort, "--paper", paper});
        QVERIFY(QDir().rmdir(paper));
        QCOMPARE(deliver(simulator.port(), documentOf("a")), Met::End);
        const Run run = simulator.end();
        QVERIFY(run.exited);
        QCOMPARE(run.status, 2);
        QCOMPARE(QString::fromUtf8(run.standardError),
                 QString("korvel-printer-sim: %1/0001.out: No such file or directory\n"
                         "korvel-printer-sim: %1/0001.txt: No such file or directory\n")
                     .arg(paper));
        QVERIFY(run.standardOutput.contains("│a  "));
    }

    /// The paper is that of the stream before it was converted; the file has the bytes that came.
    void codePages_data()
    {
        QTest::addColumn<QString>("charset");
        QTest::addColumn<QByteArray>("sent");
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("finding");
        QTest::newRow("cp858") << "cp858" << QByteArray("Caff\x8a \xd5") << "Caffè €"
                               << "";
        QTest::newRow("CP1252") << "CP1252" << QByteArray("Caff\xe8 \x80") << "Caffè €"
                                << "";
        QTest::newRow("UTF-8") << "UTF-8" << QByteArray("Caff\xC3\xA8") << "Caffè"
                               << "";
        QTest::newRow("not UTF-8") << "utf-8" << QByteArray("Caff\xe8") << "Caff\uFFFD"
                                   << "document 1:2: byte 11: warning: \"\\xe8\" is not utf-8 "
                                      "[not-utf-8]";
        QTest::newRow("no character of it")
            << "cp1252" << QByteArray("\xe8\x81") << "è\uFFFD"
            << "document 1:2: byte 8: warning: \"\\x81\" is not cp1252 "
               "[not-utf-8]";
    }

    void codePages()
    {
        QFETCH(QString, charset);
        QFETCH(QByteArray, sent);
        QFETCH(QString, row);
        QFETCH(QString, finding);
        const QTemporaryDir folder;
        Simulator simulator({anyPort, "--charset", charset, "--paper", folder.path()});
        QCOMPARE(deliver(simulator.port(), documentOf(sent)), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QVERIFY2(
            QString::fromUtf8(run.standardOutput).contains("│" + row.leftJustified(32) + "│\n"),
            run.standardOutput.constData());
        const QStringList findings = remarksOf(run.standardOutput).filter("document 1:2:");
        QCOMPARE(findings, finding.isEmpty() ? QStringList() : QStringList{finding});
        QCOMPARE(bytesOf(folder.filePath("0001.out")), documentOf(sent));
    }
};

KORVEL_TEST(TestSimulatorPaper)

} // namespace tst_simulatorpaper

#include "tst_simulatorpaper.moc"
