// Devices: where a document can go, and the connection that takes it there.
#pragma once

#include "delivery/descriptor.h"
#include "delivery/devicename.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDeadlineTimer>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace korvel::delivery {

/// The way to a printer, while it is open.
class Connection
{
public:
    virtual ~Connection() = default;
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    /**
     * Whether the printer is still there, before a byte is sent.
     *
     * @param error why it is not, in one line
     */
    virtual bool isAlive(QString &error);

    /**
     * Sends bytes and waits until the printer's side has taken them all. Called once; an error
     * means that any number of them may have gone. Those that have not are then taken back from
     * the system, where it gives them back, so that none arrives later.
     *
     * @param patience how long no byte may be taken
     * @param error    why not all were taken, in one line
     */
    virtual bool send(QByteArrayView bytes, std::chrono::seconds patience, QString &error) = 0;

protected:
    explicit Connection(Descriptor opened)
        : descriptor(std::move(opened))
    {
    }

    /// What reading what the printer says came to.
    enum class Heard { Nothing, Something, End, Error };
    [[nodiscard]] Heard dropInput() const;
    /// Whether nobody can take anything any more, with the reason in one line.
    [[nodiscard]] static bool isGone(Heard heard, QString &error);

    /// Hands all bytes to the system.
    bool handOver(QByteArrayView bytes, std::chrono::seconds patience, bool reads,
                  QString &error) const;

    /// Waits until a number, of bytes that are still under way, is 0; below 0 it is not known.
    bool waitUntilNone(const std::function<qint64()> &left, std::chrono::seconds patience,
                       QString &error) const;

    const Descriptor descriptor;
};

/// Where a device is: one address of a host, or a file of the system.
class Place
{
public:
    virtual ~Place() = default;
    Place(const Place &) = delete;
    Place &operator=(const Place &) = delete;

    /// What the lease of the device is named by: the same, whatever name led here.
    [[nodiscard]] virtual QByteArray leaseName() const = 0;

    /// Opens the device; nothing, with the reason in one line, when it cannot be reached in time.
    virtual std::unique_ptr<Connection> connect(const QDeadlineTimer &deadline, QString &error) = 0;

protected:
    Place() = default;
};

using Places = std::vector<std::unique_ptr<Place>>;

/// All places where a device may be, to be tried in their order; none, with the reason in one line,
/// when it is nowhere.
Places placesOf(const DeviceName &device, const QDeadlineTimer &deadline, QString &error);

/// What an error of the system says of a device, in one line.
QString reasonFor(const QString &device, int error);

/// What there is to say of a printer that took no byte for so long.
QString tooSlow(std::chrono::seconds patience);

// Places by the kind of the device, for placesOf().
Places networkPlaces(const DeviceName &device, const QDeadlineTimer &deadline, QString &error);
Places filePlaces(const DeviceName &device, QString &error);

} // namespace korvel::delivery
