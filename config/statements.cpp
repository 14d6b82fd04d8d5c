// The brace notation, in: names, values, and where they end.
#include "config/statements.h"

#include <QChar>

#include <algorithm>

namespace libconfig {

namespace {

/// White space of Latin-1, as the toolkit has it.
bool isSpace(char c) { return QChar(QLatin1Char(c)).isSpace(); }

} // namespace

// Called for every byte, and therefore before those who call them.

inline void Statements::Text::add(char c, qint64 offset)
{
    if (bytes.empty()) {
        if (isSpace(c))
            return;
        place = offset;
    }
    if (bytes.size() < Tree::mostText)
        bytes += c;
    else
        isTooLong = true;
}

std::string_view Statements::Text::trimmed() const
{
    std::string_view text = bytes;
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

inline void Statements::Text::clear()
{
    bytes.clear();
    isTooLong = false;
}

/// Takes the next byte, if there is one, straight from the buffer: a stream checks itself over for
/// every byte it is asked for.
inline bool Statements::next(char &c)
{
    using Traits = std::streambuf::traits_type;
    const Traits::int_type byte = source.sbumpc();
    c = Traits::to_char_type(byte);
    ++position;
    return !Traits::eq_int_type(byte, Traits::eof());
}

bool Statements::jump(char c)
{
    for (char read = 0; next(read);)
        if (read == c)
            return true;
    return false;
}

bool Statements::read()
{
    name.clear();
    int open = 0; // groups, beside the level itself
    for (char c = 0; next(c);) {
        switch (c) {
        case ':':
            jump('{');
            tree.beginGroup(name.trimmed(), name.place);
            ++open;
            break;
        case '=':
            readSetting();
            break;
        case '}':
            tree.passOver(name.trimmed());
            jump(';');
            if (open-- == 0)
                return true;
            tree.endGroup();
            break;
        default:
            name.add(c, position - 1);
            continue;
        }
        name.clear();
    }
    return false;
}

/// Reads a value up to the next ';' or the end of the bytes. Every quote is removed once the outer
/// white space is, so that blanks inside quotes survive.
void Statements::readSetting()
{
    value.clear();
    for (char c = 0; next(c) && c != ';';)
        value.add(c, position - 1);
    if (name.isTooLong || value.isTooLong) {
        tree.leaveOut();
        return;
    }
    std::string_view kept = value.trimmed();
    if (kept.find('"') != std::string_view::npos) {
        unquoted.clear();
        std::copy_if(kept.begin(), kept.end(), std::back_inserter(unquoted),
                     [](char c) { return c != '"'; });
        kept = unquoted;
    }
    tree.addSetting(name.trimmed(), kept, name.place);
}

} // namespace libconfig
