// The preview's stream taken apart: what fits no command, and the first byte that does not fit.
#include "support/spelt.h"
#include "support/streams.h"
#include "support/test.h"

namespace tst_previewunknown {

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

using Kind = Command::Kind;

class TestPreviewUnknown : public QObject
{
    Q_OBJECT

private slots:
    void unknown_data()
    {
        addStreamColumns();

        streamRow("without a =", "hello\n", {"0:1 unknown |hello\\n| bad 0"});
        streamRow("without a = and a line feed", "hello", {"0:1 unknown |hello| bad 0"});
        streamRow("it ends with its line", "hello\n=o\n",
                  {"0:1 unknown |hello\\n| bad 0", "6:2 closes document"});
        streamRow("a blank before a command", " =T1\n", {"0:1 unknown | =T1\\n| bad 0"});
        streamRow("empty lines, one by one", "\n\n",
                  {"0:1 unknown |\\n| bad 0", "1:2 unknown |\\n| bad 1"});
        streamRow("a null", "\0abc\n=T1\n"_ba,
                  {"0:1 unknown |\\x00abc\\n| bad 0", "5:2 closes fiscal"});
        streamRow("not UTF-8", "\xFF\xFE\n", {"0:1 unknown |\\xff\\xfe\\n| bad 0"});
        streamRow("a byte order mark before a command", "\xEF\xBB\xBF=T1\n",
                  {"0:1 unknown |\xEF\xBB\xBF=T1\\n| bad 0"});
        streamRow("a = alone", "=\n", {"0:1 unknown |=\\n| bad 1"});
        streamRow("a = at the end", "=", {"0:1 unknown |=| bad 1"});
        streamRow("no command begins so", "=X\n", {"0:1 unknown |=X\\n| bad 1"});
        streamRow("commands in small letters", "=r1/$1/*1/(A)\n=t1\n",
                  {"0:1 unknown |=r1/$1/*1/(A)\\n| bad 1", "14:2 unknown |=t1\\n| bad 15"});

        // Lines: `="/(` and a text of n bytes take 4 + n.
        streamRow("an opener breaks at its quote", "=x/(A )\n", {"0:1 unknown |=x/(A )\\n| bad 1"});
        streamRow("an opener breaks at its parenthesis", "=\"/A )\n",
                  {"0:1 unknown |=\"/A )\\n| bad 3"});
        streamRow("an opener at the end of the stream", "=\"/(",
                  {"0:1 unknown |=\"/(| bad 4 like line"});
        streamRow("a line ends with the stream", "=\"/(AB",
                  {"0:1 unknown |=\"/(AB| bad 6 like line"});
        streamRow("a line's closer lacks its line feed", "=\"/(AB )",
                  {"0:1 unknown |=\"/(AB )| bad 8 like line"});
        streamRow("a line without a closer", "=\"/(AB\n",
                  {"0:1 unknown |=\"/(AB\\n| bad 6 like line"});
        streamRow("a line without a closer, before a command", "=\"/(AB\n" + line("C"),
                  {"0:1 unknown |=\"/(AB\\n| bad 6 like line", "7:2 line 0 |C|"});
        streamRow("a closer without its blank", "=\"/(AB)\n",
                  {"0:1 unknown |=\"/(AB)\\n| bad 6 like line"});
        streamRow("more behind a closer", "=\"/(AB )x\n=T1\n",
                  {"0:1 unknown |=\"/(AB )x\\n| bad 8 like line", "10:2 closes fiscal"});
        streamRow("a carriage return behind a closer", "=\"/(AB )\r\n",
                  {"0:1 unknown |=\"/(AB )\\r\\n| bad 8 like line"});

        // Sale rows, broken at each of their marks.
        streamRow("a row at the end of the stream", "=R", {"0:1 unknown |=R| bad 2 like sale"});
        streamRow("a row of a department", "=R1\n", {"0:1 unknown |=R1\\n| bad 3 like sale"});
        streamRow("a row of a department, before another row", "=R1\n=R2/$120/*1/(A)\n",
                  {"0:1 unknown |=R1\\n| bad 3 like sale", "4:2 sale |2||120||1||A|"});
        streamRow("a row breaks at the amount's mark", "=R1/x120/*2/(A)\n",
                  {"0:1 unknown |=R1/x120/*2/(A)\\n| bad 4 like sale"});
        streamRow("a row without its quantity", "=R1/$120\n",
                  {"0:1 unknown |=R1/$120\\n| bad 8 like sale"});
        streamRow("a row breaks at the quantity's mark", "=R1/$120/x2/(A)\n",
                  {"0:1 unknown |=R1/$120/x2/(A)\\n| bad 9 like sale"});
        streamRow("a row without its description", "=R1/$120/*2\n",
                  {"0:1 unknown |=R1/$120/*2\\n| bad 11 like sale"});
        streamRow("a row breaks at the description's mark", "=R1/$120/*2/x\n",
                  {"0:1 unknown |=R1/$120/*2/x\\n| bad 12 like sale"});
        streamRow("a description without a closer", "=R1/$120/*2/(A\n",
                  {"0:1 unknown |=R1/$120/*2/(A\\n| bad 14 like sale"});
        streamRow("a description without a closer, before a command", "=R1/$120/*2/(A\n=T1\n",
                  {"0:1 unknown |=R1/$120/*2/(A\\n| bad 14 like sale", "15:2 closes fiscal"});
        streamRow("a description ends with the stream", "=R1/$120/*2/(A",
                  {"0:1 unknown |=R1/$120/*2/(A| bad 14 like sale"});
        streamRow("a description's closer lacks its line feed", "=R1/$120/*2/(A)",
                  {"0:1 unknown |=R1/$120/*2/(A)| bad 15 like sale"});
        streamRow("more behind a description", "=R1/$120/*2/(A)x\n",
                  {"0:1 unknown |=R1/$120/*2/(A)x\\n| bad 15 like sale"});
        // What stands before the mark of the amount is the department.
        streamRow("a row with its marks in another order", "=R1/*2/$120/(A)\n",
                  {"0:1 unknown |=R1/*2/$120/(A)\\n| bad 12 like sale"});

        // Deductions: what is announced in a line of its own may be missing.
        streamRow("an announcement at the end of the stream", "=S\r\n",
                  {"0:1 unknown |=S\\r\\n| bad 4 like deduction"});
        streamRow("an announcement before another command", "=S\r\n=T1\n",
                  {"0:1 unknown |=S\\r\\n| bad 5 like deduction", "4:2 closes fiscal"});
        streamRow("an announcement without a carriage return", "=S\n=V/$50\r\n",
                  {"0:1 unknown |=S\\n| bad 2", "3:2 unknown |=V/$50\\r\\n| bad 4"});
        streamRow("two announcements", "=S\r\n=S\r\n=V/$50\r\n",
                  {"0:1 unknown |=S\\r\\n| bad 5 like deduction", "4:2 deduction |50|"});
        streamRow("a deduction without an announcement", "=V/$50\r\n",
                  {"0:1 unknown |=V/$50\\r\\n| bad 1"});
        streamRow("an announcement before something unknown", "=S\r\nhello\n",
                  {"0:1 unknown |=S\\r\\n| bad 4 like deduction", "4:2 unknown |hello\\n| bad 4"});
        streamRow("a deduction without a carriage return", "=S\r\n=V/$50\n=T1\n",
                  {"0:1 unknown |=S\\r\\n=V/$50\\n| bad 10 like deduction", "11:3 closes fiscal"});
        streamRow("a deduction without a carriage return, before another",
                  "=S\r\n=V/$50\n=S\r\n=V/$60\r\n",
                  {"0:1 unknown |=S\\r\\n=V/$50\\n| bad 10 like deduction", "11:3 deduction |60|"});
        streamRow("a deduction ends with the stream", "=S\r\n=V/$50",
                  {"0:1 unknown |=S\\r\\n=V/$50| bad 10 like deduction"});
        streamRow("a deduction breaks at its mark", "=S\r\n=V/x\r\n",
                  {"0:1 unknown |=S\\r\\n=V/x\\r\\n| bad 7 like deduction"});
        streamRow("a deduction breaks in its line end", "=S\r\n=V/$50\rx\n",
                  {"0:1 unknown |=S\\r\\n=V/$50\\rx\\n| bad 11 like deduction"});
    }

    void unknown() { compareCommands(); }

    void brokenSections_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<qsizetype>("badByte");
        const auto row = [](const char *name, const QByteArray &stream, const QByteArray &content,
                            qsizetype badByte) {
            QTest::newRow(name) << stream << content << badByte;
        };

        row("half an opening of a fiscal section", "=K\n", "=K\n", 3);
        row("the other half differs", "=K\n=C2\n=T1\n", "=K\n=C2\n", 5);
        row("the other half lacks its line feed", "=K\n=C1", "=K\n=C1", 6);
        row("the other half is not there", "=K\n=T1\n", "=K\n", 4);
        row("the other half comes behind a line", "=K\n\n=C1\n", "=K\n", 3);
        row("the other half alone", "=C1\n", "=C1\n", 1);
        row("another number of a fiscal closing", "=T2\n", "=T2\n", 2);
        row("a fiscal closing with a carriage return", "=T1\r\n", "=T1\r\n", 3);
        row("another number of a receipt", "=o/*2\n", "=o/*2\n", 4);
        row("a document with a carriage return", "=o\r\n", "=o\r\n", 2);
        row("a document with a blank", "=o \n", "=o \n", 2);
        row("a document at the end of the stream", "=o", "=o", 2);
    }

    void brokenSections()
    {
        QFETCH(QByteArray, stream);
        QFETCH(QByteArray, content);
        QFETCH(qsizetype, badByte);
        const QList<Command> decoded = decode(stream);
        QVERIFY(!decoded.isEmpty());
        const Command &first = decoded.first();
        QVERIFY(first.kind == Kind::Unknown);
        QCOMPARE(spelt(first.content), spelt(content));
        QCOMPARE(first.badByte, badByte);
        QCOMPARE(gapIn(stream, decoded), QString());
    }
};

KORVEL_TEST(TestPreviewUnknown)

} // namespace tst_previewunknown

#include "tst_previewunknown.moc"
