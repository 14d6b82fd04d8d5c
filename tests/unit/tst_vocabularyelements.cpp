// The elements of the vocabulary: a job of each prints, switched and in its documents.
#include "support/test.h"
#include "support/till.h"

#include <QRegularExpression>

namespace tst_vocabularyelements {

using vocabulary::Attribute;
using vocabulary::Element;
using vocabulary::Method;

class TestVocabularyElements : public QObject
{
    Q_OBJECT

private slots:
    /// The elements for which the engine asks anything of a printer, and those that this one
    /// prints: lines of their own, or a change of what follows.
    void elements_data() { addMethods(); }

    void elements()
    {
        QFETCH(const Method *, method);
        Attributes attributes;
        for (const Attribute &row : vocabulary::attributes())
            attributes.insert(row.name, "12");
        QStringList rows;
        QStringList printingRows;
        for (const Element &row : vocabulary::elements()) {
            if ((row.documents & method->document) == 0)
                continue;
            rows.append(row.name);
            if (row.prints)
                printingRows.append(row.name);
        }
        const Till till(*method, everythingOn());

        QCOMPARE(namesThat([&](const QString &name) {
                     return name != "method" && !till.calls(tag(name, attributes)).isEmpty();
                 }),
                 sorted(rows).join(' '));

        const QString before = "<headers/>"; // what follows it is centred
        const QString after = "<receipt serialnumber=\"1\"/>";
        const QByteArray without = till.stream(before + after);
        QCOMPARE(namesThat([&](const QString &name) {
                     return name != "method"
                            && till.stream(before + tag(name, attributes) + after) != without;
                 }),
                 sorted(printingRows).join(' '));
    }

    /// What an element prints needs its own switch and no other. The printer's name, which comes
    /// with the headers, needs none.
    void switchOfAnElement_data() { addElements(); }

    void switchOfAnElement()
    {
        QFETCH(const Method *, method);
        QFETCH(const Element *, element);
        const QString job =
            tag(element->name, plainAttributes(*element, method->document), another);
        QStringList withoutIt;
        if (element->name == "headers")
            withoutIt = {shownLine(QString(16, ' ')), shownLine(QString(50, '='))};

        const QString setting = element->setting;
        const QStringList alone = Till(*method, with(everythingOff, {setting}, "true")).lines(job);
        QVERIFY(element->prints ? alone.size() > withoutIt.size() : alone.isEmpty());
        if (!setting.isEmpty())
            QCOMPARE(Till(*method, with(everythingOn(), {setting}, "false")).lines(job), withoutIt);
    }

    /// Attributes that have no row change nothing, unless the element prints any.
    void otherAttributes_data() { addElements(); }

    void otherAttributes()
    {
        QFETCH(const Method *, method);
        QFETCH(const Element *, element);
        const auto attributes = plainAttributes(*element, method->document);
        Attributes others;
        for (const QString &name : names())
            if (!attributes.contains(name))
                others.insert(name, "Zq8");
        const Till till(*method, everythingOn());
        const QStringList before = till.lines(shownTag(*element, attributes));
        const QStringList lines = till.lines(shownTag(*element, attributes, others));
        if (element->anyAttribute)
            QCOMPARE(lines.join(' ').count("Zq8"), others.size());
        else
            QCOMPARE(lines, before);
    }

    void anyAttributesKeepTheirOrder_data() { addElements(); }

    void anyAttributesKeepTheirOrder()
    {
        QFETCH(const Method *, method);
        QFETCH(const Element *, element);
        const QString job = tag(element->name, plainAttributes(*element, method->document));
        const QStringList lines =
            Till(*method, everythingOn()).lines(job.chopped(2) + " z='Zq8' a='Zq9' m='Zq0'/>");
        static const QRegularExpression mark("Zq\\d");
        QString found;
        for (const auto &match : mark.globalMatch(lines.join(' ')))
            found += match.captured();
        QCOMPARE(found, element->anyAttribute ? "Zq8Zq9Zq0" : "");
    }
};

KORVEL_TEST(TestVocabularyElements)

} // namespace tst_vocabularyelements

#include "tst_vocabularyelements.moc"
