// What can be read of a job: the checker and the renderer agree, and samples are in order.
#include "companions/check/vocabulary.h"
#include "support/bytes.h"
#include "support/checkjobs.h"
#include "support/files.h"
#include "support/guardedjob.h"
#include "support/test.h"

#include <algorithm>

namespace tst_checkreading {

namespace check = korvel::check;

/// Whether the checker takes a job for one that the renderer reads to its end.
bool isReadable(const QByteArray &job)
{
    const QStringList codes = codesIn(job);
    return !codes.contains("malformed-xml") && !codes.contains("limit")
           && !codes.contains("encoding");
}

class TestCheckReading : public QObject
{
    Q_OBJECT

private slots:
    /// The checker and the renderer agree on what can be read to its end.
    void readAsTheRendererReads_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<bool>("readable");

        const QStringList golden = filesBelow(KORVEL_SOURCE_DIR "/tests/golden/cases", "job.xml");
        QVERIFY(golden.size() > 60);
        for (const QString &path : golden)
            QTest::newRow(qPrintable(path.section('/', -3, -2)))
                << bytesOf(path) << !path.contains("/malformed-xml-ends-the-paper/");

        const auto row = [](const char *what, const QByteArray &job, bool readable) {
            QTest::newRow(what) << job << readable;
        };
        row("1,024 elements in each other", kitchen(nested(1022, item)), true);
        row("1,025 elements in each other", kitchen(nested(1023, item)), false);
        row("64 namespaces", kitchen("<x" + namespaces(64) + "/>"), true);
        row("65 namespaces", kitchen("<x" + namespaces(65) + "/>"), false);
        row("64 namespaces twice", kitchen(("<x" + namespaces(64) + "/>").repeated(2)), true);
        row("UTF-16", utf16(kitchen(item)), true);
        row("UTF-16, and so by name",
            utf16("<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + kitchen(item)), true);
        row("UTF-16, and UTF-8 by name",
            utf16("<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + kitchen(item)), false);
        row("a byte order mark", "\xEF\xBB\xBF" + kitchen(item), true);
        row("a byte order mark, and UTF-8 by name",
            "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + kitchen(item), true);
        row("a byte order mark, and another encoding by name",
            "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + kitchen(item), false);
        row("Latin-1 by name",
            "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"
                + kitchen("<receipe number=\"1\" name=\"\xE8\"/>"),
            true);
        row("UTF-16 by name, in bytes",
            "<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + kitchen(item), false);
        row("nothing", "", false);
        row("no end tag", "<job>", false);
        row("another end tag", "<job></other>", false);
        row("a second root", "<job/><job/>", false);
        row("text before the root", "x<job/>", false);
        row("text behind the root", "<job/>x", false);
        row("blanks before the declaration", " <?xml version=\"1.0\"?><job/>", false);
        row("comments and blanks around the root", "\n<!-- -->\n<job/>\n<!-- -->\n", true);
        row("an ampersand alone", kitchen("<receipe number=\"1\" name=\"a & b\"/>"), false);
        row("an opening mark in a value", kitchen("<receipe number=\"1\" name=\"<\"/>"), false);
        row("a value without quotes", kitchen("<receipe number=1/>"), false);
        row("an attribute without a value", kitchen("<receipe number/>"), false);
        row("a quote too few", kitchen("<receipe number=\"1/>"), false);
        row("a name of other marks", kitchen("<receipe n$r=\"1\"/>"), false);
        row("a name that begins with a digit", kitchen("<receipe 1=\"1\"/>"), false);
        row("an element's name with a blank before it", kitchen("< receipe/>"), false);
        row("an instruction of other marks", "<?$?><job/>", false);
        row("a comment in a comment", kitchen("<!-- a -- b -->"), false);
        row("an entity that the job declares",
            "<!DOCTYPE job [<!ENTITY e \"x\">]>" + kitchen("<receipe number=\"&e;\" name=\"x\"/>"),
            true);
    }

    void readAsTheRendererReads()
    {
        QFETCH(QByteArray, job);
        QFETCH(bool, readable);
        QCOMPARE(isReadToItsEnd(job), readable);
        QCOMPARE(isReadable(job), readable);
    }

    /// What XML forbids and the renderer takes all the same is an error, for what other programs
    /// make of it; but the paper does not end there.
    void readOnByTheRenderer_data()
    {
        QTest::addColumn<QByteArray>("job");

        const auto row = [](const char *what, const QByteArray &job) {
            QTest::newRow(what) << job;
        };
        row("an attribute twice", kitchen("<receipe number=\"1\" name=\"a\" number=\"2\"/>"));
        row("an entity that nobody declares", kitchen("<receipe number=\"1\" name=\"&euro;\"/>"));
        row("such an entity in a text", kitchen("&nbsp;"));
        row("a reference to what is no character",
            kitchen("<receipe number=\"1\" name=\"&#1;\"/>"));
        row("a control character", kitchen("<receipe number=\"1\" name=\"\x01\"/>"));
        row("XML 1.1", "<?xml version=\"1.1\"?>" + kitchen(item));
        row("an encoding that nobody knows",
            "<?xml version=\"1.0\" encoding=\"nonsense\"?>" + kitchen(item));
        row("bytes that are not UTF-8", kitchen("<receipe number=\"1\" name=\"\xE8\"/>"));
    }

    void readOnByTheRenderer()
    {
        QFETCH(QByteArray, job);
        QVERIFY(isReadToItsEnd(job));
        const QList<check::Finding> findings = check::checkJob(job, nullptr);
        QCOMPARE(findings.size(), 1);
        const check::Finding &finding = findings.first();
        QVERIFY(infoOf(finding.code).level == check::Level::Error);
        QVERIFY2(!finding.text.contains("the paper ends here"), qPrintable(finding.text));
        const bool oneLine = std::all_of(finding.text.begin(), finding.text.end(),
                                         [](QChar c) { return c.isPrint(); });
        QVERIFY2(oneLine, qPrintable(finding.text));
    }

    /// Where there is nothing, no remark of a case can stand.
    void nothingAtAll()
    {
        QCOMPARE(shown(check::checkJob("", nullptr)),
                 QStringList{"1:1: error: there is no element: nothing behind this was checked "
                             "[malformed-xml]"});
    }

    void examplesAreClean_data()
    {
        QTest::addColumn<QString>("path");
        const QStringList paths = filesBelow(KORVEL_SOURCE_DIR "/examples/jobs", "*.xml");
        QCOMPARE(paths.size(), vocabulary::methods().size());
        for (const QString &path : paths)
            QTest::newRow(qPrintable(path.section('/', -1))) << path;
    }

    void examplesAreClean()
    {
        QFETCH(QString, path);
        const check::SettingsFile settings(bytesOf(KORVEL_SOURCE_DIR "/examples/korvel.conf"));
        QCOMPARE(shown(checkSettings(settings)), QStringList());
        QCOMPARE(shown(check::checkJob(bytesOf(path), nullptr)), QStringList());
        QCOMPARE(shown(check::checkJob(bytesOf(path), &settings)), QStringList());
    }

    /// A summary order knows no element, and no setting of it matters.
    void anyDocumentsWithNothingInThem()
    {
        const auto settings = settingsOf("korvel: { };");
        for (const vocabulary::Method &method : vocabulary::methods()) {
            const QByteArray job = documentOf(method.name.data(), "");
            QCOMPARE(codesIn(job), QStringList());
            QCOMPARE(codesIn(job, settings.get()), QStringList());
        }
    }
};

KORVEL_TEST(TestCheckReading)

} // namespace tst_checkreading

#include "tst_checkreading.moc"
