// The tables of the vocabulary: their rows fit together, and are found.
#include "support/test.h"
#include "support/vocabularytables.h"

namespace tst_vocabulary {

using vocabulary::Attribute;
using vocabulary::Document;
using vocabulary::Documents;
using vocabulary::Element;
using vocabulary::Kind;
using vocabulary::Method;
using vocabulary::Setting;

class TestVocabulary : public QObject
{
    Q_OBJECT

private slots:
    void rowsFitTogether()
    {
        QStringList keys;
        Documents all = 0;
        for (const Method &row : vocabulary::methods()) {
            keys.append(row.name);
            QCOMPARE(unsigned(row.document), all + 1); // the next bit
            all |= row.document;
        }
        for (const Setting &row : vocabulary::settings()) {
            keys.append(row.key);
            QVERIFY2((row.documents & ~all) == 0, row.key.data());
        }
        const auto addRow = [&](const QString &name, Documents documents,
                                QLatin1StringView setting) {
            QVERIFY2(documents != 0 && (documents & ~all) == 0, qPrintable(name));
            for (const Method &method : vocabulary::methods())
                if ((documents & method.document) != 0)
                    keys.append(method.name + ' ' + name);
            if (setting.isEmpty())
                return;
            const Setting *row = vocabulary::findSetting(setting);
            QVERIFY2(row, qPrintable(name));
            QVERIFY2(row->kind == Kind::Switch, qPrintable(name));
            QVERIFY2((documents & ~row->documents) == 0, qPrintable(name));
        };
        for (const Element &row : vocabulary::elements())
            addRow(row.name, row.documents, row.setting);
        const QStringList elements = keys;
        for (const Attribute &row : vocabulary::attributes()) {
            addRow(row.element + ' ' + row.name, row.documents, row.setting);
            for (const Method &method : vocabulary::methods())
                if ((row.documents & method.document) != 0)
                    QVERIFY2(elements.contains(method.name + ' ' + row.element), row.name.data());
        }
        for (const QString &key : keys)
            QVERIFY2(keys.count(key) == 1, qPrintable(key));
    }

    void methodsAreFound()
    {
        for (const Method &row : vocabulary::methods())
            QCOMPARE(vocabulary::findMethod(row.name), &row);
        QVERIFY(!vocabulary::findMethod(u"printfullorder"));
        QVERIFY(!vocabulary::findMethod(u""));
        QVERIFY(!vocabulary::findMethod(u"receipt"));
    }

    void elementsAreFound()
    {
        const auto meaning = [](QAnyStringView name, Document document) {
            const Element *row = vocabulary::findElement(name, document);
            return row ? QString(row->meaning) : QString("ignored");
        };
        QCOMPARE(meaning(u"receipe", vocabulary::SoldItems), "quantity, `x`, description, amount");
        QCOMPARE(meaning(u"receipe", vocabulary::KitchenOrder), "an item: quantity and name");
        QCOMPARE(meaning(u"receipe", vocabulary::SummaryReceipt), "ignored");
        QCOMPARE(meaning(u"Receipe", vocabulary::KitchenOrder), "ignored");
        QCOMPARE(meaning(u"company", vocabulary::SummaryOrder), "ignored");
        QCOMPARE(meaning(u"", vocabulary::KitchenOrder), "ignored");
    }

    void sharedElements()
    {
        QStringList shared;
        for (const Element &row : vocabulary::elements())
            if (vocabulary::isShared(row))
                shared.append(row.name);
        QCOMPARE(shared, QStringList({"printers", "geometry", "headers", "logo", "company",
                                      "receipt", "invoice", "delivery", "orderinfo"}));
    }

    void attributesAreFound()
    {
        const auto found = [](QAnyStringView element, Document document) {
            return column(vocabulary::attributesOf(element, document), &Attribute::name);
        };
        QCOMPARE(found(u"receipe", vocabulary::KitchenOrder), QStringList({"number", "name"}));
        QCOMPARE(found(u"receipe", vocabulary::SoldItems),
                 QStringList({"quantity", "description", "amount"}));
        QCOMPARE(found(u"receipe", vocabulary::PeriodReport), QStringList());
        QCOMPARE(found(u"headers", vocabulary::Receipt), QStringList());
        QCOMPARE(found(u"cancelledsummary", vocabulary::PeriodReport),
                 QStringList({"number", "totals"}));
        QCOMPARE(found(u"RECEIPE", vocabulary::KitchenOrder), QStringList());
    }

    void settingsAreFound()
    {
        for (const Setting &row : vocabulary::settings())
            QCOMPARE(vocabulary::findSetting(row.key), &row);
        QVERIFY(!vocabulary::findSetting(u"paperwidth"));
        QVERIFY(!vocabulary::findSetting(u"korvel.doc.paperWidth"));
        QVERIFY(!vocabulary::findSetting(u"basedir"));
        QVERIFY(!vocabulary::findSetting(u""));
    }

    void documentsOfAGroup()
    {
        QCOMPARE(vocabulary::documentsOf(u"doc"),
                 Documents(vocabulary::KitchenOrder | vocabulary::SummaryOrder));
        QCOMPARE(vocabulary::documentsOf(u"reportdoc"),
                 Documents(vocabulary::PeriodReport | vocabulary::Statement));
        QCOMPARE(vocabulary::documentsOf(u"solddoc"), Documents(vocabulary::SoldItems));
        QCOMPARE(vocabulary::documentsOf(u"language"), Documents(0));
        QCOMPARE(vocabulary::documentsOf(u"Doc"), Documents(0));
        QCOMPARE(vocabulary::documentsOf(u""), Documents(0));
    }

    void titlesOfDocuments()
    {
        using namespace vocabulary;
        QCOMPARE(titlesOf(0), "");
        QCOMPARE(titlesOf(Statement), "statement of account");
        QCOMPARE(titlesOf(SummaryReceipt | Receipt), "receipt, summary receipt");
        const Documents six =
            KitchenOrder | FullOrder | Receipt | Invoice | DeliveryNote | SummaryInvoice;
        QCOMPARE(titlesOf(six),
                 "kitchen order, full order, receipt, invoice, delivery note, summary invoice");
        QCOMPARE(titlesOf(vocabulary::shared),
                 "all documents but fiscal receipt, summary order, summary fiscal receipt");
        QCOMPARE(titlesOf(vocabulary::shared & ~Documents(SoldItems)),
                 "kitchen order, full order, receipt, invoice, delivery note, summary receipt, "
                 "summary invoice, period report, statement of account");
    }
};

KORVEL_TEST(TestVocabulary)

} // namespace tst_vocabulary

#include "tst_vocabulary.moc"
