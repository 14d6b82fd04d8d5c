// The one loop of the simulator: wait, read, split.
#include "companions/simulator/server.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace korvel::simulator {

namespace {

constexpr qint64 chunk = 65'536;      // bytes read at once
constexpr qint64 stepsPerSecond = 20; // of a slow printer
constexpr int patience = 1000; // milliseconds for what may still come behind the last document
constexpr int pause = 50;      // milliseconds until a closed terminal line is looked at again
constexpr int unlimited = -1;

int signalled = -1; // for the handler: an event that it sets

void noteSignal(int /*number*/)
{
    const int before = errno;
    const eventfd_t one = 1;
    [[maybe_unused]] const auto told = ::write(signalled, &one, sizeof one); // full: told before
    errno = before;
}

/// From now on the first SIGINT and the first SIGTERM end the loop, not the process.
int catchSignals()
{
    signalled = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int number : {SIGINT, SIGTERM})
        ::sigaction(number, &action, nullptr);
    return signalled;
}

} // namespace

/// A connection while it is served.
struct Server::Visit
{
    const Connection &connection;
    const Fault fault;
    Splitter splitter;
    qint64 taken = 0;     // bytes read
    qint64 documents = 0; // whole ones
};

Server::Server(Port &openPort, Printer &thePrinter, Report &theReport, Task theTask)
    : port(openPort)
    , printer(thePrinter)
    , report(theReport)
    , task(std::move(theTask))
    , endings(catchSignals())
{
}

Server::~Server() { ::close(endings); }

void Server::run()
{
    report.listening(port.place(), port.details());
    if (task.fault.kind == Fault::Kind::Refuse)
        report.faulted(0, task.fault, 0);
    while (const auto connection = next())
        serve(*connection);
    report.ended(printer.day());
}

/// Waits for a sender; nothing when the run is to end.
std::optional<Connection> Server::next()
{
    while (!hasAll() && wait(port.descriptor(), POLLIN, unlimited) == Wait::Ready) {
        if (auto connection = port.accept())
            return connection;
        if (wait(-1, 0, pause) == Wait::Ended)
            break;
    }
    return {};
}

void Server::serve(const Connection &connection)
{
    const qint64 number = ++connections;
    Visit visit{connection, number <= task.faulty ? task.fault : Fault(),
                Splitter([&](const Document &document) {
                    printer.print(document, number);
                    visit.documents += document.isWhole() ? 1 : 0;
                })};
    report.connected(number, connection.from);
    if (visit.fault.kind == Fault::Kind::Slow)
        report.faulted(number, visit.fault, 0);

    const std::optional<qint64> lastByte = visit.fault.lastByte();
    std::optional<Closing> closing;
    while (!closing)
        closing = lastByte && visit.taken == *lastByte ? failOnPurpose(visit) : receive(visit);

    const Parting how = closing == Closing::FaultReset ? Parting::Reset
                        : closing == Closing::LeftOpen ? Parting::KeepOpen
                                                       : Parting::Close;
    const bool moved = port.part(connection, how);
    visit.splitter.end();
    report.closed(number, *closing, visit.taken, visit.documents);
    if (moved)
        report.listening(port.place(), port.details());
}

/// Reads what came, and prints what that completes; who ended the connection, if anybody did.
std::optional<Closing> Server::receive(Visit &visit)
{
    const int descriptor = visit.connection.descriptor;
    if (wait(descriptor, POLLIN, hasAll() ? patience : unlimited) != Wait::Ready)
        return Closing::Simulator;

    const bool isSlow = visit.fault.kind == Fault::Kind::Slow;
    qint64 most = chunk;
    if (isSlow)
        most = std::clamp<qint64>(visit.fault.number / stepsPerSecond, 1, chunk);
    if (const auto lastByte = visit.fault.lastByte())
        most = std::min(most, *lastByte - visit.taken);
    std::array<char, chunk> bytes;
    const ssize_t count = ::read(descriptor, bytes.data(), static_cast<std::size_t>(most));
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return {};
    if (count < 0)
        return errno == ECONNRESET ? Closing::SenderReset : Closing::Sender;
    if (count == 0 && visit.fault.kind == Fault::Kind::KeepOpen)
        return failOnPurpose(visit);
    if (count == 0)
        return Closing::Sender;
    visit.taken += count;
    visit.splitter.add({bytes.data(), count});
    if (isSlow && wait(-1, 0, static_cast<int>(count * 1000 / visit.fault.number)) == Wait::Ended)
        return Closing::Simulator;
    return {};
}

/// Does wrong what was asked for. Who has the whole port is waited for, others are set aside.
Closing Server::failOnPurpose(const Visit &visit)
{
    report.faulted(connections, visit.fault, visit.taken);
    if (visit.fault.kind == Fault::Kind::Reset)
        return Closing::FaultReset;
    constexpr short itsEnd = 0; // which is always told of
    if (port.isLine() && wait(visit.connection.descriptor, itsEnd, unlimited) == Wait::Ended)
        return Closing::Simulator;
    return Closing::LeftOpen;
}

/// Whether the documents have come that the run was to wait for.
bool Server::hasAll() const
{
    return task.documents > 0 && printer.day().documents >= task.documents;
}

/// Waits until poll() tells of the descriptor, none for -1, or the run is to end.
Server::Wait Server::wait(int descriptor, short events, int milliseconds) const
{
    if (!report.isSound())
        return Wait::Ended;
    std::array<pollfd, 2> polled = {{{endings, POLLIN, 0}, {descriptor, events, 0}}};
    int count = -1;
    do {
        count = ::poll(polled.data(), polled.size(), milliseconds);
    } while (count < 0 && errno == EINTR);
    if (count < 0 || polled.front().revents != 0)
        return Wait::Ended;
    return count == 0 ? Wait::TimedOut : Wait::Ready;
}

} // namespace korvel::simulator
