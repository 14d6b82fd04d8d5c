// Edges, padding and colours of the box.
#include "companions/preview/terminal.h"

#include <algorithm>
#include <cwchar>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

using Row = PaperRow::Kind;

/// Cells of a terminal that a text takes: a letter takes one, most emoji two, an accent that is
/// set over the letter before it none.
int cellsOf(QStringView text)
{
    int cells = 0;
    for (const uint point : text.toUcs4()) {
        const int width = wcwidth(static_cast<wchar_t>(point));
        cells += width < 0 ? 1 : width; // a locale that does not know the character
    }
    return cells;
}

struct Colours
{
    Row kind;
    QLatin1StringView start;
};

// Deductions red, what the preview computes faint, what it does not know inverted.
constexpr Colours colours[] = {
    {Row::Deducted, "\033[31m"_L1},
    {Row::Computed, "\033[2m"_L1},
    {Row::Unknown, "\033[7m"_L1},
    {Row::Cut, "\033[2m"_L1},
};
constexpr auto beyondPaper = "\033[1;31m"_L1;
constexpr auto plain = "\033[0m"_L1;

QLatin1StringView colourOf(Row kind)
{
    for (const Colours &row : colours) {
        if (row.kind == kind)
            return row.start;
    }
    return {};
}

} // namespace

bool wantsColours()
{
    return isatty(STDOUT_FILENO) == 1 && qEnvironmentVariableIsEmpty("NO_COLOR")
           && qgetenv("TERM") != "dumb";
}

qsizetype crossing(const QString &text, int columns)
{
    if (text.size() <= columns)
        return text.size();
    return text.at(columns).isLowSurrogate() && columns > 0 ? columns - 1 : columns;
}

Box::Box(int paperColumns, bool isColoured)
    : columns(paperColumns)
    , coloured(isColoured)
{
}

QString Box::top() const { return u'┌' + QString(columns, u'─') + u"┐\n"_s; }

QString Box::line(const PaperRow &row) const
{
    QString line;
    if (row.kind == Row::Cut) {
        line += u'├';
        paint(line, QString(columns, u'╌'), colourOf(row.kind));
        return line + u"┤\n"_s;
    }
    const QChar side = row.kind == Row::Computed || row.kind == Row::Unknown ? u'┊' : u'│';
    const qsizetype crossed = crossing(row.text, columns);
    const QStringView inside = QStringView(row.text).first(crossed);
    const QStringView beyond = QStringView(row.text).sliced(crossed);
    line.reserve(row.text.size() + columns + 4); // edges, mark, line feed
    line += side;
    paint(line, inside, colourOf(row.kind));
    line.resize(line.size() + std::max(columns - cellsOf(inside), 0), u' ');
    if (beyond.isEmpty())
        line += side;
    else
        paint(line, QString(u'»' + beyond), beyondPaper);
    line += u'\n';
    return line;
}

QString Box::bottom() const { return u'└' + QString(columns, u'─') + u"┘\n"_s; }

/// Adds a text to a line, in a colour if there are any.
void Box::paint(QString &line, QStringView text, QLatin1StringView colour) const
{
    if (coloured && !colour.isEmpty() && !text.isEmpty())
        line += colour + text + plain;
    else
        line += text;
}

} // namespace korvel::preview
