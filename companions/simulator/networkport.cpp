// A listening socket.
#include "companions/simulator/port.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <deque>

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::simulator {

namespace {

// Connections that are kept open although nothing more is read; then the oldest is closed.
constexpr std::size_t mostKeptOpen = 100;

struct FreeAddresses
{
    void operator()(addrinfo *first) const { freeaddrinfo(first); }
};
using Addresses = std::unique_ptr<addrinfo, FreeAddresses>;

template<typename Value>
bool setOption(int socket, int option, const Value &value)
{
    return ::setsockopt(socket, SOL_SOCKET, option, &value, sizeof value) == 0;
}

/// An address in figures.
struct Numeric
{
    QString host;
    int port = 0;
};

Numeric numericOf(const sockaddr_storage &address)
{
    std::array<char, INET6_ADDRSTRLEN> host{};
    const auto *const plain = reinterpret_cast<const sockaddr *>(&address);
    ::getnameinfo(plain, sizeof address, host.data(), host.size(), nullptr, 0, NI_NUMERICHOST);
    const in_port_t port = address.ss_family == AF_INET6
                               ? reinterpret_cast<const sockaddr_in6 *>(&address)->sin6_port
                               : reinterpret_cast<const sockaddr_in *>(&address)->sin_port;
    return {QString::fromLatin1(host.data()), ntohs(port)};
}

class NetworkPort : public Port
{
public:
    NetworkPort(QString givenAddress, Listening how)
        : address(std::move(givenAddress))
        , listening(how)
    {
    }

    ~NetworkPort() override
    {
        for (const int descriptor : keptOpen)
            ::close(descriptor);
        if (listener >= 0)
            ::close(listener);
    }
    Q_DISABLE_COPY_MOVE(NetworkPort)

    bool open(QString &error) override
    {
        const Addresses found = lookUp(error);
        if (!found)
            return false;
        listener = ::socket(found->ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        sockaddr_storage bound = {};
        socklen_t size = sizeof bound;
        // A port that was used a moment ago is free; it stays taken where somebody listens.
        if (listener < 0 || !setOption(listener, SO_REUSEADDR, 1)
            || (listening.takesLittle && !setOption(listener, SO_RCVBUF, 1))
            || ::bind(listener, found->ai_addr, found->ai_addrlen) != 0
            || (!listening.refuses && ::listen(listener, SOMAXCONN) != 0)
            || ::getsockname(listener, reinterpret_cast<sockaddr *>(&bound), &size) != 0) {
            error = address + u": "_s + qt_error_string();
            if (errno == EADDRINUSE)
                error = address
                        + u": another program listens there; end it, or take a free port with "
                          "--listen 127.0.0.1:0"_s;
            return false;
        }
        const auto [numericHost, port] = numericOf(bound);
        host = numericHost;
        number = port;
        return true;
    }

    [[nodiscard]] QString place() const override
    {
        return (host.contains(u':') ? u'[' + host + u']' : host) + u':' + QString::number(number);
    }

    [[nodiscard]] QJsonObject details() const override
    {
        return {{u"host"_s, host}, {u"port"_s, number}};
    }

    [[nodiscard]] int descriptor() const override { return listening.refuses ? -1 : listener; }

    std::optional<Connection> accept() override
    {
        sockaddr_storage sender = {};
        socklen_t size = sizeof sender;
        const int descriptor = ::accept4(listener, reinterpret_cast<sockaddr *>(&sender), &size,
                                         SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (descriptor < 0)
            return {};
        return Connection{descriptor, numericOf(sender).host};
    }

    [[nodiscard]] bool isLine() const override { return false; }

    bool part(const Connection &connection, Parting how) override
    {
        if (how == Parting::KeepOpen) {
            keptOpen.push_back(connection.descriptor);
            if (keptOpen.size() <= mostKeptOpen)
                return false;
            ::close(keptOpen.front());
            keptOpen.pop_front();
            return false;
        }
        if (how == Parting::Reset)
            setOption(connection.descriptor, SO_LINGER, linger{1, 0});
        ::close(connection.descriptor);
        return false;
    }

private:
    /// The addresses that the text stands for; otherwise why there is none.
    Addresses lookUp(QString &error) const
    {
        const qsizetype colon = address.lastIndexOf(u':');
        bool isPort = false;
        const ushort port = address.sliced(colon + 1).toUShort(&isPort);
        QString name = address.first(std::max<qsizetype>(colon, 0));
        if (name.startsWith(u'[') && name.endsWith(u']'))
            name = name.sliced(1).chopped(1);
        if (!isPort || name.isEmpty()) {
            error = u"--listen takes an address and a port, such as 127.0.0.1:9100"_s;
            return nullptr;
        }
        addrinfo wanted = {};
        wanted.ai_socktype = SOCK_STREAM;
        wanted.ai_flags = AI_PASSIVE | AI_NUMERICSERV;
        addrinfo *found = nullptr;
        const int failed = ::getaddrinfo(name.toUtf8().constData(),
                                         QByteArray::number(port).constData(), &wanted, &found);
        if (failed != 0)
            error = address + u": "_s + QString::fromLocal8Bit(gai_strerror(failed));
        return Addresses(failed == 0 ? found : nullptr);
    }

    const QString address; // as given
    const Listening listening;
    int listener = -1;
    QString host; // in figures
    int number = 0;
    std::deque<int> keptOpen;
};

} // namespace

std::unique_ptr<Port> networkPort(const QString &address, Listening how)
{
    return std::make_unique<NetworkPort>(address, how);
}

} // namespace korvel::simulator
