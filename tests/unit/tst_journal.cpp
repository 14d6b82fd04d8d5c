// Documents in the journal: taken in, brought from state to state, found again.
#include "support/journals.h"
#include "support/test.h"

#include <sqlite3.h>

#include <utility>

namespace tst_journal {

using namespace korvel::delivery;

const QList<State> allStates = {State::Accepted, State::Refused, State::NotSent, State::Sending,
                                State::Sent,     State::InDoubt, State::Printed, State::NotPrinted};

/// Notes each statement of any database that looks through a table or an index, until it goes.
class Scans
{
public:
    Scans() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(watch)); }
    ~Scans() { sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(watch)); }
    Q_DISABLE_COPY_MOVE(Scans)

    /// The statements that were noted since the last time.
    static QByteArrayList take() { return std::exchange(noted, {}); }

private:
    static int watch(sqlite3 *database, const char ** /*error*/, const void * /*routines*/)
    {
        return sqlite3_trace_v2(database, SQLITE_TRACE_PROFILE, note, nullptr);
    }
    static int note(unsigned /*event*/, void * /*context*/, void *ended, void * /*time*/)
    {
        auto *const statement = static_cast<sqlite3_stmt *>(ended);
        if (sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_FULLSCAN_STEP, 1) > 0)
            noted.append(sqlite3_sql(statement));
        return 0;
    }

    static inline QByteArrayList noted;
};

class TestJournal : public QObject
{
    Q_OBJECT

private slots:
    /// The states as they are spelt, each with those that may follow.
    void states_data()
    {
        QTest::addColumn<State>("state");
        QTest::addColumn<QList<State>>("next");
        const auto row = [](const char *name, State state, const QList<State> &next) {
            QTest::newRow(name) << state << next;
        };
        row("accepted", State::Accepted, {State::Refused, State::NotSent, State::Sending});
        row("refused", State::Refused, {State::Accepted});
        row("not-sent", State::NotSent, {State::NotSent, State::Sending});
        row("sending", State::Sending, {State::Sent, State::InDoubt});
        row("sent", State::Sent, {});
        row("in-doubt", State::InDoubt, {State::Printed, State::NotPrinted});
        row("printed", State::Printed, {});
        row("not-printed", State::NotPrinted, {State::NotSent, State::Sending});
    }

    void states()
    {
        QFETCH(State, state);
        QFETCH(QList<State>, next);
        QCOMPARE(QString(infoOf(state).name), QString(QTest::currentDataTag()));
        QCOMPARE(stateNamed(QString(QTest::currentDataTag())), std::optional(state));
        for (const State after : allStates)
            QCOMPARE(mayFollow(state, after), next.contains(after));
    }

    /// From each state, each change is made or not, and then nothing is changed.
    void changes_data()
    {
        QTest::addColumn<QList<State>>("before");
        QTest::newRow("accepted") << QList<State>{};
        QTest::newRow("refused") << QList{State::Refused};
        QTest::newRow("not-sent") << QList{State::NotSent};
        QTest::newRow("sending") << QList{State::Sending};
        QTest::newRow("sent") << QList{State::Sending, State::Sent};
        QTest::newRow("in-doubt") << QList{State::Sending, State::InDoubt};
        QTest::newRow("printed") << QList{State::Sending, State::InDoubt, State::Printed};
        QTest::newRow("not-printed") << QList{State::Sending, State::InDoubt, State::NotPrinted};
    }

    void changes()
    {
        QFETCH(QList<State>, before);
        const JournalFolder folder;
        Journal journal = folder.writer();
        for (const State to : allStates) {
            const QString id = infoOf(to).name;
            deliver(journal, id, before);
            const State state = before.isEmpty() ? State::Accepted : before.constLast();
            const Head head = journal.head();
            QCOMPARE(journal.change(id, to, "file:/tmp/x", "because"), state);
            // Accepting takes contents, so that it is accept() alone that does it.
            const bool made = mayFollow(state, to) && to != State::Accepted;
            QCOMPARE(journal.head().number, head.number + (made ? 1 : 0));
            const auto document = journal.find(id);
            QCOMPARE(document->state, made ? to : state);
            QCOMPARE(document->device, made ? "file:/tmp/x" : till);
            QCOMPARE(document->detail, made ? "because" : "");
        }
        QCOMPARE(flawsOf(journal), {});
    }

    void documentIsFoundAsItWasTaken()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        const QDateTime start = QDateTime::currentDateTimeUtc().addMSecs(-1);
        deliver(journal, "till1-118", {State::Sending, State::InDoubt});
        deliver(journal, "till1-119", {});

        const auto document = folder.reader().find("till1-118");
        QVERIFY(document);
        QCOMPARE(document->id, "till1-118");
        QCOMPARE(document->state, State::InDoubt);
        QCOMPARE(document->origin, "lucia");
        QCOMPARE(document->charset, "cp858");
        QVERIFY(!document->forgotten);
        QVERIFY(start < document->accepted && document->accepted <= document->changed);
        const Contents contents = journal.contentsOf(*document);
        const Contents given = contentsFor("till1-118");
        QCOMPARE(contents.job, given.job);
        QCOMPARE(contents.settings, given.settings);
        QCOMPARE(contents.catalogue, given.catalogue);
        QCOMPARE(contents.rendered, given.rendered);
        QCOMPARE(contents.sent, given.sent);
        QCOMPARE(contents.charset, given.charset);
        QVERIFY(!journal.find("till1-11"));
        QVERIFY(!journal.find("till1-118 "));
        QVERIFY(!journal.find("TILL1-118"));
    }

    void hashesAreThoseOfTheContents()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        journal.accept("a", {{}, {}, {}, "abc", "", "utf-8"}, till, {});
        const auto document = journal.find("a");
        QCOMPARE(document->renderedHash,
                 QByteArray("ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"));
        for (const QByteArray &hash : {document->jobHash, document->settingsHash,
                                       document->catalogueHash, document->sentHash})
            QCOMPARE(hash, QByteArray());
        QCOMPARE(journal.contentsOf(*document).job, QByteArray());
    }

    void contentsAreStoredOnce()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        const Contents contents = {"job", "settings", "catalogue", "stream", "stream", "utf-8"};
        for (const char *id : {"a", "b", "c"})
            QVERIFY(journal.accept(id, contents, till, {}));
        QCOMPARE(numberIn(folder.path(), "SELECT count(*) FROM contents"), 4);
    }

    void anIdIsTakenOnceUnlessItWasRefused()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        QVERIFY(journal.accept("a", contentsFor("wrong"), till, "lucia"));
        QVERIFY(!journal.accept("a", contentsFor("other"), till, "lucia"));
        QCOMPARE(journal.head().number, 1);
        journal.change("a", State::Refused, till, "no method");
        QVERIFY(journal.accept("a", contentsFor("right"), "file:/x", "anna"));
        const auto document = journal.find("a");
        QCOMPARE(document->state, State::Accepted);
        QCOMPARE(document->origin, "anna");
        QCOMPARE(document->device, "file:/x");
        QCOMPARE(document->detail, "");
        QCOMPARE(journal.contentsOf(*document).job, contentsFor("right").job);
        QCOMPARE(flawsOf(journal), {});
    }

    void refusals()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        journal.refuse("a", {"<x/>", {}, {}, {}, {}, {}}, till, "lucia", "no method");
        QCOMPARE(journal.find("a")->state, State::Refused);
        QCOMPARE(journal.find("a")->detail, "no method");
        // Wrong once more, in another way.
        journal.refuse("a", {"<y/>", {}, {}, {}, {}, {}}, till, "lucia", "no element");
        QCOMPARE(journal.find("a")->detail, "no element");
        QCOMPARE(journal.contentsOf(*journal.find("a")).job, "<y/>");
        // Refused is what nobody took in.
        deliver(journal, "b", {State::Sending});
        journal.refuse("b", {"<z/>", {}, {}, {}, {}, {}}, till, "lucia", "too late");
        QCOMPARE(journal.find("b")->state, State::Sending);
        QCOMPARE(journal.head().number, 4);
        QCOMPARE(flawsOf(journal), {});
    }

    void aChangeOfNoDocumentIsAnError()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        QVERIFY(errorOf([&] {
                    journal.change("x", State::Sending, till, {});
                }).endsWith(": there is no document x"));
        QCOMPARE(journal.head().number, 0);
    }

    /// Ids are bytes: two that look alike are two, and none is a pattern, a query or an end.
    void ids()
    {
        const QStringList ids = {"a",
                                 "A",
                                 " a",
                                 "%",
                                 "_",
                                 "'; DROP TABLE events; --",
                                 "a\nb",
                                 QString::fromUtf8("a\0b", 3),
                                 QString::fromUtf8("\xC3\xA8"),
                                 QString::fromUtf8("e\xCC\x80"),
                                 QString(QChar(0xDC80)),
                                 QString(QChar(0xDC81)),
                                 QString(1000, 'x'),
                                 QString(1001, 'x')};
        const JournalFolder folder;
        Journal journal = folder.writer();
        for (const QString &id : ids)
            QVERIFY(journal.accept(id, contentsFor("x"), till, {}));
        for (const QString &id : ids) {
            QVERIFY(!journal.accept(id, contentsFor("x"), till, {}));
            QCOMPARE(journal.find(id)->id, id);
            QCOMPARE(journal.events(id).size(), 1);
        }
        QStringList listed;
        journal.eachDocument({}, {}, [&](const Document &document) { listed.append(document.id); });
        QCOMPARE(listed, ids);
        QCOMPARE(flawsOf(journal), {});
    }

    void detailsAreOneLine()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        deliver(journal, "a", {});
        journal.change("a", State::NotSent, till, "no\nroute\033[31m");
        QCOMPARE(journal.find("a")->detail, QString::fromUtf8("no\uFFFDroute\uFFFD[31m"));
    }

    void eventsInTheirOrder()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        deliver(journal, "a", {State::NotSent});
        deliver(journal, "b", {State::Sending});
        bring(journal, "a", {State::Sending, State::Sent});

        QStringList names;
        qint64 number = 0;
        QByteArray previous;
        journal.eachEvent({}, [&](const Event &event) {
            names.append(event.document + ' ' + event.name);
            QCOMPARE(event.number, ++number);
            QCOMPARE(event.previous, previous);
            previous = event.hash;
        });
        QCOMPARE(names, QStringList({"a accepted", "a not-sent", "b accepted", "b sending",
                                     "a sending", "a sent"}));
        QCOMPARE(journal.head().number, 6);
        QCOMPARE(journal.head().hash, previous);
        QCOMPARE(journal.events("a").size(), 4);
        QCOMPARE(journal.events("a").constLast().number, 6);
    }

    void documentsByStateAndTime()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        deliver(journal, "a", {State::Sending, State::Sent});
        QTest::qSleep(5); // a time between the two
        const QDateTime between = QDateTime::currentDateTimeUtc();
        deliver(journal, "b", {State::Sending, State::Sent});
        deliver(journal, "c", {State::Sending});
        const auto listed = [&](std::optional<State> state, const QDateTime &since) {
            QStringList ids;
            journal.eachDocument(state, since,
                                 [&](const Document &document) { ids.append(document.id); });
            return ids;
        };
        QCOMPARE(listed({}, {}), QStringList({"a", "b", "c"}));
        QCOMPARE(listed(State::Sent, {}), QStringList({"a", "b"}));
        QCOMPARE(listed({}, between), QStringList({"b", "c"}));
        QCOMPARE(listed(State::Sent, between), QStringList("b"));
        QCOMPARE(listed(State::Printed, between), QStringList());
        QCOMPARE(listed({}, between.addYears(1)), QStringList());
    }

    /// What is asked of many documents is answered by an index, none of them is looked through.
    void nothingIsLookedThrough()
    {
        const JournalFolder folder;
        const Scans scans;
        Journal journal = folder.writer();
        for (int i = 0; i < 20; ++i)
            deliver(journal, QString::number(i), {State::Sending, State::Sent});
        const auto none = [](const auto &) {};
        journal.eachDocument({}, {}, none);
        QVERIFY(!scans.take().isEmpty()); // as all are asked for

        journal.refuse("refused", contentsFor("refused"), till, {}, "no method");
        deliver(journal, "doubt", {State::Sending, State::InDoubt});
        journal.contentsOf(*journal.find("7"));
        journal.events("7");
        journal.head();
        const QDateTime time = journal.find("doubt")->changed;
        journal.eachDocument(State::InDoubt, {}, none);
        journal.eachDocument({}, time, none);
        journal.eachDocument(State::InDoubt, time, none);
        journal.eachEvent(time, none);
        QCOMPARE(scans.take(), QByteArrayList());
    }
};

KORVEL_TEST(TestJournal)

} // namespace tst_journal

#include "tst_journal.moc"
