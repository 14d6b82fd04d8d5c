// Arguments, options and environment of filters and backends.
#include "companions/queue/request.h"

#include "companions/shared/files.h"
#include "companions/shared/oneline.h"
#include "config/path.h"

#include <QDeadlineTimer>

#include <cups/cups.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <thread>

#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::queue {

namespace {

constexpr int longestId = 200; // characters, as korvel-deliver takes them
constexpr qint64 largestDriver = 1'000'000;
constexpr std::chrono::seconds forHearing = 5s; // that CUPS may take to read a message

QString variable(const char *name, const QString &otherwise = {})
{
    const QByteArray value = qgetenv(name);
    return value.isEmpty() ? otherwise : path::fromBytes(value);
}

/// The options of a job, as CUPS spells them in one argument.
class Options
{
public:
    explicit Options(const QString &text)
        : count(cupsParseOptions(path::toBytes(text).constData(), 0, &all))
    {
    }
    ~Options() { cupsFreeOptions(count, all); }
    Options(const Options &) = delete;
    Options &operator=(const Options &) = delete;

    [[nodiscard]] QString value(const char *name) const
    {
        return path::fromBytes(cupsGetOption(name, count, all));
    }

private:
    cups_option_t *all = nullptr;
    const int count;
};

/// The code page that the queue's driver has for jobs that ask for none.
QString charsetOfQueue()
{
    constexpr QByteArrayView key = "*Defaultcharset:";
    QString error;
    const auto driver = shared::readWhole(variable("PPD", u"/dev/null"_s), largestDriver, error);
    for (const QByteArray &line : driver.value_or(QByteArray()).split('\n')) {
        if (line.startsWith(key))
            return QString::fromUtf8(line.sliced(key.size()).trimmed());
    }
    return u"UTF-8"_s;
}

} // namespace

QString Request::origin() const { return name() + u' ' + user + u": "_s + title; }

std::optional<Request> requestOf(const QStringList &arguments, QString &error)
{
    if (arguments.size() < 6) {
        error = u"CUPS calls this program: JOB USER TITLE COPIES OPTIONS [FILE]"_s;
        return {};
    }
    const Options options(arguments.at(5));
    Request request;
    request.job = arguments.at(1);
    request.user = arguments.at(2);
    request.title = arguments.at(3);
    request.copies = std::max(1, arguments.at(4).toInt());
    request.id = options.value("job-uuid");
    if (request.id.size() > longestId || shared::inOneLine(request.id) != request.id) {
        error = u"the job's job-uuid is no id: it takes up to "_s + QString::number(longestId)
                + u" characters that print"_s;
        return {};
    }
    request.queue = variable("PRINTER", arguments.at(0));
    request.charset = options.value("charset");
    if (request.charset.isEmpty())
        request.charset = charsetOfQueue();
    request.device = variable("DEVICE_URI", arguments.at(0));
    request.isOfClass = qEnvironmentVariableIsSet("CLASS");
    request.files = arguments.sliced(6);
    return request;
}

QString settingsOf(const QString &queue)
{
    const QString folder = variable("KORVEL_SETTINGS_DIR", u"/etc/korvel-print"_s);
    const QString own = folder + u"/queues/"_s + queue + u"/korvel.conf"_s;
    // What is there and cannot be read is not passed over: the job is refused.
    struct stat status = {};
    const bool isThere = ::stat(path::toBytes(own).constData(), &status) == 0 || errno != ENOENT;
    return isThere ? own : folder + u"/korvel.conf"_s;
}

QString journalPath() { return variable("KORVEL_JOURNAL", u"/var/lib/korvel-print/journal.db"_s); }

void tell(Level level, const QString &text)
{
    const QLatin1StringView name = level == Level::Error  ? "ERROR: "_L1
                                   : level == Level::Info ? "INFO: "_L1
                                                          : "DEBUG: "_L1;
    const QByteArray line = (name + shared::inOneLine(text) + u'\n').toUtf8();
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stderr);
}

void waitUntilHeard()
{
    struct stat status = {};
    if (::fstat(STDERR_FILENO, &status) != 0 || !S_ISFIFO(status.st_mode))
        return;
    const QDeadlineTimer deadline(forHearing);
    int left = 0;
    while (::ioctl(STDERR_FILENO, FIONREAD, &left) == 0 && left > 0 && !deadline.hasExpired())
        std::this_thread::sleep_for(1ms);
}

void tellWaiting(bool waits)
{
    std::fputs(waits ? "STATE: +connecting-to-device\n" : "STATE: -connecting-to-device\n", stderr);
}

} // namespace korvel::queue
