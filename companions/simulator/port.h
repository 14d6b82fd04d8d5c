// Where streams come in: an address of the network, or a terminal line.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <memory>
#include <optional>

namespace korvel::simulator {

/// A sender that is connected.
struct Connection
{
    int descriptor; // to read from, without waiting; the port's
    QString from;   // its address; empty on a terminal line
};

/// How the port is rid of a connection.
enum class Parting {
    Close,    // as a printer does that has taken everything
    Reset,    // the sender meets an error
    KeepOpen, // the sender meets nothing
};

/// One way in. Senders are taken one at a time; later ones wait with the kernel.
class Port
{
public:
    Port() = default;
    virtual ~Port() = default;
    Q_DISABLE_COPY_MOVE(Port)

    /// Begins to take senders; otherwise why not, as one line that says what to do.
    virtual bool open(QString &error) = 0;

    /// What a sender opens: "127.0.0.1:9100", "/dev/pts/3".
    [[nodiscard]] virtual QString place() const = 0;
    /// The same for programs.
    [[nodiscard]] virtual QJsonObject details() const = 0;

    /// Can be read from when a sender comes; -1 when none ever will.
    [[nodiscard]] virtual int descriptor() const = 0;
    /// The sender that came; nothing when it has gone again.
    virtual std::optional<Connection> accept() = 0;

    /// Whether a sender has the whole port: no other one comes before it is gone.
    [[nodiscard]] virtual bool isLine() const = 0;
    /// Whether the place is another one from now on, so that it has to be said.
    virtual bool part(const Connection &connection, Parting how) = 0;
};

/// What a port of the network is to be like.
struct Listening
{
    bool refuses = false;     // nothing listens at the address
    bool takesLittle = false; // the kernel takes as few bytes as it can that nobody reads
};

/**
 * A port of the network.
 *
 * @param address "HOST:PORT", "[HOST]:PORT" where the host has colons; port 0 is any free one
 */
std::unique_ptr<Port> networkPort(const QString &address, Listening how);

/// A pseudo terminal in raw mode, at 9600 baud, 8N1. It has a sender from the first byte on until
/// no program has it open.
std::unique_ptr<Port> terminalPort();

} // namespace korvel::simulator
