// The codes of findings: each is explained, and says the words of a job as they stand.
#include "support/checkjobs.h"
#include "support/test.h"

#include <QSet>

namespace tst_checkcodes {

namespace check = korvel::check;

class TestCheckCodes : public QObject
{
    Q_OBJECT

private slots:
    void everyCodeIsExplained()
    {
        QSet<QString> names;
        for (const check::CodeInfo &row : check::codes()) {
            names.insert(row.name);
            const check::CodeInfo *found = check::findCode(row.name);
            QVERIFY2(found && found->code == row.code, row.name.data());
            QCOMPARE(infoOf(row.code).name, row.name);
            for (const auto &text : {QString(row.meaning), QString(row.advice)}) {
                QVERIFY2(text.endsWith('.') && text.front().isUpper(), qPrintable(text));
                QVERIFY2(!text.contains('\n') && !text.contains('|'), qPrintable(text));
            }
        }
        QCOMPARE(names.size(), check::codes().size());
        QCOMPARE(check::findCode(u"no-such-code"), nullptr);
        QCOMPARE(check::findCode(u""), nullptr);
    }

    /// A text of the job is shown as it stands, even where it looks like a place in a wording.
    void placesOfWordingsInTheJob()
    {
        QStringList texts;
        for (const QByteArray &job : QByteArrayList{
                 documentOf("%2", {}),
                 fiscalJob("<receipe department=\"1\" number=\"%3\" name=\"x\" price=\"%1\"/>"),
             }) {
            for (const check::Finding &finding : check::checkJob(job, nullptr))
                texts.append(finding.text);
        }
        const QStringList expected = {
            "no document is called \"%2\": the job ends here",
            "\"number\" of a sale row is \"%3\", no number above 0",
            "\"price\" of a sale row is \"%1\", no number: 0 is registered",
        };
        QCOMPARE(texts, expected);
    }
};

KORVEL_TEST(TestCheckCodes)

} // namespace tst_checkcodes

#include "tst_checkcodes.moc"
