// The preview's commands written back, changed or as they were read.
#include "support/bytes.h"
#include "support/files.h"
#include "support/spelt.h"
#include "support/streams.h"
#include "support/test.h"

#include <QMap>

namespace tst_previewwriting {

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

using Kind = Command::Kind;

QByteArray blanks(int count) { return QByteArray(count, ' '); }

class TestPreviewWriting : public QObject
{
    Q_OBJECT

private slots:
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
};

KORVEL_TEST(TestPreviewWriting)

} // namespace tst_previewwriting

#include "tst_previewwriting.moc"
