// The checker beside the renderer and the preview: which lines are wider than the paper.
#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/preview/findings.h"
#include "support/built.h"
#include "support/capturedoutput.h"
#include "support/files.h"
#include "support/renderer.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace tst_checkagrees {

namespace check = korvel::check;
namespace preview = korvel::preview;

const QString top = KORVEL_SOURCE_DIR "/";
const QString catalogues = built::path("/translations");

/// The widths of what is wider than the paper, in the order of the stream.
QStringList wideInStream(const QByteArray &stream)
{
    static const QRegularExpression wide(
        "a (?:line|sale row|deduction) of (\\d+) characters is wider than the paper");
    QStringList widths;
    for (const preview::Finding &finding : preview::findings(stream, 32))
        if (const auto match = wide.match(finding.text); match.hasMatch())
            widths.append(match.captured(1));
    return widths;
}

/// The same of what the checker finds.
QStringList wideInJob(const QByteArray &job, const QByteArray &settings)
{
    static const QRegularExpression wide("^a line of (\\d+) characters is wider than the paper");
    const check::SettingsFile read(settings);
    QStringList widths;
    for (const check::Finding &finding : checkJob(job, &read))
        if (finding.code == check::Code::WideLine)
            widths.append(wide.match(finding.text).captured(1));
    return widths;
}

QByteArray rendered(const QString &job, const QByteArray &settings)
{
    const TemporaryHome home(settings);
    const Run run = runRenderer({job, "stream.out"}, home.path());
    if (!run.exited || run.status != 0)
        qFatal("not rendered: %s", qPrintable(job));
    return bytesOf(home.path() + "/stream.out");
}

/// The settings of the sample shop, with labels of a language.
QByteArray sampleSettings(const QString &language)
{
    QByteArray settings = bytesOf(top + "examples/korvel.conf");
    settings.replace("basedir = \"\"", "basedir = \"" + QFile::encodeName(catalogues) + '"');
    settings.replace("file = \"\"", "file = \"/korvel_" + language.toLatin1() + ".qm\"");
    return settings;
}

/// The widths of lines that are no fault of a job's.
QStringList excusedIn(const QString &job, const QString &language = "en")
{
    // A label of 29 characters before any amount.
    if (job == "receipt-summary")
        return {"34"};
    // The titles of the tax rates are 6 + 1 + 10 + 1 + 10 + 1 + 10, and the English word TAXRATE
    // is one longer than its column; a row of them is two characters more. The serial numbers
    // stand behind a label of 17, most of it dots.
    if (job == "period-report")
        return {language == "en" ? "40" : "39", "41", "34"};
    // Settings of 40 characters: two separators, the titles, and the rows, of which one has
    // figures beyond its fixed columns.
    if (job == "period-report/all-elements")
        return {"40", "40", "40", "41", "45", "41"};
    // An amount with parts of a hundredth, which is said: 5 + 1 + 13 + 8 + 10.
    if (job == "full-order/figures-are-never-cut")
        return {"37"};
    // Columns that take a character more than the paper: the titles, an item and the total.
    if (job == "full-order/columns-wider-than-the-paper")
        return {"33", "33", "33"};
    // 29 and an amount of 10; titles of 30 + 1 + 7 + 8 and an item of two more; separators; an
    // item, which is two short of the settings' 40.
    if (job == "a-label-that-is-always-too-wide")
        return {"39"};
    if (job == "no-room-for-any-line")
        return {"46", "46", "48"}; // titles, item, total
    // A quantity of one more than its column, in a row that does not come to its total.
    if (job == "a-figure-that-is-wrong")
        return {"33"};
    if (job == "paper-of-40-and-a-line-beyond-it" || job == "paper-of-40-and-a-line-within-it")
        return {"40"};
    if (job == "paper-of-40-filled-up")
        return {"38"};
    return {};
}

class TestCheckAgrees : public QObject
{
    Q_OBJECT

private slots:
    void lines_data()
    {
        QTest::addColumn<QString>("job");
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QStringList>("excused"); // wide by labels of the product's, or settings

        const QStringList examples = filesBelow(top + "examples/jobs", "*.xml");
        QCOMPARE(examples.size(), 13);
        for (const QString &job : examples) {
            const QString name = QFileInfo(job).completeBaseName();
            for (const char *language : {"en", "de", "es", "fr", "it"})
                QTest::newRow(qPrintable("example " + name + ' ' + language))
                    << job << sampleSettings(language) << excusedIn(name, language);
        }

        const QStringList jobs = filesBelow(top + "tests/golden/cases", "job.xml");
        QVERIFY(jobs.size() > 60);
        for (const QString &job : jobs) {
            const QString folder = QFileInfo(job).path();
            const QString name = folder.mid(top.size() + 19);
            QTest::newRow(qPrintable("case " + name))
                << job << bytesOf(folder + "/korvel.conf") << excusedIn(name);
        }

        for (const QString &job : filesBelow(top + "tests/check/wide-line", "*.xml")) {
            const QByteArray settings = bytesOf(job.chopped(3) + "conf");
            if (!settings.isEmpty())
                QTest::newRow(qPrintable("check " + QFileInfo(job).completeBaseName()))
                    << job << settings << excusedIn(QFileInfo(job).completeBaseName());
        }
    }

    /// A line of the stream that is wider than the paper is one that the checker finds in the job,
    /// but for those that are excused; and the checker finds no other.
    void lines()
    {
        QFETCH(QString, job);
        QFETCH(QByteArray, settings);
        QFETCH(QStringList, excused);
        QStringList inStream = wideInStream(rendered(job, settings));
        QStringList found = wideInJob(bytesOf(job), settings);
        for (const QString &width : excused)
            QVERIFY2(inStream.removeOne(width), qPrintable("no line is excused: " + width));
        inStream.sort();
        found.sort();
        QCOMPARE(found, inStream);
        counts.insert(QTest::currentDataTag(), found.size());
    }

    /// A note behind " Note: ", and behind the German " Hinweis: ", which is three longer.
    void labelsOfALanguage()
    {
        const auto compare = [](const QString &language, int length, const QStringList &expected) {
            const QByteArray settings = sampleSettings(language);
            const QByteArray job = "<job><method name=\"printPartialOrder\"/><orderinfo note=\""
                                   + QByteArray(length, 'x') + "\"/></job>";
            const QTemporaryDir folder;
            writeFile(folder.filePath("job.xml"), job);
            QCOMPARE(wideInJob(job, settings), expected);
            QCOMPARE(wideInStream(rendered(folder.filePath("job.xml"), settings)), expected);
        };
        compare("en", 25, {});
        compare("en", 26, {"33"});
        compare("de", 22, {});
        compare("de", 23, {"33"});
    }

    /// The checker reads no settings but those that it is given, and says nothing.
    void theUsersSettingsAreNotRead()
    {
        const TemporaryHome home; // without a file
        const CapturedOutput output;
        const QByteArray settings = sampleSettings("en");
        QCOMPARE(wideInJob("<job><method name=\"printFullOrder\"/><company name=\""
                               + QByteArray(33, 'x') + "\"/><method name=\"none\"/></job>",
                           settings),
                 QStringList{"33"});
        QCOMPARE(linesOf(output.bytes()), QStringList());
        QVERIFY(!SyncSingleton<KVConfiguration>::instance_pointer);
    }

    /// The comparison had something to compare.
    void someLinesAreWide()
    {
        const QList<qsizetype> all = counts.values();
        const auto wide = std::count_if(all.begin(), all.end(), [](auto n) { return n > 0; });
        QVERIFY2(wide >= 10, qPrintable(QString::number(wide)));
        QVERIFY(all.size() - wide >= 60);
    }

private:
    QMap<QString, qsizetype> counts; // of lines found, by the test's row
};

KORVEL_TEST(TestCheckAgrees)

} // namespace tst_checkagrees

#include "tst_checkagrees.moc"
