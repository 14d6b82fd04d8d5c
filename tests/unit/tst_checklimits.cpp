// Jobs and settings that are deep, long or many: where reading ends, and what is gone through.
#include "support/checkjobs.h"
#include "support/test.h"

namespace tst_checklimits {

namespace check = korvel::check;

class TestCheckLimits : public QObject
{
    Q_OBJECT

private slots:
    /// The place of the finding is marked.
    void limits_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QString>("finding");

        QTest::newRow("1,025 elements in each other")
            << kitchen(nested(1023, "^" + item))
            << "more than 1024 elements nested in each other: the paper ends here";
        QTest::newRow("1,024 elements in each other") << kitchen(nested(1022, item)) << "";
        QTest::newRow("the 65th namespace in an element further in")
            << kitchen("<x" + namespaces(64)
                       + ">^<receipe xmlns=\"urn:x\" number=\"1\" name=\"x\"/></x>")
            << "more than 64 namespaces declared: the paper ends here";
        QTest::newRow("64 namespaces, and again beside them")
            << kitchen(("<x" + namespaces(64) + ">" + item + "</x>").repeated(2)) << "";
    }

    void limits()
    {
        QFETCH(QByteArray, job);
        QFETCH(QString, finding);
        const qsizetype column = job.indexOf('^') + 1;
        if (column == 0) {
            QCOMPARE(shown(check::checkJob(job, nullptr)), QStringList());
            return;
        }
        QCOMPARE(shown(check::checkJob(job.remove(column - 1, 1), nullptr)),
                 QStringList(QString("1:%1: error: %2 [limit]").arg(column).arg(finding)));
    }

    /// What the renderer reads over because there is too much of it is one finding.
    void settingsBeyondTheLimits()
    {
        const auto limits = [](const QByteArray &inner) {
            QStringList texts;
            for (const check::Finding &finding :
                 checkSettings(*settingsOf("korvel: { doc: {" + inner + "}; };"))) {
                if (finding.code == check::Code::Limit)
                    texts.append(finding.text);
            }
            return texts;
        };
        const auto readOver = [](int count) {
            return QStringList("groups and settings that are too many, too deep or too long are "
                               "read over: "
                               + QString::number(count));
        };
        const auto nested = [](int levels) {
            return QByteArray("a:{").repeated(levels) + "b=1;" + QByteArray("};").repeated(levels);
        };
        QCOMPARE(limits("paperWidth=32;"), QStringList());
        QCOMPARE(limits(nested(998)), QStringList());
        QCOMPARE(limits(nested(999)), readOver(1));
        QCOMPARE(limits(QByteArray("paperWidth=32;").repeated(262144)), QStringList());
        QCOMPARE(limits(QByteArray("paperWidth=32;").repeated(262146)), readOver(2));
        QCOMPARE(limits("paperWidth=" + QByteArray(16777217, '3') + ';'), readOver(1));
    }

    // Checking takes time in proportion to the job: what grows with its square ends with none of
    // these.

    void manyAttributes()
    {
        const auto numbered = [](const char *name) {
            QByteArray attributes;
            for (int i = 0; i < 80'000; ++i)
                attributes += attribute(name + QByteArray::number(i), "1");
            return attributes;
        };
        QCOMPARE(codesIn(receipt("<headers" + numbered("line") + "/>")), QStringList());
        QCOMPARE(codesIn(receipt("<total price=\"1.00\"" + numbered("prise") + "/>")).size(),
                 80'000);
        QCOMPARE(codesIn(report("<cancelledsummary number=\"80000\" totals=\"1.00\""
                                + numbered("serial") + numbered("total") + numbered("tax") + "/>")),
                 QStringList());
    }

    /// Of many elements that stand for attributes, a finding shows some.
    void manyElementsThatStandForAttributes()
    {
        QByteArray elements;
        for (int i = 0; i < 80'000; ++i)
            elements += "<e" + QByteArray::number(i) + ">1</e" + QByteArray::number(i) + '>';
        const auto findings =
            check::checkJob(kitchen("<receipe>" + elements + "</receipe>"), nullptr);
        QCOMPARE(findings.size(), 1);
        QCOMPARE(findings.first().code, check::Code::TextContent);
        QVERIFY2(findings.first().text.size() < 200, qPrintable(findings.first().text));
        QCOMPARE(codesIn(kitchen("<item>" + elements + "</item>")), QStringList{"unknown-element"});
    }

    void longValues_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QStringList>("codes");
        const auto row = [](const char *what, const QByteArray &job, const QStringList &codes) {
            QTest::newRow(what) << job << codes;
        };
        const auto total = [](const QByteArray &price) {
            return receipt("<total" + attribute("price", price) + "/>");
        };
        const auto sale = [](const QByteArray &number, const QByteArray &price) {
            return fiscalJob("<receipe department=\"1\" name=\"x\"" + attribute("number", number)
                             + attribute("price", price) + "/>");
        };
        constexpr int length = 1'000'000;
        const QByteArray zeros(length, '0');
        const QByteArray blanks(length, ' ');

        row("an amount behind blanks", total(blanks + "1.00"), {});
        row("blanks, and no amount", total(blanks + 'x'), {"amount"});
        row("blanks behind an amount, and no end", total("1.00" + blanks + 'x'), {"amount"});
        row("digits", total(QByteArray(length, '1')), {});
        row("digits, and no amount", total(QByteArray(length, '1') + 'x'), {"amount"});
        row("thousands", total('1' + QByteArray(",234").repeated(length / 4)), {});
        row("thousands, and no amount", total('1' + QByteArray(",234").repeated(length / 4) + 'x'),
            {"amount"});
        row("zeros that are registered", sale(zeros + '1', zeros + "1.50" + zeros), {});
        row("zeros, and no number", sale(zeros + 'x', "0." + zeros + 'x'),
            {"fiscal-quantity", "fiscal-amount"});
        row("blanks in a sale row", sale('1' + blanks + 'x', '1' + blanks + 'x'),
            {"fiscal-quantity", "fiscal-amount"});
        row("an address of commas",
            receipt("<customer name=\"x\"" + attribute("deliveryaddress", QByteArray(length, ','))
                    + "/>"),
            {});
        row("a name of an element", receipt('<' + QByteArray(length, 'x') + "/>"),
            {"unknown-element"});
        row("a name of a method", documentOf(QByteArray(length, 'x').constData(), ""),
            {"unknown-method"});
    }

    void longValues()
    {
        QFETCH(QByteArray, job);
        QFETCH(QStringList, codes);
        QCOMPARE(codesIn(job), codes);
    }
};

KORVEL_TEST(TestCheckLimits)

} // namespace tst_checklimits

#include "tst_checklimits.moc"
