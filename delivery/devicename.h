// Names of devices: where a document is to go, as a caller writes it.
#pragma once

#include <QString>

#include <optional>

namespace korvel::delivery {

/// A device as it was named, taken apart.
struct DeviceName
{
    enum class Kind {
        Network, // tcp://HOST[:9100]
        Serial,  // serial:/dev/ttyS0[?baud=9600]
        Path,    // /dev/usb/lp0, or another device of characters or FIFO
        File,    // file:/path, which is appended to
    };

    Kind kind = Kind::Path;
    QString text; // the whole name in its one spelling, with the port and the speed; the journal's
    QString host = {};
    quint16 port = 0;
    QString path = {};
    int baud = 0; // bits a second
};

/**
 * The device that a text names.
 *
 * @param error when it names none: why, and what to write, in one line
 */
std::optional<DeviceName> deviceNamed(const QString &text, QString &error);

/// The speeds of a serial line, in bits a second, as a terminal's settings know them; 0 for one
/// that there is not.
unsigned terminalSpeed(int baud);

} // namespace korvel::delivery
