// File names that are bytes and need not be text: in folders and on command lines.
#pragma once

#include "support/program.h"

#include <QByteArrayList>
#include <QTest>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

/// A file name that is no plain text, or that the toolkit has a meaning of its own for.
struct ByteName
{
    const char *what;
    const char *bytes;
    const char *shown = bytes; // by a companion, in a terminal
};

// Each byte that is no UTF-8, and what does not print, is shown as "\xEF\xBF\xBD".
// clang-format off
inline constexpr ByteName byteNames[] = {
    {"a colon first",            ":name"},
    {"a colon alone",            ":"},
    {"a byte beyond ASCII",      "b\xE8t",            "b\xEF\xBF\xBDt"},
    {"the last byte",            "\xFF",              "\xEF\xBF\xBD"},
    {"a colon before such",      ":\xFF",             ":\xEF\xBF\xBD"},
    {"half a character",         "caff\xC3",          "caff\xEF\xBF\xBD"},
    {"a character and a byte",   "caff\xC3\xA8\xE8",  "caff\xC3\xA8\xEF\xBF\xBD"},
    {"half a pair",              "\xED\xB3\xBF",      "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
    {"an overlong letter",       "\xC1\x81",          "\xEF\xBF\xBD\xEF\xBF\xBD"},
    {"a letter and an escape",   "x\x1b",             "x\xEF\xBF\xBD"},
    {"a byte order mark first",  "\xEF\xBB\xBFname",  "\xEF\xBF\xBDname"},
    {"a byte order mark alone",  "\xEF\xBB\xBF",      "\xEF\xBF\xBD"},
    {"a replacement character",  "\xEF\xBF\xBD"},
    {"a letter and a character", "x\xF0\x9F\x98\x80"},
};
// clang-format on

/// A data row for each of these names, with the columns "name" and "shown".
inline void addByteNames()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("shown");
    for (const auto &[what, bytes, shown] : byteNames)
        QTest::newRow(what) << QByteArray(bytes) << QByteArray(shown);
}

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
