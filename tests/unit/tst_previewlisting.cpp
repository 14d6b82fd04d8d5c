// The preview's commands in words and as JSON.
#include "companions/preview/listing.h"
#include "support/bytes.h"
#include "support/commands.h"
#include "support/test.h"

#include <QJsonDocument>

#include <algorithm>

namespace tst_previewlisting {

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

using Kind = Command::Kind;

class TestPreviewListing : public QObject
{
    Q_OBJECT

private slots:
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
        QCOMPARE(QJsonDocument::fromJson(jsonOf(command) + "}").object(), object);
    }
};

KORVEL_TEST(TestPreviewListing)

} // namespace tst_previewlisting

#include "tst_previewlisting.moc"
