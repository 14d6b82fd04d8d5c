// The sums of the simulator's day.
#include "companions/simulator/day.h"
#include "support/test.h"

#include "support/streams.h"

namespace tst_simulatorday {

using namespace korvel::simulator;

Day dayOf(const QByteArray &stream)
{
    Day day;
    Splitter splitter([&](const Document &document) { day.add(document); });
    splitter.add(stream);
    splitter.end();
    return day;
}

class TestSimulatorDay : public QObject
{
    Q_OBJECT

private slots:
    void sums_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QList<qint64>>("counts"); // documents, others, fiscal, rows not counted
        QTest::addColumn<QString>("registered");
        const auto row = [](const char *name, const QByteArray &stream, const QList<qint64> &counts,
                            const QString &registered) {
            QTest::newRow(name) << stream << counts << registered;
        };
        const QByteArray coffees = "=R1/$120/*2/(COFFEE)\n";

        row("nothing", "", {0, 0, 0, 0}, "0.00");
        row("quantities", fiscal(coffees), {1, 0, 1, 0}, "2.40");
        row("a deduction", fiscal(coffees + "=S\r\n=V/$50\r\n"), {1, 0, 1, 0}, "1.90");
        row("several receipts", fiscal(coffees) + fiscal(coffees), {2, 0, 2, 0}, "4.80");
        row("a deduction larger than the sales", fiscal("=S\r\n=V/$50\r\n"), {1, 0, 1, 0}, "-0.50");
        row("parts of a hundredth", fiscal("=R1/$100.5/*1/(x)\n"), {1, 0, 1, 0}, "1.005");
        row("no number", fiscal(coffees + "=R1/$1e+16/*1/(x)\n=R1/$1/*a/(x)\n"), {1, 0, 1, 2},
            "2.40");
        row("a deduction that is no number", fiscal(coffees + "=S\r\n=V/$x\r\n"), {1, 0, 1, 1},
            "2.40");
        row("not closed", "=K\n=C1\n" + coffees, {0, 1, 0, 0}, "0.00");
        row("interrupted", "=K\n=C1\n" + coffees + documentOf("x"), {1, 1, 0, 0}, "0.00");
        row("in another section", "=o\n" + coffees + "=o\n", {1, 0, 0, 0}, "0.00");
        row("outside any", coffees, {0, 1, 0, 0}, "0.00");
    }

    void sums()
    {
        QFETCH(QByteArray, stream);
        QFETCH(QList<qint64>, counts);
        QFETCH(QString, registered);
        const Day day = dayOf(stream);
        QCOMPARE(QList<qint64>({day.documents, day.others, day.fiscal, day.uncounted}), counts);
        QCOMPARE(day.registered.toString(), registered);
    }
};

KORVEL_TEST(TestSimulatorDay)

} // namespace tst_simulatorday

#include "tst_simulatorday.moc"
