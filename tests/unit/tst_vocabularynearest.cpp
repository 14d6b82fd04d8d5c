// What a misspelt name of the vocabulary may be meant to be.
#include "companions/shared/nearest.h"
#include "support/test.h"
#include "support/vocabularytables.h"

namespace tst_vocabularynearest {

using vocabulary::Attribute;
using vocabulary::Element;
using vocabulary::Method;
using vocabulary::Setting;

class TestVocabularyNearest : public QObject
{
    Q_OBJECT

private slots:
    void nearest_data()
    {
        QTest::addColumn<QStringList>("list");
        QTest::addColumn<QString>("expected");
        const QStringList methods = column(vocabulary::methods(), &Method::name);
        const QStringList elements = column(vocabulary::elements(), &Element::name);
        const QStringList attributes = column(vocabulary::attributes(), &Attribute::name);
        const QStringList settings = column(vocabulary::settings(), &Setting::key);
        const auto row = [](const char *misspelt, const QStringList &list, const char *expected) {
            QTest::newRow(misspelt) << list << expected;
        };

        // A missing, an extra, a wrong letter, two of them swapped.
        row("recipe", elements, "receipe");
        row("receeipe", elements, "receipe");
        row("receive", elements, "receipe");
        row("reciepe", elements, "receipe");
        row("totlal", elements, "total");
        row("totla", elements, "total");
        row("lgoo", elements, "logo");
        row("prefiscalsummary", elements, "prefiscalssummary");
        row("receipe-type", elements, "receipe_type");
        row("printSolds", methods, "printSold");
        row("printFulOrder", methods, "printFullOrder");
        row("serialnumbr", attributes, "serialnumber");
        row("nmae", attributes, "name");

        // Two slips.
        row("reciepee", elements, "receipe");
        row("orederinfos", elements, "orderinfo");
        row("printFullOrderReciep", methods, "printFullOrderReceipt");
        row("papreWith", settings, "paperWidth");

        // Other letter cases, however many.
        row("Receipe", elements, "receipe");
        row("RECEIPE_TYPE", elements, "receipe_type");
        row("notpaid", elements, "notPaid");
        row("printfullorderfiscal", methods, "printFullOrderFiscal");
        row("paperwidth", settings, "paperWidth");
        row("NAME", attributes, "name");

        // The nearest one, also behind others that are near.
        row("totalss", elements, "totals");
        row("receip", {"receipt_no", "receipts", "receipt"}, "receipt");
        row("other case first", {"other-case first", "Other Case First"}, "Other Case First");
        row("the first of two", {"the first of twi", "the first of twa"}, "the first of twi");

        // Nothing like any.
        row("x", elements, "");
        row("foo", elements, "");
        row("printjob", elements, "");
        row("printjob ", methods, "");
        row("item", elements, "");
        row("recp", elements, "");
        row("paper", settings, "");
        row("reciepee-s", elements, "");

        // Too short for a slip, or for two.
        row("a", {"b", "ab"}, "");
        row("ab", {"ac", "abc"}, "");
        row("abc", {"axx"}, "");
        row("abcd", {"abxx"}, "");
        row("abd", {"abc"}, "abc");
        row("abcde", {"abxxe"}, "abxxe");
        row("", {"a"}, "");
        row("nothing to choose from", {}, "");
    }

    void nearest()
    {
        QFETCH(QStringList, list);
        QFETCH(QString, expected);
        QCOMPARE(korvel::shared::nearest(QString(QTest::currentDataTag()), list), expected);
    }
};

KORVEL_TEST(TestVocabularyNearest)

} // namespace tst_vocabularynearest

#include "tst_vocabularynearest.moc"
