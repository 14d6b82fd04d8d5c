// Settings and homes of any kind: whatever they are, the job is printed.
#include "support/capturedoutput.h"
#include "support/kitchenjob.h"
#include "support/ordinaryuser.h"
#include "support/test.h"

#include <sys/stat.h>

namespace tst_environmenthome {

class TestEnvironmentHome : public QObject
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
        QCOMPARE(linesOf(run.standardOutput), linesOf(notFound(path)));
        QCOMPARE(linesOf(shop.output()), linesOf(withoutSettings));
    }

    void settingsOfSomebodyElse_data()
    {
        QTest::addColumn<int>("permissions");
        QTest::addColumn<bool>("read");

        QTest::newRow("readable by all") << 0644 << true;
        QTest::newRow("readable by the owner") << 0600 << false;
    }

    /// A file that cannot be given away gives its owner what it gives others.
    void settingsOfSomebodyElse()
    {
        QFETCH(int, permissions);
        QFETCH(bool, read);
        constexpr uid_t somebodyElse = 65534;
        const Shop shop(settings);
        const QString path = shop.home.settingsPath();
        const bool isGiven = chown(qPrintable(path), somebodyElse, somebodyElse) == 0;
        const int rights = isGiven ? permissions : (permissions & 07) << 6;
        QCOMPARE(chmod(qPrintable(path), static_cast<mode_t>(rights)), 0);
        Launch how;
        how.prepare = [] {
            if (!becomeOrdinaryUser())
                _exit(Launch::notStarted);
        };
        const auto run = shop.render(job, how);
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
        QCOMPARE(
            linesOf(run.standardOutput),
            linesOf(read ? QByteArray() : ::notFound(notFound.replace("%1", shop.home.path()))));
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
};

KORVEL_TEST(TestEnvironmentHome)

} // namespace tst_environmenthome

#include "tst_environmenthome.moc"
