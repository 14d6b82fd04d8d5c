// Contents that are forgotten: whose go, whose stay, and what is left in the file.
#include "support/bytes.h"
#include "support/journals.h"
#include "support/test.h"

namespace tst_journalforget {

using namespace korvel::delivery;

const QDateTime later = QDateTime::currentDateTimeUtc().addYears(1);

class TestJournalForget : public QObject
{
    Q_OBJECT

private slots:
    /// Only what is finished goes: all else may be sent, or looked at, later.
    void states_data()
    {
        QTest::addColumn<QList<State>>("states");
        QTest::addColumn<bool>("goes");
        QTest::newRow("accepted") << QList<State>{} << false;
        QTest::newRow("refused") << QList{State::Refused} << true;
        QTest::newRow("not-sent") << QList{State::NotSent} << false;
        QTest::newRow("sending") << QList{State::Sending} << false;
        QTest::newRow("sent") << QList{State::Sending, State::Sent} << true;
        QTest::newRow("in-doubt") << QList{State::Sending, State::InDoubt} << false;
        QTest::newRow("printed") << QList{State::Sending, State::InDoubt, State::Printed} << true;
        QTest::newRow("not-printed")
            << QList{State::Sending, State::InDoubt, State::NotPrinted} << false;
    }

    void states()
    {
        QFETCH(QList<State>, states);
        QFETCH(bool, goes);
        const JournalFolder folder;
        Journal journal = folder.writer();
        deliver(journal, "a", states);
        const State state = journal.find("a")->state;
        const auto [documents, kept] = journal.forget(later);
        QCOMPARE(documents, goes ? 1 : 0);
        QCOMPARE(kept, goes ? 0 : 1);
        const auto document = journal.find("a");
        QCOMPARE(document->state, state);
        QCOMPARE(document->forgotten, goes);
        QCOMPARE(journal.contentsOf(*document).rendered.isEmpty(), goes);
        QCOMPARE(journal.events("a").constLast().name == "forgotten", goes);
        QVERIFY(!document->jobHash.isEmpty());
        QCOMPARE(flawsOf(journal), {});
    }

    void theIdStaysKnown()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        deliver(journal, "a", {State::Sending, State::Sent});
        journal.forget(later);
        QVERIFY(!journal.accept("a", contentsFor("a"), till, {}));
        QCOMPARE(journal.change("a", State::Sending, till, {}), State::Sent);
        QCOMPARE(journal.find("a")->state, State::Sent);
        QCOMPARE(journal.forget(later).documents, 0); // once
    }

    void aRefusedOneMayComeAgain()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        deliver(journal, "a", {State::Refused});
        journal.forget(later);
        QVERIFY(journal.accept("a", contentsFor("better"), till, {}));
        QVERIFY(!journal.find("a")->forgotten);
        QCOMPARE(journal.contentsOf(*journal.find("a")).job, contentsFor("better").job);
        QCOMPARE(flawsOf(journal), {});
        bring(journal, "a", {State::Sending, State::Sent});
        QCOMPARE(journal.forget(later).documents, 1);
        QCOMPARE(numberIn(folder.path(), "SELECT count(*) FROM contents"), 0);
        QCOMPARE(flawsOf(journal), {});
    }

    void whatOthersHaveStays()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        deliver(journal, "a", {State::Sending, State::Sent});
        deliver(journal, "b", {});
        journal.forget(later);
        QVERIFY(journal.contentsOf(*journal.find("a")).job.isEmpty());
        QVERIFY(journal.contentsOf(*journal.find("a")).settings.isEmpty()); // which b has, too
        QCOMPARE(journal.contentsOf(*journal.find("b")).settings, contentsFor("b").settings);
        QCOMPARE(flawsOf(journal), {});
        bring(journal, "b", {State::Sending, State::Sent});
        journal.forget(later);
        QCOMPARE(numberIn(folder.path(), "SELECT count(*) FROM contents"), 0);
        QCOMPARE(numberIn(folder.path(), "SELECT count(*) FROM uses"), 0);
        QCOMPARE(flawsOf(journal), {});
    }

    void onlyWhatIsOlder()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        deliver(journal, "a", {State::Sending, State::Sent});
        QTest::qSleep(5);
        const QDateTime between = QDateTime::currentDateTimeUtc();
        deliver(journal, "b", {State::Sending, State::Sent});
        QCOMPARE(journal.forget(between).documents, 1);
        QVERIFY(journal.find("a")->forgotten);
        QVERIFY(!journal.find("b")->forgotten);
    }

    /// No page of the file keeps a name, nor does the file that undoes a transaction.
    void nothingIsLeftInTheFile()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        for (int i = 0; i < 250; ++i) { // more than one transaction's
            Contents contents = contentsFor("Mario Rossi " + QByteArray::number(i));
            contents.job += QByteArray(9000, 'x') + "Via Roma 1";
            QVERIFY(journal.accept(QString::number(i), contents, till, {}));
            bring(journal, QString::number(i), {State::Sending, State::Sent});
        }
        QVERIFY(bytesOf(folder.path()).contains("Mario Rossi"));
        QVERIFY(bytesOf(folder.path()).contains("Via Roma"));
        QCOMPARE(journal.forget(later).documents, 250);
        for (const QString &path : {folder.path(), folder.path() + "-journal"}) {
            QVERIFY(!bytesOf(path).contains("Rossi"));
            QVERIFY(!bytesOf(path).contains("Roma"));
        }
        QCOMPARE(flawsOf(journal), {});
    }
};

KORVEL_TEST(TestJournalForget)

} // namespace tst_journalforget

#include "tst_journalforget.moc"
