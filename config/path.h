// Paths as the file system has them: bytes that need not be text, and no names of the toolkit's.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QDir>
#include <QFile>
#include <QLatin1StringView>
#include <QString>
#include <QStringConverter>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/**
 * A path in a QString loses nothing: UTF-8 is text as it stands, and each byte that is no UTF-8 is
 * a low surrogate without its other half, U+DC80 to U+DCFF. The toolkit's own classes would make
 * replacement characters of these, drop a byte order mark, and take what begins with ':' for one
 * of its resources. A path holds no NUL.
 */
namespace korvel::path {

/// The path that the system's bytes are.
inline QString fromBytes(QByteArrayView bytes)
{
    using Decoder = QStringDecoder;
    Decoder decode(Decoder::Utf8, Decoder::Flag::Stateless | Decoder::Flag::ConvertInitialBom);
    if (QString text = decode(bytes); !decode.hasError())
        return text;

    QString path;
    while (!bytes.isEmpty()) {
        const qsizetype longest = std::min<qsizetype>(4, bytes.size());
        qsizetype length = 1;
        while (length <= longest && !bytes.first(length).isValidUtf8())
            ++length;
        if (length > longest) {
            length = 1;
            path += QChar(0xDC00 + static_cast<unsigned char>(bytes.front()));
        } else {
            path += decode(bytes.first(length)); // a character
        }
        bytes = bytes.sliced(length);
    }
    return path;
}

/// The system's bytes of a path.
inline QByteArray toBytes(const QString &path)
{
    QByteArray bytes;
    qsizetype start = 0; // of the text that is still to come
    for (qsizetype i = 0; i < path.size(); ++i) {
        const char16_t unit = path[i].unicode();
        if (unit < 0xDC80 || unit > 0xDCFF || (i > 0 && path[i - 1].isHighSurrogate()))
            continue;
        bytes += QStringView(path).sliced(start, i - start).toUtf8();
        bytes += static_cast<char>(unit - 0xDC00);
        start = i + 1;
    }
    return start == 0 ? path.toUtf8() : bytes + QStringView(path).sliced(start).toUtf8();
}

/// The same file's path for the toolkit's own classes, which know no other bytes than UTF-8; empty
/// when the path has any.
inline QString forToolkit(const QString &path)
{
    if (!path.isValidUtf16())
        return {};
    return path.startsWith(u':') ? QStringLiteral("./") + path : path;
}

/// What a path leads to.
enum class Kind {
    Nothing, // or nothing that can be seen
    File,
    Other, // a folder, a FIFO, a device
};

inline Kind kindOf(const QString &path)
{
    struct stat status = {};
    if (::stat(toBytes(path).constData(), &status) != 0)
        return Kind::Nothing;
    return S_ISREG(status.st_mode) ? Kind::File : Kind::Other;
}

/**
 * Opens a file, FIFO or device as QFile::open() does, under exactly the bytes of its path.
 *
 * @param mode to read, to write (which empties the file), both, or to append; what is to be
 *             written to is created when missing
 * @return false when it cannot be opened, as a folder cannot; errno then says why
 */
inline bool open(QFile &file, const QString &path, QIODevice::OpenMode mode)
{
    if (mode.testFlag(QIODevice::Append))
        mode |= QIODevice::WriteOnly;
    int flags = O_RDONLY;
    if (mode.testFlag(QIODevice::WriteOnly))
        flags = O_CREAT | (mode.testFlag(QIODevice::ReadOnly) ? O_RDWR : O_WRONLY);
    if (mode.testFlag(QIODevice::Append))
        flags |= O_APPEND;
    else if (mode.testFlag(QIODevice::Truncate) || (flags & O_WRONLY) != 0)
        flags |= O_TRUNC;

    const QByteArray bytes = toBytes(path);
    int descriptor = -1;
    do
        descriptor = ::open(bytes.constData(), flags | O_CLOEXEC, 0666);
    while (descriptor < 0 && errno == EINTR);
    if (descriptor < 0)
        return false;

    struct stat status = {};
    if (::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode)) {
        ::close(descriptor);
        errno = EISDIR;
        return false;
    }
    return file.open(descriptor, mode, QFileDevice::AutoCloseHandle);
}

/// The user's home folder, without a slash at its end; the root folder when HOME does not say.
inline QString home()
{
    QString path = fromBytes(qgetenv("HOME"));
    if (path.startsWith(QChar(QChar::ByteOrderMark))) // which cleaning may drop
        return path;
    return path.isEmpty() ? QDir::homePath() : QDir::cleanPath(path);
}

/// The settings file of a user, below the home folder.
inline constexpr QLatin1StringView settingsInHome("/.korvel/conf/korvel.conf");

} // namespace korvel::path
