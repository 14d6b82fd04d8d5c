// The brace notation, read byte by byte: settings `name = "value";` and groups `name: { ... };`.
#pragma once

#include "config/tree.h"

#include <QByteArray>

#include <streambuf>
#include <string>
#include <string_view>

namespace libconfig {

/// Bytes as a buffer to read from. They belong to the caller.
class Memory : public std::streambuf
{
public:
    explicit Memory(const QByteArray &bytes)
    {
        char *const first = const_cast<char *>(bytes.constData()); // which nobody writes to
        setg(first, first, first + bytes.size());
    }
};

/**
 * Reads the statements of a settings file out of a buffer and into a tree.
 *
 * A buffer that cannot be read any further throws std::ios_base::failure, as a file's does.
 */
class Statements
{
public:
    /// Both belong to the caller; the bytes are read from where the buffer stands.
    Statements(std::streambuf &bytes, Tree &found)
        : source(bytes)
        , tree(found)
    {
    }

    /// Reads past the next `c`; false when the end of the bytes comes first.
    bool jump(char c);

    /// Reads to behind the '}' and ';' that close the level (true), or to the end of the bytes.
    bool read();

private:
    /// A name or a raw value, from its first character that is no white space on.
    struct Text
    {
        void add(char c, qint64 offset);
        void clear();
        [[nodiscard]] std::string_view trimmed() const;

        std::string bytes;
        qint64 place = 0; // bytes before it
        bool isTooLong = false;
    };

    bool next(char &c);
    void readSetting();

    std::streambuf &source;
    Tree &tree;
    qint64 position = 0; // bytes read so far
    Text name, value;
    std::string unquoted; // a value
};

} // namespace libconfig
