// Reading the names of devices.
#include "delivery/devicename.h"

#include "companions/shared/oneline.h"
#include "config/path.h"

#include <sys/stat.h>
#include <termios.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::delivery {

namespace {

constexpr quint16 usualPort = 9100;
constexpr int usualBaud = 9600;

struct Speed
{
    int baud;
    unsigned terminal;
};

constexpr Speed speeds[] = {
    {1200, B1200},   {2400, B2400},   {4800, B4800},     {9600, B9600},     {19200, B19200},
    {38400, B38400}, {57600, B57600}, {115200, B115200}, {230400, B230400},
};

QString quoted(const QString &text) { return u'"' + shared::inOneLine(text) + u'"'; }

/// Reads HOST[:PORT], where a host of colons stands in brackets.
std::optional<DeviceName> network(const QString &place, QString &error)
{
    const bool isBracketed = place.startsWith(u'[');
    const qsizetype end = isBracketed ? place.indexOf(u']') + 1 : place.indexOf(u':');
    const QString host = (end < 0 ? place : place.first(end)).toLower();
    const QString behind = end < 0 ? QString() : place.sliced(end);
    bool isPort = true;
    const ushort port = behind.isEmpty() ? usualPort : behind.sliced(1).toUShort(&isPort);
    if (host.isEmpty() || host == "[]"_L1 || host.contains(u'/') || host.contains(u' ')
        || host.contains(u'@') || (!behind.isEmpty() && !behind.startsWith(u':')) || !isPort
        || port == 0) {
        error = quoted(u"tcp://"_s + place) + u" is no address: write tcp://HOST or tcp://HOST:"_s
                + QString::number(usualPort) + u", an IPv6 address in brackets"_s;
        return {};
    }
    return DeviceName{DeviceName::Kind::Network, u"tcp://"_s + host + u':' + QString::number(port),
                      isBracketed ? host.sliced(1).chopped(1) : host, port};
}

/// Reads /dev/ttyS0[?baud=9600].
std::optional<DeviceName> serial(const QString &line, QString &error)
{
    const qsizetype mark = line.indexOf(u'?');
    const QString path = mark < 0 ? line : line.first(mark);
    const QString options = mark < 0 ? QString() : line.sliced(mark + 1);
    const bool hasBaud = options.startsWith("baud="_L1);
    const int baud = hasBaud ? options.sliced(5).toInt() : usualBaud;
    if (!path.startsWith(u'/') || (mark >= 0 && !hasBaud) || terminalSpeed(baud) == 0) {
        QString known;
        for (const Speed &speed : speeds)
            known += (known.isEmpty() ? u""_s : u", "_s) + QString::number(speed.baud);
        error = quoted(u"serial:"_s + line)
                + u" is no serial line: write serial:/dev/ttyS0?baud=9600, where baud is one of "_s
                + known;
        return {};
    }
    return DeviceName{DeviceName::Kind::Serial,
                      u"serial:"_s + path + u"?baud="_s + QString::number(baud),
                      {},
                      0,
                      path,
                      baud};
}

} // namespace

unsigned terminalSpeed(int baud)
{
    for (const Speed &speed : speeds) {
        if (speed.baud == baud)
            return speed.terminal;
    }
    return 0;
}

std::optional<DeviceName> deviceNamed(const QString &text, QString &error)
{
    const auto behind = [&](QLatin1StringView scheme) { return text.sliced(scheme.size()); };
    if (shared::inOneLine(text) != text) {
        error = quoted(text) + u" has a character that does not print: no device has such a name"_s;
        return {};
    }
    if (text.startsWith("tcp://"_L1))
        return network(behind("tcp://"_L1), error);
    if (text.startsWith("serial:"_L1))
        return serial(behind("serial:"_L1), error);
    const bool isFile = text.startsWith("file:/"_L1);
    const QString path = isFile ? behind("file:"_L1) : text;
    if (!path.startsWith(u'/') || (isFile && path.endsWith(u'/'))) {
        error = quoted(text)
                + u" is no device: write tcp://HOST, serial:/dev/ttyS0?baud=9600, the path of a "
                  "device or FIFO such as /dev/usb/lp0, or file:/path"_s;
        return {};
    }
    const path::Kind kind = path::kindOf(path);
    if (!isFile && kind == path::Kind::File) {
        error = path + u" is a file, no device: to append to it, write file:"_s + path;
        return {};
    }
    if (isFile && kind == path::Kind::Other) {
        error = path + u" is no file: leave out file: for a device or a FIFO"_s;
        return {};
    }
    struct stat status = {};
    if (kind == path::Kind::Other && ::stat(path::toBytes(path).constData(), &status) == 0
        && !S_ISCHR(status.st_mode) && !S_ISFIFO(status.st_mode)) {
        error = path + u" is no device of characters and no FIFO"_s;
        return {};
    }
    return DeviceName{isFile ? DeviceName::Kind::File : DeviceName::Kind::Path, text, {}, 0, path};
}

} // namespace korvel::delivery
