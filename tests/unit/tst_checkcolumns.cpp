// Columns: figures as wide as theirs and wider, and the room that is left to a description.
#include "companions/check/vocabulary.h"
#include "support/checkjobs.h"
#include "support/settingstext.h"
#include "support/test.h"

namespace tst_checkcolumns {

class TestCheckColumns : public QObject
{
    Q_OBJECT

private slots:
    /// A figure of each column that fills the line, and one that is a character wider.
    void widths_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QByteArray>("figure");
        QTest::addColumn<int>("width");

        // The quantity column is 3 wide, that of the price 7, that of the amount 8. Rows without
        // amounts are two characters short of the line, movements three.
        const auto row = [](const char *method, const QByteArray &attributes, const char *figure,
                            int width) {
            QTest::addRow("%s: %s of %s", method, figure, attributes.constData())
                << QByteArray(method) << attributes << QByteArray(figure) << width;
        };
        const QByteArray priced = "receipe number name price totalPrice";
        const QByteArray variant = "variant number quantity name price totalPrice";
        const QByteArray kind = "receipe_type number name price";
        const QByteArray taxes = "totals taxable taxrate tax total";
        for (const char *method : {"printPartialOrder", "printFullOrderDelivery"}) {
            row(method, "receipe number name", "number", 3 + 2);
            row(method, "otherreceipe number name", "number", 3 + 2);
            row(method, "variant number quantity name", "number", 3 + 2);
        }
        for (const char *method :
             {"printFullOrder", "printFullOrderReceipt", "printFullOrderInvoice"}) {
            row(method, priced, "number", 3);
            row(method, priced, "price", 7);
            row(method, priced, "totalPrice", 8);
        }
        row("printFullOrder", variant, "number", 3);
        row("printFullOrder", variant, "price", 7);
        row("printFullOrder", variant, "totalPrice", 8);
        for (const char *method : {"printAbstractOrderReceipt", "printAbstractOrderInvoice"}) {
            row(method, kind, "number", 3);
            row(method, kind, "price", 8);
        }
        for (const char *method :
             {"printFullOrder", "printFullOrderReceipt", "printAbstractOrderReceipt"})
            row(method, "total price", "price", 8);
        for (const char *method : {"printFullOrderInvoice", "printAbstractOrderInvoice"}) {
            for (const char *figure : {"taxable", "taxrate", "tax", "total"})
                row(method, taxes, figure, 8);
        }
        row("printSold", "receipe quantity description amount", "quantity", 3);
        row("printSold", "receipe quantity description amount", "amount", 8);
        row("printStatementOfAccount", "statement date type amount", "amount", 7 + 3);
    }

    void widths()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, element);
        QFETCH(QByteArray, figure);
        QFETCH(int, width);

        QByteArray groups;
        for (const vocabulary::Method &row : vocabulary::methods())
            groups += documentGroup(QByteArray(row.group.data(), row.group.size()),
                                    "quantityFieldWidth = 3; priceFieldWidth = 7; "
                                    "totalPriceFieldWidth = 8;");
        const auto settings = settingsOf(settingsFile(groups));
        const auto jobWith = [&](const QByteArray &value) {
            QByteArrayList attributes = element.split(' ');
            QByteArray tag = '<' + attributes.takeFirst();
            for (const QByteArray &name : attributes) {
                const bool isSign = element.startsWith("variant") && name == "quantity";
                tag += attribute(name.constData(),
                                 name == figure ? value : QByteArray(isSign ? "1" : ""));
            }
            return documentOf(method.constData(), tag + "/>");
        };
        // A figure alone comes to no sum.
        const auto found = [&](int digits) {
            QStringList codes = codesIn(jobWith(QByteArray(digits, '1')), settings.get());
            codes.removeAll("no-total");
            return codes;
        };
        QCOMPARE(found(width), QStringList());
        QCOMPARE(found(width + 1), QStringList{"wide-line"});
    }

    /// Settings that leave a description one character, and one column more.
    void room_data()
    {
        QTest::addColumn<QByteArray>("group");
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QStringList>("documents");

        // By the table of rows in docs/settings.md, W being 32 unless it is set.
        QTest::newRow("kitchen order: W - q - 3")
            << QByteArray("doc") << QByteArray("p = 99; t = 99; q = 28;")
            << QStringList{"kitchen order"};
        QTest::newRow("delivery note: W - q - 3")
            << QByteArray("deliverydoc") << QByteArray("q = 28;") << QStringList{"delivery note"};
        QTest::newRow("full order: W - q - p - t - 1")
            << QByteArray("prefiscaldoc") << QByteArray("p = 9; t = 11; q = 10;")
            << QStringList{"full order"};
        QTest::newRow("receipts: W - q - p - t - 3")
            << QByteArray("receiptdoc") << QByteArray("p = 9; t = 11; q = 8;")
            << QStringList{"receipt", "summary receipt"};
        QTest::newRow("summary invoice: W - q - p - t - 3, the invoice has two more")
            << QByteArray("invoicedoc") << QByteArray("p = 9; t = 11; q = 8;")
            << QStringList{"summary invoice"};
        QTest::newRow("both invoices")
            << QByteArray("invoicedoc") << QByteArray("q = 0; p = 20; paperWidth = 22; t = 1;")
            << QStringList();
        QTest::newRow("sold items: W - q - p - t - 3")
            << QByteArray("solddoc") << QByteArray("p = 9; t = 11; q = 8;")
            << QStringList{"sold items"};
        QTest::newRow("statement: W - 15 - p - 3")
            << QByteArray("reportdoc") << QByteArray("q = 99; t = 99; p = 13;")
            << QStringList{"statement of account"};
        QTest::newRow("a narrow paper") << QByteArray("doc") << QByteArray("paperWidth = 7; q = 3;")
                                        << QStringList{"kitchen order"};
        QTest::newRow("a paper of 0 is the printer's")
            << QByteArray("doc") << QByteArray("paperWidth = 0; q = 28;")
            << QStringList{"kitchen order"};
    }

    void room()
    {
        QFETCH(QByteArray, group);
        QFETCH(QByteArray, settings);
        QFETCH(QStringList, documents);
        settings.replace("q =", "quantityFieldWidth =")
            .replace("p =", "priceFieldWidth =")
            .replace("t =", "totalPriceFieldWidth =");
        const auto findingsOf = [&](const QByteArray &text) {
            return checkSettings(*settingsOf(settingsFile(documentGroup(group, text))));
        };
        if (documents.isEmpty()) { // the narrower of two has no room, the wider has none left
            const QStringList both = shown(findingsOf(settings));
            QCOMPARE(both.size(), 1);
            QVERIFY2(both[0].contains("columns of the invoice, summary invoice "),
                     qPrintable(both[0]));
            return;
        }
        QCOMPARE(shown(findingsOf(settings)), QStringList());

        // One more in the last column, which is the narrowest with room to lose.
        const qsizetype last = settings.lastIndexOf("= ") + 2;
        const int width = settings.mid(last).chopped(1).toInt();
        const auto narrow = findingsOf(settings.first(last) + QByteArray::number(width + 1) + ';');
        QCOMPARE(narrow.size(), 1);
        QCOMPARE(infoOf(narrow[0].code).name, QLatin1String("columns"));
        QVERIFY2(narrow[0].text.startsWith("the columns of the " + documents.join(", ")
                                           + " leave no room for the description"),
                 qPrintable(narrow[0].text));
        QCOMPARE(narrow[0].place.line, 5);
    }
};

KORVEL_TEST(TestCheckColumns)

} // namespace tst_checkcolumns

#include "tst_checkcolumns.moc"
