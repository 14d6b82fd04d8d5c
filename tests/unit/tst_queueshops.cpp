// Several tills, several printers, several shops.
#include "support/queuedesk.h"
#include "support/test.h"

namespace tst_queueshops {

class TestQueueShops : public QueueTest
{
    Q_OBJECT

private:
    /// A receipt with a number of its own, in a file; its stream has that number in it.
    [[nodiscard]] QString numbered(const QString &number) const
    {
        const QString file = desk->path(number + ".xml");
        writeFile(file,
                  bytesOf(sample("receipt.xml"))
                      .replace("serialnumber=\"118\"", "serialnumber=\"" + number.toUtf8() + '"'));
        return file;
    }
    static QByteArray paperOf(const QString &number)
    {
        return receipt().replace("Serial Number: 118", "Serial Number: " + number.toUtf8());
    }

private slots:
    QUEUE_TEST_SLOTS

    /// Each job of each till is printed once, and those of a till in their order.
    void twoTillsPrintThirtyJobsEach()
    {
        std::vector<std::unique_ptr<QProcess>> tills;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("CUPS_SERVER", desk->path("socket"));
        for (const QString &till : {QString("A"), QString("B")}) {
            QString script;
            for (int i = 1; i <= 30; ++i)
                script += "lp -d " + queue() + ' ' + numbered(till + QString::number(i)) + " && ";
            tills.push_back(std::make_unique<QProcess>());
            tills.back()->setProcessEnvironment(environment);
            tills.back()->start("/bin/sh", {"-c", script + "true"});
        }
        for (const auto &till : tills) {
            QVERIFY(till->waitForFinished(queuePatience));
            QCOMPARE(till->exitCode(), 0);
        }
        const QList<QByteArray> papers = printer->documents(60);
        QCOMPARE(papers.size(), 60);
        for (const QString &till : {QString("A"), QString("B")}) {
            qsizetype before = -1;
            for (int i = 1; i <= 30; ++i) {
                const QByteArray paper = paperOf(till + QString::number(i));
                QCOMPARE(papers.count(paper), 1);
                QVERIFY(papers.indexOf(paper) > before);
                before = papers.indexOf(paper);
            }
        }
        QVERIFY(waitUntil([&] {
            return desk->run("lpstat", {"-o", queue()}).standardOutput.isEmpty();
        }));
        QCOMPARE(desk->journal({"verify"}).status, 0);
    }

    /// Each has its own printer, code page and settings; one that is off stops no other.
    void kitchenBarAndCashierHaveQueuesOfTheirOwn()
    {
        PaperPrinter kitchen;
        PaperPrinter bar;
        kitchen.on();
        desk->addQueue("kitchen", kitchen.uri(), {"charset=cp858"});
        desk->addQueue("bar", bar.uri());
        const QString drinks = desk->print("bar", {sample("kitchen-order.xml")});
        const QString food = desk->print("kitchen", {sample("kitchen-order.xml")});
        const QString fiscal = lp({sample("fiscal-receipt.xml")});
        VERIFY_JOB(*desk, food, IPP_JSTATE_COMPLETED, "");
        VERIFY_JOB(*desk, fiscal, IPP_JSTATE_COMPLETED, "");
        const QByteArray order = bytesOf(expected("kitchen-order.out"));
        QCOMPARE(kitchen.documents(1), QList<QByteArray>({inCp858(order)}));
        QCOMPARE(printer->documents(1),
                 QList<QByteArray>({bytesOf(expected("fiscal-receipt.out"))}));
        QCOMPARE(desk->job(drinks).state, IPP_JSTATE_PROCESSING);
        bar.on();
        VERIFY_JOB(*desk, drinks, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(bar.documents(1), QList<QByteArray>({order}));
    }

    /// Two queues of one printer do not write into each other's documents.
    void twoQueuesShareAPrinter()
    {
        desk->addQueue("second", printer->uri());
        QStringList printed;
        for (int i = 1; i <= 5; ++i)
            printed += {lp({numbered("first" + QString::number(i))}),
                        desk->print("second", {numbered("second" + QString::number(i))})};
        for (const QString &job : printed)
            VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        const QList<QByteArray> papers = printer->documents(10);
        QCOMPARE(papers.size(), 10);
        for (int i = 1; i <= 5; ++i) {
            QCOMPARE(papers.count(paperOf("first" + QString::number(i))), 1);
            QCOMPARE(papers.count(paperOf("second" + QString::number(i))), 1);
        }
    }

    /// The till's shop sends the job as it is; the other shop renders it, by its own settings.
    void aQueueOfAnotherShopIsPrintedTo()
    {
        makeQueue({"charset=cp858"});
        CupsDesk till;
        till.start();
        till.addRawQueue("far", desk->uri(queue()));
        const QString job = till.print("far", {sample("receipt.xml")});
        VERIFY_JOB(till, job, IPP_JSTATE_COMPLETED, "");
        const QList<QByteArray> papers = printer->documents(1);
        QCOMPARE(papers.size(), 1);
        QCOMPARE(papers.constFirst(), inCp858(receipt()));
        // The document has the id of the till's job, so that a job sent again is the same one.
        QVERIFY(desk->journal({"show", till.idOf(job)}).status == 0);
    }

    void aWrongJobIsRefusedInTheOtherShop()
    {
        CupsDesk till;
        till.start();
        till.addRawQueue("far", desk->uri(queue()));
        writeFile(desk->path("wrong.xml"), "<printjob><method name=\"printFullOrder\"/><total");
        const QString job = till.print("far", {desk->path("wrong.xml")});
        QVERIFY(shows("refused, nothing was printed: wrong.xml:"));
        QVERIFY(waitUntil([&] { return till.job(job).state > IPP_JSTATE_STOPPED; }));
        QCOMPARE(printer->documents(), QList<QByteArray>());
    }

    /// Jobs wait at the till's shop while the line is down, and come once and in their order.
    void theLineIsDown()
    {
        CupsDesk till;
        till.start();
        till.addRawQueue("far", desk->uri(queue()));
        desk->stop();
        QStringList printed;
        for (int i = 1; i <= 3; ++i)
            printed.append(till.print("far", {numbered("line" + QString::number(i))}));
        QVERIFY(
            waitUntil([&] { return till.job(printed.constFirst()).state != IPP_JSTATE_PENDING; }));
        QCOMPARE(printer->documents(), QList<QByteArray>());
        desk->start();
        for (const QString &job : printed)
            VERIFY_JOB(till, job, IPP_JSTATE_COMPLETED, "");
        QList<QByteArray> papers;
        for (int i = 1; i <= 3; ++i)
            papers.append(paperOf("line" + QString::number(i)));
        QCOMPARE(printer->documents(3), papers);
    }

    /// The till's shop cannot know whether its job arrived, and sends it again.
    void theTillsServerIsKilledMeanwhile()
    {
        printer->on({"--fault", "slow=400", "--first", "1"});
        CupsDesk till;
        till.start();
        till.addRawQueue("far", desk->uri(queue()));
        const QString job = till.print("far", {sample("fiscal-receipt.xml")});
        printer->waitFor("fault slow");
        till.stop(SIGKILL);
        till.start();
        VERIFY_JOB(till, job, IPP_JSTATE_COMPLETED, "");
        QVERIFY(waitUntil([&] {
            return desk->run("lpstat", {"-o", queue()}).standardOutput.isEmpty();
        }));
        const Run jobs = desk->run("lpstat", {"-W", "completed", "-o", queue()});
        QCOMPARE(jobs.standardOutput.count('\n'), 2);
        QCOMPARE(printer->documents(1),
                 QList<QByteArray>({bytesOf(expected("fiscal-receipt.out"))}));
    }
};

KORVEL_TEST(TestQueueShops)

} // namespace tst_queueshops

#include "tst_queueshops.moc"
