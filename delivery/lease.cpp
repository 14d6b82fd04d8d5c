// Leases as locks of open file descriptions.
#include "delivery/lease.h"

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::delivery {

namespace {

constexpr mode_t openToAll = 01777;
constexpr mode_t lockableByAll = 0666;
constexpr int mostTries = 100; // for a file that others make and remove meanwhile

/// Whatever is made meanwhile has exactly the mode that it is made with.
class AnyMode
{
public:
    AnyMode() = default;
    ~AnyMode() { ::umask(before); }
    AnyMode(const AnyMode &) = delete;
    AnyMode &operator=(const AnyMode &) = delete;

private:
    const mode_t before = ::umask(0);
};

QString saying(const QByteArray &path, const QString &what)
{
    return u"the lease of the device cannot be taken: "_s + QString::fromLocal8Bit(path) + u": "_s
           + what;
}

/// The folder of leases, made if it is not there. Nothing, with no error, where there is no place
/// for it.
Descriptor openFolder(const QByteArray &path, QString &error)
{
    if (AnyMode any; ::mkdir(path.constData(), openToAll) != 0 && errno != EEXIST)
        return Descriptor();
    Descriptor folder(uninterrupted(
        [&] { return ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); }));
    struct stat status = {};
    if (!folder.isOpen() || ::fstat(folder.number(), &status) != 0) {
        error = saying(path, qt_error_string());
        return Descriptor();
    }
    if ((status.st_mode & openToAll) != openToAll) {
        error = saying(path, u"not open to all users; its owner makes it so with chmod 1777"_s);
        return Descriptor();
    }
    return folder;
}

/// The file of a lease, made if it is not there. A file of another user is not opened as one to be
/// made: in a sticky folder the system may forbid that.
Descriptor openFile(const Descriptor &folder, const QByteArray &name)
{
    constexpr int how = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const AnyMode any;
    int file = -1;
    for (int tries = 0; file < 0 && tries < mostTries; ++tries) {
        file = ::openat(folder.number(), name.constData(), how);
        if (file < 0 && errno == ENOENT)
            file =
                ::openat(folder.number(), name.constData(), how | O_CREAT | O_EXCL, lockableByAll);
        if (file < 0 && errno != EEXIST && errno != ENOENT && errno != EINTR)
            break;
    }
    return Descriptor(file);
}

struct flock wholeFile()
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

/// Whether the name still leads to the file: a lock on one that was removed is worth nothing.
bool isStill(const Descriptor &folder, const QByteArray &name, const Descriptor &file)
{
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(file.number(), &opened) == 0
           && ::fstatat(folder.number(), name.constData(), &named, AT_SYMLINK_NOFOLLOW) == 0
           && opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

} // namespace

QByteArrayList Lease::folders() { return {"/run/lock/korvel-print", "/tmp/korvel-print"}; }

std::optional<Lease> Lease::take(const QByteArray &name, QString &error,
                                 const QByteArrayList &folders)
{
    error.clear();
    Descriptor folder;
    QByteArray path;
    for (auto next = folders.begin(); next != folders.end() && !folder.isOpen() && error.isEmpty();
         ++next) {
        path = *next;
        folder = openFolder(path, error);
    }
    if (!folder.isOpen()) {
        if (error.isEmpty())
            error = saying(path, qt_error_string());
        return {};
    }
    for (int tries = 0; tries < mostTries; ++tries) {
        Descriptor file = openFile(folder, name);
        struct stat status = {};
        if (!file.isOpen() || ::fstat(file.number(), &status) != 0) {
            error = saying(path + '/' + name, qt_error_string());
            return {};
        }
        if (!S_ISREG(status.st_mode)) {
            error = saying(path + '/' + name, u"no file"_s);
            return {};
        }
        struct flock lock = wholeFile();
        if (uninterrupted([&] { return ::fcntl(file.number(), F_OFD_SETLK, &lock); }) != 0) {
            const bool isBusy = errno == EAGAIN || errno == EACCES;
            error = isBusy ? u"the printer is busy with another document"_s
                           : saying(path + '/' + name, qt_error_string());
            return {};
        }
        if (isStill(folder, name, file)) {
            // What clears away old temporary files leaves this one alone for now.
            static_cast<void>(::futimens(file.number(), nullptr));
            return Lease(std::move(file));
        }
    }
    error = saying(path + '/' + name, u"somebody removes it again and again"_s);
    return {};
}

bool Lease::isHeld(const QByteArray &name, const QByteArrayList &folders)
{
    if (name.isEmpty())
        return false;
    for (const QByteArray &folder : folders) {
        const QByteArray path = folder + '/' + name;
        const Descriptor file(uninterrupted([&] {
            return ::open(path.constData(),
                          O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        }));
        struct flock lock = wholeFile();
        if (file.isOpen() && ::fcntl(file.number(), F_OFD_GETLK, &lock) == 0
            && lock.l_type != F_UNLCK)
            return true;
    }
    return false;
}

} // namespace korvel::delivery
