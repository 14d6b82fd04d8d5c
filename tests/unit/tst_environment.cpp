// The surroundings of a run: whatever they are, the job is printed as far as they let it.
#include "support/settingstext.h"
#include "support/shop.h"

#include <QTest>

#include <thread>

#include <poll.h>
#include <sys/stat.h>

namespace {

const QByteArray settings = settingsFile(documentGroup("doc", "quantityFieldWidth = 3;"));
const QByteArray job =
    R"(<job><method name="printPartialOrder"/><receipe number="2" name="X"/></job>)";

/// What the job prints with the settings, and without: the name in 32 - 3 or 32 - 6 characters.
const QByteArray withSettings = "=o\n=\"/(  2 X" + QByteArray(25, ' ') + " )\n=o\n";
const QByteArray withoutSettings = "=o\n=\"/(2 X" + QByteArray(28, ' ') + " )\n=o\n";

/// A job that prints about 400,000 bytes, far more than a pipe holds.
const QByteArray longJob = "<job><method name=\"printPartialOrder\"/>"
                           + QByteArray(R"(<receipe number="2" name="X"/>)").repeated(10000)
                           + "</job>";
const QByteArray longStream =
    "=o\n" + ("=\"/(  2 X" + QByteArray(25, ' ') + " )\n").repeated(10000) + "=o\n";

/// What is said of a settings file that is not there.
QByteArray notFound(const QByteArray &path)
{
    return "Error in the method FileReader::open( " + path + " ): File Not Found\n";
}

const QByteArray notOpened = "PrintManager::printAbstractOrder(...): Unable To Open File\n";

/// Fails the test unless nothing but the exit is to be said of a run: for runs whose standard
/// output is something else.
#define VERIFY_ENDED(run)                                                                          \
    do {                                                                                           \
        QVERIFY((run).exited);                                                                     \
        QCOMPARE((run).status, 0);                                                                 \
        QCOMPARE((run).standardError, QByteArray());                                               \
    } while (false)

// A sanitizer's frames are several times as large.
constexpr rlim_t stackKilobyte = sanitized ? 4096 : 1024;

void limit(int resource, rlim_t most)
{
    const rlimit value{most, most};
    setrlimit(static_cast<__rlimit_resource>(resource), &value);
}

} // namespace

class TestEnvironment : public QObject
{
    Q_OBJECT

private slots:
    void settingsThatCannotBeRead_data()
    {
        QTest::addColumn<QString>("what");

        for (const char *what : {"missing", "folder", "dangling", "loop", "fifo", "/dev/zero",
                                 "/dev/null", "/dev/full", "no folder"})
            QTest::newRow(what) << what;
    }

    void settingsThatCannotBeRead()
    {
        QFETCH(QString, what);
        const Shop shop(settings);
        const QString path = shop.home.settingsPath();
        QVERIFY(QFile::remove(path));
        if (what == "folder")
            QVERIFY(QDir().mkpath(path));
        else if (what == "dangling")
            QVERIFY(QFile::link("nowhere", path));
        else if (what == "loop")
            QVERIFY(QFile::link(path, path));
        else if (what == "fifo")
            QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
        else if (what == "no folder")
            QVERIFY(QDir().rmdir(shop.path(".korvel/conf")));
        else if (what != "missing")
            QVERIFY(QFile::link(what, path));
        Launch how;
        how.patience = 20;
        const auto run = shop.render(job, how);
        VERIFY_ENDED(run);
        QCOMPARE(linesOf(run.standardOutput), linesOf(notFound(path.toUtf8())));
        QCOMPARE(linesOf(shop.output()), linesOf(withoutSettings));
    }

    /// Permissions do not bind root, so the renderer runs as nobody.
    void settingsOfSomebodyElse_data()
    {
        QTest::addColumn<int>("permissions");
        QTest::addColumn<bool>("read");

        QTest::newRow("readable by all") << 0644 << true;
        QTest::newRow("readable by the owner") << 0600 << false;
    }

    void settingsOfSomebodyElse()
    {
        QFETCH(int, permissions);
        QFETCH(bool, read);
        if (getuid() != 0)
            QSKIP("only root can become somebody else");
        const Shop shop(settings);
        const QByteArray path = shop.home.settingsPath().toUtf8();
        QCOMPARE(chmod(path.constData(), static_cast<mode_t>(permissions)), 0);
        QCOMPARE(chmod(qPrintable(shop.home.path()), 0777), 0);
        Launch how;
        how.prepare = [] {
            if (setgid(65534) != 0 || setuid(65534) != 0)
                _exit(Launch::notStarted);
        };
        const auto run = shop.render(job, how);
        if (run.exited && run.status == Launch::notStarted)
            QSKIP("nobody cannot start the renderer here");
        VERIFY_ENDED(run);
        QCOMPARE(linesOf(run.standardOutput), linesOf(read ? QByteArray() : notFound(path)));
        QCOMPARE(linesOf(shop.output()), linesOf(read ? withSettings : withoutSettings));
    }

    void homes_data()
    {
        QTest::addColumn<QString>("home");     // %1 is the shop's; null: unset
        QTest::addColumn<QString>("notFound"); // empty: the settings are read

        const auto row = [](const char *name, const QString &home, const QString &path = {}) {
            QTest::newRow(name) << home << path;
        };
        row("as it should be", "%1");
        row("with a slash at its end", "%1/");
        row("with slashes and dots", "%1//./.korvel//../");
        row("relative", ".");
        row("relative, below", "plain", "plain/.korvel/conf/korvel.conf");
        row("with an accent", QString::fromUtf8("%1/caffè"));
        row("with blanks", "%1/two words");
        row("missing", "/nowhere", "/nowhere/.korvel/conf/korvel.conf");
        row("a file", "%1/job.xml", "%1/job.xml/.korvel/conf/korvel.conf");
        row("a device", "/dev/null", "/dev/null/.korvel/conf/korvel.conf");
        const QString manyFolders = QString("/folder").repeated(10000);
        row("very long", manyFolders, manyFolders + "/.korvel/conf/korvel.conf");
        const QString longName = '/' + QString(5000, 'x');
        row("a very long name", longName, longName + "/.korvel/conf/korvel.conf");
        row("%s", "%s%n%d", "%s%n%d/.korvel/conf/korvel.conf");
    }

    void homes()
    {
        QFETCH(QString, home);
        QFETCH(QString, notFound);
        const Shop shop(settings);
        for (const QString &name : {QString::fromUtf8("caffè"), QString("two words")}) {
            QVERIFY(QDir().mkpath(shop.path(name + "/.korvel/conf")));
            writeFile(shop.path(name + "/.korvel/conf/korvel.conf"), settings);
        }
        Launch how;
        how.variables = {"HOME=" + home.replace("%1", shop.home.path())};
        const auto run = shop.render(job, how);
        VERIFY_ENDED(run);
        const bool read = notFound.isEmpty();
        QCOMPARE(linesOf(run.standardOutput),
                 linesOf(read ? QByteArray()
                              : ::notFound(notFound.replace("%1", shop.home.path()).toUtf8())));
        QCOMPARE(linesOf(shop.output()), linesOf(read ? withSettings : withoutSettings));
    }

    void noHome_data()
    {
        QTest::addColumn<QString>("variable");

        QTest::newRow("unset") << "HOME";
        QTest::newRow("empty") << "HOME=";
    }

    void noHome()
    {
        QFETCH(QString, variable);
        const Shop shop(settings);
        Launch how;
        how.variables = {variable};
        const auto run = shop.render(job, how);
        VERIFY_ENDED(run);
        QCOMPARE(linesOf(run.standardOutput).size(), 1);
        QVERIFY(run.standardOutput.endsWith("/.korvel/conf/korvel.conf ): File Not Found\n"));
        QCOMPARE(linesOf(shop.output()), linesOf(withoutSettings));
    }

    void outputsThatTakeNothing_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<bool>("opens");

        QTest::newRow("a folder") << "." << false;
        QTest::newRow("in a file") << "job.xml/stream.out" << false;
        QTest::newRow("a dangling link to a missing folder") << "dangling" << false;
        QTest::newRow("a very long name") << QString(300, 'x') << false;
        QTest::newRow("full") << "/dev/full" << true;
        QTest::newRow("null") << "/dev/null" << true;
    }

    void outputsThatTakeNothing()
    {
        QFETCH(QString, output);
        QFETCH(bool, opens);
        const Shop shop(settings);
        QVERIFY(QFile::link("missing/stream.out", shop.path("dangling")));
        Launch how;
        how.arguments = {"job.xml", output};
        const auto run = shop.render(longJob, how);
        VERIFY_ENDED(run);
        QCOMPARE(linesOf(run.standardOutput), linesOf(opens ? QByteArray() : notOpened));
        QCOMPARE(bytesOf(shop.path("job.xml")), longJob);
    }

    void outputToStandardOutput()
    {
        const Shop shop(settings);
        Launch how;
        how.arguments = {"job.xml", "/dev/stdout"};
        const auto run = shop.render(longJob, how);
        VERIFY_ENDED(run);
        QCOMPARE(difference(run.standardOutput, longStream), QString());
    }

    void outputToStandardError()
    {
        const Shop shop(settings);
        Launch how;
        how.arguments = {"job.xml", "/dev/stderr"};
        const auto run = shop.render(longJob, how);
        QVERIFY(run.exited);
        QCOMPARE(run.status, 0);
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(difference(run.standardError, longStream), QString());
    }

    void aReaderThatLeavesEarly()
    {
        const Shop shop(settings);
        QCOMPARE(mkfifo(qPrintable(shop.path("fifo")), 0600), 0);
        const int reader = open(qPrintable(shop.path("fifo")), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(reader >= 0);
        QByteArray got(1000, '\0');
        std::thread leaving([&] {
            pollfd ready{reader, POLLIN, 0};
            poll(&ready, 1, 30000);
            got.resize(std::max<qsizetype>(0, read(reader, got.data(), size_t(got.size()))));
            close(reader);
        });
        Launch how;
        how.arguments = {"job.xml", "fifo"};
        const auto run = shop.render(longJob, how);
        leaving.join();
        VERIFY_ENDED(run);
        QCOMPARE(run.standardOutput, QByteArray());
        QVERIFY(!got.isEmpty());
        QVERIFY(longStream.startsWith(got));
    }

    void aFileThatMayNotGrow()
    {
        const Shop shop(settings);
        Launch how;
        how.prepare = [] { limit(RLIMIT_FSIZE, 20000); };
        const auto run = shop.render(longJob, how);
        VERIFY_ENDED(run);
        QCOMPARE(difference(shop.output(), longStream.first(20000)), QString());
    }

    void theJobAsOutput()
    {
        const Shop shop(settings);
        Launch how;
        how.arguments = {"job.xml", "job.xml"};
        const auto run = shop.render(longJob, how);
        VERIFY_ENDED(run);
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(bytesOf(shop.path("job.xml")), QByteArray());
    }

    void theSettingsAsJobAndAsOutput()
    {
        const Shop shop(settings);
        Launch how;
        how.arguments = {shop.home.settingsPath(), shop.home.settingsPath()};
        const auto run = shop.render(job, how);
        VERIFY_ENDED(run);
        QCOMPARE(bytesOf(shop.home.settingsPath()), QByteArray());
    }

    void closedStreams_data()
    {
        QTest::addColumn<int>("closed"); // a bit for each
        QTest::addColumn<bool>("settingsAreThere");
        QTest::addColumn<QString>("output");

        for (int closed = 1; closed < 8; ++closed)
            for (const bool there : {true, false})
                for (const char *output : {"stream.out", "."})
                    QTest::addRow("%s%s%s, settings %s, output %s", closed & 1 ? "in " : "",
                                  closed & 2 ? "out " : "", closed & 4 ? "error" : "",
                                  there ? "read" : "missing", output)
                        << closed << there << QString(output);
    }

    /// The output file must not take the place of a stream that is missing.
    void closedStreams()
    {
        QFETCH(int, closed);
        QFETCH(bool, settingsAreThere);
        QFETCH(QString, output);
        const Shop shop(settings);
        if (!settingsAreThere)
            QVERIFY(QFile::remove(shop.home.settingsPath()));
        // An unknown method at the end has something to say as well.
        const QByteArray brokenJob =
            QByteArray(job).replace("</job>", "<method name=\"x\"/></job>");
        Launch how;
        how.arguments = {"job.xml", output};
        how.prepare = [closed] {
            for (int stream = 0; stream < 3; ++stream)
                if (closed >> stream & 1)
                    close(stream);
        };
        const auto run = shop.render(brokenJob, how);
        VERIFY_ENDED(run);
        QByteArray said;
        if (!(closed & 2))
            said = (settingsAreThere ? QByteArray() : notFound(shop.home.settingsPath().toUtf8()))
                   + (output == "." ? notOpened : QByteArray()) + "File Format Not Supported\n";
        QCOMPARE(linesOf(run.standardOutput), linesOf(said));
        if (output != ".")
            QCOMPARE(linesOf(shop.output()),
                     linesOf((settingsAreThere ? withSettings : withoutSettings).chopped(3)));
        QCOMPARE(bytesOf(shop.path("job.xml")), brokenJob);
    }

    void streamsThatTakeNothing_data()
    {
        QTest::addColumn<QString>("to");

        QTest::newRow("a pipe without a reader") << "";
        QTest::newRow("a full device") << "/dev/full";
        QTest::newRow("a file open for reading alone") << "job.xml";
    }

    void streamsThatTakeNothing()
    {
        QFETCH(QString, to);
        const Shop shop(settings);
        QVERIFY(QFile::remove(shop.home.settingsPath()));
        const QByteArray path = to.toUtf8();
        Launch how;
        how.prepare = [&] {
            int ends[2] = {-1, -1};
            if (path.isEmpty()) {
                if (pipe(ends) != 0)
                    _exit(Launch::notStarted);
                close(ends[0]);
            } else {
                ends[1] = open(path.constData(), path == "job.xml" ? O_RDONLY : O_WRONLY);
            }
            dup2(ends[1], STDOUT_FILENO);
        };
        const auto run = shop.render(job, how);
        VERIFY_ENDED(run);
        QCOMPARE(linesOf(shop.output()), linesOf(withoutSettings));
        QCOMPARE(bytesOf(shop.path("job.xml")), job);
    }

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

QTEST_GUILESS_MAIN(TestEnvironment)
#include "tst_environment.moc"
