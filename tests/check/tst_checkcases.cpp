// The checker's cases: each file says what is found in it, or which other file it nearly is.
#include "support/checkcase.h"
#include "support/test.h"

#include <QDir>

namespace tst_checkcases {

namespace check = korvel::check;

const QDir top(KORVEL_SOURCE_DIR "/tests/check");

QStringList folders() { return top.entryList(QDir::Dirs | QDir::NoDotAndDotDot); }

/// The files of a folder, but settings that stand beside a job.
QStringList casesOf(const QString &folder)
{
    QStringList files = QDir(top.filePath(folder)).entryList(QDir::Files);
    const QStringList all = files;
    files.removeIf([&](const QString &file) {
        return file.endsWith(".conf") && all.contains(file.chopped(5) + ".xml");
    });
    return files;
}

class TestCheckCases : public QObject
{
    Q_OBJECT

private slots:
    void finding_data()
    {
        QTest::addColumn<QString>("code");
        for (const QString &code : folders())
            for (const QString &file : casesOf(code))
                QTest::newRow(qPrintable(code + '/' + file)) << code;
    }

    /// All that is found is expected. What does not have the code of its folder misses it nearly:
    /// another file that has it differs in one thing.
    void finding()
    {
        QFETCH(QString, code);
        const CheckCase here(top.filePath(QTest::currentDataTag()));
        const QStringList found = here.findings();
        QVERIFY2(found == here.expected,
                 qPrintable("found:" + here.remarks("expect", found)
                            + "\nexpected:" + here.remarks("expect", here.expected)));

        if (here.finds(code)) {
            QVERIFY2(here.near.isEmpty(), "a near miss has the code of its folder");
            return;
        }
        QVERIFY2(here.near.size() == 1,
                 qPrintable("a near miss names its hit:" + here.remarks("near", {"file"})));
        const CheckCase hit(top.filePath(code + '/' + here.near.first()));
        QVERIFY2(hit.finds(code), qPrintable(here.near.first() + " is no hit"));
        QVERIFY2(here.differencesFrom(hit) == 1,
                 qPrintable(here.near.first() + " does not differ in one line, and in one alone"));
    }

    /// The folders are named after the codes.
    void everyCodeHasAHitAndANearMiss()
    {
        for (const QString &folder : folders())
            QVERIFY2(check::findCode(folder), qPrintable(folder + " is no code"));
        for (const check::CodeInfo &row : check::codes()) {
            const QStringList files = casesOf(row.name);
            const auto hits = std::count_if(files.begin(), files.end(), [&](const QString &file) {
                return CheckCase(top.filePath(row.name + '/' + file)).finds(row.name);
            });
            QVERIFY2(hits > 0, qPrintable(row.name + " has no hit"));
            QVERIFY2(hits < files.size(), qPrintable(row.name + " has no near miss"));
        }
    }
};

KORVEL_TEST(TestCheckCases)

} // namespace tst_checkcases

#include "tst_checkcases.moc"
