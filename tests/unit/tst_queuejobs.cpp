// Jobs printed by lp: what comes to the printer, and what is said of what does not.
#include "support/built.h"
#include "support/queuedesk.h"
#include "support/test.h"

namespace tst_queuejobs {

class TestQueueJobs : public QueueTest
{
    Q_OBJECT

private slots:
    QUEUE_TEST_SLOTS

    void aReceiptIsPrinted()
    {
        const QString job = lp({sample("receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));
        QCOMPARE(desk->stateOf(job), QByteArray("sent"));
    }

    /// The journal has the job and the settings, too, so that it can be rendered again.
    void theJournalKnowsTheJob()
    {
        const QString job = lp({"-t", "Table 7", sample("receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        const QString id = desk->idOf(job);
        QCOMPARE(desk->journal({"show", id, "--job"}).standardOutput,
                 bytesOf(sample("receipt.xml")));
        QCOMPARE(desk->journal({"show", id, "--settings"}).standardOutput,
                 bytesOf(desk->path("settings/korvel.conf")));
        const QByteArray shown = desk->journal({"show", id}).standardOutput;
        const QByteArray origin = job.toUtf8() + ' ' + ::cupsUser() + ": Table 7";
        QVERIFY2(shown.contains(origin), shown.constData());
        QCOMPARE(desk->journal({"replay", id}).status, 0);
    }

    void theQueueHasACodePage()
    {
        makeQueue({"charset=cp858"});
        VERIFY_JOB(*desk, lp({sample("receipt.xml")}), IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1), QList<QByteArray>({inCp858(receipt())}));
    }

    void aJobHasAnother()
    {
        makeQueue({"charset=cp858"});
        const QString job = lp({"-o", "charset=iso-8859-15", sample("receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(
            printer->documents(1),
            QList<QByteArray>({receipt().replace("\xC3\xB9", "\xF9").replace("\xC3\xA8", "\xE8")}));
    }

    void anUnknownCodePageIsRefused()
    {
        const QString job = lp({"-o", "charset=cp999999", sample("receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_CANCELED, "cp999999");
        QCOMPARE(desk->stateOf(job), QByteArray("refused"));
        QCOMPARE(printer->documents(), QList<QByteArray>());
    }

    /// Without an id nothing keeps a job from being sent again.
    void aJobWithoutAnIdIsRefused()
    {
        const QString job = lp({"-o", "job-uuid=", sample("receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_CANCELED, "has no job-uuid");
        QCOMPARE(printer->documents(), QList<QByteArray>());
    }

    /// In Italian, by settings of this queue alone.
    void theQueueHasSettingsAndALanguage()
    {
        QVERIFY(QFile::copy(built::path("/translations/korvel_it.qm"), desk->path("it.qm")));
        QByteArray settings = bytesOf(desk->path("settings/korvel.conf"));
        settings.replace("basedir = \"\"", "basedir = \"" + desk->path("").toUtf8() + '"');
        settings.replace("file = \"\"", "file = \"/it.qm\"");
        QDir().mkpath(desk->path("settings/queues/" + queue()));
        writeFile(desk->path("settings/queues/" + queue() + "/korvel.conf"), settings);
        VERIFY_JOB(*desk, lp({sample("receipt.xml")}), IPP_JSTATE_COMPLETED, "");
        const QByteArray paper = printer->documents(1).constFirst();
        QVERIFY2(paper.contains("=\"/(    T0TALE..............   80.90 )\n"), paper.constData());
    }

    void withoutSettingsNothingIsPrinted()
    {
        const QString usual = desk->path("settings/korvel.conf");
        QVERIFY(QFile::rename(usual, usual + ".away"));
        const QString job = lp({sample("receipt.xml")});
        const JobState state = desk->waitFor(job, IPP_JSTATE_CANCELED);
        QVERIFY(QFile::rename(usual + ".away", usual));
        QCOMPARE(state.state, IPP_JSTATE_CANCELED);
        QVERIFY2(state.message.contains("the settings of the queue cannot be read: " + usual),
                 qPrintable(state.message));
        QCOMPARE(printer->documents(), QList<QByteArray>());
    }

    /// In lpstat, in the error log and in the journal; the next job is printed.
    void aWrongJobIsCanceledWithItsReason()
    {
        writeFile(desk->path("wrong.xml"), "<printjob>\n<method name=\"printFullOrderReceipt\"/>\n"
                                           "<total price=\"1.00\">\n</printjob>\n");
        const QString text = "refused, nothing was printed: wrong.xml:";
        const QString job = lp({desk->path("wrong.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_CANCELED, text);
        QVERIFY2(desk->shown(queue()).contains(text), qPrintable(desk->shown(queue())));
        const QByteArray jobs =
            desk->run("lpstat", {"-W", "completed", "-l", "-o", queue()}).standardOutput;
        QVERIFY2(jobs.contains(text.toUtf8()), jobs.constData());
        QVERIFY(desk->errorLog().contains(text.toUtf8()));
        QCOMPARE(desk->stateOf(job), QByteArray("refused"));
        VERIFY_JOB(*desk, lp({sample("receipt.xml")}), IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));
    }

    void aRawJobIsNoStream()
    {
        const QString job = lp({"-o", "raw", sample("receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_CANCELED, "it is no command stream");
        QCOMPARE(desk->stateOf(job), QByteArray("refused"));
        QCOMPARE(printer->documents(), QList<QByteArray>());
    }

    void streamsArePrintedAsTheyAre_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("known by its first command") << QStringList();
        QTest::newRow("raw") << QStringList({"-o", "raw"});
    }

    void streamsArePrintedAsTheyAre()
    {
        QFETCH(QStringList, options);
        makeQueue({"charset=cp858"});
        const QString job = lp(options + QStringList(expected("receipt.out")));
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1), QList<QByteArray>({inCp858(receipt())}));
        QCOMPARE(desk->stateOf(job), QByteArray("sent"));
    }

    void aStreamThatIsCutOffIsRefused()
    {
        writeFile(desk->path("cut.out"), receipt().chopped(4));
        for (const QStringList &options : {QStringList(), QStringList({"-o", "raw"})}) {
            const QString job = lp(options + QStringList(desk->path("cut.out")));
            VERIFY_JOB(*desk, job, IPP_JSTATE_CANCELED, "refused, nothing was printed");
        }
        QCOMPARE(printer->documents(), QList<QByteArray>());
    }

    void whatIsNoJobIsNotTaken()
    {
        writeFile(desk->path("letter.txt"), "Dear guest,\n");
        QCOMPARE(lp({desk->path("letter.txt")}), QString());
    }

    void copiesAreDocuments()
    {
        const QString job = lp({"-n", "3", sample("receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(3), QList<QByteArray>(3, receipt()));
        for (const char *copy : {"", "/2", "/3"})
            QCOMPARE(desk->stateOf(job, copy), QByteArray("sent"));
    }

    /// Its id may be another document's.
    void aCopyIsRefusedByItself()
    {
        VERIFY_JOB(*desk, lp({"-o", "job-uuid=till1-120/2", sample("kitchen-order.xml")}),
                   IPP_JSTATE_COMPLETED, "");
        const QString job = lp({"-n", "2", "-o", "job-uuid=till1-120", sample("receipt.xml")});
        VERIFY_JOB(*desk, job, IPP_JSTATE_CANCELED,
                   "refused, nothing was printed of copy 2: the id till1-120/2 was given to ");
        QCOMPARE(printer->documents(2),
                 QList<QByteArray>({bytesOf(expected("kitchen-order.out")), receipt()}));
    }

    void fiscalDocumentsHaveNoCopies()
    {
        for (const QString &file : {sample("fiscal-receipt.xml"), expected("fiscal-receipt.out")}) {
            const QString job = lp({"-n", "2", file});
            VERIFY_JOB(*desk, job, IPP_JSTATE_CANCELED, "a fiscal document has no copies");
            QCOMPARE(desk->stateOf(job), QByteArray("refused"));
        }
        VERIFY_JOB(*desk, lp({sample("fiscal-receipt.xml")}), IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1),
                 QList<QByteArray>({bytesOf(expected("fiscal-receipt.out"))}));
    }

    void severalFilesAreRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        writeFile(desk->path("wrong.xml"), "<printjob><method name=");
        const QString wrong = desk->path("wrong.xml");
        const QString good = sample("receipt.xml");
        const QString stream = expected("receipt.out");
        QTest::newRow("good ones") << QStringList({good, sample("kitchen-order.xml")});
        QTest::newRow("the same twice") << QStringList({good, good});
        QTest::newRow("the first one wrong") << QStringList({wrong, good});
        QTest::newRow("the last one wrong") << QStringList({good, wrong});
        QTest::newRow("streams") << QStringList({stream, stream});
        QTest::newRow("raw streams") << QStringList({"-o", "raw", stream, stream});
    }

    void severalFilesAreRefused()
    {
        QFETCH(QStringList, arguments);
        const QString job = lp(arguments);
        VERIFY_JOB(*desk, job, IPP_JSTATE_CANCELED, "");
        QCOMPARE(desk->stateOf(job), QByteArray("refused"));
        QVERIFY2(desk->shown(queue()).contains("a job has one file"),
                 qPrintable(desk->shown(queue())));
        QCOMPARE(printer->documents(), QList<QByteArray>());
    }

    /// A till that was killed prints again under the id of its own.
    void anIdOfTheTillsIsPrintedOnce()
    {
        const QStringList arguments = {"-o", "job-uuid=till1-118", sample("receipt.xml")};
        for (int time = 0; time < 2; ++time)
            VERIFY_JOB(*desk, lp(arguments), IPP_JSTATE_COMPLETED, "");
        const QString other = lp({"-o", "job-uuid=till1-118", sample("kitchen-order.xml")});
        VERIFY_JOB(*desk, other, IPP_JSTATE_CANCELED, "till1-118 was given to another document");
        VERIFY_JOB(*desk, lp({sample("kitchen-order.xml")}), IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(2),
                 QList<QByteArray>({receipt(), bytesOf(expected("kitchen-order.out"))}));
    }

    /// A wrong job under the id of one that waits says nothing of that one.
    void aWaitingJobIsNotRefusedByAnother()
    {
        printer->off();
        const QStringList id = {"-o", "job-uuid=till1-119"};
        const QString first = lp(id + QStringList(sample("receipt.xml")));
        QVERIFY(shows("waiting: "));
        writeFile(desk->path("wrong.xml"), "<printjob><method name=\"printFullOrder\"/><total");
        desk->addQueue("beside", printer->uri());
        const QString second = desk->print("beside", id + QStringList(desk->path("wrong.xml")));
        VERIFY_JOB(*desk, second, IPP_JSTATE_CANCELED, "refused, nothing was printed: wrong.xml:");
        QVERIFY(!desk->journal({"show", "till1-119"}).standardOutput.contains("refused"));
        printer->on();
        VERIFY_JOB(*desk, first, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));
    }

    /// What was accepted is sent, though the settings are others when its job is started again.
    void aJobThatIsStartedAgainIsWhatWasAccepted()
    {
        printer->off();
        const QString own = desk->path("settings/queues/" + queue());
        QDir().mkpath(own);
        const QByteArray settings = bytesOf(desk->path("settings/korvel.conf"));
        writeFile(own + "/korvel.conf", settings);
        const QString job = lp({sample("receipt.xml")});
        QVERIFY(waitUntil([&] { return desk->shown(queue()).contains("waiting: "); }));
        QCOMPARE(desk->run("cupsdisable", {queue()}).status, 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_PENDING, "");
        writeFile(own + "/korvel.conf", QByteArray(settings).replace("printCompany", "noCompany"));
        printer->on();
        QCOMPARE(desk->run("cupsenable", {queue()}).status, 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));
    }
};

KORVEL_TEST(TestQueueJobs)

} // namespace tst_queuejobs

#include "tst_queuejobs.moc"
