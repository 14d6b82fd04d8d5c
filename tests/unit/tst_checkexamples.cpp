// The examples by which codes are explained: each causes its finding, and none when it is mended.
#include "companions/check/checks.h"
#include "companions/check/examples.h"
#include "companions/check/settingsfile.h"
#include "companions/recode/codepage.h"
#include "support/test.h"

#include <QStringList>

namespace tst_checkexamples {

namespace check = korvel::check;

/// The codes that are found in an example with these words in it, each once.
QStringList codesIn(const check::Example &example, QLatin1StringView words)
{
    const bool onOldPrinter = example.code == check::Code::NotInCharset;
    const auto charset = onOldPrinter ? korvel::recode::CodePage::named("cp437") : std::nullopt;
    const check::SettingsFile settings(settingsOf(example, words).toUtf8());
    const bool withSettings = !example.settings.isEmpty();
    QList<check::Finding> findings;
    if (withSettings)
        findings += checkSettings(settings);
    if (!example.job.isEmpty())
        findings += checkJob(jobOf(example, words).toUtf8(), withSettings ? &settings : nullptr,
                             charset ? &*charset : nullptr);
    QStringList codes;
    for (const check::Finding &finding : findings)
        codes.append(infoOf(finding.code).name);
    codes.removeDuplicates(); // several documents may share a mistake
    return codes;
}

class TestCheckExamples : public QObject
{
    Q_OBJECT

private slots:
    void everyCodeHasOne_data()
    {
        QTest::addColumn<const check::CodeInfo *>("row");
        for (const check::CodeInfo &row : check::codes()) {
            if (row.code != check::Code::ByteOrderMark) // which nobody sees in an example
                QTest::newRow(row.name.data()) << &row;
        }
    }

    void everyCodeHasOne()
    {
        QFETCH(const check::CodeInfo *, row);
        const check::Example *example = check::exampleOf(row->code);
        QVERIFY(example);
        QCOMPARE(codesIn(*example, example->wrong), QStringList(row->name));
        QCOMPARE(codesIn(*example, example->right), QStringList());
    }

    /// Nothing of an example is wider than a terminal, and what is mended is part of it.
    void shape_data() { everyCodeHasOne_data(); }

    void shape()
    {
        QFETCH(const check::CodeInfo *, row);
        const check::Example *example = check::exampleOf(row->code);
        QVERIFY(example);
        const QString mended =
            settingsOf(*example, example->right) + '\n' + jobOf(*example, example->right);
        QVERIFY(!mendedLinesOf(*example).isEmpty());
        QVERIFY2(mended.contains(mendedLinesOf(*example)), qPrintable(mended));
        const QString wrong =
            settingsOf(*example, example->wrong) + '\n' + jobOf(*example, example->wrong);
        for (const QString &line : wrong.split('\n'))
            QVERIFY2(line.size() <= 76, qPrintable(line)); // four more stand before it
    }
};

KORVEL_TEST(TestCheckExamples)

} // namespace tst_checkexamples

#include "tst_checkexamples.moc"
