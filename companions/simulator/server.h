// Takes senders one after the other, and does wrong what it is asked to.
#pragma once

#include "companions/simulator/port.h"
#include "companions/simulator/printer.h"

#include <limits>

namespace korvel::simulator {

/// What a run of the simulator is to do.
struct Task
{
    Fault fault;
    qint64 faulty = std::numeric_limits<qint64>::max(); // so many connections have the fault
    qint64 documents = 0; // the run ends by itself behind so many whole ones; 0: it does not
};

/**
 * Serves senders until SIGINT or SIGTERM comes, or behind so many documents. Then it ends the
 * connection that is open: as soon as the sender closes it, or nothing came for a second. A second
 * signal ends the process at once.
 */
class Server
{
public:
    Server(Port &openPort, Printer &thePrinter, Report &theReport, Task theTask);
    ~Server();
    Q_DISABLE_COPY_MOVE(Server)

    /// Serves; the port is open.
    void run();

private:
    enum class Wait { Ready, TimedOut, Ended };
    struct Visit;

    [[nodiscard]] Wait wait(int descriptor, short events, int milliseconds) const;
    std::optional<Connection> next();
    void serve(const Connection &connection);
    std::optional<Closing> receive(Visit &visit);
    Closing failOnPurpose(const Visit &visit);
    [[nodiscard]] bool hasAll() const;

    Port &port;
    Printer &printer;
    Report &report;
    const Task task;
    const int endings; // can be read from when one has come
    qint64 connections = 0;
};

} // namespace korvel::simulator
