// A queue whose printer is off, breaks off, or whose journal cannot be written.
#include "support/queuedesk.h"
#include "support/test.h"

namespace tst_queueprinter {

class TestQueuePrinter : public QueueTest
{
    Q_OBJECT

private:
    [[nodiscard]] int resolve(const QString &job, const QString &answer) const
    {
        return desk->journal({"resolve", desk->idOf(job), answer}).status;
    }
    [[nodiscard]] int resume(const QString &job) const
    {
        return desk->run("lp", {"-i", job, "-H", "resume"}).status;
    }
    [[nodiscard]] QStringList print(const QStringList &samples) const
    {
        QStringList printed;
        for (const QString &name : samples)
            printed.append(lp({sample(name + ".xml")}));
        return printed;
    }

private slots:
    QUEUE_TEST_SLOTS

    /// The first job stays first: none overtakes it.
    void whatIsOffIsWaitedFor()
    {
        printer->off();
        const QStringList names = {"receipt", "kitchen-order", "fiscal-receipt", "invoice"};
        const QStringList printed = print(names);
        QVERIFY(shows("waiting: "));
        QVERIFY(shows("Connection refused"));
        QCOMPARE(desk->job(printed.constFirst()).state, IPP_JSTATE_PROCESSING);
        QCOMPARE(desk->job(printed.at(1)).state, IPP_JSTATE_PENDING);
        printer->on();
        QList<QByteArray> papers;
        for (const QString &name : names)
            papers.append(bytesOf(expected(name + ".out")));
        for (const QString &job : printed)
            VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(4), papers);
        QVERIFY(!desk->shown(queue()).contains("waiting"));
    }

    void whatIsCanceledMeanwhileIsNotPrinted()
    {
        printer->off();
        const QStringList printed = print({"receipt", "kitchen-order"});
        QVERIFY(shows("waiting: "));
        QCOMPARE(desk->run("cancel", {printed.constFirst()}).status, 0);
        VERIFY_JOB(*desk, printed.constFirst(), IPP_JSTATE_CANCELED, "");
        printer->on();
        VERIFY_JOB(*desk, printed.at(1), IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1),
                 QList<QByteArray>({bytesOf(expected("kitchen-order.out"))}));
        QCOMPARE(desk->stateOf(printed.constFirst()), QByteArray("not-sent"));
    }

    /// The backend is told to end, and the job is again the first when the queue is started.
    void whatIsStoppedMeanwhileComesFirst()
    {
        printer->off();
        const QStringList printed = print({"receipt", "kitchen-order"});
        QVERIFY(shows("waiting: "));
        QCOMPARE(desk->run("cupsdisable", {queue()}).status, 0);
        VERIFY_JOB(*desk, printed.constFirst(), IPP_JSTATE_PENDING, "");
        QVERIFY(waitUntil([&] { return desk->stateOf(printed.constFirst()) == "not-sent"; }));
        printer->on();
        QCOMPARE(desk->run("cupsenable", {queue()}).status, 0);
        for (const QString &job : printed)
            VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(2),
                 QList<QByteArray>({receipt(), bytesOf(expected("kitchen-order.out"))}));
    }

    void whatIsInDoubtIsHeld_data()
    {
        QTest::addColumn<QString>("policy");
        for (const char *policy : {"retry-job", "retry-current-job", "abort-job", "stop-printer"})
            QTest::newRow(policy) << policy;
    }

    /// By whatever error policy; the next job is printed, and this one waits for a person.
    void whatIsInDoubtIsHeld()
    {
        QFETCH(QString, policy);
        makeQueue({"printer-error-policy=" + policy});
        printer->on({"--fault", "reset=40", "--first", "1"});
        const QString job = lp({sample("fiscal-receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_HELD, "in doubt: ");
        const QString how = "resolve " + desk->idOf(job) + " printed";
        QVERIFY2(desk->job(job).message.contains(how), qPrintable(desk->job(job).message));
        QVERIFY2(desk->job(job).message.contains("lp -i " + job + " -H resume"),
                 qPrintable(desk->job(job).message));
        QCOMPARE(desk->stateOf(job), QByteArray("in-doubt"));
        VERIFY_JOB(*desk, lp({sample("receipt.xml")}), IPP_JSTATE_COMPLETED, "");
        const QList<QByteArray> papers = printer->documents(1);
        QCOMPARE(papers.constLast(), receipt());
        QVERIFY(papers.size() <= 2); // a piece of the first one may have come out
        QCOMPARE(desk->job(job).state, IPP_JSTATE_HELD);

        QCOMPARE(resume(job), 0); // nobody has said anything yet
        VERIFY_JOB(*desk, job, IPP_JSTATE_HELD, "in doubt: ");
        QCOMPARE(printer->documents(), papers);
    }

    void whatAPersonSawIsNotPrintedAgain()
    {
        printer->on({"--fault", "reset=40", "--first", "1"});
        const QString job = lp({sample("fiscal-receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_HELD, "in doubt: ");
        const QList<QByteArray> papers = printer->documents();
        QCOMPARE(resolve(job, "printed"), 0);
        QCOMPARE(resume(job), 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(desk->stateOf(job), QByteArray("printed"));
        QCOMPARE(printer->documents(), papers);
    }

    void whatAPersonMissesIsPrintedOnce()
    {
        printer->on({"--fault", "reset=40", "--first", "1"});
        const QString job = lp({sample("fiscal-receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_HELD, "in doubt: ");
        const qsizetype pieces = printer->documents().size();
        QCOMPARE(resolve(job, "not-printed"), 0);
        QCOMPARE(resume(job), 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        const QList<QByteArray> papers = printer->documents(pieces + 1);
        QCOMPARE(papers.size(), pieces + 1);
        QCOMPARE(papers.constLast(), bytesOf(expected("fiscal-receipt.out")));
        QCOMPARE(desk->journal({"verify"}).status, 0);
    }

    /// A copy that was sent is not sent again with the one that was not.
    void copiesAreInDoubtByThemselves()
    {
        printer->off();
        const QString job = lp({"-n", "2", sample("receipt.xml")});
        QVERIFY(shows("waiting: "));
        printer->on({"--fault", "reset=40", "--first", "1"});
        VERIFY_JOB(*desk, job, IPP_JSTATE_HELD, "in doubt: ");
        const qsizetype pieces = printer->documents().size();
        QCOMPARE(resolve(job, "printed"), 0);
        QCOMPARE(resume(job), 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(pieces + 1).sliced(pieces), QList<QByteArray>({receipt()}));
        QCOMPARE(desk->stateOf(job, "/2"), QByteArray("sent"));
    }

    void withoutAJournalTheQueueStops()
    {
        const QString journal = desk->path("journal");
        ::chmod(qPrintable(journal), 0555);
        ::chmod(qPrintable(desk->journalPath()), 0440);
        const QString job = lp({sample("receipt.xml")});
        const bool isStopped = waitUntil([&] { return desk->shown(queue()).contains("disabled"); });
        const QString said = desk->shown(queue());
        ::chmod(qPrintable(journal), 0755);
        ::chmod(qPrintable(desk->journalPath()), 0640);
        QVERIFY2(isStopped, qPrintable(said));
        QVERIFY2(said.contains("nothing was printed: " + desk->journalPath()), qPrintable(said));
        QCOMPARE(printer->documents(), QList<QByteArray>());
        QCOMPARE(desk->run("cupsenable", {queue()}).status, 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));
    }

    void aWrongDeviceStopsTheQueue()
    {
        desk->addQueue(queue(), "korvel:lp0");
        const QString job = lp({sample("receipt.xml")});
        QVERIFY(shows("disabled"));
        QVERIFY(shows("korvel:lp0 is no device: write korvel://HOST"));
        makeQueue();
        QCOMPARE(desk->run("cupsenable", {queue()}).status, 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
    }

    /// What the one prints as an accent is another letter to the other.
    void aPrinterOfAnotherCodePageIsNotSentIt()
    {
        PaperPrinter other;
        other.on();
        desk->addQueue("windows", other.uri(), {"charset=cp1252"});
        makeQueue({"charset=cp858"});
        printer->off();
        const QString job = lp({"-n", "2", sample("kitchen-order.xml")});
        const QString moved = "windows-" + job.section('-', -1);
        QVERIFY(shows("waiting: "));
        QCOMPARE(desk->run("lpmove", {job, "windows"}).status, 0);
        VERIFY_JOB(*desk, moved, IPP_JSTATE_HELD, "in the code page cp858, which is not this");
        QCOMPARE(other.documents(), QList<QByteArray>());

        printer->on();
        QCOMPARE(desk->run("lpmove", {moved, queue()}).status, 0);
        QCOMPARE(resume(job), 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        const QByteArray paper = inCp858(bytesOf(expected("kitchen-order.out")));
        QCOMPARE(printer->documents(2), QList<QByteArray>({paper, paper}));
    }

    /// One of the same code page stands in for it.
    void aPrinterThatIsAlikeIsSentIt()
    {
        PaperPrinter other;
        other.on();
        desk->addQueue("alike", other.uri(), {"charset=cp858"});
        makeQueue({"charset=cp858"});
        printer->off();
        const QString job = lp({sample("fiscal-receipt.xml")});
        QVERIFY(shows("waiting: "));
        QCOMPARE(desk->run("lpmove", {job, "alike"}).status, 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(other.documents(1).size(), 1);
    }

    /// Printers of a class are chosen by CUPS, and others are tried; not for what is fiscal.
    void aFiscalDocumentStaysAtItsPrinter()
    {
        PaperPrinter other;
        other.on();
        printer->off();
        desk->addQueue("other", other.uri());
        QCOMPARE(desk->run("cupsdisable", {"other"}).status, 0);
        for (const QString &name : {queue(), QString("other")})
            QCOMPARE(desk->run("lpadmin", {"-p", name, "-c", "checkout"}).status, 0);
        QCOMPARE(desk->run("cupsenable", {"checkout"}).status, 0);
        QCOMPARE(desk->run("cupsaccept", {"checkout"}).status, 0);
        const QString fiscal = desk->print("checkout", {sample("fiscal-receipt.xml")});
        QVERIFY(shows("waiting: "));
        QCOMPARE(desk->run("cupsdisable", {queue()}).status, 0);
        VERIFY_JOB(*desk, fiscal, IPP_JSTATE_PENDING, "");
        QCOMPARE(desk->run("cupsenable", {"other"}).status, 0);
        VERIFY_JOB(*desk, fiscal, IPP_JSTATE_HELD, "a fiscal document goes to no other printer");

        const QString plain = desk->print("checkout", {sample("receipt.xml")});
        VERIFY_JOB(*desk, plain, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(other.documents(1), QList<QByteArray>({receipt()}));

        printer->on();
        QCOMPARE(desk->run("cupsenable", {queue()}).status, 0);
        QCOMPARE(desk->run("lpmove", {fiscal, queue()}).status, 0);
        QCOMPARE(resume(queue() + '-' + fiscal.section('-', -1)), 0);
        VERIFY_JOB(*desk, fiscal, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1),
                 QList<QByteArray>({bytesOf(expected("fiscal-receipt.out"))}));
        QCOMPARE(other.documents(), QList<QByteArray>({receipt()}));
    }
};

KORVEL_TEST(TestQueuePrinter)

} // namespace tst_queueprinter

#include "tst_queueprinter.moc"
