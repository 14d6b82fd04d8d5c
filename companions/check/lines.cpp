// The lines that the engine prints of a job: wider than the paper, and characters cut in half.
#include "companions/check/context.h"
#include "companions/check/engine.h"
#include "companions/check/words.h"
#include "printer/company/commands.h"
#include "vocabulary/paper.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Attribute;
using vocabulary::Value;
namespace element = vocabulary::element;

constexpr qsizetype paper = vocabulary::lineWidth;

/// A line that is wider than the paper, and what is to be said of it.
struct WideLine
{
    const Tag *tag;
    qsizetype row, rows; // which of how many of its element, counted from 0
    qsizetype width;
    qsizetype paperWidth; // of the document's settings
    bool isFigure;        // that makes it so
    Finding finding;
};

/// What makes a line wide: an attribute, and what is said of figures that are wider than their
/// columns.
struct Culprit
{
    const JobAttribute *attribute = nullptr;
    QString figure;
};

/// An attribute that the document knows by name.
struct Known
{
    Attribute row;
    const JobAttribute *attribute;
    bool told = false;     // to make an earlier line wide
    qsizetype reached = 0; // by earlier lines, of an address
};

/// Goes through the lines of a job as they are printed.
class LineChecker
{
public:
    explicit LineChecker(Context &shared)
        : context(shared)
    {
    }

    void check(const Printed &element)
    {
        if (element.tag.name == element::printers)
            printer = &element.tag;
        if (!element.commands.isValidUtf16())
            noteCut(element);
        const QStringList rows = rowsOf(element.commands);
        inElement.clear();
        for (qsizetype i = 0; i < rows.size(); ++i) {
            if (rows[i].size() > paper)
                noteWide(element, i, rows);
        }
    }

    QList<WideLine> wide;

private:
    [[nodiscard]] int number(const Printed &element, QLatin1StringView key) const
    {
        return context.settings->number(element.method.group, key);
    }

    /// Half of a character among the commands is of a text that does not stand there as a whole.
    void noteCut(const Printed &element)
    {
        const QStringView commands = element.commands;
        const auto *const half =
            std::adjacent_find(commands.begin(), commands.end(), [](QChar a, QChar b) {
                return a.isHighSurrogate() && !b.isLowSurrogate();
            });
        const QStringView before = commands.first(half - commands.begin());
        for (const JobAttribute &attribute : element.tag.attributes) {
            const QStringView value = attribute.value;
            if (half == commands.end() || commands.contains(value))
                continue;
            for (qsizetype at = value.size(); (at = value.first(at).lastIndexOf(*half)) >= 0;) {
                if (before.endsWith(value.first(at)))
                    return context.note(attribute.place, Code::CutCharacter, attribute.name,
                                        quoted(value.sliced(at, 2).toString()));
            }
        }
    }

    void noteWide(const Printed &element, qsizetype row, const QStringList &rows)
    {
        const Culprit culprit = culpritOf(element, row, rows);
        if (!culprit.attribute && element.method.group == vocabulary::group::fiscaldoc)
            return; // a price or a quantity, which have rules of their own
        const QString text = worded(Code::WideLine, QString::number(rows[row].size()),
                                    QString::number(paper), quoted(rows[row]), culprit.figure);
        const Place place = culprit.attribute ? culprit.attribute->place : element.tag.place;
        wide.append({&element.tag,
                     row,
                     rows.size(),
                     rows[row].size(),
                     number(element, vocabulary::key::paperWidth),
                     !culprit.figure.isEmpty(),
                     {place, Code::WideLine, text, {}, 0}});
    }

    Culprit culpritOf(const Printed &element, qsizetype row, const QStringList &rows)
    {
        const Tag &tag = element.tag;
        QString line = rows[row];
        line.replace(commands::reservedWordInPrint, vocabulary::reservedWord);
        // Where any attributes are printed, each has a line, in their order.
        if (row < tag.attributes.size() && tag.attributes[row].value == line)
            return {&tag.attributes[row], {}};
        if (tag.name == element::headers && printer) {
            const JobAttribute *name = printer->find(vocabulary::attribute::name);
            return {name && name->value == line ? name : nullptr, {}};
        }
        if (tag.name == element::cancelledsummary) {
            if (const JobAttribute *listed = listedIn(tag, rows.size() - row))
                return {listed, {}};
        }
        return knownIn(element, line);
    }

    /// Of the attributes that a list of cancelled documents has in a row, three in each, the
    /// longest; null when the row is none of the list. Rows are counted from the last, which is 1.
    static const JobAttribute *listedIn(const Tag &tag, qsizetype fromLast)
    {
        const qsizetype count = tag.attributes.size();
        const qsizetype begin = count - (count % 3 + 1) - 3 * (fromLast - 1); // after the first two
        const qsizetype end = std::min(begin + 3, count);
        if (begin < 2)
            return nullptr;
        return &*std::max_element(tag.attributes.begin() + begin, tag.attributes.begin() + end,
                                  [](const JobAttribute &a, const JobAttribute &b) {
                                      return a.value.size() < b.value.size();
                                  });
    }

    /// What makes a line wide of the attributes that the document knows by name: figures in
    /// columns, or the longest value.
    Culprit knownIn(const Printed &element, const QString &line)
    {
        if (inElement.isEmpty()) {
            for (const Attribute &row :
                 vocabulary::attributesOf(element.tag.name, element.method.document))
                if (const JobAttribute *attribute = element.tag.find(row.name))
                    inElement.append({row, attribute});
        }
        Culprit figures;
        Known *longest = nullptr;
        vocabulary::Columns columns = 0; // that a figure was found for
        for (Known &known : inElement) {
            if (!isIn(line, known))
                continue;
            if (known.row.column == vocabulary::NoColumn) {
                if (!longest || known.attribute->value.size() > longest->attribute->value.size())
                    longest = &known;
            } else if (const QString figure = wideFigure(element, known.row, *known.attribute);
                       !figure.isEmpty() && (columns & known.row.column) == 0) {
                columns |= known.row.column;
                figures.figure += figure;
                figures.attribute = figures.attribute ? figures.attribute : known.attribute;
                known.told = true;
            }
        }
        if (figures.attribute || !longest)
            return figures;
        longest->told = true;
        return {longest->attribute, {}};
    }

    /// Whether a line has an attribute's value, and not one of the same words that was told of an
    /// earlier line. Of an address it has a part, behind those of earlier lines.
    static bool isIn(const QString &line, Known &known)
    {
        const QString &value = known.attribute->value;
        if (known.row.value == Value::Address) {
            const qsizetype at = value.indexOf(line.trimmed(), known.reached);
            known.reached = std::max(known.reached, at);
            return at >= 0;
        }
        return known.row.value != Value::RegisteredPrice
               && known.row.value != Value::RegisteredCount && !known.told && !value.isEmpty()
               && line.contains(value);
    }

    /// What is said of a figure that is wider than its column; nothing of any other.
    [[nodiscard]] QString wideFigure(const Printed &element, const Attribute &known,
                                     const JobAttribute &attribute) const
    {
        for (const auto &[column, setting] : vocabulary::columnWidths) {
            const int width = std::max(number(element, setting), 0);
            if (known.column == column && attribute.value.size() > width)
                return filled(phrase::wideFigure, attribute.name, quoted(attribute.value),
                              QString::number(width), setting, element.method.group);
        }
        return {};
    }

    Context &context;
    const Tag *printer = nullptr; // the one named last
    QList<Known> inElement;       // that is looked at; asked for with its first wide line
};

/// How wide lines are in another trial; below 0 where their element has other lines there.
QList<qsizetype> widthsIn(Trial trial, const QList<WideLine> &lines, const Context &context,
                          const QList<Tag> &tags)
{
    QList<qsizetype> widths;
    auto next = lines.begin();
    layOut(tags, *context.settings, trial, [&](const Printed &element) {
        if (next == lines.end() || next->tag != &element.tag)
            return;
        const QStringList rows = rowsOf(element.commands);
        for (; next != lines.end() && next->tag == &element.tag; ++next)
            widths.append(rows.size() == next->rows ? rows[next->row].size() : -1);
    });
    return widths;
}

/// Whether a line is wide for a mistake that is said already: a figure of its element, or the
/// characters of its text.
bool isSaid(const Context &context, const WideLine &line)
{
    if (line.isFigure && context.doubtful.contains(line.tag))
        return true;
    return std::any_of(context.findings.begin(), context.findings.end(), [&](const Finding &other) {
        return (other.code == Code::Mojibake || other.code == Code::EscapedTwice
                || other.code == Code::Amount)
               && other.place.line == line.finding.place.line
               && other.place.column == line.finding.place.column;
    });
}

} // namespace

void checkLines(Context &context, const QList<Tag> &tags)
{
    LineChecker checker(context);
    layOut(tags, *context.settings, Trial::AsPrinted,
           [&](const Printed &element) { checker.check(element); });
    const QList<WideLine> &lines = checker.wide;
    if (lines.isEmpty())
        return;

    const auto hollow = widthsIn(Trial::Hollow, lines, context, tags);
    const auto narrow = widthsIn(Trial::Narrow, lines, context, tags);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const WideLine &line = lines[i];
        const bool filledUp = hollow[i] <= line.paperWidth && line.width > line.paperWidth;
        const bool own = hollow[i] > paper && !filledUp;
        const bool bySettings = narrow[i] >= 0 && narrow[i] <= paper;
        if (!own && !bySettings && !isSaid(context, line))
            context.findings.append(line.finding);
    }
}

} // namespace korvel::check
