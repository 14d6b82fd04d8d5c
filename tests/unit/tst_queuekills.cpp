// A queue of which a part is killed: its backend, the delivery in it, its filter, the server.
#include "support/built.h"
#include "support/queuedesk.h"
#include "support/test.h"

namespace tst_queuekills {

const QString backend = "bin/backend/korvel";
const QString renderer = "bin/filter/korvel-print";

class TestQueueKills : public QueueTest
{
    Q_OBJECT

private:
    /// Waits until the backend and its child are there; the parent first.
    [[nodiscard]] QList<pid_t> backends() const
    {
        waitUntil([&] { return desk->processesOf(backend).size() == 2; });
        return desk->processesOf(backend);
    }
    [[nodiscard]] bool areGone() const
    {
        return waitUntil([&] { return desk->processesOf(backend).isEmpty(); });
    }

    /// Whether each whole document that came is this one, and how often it did.
    [[nodiscard]] int copiesOf(const QByteArray &document) const
    {
        return int(printer->documents().count(document));
    }

    /// Puts a program of the shell in the place of the renderer, or the renderer again.
    void replaceRenderer(const QByteArray &script = {}) const
    {
        QFile::remove(desk->path(renderer));
        if (script.isEmpty())
            QFile::copy(built::print, desk->path(renderer));
        else
            writeFile(desk->path(renderer), script);
        ::chmod(qPrintable(desk->path(renderer)), 0755);
    }

private slots:
    QUEUE_TEST_SLOTS

    void aDeliveryThatIsKilledIsHeld()
    {
        printer->off();
        const QString job = lp({sample("fiscal-receipt.xml")});
        QVERIFY(shows("waiting: "));
        ::kill(backends().constLast(), SIGKILL);
        VERIFY_JOB(*desk, job, IPP_JSTATE_HELD, "not sent: the delivery was ended from outside");
        printer->on();
        QCOMPARE(desk->run("lp", {"-i", job, "-H", "resume"}).status, 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1),
                 QList<QByteArray>({bytesOf(expected("fiscal-receipt.out"))}));
    }

    /// Nobody sends it again before a person has looked.
    void aDeliveryThatIsKilledWhileSendingIsInDoubt()
    {
        printer->on({"--fault", "stall=64", "--first", "1"});
        writeFile(desk->path("long.out"),
                  "=o\n" + QByteArray("=\"/(row )\n").repeated(9000) + "=o\n");
        const QString job = lp({desk->path("long.out")});
        printer->waitFor("fault stall");
        ::kill(backends().constLast(), SIGKILL);
        VERIFY_JOB(*desk, job, IPP_JSTATE_HELD, "in doubt: ");
        QCOMPARE(desk->run("lp", {"-i", job, "-H", "resume"}).status, 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_HELD, "in doubt: ");
        QCOMPARE(copiesOf(bytesOf(desk->path("long.out"))), 0);
        QCOMPARE(desk->journal({"resolve", desk->idOf(job), "not-printed"}).status, 0);
        QCOMPARE(desk->run("lp", {"-i", job, "-H", "resume"}).status, 0);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QVERIFY(waitUntil([&] { return copiesOf(bytesOf(desk->path("long.out"))) == 1; }));
        QCOMPARE(desk->journal({"verify"}).status, 0);
    }

    /// Its child goes on, and the journal knows the truth.
    void aBackendThatIsKilledLeavesItsDelivery()
    {
        printer->off();
        const QString job = lp({sample("receipt.xml")});
        QVERIFY(shows("waiting: "));
        ::kill(backends().constFirst(), SIGKILL);
        QVERIFY(waitUntil([&] { return desk->processesOf(backend).size() == 1; }));
        QCOMPARE(desk->stateOf(job), QByteArray("accepted"));
        printer->on();
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QVERIFY(areGone());
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));
        QCOMPARE(desk->stateOf(job), QByteArray("sent"));
    }

    /// Nobody is left to tell CUPS, which goes on; the journal tells who asks it.
    void aBackendThatIsKilledWithItsDeliveryIsInDoubt()
    {
        printer->on({"--fault", "stall=64", "--first", "1"});
        writeFile(desk->path("long.out"),
                  "=o\n" + QByteArray("=\"/(row )\n").repeated(9000) + "=o\n");
        const QString job = lp({desk->path("long.out")});
        printer->waitFor("fault stall");
        for (const pid_t process : backends())
            ::kill(process, SIGKILL);
        QVERIFY(waitUntil([&] { return desk->job(job).state > IPP_JSTATE_PROCESSING; }));
        QCOMPARE(desk->stateOf(job), QByteArray("sending"));
        VERIFY_JOB(*desk, lp({sample("receipt.xml")}), IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1).constLast(), receipt());
        QCOMPARE(copiesOf(bytesOf(desk->path("long.out"))), 0);
        QCOMPARE(desk->stateOf(job), QByteArray("in-doubt"));
    }

    /// What waited for the printer is left to the next server, where it can be taken away.
    void aServerThatIsKilledTakesItsWaitingJobAlong()
    {
        printer->off();
        const QString job = lp({sample("receipt.xml")});
        QVERIFY(shows("waiting: "));
        desk->stop(SIGKILL);
        QVERIFY(areGone());
        desk->start();
        QCOMPARE(desk->stateOf(job), QByteArray("not-sent"));
        QCOMPARE(desk->run("cancel", {job}).status, 0);
        QVERIFY(areGone());
        printer->on();
        VERIFY_JOB(*desk, lp({sample("kitchen-order.xml")}), IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1),
                 QList<QByteArray>({bytesOf(expected("kitchen-order.out"))}));
        QCOMPARE(desk->stateOf(job), QByteArray("not-sent"));
    }

    void aFilterThatIsKilledPrintsNothing()
    {
        replaceRenderer("#!/bin/sh\nexec sleep 60\n");
        const QString job = lp({sample("receipt.xml")});
        const auto filters = [&] { return desk->processesOf("bin/filter/jobtokorvel"); };
        QVERIFY(waitUntil([&] { return filters().size() == 1; }));
        ::kill(filters().constFirst(), SIGKILL);
        const JobState state = desk->waitFor(job, IPP_JSTATE_CANCELED);
        replaceRenderer();
        QCOMPARE(state.state, IPP_JSTATE_CANCELED);
        QVERIFY(shows("its filter did not come to its end"));
        QCOMPARE(desk->stateOf(job), QByteArray("refused"));
        QCOMPARE(printer->documents(), QList<QByteArray>());
    }

    /// That is no fault of the job's: it is rendered again.
    void aRendererThatIsKilledIsWaitedFor()
    {
        replaceRenderer("#!/bin/sh\nkill -9 $$\n");
        const QString job = lp({sample("receipt.xml")});
        const bool waits = shows("was ended by the signal SIGKILL");
        replaceRenderer();
        QVERIFY(waits);
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));
    }

    void theServerIsEnded_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("in order") << SIGTERM;
        QTest::newRow("killed") << SIGKILL;
    }

    /// The backend that is left over and the one of the new server are one delivery.
    void theServerIsEnded()
    {
        QFETCH(int, signal);
        printer->off();
        const QString first = lp({sample("receipt.xml")});
        const QString second = lp({sample("kitchen-order.xml")});
        QVERIFY(shows("waiting: "));
        desk->stop(signal);
        desk->start();
        printer->on();
        VERIFY_JOB(*desk, first, IPP_JSTATE_COMPLETED, "");
        VERIFY_JOB(*desk, second, IPP_JSTATE_COMPLETED, "");
        QVERIFY(areGone());
        QCOMPARE(printer->documents(2),
                 QList<QByteArray>({receipt(), bytesOf(expected("kitchen-order.out"))}));
    }

    void theServerIsKilledWhileSending()
    {
        printer->on({"--fault", "slow=400", "--first", "1"});
        const QString job = lp({sample("receipt.xml")});
        printer->waitFor("fault slow");
        desk->stop(SIGKILL);
        desk->start();
        VERIFY_JOB(*desk, job, IPP_JSTATE_COMPLETED, "");
        QVERIFY(areGone());
        QCOMPARE(printer->documents(1), QList<QByteArray>({receipt()}));
        QCOMPARE(desk->stateOf(job), QByteArray("sent"));
    }
};

KORVEL_TEST(TestQueueKills)

} // namespace tst_queuekills

#include "tst_queuekills.moc"
