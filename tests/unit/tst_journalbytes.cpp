// Each byte of each row changed in turn, and bytes of the file: verify() finds it.
#include "support/bytes.h"
#include "support/journals.h"
#include "support/test.h"

namespace tst_journalbytes {

using namespace korvel::delivery;

/// A document in every kind of state, with contents and without.
struct Filled : JournalFolder
{
    Filled()
    {
        Journal journal = writer();
        deliver(journal, "a", {State::NotSent, State::Sending, State::Sent});
        journal.forget(QDateTime::currentDateTimeUtc().addDays(1));
        journal.accept("d", {"j", "s", "c", "r", "o", "cp858"}, till, "lucia");
        journal.change("d", State::Sending, till, {});
        journal.change("d", State::InDoubt, till, "reset");
        journal.refuse("g", {"x", {}, {}, {}, {}, {}}, till, {}, "no method");
    }
};

/// A value as it stands in a statement.
QByteArray literal(const QByteArray &type, const QByteArray &value)
{
    if (type == "INTEGER")
        return value;
    const QByteArray blob = "x'" + value.toHex() + "'";
    return type == "TEXT" ? "CAST(" + blob + " AS TEXT)" : blob;
}

/// All values that differ from one in a byte.
QList<QByteArray> neighboursOf(const QByteArray &type, const QByteArray &value)
{
    QList<QByteArray> values;
    if (type == "INTEGER") {
        for (int byte = 0; byte < 8; ++byte)
            values.append(QByteArray::number(value.toLongLong() ^ (qint64(0x40) << (8 * byte))));
        return values;
    }
    for (qsizetype i = 0; i < value.size(); ++i) {
        QByteArray changed = value;
        changed[i] = static_cast<char>(changed[i] ^ 1);
        values.append(changed);
    }
    values.append(value + 'x');
    return values;
}

struct Column
{
    QByteArray name;
    QByteArray type;
};

class TestJournalBytes : public QObject
{
    Q_OBJECT

private slots:
    void eachByteOfEachRow_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("events") << 9;
        QTest::newRow("documents") << 3;
        QTest::newRow("uses") << 6;
        QTest::newRow("contents") << 6;
    }

    void eachByteOfEachRow()
    {
        QFETCH(int, rows);
        const QByteArray table = QTest::currentDataTag();
        const Filled folder;
        tamper(folder.path(), "");
        sqlite::Database database(folder.path());
        database.run("PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY");
        QList<Column> columns;
        sqlite::Statement info(database, "PRAGMA table_info(" + table + ")");
        for (info.with(); info.step();)
            columns.append({info.bytes(1), info.bytes(2)});
        QList<QByteArrayList> values;
        {
            sqlite::Statement row(database, "SELECT * FROM " + table);
            for (row.with(); row.step();) {
                values.append(QByteArrayList());
                for (int i = 0; i < columns.size(); ++i)
                    values.last().append(row.bytes(i));
            }
        }
        QCOMPARE(values.size(), rows);

        Journal journal = folder.reader();
        QCOMPARE(flawsOf(journal), {});
        for (const QByteArrayList &row : values) {
            for (qsizetype i = 0; i < columns.size(); ++i) {
                const QByteArray &name = columns[i].name;
                const auto &type = columns[i].type;
                for (const QByteArray &value : neighboursOf(type, row[i])) {
                    const auto change = [&](const QByteArray &from, const QByteArray &to) {
                        QByteArray place;
                        for (qsizetype k = 0; k < columns.size(); ++k)
                            place += (k == 0 ? " WHERE " : " AND ") + columns[k].name + " = "
                                     + literal(columns[k].type, k == i ? from : row[k]);
                        database.run("UPDATE " + table + " SET " + name + " = " + literal(type, to)
                                     + place);
                    };
                    change(row[i], value);
                    const QStringList flaws = flawsOf(journal);
                    change(value, row[i]);
                    QVERIFY2(!flaws.isEmpty(), name + ": " + row[i] + " to " + value);
                }
            }
        }
        QCOMPARE(flawsOf(journal), {});
    }

    /// A byte anywhere in the file either changes nothing that the journal says, or is found.
    void bytesOfTheFile()
    {
        const Filled folder;
        const auto told = [&]() {
            Journal journal = folder.reader();
            QStringList all = flawsOf(journal);
            if (!all.isEmpty())
                return QString("found");
            for (const char *id : {"a", "d", "g"}) {
                const auto document = journal.find(id);
                const Contents contents = document ? journal.contentsOf(*document) : Contents();
                all += {id,
                        document ? infoOf(document->state).name : "none"_L1,
                        document ? document->detail : QString(),
                        contents.job,
                        contents.settings,
                        contents.catalogue,
                        contents.rendered,
                        contents.sent,
                        contents.charset};
                for (const Event &event : journal.events(id))
                    all += {event.name, event.device, event.detail, event.hash};
            }
            journal.eachDocument(State::InDoubt, {},
                                 [&](const Document &document) { all += document.id; });
            return all.join('|');
        };
        const QString before = told();
        QVERIFY(before.contains("in-doubt"));
        const QByteArray file = bytesOf(folder.path());
        int found = 0;
        for (qsizetype i = 0; i < file.size(); i += 23) {
            QByteArray changed = file;
            changed[i] = static_cast<char>(changed[i] ^ 0x21);
            writeFile(folder.path(), changed);
            QString now;
            const QString error = errorOf([&] { now = told(); });
            if (!error.isEmpty() || now == "found")
                ++found;
            else
                QVERIFY2(now == before, qPrintable(QString::number(i) + ": " + now));
        }
        QVERIFY2(found > 50, qPrintable(QString::number(found)));
    }
};

KORVEL_TEST(TestJournalBytes)

} // namespace tst_journalbytes

#include "tst_journalbytes.moc"
