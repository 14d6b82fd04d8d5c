// A printer at an address of the network.
#include "delivery/device.h"

#include <array>
#include <condition_variable>
#include <csignal>
#include <cstring>
#include <mutex>
#include <thread>

#include <linux/sockios.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::delivery {

namespace {

struct FreeAddresses
{
    void operator()(addrinfo *first) const { ::freeaddrinfo(first); }
};
using Addresses = std::unique_ptr<addrinfo, FreeAddresses>;

struct LookUp
{
    QByteArray host;
    QByteArray port;
    Addresses found = nullptr;
    int failed = EAI_AGAIN;

    void run(int flags)
    {
        addrinfo wanted = {};
        wanted.ai_socktype = SOCK_STREAM;
        wanted.ai_flags = AI_NUMERICSERV | flags;
        addrinfo *first = nullptr;
        failed = ::getaddrinfo(host.constData(), port.constData(), &wanted, &first);
        found.reset(failed == 0 ? first : nullptr);
    }
};

/// A look-up that may take longer than anybody waits for it.
struct SharedLookUp
{
    LookUp lookUp;
    bool isDone = false;
    std::mutex mutex = {};
    std::condition_variable done = {};
};

/// Looks a name up in a thread that takes no signal, and that is left alone when it is too slow.
LookUp lookUpInTime(LookUp asked, const QDeadlineTimer &deadline)
{
    auto shared = std::make_shared<SharedLookUp>();
    shared->lookUp.host = asked.host;
    shared->lookUp.port = asked.port;
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread([shared] {
        LookUp own{shared->lookUp.host, shared->lookUp.port};
        own.run(0);
        const std::lock_guard lock(shared->mutex);
        shared->lookUp = std::move(own);
        shared->isDone = true;
        shared->done.notify_all();
    }).detach();
    pthread_sigmask(SIG_SETMASK, &before, nullptr);

    std::unique_lock lock(shared->mutex);
    shared->done.wait_until(lock,
                            std::chrono::steady_clock::now()
                                + std::chrono::milliseconds(deadline.remainingTime()),
                            [&] { return shared->isDone; });
    return shared->isDone ? std::move(shared->lookUp) : std::move(asked);
}

template<typename Value>
bool setOption(const Descriptor &socket, int level, int option, const Value &value)
{
    return ::setsockopt(socket.number(), level, option, &value, sizeof value) == 0;
}

/// Whether the connection when closed is reset, and what is under way thrown away, or ended in
/// order.
bool resetWhenClosed(const Descriptor &socket, bool reset)
{
    return setOption(socket, SOL_SOCKET, SO_LINGER, linger{reset ? 1 : 0, 0});
}

int pendingError(const Descriptor &socket)
{
    int error = 0;
    socklen_t size = sizeof error;
    return ::getsockopt(socket.number(), SOL_SOCKET, SO_ERROR, &error, &size) == 0 ? error : errno;
}

class NetworkConnection : public Connection
{
public:
    explicit NetworkConnection(Descriptor socket)
        : Connection(std::move(socket))
    {
    }

    bool isAlive(QString &error) override
    {
        if ((waitFor(descriptor, POLLRDHUP, QDeadlineTimer(0)) & POLLRDHUP) == 0)
            return Connection::isAlive(error);
        error = u"the printer closed the connection at once"_s;
        return false;
    }

    bool send(QByteArrayView bytes, std::chrono::seconds patience, QString &error) override
    {
        // Were the process killed, or the document in doubt, what the system still has of it must
        // not arrive when a person has already looked at the paper.
        if (!resetWhenClosed(descriptor, true)) {
            error = qt_error_string();
            return false;
        }
        const auto unacknowledged = [&] {
            int count = 0;
            return ::ioctl(descriptor.number(), SIOCOUTQ, &count) == 0 ? count : -1;
        };
        return handOver(bytes, patience, true, error)
               && waitUntilNone(unacknowledged, patience, error) && close(patience, error);
    }

private:
    /// Closes our half, and waits a moment for a reset that is on its way. A printer that talks is
    /// at work: were we gone, its next word would fail, and it might give up.
    bool close(std::chrono::seconds patience, QString &error) const
    {
        int failed = pendingError(descriptor);
        if (failed == 0 && ::shutdown(descriptor.number(), SHUT_WR) != 0)
            failed = errno;
        Heard heard = Heard::Nothing;
        QDeadlineTimer moment(1s);
        for (const QDeadlineTimer last(patience);
             failed == 0 && heard != Heard::End && !moment.hasExpired() && !last.hasExpired();) {
            waitFor(descriptor, POLLIN, moment);
            heard = dropInput();
            if (heard == Heard::Something)
                moment.setRemainingTime(1s);
            if (heard == Heard::Error)
                failed = errno;
        }
        if (failed == 0)
            failed = pendingError(descriptor);
        if (failed == 0 && !resetWhenClosed(descriptor, false))
            failed = errno;
        if (failed != 0)
            error = qt_error_string(failed);
        return failed == 0;
    }
};

class NetworkPlace : public Place
{
public:
    NetworkPlace(const addrinfo &found, QString deviceName)
        : device(std::move(deviceName))
        , size(found.ai_addrlen)
    {
        std::memcpy(&address, found.ai_addr, std::min<std::size_t>(size, sizeof address));
    }

    [[nodiscard]] QByteArray leaseName() const override
    {
        const auto [host, port] = inFigures();
        constexpr auto mapped = "::ffff:"; // an IPv4 address, in the disguise of the other kind
        return "tcp-" + (host.startsWith(mapped) && host.contains('.') ? host.mid(7) : host) + '-'
               + port;
    }

    std::unique_ptr<Connection> connect(const QDeadlineTimer &deadline, QString &error) override
    {
        Descriptor socket(
            ::socket(address.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
        const bool isBegun = socket.isOpen() && setOption(socket, IPPROTO_TCP, TCP_NODELAY, 1)
                             && ::connect(socket.number(), plain(), size) == 0;
        int failed = isBegun ? 0 : errno;
        if (failed == EINPROGRESS || failed == EINTR)
            failed = waitFor(socket, POLLOUT, deadline) == 0 ? ETIMEDOUT : pendingError(socket);
        if (failed == 0 && isOurself(socket))
            failed = ECONNREFUSED;
        if (failed == 0)
            return std::make_unique<NetworkConnection>(std::move(socket));
        error = reasonFor(device, failed);
        return nullptr;
    }

private:
    struct Figures
    {
        QByteArray host, port;
    };

    [[nodiscard]] const sockaddr *plain() const
    {
        return reinterpret_cast<const sockaddr *>(&address);
    }

    [[nodiscard]] Figures inFigures() const
    {
        std::array<char, NI_MAXHOST> host{};
        std::array<char, NI_MAXSERV> port{};
        ::getnameinfo(plain(), size, host.data(), host.size(), port.data(), port.size(),
                      NI_NUMERICHOST | NI_NUMERICSERV);
        return {host.data(), port.data()};
    }

    /// A connection to a free port of this machine may meet itself, and would take every byte.
    [[nodiscard]] bool isOurself(const Descriptor &socket) const
    {
        sockaddr_storage own = {};
        socklen_t ownSize = sizeof own;
        return ::getsockname(socket.number(), reinterpret_cast<sockaddr *>(&own), &ownSize) == 0
               && ownSize == size && std::memcmp(&own, &address, size) == 0;
    }

    const QString device;
    sockaddr_storage address = {};
    socklen_t size;
};

} // namespace

Places networkPlaces(const DeviceName &device, const QDeadlineTimer &deadline, QString &error)
{
    LookUp lookUp{device.host.toUtf8(), QByteArray::number(device.port)};
    lookUp.run(AI_NUMERICHOST);
    if (!lookUp.found)
        lookUp = lookUpInTime(std::move(lookUp), deadline);
    Places places;
    for (const addrinfo *next = lookUp.found.get(); next; next = next->ai_next)
        places.push_back(std::make_unique<NetworkPlace>(*next, device.text));
    if (places.empty())
        error = device.text + u" is not found: "_s
                + QString::fromLocal8Bit(::gai_strerror(lookUp.failed));
    return places;
}

} // namespace korvel::delivery
