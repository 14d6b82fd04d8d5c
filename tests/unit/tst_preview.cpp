// The preview's stream taken apart and put together again; its amounts, texts and listings.
#include "companions/preview/amounts.h"
#include "companions/preview/listing.h"
#include "companions/preview/text.h"
#include "support/bytes.h"
#include "support/commands.h"

#include <QDirIterator>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

using Kind = Command::Kind;

namespace {

/// Bytes between bars, with those that do not print as text spelt out.
QString spelt(const QByteArray &bytes)
{
    const bool text = bytes.isValidUtf8();
    QByteArray result = "|";
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        if (byte == '\n')
            result += "\\n";
        else if (byte == '\r')
            result += "\\r";
        else if (value < 0x20 || value == 0x7F || (value >= 0x80 && !text))
            result += "\\x" + QByteArray(1, byte).toHex();
        else
            result += byte;
    }
    return QString::fromUtf8(result + "|");
}

QString nameOf(Kind kind)
{
    switch (kind) {
    case Kind::Line:
        return "line";
    case Kind::SectionOpened:
        return "opens";
    case Kind::SectionClosed:
        return "closes";
    case Kind::SaleRow:
        return "sale";
    case Kind::Deduction:
        return "deduction";
    case Kind::Unknown:
        break;
    }
    return "unknown";
}

QString nameOf(Section section)
{
    switch (section) {
    case Section::Fiscal:
        return "fiscal";
    case Section::Receipt:
        return "receipt";
    case Section::Document:
        break;
    }
    return "document";
}

/// A command as one line: offset and line of the stream, kind, and the fields of that kind. A
/// line shows its centring blanks as a number.
QString shown(const Command &command)
{
    const QString start = QString::number(command.offset) + ':' + QString::number(command.line)
                          + ' ' + nameOf(command.kind) + ' ';
    switch (command.kind) {
    case Kind::Line:
        return start + QString::number(command.spaces) + ' ' + spelt(command.content);
    case Kind::SectionOpened:
    case Kind::SectionClosed:
        return start + nameOf(command.section);
    case Kind::SaleRow:
        return start + spelt(command.department) + spelt(command.amount) + spelt(command.quantity)
               + spelt(command.description);
    case Kind::Deduction:
        return start + spelt(command.amount);
    case Kind::Unknown:
        break;
    }
    return start + spelt(command.content) + " bad " + QString::number(command.badByte)
           + (command.begunAs ? " like " + nameOf(*command.begunAs) : QString());
}

QStringList shown(const QList<Command> &commands)
{
    QStringList lines;
    for (const Command &command : commands)
        lines.append(shown(command));
    return lines;
}

/// What is wrong with how commands cover their stream, each written back at its offset; empty when
/// nothing is.
QString gapIn(const QByteArray &stream, const QList<Command> &commands)
{
    qsizetype end = 0;
    qsizetype line = 1;
    for (const Command &command : commands) {
        const QByteArray bytes = encode(command);
        if (command.offset != end || command.line != line)
            return QString("not at byte %1, line %2: ").arg(end).arg(line) + shown(command);
        if (bytes.isEmpty() || stream.mid(end, bytes.size()) != bytes)
            return "written back as " + spelt(bytes) + ": " + shown(command);
        end += bytes.size();
        line += bytes.count('\n');
    }
    return end == stream.size() ? QString() : QString("nothing covers byte %1").arg(end);
}

/// A line as the printer gets it.
QByteArray line(const QByteArray &content) { return "=\"/(" + content + " )\n"; }

QByteArray blanks(int count) { return QByteArray(count, ' '); }

/// Paths of all files in a folder and below whose name matches.
QStringList filesBelow(const QString &folder, const QString &pattern)
{
    QStringList files;
    for (QDirIterator it(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();)
        files.append(it.next());
    files.sort();
    return files;
}

Command commandOf(Kind kind, Section section = Section::Document)
{
    Command command;
    command.kind = kind;
    command.section = section;
    return command;
}

Command lineOf(int spaces, const QByteArray &content)
{
    Command command = commandOf(Kind::Line);
    command.spaces = spaces;
    command.content = content;
    return command;
}

Command saleRowOf(const QByteArray &department, const QByteArray &amount,
                  const QByteArray &quantity, const QByteArray &description)
{
    Command command = commandOf(Kind::SaleRow);
    command.department = department;
    command.amount = amount;
    command.quantity = quantity;
    command.description = description;
    return command;
}

Command deductionOf(const QByteArray &amount)
{
    Command command = commandOf(Kind::Deduction);
    command.amount = amount;
    return command;
}

Command unknownOf(const QByteArray &content)
{
    Command command;
    command.content = content;
    return command;
}

} // namespace

class TestPreview : public QObject
{
    Q_OBJECT

private slots:
    void commands_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QByteArray &stream,
                            const QStringList &expected) {
            QTest::newRow(name) << stream << expected;
        };

        row("an empty stream has none", "", {});
        row("a line", line("abc"), {"0:1 line 0 |abc|"});
        row("an empty line", line(""), {"0:1 line 0 ||"});
        row("lines follow each other", line("abc") + line("") + line("d"),
            {"0:1 line 0 |abc|", "10:2 line 0 ||", "17:3 line 0 |d|"});
        row("a line keeps its indent and the blanks behind it", line("  a  "),
            {"0:1 line 0 |  a  |"});
        row("a line is longer than the paper", line(QByteArray(100, 'x')),
            {"0:1 line 0 |" + QString(100, 'x') + "|"});
        row("a line of text in UTF-8", line("Caffè €") + line("\xF0\x9F\x8D\x95"),
            {"0:1 line 0 |Caffè €|", "17:2 line 0 |\xF0\x9F\x8D\x95|"});
        row("a line holds the marks of other commands", line("=o /$1/*2/(3 =T1"),
            {"0:1 line 0 |=o /$1/*2/(3 =T1|"});
        row("a fiscal section is opened by two commands", "=K\n=C1\n=T1\n",
            {"0:1 opens fiscal", "7:3 closes fiscal"});
        row("a receipt section", "=o/*1\n=o\n", {"0:1 opens receipt", "6:2 closes receipt"});
        row("another section", "=o\n=o\n", {"0:1 opens document", "3:2 closes document"});
        row("a sale row", "=R1/$120/*2/(COFFEE)\n", {"0:1 sale |1||120||2||COFFEE|"});
        row("a sale row without texts", "=R/$/*/()\n", {"0:1 sale ||||||||"});
        row("a sale row's texts as they are", "=R 1 /$1e+16/*2,5/( TOTALE \xC3\xA8 )\n",
            {"0:1 sale | 1 ||1e+16||2,5|| TOTALE è |"});
        row("a description holds the marks of a row", "=R1/$120/*2/(A/$1/*2/(B)\n",
            {"0:1 sale |1||120||2||A/$1/*2/(B|"});
        row("slashes in a department and a quantity", "=R1/2/$120/*1/3/(A/B)\n",
            {"0:1 sale |1/2||120||1/3||A/B|"});
        row("another mark in a department", "=R1/*/(/$120/*2/(A)\n",
            {"0:1 sale |1/*/(||120||2||A|"});
        row("a deduction takes two lines", "=S\r\n=V/$50\r\n=T1\n",
            {"0:1 deduction |50|", "12:3 closes fiscal"});
        row("a deduction without an amount's digits", "=S\r\n=V/$\r\n", {"0:1 deduction ||"});
        row("a fiscal receipt", "=K\n=C1\n=R1/$120/*2/(COFFEE)\n=S\r\n=V/$50\r\n=T1\n",
            {"0:1 opens fiscal", "7:3 sale |1||120||2||COFFEE|", "28:4 deduction |50|",
             "40:6 closes fiscal"});
        row("two documents in one stream", "=o/*1\n" + line("A") + "=o\n=K\n=C1\n=T1\n",
            {"0:1 opens receipt", "6:2 line 0 |A|", "14:3 closes receipt", "17:4 opens fiscal",
             "24:6 closes fiscal"});
    }

    void commands()
    {
        QFETCH(QByteArray, stream);
        QFETCH(QStringList, expected);
        const QList<Command> decoded = decode(stream);
        QCOMPARE(shown(decoded), expected);
        QCOMPARE(gapIn(stream, decoded), QString());
    }

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
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QByteArray &stream,
                            const QStringList &expected) {
            QTest::newRow(name) << stream << expected;
        };

        row("a parenthesis in a line", line("A)B"), {"0:1 line 0 |A)B|"});
        row("a parenthesis behind a blank", line("A ) B"), {"0:1 line 0 |A ) B|"});
        row("a closer's beginning at the end of a line", line("A )"), {"0:1 line 0 |A )|"});
        row("a line feed in a line", line("A\nB") + "=T1\n",
            {"0:1 line 0 |A\\nB|", "10:3 closes fiscal"});
        row("only a line feed in a line", line("\n"), {"0:1 line 0 |\\n|"});
        row("a carriage return in a line", line("A\r\nB\r"), {"0:1 line 0 |A\\r\\nB\\r|"});
        row("a null in a line", line("A\0B"_ba), {"0:1 line 0 |A\\x00B|"});
        row("not UTF-8 in a line", line("A\xFF\xC3"), {"0:1 line 0 |A\\xff\\xc3|"});
        row("a parenthesis in a description", "=R1/$120/*2/(A)B)\n", {"0:1 sale |1||120||2||A)B|"});
        row("a parenthesis at the end of a description", "=R1/$120/*2/(A))\n",
            {"0:1 sale |1||120||2||A)|"});
        row("a line feed in a description", "=R1/$120/*2/(A\nB)\n=T1\n",
            {"0:1 sale |1||120||2||A\\nB|", "18:3 closes fiscal"});
        row("not UTF-8 and a null in a description", "=R1/$120/*2/(\xFF\0)\n"_ba,
            {"0:1 sale |1||120||2||\\xff\\x00|"});
    }

    void textsThatHoldTheirClosers() { commands(); }

    void unknown_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QByteArray &stream,
                            const QStringList &expected) {
            QTest::newRow(name) << stream << expected;
        };

        row("without a =", "hello\n", {"0:1 unknown |hello\\n| bad 0"});
        row("without a = and a line feed", "hello", {"0:1 unknown |hello| bad 0"});
        row("it ends with its line", "hello\n=o\n",
            {"0:1 unknown |hello\\n| bad 0", "6:2 closes document"});
        row("a blank before a command", " =T1\n", {"0:1 unknown | =T1\\n| bad 0"});
        row("empty lines, one by one", "\n\n",
            {"0:1 unknown |\\n| bad 0", "1:2 unknown |\\n| bad 1"});
        row("a null", "\0abc\n=T1\n"_ba, {"0:1 unknown |\\x00abc\\n| bad 0", "5:2 closes fiscal"});
        row("not UTF-8", "\xFF\xFE\n", {"0:1 unknown |\\xff\\xfe\\n| bad 0"});
        row("a byte order mark before a command", "\xEF\xBB\xBF=T1\n",
            {"0:1 unknown |\xEF\xBB\xBF=T1\\n| bad 0"});
        row("a = alone", "=\n", {"0:1 unknown |=\\n| bad 1"});
        row("a = at the end", "=", {"0:1 unknown |=| bad 1"});
        row("no command begins so", "=X\n", {"0:1 unknown |=X\\n| bad 1"});
        row("commands in small letters", "=r1/$1/*1/(A)\n=t1\n",
            {"0:1 unknown |=r1/$1/*1/(A)\\n| bad 1", "14:2 unknown |=t1\\n| bad 15"});

        // Lines: `="/(` and a text of n bytes take 4 + n.
        row("an opener breaks at its quote", "=x/(A )\n", {"0:1 unknown |=x/(A )\\n| bad 1"});
        row("an opener breaks at its parenthesis", "=\"/A )\n", {"0:1 unknown |=\"/A )\\n| bad 3"});
        row("an opener at the end of the stream", "=\"/(", {"0:1 unknown |=\"/(| bad 4 like line"});
        row("a line ends with the stream", "=\"/(AB", {"0:1 unknown |=\"/(AB| bad 6 like line"});
        row("a line's closer lacks its line feed", "=\"/(AB )",
            {"0:1 unknown |=\"/(AB )| bad 8 like line"});
        row("a line without a closer", "=\"/(AB\n", {"0:1 unknown |=\"/(AB\\n| bad 6 like line"});
        row("a line without a closer, before a command", "=\"/(AB\n" + line("C"),
            {"0:1 unknown |=\"/(AB\\n| bad 6 like line", "7:2 line 0 |C|"});
        row("a closer without its blank", "=\"/(AB)\n",
            {"0:1 unknown |=\"/(AB)\\n| bad 6 like line"});
        row("more behind a closer", "=\"/(AB )x\n=T1\n",
            {"0:1 unknown |=\"/(AB )x\\n| bad 8 like line", "10:2 closes fiscal"});
        row("a carriage return behind a closer", "=\"/(AB )\r\n",
            {"0:1 unknown |=\"/(AB )\\r\\n| bad 8 like line"});

        // Sale rows, broken at each of their marks.
        row("a row at the end of the stream", "=R", {"0:1 unknown |=R| bad 2 like sale"});
        row("a row of a department", "=R1\n", {"0:1 unknown |=R1\\n| bad 3 like sale"});
        row("a row of a department, before another row", "=R1\n=R2/$120/*1/(A)\n",
            {"0:1 unknown |=R1\\n| bad 3 like sale", "4:2 sale |2||120||1||A|"});
        row("a row breaks at the amount's mark", "=R1/x120/*2/(A)\n",
            {"0:1 unknown |=R1/x120/*2/(A)\\n| bad 4 like sale"});
        row("a row without its quantity", "=R1/$120\n",
            {"0:1 unknown |=R1/$120\\n| bad 8 like sale"});
        row("a row breaks at the quantity's mark", "=R1/$120/x2/(A)\n",
            {"0:1 unknown |=R1/$120/x2/(A)\\n| bad 9 like sale"});
        row("a row without its description", "=R1/$120/*2\n",
            {"0:1 unknown |=R1/$120/*2\\n| bad 11 like sale"});
        row("a row breaks at the description's mark", "=R1/$120/*2/x\n",
            {"0:1 unknown |=R1/$120/*2/x\\n| bad 12 like sale"});
        row("a description without a closer", "=R1/$120/*2/(A\n",
            {"0:1 unknown |=R1/$120/*2/(A\\n| bad 14 like sale"});
        row("a description without a closer, before a command", "=R1/$120/*2/(A\n=T1\n",
            {"0:1 unknown |=R1/$120/*2/(A\\n| bad 14 like sale", "15:2 closes fiscal"});
        row("a description ends with the stream", "=R1/$120/*2/(A",
            {"0:1 unknown |=R1/$120/*2/(A| bad 14 like sale"});
        row("a description's closer lacks its line feed", "=R1/$120/*2/(A)",
            {"0:1 unknown |=R1/$120/*2/(A)| bad 15 like sale"});
        row("more behind a description", "=R1/$120/*2/(A)x\n",
            {"0:1 unknown |=R1/$120/*2/(A)x\\n| bad 15 like sale"});
        // What stands before the mark of the amount is the department.
        row("a row with its marks in another order", "=R1/*2/$120/(A)\n",
            {"0:1 unknown |=R1/*2/$120/(A)\\n| bad 12 like sale"});

        // Deductions: what is announced in a line of its own may be missing.
        row("an announcement at the end of the stream", "=S\r\n",
            {"0:1 unknown |=S\\r\\n| bad 4 like deduction"});
        row("an announcement before another command", "=S\r\n=T1\n",
            {"0:1 unknown |=S\\r\\n| bad 5 like deduction", "4:2 closes fiscal"});
        row("an announcement without a carriage return", "=S\n=V/$50\r\n",
            {"0:1 unknown |=S\\n| bad 2", "3:2 unknown |=V/$50\\r\\n| bad 4"});
        row("two announcements", "=S\r\n=S\r\n=V/$50\r\n",
            {"0:1 unknown |=S\\r\\n| bad 5 like deduction", "4:2 deduction |50|"});
        row("a deduction without an announcement", "=V/$50\r\n",
            {"0:1 unknown |=V/$50\\r\\n| bad 1"});
        row("an announcement before something unknown", "=S\r\nhello\n",
            {"0:1 unknown |=S\\r\\n| bad 4 like deduction", "4:2 unknown |hello\\n| bad 4"});
        row("a deduction without a carriage return", "=S\r\n=V/$50\n=T1\n",
            {"0:1 unknown |=S\\r\\n=V/$50\\n| bad 10 like deduction", "11:3 closes fiscal"});
        row("a deduction without a carriage return, before another",
            "=S\r\n=V/$50\n=S\r\n=V/$60\r\n",
            {"0:1 unknown |=S\\r\\n=V/$50\\n| bad 10 like deduction", "11:3 deduction |60|"});
        row("a deduction ends with the stream", "=S\r\n=V/$50",
            {"0:1 unknown |=S\\r\\n=V/$50| bad 10 like deduction"});
        row("a deduction breaks at its mark", "=S\r\n=V/x\r\n",
            {"0:1 unknown |=S\\r\\n=V/x\\r\\n| bad 7 like deduction"});
        row("a deduction breaks in its line end", "=S\r\n=V/$50\rx\n",
            {"0:1 unknown |=S\\r\\n=V/$50\\rx\\n| bad 11 like deduction"});
    }

    void unknown() { commands(); }

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

    void openingOrClosing_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QByteArray &stream,
                            const QStringList &expected) {
            QTest::newRow(name) << stream << expected;
        };

        row("none is open and nothing follows", "=o\n", {"0:1 closes document"});
        row("a line follows", "=o\n" + line("A"), {"0:1 opens document", "3:2 line 0 |A|"});
        row("something unknown follows", "=o\nx\n",
            {"0:1 opens document", "3:2 unknown |x\\n| bad 3"});
        row("a fiscal closing follows", "=o\n=T1\n", {"0:1 opens document", "3:2 closes fiscal"});
        row("a document is open", "=o\n=o\n", {"0:1 opens document", "3:2 closes document"});
        row("a document was closed", "=o\n=o\n=o\n",
            {"0:1 opens document", "3:2 closes document", "6:3 closes document"});
        row("documents follow each other", "=o\n=o\n=o\n=o\n",
            {"0:1 opens document", "3:2 closes document", "6:3 opens document",
             "9:4 closes document"});
        row("a receipt is open", "=o/*1\n" + line("A") + "=o\n" + line("B"),
            {"0:1 opens receipt", "6:2 line 0 |A|", "14:3 closes receipt", "17:4 line 0 |B|"});
        row("a receipt is opened next", "=o\n=o/*1\n=o\n",
            {"0:1 closes document", "3:2 opens receipt", "9:3 closes receipt"});
        row("a fiscal section is opened next", "=o\n=K\n=C1\n=T1\n",
            {"0:1 closes document", "3:2 opens fiscal", "10:4 closes fiscal"});
        row("a document is closed though a receipt is opened next", "=o\n=o\n=o/*1\n=o\n",
            {"0:1 opens document", "3:2 closes document", "6:3 opens receipt",
             "12:4 closes receipt"});
        row("a fiscal section is open", "=K\n=C1\n=o\n" + line("A") + "=o\n",
            {"0:1 opens fiscal", "7:3 opens document", "10:4 line 0 |A|", "18:5 closes document"});
        row("a fiscal section is open, which has a closing of its own", "=K\n=C1\n=o\n",
            {"0:1 opens fiscal", "7:3 opens document"});
        row("a fiscal section is open and another is opened next", "=K\n=C1\n=o\n=K\n=C1\n=T1\n",
            {"0:1 opens fiscal", "7:3 opens document", "10:4 opens fiscal", "17:6 closes fiscal"});
        row("a fiscal section was closed", "=K\n=C1\n=T1\n=o\n" + line("A"),
            {"0:1 opens fiscal", "7:3 closes fiscal", "11:4 opens document", "14:5 line 0 |A|"});
        row("a fiscal closing closes no receipt", "=o/*1\n=T1\n=o\n",
            {"0:1 opens receipt", "6:2 closes fiscal", "10:3 closes receipt"});
        row("a second receipt closes once", "=o/*1\n=o/*1\n=o\n=o\n" + line("A"),
            {"0:1 opens receipt", "6:2 opens receipt", "12:3 closes receipt", "15:4 opens document",
             "18:5 line 0 |A|"});
        row("a document left open by a receipt", "=o\n" + line("A") + "=o/*1\n=o\n",
            {"0:1 opens document", "3:2 line 0 |A|", "11:3 opens receipt", "17:4 closes receipt"});
        row("something unknown opens and closes nothing", "=o\nx\n=o\n=o\n" + line("A"),
            {"0:1 opens document", "3:2 unknown |x\\n| bad 3", "5:3 closes document",
             "8:4 opens document", "11:5 line 0 |A|"});
    }

    void openingOrClosing() { commands(); }

    void centring_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("spaces");
        const auto row = [](const char *name, const QByteArray &content, int spaces) {
            QTest::newRow(name) << content << spaces;
        };

        row("nothing: half the paper", "", 16);
        row("1 character, half rounded down", "x", 15);
        row("2 characters", "xx", 15);
        row("CASSA", "CASSA", 13);
        row("29 characters", QByteArray(29, 'x'), 1);
        row("30 characters", QByteArray(30, 'x'), 1);
        row("31 characters have no blank", QByteArray(31, 'x'), 0);
        row("32 characters have no blank", QByteArray(32, 'x'), 0);
        row("40 characters have no blank", QByteArray(40, 'x'), 0);
        row("an accented letter counts as one", "Caffè", 13);
        row("30 accented letters", QByteArray("è").repeated(30), 1);
        row("an emoji counts as two", "\xF0\x9F\x8D\x95", 15);
        row("15 emoji", QByteArray("\xF0\x9F\x8D\x95").repeated(15), 1);
        row("an indent belongs to the text", " Date: x", 12);
        row("blanks behind the text belong to it", "CASSA  ", 12);
    }

    void centring()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, spaces);
        const QList<Command> decoded = decode(line(blanks(spaces) + content));
        QCOMPARE(decoded.size(), 1);
        QCOMPARE(spelt(decoded.first().content), spelt(content));
        QCOMPARE(decoded.first().spaces, spaces);
    }

    void notCentred_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("a blank less than centring puts") << QByteArray(blanks(12) + "CASSA");
        QTest::newRow("a blank less than an empty line has") << blanks(15);
        QTest::newRow("an indent of 1") << QByteArray(" Serial Number: 118");
        QTest::newRow("an indent of 4") << QByteArray("    Amount not paid: 30.90");
        QTest::newRow("a row as wide as the paper")
            << QByteArray("  3 x Coperto.......2.00    6.00");
        QTest::newRow("a row wider than the paper") << QByteArray(blanks(10) + QByteArray(23, 'x'));
        QTest::newRow("accented letters with a blank less") << QByteArray(blanks(12) + "Caffè");
    }

    void notCentred()
    {
        QFETCH(QByteArray, content);
        const QList<Command> decoded = decode(line(content));
        QCOMPARE(decoded.size(), 1);
        QCOMPARE(decoded.first().spaces, 0);
        QCOMPARE(spelt(decoded.first().content), spelt(content));
    }

    /// Every number of blanks before every length of text, held against the rule.
    void centringRule()
    {
        for (int before = 0; before <= 40; ++before) {
            for (int length = 0; length <= 40; ++length) {
                const QByteArray text = blanks(before) + QByteArray(length, 'x');
                const QList<Command> decoded = decode(line(text));
                QCOMPARE(decoded.size(), 1);
                const Command &command = decoded.first();
                QCOMPARE(blanks(command.spaces) + command.content, text);

                const auto centres = [&](int spaces) {
                    const int rest = before + length - spaces;
                    return rest < 32 && spaces == (32 - rest) / 2;
                };
                bool mayBeCentred = false;
                for (int spaces = 1; spaces <= before; ++spaces)
                    mayBeCentred = mayBeCentred || centres(spaces);
                QCOMPARE(command.spaces > 0, mayBeCentred);
                QVERIFY(command.spaces == 0 || centres(command.spaces));
            }
        }
    }

    /// Every stream that the tests of the renderer expect.
    void streamsOfTheRenderer_data()
    {
        QTest::addColumn<QString>("path");
        const QString top = KORVEL_SOURCE_DIR "/";
        const QStringList cases = filesBelow(top + "tests/golden/cases", "expected.out");
        const QStringList examples = filesBelow(top + "examples/expected", "*.out");
        QVERIFY(cases.size() >= 70);
        QVERIFY(examples.size() >= 13);
        for (const QString &path : cases + examples)
            QTest::newRow(qPrintable(path.mid(top.size()))) << path;
    }

    void streamsOfTheRenderer()
    {
        QFETCH(QString, path);
        const QByteArray stream = bytesOf(path);
        const QList<Command> decoded = decode(stream);
        QByteArray written;
        for (const Command &command : decoded)
            written += encode(command);
        QCOMPARE(linesOf(written), linesOf(stream));
        QCOMPARE(written, stream);
        QCOMPARE(gapIn(stream, decoded), QString());

        // How many there are of each can be told by how lines of the stream begin.
        QMap<QString, int> found;
        for (const Command &command : decoded)
            ++found[nameOf(command.kind)];
        int lines = 0;
        int sections = 0;
        int saleRows = 0;
        int deductions = 0;
        const QList<QByteArray> streamLines = stream.split('\n');
        for (const QByteArray &streamLine : streamLines) {
            lines += streamLine.startsWith("=\"/(");
            saleRows += streamLine.startsWith("=R");
            deductions += streamLine.startsWith("=V");
            sections += streamLine == "=o" || streamLine == "=o/*1" || streamLine == "=C1"
                        || streamLine == "=T1";
        }
        QCOMPARE(found["line"], lines);
        QCOMPARE(found["sale"], saleRows);
        QCOMPARE(found["deduction"], deductions);
        QCOMPARE(found["opens"] + found["closes"], sections);
        QCOMPARE(found["unknown"], 0);
    }

    void centredLinesOfTheSampleReceipt()
    {
        QStringList centred;
        for (const Command &command :
             decode(bytesOf(KORVEL_SOURCE_DIR "/examples/expected/receipt.out"))) {
            if (command.spaces > 0)
                centred.append(QString::number(command.spaces) + ' ' + spelt(command.content));
        }
        QCOMPARE(centred,
                 QStringList({"13 |CASSA|", "7 |Trattoria Da Nino|", "8 |Via Garibaldi 12|",
                              "10 |10122 Torino|", "7 |P.IVA 01234567890|"}));
    }

    void writing_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<QByteArray>("bytes");
        const auto row = [](const char *name, const Command &command, const QByteArray &bytes) {
            QTest::newRow(name) << command << bytes;
        };

        row("a line", lineOf(0, "abc"), "=\"/(abc )\n");
        row("blanks stand before the text", lineOf(3, " abc"), "=\"/(    abc )\n");
        row("an empty line", lineOf(0, ""), "=\"/( )\n");
        row("only blanks", lineOf(16, ""), "=\"/(                 )\n");
        row("a fiscal section is opened", commandOf(Kind::SectionOpened, Section::Fiscal),
            "=K\n=C1\n");
        row("a receipt is opened", commandOf(Kind::SectionOpened, Section::Receipt), "=o/*1\n");
        row("a document is opened", commandOf(Kind::SectionOpened, Section::Document), "=o\n");
        row("a fiscal section is closed", commandOf(Kind::SectionClosed, Section::Fiscal), "=T1\n");
        row("a receipt is closed", commandOf(Kind::SectionClosed, Section::Receipt), "=o\n");
        row("a document is closed", commandOf(Kind::SectionClosed, Section::Document), "=o\n");
        row("a sale row", saleRowOf("1", "120", "2", "COFFEE"), "=R1/$120/*2/(COFFEE)\n");
        row("a sale row without texts", saleRowOf("", "", "", ""), "=R/$/*/()\n");
        row("a deduction", deductionOf("50"), "=S\r\n=V/$50\r\n");
        row("what is unknown is kept", unknownOf("=X\0\xFF\n"_ba), "=X\0\xFF\n"_ba);
    }

    void writing()
    {
        QFETCH(Command, command);
        QFETCH(QByteArray, bytes);
        QCOMPARE(spelt(encode(command)), spelt(bytes));
    }

    void writingWhatWasChanged()
    {
        Command title = decode(line(blanks(13) + "CASSA")).value(0);
        title.spaces = 2;
        QCOMPARE(spelt(encode(title)), spelt("=\"/(  CASSA )\n"));
        title.content = "BAR";
        QCOMPARE(spelt(encode(title)), spelt("=\"/(  BAR )\n"));

        Command sale = decode("=R1/$120/*2/(COFFEE)\n").value(0);
        sale.department = "12";
        sale.amount = "95";
        QCOMPARE(spelt(encode(sale)), spelt("=R12/$95/*2/(COFFEE)\n"));
        sale.quantity = "0,5";
        sale.description = "TEA";
        QCOMPARE(spelt(encode(sale)), spelt("=R12/$95/*0,5/(TEA)\n"));

        Command deduction = decode("=S\r\n=V/$50\r\n").value(0);
        deduction.amount = "1250";
        QCOMPARE(spelt(encode(deduction)), spelt("=S\r\n=V/$1250\r\n"));

        Command section = decode("=o/*1\n").value(0);
        section.section = Section::Fiscal;
        QCOMPARE(spelt(encode(section)), spelt("=K\n=C1\n"));
        section.kind = Kind::SectionClosed;
        QCOMPARE(spelt(encode(section)), spelt("=T1\n"));

        Command unknown = decode("hello\n").value(0);
        unknown.content = "x";
        QCOMPARE(spelt(encode(unknown)), spelt("x"));
    }

    void amounts_data()
    {
        QTest::addColumn<QByteArray>("hundredths");
        QTest::addColumn<QByteArray>("quantity");
        QTest::addColumn<QString>("amount");
        const auto row = [](const QByteArray &hundredths, const QByteArray &quantity,
                            const QString &amount) {
            QTest::newRow((hundredths + " x " + quantity).constData())
                << hundredths << quantity << amount;
        };

        row("0", "1", "0.00");
        row("5", "1", "0.05");
        row("12", "1", "0.12");
        row("120", "1", "1.20");
        row("100000", "1", "1000.00");
        row("007", "1", "0.07");
        row("1250.00", "1", "12.50");
        row("100.5", "1", "1.005");
        row("100.50", "1", "1.005");
        row("0.5", "1", "0.005");
        row("120", "2", "2.40");
        row("120", "0", "0.00");
        row("120", "0,5", "0.60");
        row("120", "2.5", "3.00");
        row("120", "0,333", "0.3996");
        row("0.1", "0,1", "0.0001");
        row("333", "3,333", "11.09889");
        row("1", "0.000000001", "0.00000000001");
        row("0.000000001", "0,000000001", "0." + QString(19, '0') + "1");

        // 18 digits at most, 9 of them behind the mark.
        row("999999999999999999", "1", "9999999999999999.99");
        row("000000000000000012", "1", "0.12");
        row("0.123456789", "1", "0.00123456789");
        row("123456789.123456789", "1", "1234567.89123456789");
        row("1", "999999999999999999", "9999999999999999.99");
        row("999999999999999999", "170", "1699999999999999998.30");
    }

    void amounts()
    {
        QFETCH(QByteArray, hundredths);
        QFETCH(QByteArray, quantity);
        QFETCH(QString, amount);
        const auto result = Amount::of(hundredths, quantity);
        QVERIFY(result);
        QCOMPARE(result->toString(), amount);
        if (amount.contains(QRegularExpression("[1-9]")))
            QCOMPARE((-*result).toString(), '-' + amount);
        else
            QCOMPARE((-*result).toString(), amount);
        QCOMPARE((-(-*result)).toString(), amount);
    }

    void noNumbers_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const QByteArray &text :
             {""_ba,    "."_ba,     "5."_ba,   ".5"_ba,      "-5"_ba,    "+5"_ba,    "-0"_ba,
              " 5"_ba,  "5 "_ba,    "5\n"_ba,  "1 000"_ba,   "1.2.3"_ba, "1.2,3"_ba, "1..2"_ba,
              "1e2"_ba, "1e+16"_ba, "nan"_ba,  "inf"_ba,     "abc"_ba,   "5x"_ba,    "0x10"_ba,
              "1/2"_ba, "5\0"_ba,   "\xFF"_ba, "\xD9\xA5"_ba})
            QTest::newRow(qPrintable(spelt(text))) << text;
    }

    void noNumbers()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!Amount::of(text));
        QVERIFY(!Amount::of(text, "1"));
        QVERIFY(!Amount::of("1", text));
        QVERIFY(!isQuantity(text));
        QVERIFY(!isWholeHundredths(text));
    }

    void tooManyDigits_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const char *text : {"1000000000000000000", "0000000000000000001", "0.1234567891",
                                 "0.0000000000", "1234567890.123456789"})
            QTest::newRow(text) << QByteArray(text);
    }

    void tooManyDigits()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!Amount::of(text));
        QVERIFY(!Amount::of("1", text));
        QVERIFY(isQuantity(text));
    }

    void aCommaIsForQuantities()
    {
        QVERIFY(!Amount::of("1,5"));
        QVERIFY(!Amount::of("1,0", "1"));
        QVERIFY(Amount::of("1", "1,5"));
        QVERIFY(isQuantity("1,5"));
        QVERIFY(!isWholeHundredths("1,5"));
    }

    // An amount holds up to 170141183460469231731.687... hundredths.
    void largeProducts()
    {
        QVERIFY(Amount::of("999999999999999999", "170"));
        QVERIFY(!Amount::of("999999999999999999", "171"));
        QVERIFY(!Amount::of("999999999999999999", "999999999999999999"));
    }

    void sums()
    {
        Amount sum;
        QCOMPARE(sum.toString(), QString("0.00"));
        QVERIFY(sum.add(*Amount::of("120", "2")));
        QCOMPARE(sum.toString(), QString("2.40"));
        QVERIFY(sum.add(-*Amount::of("50")));
        QCOMPARE(sum.toString(), QString("1.90"));
        QVERIFY(sum.add(*Amount::of("0.5")));
        QCOMPARE(sum.toString(), QString("1.905"));
        QVERIFY(sum.add(-*Amount::of("240.5")));
        QCOMPARE(sum.toString(), QString("-0.50"));
        QVERIFY(sum.add(*Amount::of("50")));
        QCOMPARE(sum.toString(), QString("0.00"));
    }

    void largeSums_data()
    {
        QTest::addColumn<bool>("negative");
        QTest::newRow("above zero") << false;
        QTest::newRow("below zero") << true;
    }

    void largeSums()
    {
        QFETCH(bool, negative);
        const auto amount = [&](QByteArrayView hundredths, QByteArrayView quantity) {
            const Amount result = Amount::of(hundredths, quantity).value_or(Amount());
            return negative ? -result : result;
        };
        const QString sign = negative ? "-" : "";

        Amount sum = amount("999999999999999999", "170"); // 169999999999999999830
        QVERIFY(sum.add(amount("141183460469231901", "1")));
        QCOMPARE(sum.toString(), sign + "1701411834604692317.31");
        QVERIFY(!sum.add(amount("1", "1")));
        QCOMPARE(sum.toString(), sign + "1701411834604692317.31");
        QVERIFY(!sum.add(sum));
        QCOMPARE(sum.toString(), sign + "1701411834604692317.31");
        QVERIFY(sum.add(amount("0.5", "1")));
        QCOMPARE(sum.toString(), sign + "1701411834604692317.315");
        QVERIFY(sum.add(-sum));
        QCOMPARE(sum.toString(), QString("0.00"));
    }

    // Below zero there may be room for one unit more than above, and 512 of these parts reach it:
    // each is 2 to the power of 118 units.
    void theLowestSum()
    {
        const auto part = Amount::of("576460752.303423488", "576460752.303423488");
        QVERIFY(part);
        Amount sum;
        for (int i = 0; i < 511; ++i)
            QVERIFY(sum.add(-*part));
        const QString before = sum.toString();
        if (sum.add(-*part)) {
            QCOMPARE(sum.toString(), QString("-1701411834604692317.31687303715884105728"));
            QCOMPARE((-sum).toString(), QString("1701411834604692317.31687303715884105728"));
        } else {
            QCOMPARE(sum.toString(), before);
        }
    }

    void wholeHundredths()
    {
        QVERIFY(isWholeHundredths("0"));
        QVERIFY(isWholeHundredths("00"));
        QVERIFY(isWholeHundredths("1250"));
        QVERIFY(isWholeHundredths("0000000000000000000001"));
        QVERIFY(isWholeHundredths(QByteArray(1000, '9')));
        QVERIFY(!isWholeHundredths("100.5"));
        QVERIFY(!isWholeHundredths("100.0"));
    }

    void quantities()
    {
        for (const char *quantity : {"1", "0", "12", "2.5", "0,125", "0.123456789",
                                     "999999999999999999", "1234567890123456789012,5"})
            QVERIFY2(isQuantity(quantity), quantity);
    }

    void characterLengths_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<qsizetype>("length");
        const auto row = [](const char *name, const QByteArray &text, qsizetype length) {
            QTest::newRow(name) << text << length;
        };

        row("nothing", "", 0);
        row("a letter", "ab", 1);
        row("a null", "\0a"_ba, 1);
        row("the last of ASCII", "\x7F", 1);
        row("an accented letter", "èb", 2);
        row("the euro sign", "€b", 3);
        row("a byte order mark", "\xEF\xBB\xBF=", 3);
        row("an emoji", "\xF0\x9F\x8D\x95\xF0\x9F\x8D\x95", 4);
        row("the last of Unicode", "\xF4\x8F\xBF\xBD", 4);
        row("half an accented letter", "\xC3", 0);
        row("half an accented letter and another", "\xC3z", 0);
        row("two thirds of the euro sign", "\xE2\x82", 0);
        row("three quarters of an emoji", "\xF0\x9F\x8D", 0);
        row("the inside of a character", "\x80\x80", 0);
        row("longer than need be, 2 bytes", "\xC0\x80", 0);
        row("longer than need be, 3 bytes", "\xE0\x80\x80", 0);
        row("half of a pair", "\xED\xA0\x80", 0);
        row("beyond Unicode", "\xF4\x90\x80\x80", 0);
        row("never in UTF-8", "\xFF\xFF\xFF\xFF\xFF", 0);
    }

    void characterLengths()
    {
        QFETCH(QByteArray, text);
        QFETCH(qsizetype, length);
        QCOMPARE(characterLength(text), length);
    }

    void controlCharacters_data()
    {
        QTest::addColumn<QByteArray>("character");
        QTest::addColumn<bool>("control");
        const auto row = [](const char *name, const QByteArray &character, bool control) {
            QTest::newRow(name) << character << control;
        };

        row("null", "\0"_ba, true);
        row("tab", "\t", true);
        row("line feed", "\n", true);
        row("carriage return", "\r", true);
        row("escape", "\x1B", true);
        row("the last before the blank", "\x1F", true);
        row("delete", "\x7F", true);
        row("next line", "\xC2\x85", true);
        row("blank", " ", false);
        row("letter", "a", false);
        row("accented letter", "è", false);
        row("blank that does not break", "\xC2\xA0", false);
        row("byte order mark", "\xEF\xBB\xBF", false);
        row("emoji", "\xF0\x9F\x8D\x95", false);
    }

    void controlCharacters()
    {
        QFETCH(QByteArray, character);
        QFETCH(bool, control);
        QCOMPARE(isControl(character), control);
    }

    void decodedTexts_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        const QString replaced(QChar::ReplacementCharacter);
        const auto row = [](const char *name, const QByteArray &bytes, const QString &text) {
            QTest::newRow(name) << bytes << text;
        };

        row("nothing", "", "");
        row("UTF-8", "Caff\xC3\xA8 \xE2\x82\xAC", u"Caff\u00E8 \u20AC"_s);
        row("an emoji is two units", "\xF0\x9F\x8D\x95", u"\xD83C\xDF55"_s);
        row("a null", "a\0b"_ba, QString("a") + QChar(u'\0') + 'b');
        row("a byte order mark at the start", "\xEF\xBB\xBF=o", u"\uFEFF=o"_s);
        row("a byte order mark alone", "\xEF\xBB\xBF", u"\uFEFF"_s);
        row("two byte order marks", "\xEF\xBB\xBF\xEF\xBB\xBF", u"\uFEFF\uFEFF"_s);
        row("a byte order mark inside", "=\xEF\xBB\xBFo", u"=\uFEFFo"_s);
        row("not UTF-8 at the start", "\xFFz", replaced + "z");
        row("not UTF-8 inside", "a\xFF\xFEz", "a" + replaced.repeated(2) + "z");
        row("not UTF-8 at the end", "a\xFF", "a" + replaced);
        row("half a character at the end", "Caff\xC3", "Caff" + replaced);
        row("half a character alone", "\xC3", replaced);
    }

    void decodedTexts()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(decoded(bytes), text);
    }

    void escapes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QByteArray &bytes, const QString &text) {
            QTest::newRow(name) << bytes << text;
        };

        row("nothing", "", "");
        row("text", "Caffè € \xF0\x9F\x8D\x95", "Caffè € \xF0\x9F\x8D\x95");
        row("marks of the language", "=\"/( )", "=\"/( )");
        row("line feed, carriage return, tab", "\n\r\t", "\\n\\r\\t");
        row("a backslash", "\\n", "\\\\n");
        row("a null", "a\0b"_ba, "a\\x00b");
        row("a terminal's command", "\x1B[31m", "\\x1b[31m");
        row("delete", "\x7F", "\\x7f");
        row("a control character of two bytes", "\xC2\x85", "\\xc2\\x85");
        row("a mark that turns the text round", "\xE2\x80\xAE", "\\xe2\\x80\\xae");
        row("a mark of no width", "\xE2\x80\x8B", "\\xe2\\x80\\x8b");
        row("a byte order mark", "\xEF\xBB\xBF=o", "\\xef\\xbb\\xbf=o");
        row("a separator of lines",
            "a\xE2\x80\xA8"
            "b",
            "a\\xe2\\x80\\xa8b");
        row("a separator of paragraphs",
            "a\xE2\x80\xA9"
            "b",
            "a\\xe2\\x80\\xa9b");
        row("a character for private use", "\xEE\x80\x80", "\\xee\\x80\\x80");
        row("not UTF-8", "\xFF\xFE", "\\xff\\xfe");
        row("half a character and a letter", "\xC3z", "\\xc3z");
        row("a character broken off", "a\xF0\x9F\x8D", "a\\xf0\\x9f\\x8d");
    }

    void escapes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(escaped(bytes), text);
    }

    void names()
    {
        QCOMPARE(sectionName(Section::Fiscal), QString("fiscal section"));
        QCOMPARE(sectionName(Section::Receipt), QString("receipt section"));
        QCOMPARE(sectionName(Section::Document), QString("document section"));
        QCOMPARE(kindName(Kind::Line), QString("text line"));
        QCOMPARE(kindName(Kind::SectionOpened), QString("section opening"));
        QCOMPARE(kindName(Kind::SectionClosed), QString("section closing"));
        QCOMPARE(kindName(Kind::SaleRow), QString("sale row"));
        QCOMPARE(kindName(Kind::Deduction), QString("deduction"));
        QCOMPARE(kindName(Kind::Unknown), QString("unknown command"));
    }

    /// A listed command says where it stands, what it is and what it holds, in this order.
    void listings_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<QStringList>("said");
        const auto row = [](const char *name, Command command, const QStringList &said) {
            command.offset = 1234;
            command.line = 56;
            QTest::newRow(name) << command << (QStringList{"1234 ", "56 "} + said);
        };

        row("a line", lineOf(0, " abc "), {"text line", "\" abc \""});
        row("a centred line", lineOf(13, "CASSA"), {"text line", "13", "\"CASSA\""});
        row("an opening", commandOf(Kind::SectionOpened, Section::Fiscal),
            {"fiscal section", "opened"});
        row("a closing", commandOf(Kind::SectionClosed, Section::Receipt),
            {"receipt section", "closed"});
        row("a sale row", saleRowOf("7", "120", "2", "COFFEE"),
            {"sale row", "department \"7\"", "amount \"120\"", "quantity \"2\"",
             "description \"COFFEE\""});
        row("a deduction", deductionOf("50"), {"deduction", "amount \"50\""});
        row("something unknown", unknownOf("=X\n"), {"unknown command", "\"=X\\n\""});
        row("a text that does not print", lineOf(0, "\x1B[2J\n\xFF"),
            {"text line", "\"\\x1b[2J\\n\\xff\""});
        row("texts of a row that do not print", saleRowOf("\n", "\r", "\t", "\\"),
            {"\"\\n\"", "\"\\r\"", "\"\\t\"", "\"\\\\\""});
        row("an amount that does not print", deductionOf("\x1B"), {"\"\\x1b\""});
    }

    void listings()
    {
        QFETCH(Command, command);
        QFETCH(QStringList, said);
        const QString text = listed(command);
        qsizetype end = 0;
        for (const QString &word : said) {
            const qsizetype at = text.indexOf(word, end);
            QVERIFY2(at >= 0, qPrintable(word + " is not in its place in: " + text));
            end = at + word.size();
        }
        QVERIFY(std::none_of(text.cbegin(), text.cend(), [](QChar character) {
            return character.category() == QChar::Other_Control;
        }));
        if (command.spaces == 0)
            QVERIFY(!text.contains("blanks"));
    }

    void listingOfTheSampleFiscalReceipt()
    {
        QStringList lines;
        for (const Command &command :
             decode(bytesOf(KORVEL_SOURCE_DIR "/examples/expected/fiscal-receipt.out")))
            lines.append(listed(command));
        QCOMPARE(lines,
                 QStringList({
                     "       0      1  fiscal section opened",
                     "       7      3  sale row, department \"1\", amount \"700\", quantity \"2\", "
                     "description \"Pizza Margherita\"",
                     "      38      4  sale row, department \"2\", amount \"450\", quantity \"2\", "
                     "description \"Birra media alla spina\"",
                     "      75      5  deduction, amount \"300\"",
                     "      88      7  fiscal section closed",
                 }));
    }

    void json_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *name, Command command, const QByteArray &expected) {
            command.offset = 1234;
            command.line = 56;
            QTest::newRow(name) << command << expected;
        };

        row("a line", lineOf(13, "Caffè"), "{'command': 'line', 'spaces': 13, 'text': 'Caffè'}");
        row("an opening", commandOf(Kind::SectionOpened, Section::Fiscal),
            "{'command': 'section-opened', 'section': 'fiscal'}");
        row("another opening", commandOf(Kind::SectionOpened, Section::Receipt),
            "{'command': 'section-opened', 'section': 'receipt'}");
        row("a closing", commandOf(Kind::SectionClosed, Section::Document),
            "{'command': 'section-closed', 'section': 'document'}");
        row("a sale row", saleRowOf("7", "120", "2,5", "COFFEE"),
            "{'command': 'sale-row', 'department': '7', 'amount': '120', 'quantity': '2,5', "
            "'description': 'COFFEE'}");
        row("a deduction", deductionOf("50"), "{'command': 'deduction', 'amount': '50'}");
        row("a text that is not UTF-8", lineOf(0, "a\xFFz"),
            "{'command': 'line', 'spaces': 0, 'text': 'a\xEF\xBF\xBDz', "
            "'bytes': '3d222f2861ff7a20290a'}");
        row("half a character ends a description", saleRowOf("7", "120", "2", "A\xC3"),
            "{'command': 'sale-row', 'department': '7', 'amount': '120', 'quantity': '2', "
            "'description': 'A\xEF\xBF\xBD', "
            "'bytes': '3d52372f243132302f2a322f2841c3290a'}");
        row("an amount that is not UTF-8", deductionOf("\xFF"),
            "{'command': 'deduction', 'amount': '\xEF\xBF\xBD', "
            "'bytes': '3d530d0a3d562f24ff0d0a'}");
        row("a byte order mark is text",
            lineOf(0, "\xEF\xBB\xBF"
                      "a"),
            "{'command': 'line', 'spaces': 0, 'text': '\\uFEFFa'}");
        Command unknown = unknownOf("=X\0\xFF\n"_ba);
        unknown.badByte = 1235;
        row("something unknown, exactly", unknown,
            "{'command': 'unknown', 'bytes': '3d5800ff0a', 'badByte': 1235}");
        unknown = unknownOf("=X\n");
        unknown.badByte = 1235;
        row("something unknown in UTF-8", unknown,
            "{'command': 'unknown', 'bytes': '3d580a', 'badByte': 1235}");
    }

    void json()
    {
        QFETCH(Command, command);
        QFETCH(QByteArray, expected);
        QJsonParseError error;
        QJsonObject object = QJsonDocument::fromJson(expected.replace('\'', '"'), &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        object.insert("offset", 1234);
        object.insert("line", 56);
        QCOMPARE(toJson(command), object);
    }
};

QTEST_GUILESS_MAIN(TestPreview)
#include "tst_preview.moc"
