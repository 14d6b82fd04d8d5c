// Outputs and standard streams of any kind: what they take is printed, and nothing else is touched.
#include "support/capturedoutput.h"
#include "support/kitchenjob.h"
#include "support/limiting.h"
#include "support/test.h"

#include <thread>

#include <poll.h>
#include <sys/stat.h>

namespace tst_environmentstreams {

/// A job that prints about 400,000 bytes, far more than a pipe holds.
const QByteArray longJob = "<job><method name=\"printPartialOrder\"/>"
                           + QByteArray(R"(<receipe number="2" name="X"/>)").repeated(10000)
                           + "</job>";
const QByteArray longStream =
    "=o\n" + ("=\"/(  2 X" + QByteArray(25, ' ') + " )\n").repeated(10000) + "=o\n";

class TestEnvironmentStreams : public QObject
{
    Q_OBJECT

private slots:
    void outputsThatTakeNothing_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<bool>("opens");

        QTest::newRow("a folder") << "." << false;
        QTest::newRow("in a file") << "job.xml/stream.out" << false;
        QTest::newRow("a dangling link to a missing folder") << "dangling" << false;
        QTest::newRow("a very long name") << QString(300, 'x') << false;
        QTest::newRow("full") << "/dev/full" << true;
        QTest::newRow("null") << "/dev/null" << true;
    }

    void outputsThatTakeNothing()
    {
        QFETCH(QString, output);
        QFETCH(bool, opens);
        const Shop shop(settings);
        QVERIFY(QFile::link("missing/stream.out", shop.path("dangling")));
        Launch how;
        how.arguments = {"job.xml", output};
        const auto run = shop.render(longJob, how);
        VERIFY_ENDED(run);
        QCOMPARE(linesOf(run.standardOutput), linesOf(opens ? QByteArray() : notOpened));
        QCOMPARE(bytesOf(shop.path("job.xml")), longJob);
    }

    void outputToStandardOutput()
    {
        const Shop shop(settings);
        Launch how;
        how.arguments = {"job.xml", "/dev/stdout"};
        const auto run = shop.render(longJob, how);
        VERIFY_ENDED(run);
        QCOMPARE(difference(run.standardOutput, longStream), QString());
    }

    void outputToStandardError()
    {
        const Shop shop(settings);
        Launch how;
        how.arguments = {"job.xml", "/dev/stderr"};
        const auto run = shop.render(longJob, how);
        QVERIFY(run.exited);
        QCOMPARE(run.status, 0);
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(difference(run.standardError, longStream), QString());
    }

    void aReaderThatLeavesEarly()
    {
        const Shop shop(settings);
        QCOMPARE(mkfifo(qPrintable(shop.path("fifo")), 0600), 0);
        const int reader = open(qPrintable(shop.path("fifo")), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(reader >= 0);
        QByteArray got(1000, '\0');
        std::thread leaving([&] {
            pollfd ready{reader, POLLIN, 0};
            poll(&ready, 1, 30000);
            got.resize(std::max<qsizetype>(0, read(reader, got.data(), size_t(got.size()))));
            close(reader);
        });
        Launch how;
        how.arguments = {"job.xml", "fifo"};
        const auto run = shop.render(longJob, how);
        leaving.join();
        VERIFY_ENDED(run);
        QCOMPARE(run.standardOutput, QByteArray());
        QVERIFY(!got.isEmpty());
        QVERIFY(longStream.startsWith(got));
    }

    void aFileThatMayNotGrow()
    {
        const Shop shop(settings);
        Launch how;
        how.prepare = [] { limit(RLIMIT_FSIZE, 20000); };
        const auto run = shop.render(longJob, how);
        VERIFY_ENDED(run);
        QCOMPARE(difference(shop.output(), longStream.first(20000)), QString());
    }

    void theJobAsOutput()
    {
        const Shop shop(settings);
        Launch how;
        how.arguments = {"job.xml", "job.xml"};
        const auto run = shop.render(longJob, how);
        VERIFY_ENDED(run);
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(bytesOf(shop.path("job.xml")), QByteArray());
    }

    void theSettingsAsJobAndAsOutput()
    {
        const Shop shop(settings);
        Launch how;
        how.arguments = {shop.home.settingsPath(), shop.home.settingsPath()};
        const auto run = shop.render(job, how);
        VERIFY_ENDED(run);
        QCOMPARE(bytesOf(shop.home.settingsPath()), QByteArray());
    }

    void closedStreams_data()
    {
        QTest::addColumn<int>("closed"); // a bit for each
        QTest::addColumn<bool>("settingsAreThere");
        QTest::addColumn<QString>("output");

        for (int closed = 1; closed < 8; ++closed)
            for (const bool there : {true, false})
                for (const char *output : {"stream.out", "."})
                    QTest::addRow("%s%s%s, settings %s, output %s", closed & 1 ? "in " : "",
                                  closed & 2 ? "out " : "", closed & 4 ? "error" : "",
                                  there ? "read" : "missing", output)
                        << closed << there << QString(output);
    }

    /// The output file must not take the place of a stream that is missing.
    void closedStreams()
    {
        QFETCH(int, closed);
        QFETCH(bool, settingsAreThere);
        QFETCH(QString, output);
        const Shop shop(settings);
        if (!settingsAreThere)
            QVERIFY(QFile::remove(shop.home.settingsPath()));
        // An unknown method at the end has something to say as well.
        const QByteArray brokenJob =
            QByteArray(job).replace("</job>", "<method name=\"x\"/></job>");
        Launch how;
        how.arguments = {"job.xml", output};
        how.prepare = [closed] {
            for (int stream = 0; stream < 3; ++stream)
                if (closed >> stream & 1)
                    close(stream);
        };
        const auto run = shop.render(brokenJob, how);
        VERIFY_ENDED(run);
        QByteArray said;
        if (!(closed & 2))
            said = (settingsAreThere ? QByteArray() : notFound(shop.home.settingsPath()))
                   + (output == "." ? notOpened : QByteArray()) + "File Format Not Supported\n";
        QCOMPARE(linesOf(run.standardOutput), linesOf(said));
        if (output != ".")
            QCOMPARE(linesOf(shop.output()),
                     linesOf((settingsAreThere ? withSettings : withoutSettings).chopped(3)));
        QCOMPARE(bytesOf(shop.path("job.xml")), brokenJob);
    }

    void streamsThatTakeNothing_data()
    {
        QTest::addColumn<QString>("to");

        QTest::newRow("a pipe without a reader") << "";
        QTest::newRow("a full device") << "/dev/full";
        QTest::newRow("a file open for reading alone") << "job.xml";
    }

    void streamsThatTakeNothing()
    {
        QFETCH(QString, to);
        const Shop shop(settings);
        QVERIFY(QFile::remove(shop.home.settingsPath()));
        const QByteArray path = to.toUtf8();
        Launch how;
        how.prepare = [&] {
            int ends[2] = {-1, -1};
            if (path.isEmpty()) {
                if (pipe(ends) != 0)
                    _exit(Launch::notStarted);
                close(ends[0]);
            } else {
                ends[1] = open(path.constData(), path == "job.xml" ? O_RDONLY : O_WRONLY);
            }
            dup2(ends[1], STDOUT_FILENO);
        };
        const auto run = shop.render(job, how);
        VERIFY_ENDED(run);
        QCOMPARE(linesOf(shop.output()), linesOf(withoutSettings));
        QCOMPARE(bytesOf(shop.path("job.xml")), job);
    }
};

KORVEL_TEST(TestEnvironmentStreams)

} // namespace tst_environmentstreams

#include "tst_environmentstreams.moc"
