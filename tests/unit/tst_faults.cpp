// Calls to the system and for memory that fail: what is printed is right as far as it goes.
#include "support/built.h"
#include "support/settingstext.h"
#include "support/shop.h"
#include "support/test.h"

namespace tst_faults {

// About 600,000 bytes: some 37 writes of 16 KB.
constexpr int items = 16000;
const QByteArray job = "<job><method name=\"printPartialOrder\"/>"
                       + QByteArray(R"(<receipe number="2" name="X"/>)").repeated(items) + "</job>";
const QByteArray stream =
    "=o\n" + ("=\"/(  2 X" + QByteArray(25, ' ') + " )\n").repeated(items) + "=o\n";

constexpr int failingWriteCalls = 20;
const int stride = built::sanitized ? 4 : 1; // runs are slow there

Launch withFault(const QString &kind, int call)
{
    Launch how;
    how.variables = {"LD_PRELOAD=" + QString(built::failingCall), "KORVEL_FAULT_KIND=" + kind,
                     "KORVEL_FAULT_CALL=" + QString::number(call)};
    // A sanitizer wants to be loaded first.
    if (built::sanitized)
        how.variables.append("ASAN_OPTIONS=verify_asan_link_order=0");
    return how;
}

/// The sample shop with German labels: settings, catalogue, job and output are opened.
QByteArray germanSettings()
{
    return bytesOf(KORVEL_SOURCE_DIR "/examples/korvel.conf")
        .replace("basedir = \"\"", "basedir = \"" + QByteArray(built::folder) + "/translations\"")
        .replace("file = \"\"", "file = \"/korvel_de.qm\"");
}

/// What the sample receipt prints: whole, with a catalogue or settings that cannot be read.
struct References
{
    References()
    {
        const auto printed = [this](const QByteArray &settings) {
            const Shop shop(settings);
            static_cast<void>(shop.render(job));
            return shop.output();
        };
        whole = printed(germanSettings());
        untranslated = printed(germanSettings().replace("_de.qm", "_none.qm"));
        withoutSettings = printed({});
    }

    [[nodiscard]] bool begin(const QByteArray &output) const
    {
        return whole.startsWith(output) || untranslated.startsWith(output)
               || withoutSettings.startsWith(output);
    }

    QByteArray job = bytesOf(KORVEL_SOURCE_DIR "/examples/jobs/receipt.xml");
    QByteArray whole;
    QByteArray untranslated;
    QByteArray withoutSettings;
};

/// Whether what was said is that files cannot be opened, as far as memory was there to say it.
bool isSaid(const QByteArray &standardOutput)
{
    const QList<QByteArray> lines = standardOutput.split('\n');
    return std::all_of(lines.begin(), lines.end(), [](const QByteArray &line) {
        return QByteArray("PrintManager::printAbstractOrder(...): Unable To Open File")
                   .startsWith(line)
               || QByteArray("Error in the method FileReader::open( ").startsWith(line)
               || (line.startsWith("Error in the method FileReader::open( ")
                   && QByteArray(" ): File Not Found").contains(line.mid(line.lastIndexOf(" )"))));
    });
}

class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void failingWrites_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("whole"); // nothing is lost

        QTest::newRow("a full disk") << "ENOSPC" << false;
        QTest::newRow("a full disk that has room again") << "ENOSPC-once" << false;
        QTest::newRow("a broken device") << "EIO" << false;
        QTest::newRow("a broken device that works again") << "EIO-once" << false;
        QTest::newRow("a signal") << "EINTR" << true;
        QTest::newRow("a part of what was to be written") << "short" << true;
    }

    void failingWrites()
    {
        QFETCH(QString, kind);
        QFETCH(bool, whole);
        const Shop shop(settingsFile(documentGroup("doc", "quantityFieldWidth = 3;")));
        qsizetype before = 0;
        for (int call = 1; call <= failingWriteCalls; call += stride) {
            const auto run = shop.render(job, withFault(kind, call));
            VERIFY_QUIET(run);
            const QByteArray output = shop.output();
            if (whole) {
                QCOMPARE(difference(output, stream), QString());
                continue;
            }
            QVERIFY2(stream.startsWith(output),
                     qPrintable(QString::number(call) + ": " + difference(output, stream)));
            // The fault took place, and what came before it was printed.
            QVERIFY(output.size() < stream.size());
            if (!kind.endsWith("-once"))
                QVERIFY(call == 1 ? output.isEmpty() : output.size() > before);
            before = output.size();
        }
    }

    void failingCalls_data()
    {
        QTest::addColumn<QString>("function");
        QTest::addColumn<QString>("kind");

        for (const QString function : {"open", "read", "close", "stat", "write"}) {
            for (const QString kind : {"EIO", "EIO-once", "EINTR-once", "EMFILE-once"})
                QTest::addRow("%s: %s", qPrintable(function), qPrintable(kind)) << function << kind;
        }
        if (!built::sanitized) { // whose memory is not the program's
            QTest::newRow("memory that is not there once") << "alloc"
                                                           << "ENOMEM-once";
            QTest::newRow("memory that is not there any more") << "alloc"
                                                               << "ENOMEM";
        }
    }

    /// Every call from the first line of main to the last destructor fails in turn.
    void failingCalls()
    {
        QFETCH(QString, function);
        QFETCH(QString, kind);
        const References expected;
        const Shop shop(germanSettings());
        const QString report = shop.path("report");
        int call = 1;
        for (;; ++call) {
            QFile::remove(report);
            QFile::remove(shop.path("stream.out"));
            auto how = withFault(kind, call);
            how.variables += {"KORVEL_FAULT_FUNCTION=" + function, "KORVEL_FAULT_REPORT=" + report};
            const auto run = shop.render(expected.job, how);
            VERIFY_SOUND(run);
            if (!QFile::exists(report)) {
                QCOMPARE(difference(shop.output(), expected.whole), QString());
                break;
            }
            const QString where = function + ' ' + QString::number(call) + ": ";
            QVERIFY2(isSaid(run.standardOutput), qPrintable(where + run.standardOutput));
            QVERIFY2(expected.begin(shop.output()),
                     qPrintable(where + difference(shop.output(), expected.whole)));
        }
        QVERIFY(call > 1); // some did fail
    }

    void endOfMemory_data()
    {
        QTest::addColumn<QByteArray>("before"); // settings in front of the sound ones
        QTest::addColumn<int>("step");          // in KiB

        QTest::newRow("the sample settings") << QByteArray() << 4;
        QTest::newRow("a megabyte of settings") << QByteArray("a:{b=1;};").repeated(120000) << 512;
    }

    /// The memory for data ends in each phase of a run.
    void endOfMemory()
    {
        if (built::sanitized)
            return; // whose memory is far beyond
        QFETCH(QByteArray, before);
        QFETCH(int, step);
        const References expected;
        const Shop shop(germanSettings().replace("korvel: \n{", "korvel: \n{" + before));
        bool whole = false;
        int kilobytes = 0;
        for (; !whole; kilobytes += step) {
            QFile::remove(shop.path("stream.out"));
            auto how = withFault("ENOMEM", kilobytes);
            how.variables += "KORVEL_FAULT_FUNCTION=data";
            const auto run = shop.render(expected.job, how);
            VERIFY_SOUND(run);
            QVERIFY2(isSaid(run.standardOutput), run.standardOutput.constData());
            QVERIFY2(expected.begin(shop.output()),
                     qPrintable(difference(shop.output(), expected.whole)));
            whole = shop.output() == expected.whole;
            QVERIFY(kilobytes < 256 * 1024);
        }
        QVERIFY(kilobytes > 4 * step); // it did end before
    }

    void noFault()
    {
        const Shop shop(settingsFile(documentGroup("doc", "quantityFieldWidth = 3;")));
        VERIFY_QUIET(shop.render(job, withFault("EIO", 1000000)));
        QCOMPARE(difference(shop.output(), stream), QString());
    }
};

KORVEL_TEST(TestFaults)

} // namespace tst_faults

#include "tst_faults.moc"
