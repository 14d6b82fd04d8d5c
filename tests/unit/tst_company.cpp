// The printer back end: the bytes of lines, sections and sale rows.
#include "printer/company/companyprinterdriver.h"
#include "support/bytes.h"
#include "support/capturedoutput.h"
#include "support/streams.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <functional>

namespace tst_company {

/// The back end as a document sees it, with the method set by hand.
class Printer : public CompanyPrinterDriver
{
public:
    explicit Printer(const QString &path)
        : CompanyPrinterDriver(path, false)
    {
    }
    using PrinterDriver::currentMethod;
};

using Calls = std::function<void(Printer &)>;

/// What the printer gets of these calls.
QStringList streamOf(const Calls &calls)
{
    const TemporaryHome home(QByteArray{});
    const QString path = home.path() + "/stream.out";
    {
        Printer printer(path);
        calls(printer);
    }
    return linesOf(bytesOf(path));
}

const QString sixteen(16, ' ');

class TestCompany : public QObject
{
    Q_OBJECT

private slots:
    void lines_data()
    {
        QTest::addColumn<Calls>("calls");
        QTest::addColumn<QStringList>("stream");
        const auto row = [](const char *name, const Calls &calls, const QStringList &stream) {
            QTest::newRow(name) << calls << stream;
        };

        row("a line is framed", [](Printer &p) { p.println("abc"); }, {shownLine("abc")});
        row("an empty line is opener and closer", [](Printer &p) { p.println(""); },
            {shownLine("")});
        row("an indent is spaces", [](Printer &p) { p.println(4, "abc"); }, {shownLine("    abc")});
        row("print and println make one line",
            [](Printer &p) {
                p.print(2, "A");
                p.println(0, "B");
            },
            {shownLine("  AB")});
        row("each line starts anew",
            [](Printer &p) {
                p.println(1, "A");
                p.println("B");
            },
            {shownLine(" A"), shownLine("B")});
        row("a line wider than the paper is not cut",
            [](Printer &p) { p.println(QString(40, 'x')); }, {shownLine(QString(40, 'x'))});
        row("TOTALE gets a zero", [](Printer &p) { p.println("TOTALE 1 TOTALE"); },
            {shownLine("T0TALE 1 T0TALE")});
        row("TOTALE inside a word gets a zero", [](Printer &p) { p.println("SUBTOTALEX"); },
            {shownLine("SUBT0TALEX")});
        row("TOTALE in another letter case is kept",
            [](Printer &p) { p.println("Totale totale TOTALe TOTAL"); },
            {shownLine("Totale totale TOTALe TOTAL")});
        row("TOTALE in two pieces is kept",
            [](Printer &p) {
                p.print(0, "TOT");
                p.println("ALE");
            },
            {shownLine("TOTALE")});
        row("TOTALE in print gets a zero",
            [](Printer &p) {
                p.print(1, "TOTALE");
                p.println("");
            },
            {shownLine(" T0TALE")});
        row("a text left pending is lost at the end", [](Printer &p) { p.print(0, "A"); }, {});
        row("a pending text waits for the next line",
            [](Printer &p) {
                p.print(0, "A");
                p.startSection();
                p.printRowFiscal("1", "1", "X", "1");
                p.println("B");
            },
            {"=o\\n", "=R1/$100/*1/(X)\\n", shownLine("AB")});
        row("text is UTF-8", [](Printer &p) { p.println(QString::fromUtf8("Caffè €")); },
            {shownLine("Caffè €")});
        row("bold, cut, pulse and logo write nothing",
            [](Printer &p) {
                p.setBold();
                p.fullCut();
                p.generatePulse();
                p.printLogo();
                p.reset();
                p.initPrinter();
                p.printRowFiscal("total", QXmlAttributes());
            },
            {});
    }

    void lines()
    {
        QFETCH(Calls, calls);
        QFETCH(QStringList, stream);
        QCOMPARE(streamOf(calls), stream);
    }

    void centring_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<int>("spaces");
        const auto row = [](const char *name, const QString &content, int spaces) {
            QTest::newRow(name) << content << spaces;
        };

        row("nothing: half the paper", "", 16);
        row("THANK YOU", "THANK YOU", 11);
        row("1 character, half rounded down", "x", 15);
        row("2 characters", "xx", 15);
        row("30 characters", QString(30, 'x'), 1);
        row("31 characters", QString(31, 'x'), 0);
        row("32 characters", QString(32, 'x'), 0);
        row("33 characters", QString(33, 'x'), 0);
        row("39 characters", QString(39, 'x'), 0);
        row("40 characters", QString(40, 'x'), 0);
        row("1000 characters", QString(1000, 'x'), 0);
        row("an emoji counts as two", QString::fromUtf8("\xF0\x9F\x8D\x95"), 15);
        row("an accent counts as one", QString::fromUtf8("Caffè"), 13);
    }

    void centring()
    {
        QFETCH(QString, content);
        QFETCH(int, spaces);
        QCOMPARE(streamOf([&](Printer &p) {
                     p.setCenterJustify();
                     p.println(content);
                 }),
                 QStringList(shownLine(QString(spaces, ' ') + content)));
    }

    void centringCountsTheIndent()
    {
        QCOMPARE(streamOf([](Printer &p) {
                     p.setCenterJustify();
                     p.print(1, "Date:");
                     p.println(1, "x");
                 }),
                 QStringList(shownLine(QString(12, ' ') + " Date: x"))); // (32 - 8) / 2
    }

    void justificationStaysUntilASizeIsSet()
    {
        QCOMPARE(streamOf([](Printer &p) {
                     p.setCenterJustify();
                     p.println("");
                     p.setBold();
                     p.println("");
                     p.setCharSize();
                     p.println("");
                     p.setCenterJustify();
                     p.println("");
                     p.setCharSize(1);
                     p.println("");
                 }),
                 QStringList({shownLine(sixteen), shownLine(sixteen), shownLine(""),
                              shownLine(sixteen), shownLine("")}));
    }

    void sections_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QStringList>("stream");
        const auto row = [](const char *method, const QStringList &stream) {
            QTest::newRow(method) << method << stream;
        };
        const QStringList fiscal = {"=K\\n", "=C1\\n", "=T1\\n"};
        const QStringList receipt = {"=o/*1\\n", "=o\\n"};
        const QStringList other = {"=o\\n", "=o\\n"};

        row("printAbstractOrderFiscal", fiscal);
        row("printFullOrderFiscal", fiscal);
        row("printAbstractOrderReceipt", receipt);
        row("printFullOrderReceipt", receipt);
        row("printAbstractOrderInvoice", receipt);
        row("printFullOrderInvoice", receipt);
        row("printPartialOrder", other);
        row("printFullOrder", other);
        row("printFullOrderDelivery", other);
        row("printAbstractOrder", other);
        row("printReport", other);
        row("printSold", other);
        row("printStatementOfAccount", other);
        row("", other);
        row("printfullorderfiscal", other);
        row("printFullOrderFiscal ", other);
    }

    void sections()
    {
        QFETCH(QString, method);
        QFETCH(QStringList, stream);
        QCOMPARE(streamOf([&](Printer &p) {
                     p.currentMethod = method;
                     p.startSection();
                     p.endSection();
                 }),
                 stream);
    }

    void saleAmounts_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("hundredths");
        const auto row = [](const char *amount, const char *hundredths) {
            QTest::newRow(qPrintable(QString("<%1>").arg(amount))) << amount << hundredths;
        };

        row("1,20", "120");
        row("12,50", "1250");
        row("3.5", "350");
        row("0.1", "10");
        row("19.99", "1999");
        row("1.005", "100.5");
        row("0", "0");
        row("", "0");
        row("-0", "0");
        row("-0,00", "0");
        row("abc", "0");
        row("12,50 EUR", "0");
        row("1.234,50", "0");
        row("1e2", "10000");
        row(" 7 ", "700");
        row("+7", "700");
        row("1e999", "0");
        row("-1e999", "0");
        row("1e-999", "0");
        row("0.001", "0.1");
        row("9999999999999.99", "999999999999999");
        row("99999999999999.99", "1e+16");
        row("nan", "nan");
        row("inf", "inf");
    }

    void saleAmounts()
    {
        QFETCH(QString, amount);
        QFETCH(QString, hundredths);
        QCOMPARE(streamOf([&](Printer &p) { p.printRowFiscal("1", "2", "COFFEE", amount); }),
                 QStringList("=R1/$" + hundredths + "/*2/(COFFEE)\\n"));
    }

    void deductions_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("hundredths");
        const auto row = [](const char *amount, const char *hundredths) {
            QTest::newRow(qPrintable(QString("<%1>").arg(amount))) << amount << hundredths;
        };

        row("-2,00", "200");
        row("-0,50", "50");
        row("-19.99", "1999");
        row("-1.005", "100.5");
        row(" -3 ", "300");
        row("-inf", "inf");
        row("\u22122,00", "200");
    }

    void deductions()
    {
        QFETCH(QString, amount);
        QFETCH(QString, hundredths);
        QCOMPARE(streamOf([&](Printer &p) { p.printRowFiscal("1", "2", "COFFEE", amount); }),
                 QStringList({"=S\\r\\n", "=V/$" + hundredths + "\\r\\n"}));
    }

    void saleRowsAreSentAsGiven()
    {
        QCOMPARE(
            streamOf([](Printer &p) {
                p.printRowFiscal("", "", "", "");
                p.printRowFiscal(" 1 ", "%1", " TOTALE " + QString(40, 'x'), "1");
                p.setCenterJustify();
                p.printRowFiscal("1", "1", "X", "1");
            }),
            QStringList({"=R/$0/*/()\\n", "=R 1 /$100/*%1/( TOTALE " + QString(40, 'x') + ")\\n",
                         "=R1/$100/*1/(X)\\n"}));
    }

    void paperWidthIsTheDevices()
    {
        const TemporaryHome home(QByteArray{});
        QCOMPARE(Printer(home.path() + "/stream.out").getPaperWidth(), 32);
    }

    void commandsInATextBySettingsOfOnesOwn()
    {
        const TemporaryHome home; // whose settings nobody reads
        KVConfiguration settings("korvel: { doc: { quantityFieldWidth = 2; paperWidth = 12; }; };");
        QString text = "=before\n";
        QXmlAttributes method;
        method.append("name", {}, "name", "printPartialOrder");
        QXmlAttributes item;
        item.append("number", {}, "number", "1");
        item.append("name", {}, "name", "Caffè 🍕");
        const auto print = [&] {
            CompanyPrinterDriver driver(settings, text);
            driver.startDocument();
            driver.startElement({}, {}, "method", method);
            driver.startElement({}, {}, "receipe", item);
            QCOMPARE(text, QString("=before\n=o\n=\"/( 1 Caffè ") + QChar(0xD83C) + " )\n");
            text.clear();
            driver.endDocument();
        };
        QCOMPARE(outputOf(print), "");
        QCOMPARE(text, "=o\n");
        QVERIFY(!SyncSingleton<KVConfiguration>::instance_pointer);
    }

    void withoutAStreamNothingHappens()
    {
        const TemporaryHome home(QByteArray{});
        Printer printer(home.path()); // a folder
        printer.startSection();
        printer.println("abc");
        printer.printRowFiscal("1", "1", "X", "-1");
        printer.endSection();
        QVERIFY(QDir(home.path()).exists());
    }
};

KORVEL_TEST(TestCompany)

} // namespace tst_company

#include "tst_company.moc"
