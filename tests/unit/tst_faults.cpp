// Writes that fail in the middle of a job: what is printed is right as far as it goes.
#include "support/settingstext.h"
#include "support/shop.h"

#include <QTest>

namespace {

// About 600,000 bytes: some 37 writes of 16 KB.
constexpr int items = 16000;
const QByteArray job = "<job><method name=\"printPartialOrder\"/>"
                       + QByteArray(R"(<receipe number="2" name="X"/>)").repeated(items) + "</job>";
const QByteArray stream =
    "=o\n" + ("=\"/(  2 X" + QByteArray(25, ' ') + " )\n").repeated(items) + "=o\n";

constexpr int failingCalls = 20;
constexpr int step = sanitized ? 4 : 1; // runs are slow there

Launch withFault(const QString &kind, int call)
{
    Launch how;
    how.variables = {"LD_PRELOAD=" KORVEL_FAILING_WRITE, "KORVEL_FAULT_KIND=" + kind,
                     "KORVEL_FAULT_CALL=" + QString::number(call)};
    // A sanitizer wants to be loaded first.
    if (sanitized)
        how.variables.append("ASAN_OPTIONS=verify_asan_link_order=0");
    return how;
}

} // namespace

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
        for (int call = 1; call <= failingCalls; call += step) {
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

    void noFault()
    {
        const Shop shop(settingsFile(documentGroup("doc", "quantityFieldWidth = 3;")));
        VERIFY_QUIET(shop.render(job, withFault("EIO", 1000000)));
        QCOMPARE(difference(shop.output(), stream), QString());
    }
};

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
