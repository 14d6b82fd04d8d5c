// The faults and how they are spelt.
#include "companions/simulator/fault.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace korvel::simulator {

namespace {

using Kind = Fault::Kind;

struct Spelling
{
    QLatin1StringView name;
    Kind kind;
    QLatin1StringView number; // how the help calls it; empty where there is none
    qint64 least;
};

// clang-format off
constexpr Spelling spellings[] = {
    {"refuse"_L1,    Kind::Refuse,   {},        0},
    {"reset"_L1,     Kind::Reset,    "N"_L1,    0},
    {"stall"_L1,     Kind::Stall,    "N"_L1,    0},
    {"slow"_L1,      Kind::Slow,     "RATE"_L1, 1},
    {"keep-open"_L1, Kind::KeepOpen, {},        0},
    {"deaf"_L1,      Kind::Deaf,     {},        0},
};
// clang-format on

} // namespace

std::optional<qint64> Fault::lastByte() const
{
    switch (kind) {
    case Kind::Reset:
    case Kind::Stall:
        return number;
    case Kind::Deaf:
        return 0;
    default:
        return {};
    }
}

std::optional<Fault> faultNamed(const QString &text)
{
    const qsizetype equals = text.indexOf(u'=');
    const QString name = equals < 0 ? text : text.first(equals);
    for (const Spelling &row : spellings) {
        if (name != row.name || row.number.isEmpty() != (equals < 0))
            continue;
        bool isNumber = equals < 0;
        const qint64 number = isNumber ? 0 : text.sliced(equals + 1).toLongLong(&isNumber);
        if (isNumber && number >= row.least)
            return Fault{row.kind, number, text};
    }
    return {};
}

QString faultNames()
{
    QStringList names;
    for (const Spelling &row : spellings)
        names.append(row.number.isEmpty() ? QString(row.name) : row.name + u'=' + row.number);
    const QString last = names.takeLast();
    return names.join(u", "_s) + u" or "_s + last;
}

} // namespace korvel::simulator
