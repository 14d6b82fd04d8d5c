// Printers of a test's own: in the network, on a serial line and behind a FIFO, sound or faulty.
#pragma once

#include "support/loopback.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>
#include <QTemporaryDir>

#include <array>
#include <atomic>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

/// What is wrong with a printer in the network.
struct PrinterFault
{
    int resetsAfter = -1;        // bytes of a connection, then it is reset
    int closesAfter = -1;        // bytes, then it is closed with the rest unread
    int stallsAfter = -1;        // bytes, then none is read
    int rate = 0;                // bytes a second that it reads; 0 for all at once
    bool keepsOpen = false;      // it never closes its side
    bool talks = false;          // it says something for each thing that it reads
    int connections = 1'000'000; // the first so many have the fault
};

/// A printer in the network: takes one sender after the other, and keeps what each sent.
class NetworkPrinter
{
public:
    explicit NetworkPrinter(PrinterFault itsFault = {})
        : fault(itsFault)
        , listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        const int small = 2048; // what the system takes for a printer that does not read
        if (fault.stallsAfter >= 0 || fault.rate > 0)
            ::setsockopt(listener, SOL_SOCKET, SO_RCVBUF, &small, sizeof small);
        port = bindToLoopback(listener);
        if (port == 0 || ::listen(listener, SOMAXCONN) != 0)
            qFatal("no printer can listen");
        thread = std::thread([this] { serve(); });
    }
    ~NetworkPrinter()
    {
        isOver = true;
        thread.join();
        ::close(listener);
        for (const int descriptor : leftOpen)
            ::close(descriptor);
    }
    Q_DISABLE_COPY_MOVE(NetworkPrinter)

    [[nodiscard]] QString device() const { return "tcp://127.0.0.1:" + QString::number(port); }

    /// What each connection brought, when nobody is connected any more.
    QList<QByteArray> pages()
    {
        for (const QDeadlineTimer deadline(10000); !deadline.hasExpired(); ::usleep(2000)) {
            pollfd polled{listener, POLLIN, 0};
            const std::lock_guard lock(mutex);
            if (!isBusy && ::poll(&polled, 1, 0) == 0)
                break;
        }
        const std::lock_guard lock(mutex);
        return received;
    }

    QByteArray paper() { return pages().join(); }

private:
    void serve()
    {
        for (int number = 1; !isOver;) {
            pollfd polled{listener, POLLIN, 0};
            if (::poll(&polled, 1, 5) != 1)
                continue;
            int connection = -1;
            {
                const std::lock_guard lock(mutex);
                connection = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
                isBusy = true;
                received.append(QByteArray());
            }
            take(connection, number++ <= fault.connections ? fault : PrinterFault());
            const std::lock_guard lock(mutex);
            isBusy = false;
        }
    }

    void take(int connection, const PrinterFault &its)
    {
        int taken = 0;
        std::array<char, 1024> bytes;
        for (;;) {
            int most = int(bytes.size());
            for (const int last : {its.resetsAfter, its.closesAfter, its.stallsAfter}) {
                if (last >= 0)
                    most = std::min(most, last - taken);
            }
            if (most == 0)
                break;
            pollfd polled{connection, POLLIN, 0};
            while (!isOver && ::poll(&polled, 1, 20) == 0) { }
            const ssize_t count = isOver ? 0 : ::read(connection, bytes.data(), size_t(most));
            if (count <= 0)
                break;
            taken += int(count);
            if (its.rate > 0)
                ::usleep(useconds_t(count * 1'000'000 / its.rate));
            if (its.talks)
                static_cast<void>(::send(connection, "ready\n", 6, MSG_NOSIGNAL));
            const std::lock_guard lock(mutex);
            received.last() += QByteArray(bytes.data(), qsizetype(count));
        }
        if (its.stallsAfter >= 0 || its.keepsOpen) {
            leftOpen.push_back(connection);
            return;
        }
        const linger atOnce{its.resetsAfter >= 0 ? 1 : 0, 0};
        ::setsockopt(connection, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        ::close(connection);
    }

    const PrinterFault fault;
    const int listener;
    int port = 0;
    std::vector<int> leftOpen;
    std::mutex mutex;
    QList<QByteArray> received;
    bool isBusy = false;
    std::atomic<bool> isOver = false;
    std::thread thread;
};

/// An address where nothing listens.
inline QString nobodysDevice()
{
    const int taken = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // It never listens, and stays bound until the test ends.
    return "tcp://127.0.0.1:" + QString::number(bindToLoopback(taken));
}

/// Reads all that comes at a descriptor, in a thread; a FIFO or the other end of a serial line.
class ReadingPrinter
{
public:
    ~ReadingPrinter()
    {
        stop();
        ::close(descriptor);
    }
    Q_DISABLE_COPY_MOVE(ReadingPrinter)

    /// What came, once so many bytes have.
    QByteArray paper(qsizetype atLeast)
    {
        for (const QDeadlineTimer deadline(10000); !deadline.hasExpired(); ::usleep(2000)) {
            const std::lock_guard lock(mutex);
            if (received.size() >= atLeast)
                break;
        }
        const std::lock_guard lock(mutex);
        return received;
    }

    /// Reads no more; the descriptor stays open.
    void stop()
    {
        isOver = true;
        if (thread.joinable())
            thread.join();
    }

protected:
    explicit ReadingPrinter(int opened)
        : descriptor(opened)
    {
        thread = std::thread([this] {
            std::array<char, 512> bytes;
            while (!isOver) {
                pollfd polled{descriptor, POLLIN, 0};
                if (::poll(&polled, 1, 5) != 1 || (polled.revents & POLLIN) == 0) {
                    ::usleep(1000);
                    continue;
                }
                const ssize_t count = ::read(descriptor, bytes.data(), bytes.size());
                const std::lock_guard lock(mutex);
                if (count > 0)
                    received += QByteArray(bytes.data(), qsizetype(count));
            }
        });
    }

    const int descriptor;

private:
    std::mutex mutex;
    QByteArray received;
    std::atomic<bool> isOver = false;
    std::thread thread;
};

/// A FIFO and its reader.
class FifoPrinter : public ReadingPrinter
{
public:
    /// @param path where the FIFO is made
    explicit FifoPrinter(const QString &path)
        : ReadingPrinter(made(path.toLocal8Bit()))
    {
    }

private:
    static int made(const QByteArray &path)
    {
        if (::mkfifo(path.constData(), 0600) != 0)
            qFatal("no FIFO %s", path.constData());
        return ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    }
};

/// A printer on a serial line.
class LinePrinter : public ReadingPrinter
{
public:
    LinePrinter()
        : ReadingPrinter(made())
        , name(::ptsname(descriptor))
        , other(::open(name.constData(), O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
    }
    ~LinePrinter() { ::close(other); }
    Q_DISABLE_COPY_MOVE(LinePrinter)

    [[nodiscard]] QString path() const { return name; }

    /// How the line is set.
    [[nodiscard]] termios settings() const
    {
        termios now = {};
        ::tcgetattr(other, &now);
        return now;
    }

    void say(const QByteArray &bytes) const
    {
        if (::write(descriptor, bytes.constData(), size_t(bytes.size())) != bytes.size())
            qFatal("the line takes no answer");
    }

private:
    static int made()
    {
        const int line = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
        if (line < 0 || ::grantpt(line) != 0 || ::unlockpt(line) != 0)
            qFatal("no terminal line");
        return line;
    }

    const QByteArray name;
    const int other; // so that the line is there when nobody has it open
};
