// File names that are bytes and need not be text: in folders and on command lines.
#pragma once

#include "support/program.h"

#include <QByteArrayList>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

/// A file name that is no plain text, or that the toolkit has a meaning of its own for.
struct ByteName
{
    const char *what;
    const char *bytes;
};

inline constexpr ByteName byteNames[] = {
    {"a colon first",            ":name"            },
    {"a colon alone",            ":"                },
    {"a byte beyond ASCII",      "b\xE8t"           },
    {"the last byte",            "\xFF"             },
    {"a colon before such",      ":\xFF"            },
    {"half a character",         "caff\xC3"         },
    {"a character and a byte",   "caff\xC3\xA8\xE8" },
    {"half a pair",              "\xED\xB3\xBF"     },
    {"an overlong letter",       "\xC1\x81"         },
    {"beyond the last point",    "\xF4\x90\x80\x80" },
    {"a byte order mark first",  "\xEF\xBB\xBFname" },
    {"a byte order mark alone",  "\xEF\xBB\xBF"     },
    {"a replacement character",  "\xEF\xBF\xBD"     },
    {"a letter and a character", "x\xF0\x9F\x98\x80"},
};

inline void writeNamed(const QByteArray &path, const QByteArray &bytes)
{
    std::ofstream file(path.toStdString(), std::ios::binary);
    if (!file.write(bytes.constData(), bytes.size()).flush())
        qFatal("cannot write %s", path.constData());
}

/// All bytes of a file; none when there is no such file.
inline QByteArray bytesNamed(const QByteArray &path)
{
    if (!std::filesystem::is_regular_file(path.toStdString()))
        return {};
    std::ifstream file(path.toStdString(), std::ios::binary);
    return QByteArray::fromStdString({std::istreambuf_iterator<char>(file), {}});
}

/// Empties a folder when it goes: the toolkit's temporary folders stay when such a name is in them.
class Sweeper
{
public:
    explicit Sweeper(const QString &path)
        : folder(path.toStdString())
    {
    }

    ~Sweeper()
    {
        std::error_code error;
        std::filesystem::remove_all(folder, error);
    }

    Q_DISABLE_COPY_MOVE(Sweeper)

private:
    std::string folder;
};

/// All names in a folder, sorted.
inline QByteArrayList namesIn(const QByteArray &folder)
{
    QByteArrayList names;
    for (const auto &entry : std::filesystem::directory_iterator(folder.toStdString()))
        names.append(QByteArray::fromStdString(entry.path().filename().string()));
    std::sort(names.begin(), names.end());
    return names;
}

/// The names given, sorted.
inline QByteArrayList sortedNames(QByteArrayList names)
{
    std::sort(names.begin(), names.end());
    return names;
}

/// A word of a shell's command line that stands for any bytes.
inline QString shellWord(const QByteArray &bytes)
{
    QString word = "\"$(printf '";
    for (const char byte : bytes)
        word += QString("\\%1").arg(uint(uchar(byte)), 3, 8, QChar('0'));
    return word + "')\"";
}

/// Runs a program with arguments that are bytes. The folder is the working directory; a home that
/// is not null is HOME.
inline Run runWithBytes(const QString &program, const QByteArrayList &arguments,
                        const QByteArray &folder, const QByteArray &home = {})
{
    QString script = "cd " + shellWord(folder);
    if (!home.isNull())
        script += " && HOME=" + shellWord(home) + " && export HOME";
    script += " && exec \"$0\"";
    for (const QByteArray &argument : arguments)
        script += ' ' + shellWord(argument);
    return runProgram("sh", {"-c", script, program}, {});
}
