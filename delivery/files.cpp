// Printers that are files of the system: serial lines, USB printers, FIFOs, and files proper.
#include "delivery/device.h"

#include "config/path.h"

#include <csignal>
#include <ctime>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <termios.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::delivery {

namespace {

/// While it lives, a call of the system that waits too long is interrupted, again and again.
class Watchdog
{
public:
    explicit Watchdog(std::chrono::seconds patience)
    {
        struct sigaction action = {};
        action.sa_handler = [](int) {};
        ::sigaction(SIGALRM, &action, &before);
        sigevent event = {};
        event.sigev_notify = SIGEV_SIGNAL;
        event.sigev_signo = SIGALRM;
        constexpr long again = 50'000'000; // nanoseconds: a call may begin just behind a signal
        const itimerspec when{{0, again}, {patience.count(), 0}};
        isSet = ::timer_create(CLOCK_MONOTONIC, &event, &timer) == 0
                && ::timer_settime(timer, 0, &when, nullptr) == 0;
    }
    ~Watchdog()
    {
        if (isSet)
            ::timer_delete(timer);
        ::sigaction(SIGALRM, &before, nullptr);
    }
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;

    [[nodiscard]] bool works() const { return isSet; }

private:
    struct sigaction before = {};
    timer_t timer = {};
    bool isSet = false;
};

/// A serial line, or another terminal.
class LineConnection : public Connection
{
public:
    explicit LineConnection(Descriptor line)
        : Connection(std::move(line))
    {
    }
    ~LineConnection() override
    {
        if (!isTaken) // else the rest would print when a person has already looked
            ::tcflush(descriptor.number(), TCOFLUSH);
    }

    bool send(QByteArrayView bytes, std::chrono::seconds patience, QString &error) override
    {
        const auto waiting = [&] {
            int count = 0;
            return ::ioctl(descriptor.number(), TIOCOUTQ, &count) == 0 ? count : -1;
        };
        isTaken = handOver(bytes, patience, true, error) && waitUntilNone(waiting, patience, error)
                  && drain(patience, error) && isAlive(error);
        return isTaken;
    }

private:
    /// Waits for what the line itself holds.
    bool drain(std::chrono::seconds patience, QString &error) const
    {
        const Watchdog watchdog(patience);
        if (watchdog.works() && ::tcdrain(descriptor.number()) == 0)
            return true;
        error = errno == EINTR ? tooSlow(patience) : qt_error_string();
        return false;
    }

    bool isTaken = true; // as long as nothing was sent
};

/// Whatever else takes characters: a USB printer, whose driver says of each write what became of it
/// if it is waited for.
class DriverConnection : public Connection
{
public:
    explicit DriverConnection(Descriptor device)
        : Connection(std::move(device))
    {
    }

    bool send(QByteArrayView bytes, std::chrono::seconds patience, QString &error) override
    {
        constexpr qsizetype most = 4096;
        const int flags = ::fcntl(descriptor.number(), F_GETFL);
        if (flags < 0 || ::fcntl(descriptor.number(), F_SETFL, flags & ~O_NONBLOCK) != 0) {
            error = qt_error_string();
            return false;
        }
        const bool reads = (flags & O_ACCMODE) == O_RDWR;
        while (!bytes.isEmpty()) {
            if (reads)
                static_cast<void>(dropInput());
            const Watchdog watchdog(patience);
            const ssize_t count = watchdog.works()
                                      ? ::write(descriptor.number(), bytes.data(),
                                                std::size_t(std::min(bytes.size(), most)))
                                      : -1;
            if (count <= 0) {
                error = count < 0 && errno != EINTR ? qt_error_string() : tooSlow(patience);
                return false;
            }
            bytes = bytes.sliced(count);
        }
        return true;
    }
};

/// A FIFO: what its reader has read is taken.
class FifoConnection : public Connection
{
public:
    explicit FifoConnection(Descriptor fifo)
        : Connection(std::move(fifo))
    {
    }

    bool send(QByteArrayView bytes, std::chrono::seconds patience, QString &error) override
    {
        const auto unread = [&]() -> qint64 {
            int count = 0;
            if (::ioctl(descriptor.number(), FIONREAD, &count) != 0)
                return -1;
            QString gone;
            if (count == 0 || Connection::isAlive(gone))
                return count;
            errno = EPIPE;
            return -1;
        };
        return handOver(bytes, patience, false, error) && waitUntilNone(unread, patience, error);
    }
};

/// A file that is appended to.
class FileConnection : public Connection
{
public:
    /// @param itsFolder that names it
    FileConnection(Descriptor file, Descriptor itsFolder)
        : Connection(std::move(file))
        , folder(std::move(itsFolder))
    {
    }

    bool send(QByteArrayView bytes, std::chrono::seconds patience, QString &error) override
    {
        if (!handOver(bytes, patience, false, error))
            return false;
        if (::fsync(descriptor.number()) == 0 && ::fsync(folder.number()) == 0)
            return true;
        error = qt_error_string();
        return false;
    }

private:
    const Descriptor folder;
};

/// The line as printers take it: every byte as it is.
bool makeRaw(const Descriptor &line, int baud)
{
    termios settings = {};
    if (::tcgetattr(line.number(), &settings) != 0)
        return false;
    ::cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL | CREAD;
    if (baud != 0 && ::cfsetspeed(&settings, terminalSpeed(baud)) != 0)
        return false;
    return ::tcsetattr(line.number(), TCSANOW, &settings) == 0;
}

class FilePlace : public Place
{
public:
    FilePlace(DeviceName named, const struct stat &found)
        : name(std::move(named))
        , path(korvel::path::toBytes(name.path))
        , status(found)
    {
    }

    [[nodiscard]] QByteArray leaseName() const override
    {
        const auto numbers = [](dev_t device) -> QByteArray {
            return QByteArray::number(major(device)) + '-' + QByteArray::number(minor(device));
        };
        if (S_ISCHR(status.st_mode))
            return "device-" + numbers(status.st_rdev);
        return "file-" + numbers(status.st_dev) + '-' + QByteArray::number(status.st_ino);
    }

    std::unique_ptr<Connection> connect(const QDeadlineTimer & /*deadline*/,
                                        QString &error) override
    {
        Descriptor opened = open();
        struct stat now = {};
        if (!opened.isOpen()) {
            error = errno == ENXIO && S_ISFIFO(status.st_mode)
                        ? name.text + u" cannot be reached: nobody reads from it"_s
                        : reasonFor(name.text, errno);
            return nullptr;
        }
        if (::fstat(opened.number(), &now) != 0 || now.st_rdev != status.st_rdev
            || now.st_dev != status.st_dev || now.st_ino != status.st_ino) {
            error = name.text + u" cannot be reached: another device took its place"_s;
            return nullptr;
        }
        if (name.kind == DeviceName::Kind::File)
            return inFolder(std::move(opened), error);
        if (S_ISFIFO(status.st_mode))
            return std::make_unique<FifoConnection>(std::move(opened));
        if (name.kind == DeviceName::Kind::Path && ::isatty(opened.number()) == 0)
            return std::make_unique<DriverConnection>(std::move(opened));
        if (makeRaw(opened, name.baud))
            return std::make_unique<LineConnection>(std::move(opened));
        error = reasonFor(name.text, errno);
        return nullptr;
    }

private:
    /// A file with its folder, which must be there to be synced before a byte is written.
    std::unique_ptr<Connection> inFolder(Descriptor file, QString &error) const
    {
        const QByteArray named = path.first(path.lastIndexOf('/') + 1);
        Descriptor folder(::open(named.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (folder.isOpen())
            return std::make_unique<FileConnection>(std::move(file), std::move(folder));
        error = reasonFor(korvel::path::fromBytes(named), errno);
        return nullptr;
    }

    [[nodiscard]] Descriptor open() const
    {
        const auto with = [&](int how) {
            return uninterrupted(
                [&] { return ::open(path.constData(), how | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); });
        };
        if (name.kind == DeviceName::Kind::File)
            return Descriptor(with(O_WRONLY | O_APPEND));
        if (S_ISFIFO(status.st_mode))
            return Descriptor(with(O_WRONLY));
        const int both = with(O_RDWR);
        // Some devices, and some users, only write.
        return Descriptor(both < 0 && (errno == EACCES || errno == EINVAL) ? with(O_WRONLY) : both);
    }

    const DeviceName name;
    const QByteArray path;
    const struct stat status;
};

} // namespace

Places filePlaces(const DeviceName &device, QString &error)
{
    const QByteArray path = korvel::path::toBytes(device.path);
    struct stat status = {};
    int found = ::stat(path.constData(), &status);
    if (found != 0 && errno == ENOENT && device.kind == DeviceName::Kind::File) {
        const Descriptor made(
            ::open(path.constData(), O_WRONLY | O_CREAT | O_NOCTTY | O_NONBLOCK | O_CLOEXEC, 0666));
        found = made.isOpen() ? ::fstat(made.number(), &status) : -1;
    }
    if (found != 0) {
        error = reasonFor(device.text, errno);
        return {};
    }
    using Kind = DeviceName::Kind;
    const bool fits = device.kind == Kind::File ? S_ISREG(status.st_mode)
                      : device.kind == Kind::Serial
                          ? S_ISCHR(status.st_mode)
                          : S_ISCHR(status.st_mode) || S_ISFIFO(status.st_mode);
    if (!fits) {
        error = device.text + u" cannot be reached: it is no "_s
                + (device.kind == Kind::File     ? u"file"_s
                   : device.kind == Kind::Serial ? u"serial line"_s
                                                 : u"device of characters and no FIFO"_s);
        return {};
    }
    Places places;
    places.push_back(std::make_unique<FilePlace>(device, status));
    return places;
}

} // namespace korvel::delivery
