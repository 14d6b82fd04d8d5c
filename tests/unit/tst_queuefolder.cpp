// The example that prints what tills put into a folder.
#include "support/queuedesk.h"
#include "support/test.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace tst_queuefolder {

const QString example = KORVEL_SOURCE_DIR "/examples/folder/";

class TestQueueFolder : public QueueTest
{
    Q_OBJECT

private:
    [[nodiscard]] Run printFolder() const
    {
        return desk->run("/bin/sh", {example + "print-folder", queue(), desk->path("folder")});
    }

    /// Puts a job there, with a time of its own: how a till writes it once.
    void put(const QString &name, const QString &source, qint64 seconds) const
    {
        const QString path = desk->path("folder/" + name);
        QVERIFY(QFile::copy(source, path));
        const timespec times[] = {{seconds, 0}, {seconds, 0}};
        QCOMPARE(::utimensat(AT_FDCWD, qPrintable(path), times, 0), 0);
    }

private slots:
    QUEUE_TEST_SLOTS

    void eachJobIsPrintedOnce()
    {
        QDir().mkpath(desk->path("folder"));
        put("-table 7.xml", sample("receipt.xml"), 1'000'000'000);
        put("8.xml.part", sample("invoice.xml"), 1'000'000'000); // not whole yet
        QCOMPARE(printFolder().status, 0);
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));

        // It was killed before it moved the file.
        put("-table 7.xml", sample("receipt.xml"), 1'000'000'000);
        QCOMPARE(printFolder().status, 0);
        // The same again, as the till wrote it anew.
        put("-table 7.xml", sample("receipt.xml"), 1'000'000'060);
        QCOMPARE(printFolder().status, 0);
        QVERIFY(waitUntil([&] {
            return desk->run("lpstat", {"-o", queue()}).standardOutput.isEmpty();
        }));
        QCOMPARE(printer->documents(2), QList<QByteArray>({receipt(), receipt()}));
        QCOMPARE(QDir(desk->path("folder")).entryList(QDir::Files), QStringList("8.xml.part"));
        QCOMPARE(QDir(desk->path("folder/printed")).entryList(QDir::Files).size(), 2);
    }

    /// Not by their names.
    void jobsComeInTheOrderOfTheirTimes()
    {
        QDir().mkpath(desk->path("folder"));
        put("118.xml", sample("receipt.xml"), 1'000'000'060);
        put("99.xml", sample("kitchen-order.xml"), 1'000'000'000);
        QCOMPARE(printFolder().status, 0);
        QCOMPARE(printer->documents(2),
                 QList<QByteArray>({bytesOf(expected("kitchen-order.out")), receipt()}));
    }

    /// Those are two ids, though they begin alike, and neither is too long.
    void namesAreAsLongAsTheyMayBe()
    {
        QDir().mkpath(desk->path("folder"));
        const QString name = QString(120, 'a') + ' ' + QString(62, QChar(0xE8)) + "*.xml";
        for (const QString &end : {QString("1"), QString("2")})
            put(QString(name).replace('*', end), sample("receipt.xml"), 1'000'000'000);
        QCOMPARE(printFolder().status, 0);
        QCOMPARE(printer->documents(2), QList<QByteArray>({receipt(), receipt()}));
        QVERIFY(QDir(desk->path("folder")).entryList({"*.xml"}).isEmpty());
    }

    /// A file that is no job keeps nobody waiting.
    void whatIsNoJobIsPassedOver()
    {
        QDir().mkpath(desk->path("folder"));
        writeFile(desk->path("folder/1.xml"), {});
        put("2.xml", sample("receipt.xml"), 1'000'000'000);
        QCOMPARE(printFolder().status, 1);
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));
        QVERIFY(!QFile::exists(desk->path("folder/2.xml")));
        QVERIFY(QFile::remove(desk->path("folder/1.xml")));
    }

    void whatCannotBePrintedStays()
    {
        QDir().mkpath(desk->path("folder"));
        put("9.xml", sample("receipt.xml"), 1'000'000'000);
        desk->stop();
        const Run run = printFolder();
        desk->start();
        QCOMPARE(run.status, 1);
        QVERIFY(QFile::exists(desk->path("folder/9.xml")));
        QCOMPARE(printFolder().status, 0);
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));
    }

    void theUnitsAreSound()
    {
        const QString analyze = QStandardPaths::findExecutable("systemd-analyze");
        QVERIFY2(!analyze.isEmpty(), "systemd-analyze is not there: install the package systemd");
        const QTemporaryDir units;
        const QByteArray installed = "/usr/share/doc/printer-driver-korvel/examples/folder/";
        const QStringList names = {"korvel-folder.path", "korvel-folder.service"};
        QStringList arguments = {"verify"};
        for (const QString &name : names) {
            writeFile(units.filePath(name),
                      bytesOf(example + name).replace(installed, example.toUtf8()));
            arguments.append(units.filePath(name));
        }
        const Run run = runProgram(analyze, arguments, {units.path(), {}, {}});
        QCOMPARE(run.standardError, QByteArray());
        QCOMPARE(run.status, 0);
    }
};

KORVEL_TEST(TestQueueFolder)

} // namespace tst_queuefolder

#include "tst_queuefolder.moc"
