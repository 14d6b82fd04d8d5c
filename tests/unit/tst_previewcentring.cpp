// Lines of the preview's stream: the blanks that centre them told from those of their text.
#include "support/bytes.h"
#include "support/spelt.h"
#include "support/streams.h"
#include "support/test.h"

namespace tst_previewcentring {

using namespace korvel::preview;

QByteArray blanks(int count) { return QByteArray(count, ' '); }

class TestPreviewCentring : public QObject
{
    Q_OBJECT

private slots:
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
};

KORVEL_TEST(TestPreviewCentring)

} // namespace tst_previewcentring

#include "tst_previewcentring.moc"
