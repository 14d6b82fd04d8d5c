// Files read up to a limit, and replaced by a new one under the same name.
#include "companions/shared/files.h"

#include "config/path.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::shared {

namespace {

/// Why the last call on a file, or else of the system, failed.
QString reasonOf(const QFile &file)
{
    return file.error() == QFileDevice::NoError ? qt_error_string() : file.errorString();
}

} // namespace

std::optional<QByteArray> readUpTo(const QString &path, qint64 limit, QString &error)
{
    QFile file;
    const bool open = path == "-"_L1 ? file.open(stdin, QIODevice::ReadOnly)
                                     : korvel::path::open(file, path, QIODevice::ReadOnly);
    if (!open) {
        error = reasonOf(file);
        return {};
    }
    constexpr qint64 chunk = 65'536; // room is made for what is asked for, whatever there is
    QByteArray bytes;
    while (bytes.size() <= limit) {
        const QByteArray more = file.read(std::min(chunk, limit + 1 - bytes.size()));
        if (more.isEmpty())
            break;
        bytes += more;
    }
    if (file.error() != QFileDevice::NoError) {
        error = file.errorString();
        return {};
    }
    return bytes;
}

std::optional<QByteArray> readWhole(const QString &path, qint64 limit, QString &error)
{
    auto bytes = readUpTo(path, limit, error);
    if (bytes && bytes->size() > limit) {
        error = u"larger than "_s + QString::number(limit) + u" bytes"_s;
        return {};
    }
    return bytes;
}

std::optional<QByteArray> readSettings(const QString &path, QString &error, qint64 limit)
{
    if (path == "-"_L1 || korvel::path::kindOf(path) == korvel::path::Kind::Other) {
        error = u"no regular file"_s;
        return {};
    }
    return readWhole(path, limit, error);
}

QString remarkOnMissingSettings()
{
    const QString path = korvel::path::home() + korvel::path::settingsInHome;
    if (korvel::path::kindOf(path) != korvel::path::Kind::Nothing)
        return {};
    return u"there are no settings in "_s + path
           + u"; this takes the sample shop's: install -Dm644 "_s + QStringLiteral(KORVEL_SAMPLE)
           + u" ~"_s + korvel::path::settingsInHome;
}

bool writeWhole(const QString &path, const QByteArray &bytes, QString &error)
{
    QByteArray target = korvel::path::toBytes(path);
    const std::unique_ptr<char, decltype(&std::free)> end(::realpath(target.constData(), nullptr),
                                                          &std::free);
    if (end)
        target = end.get();
    struct stat before = {};
    const bool existed = ::stat(target.constData(), &before) == 0;
    if (existed && ::access(target.constData(), W_OK) != 0) {
        error = qt_error_string();
        return false;
    }
    const mode_t mask = ::umask(0);
    ::umask(mask);

    QByteArray temporary = target + ".XXXXXX";
    QFile file;
    const int descriptor = ::mkostemp(temporary.data(), O_CLOEXEC);
    if (descriptor >= 0 && file.open(descriptor, QIODevice::WriteOnly, QFile::AutoCloseHandle)
        && file.write(bytes) == bytes.size() && file.flush()
        && ::fchmod(descriptor, existed ? before.st_mode & 07777U : 0666U & ~mask) == 0
        && ::fsync(descriptor) == 0 && ::rename(temporary.constData(), target.constData()) == 0)
        return true;
    error = reasonOf(file);
    if (descriptor >= 0)
        ::unlink(temporary.constData());
    return false;
}

} // namespace korvel::shared
