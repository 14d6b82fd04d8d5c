// The preview's stream taken apart: the commands that fit, and where sections open and close.
#include "support/spelt.h"
#include "support/streams.h"
#include "support/test.h"

namespace tst_previewcommands {

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

class TestPreviewCommands : public QObject
{
    Q_OBJECT

private slots:
    void commands_data()
    {
        addStreamColumns();

        streamRow("an empty stream has none", "", {});
        streamRow("a line", line("abc"), {"0:1 line 0 |abc|"});
        streamRow("an empty line", line(""), {"0:1 line 0 ||"});
        streamRow("lines follow each other", line("abc") + line("") + line("d"),
                  {"0:1 line 0 |abc|", "10:2 line 0 ||", "17:3 line 0 |d|"});
        streamRow("a line keeps its indent and the blanks behind it", line("  a  "),
                  {"0:1 line 0 |  a  |"});
        streamRow("a line is longer than the paper", line(QByteArray(100, 'x')),
                  {"0:1 line 0 |" + QString(100, 'x') + "|"});
        streamRow("a line of text in UTF-8", line("Caffè €") + line("\xF0\x9F\x8D\x95"),
                  {"0:1 line 0 |Caffè €|", "17:2 line 0 |\xF0\x9F\x8D\x95|"});
        streamRow("a line holds the marks of other commands", line("=o /$1/*2/(3 =T1"),
                  {"0:1 line 0 |=o /$1/*2/(3 =T1|"});
        streamRow("a fiscal section is opened by two commands", "=K\n=C1\n=T1\n",
                  {"0:1 opens fiscal", "7:3 closes fiscal"});
        streamRow("a receipt section", "=o/*1\n=o\n", {"0:1 opens receipt", "6:2 closes receipt"});
        streamRow("another section", "=o\n=o\n", {"0:1 opens document", "3:2 closes document"});
        streamRow("a sale row", "=R1/$120/*2/(COFFEE)\n", {"0:1 sale |1||120||2||COFFEE|"});
        streamRow("a sale row without texts", "=R/$/*/()\n", {"0:1 sale ||||||||"});
        streamRow("a sale row's texts as they are", "=R 1 /$1e+16/*2,5/( TOTALE \xC3\xA8 )\n",
                  {"0:1 sale | 1 ||1e+16||2,5|| TOTALE è |"});
        streamRow("a description holds the marks of a row", "=R1/$120/*2/(A/$1/*2/(B)\n",
                  {"0:1 sale |1||120||2||A/$1/*2/(B|"});
        streamRow("slashes in a department and a quantity", "=R1/2/$120/*1/3/(A/B)\n",
                  {"0:1 sale |1/2||120||1/3||A/B|"});
        streamRow("another mark in a department", "=R1/*/(/$120/*2/(A)\n",
                  {"0:1 sale |1/*/(||120||2||A|"});
        streamRow("a deduction takes two lines", "=S\r\n=V/$50\r\n=T1\n",
                  {"0:1 deduction |50|", "12:3 closes fiscal"});
        streamRow("a deduction without an amount's digits", "=S\r\n=V/$\r\n", {"0:1 deduction ||"});
        streamRow("a fiscal receipt", "=K\n=C1\n=R1/$120/*2/(COFFEE)\n=S\r\n=V/$50\r\n=T1\n",
                  {"0:1 opens fiscal", "7:3 sale |1||120||2||COFFEE|", "28:4 deduction |50|",
                   "40:6 closes fiscal"});
        streamRow("two documents in one stream", "=o/*1\n" + line("A") + "=o\n=K\n=C1\n=T1\n",
                  {"0:1 opens receipt", "6:2 line 0 |A|", "14:3 closes receipt",
                   "17:4 opens fiscal", "24:6 closes fiscal"});
    }

    void commands() { compareCommands(); }

    void nothingFollowsTheEnd()
    {
        Decoder decoder("=o\n");
        const auto command = decoder.next();
        QVERIFY(command);
        QCOMPARE(shown(*command), QString("0:1 closes document"));
        QVERIFY(!decoder.next());
        QVERIFY(!decoder.next());
        QVERIFY(!Decoder("").next());
    }

    // What a printer does with a text that holds the bytes around it is another matter: the stream
    // is taken apart as it was put together.
    void textsThatHoldTheirClosers_data()
    {
        addStreamColumns();

        streamRow("a parenthesis in a line", line("A)B"), {"0:1 line 0 |A)B|"});
        streamRow("a parenthesis behind a blank", line("A ) B"), {"0:1 line 0 |A ) B|"});
        streamRow("a closer's beginning at the end of a line", line("A )"), {"0:1 line 0 |A )|"});
        streamRow("a line feed in a line", line("A\nB") + "=T1\n",
                  {"0:1 line 0 |A\\nB|", "10:3 closes fiscal"});
        streamRow("only a line feed in a line", line("\n"), {"0:1 line 0 |\\n|"});
        streamRow("a carriage return in a line", line("A\r\nB\r"), {"0:1 line 0 |A\\r\\nB\\r|"});
        streamRow("a null in a line", line("A\0B"_ba), {"0:1 line 0 |A\\x00B|"});
        streamRow("not UTF-8 in a line", line("A\xFF\xC3"), {"0:1 line 0 |A\\xff\\xc3|"});
        streamRow("a parenthesis in a description", "=R1/$120/*2/(A)B)\n",
                  {"0:1 sale |1||120||2||A)B|"});
        streamRow("a parenthesis at the end of a description", "=R1/$120/*2/(A))\n",
                  {"0:1 sale |1||120||2||A)|"});
        streamRow("a line feed in a description", "=R1/$120/*2/(A\nB)\n=T1\n",
                  {"0:1 sale |1||120||2||A\\nB|", "18:3 closes fiscal"});
        streamRow("not UTF-8 and a null in a description", "=R1/$120/*2/(\xFF\0)\n"_ba,
                  {"0:1 sale |1||120||2||\\xff\\x00|"});
    }

    void textsThatHoldTheirClosers() { compareCommands(); }

    void openingOrClosing_data()
    {
        addStreamColumns();

        streamRow("none is open and nothing follows", "=o\n", {"0:1 closes document"});
        streamRow("a line follows", "=o\n" + line("A"), {"0:1 opens document", "3:2 line 0 |A|"});
        streamRow("something unknown follows", "=o\nx\n",
                  {"0:1 opens document", "3:2 unknown |x\\n| bad 3"});
        streamRow("a fiscal closing follows", "=o\n=T1\n",
                  {"0:1 opens document", "3:2 closes fiscal"});
        streamRow("a document is open", "=o\n=o\n", {"0:1 opens document", "3:2 closes document"});
        streamRow("a document was closed", "=o\n=o\n=o\n",
                  {"0:1 opens document", "3:2 closes document", "6:3 closes document"});
        streamRow("documents follow each other", "=o\n=o\n=o\n=o\n",
                  {"0:1 opens document", "3:2 closes document", "6:3 opens document",
                   "9:4 closes document"});
        streamRow(
            "a receipt is open", "=o/*1\n" + line("A") + "=o\n" + line("B"),
            {"0:1 opens receipt", "6:2 line 0 |A|", "14:3 closes receipt", "17:4 line 0 |B|"});
        streamRow("a receipt is opened next", "=o\n=o/*1\n=o\n",
                  {"0:1 closes document", "3:2 opens receipt", "9:3 closes receipt"});
        streamRow("a fiscal section is opened next", "=o\n=K\n=C1\n=T1\n",
                  {"0:1 closes document", "3:2 opens fiscal", "10:4 closes fiscal"});
        streamRow("a document is closed though a receipt is opened next", "=o\n=o\n=o/*1\n=o\n",
                  {"0:1 opens document", "3:2 closes document", "6:3 opens receipt",
                   "12:4 closes receipt"});
        streamRow(
            "a fiscal section is open", "=K\n=C1\n=o\n" + line("A") + "=o\n",
            {"0:1 opens fiscal", "7:3 opens document", "10:4 line 0 |A|", "18:5 closes document"});
        streamRow("a fiscal section is open, which has a closing of its own", "=K\n=C1\n=o\n",
                  {"0:1 opens fiscal", "7:3 opens document"});
        streamRow(
            "a fiscal section is open and another is opened next", "=K\n=C1\n=o\n=K\n=C1\n=T1\n",
            {"0:1 opens fiscal", "7:3 opens document", "10:4 opens fiscal", "17:6 closes fiscal"});
        streamRow(
            "a fiscal section was closed", "=K\n=C1\n=T1\n=o\n" + line("A"),
            {"0:1 opens fiscal", "7:3 closes fiscal", "11:4 opens document", "14:5 line 0 |A|"});
        streamRow("a fiscal closing closes no receipt", "=o/*1\n=T1\n=o\n",
                  {"0:1 opens receipt", "6:2 closes fiscal", "10:3 closes receipt"});
        streamRow("a second receipt closes once", "=o/*1\n=o/*1\n=o\n=o\n" + line("A"),
                  {"0:1 opens receipt", "6:2 opens receipt", "12:3 closes receipt",
                   "15:4 opens document", "18:5 line 0 |A|"});
        streamRow(
            "a document left open by a receipt", "=o\n" + line("A") + "=o/*1\n=o\n",
            {"0:1 opens document", "3:2 line 0 |A|", "11:3 opens receipt", "17:4 closes receipt"});
        streamRow("something unknown opens and closes nothing", "=o\nx\n=o\n=o\n" + line("A"),
                  {"0:1 opens document", "3:2 unknown |x\\n| bad 3", "5:3 closes document",
                   "8:4 opens document", "11:5 line 0 |A|"});
    }

    void openingOrClosing() { compareCommands(); }
};

KORVEL_TEST(TestPreviewCommands)

} // namespace tst_previewcommands

#include "tst_previewcommands.moc"
