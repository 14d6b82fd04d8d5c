// Settings files that cannot be read or written, with names of any kind, on a full disk.
#include "companions/settings/document.h"
#include "support/built.h"
#include "support/bytenames.h"
#include "support/ordinaryuser.h"
#include "support/settingsfiles.h"
#include "support/settingstext.h"
#include "support/settingsview.h"
#include "support/test.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tst_settingsobstacles {

using namespace korvel::settings;

/// Lets no file grow beyond a size, as on a full disk, as long as it lives.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : signalBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit limit = before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, signalBefore);
    }

    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit before{};
    void (*signalBefore)(int);
};

class TestSettingsObstacles : public QObject
{
    Q_OBJECT

private slots:
    void whatCannotBeRead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("a folder") << "folder";
        QTest::newRow("a FIFO") << "fifo";
        QTest::newRow("a file without the right") << "secret";
    }

    void whatCannotBeRead()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        const QString path = folder.filePath(name);
        if (name == "folder")
            QVERIFY(QDir().mkpath(path));
        else if (name == "fifo")
            QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        else
            writeFile(path, "korvel: { a = 1; };");
        if (name == "secret")
            QVERIFY(QFile::setPermissions(path, {}));
        const OrdinaryUser user;
        SettingsDocument document(path);
        QVERIFY(document.exists());
        QVERIFY2(document.readError().contains(path), qPrintable(document.readError()));
        QVERIFY(!document.readError().contains('\n'));
        QCOMPARE(rowsOf(*document.read()), QStringList());
    }

    void whatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("name"); // of the settings file
        QTest::newRow("a folder in its place") << "folder";
        QTest::newRow("below a file") << "file/korvel.conf";
        QTest::newRow("far below a file") << "file/.korvel/conf/korvel.conf";
        QTest::newRow("no place for the previous file") << "kept.conf";
        QTest::newRow("a file without the right") << "readonly.conf";
        QTest::newRow("a folder without the right, a file") << "closed/korvel.conf";
        QTest::newRow("a folder without the right, none") << "closed/new.conf";
        QTest::newRow("a folder that cannot be made") << "closed/conf/korvel.conf";
    }

    void whatCannotBeWritten()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        const QByteArray before = settingsFile(documentGroup("doc", "paperWidth = 31;"));
        for (const char *file : {"file", "kept.conf", "readonly.conf", "closed/korvel.conf"}) {
            QVERIFY(QFileInfo(folder.filePath(file)).dir().mkpath("."));
            writeFile(folder.filePath(file), before);
        }
        QVERIFY(QDir().mkpath(folder.filePath("folder/inner")));
        QVERIFY(QDir().mkpath(folder.filePath("kept.conf~/inner")));
        QVERIFY(QFile::setPermissions(folder.filePath("readonly.conf"), QFile::ReadOwner));
        QVERIFY(
            QFile::setPermissions(folder.filePath("closed"), QFile::ReadOwner | QFile::ExeOwner));

        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        const QString path = folder.filePath(name);
        const bool existed = QFile::exists(path);
        {
            const OrdinaryUser user;
            SettingsDocument document(path);
            (void)document.read();
            const QString error = document.save(*view);
            QVERIFY2(!error.isEmpty() && !error.contains('\n'), qPrintable(error));
            QVERIFY2(error.contains(folder.path()), qPrintable(error));
            QVERIFY2(!error.contains("Unknown error"), qPrintable(error));
        }
        QCOMPARE(QFile::exists(path), existed);
        if (QFileInfo(path).isFile())
            QCOMPARE(bytesOf(path), before);
        QVERIFY(QFile::setPermissions(folder.filePath("closed"),
                                      QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner));
    }

    // A name of a colon first is no resource of the toolkit's.
    void filesNamedLikeResources_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("a file") << ":korvel.conf";
        QTest::newRow("in a folder") << ":home/korvel.conf";
        QTest::newRow("in a folder's folder") << ":/conf/korvel.conf";
    }

    void filesNamedLikeResources()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        const auto restore = qScopeGuard([&] { QDir::setCurrent(before); });
        SettingsDocument document(name);
        QVERIFY(!document.exists());
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        QCOMPARE(document.save(*view), QString());
        const QString path = folder.path() + '/' + name;
        QCOMPARE(linesOf(bytesOf(path)), linesOf(sampleAsWritten()));

        QVERIFY(document.exists());
        QCOMPARE(document.readError(), QString());
        QCOMPARE(rowsOf(*document.read()).size(), rowsOf(*view).size());
        QCOMPARE(document.save(*view), QString());
        QCOMPARE(linesOf(bytesOf(path + '~')), linesOf(sampleAsWritten()));
    }

    // Where the working directory's name is no text, nothing is written under another one.
    void aWorkingDirectoryThatIsNoText()
    {
        const QTemporaryDir folder;
        const Sweeper sweeper(folder.path());
        const QByteArray odd = folder.path().toUtf8() + "/b\xE8t";
        std::filesystem::create_directory(odd.toStdString());
        const QString before = QDir::currentPath();
        std::filesystem::current_path(odd.toStdString());
        const auto restore = qScopeGuard([&] { QDir::setCurrent(before); });
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        QCOMPARE(SettingsDocument("conf/korvel.conf").save(*view), QString());
        QCOMPARE(linesOf(bytesNamed(odd + "/conf/korvel.conf")), linesOf(sampleAsWritten()));
        QCOMPARE(namesIn(folder.path().toUtf8()), QByteArrayList{"b\xE8t"});
    }

    void namesThatAreNoText_data()
    {
        QTest::addColumn<QByteArrayList>("arguments");
        QTest::addColumn<QByteArray>("home");
        QTest::addColumn<QByteArray>("said");
        const QByteArray noText = ": the name is not UTF-8\n";

        QTest::newRow("the file") << QByteArrayList{"b\xE8t"} << QByteArray()
                                  << "b\xEF\xBF\xBDt" + noText;
        QTest::newRow("a folder of the file") << QByteArrayList{":\xFF/\x1b"} << QByteArray()
                                              << ":\xEF\xBF\xBD/\xEF\xBF\xBD" + noText;
        QTest::newRow("HOME") << QByteArrayList() << QByteArray("b\xE8t")
                              << "HOME=b\xEF\xBF\xBDt" + noText;
        // The toolkit would keep the window's size below it.
        QTest::newRow("HOME and a file") << QByteArrayList{"korvel.conf"} << QByteArray("b\xE8t")
                                         << "HOME=b\xEF\xBF\xBDt" + noText;
    }

    void namesThatAreNoText()
    {
        QFETCH(QByteArrayList, arguments);
        QFETCH(QByteArray, home);
        QFETCH(QByteArray, said);
        const QTemporaryDir folder;
        const Run run = runWithBytes(built::settings, arguments, folder.path().toUtf8(), home);
        QVERIFY(run.exited);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(run.standardError, "korvel-settings: " + said);
        QCOMPARE(namesIn(folder.path().toUtf8()), QByteArrayList());
    }

    // The previous copy is worth more than none, as long as there is no newer one.
    void aBackupThatCannotBeRenewedIsKept()
    {
        const File file(example("korvel.conf"));
        writeFile(file.backup(), "an older one");
        SettingsDocument document(file.path());
        const auto view = document.read();
        {
            const FullDisk full(100);
            QVERIFY(!document.save(*view).isEmpty());
        }
        QCOMPARE(file.bytes(), example("korvel.conf"));
        QCOMPARE(bytesOf(file.backup()), QByteArray("an older one"));
    }

    void aFullDiskLosesNothing_data()
    {
        QTest::addColumn<QByteArray>("before"); // null: no file
        QTest::newRow("a file as long as the settings") << example("korvel.conf");
        QTest::newRow("a short file") << QByteArray("korvel: { doc: { style = a; }; };\n");
        QTest::newRow("no file") << QByteArray();
    }

    void aFullDiskLosesNothing()
    {
        QFETCH(QByteArray, before);
        const File file(before);
        if (before.isNull())
            QVERIFY(QFile::remove(file.path()));
        SettingsDocument document(file.path());
        (void)document.read();
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        QString error;
        {
            const FullDisk full(100);
            error = document.save(*view);
        }
        QVERIFY(!error.isEmpty());
        QCOMPARE(file.bytes(), before);
        QCOMPARE(QFile::exists(file.path()), !before.isNull());
        QCOMPARE(document.save(*view), QString());
        QCOMPARE(linesOf(file.bytes()), linesOf(sampleAsWritten()));
    }
};

KORVEL_TEST(TestSettingsObstacles)

} // namespace tst_settingsobstacles

#include "tst_settingsobstacles.moc"
