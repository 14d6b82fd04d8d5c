// The lease of a device: one holder, gone with it, in a folder that all share.
#include "delivery/lease.h"
#include "support/files.h"
#include "support/test.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tst_lease {

using korvel::delivery::Lease;

const QByteArray name = "tcp-192.168.1.50-9100";

/// A folder in which leases have their own.
class Desk
{
public:
    [[nodiscard]] QByteArrayList folders() const { return {path("leases").toLocal8Bit()}; }
    [[nodiscard]] QString path(const QString &file) const { return place.filePath(file); }
    [[nodiscard]] std::optional<Lease> take(QString &error) const
    {
        return Lease::take(name, error, folders());
    }
    [[nodiscard]] bool isHeld() const { return Lease::isHeld(name, folders()); }

private:
    const QTemporaryDir place;
};

int modeOf(const QString &path)
{
    struct stat status = {};
    return ::stat(path.toLocal8Bit().constData(), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

class TestLease : public QObject
{
    Q_OBJECT

private slots:
    void oneHasItUntilItGoes()
    {
        const Desk desk;
        QString error;
        QVERIFY(!desk.isHeld());
        {
            const auto first = desk.take(error);
            QVERIFY2(first, qPrintable(error));
            QVERIFY(desk.isHeld());
            QVERIFY(!desk.take(error));
            QCOMPARE(error, QString("the printer is busy with another document"));
            QVERIFY(Lease::take("another", error, desk.folders()));
        }
        QVERIFY(!desk.isHeld());
        QVERIFY(desk.take(error));
    }

    void askingMakesNothing()
    {
        const Desk desk;
        QVERIFY(!desk.isHeld());
        QVERIFY(!QFileInfo::exists(desk.path("leases")));
    }

    void folderAndFileAreOpenToAll()
    {
        const Desk desk;
        QString error;
        const mode_t before = ::umask(077);
        const auto lease = desk.take(error);
        ::umask(before);
        QVERIFY(lease);
        QCOMPARE(modeOf(desk.path("leases")), 01777);
        QCOMPARE(modeOf(desk.path("leases/" + name)), 0666);
    }

    void itGoesWithItsHolder()
    {
        const Desk desk;
        int ready[2] = {};
        QCOMPARE(::pipe(ready), 0);
        const pid_t holder = ::fork();
        if (holder == 0) {
            QString error;
            const auto lease = desk.take(error);
            if (::write(ready[1], lease ? "y" : "n", 1) == 1)
                ::pause();
            ::_exit(0);
        }
        char said = 0;
        QCOMPARE(::read(ready[0], &said, 1), 1);
        QCOMPARE(said, 'y');
        QString error;
        QVERIFY(desk.isHeld());
        QVERIFY(!desk.take(error));
        ::kill(holder, SIGKILL);
        ::waitpid(holder, nullptr, 0);
        QVERIFY(!desk.isHeld());
        QVERIFY(desk.take(error));
    }

    void aChildOfTheHolderDoesNotKeepIt()
    {
        const Desk desk;
        QString error;
        pid_t child = 0;
        {
            const auto lease = desk.take(error);
            QVERIFY(lease);
            child = ::fork();
            if (child == 0) {
                ::execl("/bin/sleep", "sleep", "60", nullptr);
                ::_exit(127);
            }
            // Until it is another program it has what its parent has.
            const QString program = "/proc/" + QString::number(child) + "/exe";
            while (QFileInfo(program).symLinkTarget()
                   == QFileInfo("/proc/self/exe").symLinkTarget())
                ::usleep(1000);
        }
        const bool isFree = desk.take(error).has_value();
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        QVERIFY(isFree);
    }

    void aFileThatIsRemovedIsMadeAnew()
    {
        const Desk desk;
        QString error;
        const auto lost = desk.take(error);
        QVERIFY(lost);
        QVERIFY(QFile::remove(desk.path("leases/" + name)));
        QVERIFY(desk.take(error));
    }

    void linksAreNotFollowed()
    {
        const Desk desk;
        QString error;
        QVERIFY(desk.take(error));
        QVERIFY(QFile::remove(desk.path("leases/" + name)));
        writeFile(desk.path("victim"), "");
        QVERIFY(QFile::link(desk.path("victim"), desk.path("leases/" + name)));
        QVERIFY(!desk.take(error));
        QVERIFY2(error.startsWith("the lease of the device cannot be taken"), qPrintable(error));

        const Desk linked;
        QVERIFY(QDir().mkdir(linked.path("elsewhere")));
        QVERIFY(QFile::link(linked.path("elsewhere"), linked.path("leases")));
        QVERIFY(!linked.take(error));
        QCOMPARE(QDir(linked.path("elsewhere")).entryList(QDir::Files), QStringList());
    }

    void aFolderOfOneUserAloneIsNotTaken()
    {
        const Desk desk;
        QString error;
        QCOMPARE(::mkdir(desk.folders().constFirst().constData(), 0700), 0);
        QVERIFY(!desk.take(error));
        QVERIFY2(error.contains("chmod 1777"), qPrintable(error));
    }

    void whereThereIsNoPlaceTheNextIsTaken()
    {
        const Desk desk;
        QString error;
        const QByteArrayList both = {desk.path("nowhere/leases").toLocal8Bit(),
                                     desk.folders().constFirst()};
        const auto lease = Lease::take(name, error, both);
        QVERIFY2(lease, qPrintable(error));
        QVERIFY(QFileInfo::exists(desk.path("leases/" + name)));
        QVERIFY(Lease::isHeld(name, both));
        QVERIFY(!Lease::take(name, error, both.first(1)));
        QVERIFY2(error.contains("nowhere/leases"), qPrintable(error));
    }
};

KORVEL_TEST(TestLease)

} // namespace tst_lease

#include "tst_lease.moc"
