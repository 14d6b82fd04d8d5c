// The surroundings of a run: variables, names, folders, stacks. Whatever they are, the job is
// printed.
#include "support/kitchenjob.h"
#include "support/limiting.h"
#include "support/test.h"

#include <sys/stat.h>

namespace tst_environment {

// A sanitizer's frames are several times as large.
const rlim_t stackKilobyte = built::sanitized ? 4096 : 1024;

class TestEnvironment : public QObject
{
    Q_OBJECT

private slots:
    void aWorkingDirectoryThatIsGone()
    {
        const Shop shop(settings);
        const QByteArray gone = shop.path("gone").toUtf8();
        QVERIFY(QDir().mkpath(gone));
        Launch how;
        how.folder = gone;
        how.arguments = {shop.path("job.xml"), shop.path("stream.out")};
        how.prepare = [&] { rmdir(gone.constData()); };
        const auto run = shop.render(job, how);
        VERIFY_ENDED(run);
        QVERIFY(!QFile::exists(gone));
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(linesOf(shop.output()), linesOf(withSettings));

        // Relative names lead nowhere there.
        QVERIFY(QDir().mkpath(gone));
        how.arguments = {"job.xml", "stream.out"};
        const auto relative = shop.render(job, how);
        VERIFY_ENDED(relative);
        QCOMPARE(linesOf(relative.standardOutput), linesOf(notOpened));
    }

    void variablesThatChangeNothing_data()
    {
        QTest::addColumn<QStringList>("variables"); // %1 is the shop's folder

        for (const char *locale :
             {"", "C", "POSIX", "C.UTF-8", "it_IT.UTF-8", "it_IT", "it_IT@euro", "it_IT.ISO-8859-1",
              "tr_TR.UTF-8", "ar_EG.UTF-8", "de_DE.KOI8-R", "xx_YY.UTF-8", "%1/..//;",
              "../../../etc/passwd", "\x01\x02", "x", "."})
            QTest::addRow("locale '%s'", locale) << QStringList{QString("LC_ALL=") + locale};
        QTest::newRow("no locale") << QStringList{"LC_ALL", "LANG", "LOCPATH"};
        QTest::newRow("a very long locale") << QStringList{"LC_ALL=" + QString(100000, 'x')};
        QTest::newRow("locales that contradict each other") << QStringList{
            "LC_ALL", "LANG=C", "LC_NUMERIC=de_DE", "LC_MESSAGES=fr_FR.UTF-8", "LANGUAGE=zz:it:de"};
        QTest::newRow("locales elsewhere") << QStringList{"LOCPATH=/nowhere"};
        QTest::newRow("a toolkit that is fixed") << QStringList{"QT_HASH_SEED=5"};
        QTest::newRow("a toolkit that warns not") << QStringList{"QT_HASH_SEED=nonsense"};
        QTest::newRow("a toolkit that ends at warnings")
            << QStringList{"QT_FATAL_WARNINGS=1", "LC_ALL=C"};
        QTest::newRow("a toolkit that ends at what is critical")
            << QStringList{"QT_FATAL_CRITICALS=1", "LC_ALL=C"};
        QTest::newRow("a toolkit that logs") << QStringList{"QT_LOGGING_DEBUG=1"};
        QTest::newRow("a toolkit that logs by rules") << QStringList{"QT_LOGGING_RULES=*=true"};
        QTest::newRow("a toolkit that logs by a file")
            << QStringList{"QT_LOGGING_CONF=%1/rules", "QT_LOGGING_TO_CONSOLE=1"};
        QTest::newRow("a toolkit that logs by a FIFO") << QStringList{"QT_LOGGING_CONF=%1/fifo"};
        QTest::newRow("a toolkit that debugs plugins") << QStringList{"QT_DEBUG_PLUGINS=1"};
        QTest::newRow("a toolkit with a pattern")
            << QStringList{"QT_MESSAGE_PATTERN=%{nonsense}%{if-category", "LC_ALL=C"};
        QTest::newRow("a toolkit with plugins elsewhere")
            << QStringList{"QT_PLUGIN_PATH=%1", "QT_QPA_PLATFORM=none", "QT_STYLE_OVERRIDE=x"};
        QTest::newRow("a toolkit's variable without a name") << QStringList{"QT_=1", "QT_"};
        QTest::newRow("time zones") << QStringList{"TZ=%1/fifo"};
        QTest::newRow("no variables of other kinds")
            << QStringList{"PATH", "USER", "LOGNAME", "SHELL", "TERM", "TMPDIR"};
        QTest::newRow("temporary files nowhere") << QStringList{"TMPDIR=/nowhere"};
        QTest::newRow("a desktop elsewhere")
            << QStringList{"XDG_CONFIG_HOME=%1/fifo", "XDG_CONFIG_DIRS=%1/fifo",
                           "XDG_DATA_HOME=%1/fifo", "XDG_RUNTIME_DIR=%1/fifo"};
    }

    void variablesThatChangeNothing()
    {
        QFETCH(QStringList, variables);
        const Shop shop(settings);
        QCOMPARE(mkfifo(qPrintable(shop.path("fifo")), 0600), 0);
        writeFile(shop.path("rules"), "[Rules]\n*=true\n");
        Launch how;
        how.patience = 20;
        how.variables = variables.replaceInStrings("%1", shop.home.path());
        const auto run = shop.render(job, how);
        VERIFY_QUIET(run);
        QCOMPARE(linesOf(shop.output()), linesOf(withSettings));
    }

    void manyVariables()
    {
        const Shop shop(settings);
        Launch how;
        for (int i = 0; i < 5000; ++i)
            how.variables.append(QString("QT_VARIABLE_%1=%1").arg(i));
        VERIFY_QUIET(shop.render(job, how));
        QCOMPARE(linesOf(shop.output()), linesOf(withSettings));
    }

    void namesThatLookLikeOptions_data()
    {
        QTest::addColumn<QString>("name");

        for (const char *name : {"-", "--", "--help", "-h", "-v", "--version", "-qmljsdebugger=1",
                                 "-qmljsdebugger", "-platform", "-style=x", "-session", "-reverse",
                                 "%s%n", "*", "~", "a b", "file:x", "qrc:x", "x\ny"})
            QTest::newRow(name) << name;
    }

    void namesThatLookLikeOptions()
    {
        QFETCH(QString, name);
        const Shop shop(settings);
        writeFile(shop.path(name), job);
        Launch asJob;
        asJob.arguments = {name, "stream.out"};
        VERIFY_QUIET(shop.render("", asJob));
        QCOMPARE(linesOf(shop.output()), linesOf(withSettings));

        Launch asOutput;
        asOutput.arguments = {"job.xml", name};
        VERIFY_QUIET(shop.render(job, asOutput));
        QCOMPARE(linesOf(bytesOf(shop.path(name))), linesOf(withSettings));

        Launch asRest;
        asRest.arguments = {"job.xml", "rest.out", name};
        VERIFY_QUIET(shop.render(job, asRest));
        QCOMPARE(linesOf(bytesOf(shop.path("rest.out"))), linesOf(withSettings));
    }

    void smallStacks_data()
    {
        QTest::addColumn<int>("kilobytes");
        QTest::addColumn<QByteArray>("deepJob");
        QTest::addColumn<QByteArray>("stream");

        const QByteArray method = "<job><method name=\"printPartialOrder\"/>";
        const QByteArray item = R"(<receipe number="2" name="X">)";
        const QByteArray row = "=\"/(  2 X" + QByteArray(25, ' ') + " )\n";
        const QByteArray end = "</receipe>";
        for (const int kilobytes : {512, 1024, 8192}) {
            const auto stack = [&](const char *what, const QByteArray &deepJob,
                                   const QByteArray &stream) {
                QTest::addRow("%s in %d KB", what, kilobytes) << kilobytes << deepJob << stream;
            };
            stack("elements at the limit",
                  method + item.repeated(1023) + end.repeated(1023) + "</job>",
                  "=o\n" + row.repeated(1023) + "=o\n");
            stack("elements beyond it", method + item.repeated(100000),
                  "=o\n" + row.repeated(1023));
            stack("groups of a content model",
                  "<!DOCTYPE job [<!ELEMENT job " + QByteArray(100, '(') + 'a'
                      + QByteArray(100, ')') + ">]>" + job,
                  withSettings);
            stack("groups without an end",
                  "<!DOCTYPE job [<!ELEMENT job " + QByteArray(1000000, '('), "");
        }
    }

    void smallStacks()
    {
        QFETCH(int, kilobytes);
        QFETCH(QByteArray, deepJob);
        QFETCH(QByteArray, stream);
        const Shop shop(settings);
        Launch how;
        how.prepare = [kilobytes] { limit(RLIMIT_STACK, rlim_t(kilobytes) * stackKilobyte); };
        VERIFY_QUIET(shop.render(deepJob, how));
        // A small stack may hold less than the limit on elements allows; what is printed is right.
        if (kilobytes < 8192 && stream.size() > withSettings.size()) {
            QVERIFY(shop.output().size() > 1000);
            QVERIFY(stream.startsWith(shop.output()));
        } else {
            QCOMPARE(difference(shop.output(), stream), QString());
        }
    }

    void deepSettingsOnASmallStack()
    {
        const Shop shop("korvel:{ doc:{ " + QByteArray("g:{").repeated(100000)
                        + QByteArray("};").repeated(100000) + "quantityFieldWidth = 3; }; };");
        for (const rlim_t kilobytes : {512, 1024}) {
            Launch how;
            how.prepare = [kilobytes] { limit(RLIMIT_STACK, kilobytes * stackKilobyte); };
            VERIFY_QUIET(shop.render(job, how));
            QCOMPARE(linesOf(shop.output()), linesOf(withSettings));
        }
    }

    void fewDescriptors()
    {
        const Shop shop(settings);
        Launch how;
        how.prepare = [] { limit(RLIMIT_NOFILE, 16); };
        VERIFY_QUIET(shop.render(job, how));
        QCOMPARE(linesOf(shop.output()), linesOf(withSettings));
    }
};

KORVEL_TEST(TestEnvironment)

} // namespace tst_environment

#include "tst_environment.moc"
