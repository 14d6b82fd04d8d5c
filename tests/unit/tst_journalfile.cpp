// The journal's file: made private, opened, refused, brought to the present schema, only read.
#include "support/bytes.h"
#include "support/journals.h"
#include "support/ordinaryuser.h"
#include "support/test.h"

#include <sys/stat.h>

namespace tst_journalfile {

using namespace korvel::delivery;

int modeOf(const QString &path)
{
    struct stat status = {};
    return ::stat(qPrintable(path), &status) == 0 ? int(status.st_mode & 07777U) : -1;
}

class TestJournalFile : public QObject
{
    Q_OBJECT

private slots:
    void aNewOneIsItsOwnersAlone()
    {
        const JournalFolder folder;
        const mode_t mask = ::umask(0);
        {
            Journal journal = folder.writer();
            deliver(journal, "a", {State::Sending});
        }
        ::umask(mask);
        QCOMPARE(modeOf(folder.path()), 0600);
        QCOMPARE(modeOf(folder.path() + "-journal"), 0600);
    }

    void anEmptyOneIsMadeItsOwnersAlone()
    {
        const JournalFolder folder;
        writeFile(folder.path(), {});
        ::chmod(qPrintable(folder.path()), 0644);
        Journal journal = folder.writer();
        deliver(journal, "a", {State::Sending});
        QCOMPARE(modeOf(folder.path()), 0600);
        QCOMPARE(modeOf(folder.path() + "-journal"), 0600);
    }

    void whatAGroupMayReadStaysSo()
    {
        const JournalFolder folder;
        deliver(*std::make_unique<Journal>(folder.writer()), "a", {});
        QFile::remove(folder.path() + "-journal");
        ::chmod(qPrintable(folder.path()), 0640);
        Journal journal = folder.writer();
        bring(journal, "a", {State::Sending});
        QCOMPARE(modeOf(folder.path()), 0640);
        QCOMPARE(modeOf(folder.path() + "-journal"), 0640);
    }

    void theUsersOwnIsBelowTheirData_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("path");
        QTest::newRow("in the home") << QByteArray() << "/home/lucia/.local/share";
        QTest::newRow("elsewhere") << QByteArray("/data/lucia") << "/data/lucia";
        QTest::newRow("a relative one does not count")
            << QByteArray("data") << "/home/lucia/.local/share";
    }

    void theUsersOwnIsBelowTheirData()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, path);
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", "/home/lucia");
        qputenv("XDG_DATA_HOME", data);
        const QString found = Journal::userPath();
        qputenv("HOME", home);
        qunsetenv("XDG_DATA_HOME");
        QCOMPARE(found, path + "/korvel-print/journal.db");
    }

    /// One below the folder that a program happens to work in would be another one each time.
    void aHomeThatIsNoneHasNoJournal_data()
    {
        QTest::addColumn<QByteArray>("home");
        QTest::newRow("relative") << QByteArray("home");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("not there") << QByteArray();
    }

    void aHomeThatIsNoneHasNoJournal()
    {
        QFETCH(QByteArray, home);
        const QByteArray before = qgetenv("HOME");
        if (home.isNull())
            qunsetenv("HOME");
        else
            qputenv("HOME", home);
        const QString path = Journal::userPath();
        qputenv("XDG_DATA_HOME", "/data/lucia");
        const QString elsewhere = Journal::userPath();
        qputenv("HOME", before);
        qunsetenv("XDG_DATA_HOME");
        QCOMPARE(path, QString());
        QCOMPARE(elsewhere, "/data/lucia/korvel-print/journal.db");
    }

    void theFoldersOfTheUsersOwnAreMade()
    {
        const JournalFolder folder;
        qputenv("XDG_DATA_HOME", folder.filePath("a/b").toLocal8Bit());
        const QString path = Journal::userPath();
        QCOMPARE(errorOf([&] { Journal(path, Journal::Access::Write); }), "");
        qunsetenv("XDG_DATA_HOME");
        QCOMPARE(modeOf(path), 0600);
        for (const char *name : {"a", "a/b", "a/b/korvel-print"})
            QCOMPARE(modeOf(folder.filePath(name)), 0700);
    }

    void namesAreNothingElse_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name :
             {":memory:", "file:x.db?mode=memory", "with blank", "%41", "\xC3\xA8"})
            QTest::newRow(name) << QString::fromUtf8(name);
    }

    void namesAreNothingElse()
    {
        QFETCH(QString, name);
        const JournalFolder folder;
        const QString before = QDir::currentPath();
        QDir::setCurrent(folder.filePath(""));
        const QString error = errorOf([&] {
            Journal journal(name, Journal::Access::Write);
            deliver(journal, "a", {});
        });
        QDir::setCurrent(before);
        QCOMPARE(error, "");
        QVERIFY(QFile::exists(folder.filePath(name)));
    }

    void whatCannotBeOpened_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("error");
        QTest::newRow("text") << QByteArray(2000, 'x') << "it is no journal";
        QTest::newRow("a few bytes") << QByteArray("hello\n") << "it is no journal";
    }

    void whatCannotBeOpened()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, error);
        const JournalFolder folder;
        writeFile(folder.path(), content);
        QCOMPARE(errorOf([&] { static_cast<void>(folder.writer()); }),
                 folder.path() + ": " + error);
        QCOMPARE(errorOf([&] { static_cast<void>(folder.reader()); }),
                 folder.path() + ": " + error);
        QCOMPARE(bytesOf(folder.path()), content);
    }

    void anotherProgramsDatabaseIsLeftAlone()
    {
        const JournalFolder folder;
        writeFile(folder.path(), {});
        sqlite::Database(folder.path()).run("CREATE TABLE recipes (name TEXT)");
        const QByteArray before = bytesOf(folder.path());
        for (const auto access : {Journal::Access::Write, Journal::Access::Read})
            QCOMPARE(errorOf([&] { Journal(folder.path(), access); }),
                     folder.path() + ": it is no journal");
        QCOMPARE(bytesOf(folder.path()), before);
    }

    void whatIsNotThere()
    {
        const JournalFolder folder;
        QCOMPARE(errorOf([&] { static_cast<void>(folder.reader()); }),
                 folder.path() + ": there is no journal yet");
        QVERIFY(!QFile::exists(folder.path()));
        const QString deep = folder.filePath("no/such/folder.db");
        QCOMPARE(
            errorOf([&] { Journal(deep, Journal::Access::Write); }),
            deep
                + ": it cannot be made: No such file or directory; see that its folder is there"
                  " and may be written");
        QVERIFY(!errorOf([&] { Journal({}, Journal::Access::Read); }).isEmpty());
        const QString link = folder.filePath("link.db");
        QVERIFY(QFile::link(folder.filePath("gone.db"), link));
        QCOMPARE(errorOf([&] { Journal(link, Journal::Access::Write); }),
                 link + ": it leads to a file that is not there; name another");
    }

    void whatIsNoRegularFile()
    {
        const JournalFolder folder;
        for (const QString &path : {folder.filePath(""), QString("/dev/null")})
            for (const auto access : {Journal::Access::Write, Journal::Access::Read})
                QCOMPARE(errorOf([&] { Journal(path, access); }),
                         path + ": it is no regular file; name another");
    }

    /// An empty file is a journal of before the first schema.
    void anEmptyFileIsBroughtToThePresentSchema()
    {
        const JournalFolder folder;
        writeFile(folder.path(), {});
        {
            Journal reader = folder.reader();
            QCOMPARE(reader.head().number, 0);
            QVERIFY(!reader.find("a"));
            QCOMPARE(flawsOf(reader), {});
        }
        QCOMPARE(bytesOf(folder.path()), QByteArray());
        Journal journal = folder.writer();
        deliver(journal, "a", {});
        QCOMPARE(numberIn(folder.path(), "PRAGMA user_version"), 1);
        QCOMPARE(numberIn(folder.path(), "PRAGMA application_id"), 0x4B72764A);
        QCOMPARE(folder.reader().find("a")->state, State::Accepted);
    }

    void aNewerSchemaIsRefused()
    {
        const JournalFolder folder;
        {
            Journal journal = folder.writer();
            deliver(journal, "a", {});
        }
        sqlite::Database(folder.path()).run("PRAGMA user_version = 9");
        const QByteArray before = bytesOf(folder.path());
        for (const auto access : {Journal::Access::Write, Journal::Access::Read})
            QCOMPARE(errorOf([&] { Journal(folder.path(), access); }),
                     folder.path()
                         + ": it was written by a newer korvel-print (schema 9, this program knows"
                           " 1); update this program");
        QCOMPARE(bytesOf(folder.path()), before);
    }

    void aReaderWritesNothing()
    {
        const JournalFolder folder;
        {
            Journal journal = folder.writer();
            deliver(journal, "a", {State::Sending});
            deliver(journal, "old", {State::Sending, State::Sent});
        }
        const QByteArray before = bytesOf(folder.path());
        Journal reader = folder.reader();
        QVERIFY(!errorOf([&] { reader.change("a", State::Sent, till, {}); }).isEmpty());
        QVERIFY(!errorOf([&] { reader.accept("b", {}, till, {}); }).isEmpty());
        QVERIFY(
            !errorOf([&] { reader.forget(QDateTime::currentDateTimeUtc().addDays(1)); }).isEmpty());
        QCOMPARE(reader.find("a")->state, State::Sending);
        QCOMPARE(bytesOf(folder.path()), before);
    }

    /// A copy from before does not know what was sent since.
    void aDamagedOneSaysWhatNotToDo()
    {
        const JournalFolder folder;
        deliver(*std::make_unique<Journal>(folder.writer()), "a", {State::Sending});
        QByteArray bytes = bytesOf(folder.path());
        constexpr qsizetype page = 4096; // the first has the tables' names, and stays
        QVERIFY(bytes.size() > 2 * page);
        writeFile(folder.path(), bytes.first(page) + QByteArray(bytes.size() - page, '\xFF'));
        QCOMPARE(errorOf([&] { static_cast<void>(folder.reader().head()); }),
                 folder.path()
                     + ": it is damaged; keep the file. A copy from before does not know the ids"
                       " delivered since: call none of them again before somebody has looked at"
                       " the paper");
    }

    void whatMayOnlyBeReadIsRead()
    {
        const JournalFolder folder;
        {
            Journal journal = folder.writer();
            deliver(journal, "a", {State::Sending});
        }
        folder.makeReadOnly();
        bool isFound = false;
        QString failed;
        QString refused;
        {
            const OrdinaryUser user;
            failed = errorOf([&] {
                Journal reader = folder.reader();
                isFound = reader.find("a") && flawsOf(reader).isEmpty();
            });
            refused = errorOf([&] { folder.writer().change("a", State::Sent, till, {}); });
        }
        folder.makeWritable();
        QCOMPARE(failed, QString());
        QVERIFY(isFound);
        QCOMPARE(refused,
                 folder.path() + ": it may only be read; run this as someone who may write it");
    }
};

KORVEL_TEST(TestJournalFile)

} // namespace tst_journalfile

#include "tst_journalfile.moc"
