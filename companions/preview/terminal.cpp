// Edges, padding and colours of the box.
#include "companions/preview/terminal.h"

#include <cwchar>

using namespace Qt::Literals::StringLiterals;

namespace preview {

namespace {

using Kind = PaperRow::Kind;

/// Cells of a terminal that a text takes: a letter takes one, most emoji two, an accent that is
/// set over the letter before it none.
int cellsOf(const QString &text)
{
    int cells = 0;
    for (const uint point : text.toUcs4()) {
        const int width = wcwidth(static_cast<wchar_t>(point));
        cells += width < 0 ? 1 : width; // a locale that does not know the character
    }
    return cells;
}

/// Where a text crosses the paper's edge: no character is taken apart.
qsizetype crossing(const QString &text, int columns)
{
    if (text.size() <= columns)
        return text.size();
    return text.at(columns).isLowSurrogate() && columns > 0 ? columns - 1 : columns;
}

struct Colours
{
    Kind kind;
    QLatin1StringView start;
};

// Deductions red, what the preview computes faint, what it does not know inverted.
constexpr Colours colours[] = {
    {Kind::Deducted, "\033[31m"_L1},
    {Kind::Computed, "\033[2m"_L1 },
    {Kind::Unknown,  "\033[7m"_L1 },
    {Kind::Cut,      "\033[2m"_L1 },
};
constexpr auto beyondPaper = "\033[1;31m"_L1;
constexpr auto plain = "\033[0m"_L1;

QLatin1StringView colourOf(Kind kind)
{
    for (const Colours &row : colours) {
        if (row.kind == kind)
            return row.start;
    }
    return {};
}

QString painted(const QString &text, QLatin1StringView colour, bool coloured)
{
    return coloured && !colour.isEmpty() && !text.isEmpty() ? colour + text + plain : text;
}

} // namespace

QString boxed(const QList<PaperRow> &rows, int columns, bool coloured)
{
    const QString edge(columns, u'─');
    QString box = u'┌' + edge + u"┐\n"_s;
    for (const auto &[kind, text] : rows) {
        if (kind == Kind::Cut) {
            box += u'├' + painted(QString(columns, u'╌'), colourOf(kind), coloured) + u"┤\n"_s;
            continue;
        }
        const QChar side = kind == Kind::Computed || kind == Kind::Unknown ? u'┊' : u'│';
        const qsizetype crossed = crossing(text, columns);
        const QString inside = text.first(crossed);
        const QString beyond = text.sliced(crossed);
        box += side + painted(inside, colourOf(kind), coloured)
               + QString(std::max(columns - cellsOf(inside), 0), u' ');
        if (beyond.isEmpty())
            box += side;
        else
            box += painted(u'»' + beyond, beyondPaper, coloured);
        box += u'\n';
    }
    box += u'└' + edge + u"┘\n"_s;
    return box;
}

} // namespace preview
