// The simulator's page: its course, options, faults and keys are those of the program.
#include "support/built.h"
#include "support/names.h"
#include "support/simulatordesk.h"
#include "support/test.h"

namespace tst_simulatorpage {

const QByteArray page = bytesOf(KORVEL_SOURCE_DIR "/docs/simulator.md");
const QByteArray receipt = bytesOf(KORVEL_SOURCE_DIR "/examples/expected/fiscal-receipt.out");

/// The rows of all tables below a heading whose first cell is a name.
QList<QStringList> rowsBelow(const QString &heading)
{
    const QString text = QString::fromUtf8(page);
    const QString section = text.section("\n## " + heading + "\n", 1, 1).section("\n## ", 0, 0);
    QList<QStringList> rows;
    for (const QString &line : section.split('\n'))
        if (line.startsWith("| `"))
            rows.append(line.split(" | "));
    return rows;
}

Names keysOf(const QJsonObject &object)
{
    const QStringList keys = object.keys();
    return Names(keys.begin(), keys.end());
}

class TestSimulatorPage : public QObject
{
    Q_OBJECT

private slots:
    void pageShowsWhatTheProgramWrites()
    {
        Simulator simulator({anyPort});
        const QByteArray place = simulator.place().toUtf8();
        QCOMPARE(deliver(simulator.port(), receipt), Met::End);
        Run run = simulator.end();
        VERIFY_SIMULATED(run);
        const QByteArray said = run.standardOutput.replace(place, "127.0.0.1:9100");
        QVERIFY2(page.contains("```text\n" + said + "```\n"), said.constData());
    }

    void pageNamesTheOptions()
    {
        const Run run = runProgram(built::printerSim, {"--help"}, {});
        const char *const option = "(?:^|[ `])(--[a-z][a-z-]*)";
        Names names;
        for (const QStringList &row : rowsBelow("Options"))
            names += matches(row.first(), option);
        QCOMPARE(sorted(names), sorted(matches(QString::fromUtf8(run.standardOutput), option)
                                       - Names{"--help-all"}));
        QCOMPARE(names.size(), 10);
    }

    void pageNamesTheFaults()
    {
        const Run run = runProgram(built::printerSim, {"--fault=?"}, {});
        QCOMPARE(run.status, 2);
        QStringList faults;
        for (const QStringList &row : rowsBelow("Faults"))
            faults.append(sorted(matches(row.first(), "`(.*)`")));
        QVERIFY(faults.size() > 1);
        const QString last = faults.takeLast();
        QCOMPARE((faults.join(", ") + " or " + last).toUtf8(),
                 run.standardError.mid(run.standardError.indexOf("one of ") + 7).trimmed());
    }

    /// Each event that the page explains can be met, with its keys, and no other.
    void pageNamesTheKeys()
    {
        QMap<QString, Names> explained;
        Names described;
        for (const QStringList &row : rowsBelow("JSON")) {
            const Names names = matches(row.first(), "`(\\w+)`");
            if (row.size() == 3 && row[1].startsWith('`'))
                explained[sorted(names).first()] = matches(row[1], "`(\\w+)`");
            else
                described += names;
        }

        QMap<QString, Names> met;
        for (const QStringList &options :
             {QStringList{anyPort}, {"--pty"}, {anyPort, "--fault=reset=9"}}) {
            Simulator simulator(QStringList{"--json"} + options);
            const QJsonObject first = eventsOf(simulator.waitFor("notice")).first();
            if (first.contains("port")) {
                deliver(quint16(first["port"].toInt()), "=K\n=C1\n=T1\n=o\n=o/*1\n");
                simulator.waitFor("closed");
            }
            const Run run = simulator.end();
            VERIFY_SIMULATED(run);
            for (const QJsonObject &event : eventsOf(run.standardOutput))
                met[event["event"].toString()] += keysOf(event) - Names{"event"};
        }
        QCOMPARE(met.keys(), explained.keys());
        for (const QString &event : met.keys())
            QCOMPARE(sorted(met[event]), sorted(explained[event]));

        // What a name does not say stands in a table of its own.
        const Names plain = {"host", "port",           "pty",           "notice", "from",
                             "text", "fiscalReceipts", "rowsNotCounted"};
        Names all;
        for (const Names &keys : explained)
            all += keys;
        QCOMPARE(sorted(described), sorted(all - plain));
    }
};

KORVEL_TEST(TestSimulatorPage)

} // namespace tst_simulatorpage

#include "tst_simulatorpage.moc"
