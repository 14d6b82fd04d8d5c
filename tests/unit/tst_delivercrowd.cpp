// Many deliveries at once: to one printer, and of one document.
#include "support/built.h"
#include "support/deliverdesk.h"
#include "support/printers.h"
#include "support/test.h"

#include <QProcess>

namespace tst_delivercrowd {

/// Starts a delivery for each id at once; their statuses when all have ended.
QList<int> deliverAtOnce(const DeliverDesk &desk, const QString &device, const QStringList &ids,
                         const QStringList &options)
{
    std::vector<std::unique_ptr<QProcess>> all;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", desk.path("home"));
    for (const QString &id : ids) {
        all.push_back(std::make_unique<QProcess>());
        all.back()->setProcessEnvironment(environment);
        all.back()->start(built::deliver, QStringList{"--to", device, "--journal",
                                                      desk.path("journal.db"), "--id", id}
                                              + options + QStringList{desk.path("receipt.xml")});
    }
    QList<int> statuses;
    for (const auto &process : all) {
        const bool ended = process->waitForFinished(120'000);
        statuses.append(ended && process->exitStatus() == QProcess::NormalExit ? process->exitCode()
                                                                               : -1);
    }
    return statuses;
}

class TestDeliverCrowd : public QObject
{
    Q_OBJECT

private slots:
    void twentyToOnePrinter()
    {
        NetworkPrinter printer;
        const DeliverDesk desk;
        QStringList ids;
        for (int i = 1; i <= 20; ++i)
            ids.append("till-" + QString::number(i));
        QCOMPARE(deliverAtOnce(desk, printer.device(), ids, {"--wait", "100"}), QList<int>(20, 0));
        QCOMPARE(printer.pages(), QList<QByteArray>(20, receipt()));
        QCOMPARE(desk.journal({"verify"}).status, 0);
    }

    /// Who does not wait is told that the printer is busy, and calls again.
    void whoDoesNotWaitCallsAgain()
    {
        NetworkPrinter printer;
        const DeliverDesk desk;
        const QStringList ids = {"a", "b", "c", "d", "e", "f"};
        for (const int status : deliverAtOnce(desk, printer.device(), ids, {}))
            QVERIFY2(status == 0 || status == 3, qPrintable(QString::number(status)));
        for (const QString &id : ids)
            QCOMPARE(desk.runTo(printer.device(), {"--id", id, "receipt.xml"}).status, 0);
        QCOMPARE(printer.pages(), QList<QByteArray>(6, receipt()));
    }

    void oneDocumentTwentyTimes()
    {
        NetworkPrinter printer;
        const DeliverDesk desk;
        QCOMPARE(deliverAtOnce(desk, printer.device(), QStringList(20, "a"), {"--wait", "100"}),
                 QList<int>(20, 0));
        QCOMPARE(printer.paper(), receipt());
    }

    void oneDocumentTwiceWithoutWaiting()
    {
        NetworkPrinter printer;
        const DeliverDesk desk;
        for (int i = 0; i < 10; ++i) {
            const QString id = QString::number(i);
            for (const int status : deliverAtOnce(desk, printer.device(), {id, id}, {}))
                QVERIFY2(status == 0 || status == 3, qPrintable(QString::number(status)));
            QCOMPARE(desk.runTo(printer.device(), {"--id", id, "receipt.xml"}).status, 0);
        }
        QCOMPARE(printer.paper(), receipt().repeated(10));
        QCOMPARE(desk.journal({"verify"}).status, 0);
    }
};

KORVEL_TEST(TestDeliverCrowd)

} // namespace tst_delivercrowd

#include "tst_delivercrowd.moc"
