// The catalogues: found by both name rules, printed by the real program, and fit for their columns.
#include "config/config.h"
#include "support/built.h"
#include "support/renderer.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QTemporaryDir>
#include <QTranslator>

namespace tst_translations {

const QString catalogues = built::path("/translations");
const QStringList languages = {"de", "es", "fr", "it"};

constexpr auto job = R"(<job>
<method name="printFullOrderReceipt"/>
<receipt serialnumber="7"/>
<customer name="Rossi"/>
<receipe number="1" name="X" price="1.00" totalPrice="1.00"/>
<total price="1.00"/>
<notPaid price="0.50"/>
<method name="printAbstractOrderReceipt"/>
<notPaid price="0.50"/>
<method name="printStatementOfAccount"/>
<statement_list/>
<statement date="1/2/2026" type="payment" amount="1.00"/>
<statement date="1/2/2026" type="barter" amount="1.00"/>
<statement date="1/2/2026" type="" amount="1.00"/>
</job>
)";

constexpr auto layouts = R"(    receiptdoc:
    {
        quantityFieldWidth = "3"; priceFieldWidth = "7"; totalPriceFieldWidth = "8";
        paperWidth = "32"; printCustomer = "true";
    };
    reportdoc: { priceFieldWidth = "7"; paperWidth = "36"; };
};
)";

QByteArray settings(const QString &baseDir, const QString &file)
{
    return "korvel:\n{\n    language: { basedir = \"" + QFile::encodeName(baseDir) + "\"; file = \""
           + QFile::encodeName(file) + "\"; };\n" + layouts;
}

/// What the job prints, labels in the given language.
QStringList printed(const QString &serial, const QString &customer, const QString &titles,
                    const QString &total, const QString &notPaid, const QString &statementTitles,
                    const QString &payment)
{
    const QString rule(32, '=');
    const QStringList lines = {
        serial, rule,  customer, " Rossi", rule, titles, "  1 x X.............1.00    1.00",
        "",     total, "",       notPaid,
    };
    QStringList stream = {"=o/*1\\n"};
    const auto add = [&](const QString &line) { stream.append("=\"/(" + line + " )\\n"); };
    for (const QString &line : lines)
        add(line);
    stream.append("=o/*1\\n");
    add("");
    add("   Corrispettivo non pagato: 0.50");
    stream.append("=o\\n");
    add(statementTitles);
    add("1/2/2026:      " + payment + "...1.00");
    add("1/2/2026:      barter........1.00");
    add("1/2/2026:      ..............1.00");
    stream.append("=o\\n");
    return stream;
}

QStringList printedIn(const QString &language)
{
    if (language == "de")
        return printed(" Beleg-Nr. 7", "KUNDE", "Anz Bezeichnung    Preis  Betrag",
                       "    SUMME...............    1.00", "    Offener Betrag: 0.50",
                       "Datum          Art         Betrag", "Zahlung....");
    if (language == "es")
        return printed(" Ticket n.º 7", "CLIENTE", "Uds Descripción   Precio Importe",
                       "    TOTAL...............    1.00", "    Pendiente: 0.50",
                       "Fecha          Tipo       Importe", "pago.......");
    if (language == "fr")
        return printed(" Ticket n° 7", "CLIENT", "Qté Désignation     Prix Montant",
                       "    TOTAL...............    1.00", "    Reste à payer : 0.50",
                       "Date           Type       Montant", "paiem......");
    if (language == "it")
        return printed(" Documento n. 7", "CLIENTE", "Qtà Descrizione   Prezzo Importo",
                       "    T0TALE..............    1.00", "    Non pagato: 0.50",
                       "Data           Tipo       Importo", "pagam......");
    return printed(" Serial Number: 7", "CUSTOMER", "Num Description    Price  Amount",
                   "    TOTAL...............    1.00", "    Amount not paid: 0.50",
                   "Date           Description Amount", "payment....");
}

/// What the job prints with these settings in this environment.
void compare(const QByteArray &bytes, const QStringList &variables, const QStringList &expected)
{
    const TemporaryHome home(bytes);
    QFile file(home.path() + "/job.xml");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(job);
    file.close();
    const Run run = runRenderer({"job.xml", "stream.out"}, home.path(), variables);
    VERIFY_SOUND(run);
    QCOMPARE(linesOf(bytesOf(home.path() + "/stream.out")), expected);
}

/// The sample settings, to look up column widths in.
class SampleSettings
{
public:
    [[nodiscard]] int width(const QString &group, const QString &key) const
    {
        return config.lookup("korvel." + group + '.' + key).toInt();
    }

private:
    libconfig::Config config{KORVEL_SOURCE_DIR "/examples/korvel.conf", "cfg"};
};

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void byLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("language");
        const auto row = [](const char *locale, const char *language) {
            QTest::newRow(locale) << locale << language;
        };

        row("it_IT.UTF-8", "it");
        row("it_CH.UTF-8", "it");
        row("it_IT.ISO-8859-1", "it");
        row("de_DE.UTF-8", "de");
        row("de_AT.UTF-8", "de");
        row("fr_FR.UTF-8", "fr");
        row("es_ES.UTF-8", "es");
        row("en_GB.UTF-8", "en");
        row("C", "en");
    }

    void byLocale()
    {
        QFETCH(QString, locale);
        QFETCH(QString, language);
        compare(settings(catalogues, "/"), {"LC_ALL=" + locale}, printedIn(language));
    }

    void byFile_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("language");

        for (const QString &language : languages) {
            QTest::newRow(qPrintable(language + ", the whole name"))
                << "/korvel_" + language + ".qm" << language;
            QTest::newRow(qPrintable(language + ", without the suffix"))
                << "/korvel_" + language << language;
        }
        QTest::newRow("missing") << "/korvel_xx.qm"
                                 << "en";
        QTest::newRow("without the slash, the name is joined to the folder's") << "korvel_it.qm"
                                                                               << "en";
        QTest::newRow("empty") << ""
                               << "en";
    }

    void byFile()
    {
        QFETCH(QString, file);
        QFETCH(QString, language);
        // The locale of the tests, Italian, has no say here.
        compare(settings(catalogues, file), {}, printedIn(language));
    }

    void inTheWorkingDirectory_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("baseDir");
        QTest::addColumn<QString>("file");

        const auto row = [](const char *what, const QString &folder, const QString &baseDir,
                            const QString &file) {
            QTest::newRow(what) << folder << baseDir << file;
        };

        row("by locale", "lang", "lang", "/");
        row("by file", "lang", "lang", "/korvel_it.qm");
        row("by file, shortened", "lang", "lang", "/korvel_it_CH.x.qm");
        // The toolkit would take these for resources of its own.
        row("by locale, a colon first", ":lang", ":lang", "/");
        row("by locale, a colon alone", ":", ":", "/");
        row("by file, a colon first", ":lang", ":lang", "/korvel_it.qm");
        row("by file, a colon first, shortened", ":lang", ":lang", "/korvel_it_CH.x.qm");
        row("by file alone, a colon first", ":lang", "", ":lang/korvel_it");
    }

    void inTheWorkingDirectory()
    {
        QFETCH(QString, folder);
        QFETCH(QString, baseDir);
        QFETCH(QString, file);
        const TemporaryHome home(settings(baseDir, file));
        const QString target = home.path() + '/' + folder;
        QVERIFY(QDir().mkdir(target));
        QVERIFY(QFile::copy(catalogues + "/korvel_it.qm", target + "/korvel_it.qm"));
        QFile jobFile(home.path() + "/job.xml");
        QVERIFY(jobFile.open(QIODevice::WriteOnly));
        jobFile.write(job);
        jobFile.close();
        VERIFY_SOUND(runRenderer({"job.xml", "stream.out"}, home.path()));
        QCOMPARE(linesOf(bytesOf(home.path() + "/stream.out")), printedIn("it"));
    }

    void fromAnInstalledTree()
    {
        const QTemporaryDir prefix;
        QProcess install;
        install.setStandardErrorFile(QProcess::nullDevice());
        install.start("cmake", {"--install", built::folder, "--prefix", prefix.path()});
        QVERIFY(install.waitForFinished());
        QCOMPARE(install.exitCode(), 0);
        QVERIFY(QFile::exists(prefix.path() + "/bin/korvel-print"));
        compare(settings(prefix.path() + "/share/korvel-print/translations", "/"),
                {"LC_ALL=it_IT.UTF-8"}, printedIn("it"));
    }

    void damagedCatalogueIsNoCatalogue_data()
    {
        QTest::addColumn<QByteArray>("catalogue");

        const QByteArray sound = bytesOf(catalogues + "/korvel_it.qm");
        QVERIFY(sound.size() > 1000);
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("Num=Qtà\n");
        QTest::newRow("cut in the magic number") << sound.first(10);
        QTest::newRow("cut in the first section") << sound.first(100);
    }

    void damagedCatalogueIsNoCatalogue()
    {
        QFETCH(QByteArray, catalogue);
        const QTemporaryDir folder;
        QFile file(folder.path() + "/korvel_it.qm");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(catalogue);
        file.close();
        compare(settings(folder.path(), "/korvel_it.qm"), {}, printedIn("en"));
    }

    void captionsFitTheirColumns_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("width");
        const SampleSettings sample;
        const auto row = [](const QString &language, const char *where, const char *label,
                            int width) {
            QTest::newRow(qPrintable(language + ' ' + where + ": " + label))
                << language << label << width;
        };

        for (const QString &language : QStringList("en") + languages) {
            for (const char *group : {"prefiscaldoc", "receiptdoc", "invoicedoc"}) {
                const int q = sample.width(group, "quantityFieldWidth");
                const int p = sample.width(group, "priceFieldWidth");
                const int t = sample.width(group, "totalPriceFieldWidth");
                const int description = sample.width(group, "paperWidth") - q - p - t - 1;
                row(language, group, "Num", q);
                row(language, group, "Description", description);
                row(language, group, "Price", p - 1); // a blank keeps it off its neighbour
                row(language, group, "Amount", t - 1);
                row(language, group, "TOTAL", description);
                row(language, group, "Taxable", description);
                row(language, group, "TaxRate", description);
                row(language, group, "Tax", description);
            }

            const int paper = sample.width("reportdoc", "paperWidth");
            const int p = sample.width("reportdoc", "priceFieldWidth");
            row(language, "statement", "Date", 15);
            row(language, "statement", "Amount", p);
            for (const char *type : {"payment", "invoice", "receipt", "deposit", "refund"})
                row(language, "statement", type, paper - 15 - p - 3);

            for (const char *label : {"Number", "Serials", "Taxable", "Tax", "TOTAL"})
                row(language, "report", label, paper - 15);
            for (const char *title : {"SUMMARIES", "PREFISCAL SUMMARY", "RECEIPTS SUMMARY",
                                      "INVOICES SUMMARY", "CANCELLED DOC SUMMARY"})
                row(language, "report", title, paper);
            row(language, "tax rates", "TAXABLE", 10);
            row(language, "tax rates", "TAX", 10);
            row(language, "tax rates", "AMOUNT", 10);
            row(language, "cancelled", "SERIAL", 10);
            row(language, "cancelled", "TOTAL", 11);
            row(language, "cancelled", "TAXRATE", 10);
        }
        // The English texts of these are wider than their columns; they are the jobs' own words.
        for (const QString &language : languages) {
            row(language, "tax rates", "TAXRATE", 6);
            row(language, "statement", "credit note", 7);
        }
    }

    void captionsFitTheirColumns()
    {
        QFETCH(QString, language);
        QFETCH(QString, label);
        QFETCH(int, width);
        QString text = label;
        if (language != "en") {
            QTranslator translator;
            QVERIFY(translator.load(catalogues + "/korvel_" + language + ".qm"));
            text = translator.translate("PrinterDriver", label.toUtf8());
            QVERIFY2(!text.isEmpty(), "not in the catalogue");
        }
        QVERIFY2(text.size() <= width, qPrintable(text));
    }

    /// A title that fills its column would touch the next one where that fills its own.
    void titlesOfAStatementStandApart_data() { addLanguages(); }

    void titlesOfAStatementStandApart()
    {
        QTranslator translator;
        QVERIFY(translator.load(catalogues + "/korvel_" + QTest::currentDataTag() + ".qm"));
        const SampleSettings sample;
        const int paper = sample.width("reportdoc", "paperWidth");
        const int p = sample.width("reportdoc", "priceFieldWidth");
        const QString title =
            translator.translate("PrinterDriver", "Description", "of a movement, in 6 characters");
        QVERIFY(!title.isEmpty());
        QVERIFY2(title.size() < paper - 15 - p - 3, qPrintable(title));
    }

    /// Blanks at the ends of a label are part of the line that it makes.
    void labelsKeepTheirBlanks_data() { addLanguages(); }

    void labelsKeepTheirBlanks()
    {
        QTranslator translator;
        QVERIFY(translator.load(catalogues + "/korvel_" + QTest::currentDataTag() + ".qm"));
        for (const char *label :
             {"Serial Number: ", "BeginDate: ", "EndDate: ", "Amount not paid: ", "Cash: ",
              "Credit Card: ", "Bancomat: ", "Other: ", "    Amount not paid: "})
            QVERIFY2(translator.translate("PrinterDriver", label).endsWith(' '), label);
        QVERIFY(translator.translate("PrinterDriver", "    Amount not paid: ").startsWith("    "));
        QVERIFY(!translator.translate("PrinterDriver", "Amount not paid: ").startsWith(" "));
    }

private:
    static void addLanguages()
    {
        QTest::addColumn<int>("unused");
        for (const QString &language : languages)
            QTest::newRow(qPrintable(language)) << 0;
    }
};

KORVEL_TEST(TestTranslations)

} // namespace tst_translations

#include "tst_translations.moc"
