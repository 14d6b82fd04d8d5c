// What the preview finds wrong with a stream: each finding beside what only looks like it.
#include "companions/preview/findings.h"
#include "companions/preview/paper.h"
#include "support/bytes.h"

#include <QDirIterator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

namespace {

/// What is found in a stream, as lines of text: "2: byte 6: ..." is about line 2 of the stream.
QStringList foundIn(const QByteArray &stream, int columns = 32)
{
    QStringList lines;
    for (const Finding &finding : findings(stream, columns)) {
        if (!finding.text.startsWith("byte " + QString::number(finding.offset) + ": "))
            lines.append("not at byte " + QString::number(finding.offset));
        lines.append(QString::number(finding.line) + ": " + finding.text);
    }
    return lines;
}

/// A line as the printer gets it: its text begins 4 bytes behind its start.
QByteArray line(const QByteArray &content) { return "=\"/(" + content + " )\n"; }

/// A fiscal receipt: its rows begin at byte 7, on line 3.
QByteArray fiscal(const QByteArray &rows) { return "=K\n=C1\n" + rows + "=T1\n"; }

void streamAndFindings()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QStringList>("expected");
}

void row(const char *name, const QByteArray &stream, const QStringList &expected = {})
{
    QTest::newRow(name) << stream << expected;
}

} // namespace

class TestFindings : public QObject
{
    Q_OBJECT

private:
    static void compare()
    {
        QFETCH(QByteArray, stream);
        QFETCH(QStringList, expected);
        QCOMPARE(foundIn(stream), expected);
    }

private slots:
    void clean_data()
    {
        streamAndFindings();
        row("a line outside a section", line("A"));
        row("a receipt", "=o/*1\n" + line("A") + line("") + "=o\n");
        row("another document", "=o\n" + line("A") + "=o\n");
        row("an empty document", "=o\n=o\n");
        row("a fiscal receipt", fiscal("=R1/$120/*2/(COFFEE)\n=S\r\n=V/$50\r\n"));
        row("documents one after the other",
            "=o/*1\n=o\n=o\n" + line("A") + "=o\n" + fiscal("") + "=o/*1\n=o\n" + fiscal(""));
    }
    void clean() { compare(); }

    void emptyStream()
    {
        QCOMPARE(foundIn(""), QStringList("1: byte 0: the stream is empty: nothing is printed"));
    }

    void sections_data()
    {
        streamAndFindings();
        row("a receipt is left open", "=o/*1\n" + line("A"),
            {"1: byte 0: the receipt section opened here is never closed"});
        row("a document is left open", line("A") + "=o\n" + line("B"),
            {"2: byte 8: the document section opened here is never closed"});
        row("a fiscal section is left open", "=K\n=C1\n=R1/$120/*2/(COFFEE)\n",
            {"1: byte 0: the fiscal section opened here is never closed"});
        row("a section is opened in another", "=o/*1\n=K\n=C1\n=T1\n",
            {"2: byte 6: the receipt section opened at byte 0 is still open where the fiscal "
             "section is opened"});
        row("a document is opened in a fiscal section", "=K\n=C1\n=o\n" + line("A") + "=o\n",
            {"3: byte 7: the fiscal section opened at byte 0 is still open where the document "
             "section is opened"});
        row("three sections, each in the one before", "=o\n" + line("A") + "=o/*1\n=o/*1\n=o\n",
            {"3: byte 11: the document section opened at byte 0 is still open where the receipt "
             "section is opened",
             "4: byte 17: the receipt section opened at byte 11 is still open where the receipt "
             "section is opened"});
        row("no section is open where one is opened", "=o/*1\n=o\n" + fiscal(""));
        row("a fiscal section is closed twice", fiscal("") + "=T1\n",
            {"4: byte 11: the fiscal section is closed but not open"});
        row("a document is closed twice", "=o\n=o\n=o\n",
            {"3: byte 6: the document section is closed but not open"});
        row("a receipt is closed twice", "=o/*1\n=o\n=o\n",
            {"3: byte 9: the document section is closed but not open"});
        row("a closing alone", "=o\n", {"1: byte 0: the document section is closed but not open"});
        row("a closing before an opening", "=o\n=o/*1\n=o\n",
            {"1: byte 0: the document section is closed but not open"});
        row("another section's closing", "=o/*1\n=T1\n=o\n",
            {"2: byte 6: the fiscal section is closed but not open"});
    }
    void sections() { compare(); }

    void registered_data()
    {
        streamAndFindings();
        row("a sale row without a section", "=R1/$120/*2/(COFFEE)\n",
            {"1: byte 0: a sale row outside a fiscal section"});
        row("a sale row in a receipt", "=o/*1\n=R1/$120/*2/(COFFEE)\n=o\n",
            {"2: byte 6: a sale row outside a fiscal section"});
        row("a sale row behind a fiscal section", fiscal("") + "=R1/$120/*2/(COFFEE)\n",
            {"4: byte 11: a sale row outside a fiscal section"});
        row("a deduction without a section", "=S\r\n=V/$50\r\n",
            {"1: byte 0: a deduction outside a fiscal section"});
        row("a deduction in a document", "=o\n=S\r\n=V/$50\r\n=o\n",
            {"2: byte 3: a deduction outside a fiscal section"});
        row("a line in a fiscal section", fiscal(line("A")));

        // The row's amount begins at byte 12, its quantity behind it.
        row("an amount with parts of a hundredth", fiscal("=R1/$100.5/*1/(A)\n"),
            {"3: byte 12: the amount \"100.5\" is no whole number of hundredths"});
        row("an amount behind a long department", fiscal("=R1234/$100.5/*1/(A)\n"),
            {"3: byte 15: the amount \"100.5\" is no whole number of hundredths"});
        row("an amount that is no number", fiscal("=R1/$nan/*1/(A)\n"),
            {"3: byte 12: the amount \"nan\" is no whole number of hundredths"});
        row("no amount", fiscal("=R1/$/*1/(A)\n"),
            {"3: byte 12: the amount \"\" is no whole number of hundredths"});
        row("an amount below zero", fiscal("=R1/$-5/*1/(A)\n"),
            {"3: byte 12: the amount \"-5\" is no whole number of hundredths"});
        row("an amount that does not print", fiscal("=R1/$\x1B/*1/(A)\n"),
            {"3: byte 12: the amount \"\\x1b\" is no whole number of hundredths"});
        row("an amount of 18 digits", fiscal("=R1/$999999999999999999/*1/(A)\n"));
        row("an amount of 0", fiscal("=R1/$0/*1/(A)\n"));
        row("a deduction with an exponent", fiscal("=S\r\n=V/$1e+16\r\n"),
            {"4: byte 15: the amount \"1e+16\" is no whole number of hundredths"});
        row("a deduction with parts of a hundredth", fiscal("=S\r\n=V/$0.5\r\n"),
            {"4: byte 15: the amount \"0.5\" is no whole number of hundredths"});

        row("a quantity that is no number", fiscal("=R1/$120/*two/(A)\n"),
            {"3: byte 17: the quantity \"two\" is no number"});
        row("no quantity", fiscal("=R1/$5/*/(A)\n"),
            {"3: byte 15: the quantity \"\" is no number"});
        row("a quantity with a comma", fiscal("=R1/$120/*2,5/(A)\n"));
        row("a quantity with a point", fiscal("=R1/$120/*0.125/(A)\n"));
        row("a slash in a department", fiscal("=R1/2/$120/*1/(A)\n"),
            {"3: byte 10: a \"/\" inside a field of a sale row ends it early"});
        row("a slash in a quantity", fiscal("=R1/$120/*1/2/(A)\n"),
            {"3: byte 17: the quantity \"1/2\" is no number",
             "3: byte 18: a \"/\" inside a field of a sale row ends it early"});
        row("a slash in a description", fiscal("=R1/$120/*1/(A/B)\n"));

        // At most 18 digits, and 170141183460469231731 hundredths, can be added up.
        row("a product that is too large", fiscal("=R1/$999999999999999999/*171/(A)\n"),
            {"3: byte 7: the sale row is too large for the preview to add up"});
        row("a product that is almost too large", fiscal("=R1/$999999999999999999/*170/(A)\n"));
        row("an amount of 19 digits", fiscal("=R1/$1000000000000000000/*1/(A)\n"),
            {"3: byte 7: the sale row is too large for the preview to add up"});
        row("a sum that is too large",
            fiscal("=R1/$999999999999999999/*170/(A)\n=R1/$999999999999999999/*170/(B)\n"),
            {"4: byte 40: the sale row is too large for the preview to add up"});
        row("two sums that are almost too large",
            fiscal("=R1/$999999999999999999/*170/(A)\n")
                + fiscal("=R1/$999999999999999999/*170/(B)\n"));
        row("a deduction makes room for a sale row",
            fiscal("=R1/$999999999999999999/*170/(A)\n=S\r\n=V/$999999999999999999\r\n"
                   "=R1/$999999999999999999/*1/(B)\n"));
        row("an amount and a quantity, outside a section", "=R1/$1.5/*x/(A)\n",
            {"1: byte 0: a sale row outside a fiscal section",
             "1: byte 5: the amount \"1.5\" is no whole number of hundredths",
             "1: byte 10: the quantity \"x\" is no number"});
        row("a row outside a fiscal section is not added up",
            "=o/*1\n=R1/$999999999999999999/*171/(A)\n=o\n",
            {"2: byte 6: a sale row outside a fiscal section"});
        row("a deduction of 19 digits", fiscal("=S\r\n=V/$1000000000000000000\r\n"),
            {"3: byte 7: the deduction is too large for the preview to add up"});
        row("a deduction of 18 digits", fiscal("=S\r\n=V/$999999999999999999\r\n"));
    }
    void registered() { compare(); }

    void texts_data()
    {
        streamAndFindings();
        row("a parenthesis in a line", line("A)B"),
            {"1: byte 5: a \")\" inside a text ends it early"});
        row("a parenthesis in a centred line", line(QByteArray(14, ' ') + "A)B"),
            {"1: byte 19: a \")\" inside a text ends it early"});
        row("each parenthesis is found", line("A)B)"),
            {"1: byte 5: a \")\" inside a text ends it early",
             "1: byte 7: a \")\" inside a text ends it early"});
        row("an opening parenthesis is text", line("A(B") + fiscal("=R1/$120/*1/(A(B)\n"));
        // `=R1/$120/*1/(` are 13 bytes from 7 on.
        row("a parenthesis in a description", fiscal("=R1/$120/*1/(A)B)\n"),
            {"3: byte 21: a \")\" inside a text ends it early"});
        row("a parenthesis at the end of a description", fiscal("=R1/$120/*1/(A))\n"),
            {"3: byte 21: a \")\" inside a text ends it early"});
        row("a parenthesis in a department", fiscal("=R1)/$120/*1/(A)\n"),
            {"3: byte 10: a \")\" inside a text ends it early"});
        row("a parenthesis in a quantity", fiscal("=R1/$120/*1)/(A)\n"),
            {"3: byte 17: the quantity \"1)\" is no number",
             "3: byte 18: a \")\" inside a text ends it early"});

        row("a line feed in a line", line("A\nB"),
            {"1: byte 5: the control character \"\\n\" inside a text"});
        row("a carriage return and a line feed", line("A\r\nB"),
            {"1: byte 5: the control character \"\\r\" inside a text",
             "1: byte 6: the control character \"\\n\" inside a text"});
        row("a tab in a line", line("A\tB"),
            {"1: byte 5: the control character \"\\t\" inside a text"});
        row("a null in a line", line("\0"_ba),
            {"1: byte 4: the control character \"\\x00\" inside a text"});
        row("a terminal's command in a line", line("Caffè\x1B[2J"),
            {"1: byte 10: the control character \"\\x1b\" inside a text"});
        row("a control character of two bytes", line("A\xC2\x85"),
            {"1: byte 5: the control character \"\\xc2\\x85\" inside a text"});
        row("a control character in a description", fiscal("=R1/$120/*1/(A\x7F)\n"),
            {"3: byte 21: the control character \"\\x7f\" inside a text"});
        row("a control character in a department", fiscal("=R1\t/$120/*1/(A)\n"),
            {"3: byte 10: the control character \"\\t\" inside a text"});
        row("a blank that does not break", line("A\xC2\xA0"
                                                "B"));
        row("a backslash", line("A\\nB"));

        row("not UTF-8 in a line", line("A\xFF"), {"1: byte 5: \"\\xff\" is not UTF-8"});
        row("such bytes that follow each other are found once", line("A\xFF\xFE"),
            {"1: byte 5: \"\\xff\" is not UTF-8"});
        row("such bytes apart are found each", line("A\xFF-\xFE"),
            {"1: byte 5: \"\\xff\" is not UTF-8", "1: byte 7: \"\\xfe\" is not UTF-8"});
        row("a character broken off", line("Caff\xC3"), {"1: byte 8: \"\\xc3\" is not UTF-8"});
        row("another character set", fiscal("=R1/$120/*1/(Caff\xE8)\n"),
            {"3: byte 24: \"\\xe8\" is not UTF-8"});
        row("UTF-8", line("Caff\xC3\xA8") + fiscal("=R1/$120/*1/(\xF0\x9F\x8D\x95)\n"));

        row("one of each kind, in the order of their bytes", line("A\x01)\xFF"),
            {"1: byte 5: the control character \"\\x01\" inside a text",
             "1: byte 6: a \")\" inside a text ends it early",
             "1: byte 7: \"\\xff\" is not UTF-8"});
        row("a control character behind what is not UTF-8", line("A\xFF\x01"),
            {"1: byte 5: \"\\xff\" is not UTF-8",
             "1: byte 6: the control character \"\\x01\" inside a text"});
        row("lines are counted inside a text", line("A\nB)"),
            {"1: byte 5: the control character \"\\n\" inside a text",
             "2: byte 7: a \")\" inside a text ends it early"});
        row("and behind it", line("A\nB") + line("C)"),
            {"1: byte 5: the control character \"\\n\" inside a text",
             "3: byte 15: a \")\" inside a text ends it early"});
    }
    void texts() { compare(); }

    void widths_data()
    {
        streamAndFindings();
        const QByteArray pizza = "\xF0\x9F\x8D\x95";
        row("a line of 32", line(QByteArray(32, 'x')));
        row("a line of 33", "=o\n" + line(QByteArray(33, 'x')) + "=o\n",
            {"2: byte 3: a line of 33 characters is wider than the paper (32)"});
        row("32 with its blanks", line("    " + QByteArray(28, 'x')));
        row("33 with its blanks", line("    " + QByteArray(29, 'x')),
            {"1: byte 0: a line of 33 characters is wider than the paper (32)"});
        row("33 with the blanks behind it", line(QByteArray(32, 'x') + ' '),
            {"1: byte 0: a line of 33 characters is wider than the paper (32)"});
        row("32 accented letters", line(QByteArray("è").repeated(32)));
        row("33 accented letters", line(QByteArray("è").repeated(33)),
            {"1: byte 0: a line of 33 characters is wider than the paper (32)"});
        row("16 emoji", line(pizza.repeated(16)));
        row("17 emoji count twice", line(pizza.repeated(17)),
            {"1: byte 0: a line of 34 characters is wider than the paper (32)"});
        row("a byte order mark counts as a character", line("\xEF\xBB\xBF" + QByteArray(32, 'x')),
            {"1: byte 0: a line of 33 characters is wider than the paper (32)"});
        row("a description of 32", fiscal("=R1/$120/*1/(" + QByteArray(32, 'x') + ")\n"));
        row("a description of 33", fiscal("=R1/$120/*1/(" + QByteArray(33, 'x') + ")\n"),
            {"3: byte 7: a sale row of 33 characters is wider than the paper (32)"});
        row("a description of 17 emoji", fiscal("=R1/$120/*1/(" + pizza.repeated(17) + ")\n"),
            {"3: byte 7: a sale row of 34 characters is wider than the paper (32)"});
        row("a long row with a short description",
            fiscal("=R12345678901234/$120/*1.00000000/(xxxxxxxxxx)\n"));
        // "  999999999999999999 x 9999999999999999.99"
        row("a quantity and an amount of very many digits",
            fiscal("=R1/$999999999999999999/*000000000000000001/(A)\n"),
            {"3: byte 7: a sale row of 42 characters is wider than the paper (32)"});
        // A minus sign, the amount in quotes, "/100".
        row("a deduction of a long amount", fiscal("=S\r\n=V/$" + QByteArray(40, 'x') + "\r\n"),
            {"3: byte 7: a deduction of 47 characters is wider than the paper (32)",
             "4: byte 15: the amount \"" + QString(40, 'x')
                 + "\" is no whole number of hundredths"});
    }
    void widths() { compare(); }

    void widthsOfOtherPaper()
    {
        QCOMPARE(foundIn(line("0123456789"), 10), QStringList());
        QCOMPARE(foundIn(line("0123456789"), 9),
                 QStringList("1: byte 0: a line of 10 characters is wider than the paper (9)"));
        const QByteArray title = line(QByteArray(13, ' ') + "CASSA");
        QCOMPARE(foundIn(title, 18), QStringList());
        QCOMPARE(foundIn(title, 17),
                 QStringList("1: byte 0: a line of 18 characters is wider than the paper (17)"));
        QCOMPARE(foundIn(line(QByteArray(33, 'x')), 40), QStringList());
        QCOMPARE(foundIn(fiscal("=R1/$1/*1/(012345678)\n"), 8),
                 QStringList("3: byte 7: a sale row of 9 characters is wider than the paper (8)"));
        QCOMPARE(foundIn(fiscal("=S\r\n=V/$5\r\n"), 9), QStringList());
        QCOMPARE(foundIn(fiscal("=S\r\n=V/$5\r\n"), 8),
                 QStringList("3: byte 7: a deduction of 9 characters is wider than the paper (8)"));
    }

    void unknown_data()
    {
        streamAndFindings();
        row("no command", "hello\n", {"1: byte 0: unknown command: \"h\" does not belong here"});
        row("no command begins so", line("A") + "=X\n",
            {"2: byte 9: unknown command: \"X\" does not belong here"});
        row("a character of several bytes", "è=o\n",
            {"1: byte 0: unknown command: \"è\" does not belong here"});
        row("not UTF-8", "\xFFo\n", {"1: byte 0: unknown command: \"\\xff\" does not belong here"});
        row("a terminal's command", "\x1B[2J\n",
            {"1: byte 0: unknown command: \"\\x1b\" does not belong here"});
        row("a byte order mark before a stream", "\xEF\xBB\xBF=T1\n",
            {"1: byte 0: unknown command: \"\\xef\\xbb\\xbf\" does not belong here"});
        row("empty lines", "\n\n",
            {"1: byte 0: unknown command: \"\\n\" does not belong here",
             "2: byte 1: unknown command: \"\\n\" does not belong here"});
        row("a = at the end", line("A") + "=",
            {"2: byte 9: unknown command that begins at byte 8: the stream ends here"});
        row("a command with another line end", fiscal("").chopped(1) + "\r\n",
            {"1: byte 0: the fiscal section opened here is never closed",
             "3: byte 10: unknown command: \"\\r\" does not belong here"});

        row("a line without a closer", "=\"/(AB\n" + line("C"),
            {"1: byte 6: broken text line: \"\\n\" does not belong here"});
        row("more behind a closer", "=\"/(AB )x\n",
            {"1: byte 8: broken text line: \"x\" does not belong here"});
        row("a line that ends with the stream", line("A") + "=\"/(AB",
            {"2: byte 14: unterminated text line that begins at byte 8: the stream ends here"});
        row("a line without its line feed", "=\"/(AB )",
            {"1: byte 8: unterminated text line that begins at byte 0: the stream ends here"});
        row("a row that breaks at a mark", fiscal("=R1/x120/*2/(A)\n"),
            {"3: byte 11: broken sale row: \"x\" does not belong here"});
        row("a row that ends too early", fiscal("=R1/$120\n"),
            {"3: byte 15: broken sale row: \"\\n\" does not belong here"});
        row("a row that ends with the stream", "=R1/$120/*2/(A",
            {"1: byte 14: unterminated sale row that begins at byte 0: the stream ends here"});
        row("half a pair before something else", "=S\r\nhello\n",
            {"2: byte 4: broken deduction: \"h\" does not belong here",
             "2: byte 4: unknown command: \"h\" does not belong here"});
        row("a deduction without a carriage return", fiscal("=S\r\n=V/$50\n"),
            {"4: byte 17: broken deduction: \"\\n\" does not belong here"});
        row("a deduction without its amount", fiscal("=S\r\n"),
            {"4: byte 12: broken deduction: \"T\" does not belong here"});
        row("a deduction that ends with the stream", "=S\r\n",
            {"2: byte 4: unterminated deduction that begins at byte 0: the stream ends here"});
        row("an amount without its announcement", fiscal("=V/$50\r\n"),
            {"3: byte 8: unknown command: \"V\" does not belong here"});
    }
    void unknown() { compare(); }

    void halfAnOpening()
    {
        const QByteArray stream = "=K\n";
        const QList<Finding> found = findings(stream, 32);
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.first().offset, 3);
        QCOMPARE(found.first().line, 2);
        QVERIFY(found.first().text.endsWith("that begins at byte 0: the stream ends here"));
    }

    void tooMany_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<qsizetype>("expected");
        QTest::addColumn<bool>("more");
        const auto row = [](const char *name, const QByteArray &stream, qsizetype expected,
                            bool more) { QTest::newRow(name) << stream << expected << more; };

        row("a thousand", QByteArray(1000, '\n'), 1000, false);
        row("one more", QByteArray(1001, '\n'), 1001, true);
        row("very many", QByteArray(100000, '\n'), 1001, true);
        row("a thousand in a line that is too wide", line(QByteArray(1000, ')')), 1001, true);
        row("a thousand in a section left open", "=o\n" + QByteArray(1000, '\n'), 1001, true);
    }

    void tooMany()
    {
        QFETCH(QByteArray, stream);
        QFETCH(qsizetype, expected);
        QFETCH(bool, more);
        QCOMPARE(mostFindings, 1000);
        const QList<Finding> found = findings(stream, 32);
        QCOMPARE(found.size(), expected);
        for (qsizetype i = 0; i < found.size(); ++i) {
            QCOMPARE(found[i].text.endsWith(": too much is wrong; no more is listed"),
                     more && i == mostFindings);
            QVERIFY(i == 0 || found[i].offset >= found[i - 1].offset);
            QCOMPARE(found[i].line, 1 + stream.first(found[i].offset).count('\n'));
        }
    }

    /// What the paper says is not counted is found too.
    void notCounted_data()
    {
        QTest::addColumn<QByteArray>("row");
        for (const char *row :
             {"=R1/$x/*1/(A)\n", "=R1/$1/*x/(A)\n", "=R1/$1000000000000000000/*1/(A)\n",
              "=R1/$1/*0.1234567891/(A)\n", "=R1/$999999999999999999/*171/(A)\n", "=S\r\n=V/$x\r\n",
              "=S\r\n=V/$1000000000000000000\r\n"})
            QTest::newRow(QByteArray(row).simplified()) << QByteArray(row);
    }

    void notCounted()
    {
        QFETCH(QByteArray, row);
        const QByteArray stream = fiscal(row);
        const QList<PaperRow> paper = paperOf(stream, 32);
        QVERIFY(paper.last().text.startsWith("Rows not counted "));
        const QStringList found = foundIn(stream);
        QCOMPARE(found.size(), 1);
        QVERIFY2(found.first().startsWith("3: ") || found.first().startsWith("4: "),
                 qPrintable(found.first()));
    }

    void severalInOrder()
    {
        QCOMPARE(foundIn("=o/*1\n"                   // from byte 0
                         + line("A)B")               // 6
                         + "oops\n"                  // 16
                           "=R1/$1.5/*x/(C)\n"       // 21
                         + line(QByteArray(33, 'x')) // 37
                         + "=T1\n"                   // 77
                           "=\"/(\x1B"),             // 81, and the end at 86
                 QStringList({
                     "1: byte 0: the receipt section opened here is never closed",
                     "2: byte 11: a \")\" inside a text ends it early",
                     "3: byte 16: unknown command: \"o\" does not belong here",
                     "4: byte 21: a sale row outside a fiscal section",
                     "4: byte 26: the amount \"1.5\" is no whole number of hundredths",
                     "4: byte 31: the quantity \"x\" is no number",
                     "5: byte 37: a line of 33 characters is wider than the paper (32)",
                     "6: byte 77: the fiscal section is closed but not open",
                     "7: byte 86: unterminated text line that begins at byte 81: the stream ends "
                     "here",
                 }));
    }

    void examples_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("expected");

        // Lines of the sample shop that a printer of 32 characters breaks in two.
        const QMap<QString, QStringList> wide = {
            {"period-report",
             {"30: byte 713: a line of 40 characters is wider than the paper (32)",
              "31: byte 760: a line of 41 characters is wider than the paper (32)",
              "38: byte 940: a line of 34 characters is wider than the paper (32)"}},
            {"receipt-summary",
             {"19: byte 501: a line of 34 characters is wider than the paper (32)"}},
        };
        int examples = 0;
        for (QDirIterator it(KORVEL_SOURCE_DIR "/examples/expected", {"*.out"}, QDir::Files);
             it.hasNext(); ++examples) {
            const QString path = it.next();
            const QString name = it.fileInfo().completeBaseName();
            QTest::newRow(qPrintable(name)) << path << wide.value(name);
        }
        QVERIFY(examples >= 13);
    }

    void examples()
    {
        QFETCH(QString, path);
        QFETCH(QStringList, expected);
        const QByteArray stream = bytesOf(path);
        QVERIFY(!stream.isEmpty());
        QCOMPARE(foundIn(stream), expected);
    }
};

QTEST_GUILESS_MAIN(TestFindings)
#include "tst_findings.moc"
