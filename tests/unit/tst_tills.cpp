// The tills of the examples: each thing that can become of a sale, what the cashier is told, and
// what is on paper in the end.
#include "support/printers.h"
#include "support/test.h"
#include "support/tilldesk.h"

#include <QRegularExpression>

namespace tst_tills {

// clang-format off
const QByteArray items =
    "2\tFish & Chips\t950\n"
    "1\tTè & \"biscotti\"\t480\n"
    "3\tBirra <0,5l>\t500\n"
    "1\tBaci d'oro\t5\n";

const QByteArray receipt =
    "=o/*1\n"
    "=\"/( Serial Number: till1-118 )\n"
    "=\"/(================================ )\n"
    "=\"/(Num Description    Price  Amount )\n"
    "=\"/(  2 x Fish & Chip...9.50   19.00 )\n"
    "=\"/(  1 x Tè & \"bisco...4.80    4.80 )\n"
    "=\"/(  3 x Birra <0,5l...5.00   15.00 )\n"
    "=\"/(  1 x Baci d'oro....0.05    0.05 )\n"
    "=\"/( )\n"
    "=\"/(    TOTAL...............   38.85 )\n"
    "=o\n";

// What the cashier is told, by the exit status of the till.
const QByteArray words[] = {
    "till1-118: sent to the printer.\n",
    "till1-118: not printed: the receipt is wrong. Call for help; it is not tried again.\n",
    "till1-118: not printed: the till cannot print. Call for help, then try again.\n",
    "till1-118: not printed yet. Look at the printer, then try again.\n",
    "till1-118: in doubt. It may be on paper, or not:\n"
    "1. Look at the paper: is the document there, whole?\n"
    "2. Whole: `korvel-journal resolve till1-118 printed`. It is done.\n"
    "3. Not there, or torn off in the middle: `korvel-journal resolve till1-118 not-printed`,\n"
    "   and throw the piece away.\n"
    "4. Then print it again as before; it comes out once.\n"
    "5. Not sure, or a fiscal receipt in pieces: ask who keeps the books before you do either.\n",
};
const QByteArray wordsOfOneEnded =
    "till1-118: the delivery was ended. Try again; nothing is printed twice.\n";
// clang-format on

const QString id = "till1-118";
const QStringList isOpen = {"open/till1-118.xml"};
const QStringList isPrinted = {"printed/till1-118.xml"};
const QStringList isRefused = {"refused/till1-118.xml"};

/// A text without its line ends and what is indented behind them.
QByteArray unbroken(const QByteArray &text) { return text.simplified(); }

class TestTills : public QObject
{
    Q_OBJECT

private:
    /// Fails the test unless a till ended with this status and said this, and behind it in one line
    /// why, where there is a reason.
    static void verify(const Run &run, int status, const QByteArray &said,
                       const QByteArray &reason = {})
    {
        QVERIFY(run.exited);
        QCOMPARE(run.standardError, QByteArray());
        QVERIFY2(run.standardOutput.startsWith(said), run.standardOutput.constData());
        const QByteArray rest = run.standardOutput.mid(said.size());
        QVERIFY2(rest.contains(reason) && rest.count('\n') == (reason.isEmpty() ? 0 : 1),
                 rest.constData());
        QCOMPARE(run.status, status);
    }

#define VERIFY_TILL(...)                                                                           \
    do {                                                                                           \
        verify(__VA_ARGS__);                                                                       \
        if (QTest::currentTestFailed())                                                            \
            return;                                                                                \
    } while (false)

    static void addTills()
    {
        QTest::addColumn<int>("till");
        for (qsizetype i = 0; i < tillPrograms.size(); ++i)
            QTest::newRow(qPrintable(tillPrograms[i].file)) << int(i);
    }

    [[nodiscard]] static TillProgram currentTill()
    {
        return tillPrograms[*static_cast<int *>(QTest::qData("till", QMetaType::Int))];
    }

    /// For each till each of these, in a column "what".
    static void addForEachTill(const QList<QPair<const char *, QByteArray>> &rows)
    {
        QTest::addColumn<int>("till");
        QTest::addColumn<QByteArray>("what");
        for (qsizetype i = 0; i < tillPrograms.size(); ++i) {
            for (const auto &[name, what] : rows)
                QTest::addRow("%s: %s", qPrintable(tillPrograms[i].file), name) << int(i) << what;
        }
    }

private slots:
    void everyTillIsTried()
    {
        QStringList files;
        for (const TillProgram &till : tillPrograms)
            files.append(till.file);
        const QDir folder(KORVEL_SOURCE_DIR "/examples/tills");
        QCOMPARE(folder.entryList({"till.*"}, QDir::Files, QDir::Name), files);
    }

    /// The page and the tills say the same of what to do.
    void theCashierIsToldWhatThePageSays()
    {
        const QByteArray page = bytesOf(KORVEL_SOURCE_DIR "/docs/delivery.md");
        QByteArray lines = words[4].mid(words[4].indexOf("1."));
        QVERIFY(unbroken(page).contains(unbroken(lines.replace("till1-118", "ID"))));
    }

    void sent_data() { addTills(); }

    void sent()
    {
        TillDesk desk(currentTill());
        VERIFY_TILL(desk.sell(id, items, desk.device()), 0, words[0]);
        QCOMPARE(desk.sales(), isPrinted);
        VERIFY_TILL(desk.again(desk.device()), 0, {});
        QCOMPARE(linesOf(desk.paper()), linesOf(receipt));
    }

    /// The till was ended before it put the sale away.
    void alreadySent_data() { addTills(); }

    void alreadySent()
    {
        TillDesk desk(currentTill());
        VERIFY_TILL(desk.sell(id, items, desk.device()), 0, words[0]);
        QVERIFY(QFile::rename(desk.path("sales/printed/till1-118.xml"),
                              desk.path("sales/open/till1-118.xml")));
        VERIFY_TILL(desk.again(desk.device()), 0, words[0]);
        QCOMPARE(desk.sales(), isPrinted);
        QCOMPARE(linesOf(desk.paper()), linesOf(receipt));
    }

    void refused_data() { addTills(); }

    void refused()
    {
        TillDesk desk(currentTill());
        VERIFY_TILL(desk.sell(id, "1\tCaff\x01\t120\n", desk.device()), 1, words[1],
                    "refused, nothing was sent: ");
        QCOMPARE(desk.sales(), isRefused);
        VERIFY_TILL(desk.again(desk.device()), 0, {});

        // It is put right, and back.
        const QByteArray job = bytesOf(desk.path("sales/refused/till1-118.xml"));
        QVERIFY(QFile::remove(desk.path("sales/refused/till1-118.xml")));
        writeFile(desk.path("sales/open/till1-118.xml"), QByteArray(job).replace("\x01", "è"));
        VERIFY_TILL(desk.again(desk.device()), 0, words[0]);
        QCOMPARE(desk.paper().count("=\"/(  1 x Caffè.........1.20    1.20 )\n"), 1);
    }

    void cannotPrint_data()
    {
        addForEachTill({{"a wrong option", "--nonsense"},
                        {"a printer that is none", "--to=nowhere"},
                        {"a journal that is none", "--journal=/dev/null/journal.db"}});
    }

    void cannotPrint()
    {
        QFETCH(QByteArray, what);
        TillDesk desk(currentTill());
        VERIFY_TILL(desk.sell(id, items, desk.device() + QStringList{what}), 2, words[2],
                    "korvel-deliver: ");
        QCOMPARE(desk.sales(), isOpen);
        VERIFY_TILL(desk.again(desk.device()), 0, words[0]);
        QCOMPARE(linesOf(desk.paper()), linesOf(receipt));
    }

    void cannotBeStarted_data()
    {
        addForEachTill({{"it is not there", ""},
                        {"it is not for this machine", "exit 126\n"},
                        {"a library of it is missing", "echo lost >&2\nexit 127\n"}});
    }

    void cannotBeStarted()
    {
        QFETCH(QByteArray, what);
        TillDesk desk(currentTill());
        desk.replaceDelivery(what);
        VERIFY_TILL(desk.sell(id, items, desk.device()), 2, words[2],
                    "korvel-deliver cannot be started\n");
        QCOMPARE(desk.sales(), isOpen);
        desk.restoreDelivery();
        VERIFY_TILL(desk.again(desk.device()), 0, words[0]);
        QCOMPARE(linesOf(desk.paper()), linesOf(receipt));
    }

    void thePrinterIsOff_data() { addTills(); }

    void thePrinterIsOff()
    {
        TillDesk desk(currentTill());
        const QStringList off = {"--to", nobodysDevice()};
        VERIFY_TILL(desk.sell(id, items, off), 3, words[3], "cannot be reached");
        VERIFY_TILL(desk.again(off), 3, words[3], "cannot be reached");
        QCOMPARE(desk.sales(), isOpen);
        VERIFY_TILL(desk.again(desk.device()), 0, words[0]);
        QCOMPARE(desk.sales(), isPrinted);
        QCOMPARE(linesOf(desk.paper()), linesOf(receipt));
    }

    void inDoubt_data() { addForEachTill({{"on paper", "printed"}, {"not", "not-printed"}}); }

    void inDoubt()
    {
        QFETCH(QByteArray, what);
        TillDesk desk(currentTill(), {"--fault", "reset=64", "--first", "1"});
        VERIFY_TILL(desk.sell(id, items, desk.device()), 4, words[4], "in doubt: ");
        VERIFY_TILL(desk.again(desk.device()), 4, words[4], "in doubt: ");
        QCOMPARE(desk.sales(), isOpen);
        QCOMPARE(desk.journal({"resolve", id, what}).status, 0);
        VERIFY_TILL(desk.again(desk.device()), 0, words[0]);
        QCOMPARE(desk.sales(), isPrinted);
        VERIFY_TILL(desk.again(desk.device()), 0, {});
        QCOMPARE(desk.paper().count(receipt), what == "printed" ? 0 : 1);
    }

    /// Signals whose numbers are statuses too, and a status that is none of the program's.
    void ended_data()
    {
        addForEachTill({{"before it began", "kill -9 $$\n"},
                        {"by signal 1", "kill -1 $$\n"},
                        {"by signal 2", "kill -2 $$\n"},
                        {"with another status", "exit 5\n"},
                        {"when all was sent", "\"$REAL\" \"$@\" >&2\nkill -9 $$\n"}});
    }

    void ended()
    {
        QFETCH(QByteArray, what);
        TillDesk desk(currentTill());
        desk.replaceDelivery(what);
        const Run run = desk.sell(id, items, desk.device());
        QVERIFY2(run.standardOutput.startsWith(wordsOfOneEnded), run.standardOutput.constData());
        QCOMPARE(run.standardError, QByteArray());
        QCOMPARE(run.status, 3);
        QCOMPARE(desk.sales(), isOpen);
        desk.restoreDelivery();
        VERIFY_TILL(desk.again(desk.device()), 0, words[0]);
        QCOMPARE(linesOf(desk.paper()), linesOf(receipt));
    }

    /// Two tries at once are one document, and whoever comes first puts the sale away.
    void anotherTryIsQuicker_data() { addTills(); }

    void anotherTryIsQuicker()
    {
        TillDesk desk(currentTill());
        desk.replaceDelivery("\"$REAL\" \"$@\" && mv sales/open/* sales/printed\n");
        VERIFY_TILL(desk.sell(id, items, desk.device()), 0, words[0]);
        QCOMPARE(desk.sales(), isPrinted);
        QCOMPARE(linesOf(desk.paper()), linesOf(receipt));
    }

    void whatIsWrongIsNotKept_data()
    {
        addForEachTill({{"no item", ""},
                        {"an empty line", "1\tCaffè\t120\n\n1\tTè\t120\n"},
                        {"no price", "1\tCaffè\n"},
                        {"no name", "1\t\t120\n"},
                        {"a price in euros", "1\tCaffè\t1.20\n"},
                        {"no number", "a\tCaffè\t120\n"},
                        {"more columns", "1\tCaffè\t120\t9\n"},
                        {"another encoding", "1\tCaff\xE8\t120\n"}});
    }

    void whatIsWrongIsNotKept()
    {
        QFETCH(QByteArray, what);
        TillDesk desk(currentTill());
        VERIFY_TILL(desk.sell(id, what, desk.device()), 2,
                    "The sale is not kept: an item is wrong.\n");
        QCOMPARE(desk.sales(), QStringList());
        QCOMPARE(desk.paper(), QByteArray());
    }

    void aSaleIsKeptUnderItsName_data()
    {
        addForEachTill({{"none", ""}, {"of a folder", "../a"}, {"an option", "-a"}});
    }

    void aSaleIsKeptUnderItsName()
    {
        QFETCH(QByteArray, what);
        TillDesk desk(currentTill());
        VERIFY_TILL(desk.sell(what, items, desk.device()), 2,
                    "The sale is not kept: that is no name for a sale.\n");
        QCOMPARE(desk.paper(), QByteArray());
    }

    void aSaleIsNeverWrittenOver_data()
    {
        addForEachTill({{"open", "open"}, {"printed", "printed"}, {"refused", "refused"}});
    }

    void aSaleIsNeverWrittenOver()
    {
        QFETCH(QByteArray, what);
        TillDesk desk(currentTill());
        QDir().mkpath(desk.path("sales/" + what));
        const QString kept = desk.path("sales/" + what + "/till1-118.xml");
        writeFile(kept, "another sale");
        VERIFY_TILL(desk.sell(id, items, desk.device()), 2,
                    "The sale is not kept: there is a sale of that name.\n");
        QCOMPARE(bytesOf(kept), "another sale");
        QCOMPARE(desk.paper(), QByteArray());
    }

    void whereItCannotWriteNothingIsPrinted_data() { addTills(); }

    void whereItCannotWriteNothingIsPrinted()
    {
        TillDesk desk(currentTill());
        writeFile(desk.path("sales"), "a file");
        VERIFY_TILL(desk.sell(id, items, desk.device()), 2,
                    "The sale is not kept: sales cannot be written.\n");
        QCOMPARE(desk.paper(), QByteArray());
    }

    /// Each by itself: one that is in doubt keeps no other.
    void allOfADayAreTried_data() { addTills(); }

    void allOfADayAreTried()
    {
        TillDesk desk(currentTill(), {"--fault", "reset=64", "--first", "1"});
        const QStringList off = {"--to", nobodysDevice()};
        const QByteArray item = "1\tCaffè\t120\n";
        QCOMPARE(desk.sell("a", item, desk.device()).status, 4);
        QCOMPARE(desk.sell("b", item, off).status, 3);
        QCOMPARE(desk.sell("c", "1\tCaff\x01\t120\n", off).status, 1);
        QCOMPARE(desk.sell("d", item, off).status, 3);
        const Run run = desk.again(desk.device());
        QCOMPARE(run.status, 4);
        QVERIFY(run.standardOutput.startsWith("a: in doubt."));
        QVERIFY(run.standardOutput.endsWith("\nb: sent to the printer.\n"
                                            "d: sent to the printer.\n"));
        QCOMPARE(desk.sales(),
                 QStringList({"open/a.xml", "printed/b.xml", "printed/d.xml", "refused/c.xml"}));
    }

    void wrongUsage_data() { addTills(); }

    void wrongUsage()
    {
        TillDesk desk(currentTill());
        for (const QStringList &arguments :
             {QStringList(), {"again"}, {"sell", "sales"}, {"buy", "sales", id}}) {
            const Run run = desk.run(arguments, items);
            QCOMPARE(run.status, 2);
            QCOMPARE(run.standardOutput, QByteArray());
            QCOMPARE(run.standardError, "usage: till sell SALES ID [OPTION...] < ITEMS | till again"
                                        " SALES [OPTION...]\n");
        }
        QCOMPARE(desk.sales(), QStringList());
    }
};

KORVEL_TEST(TestTills)

} // namespace tst_tills

#include "tst_tills.moc"
