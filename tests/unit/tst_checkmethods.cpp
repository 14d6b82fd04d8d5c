// A job under the method of another document: one finding, at the method, that names the right one.
#include "companions/check/checks.h"
#include "companions/check/vocabulary.h"
#include "support/bytes.h"
#include "support/checkjobs.h"
#include "support/test.h"

namespace tst_checkmethods {

namespace check = korvel::check;

/// The sample jobs, by their methods.
QByteArray sampleOf(const vocabulary::Method &method)
{
    return bytesOf(KORVEL_SOURCE_DIR "/examples/jobs/" + QString(method.sample) + ".xml");
}

/// Documents that print most elements of each other's samples, and the findings that are left.
struct Alike
{
    QLatin1StringView job;
    QLatin1StringView method;
    QStringList codes;
};

const QList<Alike> &alike()
{
    namespace method = vocabulary::method;
    static const QList<Alike> rows = {
        {method::printPartialOrder, method::printFullOrderDelivery, {}},
        {method::printFullOrderDelivery, method::printPartialOrder, {}},
        {method::printFullOrder, method::printFullOrderReceipt, {"lost-element", "lost-element"}},
        {method::printFullOrder,
         method::printFullOrderInvoice,
         {"lost-element", "lost-element", "lost-element"}},
        {method::printFullOrderReceipt, method::printFullOrder, {"lost-element"}},
        {method::printFullOrderInvoice, method::printFullOrder, {"lost-element"}},
        {method::printFullOrderInvoice, method::printFullOrderReceipt, {"lost-element"}},
    };
    return rows;
}

class TestCheckMethods : public QObject
{
    Q_OBJECT

private slots:
    void another_data()
    {
        QTest::addColumn<const vocabulary::Method *>("meant");
        QTest::addColumn<const vocabulary::Method *>("selected");
        for (const vocabulary::Method &meant : vocabulary::methods()) {
            for (const vocabulary::Method &selected : vocabulary::methods()) {
                // The sample of a summary order holds nothing.
                if (meant.document != selected.document
                    && meant.document != vocabulary::SummaryOrder)
                    QTest::addRow("%s as %s", meant.name.data(), selected.name.data())
                        << &meant << &selected;
            }
        }
    }

    void another()
    {
        QFETCH(const vocabulary::Method *, meant);
        QFETCH(const vocabulary::Method *, selected);
        QByteArray job = sampleOf(*meant);
        QCOMPARE(job.count(meant->name.data()), 1);
        job.replace(meant->name.data(), selected->name.data());

        const auto findings = check::checkJob(job, nullptr);
        for (const Alike &row : alike()) {
            if (row.job != meant->name || row.method != selected->name)
                continue;
            QStringList codes;
            for (const check::Finding &finding : findings)
                codes.append(infoOf(finding.code).name);
            QCOMPARE(codes, row.codes);
            return;
        }
        QVERIFY2(findings.size() == 1, qPrintable(shown(findings).join('\n')));
        QCOMPARE(findings.first().code, check::Code::WrongMethod);
        QCOMPARE(findings.first().place.line, 3);
        QCOMPARE(findings.first().text, QString("most elements are those of the %1, not of the %2; "
                                                "did you mean \"%3\"?")
                                            .arg(meant->title, selected->title, meant->name));
    }
};

KORVEL_TEST(TestCheckMethods)

} // namespace tst_checkmethods

#include "tst_checkmethods.moc"
