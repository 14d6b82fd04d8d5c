// The hints in the tree of the settings editor: marks and meanings.
#include "companions/settings/document.h"
#include "companions/settings/hints.h"
#include "support/settingsfiles.h"
#include "support/settingstext.h"
#include "support/settingsview.h"
#include "support/test.h"

#include <QMap>
#include <QSignalSpy>
#include <QTreeWidgetItemIterator>

namespace tst_settingshints {

using namespace korvel::settings;

/// Marked rows and what they say: "korvel.doc.printDate: ...". A value's row stands for itself.
QMap<QString, QString> marksOf(QTreeWidget &view)
{
    QMap<QString, QString> marks;
    for (QTreeWidgetItemIterator it(&view); *it; ++it) {
        if ((*it)->icon(0).isNull() != (*it)->toolTip(0).isEmpty())
            qFatal("a row has an icon or a tooltip alone");
        if ((*it)->icon(0).isNull())
            continue;
        QStringList path;
        for (QTreeWidgetItem *row = *it; row->parent(); row = row->parent())
            path.prepend(row->text(0));
        marks.insert(path.join('.'), (*it)->toolTip(0));
    }
    return marks;
}

void mark(QTreeWidget &view) { hints::mark(view, hints::find(SettingsDocument::writtenBy(view))); }

class TestSettingsHints : public QObject
{
    Q_OBJECT

private slots:
    void theSampleShopHasNoMarks()
    {
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        mark(*view);
        QCOMPARE(marksOf(*view), (QMap<QString, QString>()));
    }

    void marks_data()
    {
        QTest::addColumn<QByteArray>("groups"); // of korvel
        QTest::addColumn<QStringList>("rows");  // marked, by name
        QTest::addColumn<QString>("says");      // a word of the tooltip
        const auto row = [](const char *name, const QByteArray &groups, const QStringList &rows,
                            const QString &says) { QTest::newRow(name) << groups << rows << says; };
        const auto doc = [](const QByteArray &settings) { return "doc: { " + settings + " };"; };

        row("true", doc("printDate = true;"), {}, {});
        row("false is meant", doc("printDate = false;"), {}, {});
        row("an empty switch is a missing one", doc("printDate = ;"), {}, {});
        for (const char *value : {"True", "TRUE", "yes", "on", "1", "\" true \""}) {
            const QString text = QString(value).remove('"');
            row(value, doc(QByteArray("printDate = ") + value + ";"),
                {"korvel.doc.printDate", "korvel.doc.printDate." + text}, "off");
        }

        row("a number", doc("paperWidth = 30;"), {}, {});
        row("a number with a sign", doc("paperWidth = +30;"), {}, {});
        for (const char *value : {"3.0", "3,0", "0x3", "3 columns", "wide", "4294967296"})
            row(value, doc(QByteArray("quantityFieldWidth = ") + value + ";"),
                {"korvel.doc.quantityFieldWidth",
                 QString("korvel.doc.quantityFieldWidth.") + value},
                "0");

        row("a misspelt key", doc("paperwidth = 30;"),
            {"korvel.doc.paperwidth", "korvel.doc.paperwidth.30"}, "No document");
        row("a misspelt group", "docs: { paperWidth = 30; };", {"korvel.docs"}, "No document");
        row("an unknown group", "custom: { paperWidth = 30; };", {"korvel.custom"}, "No document");
        row("a key outside a document's group", "paperWidth = 30;",
            {"korvel.paperWidth", "korvel.paperWidth.30"}, "No document");
        row("the keys of the language", "language: { basedir = /; file = ; };", {}, {});
        row("a catalogue that is not there", "language: { basedir = /; file = /; };",
            {"korvel.language.file", "korvel.language.file./"}, "catalogue");
        row("another key of the language", "language: { name = it; };",
            {"korvel.language.name", "korvel.language.name.it"}, "No document");
        row("a key too deep", doc("inner: { paperWidth = 30; };"), {"korvel.doc.inner"},
            "No document");

        // W - q - p - t - 3 characters for the description of a receipt, at least one.
        row("columns that leave one character",
            "receiptdoc: { quantityFieldWidth = 10; priceFieldWidth = 10; totalPriceFieldWidth = 8;"
            " paperWidth = 32; };",
            {}, {});
        row("columns that leave none",
            "receiptdoc: { quantityFieldWidth = 10; priceFieldWidth = 10; totalPriceFieldWidth = 9;"
            " paperWidth = 32; };",
            {"korvel.receiptdoc.quantityFieldWidth", "korvel.receiptdoc.quantityFieldWidth.10"},
            "description");
        row("without paperWidth the device's 32 count",
            "receiptdoc: { quantityFieldWidth = 10; priceFieldWidth = 10; totalPriceFieldWidth = 9;"
            " };",
            {"korvel.receiptdoc.quantityFieldWidth", "korvel.receiptdoc.quantityFieldWidth.10"},
            "description");
        row("the full order has two characters more",
            "prefiscaldoc: { quantityFieldWidth = 10; priceFieldWidth = 10;"
            " totalPriceFieldWidth = 10; };",
            {}, {});
        row("but no more than that",
            "prefiscaldoc: { quantityFieldWidth = 10; priceFieldWidth = 10;"
            " totalPriceFieldWidth = 11; };",
            {"korvel.prefiscaldoc.totalPriceFieldWidth",
             "korvel.prefiscaldoc.totalPriceFieldWidth.11"},
            "description");
        row("the kitchen order has no prices, and widths of them are not read",
            doc("quantityFieldWidth = 28; priceFieldWidth = 9; totalPriceFieldWidth = 8;"),
            {"korvel.doc.priceFieldWidth", "korvel.doc.priceFieldWidth.9",
             "korvel.doc.totalPriceFieldWidth", "korvel.doc.totalPriceFieldWidth.8"},
            "No document");
        row("the kitchen order's quantity is too wide", doc("quantityFieldWidth = 29;"),
            {"korvel.doc.quantityFieldWidth", "korvel.doc.quantityFieldWidth.29"}, "description");
        row("a paper wider than the printer's", doc("paperWidth = 33;"),
            {"korvel.doc.paperWidth", "korvel.doc.paperWidth.33"}, "32");
        row("the second of two groups of a name",
            "doc: { printDate = true; }; doc: { printTime = true; };", {"korvel.doc"},
            "second time");
    }

    void marks()
    {
        QFETCH(QByteArray, groups);
        QFETCH(QStringList, rows);
        QFETCH(QString, says);
        const File file("korvel: {\n" + groups + "\n};\n");
        SettingsDocument document(file.path());
        const auto view = document.read();
        const QStringList before = rowsOf(*view);
        QSignalSpy edits(view.get(), &QTreeWidget::itemChanged);
        mark(*view);
        const QMap<QString, QString> marks = marksOf(*view);
        rows.sort();
        QCOMPARE(QStringList(marks.keys()), rows);
        for (const QString &text : marks)
            QVERIFY2(text.contains(says), qPrintable(text));
        QCOMPARE(edits.size(), 0);
        QCOMPARE(rowsOf(*view), before);
    }

    // Of two groups of a name the row with the value that is hardly meant is marked.
    void theMarkedRowIsTheOneThatIsMeant()
    {
        const File file(settingsFile("doc: { printDate = true; }; doc: { printDate = yes; };"));
        SettingsDocument document(file.path());
        const auto view = document.read();
        mark(*view);
        QVERIFY(rowAt(*view, "korvel.doc.printDate")->icon(0).isNull());
        QVERIFY(!rowAt(*view, "korvel.doc#2.printDate")->icon(0).isNull());
    }

    void aMarkGoesWithItsReason()
    {
        const File file(settingsFile("doc: { printDate = yes; };"));
        SettingsDocument document(file.path());
        const auto view = document.read();
        mark(*view);
        QCOMPARE(marksOf(*view).size(), 2);
        const QTreeWidgetItem *row = rowAt(*view, "korvel.doc.printDate");
        QCOMPARE(row->data(0, Qt::AccessibleDescriptionRole).toString(), row->toolTip(0));
        setValue(*view, "korvel.doc.printDate", "true");
        mark(*view);
        QCOMPARE(marksOf(*view).size(), 0);
        QCOMPARE(row->data(0, Qt::AccessibleDescriptionRole).toString(), QString());
        QCOMPARE(row->child(0)->data(0, Qt::AccessibleDescriptionRole).toString(), QString());
    }

    void meanings_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<QStringList>("parts"); // of the text, as plain text
        const auto row = [](const QString &path, const QStringList &parts) {
            QTest::newRow(qPrintable(path)) << path << parts;
        };
        row("korvel", {});
        row("korvel.doc", {"doc", "Read by: kitchen order, summary order."});
        row("korvel.prefiscaldoc", {"prefiscaldoc", "Read by: full order."});
        row("korvel.fiscaldoc", {"fiscaldoc", "Read by: fiscal receipt, summary fiscal receipt."});
        row("korvel.receiptdoc", {"receiptdoc", "Read by: receipt, summary receipt."});
        row("korvel.invoicedoc", {"invoicedoc", "Read by: invoice, summary invoice."});
        row("korvel.deliverydoc", {"deliverydoc", "Read by: delivery note."});
        row("korvel.reportdoc", {"reportdoc", "Read by: period report, statement of account."});
        row("korvel.solddoc", {"solddoc", "Read by: sold items."});
        row("korvel.receiptdoc.quantityFieldWidth",
            {"quantityFieldWidth", "width of the quantity column",
             "Read by: receipt, summary receipt."});
        row("korvel.receiptdoc.quantityFieldWidth.3",
            {"quantityFieldWidth", "width of the quantity column",
             "Read by: receipt, summary receipt."});
        row("korvel.doc.quantityFieldWidth",
            {"quantityFieldWidth", "width of the quantity column", "Read by: kitchen order."});
        row("korvel.reportdoc.priceFieldWidth",
            {"priceFieldWidth", "in a statement, of the amount", "Read by: statement of account."});
        row("korvel.fiscaldoc.descriptionWidth",
            {"descriptionWidth", "characters of an item's name that are sent",
             "Read by: fiscal receipt."});
        row("korvel.invoicedoc.topMargin",
            {"topMargin", "empty lines of the top margin", "Read by: invoice, summary invoice."});
        row("korvel.receiptdoc.printDate", {"printDate", "the date of the order information"});
        row("korvel.receiptdoc.printHeader", {"printHeader", "the header lines"});
        row("korvel.language.basedir", {"basedir", "folder"});
        row("korvel.language.file", {"file", "catalogue"});
    }

    void meanings()
    {
        QFETCH(QString, row);
        QFETCH(QStringList, parts);
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        mark(*view);
        const QTreeWidgetItem *item = rowAt(*view, row);
        QVERIFY(item);
        const QString meaning = hints::meaningOf(item);
        if (parts.isEmpty())
            QCOMPARE(meaning, QString());
        for (const QString &part : parts)
            QVERIFY2(meaning.contains(part.toHtmlEscaped()), qPrintable(meaning));
    }

    void everySettingHasAMeaning()
    {
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        int settings = 0;
        for (QTreeWidgetItemIterator it(view.get()); *it; ++it) {
            if ((*it)->flags() & Qt::ItemIsEditable) {
                ++settings;
                QVERIFY2(!hints::meaningOf(*it).isEmpty(), qPrintable((*it)->parent()->text(0)));
                QCOMPARE(hints::meaningOf(*it), hints::meaningOf((*it)->parent()));
            }
        }
        QCOMPARE(settings, int(example("korvel.conf").count('=')));
        QCOMPARE(hints::meaningOf(nullptr), QString());
    }

    void theMeaningSaysWhatTheMarkSays()
    {
        const File file(settingsFile("doc: { printDate = yes; nothing<b>known = 1; };"));
        SettingsDocument document(file.path());
        const auto view = document.read();
        mark(*view);
        const QTreeWidgetItem *row = rowAt(*view, "korvel.doc.printDate");
        QVERIFY(hints::meaningOf(row).contains(row->toolTip(0).toHtmlEscaped()));
        const QTreeWidgetItem *unknown = rowAt(*view, "korvel.doc.nothing<b>known");
        QVERIFY(hints::meaningOf(unknown).contains(unknown->toolTip(0).toHtmlEscaped()));
        QVERIFY(!hints::meaningOf(unknown).contains("<b>known"));
    }
};

KORVEL_TEST(TestSettingsHints)

} // namespace tst_settingshints

#include "tst_settingshints.moc"
