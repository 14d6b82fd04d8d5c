// What is changed behind the journal's back, and how verify() says so.
#include "delivery/chain.h"
#include "support/journals.h"
#include "support/test.h"

namespace tst_journalverify {

using namespace korvel::delivery;

/// Events 1 to 3 of "a", 4 and 5 of "b".
struct Filled : JournalFolder
{
    Filled()
    {
        Journal journal = writer();
        deliver(journal, "a", {State::Sending, State::Sent});
        deliver(journal, "b", {State::Sending});
    }
};

QByteArray hashOfJob(const QByteArray &name) { return hashOf(contentsFor(name).job); }

/// An event of "a" that goes on with the chain as it should.
QByteArray appended(const QString &path, const QByteArray &name)
{
    Record record;
    record.number = 6;
    record.time = "2026-05-12T18:00:00.000Z";
    record.document = "a";
    record.name = name;
    sqlite::Database database(path);
    sqlite::Statement last(database, "SELECT hash FROM events WHERE number = 5");
    last.with().step();
    record.previous = last.bytes(0);
    return "INSERT INTO events VALUES (6, '" + record.time + "', 'a', '" + name
           + "', '', '', '', '', '', '', '', '', '', '', '" + record.previous + "', '"
           + hashOf(record) + "')";
}

class TestJournalVerify : public QObject
{
    Q_OBJECT

private slots:
    void whatIsFound_data()
    {
        QTest::addColumn<QByteArray>("statements");
        QTest::addColumn<QStringList>("flaws");
        const auto row = [](const char *name, const QByteArray &statements,
                            const QStringList &flaws) {
            QTest::newRow(name) << statements << flaws;
        };
        const QString job = "contents " + hashOfJob("a");
        const QString other = "contents " + hashOf(QByteArray("x"));
        row("nothing", "", {});
        row("an event changed", "UPDATE events SET device = 'x' WHERE number = 2",
            {"event 2: was changed"});
        row("its own hash changed", "UPDATE events SET hash = 'x' WHERE number = 2",
            {"event 2: was changed", "event 3: does not follow the one before it"});
        row("an event dropped", "DELETE FROM events WHERE number = 4",
            {"event 4: is missing", "event 5: may not follow what its document was",
             "document b: has no events",
             "contents: some are held for events that do not have them"});
        row("two events dropped", "DELETE FROM events WHERE number IN (2, 3)",
            {"event 2 to 3: are missing", "document a: is not what its events say"});
        row("the last event dropped", "DELETE FROM events WHERE number = 5",
            {"document b: is not what its events say"});
        row("events put in in front of all",
            "CREATE TEMPORARY TABLE copies AS SELECT * FROM events WHERE number < 3;"
            "UPDATE copies SET number = number - 2; INSERT INTO events SELECT * FROM copies",
            {"event -1: was put in", "event 0: was put in"});
        row("two events that changed places",
            "UPDATE events SET number = 100 WHERE number = 2;"
            "UPDATE events SET number = 2 WHERE number = 3;"
            "UPDATE events SET number = 3 WHERE number = 100",
            {"event 2: does not follow the one before it", "event 2: was changed",
             "event 2: may not follow what its document was",
             "event 3: does not follow the one before it", "event 3: was changed",
             "event 4: does not follow the one before it",
             "document a: is not what its events say"});
        row("all events dropped", "DELETE FROM events",
            {"document a: has no events", "document b: has no events",
             "contents: some are held for events that do not have them"});
        row("contents changed",
            "UPDATE contents SET bytes = x'78' WHERE hash = '" + hashOfJob("a") + "'",
            {job + ": were changed"});
        row("contents dropped", "DELETE FROM contents WHERE hash = '" + hashOfJob("a") + "'",
            {"event 1: its " + job + " are missing"});
        row("contents put in",
            "INSERT INTO contents VALUES ('" + hashOf(QByteArray("x")) + "', x'78')",
            {other + ": belong to no event"});
        row("a use dropped", "DELETE FROM uses WHERE hash = '" + hashOfJob("a") + "'",
            {"event 1: its " + job + " are not held for it", job + ": belong to no event"});
        row("a use put in", "INSERT INTO uses VALUES ('" + hashOfJob("a") + "', 2)",
            {"contents: some are held for events that do not have them"});
        row("a document's state changed", "UPDATE documents SET state = 'not-sent' WHERE id = 'b'",
            {"document b: is not what its events say"});
        row("a document dropped", "DELETE FROM documents WHERE id = 'b'",
            {"documents: 1 are missing"});
        row("a document put in", "INSERT INTO documents VALUES ('c', 'sent', 1, 1, 1, 0)",
            {"document c: has no events"});
        // As if it were forgotten, without an event that says so.
        row("a document forgotten by hand", "UPDATE documents SET forgotten = 99 WHERE id = 'a'",
            {"document a: is not what its events say",
             "contents: some are held for events that do not have them"});
    }

    void whatIsFound()
    {
        QFETCH(QByteArray, statements);
        QFETCH(QStringList, flaws);
        const Filled folder;
        tamper(folder.path(), statements);
        Journal journal = folder.reader();
        QCOMPARE(flawsOf(journal), flaws);
    }

    void whatIsAppendedByHand_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QStringList>("flaws");
        QTest::newRow("an event that may not follow")
            << QByteArray("sending")
            << QStringList{"event 6: may not follow what its document was"};
        QTest::newRow("no event at all")
            << QByteArray("lost") << QStringList{"event 6: may not follow what its document was"};
        QTest::newRow("one that may, and is in the chain alone")
            << QByteArray("forgotten")
            << QStringList{"document a: is not what its events say",
                           "contents: some are held for events that do not have them"};
    }

    void whatIsAppendedByHand()
    {
        QFETCH(QByteArray, name);
        QFETCH(QStringList, flaws);
        const Filled folder;
        tamper(folder.path(), appended(folder.path(), name));
        Journal journal = folder.reader();
        QCOMPARE(flawsOf(journal), flaws);
    }

    /// An older copy of the file is whole in itself: only who kept the end knows.
    void aCutTail()
    {
        const Filled folder;
        const Head before = folder.reader().head();
        QVERIFY(QFile::copy(folder.path(), folder.filePath("copy")));
        {
            Journal journal = folder.writer();
            journal.change("b", State::Sent, till, {});
        }
        Journal whole = folder.reader();
        const Head kept = whole.head();
        QCOMPARE(flawsOf(whole, before), {});
        QCOMPARE(flawsOf(whole, kept), {});
        QCOMPARE(flawsOf(whole, Head{}), {});

        Journal cut(folder.filePath("copy"), Journal::Access::Write);
        QCOMPARE(flawsOf(cut), {});
        QCOMPARE(flawsOf(cut, before), {});
        QCOMPARE(flawsOf(cut, kept), QStringList("event 6 with the hash " + kept.hash
                                                 + ": is missing, as all behind event 5"));
        // Gone on with, it has another event in that place.
        cut.change("b", State::InDoubt, till, {});
        QCOMPARE(flawsOf(cut, kept),
                 QStringList("event 6 with the hash " + kept.hash + ": is another one now"));
    }

    /// A text that was made a blob of the same bytes is not the same.
    void aChangedType()
    {
        const JournalFolder folder;
        {
            Journal journal = folder.writer();
            journal.accept("a", {"job", {}, {}, {}, {}, {}}, till, {});
        }
        const QByteArray hash = hashOf(QByteArray("job"));
        QFile file(folder.path());
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray bytes = file.readAll();
        // In front of the row's values stand their types: 141 is a text of 64 bytes, 18 a blob
        // of 3.
        const qsizetype place = bytes.indexOf(QByteArray("\x81\x0D\x12") + hash + "job");
        QVERIFY(place > 0);
        QVERIFY(file.seek(place + 2));
        QCOMPARE(file.write("\x13", 1), 1);
        file.close();
        Journal journal = folder.reader();
        QCOMPARE(flawsOf(journal), QStringList("contents " + hash + ": were changed"));
    }

    /// More events than are looked at in one go, and their contents go behind the first go.
    void whatIsForgottenMeanwhile()
    {
        const JournalFolder folder;
        {
            Journal journal = folder.writer();
            for (int i = 0; i < 100; ++i)
                deliver(journal, QString::number(i), {State::Sending, State::Sent});
        }
        Journal writer = folder.writer();
        constexpr qint64 contents = 3 * 100 + 2; // settings and catalogue are shared
        qint64 forgotten = 0;
        QStringList flaws;
        folder.reader().verify(
            {}, [&](const QString &flaw) { flaws.append(flaw); },
            [&](qint64 done, qint64) {
                if (done > contents && forgotten == 0)
                    forgotten = writer.forget(QDateTime::currentDateTimeUtc().addDays(1)).documents;
            });
        QCOMPARE(forgotten, 100);
        QCOMPARE(flaws, {});
        Journal journal = folder.reader();
        QCOMPARE(flawsOf(journal), {});
    }

    void whatIsMissingOfTheFile_data()
    {
        QTest::addColumn<QByteArray>("statement");
        QTest::addColumn<QString>("name");
        for (const char *name : {"contents", "events", "documents", "uses"})
            QTest::newRow(name) << QByteArray("DROP TABLE ") + name << name;
        for (const char *name : {"events_document", "events_time", "documents_state"})
            QTest::newRow(name) << QByteArray("DROP INDEX ") + name << name;
    }

    void whatIsMissingOfTheFile()
    {
        QFETCH(QByteArray, statement);
        QFETCH(QString, name);
        const Filled folder;
        tamper(folder.path(), statement);
        Journal journal = folder.reader();
        const QStringList flaws = flawsOf(journal);
        QCOMPARE(flaws.value(0),
                 "the table or index " + name + ": is missing; nothing else was looked at");
    }

    void progressReachesItsEnd()
    {
        const Filled folder;
        qint64 last = 0;
        qint64 all = 0;
        folder.reader().verify({}, {}, [&](qint64 done, qint64 of) {
            QVERIFY(done >= last && done <= of);
            last = done;
            all = of;
        });
        QCOMPARE(all, 5 + 8); // events, and contents: settings and catalogue are shared
        QCOMPARE(last, all);
    }
};

KORVEL_TEST(TestJournalVerify)

} // namespace tst_journalverify

#include "tst_journalverify.moc"
