// What all devices share: handing bytes over, and dropping what the printer says.
#include "delivery/device.h"

#include "companions/shared/oneline.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::delivery {

QString reasonFor(const QString &device, int error)
{
    return device + u" cannot be reached: "_s + qt_error_string(error);
}

QString tooSlow(std::chrono::seconds patience)
{
    return u"the printer took no byte for "_s + shared::counted(patience.count(), u"second"_s);
}

bool Connection::isAlive(QString &error)
{
    const short gone = POLLERR | POLLHUP | POLLNVAL;
    if ((waitFor(descriptor, 0, QDeadlineTimer(0)) & gone) == 0)
        return true;
    error = u"the printer closed the connection at once"_s;
    return false;
}

Connection::Heard Connection::dropInput() const
{
    // The descriptor may be open for writing alone, or may wait when it is read: ask before.
    const short told = waitFor(descriptor, POLLIN, QDeadlineTimer(0));
    if ((told & POLLIN) == 0)
        return Heard::Nothing;
    std::array<char, 4096> said;
    const ssize_t count =
        uninterrupted([&] { return ::read(descriptor.number(), said.data(), said.size()); });
    if (count > 0)
        return Heard::Something;
    if (count == 0)
        return Heard::End;
    return errno == EAGAIN ? Heard::Nothing : Heard::Error;
}

bool Connection::isGone(Heard heard, QString &error)
{
    if (heard != Heard::End && heard != Heard::Error)
        return false;
    error = heard == Heard::Error ? qt_error_string()
                                  : u"the printer closed the connection too early"_s;
    return true;
}

bool Connection::handOver(QByteArrayView bytes, std::chrono::seconds patience, bool reads,
                          QString &error) const
{
    constexpr qsizetype most = 4096; // at once: a device may not come back before all are taken
    const short events = reads ? POLLIN | POLLOUT : POLLOUT;
    QDeadlineTimer deadline(patience);
    while (!bytes.isEmpty()) {
        const short told = waitFor(descriptor, events, deadline);
        const Heard heard = reads && (told & POLLIN) != 0 ? dropInput() : Heard::Nothing;
        if (told == 0 || deadline.hasExpired()) {
            error = tooSlow(patience);
            return false;
        }
        if (isGone(heard, error))
            return false;
        if ((told & (POLLOUT | POLLERR | POLLHUP)) == 0)
            continue;
        const ssize_t count =
            ::write(descriptor.number(), bytes.data(), std::size_t(std::min(bytes.size(), most)));
        if (count < 0 && errno != EAGAIN && errno != EINTR) {
            error = qt_error_string();
            return false;
        }
        if (count > 0) {
            bytes = bytes.sliced(count);
            deadline.setRemainingTime(patience);
        }
    }
    return true;
}

bool Connection::waitUntilNone(const std::function<qint64()> &left, std::chrono::seconds patience,
                               QString &error) const
{
    constexpr std::chrono::milliseconds longest(20);
    std::chrono::milliseconds pause(1);
    QDeadlineTimer deadline(patience);
    for (qint64 before = left(); before != 0;) {
        if (before < 0 || deadline.hasExpired()) {
            error = before < 0 ? qt_error_string() : tooSlow(patience);
            return false;
        }
        const Heard heard = dropInput();
        const qint64 now = left();
        if (now != 0 && isGone(heard, error))
            return false;
        if (now >= 0 && now < before)
            deadline.setRemainingTime(patience);
        before = now;
        if (now > 0)
            waitFor(descriptor, 0, QDeadlineTimer(pause));
        pause = std::min(pause * 2, longest);
    }
    return true;
}

Places placesOf(const DeviceName &device, const QDeadlineTimer &deadline, QString &error)
{
    return device.kind == DeviceName::Kind::Network ? networkPlaces(device, deadline, error)
                                                    : filePlaces(device, error);
}

} // namespace korvel::delivery
