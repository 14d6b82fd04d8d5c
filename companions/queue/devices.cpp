// The devices that this machine has, as lpinfo -v shows them.
#include "companions/queue/backend.h"

#include "companions/shared/output.h"

#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace korvel::queue {

namespace {

/// Whether something is behind a line: the system has names for lines that nothing is behind.
bool isThere(const QString &line)
{
    QFile type(u"/sys/class/tty/"_s + line + u"/type"_s);
    return !type.open(QIODevice::ReadOnly) || type.readAll().trimmed() != "0";
}

} // namespace

int listDevices()
{
    const QString driver = u"Korvel Receipt Printer"_s;
    shared::Output out;
    out << u"network korvel \"Unknown\" \""_s + driver + u" (korvel://HOST)\"\n"_s;
    for (const QString &name : QDir(u"/dev/usb"_s).entryList({u"lp*"_s}, QDir::System))
        out << u"direct korvel:/dev/usb/"_s + name + u" \"Unknown\" \""_s + driver + u" at USB ("_s
                   + name + u")\"\n"_s;
    for (const QString &name :
         QDir(u"/dev"_s).entryList({u"ttyS*"_s, u"ttyUSB*"_s, u"ttyACM*"_s}, QDir::System)) {
        if (isThere(name))
            out << u"serial korvel:/dev/"_s + name + u"?baud=115200 \"Unknown\" \""_s + driver
                       + u" on the serial line "_s + name + u"\"\n"_s;
    }
    return out.end(0);
}

} // namespace korvel::queue
