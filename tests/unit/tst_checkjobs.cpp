// Whole jobs in korvel-check: those that the golden tests print, and the samples.
#include "companions/check/codes.h"
#include "support/checkdesk.h"
#include "support/test.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace tst_checkjobs {

namespace check = korvel::check;

const QString casesFolder = top + "tests/golden/cases/";

/// An object of --json as the line of text that says the same.
QString lineOf(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    return QString("%1:%2:%3: %4: %5 [%6]")
        .arg(object["file"].toString(), QString::number(object["line"].toInt()),
             QString::number(object["column"].toInt()), object["level"].toString(),
             object["text"].toString(), object["code"].toString());
}

class TestCheckJobs : public QObject
{
    Q_OBJECT

private slots:
    /// Findings of whole jobs, with the settings of each: every job that the renderer's own tests
    /// print.
    void goldenJobs_data()
    {
        QTest::addColumn<QString>("folder");
        const QStringList jobs = filesBelow(casesFolder, "job.xml");
        QVERIFY(jobs.size() > 60);
        for (const QString &job : jobs) {
            const QString folder = QFileInfo(job).path() + '/';
            QTest::newRow(qPrintable(folder.mid(casesFolder.size()).chopped(1))) << folder;
        }
    }

    void goldenJobs()
    {
        QFETCH(QString, folder);
        const QStringList arguments = {"--settings", "korvel.conf", "job.xml"};
        const Run run = checker(arguments, {folder, {}, {}});
        QVERIFY(run.exited);
        QCOMPARE(linesOf(run.standardError), QStringList());

        // A line is a file, its place, and a code of the table with its level.
        static const QRegularExpression finding("^(korvel\\.conf|job\\.xml):[1-9]\\d*:[1-9]\\d*: "
                                                "(error|warning): \\S.* \\[([a-z-]+)\\]$");
        const QStringList lines = linesWithoutEnds(run.standardOutput);
        bool hasError = false;
        for (const QString &line : lines) {
            const auto match = finding.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            const check::CodeInfo *code = check::findCode(match.captured(3));
            QVERIFY2(code, qPrintable(line));
            QCOMPARE(match.captured(2), QString(check::levelName(code->level)));
            hasError = hasError || code->level == check::Level::Error;
        }
        QCOMPARE(run.status, hasError ? 1 : 0);
        QCOMPARE(checker(QStringList("--strict") + arguments, {folder, {}, {}}).status,
                 lines.isEmpty() ? 0 : 1);

        // The same in JSON.
        const Run json = checker(QStringList("--json") + arguments, {folder, {}, {}});
        VERIFY_ENDED(json, run.status);
        QStringList said;
        for (const QString &line : linesWithoutEnds(json.standardOutput))
            said.append(lineOf(line.toUtf8()));
        QCOMPARE(said, lines);
    }

    void examplesAreClean()
    {
        QStringList jobs = filesBelow(top + "examples/jobs", "*.xml");
        QCOMPARE(jobs.size(), 13);
        const Run alone = checker(QStringList("--strict") + jobs);
        VERIFY_ENDED(alone, 0);
        QCOMPARE(linesOf(alone.standardOutput), QStringList());
        const Run withSettings =
            checker(QStringList{"--strict", "--settings", top + "examples/korvel.conf"} + jobs);
        VERIFY_ENDED(withSettings, 0);
        QCOMPARE(linesOf(withSettings.standardOutput), QStringList());
    }
};

KORVEL_TEST(TestCheckJobs)

} // namespace tst_checkjobs

#include "tst_checkjobs.moc"
