// The markup of the page; its style and its script are files beside this one.
#include "companions/preview/page.h"

#include "companions/paper/ledger.h"
#include "companions/preview/listing.h"
#include "companions/preview/terminal.h"
#include "companions/shared/oneline.h"

#include <QFile>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

using Row = PaperRow::Kind;

struct RowClass
{
    Row kind;
    QLatin1StringView name; // in page.css
};

constexpr RowClass rowClasses[] = {
    {Row::Deducted, "deducted"_L1},
    {Row::Computed, "computed"_L1},
    {Row::Unknown, "unknown"_L1},
};

struct SectionKind
{
    Section section;
    QLatin1StringView one;
    QLatin1StringView several;
};

constexpr SectionKind sectionKinds[] = {
    {Section::Fiscal, "fiscal receipt"_L1, "Fiscal receipts"_L1},
    {Section::Receipt, "receipt"_L1, "Receipts"_L1},
    {Section::Document, "other document"_L1, "Other documents"_L1},
};

/// What the sections of streams come to.
struct Tally
{
    std::array<qsizetype, std::size(sectionKinds)> sections = {}; // opened, of each kind
    std::optional<Amount> sum = Amount();                         // nothing when it is too large
    qsizetype sums = 0;                                           // fiscal sections that are in it
    qsizetype uncounted = 0;                                      // rows that are not

    void add(const Sum &of)
    {
        ++sums;
        uncounted += of.uncounted;
        if (sum && !sum->add(of.amount))
            sum.reset();
    }
    void add(const Tally &other)
    {
        for (std::size_t i = 0; i < sections.size(); ++i)
            sections.at(i) += other.sections.at(i);
        sums += other.sums;
        uncounted += other.uncounted;
        if (!other.sum || (sum && !sum->add(*other.sum)))
            sum.reset();
    }
};

Tally tallyOf(const Shown &shown, const Reading &reading)
{
    Tally tally;
    Ledger ledger;
    Decoder decoder(shown.input.stream, *reading.page);
    while (const auto command = decoder.next()) {
        if (command->kind == Command::Kind::SectionOpened)
            ++tally.sections.at(std::size_t(command->section));
        if (const auto sum = ledger.take(*command))
            tally.add(*sum);
    }
    if (const auto sum = ledger.end())
        tally.add(*sum);
    return tally;
}

QString sumOf(const Tally &tally)
{
    return (tally.sum ? tally.sum->toString() : u"too large"_s)
           + (tally.uncounted > 0
                  ? u" ("_s + shared::counted(tally.uncounted, u"row"_s) + u" not counted)"_s
                  : QString());
}

QByteArray resource(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray escapedText(const QString &text) { return text.toHtmlEscaped().toUtf8(); }

QByteArrayView classOf(Row kind)
{
    for (const RowClass &row : rowClasses) {
        if (row.kind == kind)
            return {row.name.data(), row.name.size()};
    }
    return {};
}

/// Adds the rows of a paper, with what is wider apart. Those of a kind that follow each other have
/// one mark: there may be millions.
void addRows(QByteArray &html, const Shown &shown, const Reading &reading)
{
    QByteArrayView open;
    const auto mark = [&](QByteArrayView next) {
        if (next == open)
            return;
        if (!open.isEmpty())
            html += "</span>";
        if (!next.isEmpty())
            html.append("<span class=\"").append(next).append("\">");
        open = next;
    };
    printRows(shown, reading, [&](const PaperRow &row) {
        mark(classOf(row.kind));
        if (row.kind == Row::Cut) {
            html += "<i></i>";
            return;
        }
        const qsizetype crossed = crossing(row.text, reading.columns);
        if (crossed == row.text.size())
            html += escapedText(row.text);
        else
            html += escapedText(row.text.first(crossed)) + "<b>"
                    + escapedText(row.text.sliced(crossed)) + "</b>";
        html += '\n';
    });
    mark({});
}

/// What a paper is: its kinds, what was found, what was registered.
QString factsOf(const Shown &shown, const Tally &tally)
{
    QStringList facts;
    for (const SectionKind &kind : sectionKinds) {
        const qsizetype count = tally.sections.at(std::size_t(kind.section));
        if (count == 1)
            facts += kind.one;
        else if (count > 1)
            facts += QString::number(count) + u' ' + QString(kind.several).toLower();
    }
    if (tally.sums > 0)
        facts += u"sum "_s + sumOf(tally);
    if (const qsizetype count = told(shown).size(); count > 0)
        facts += shared::counted(count, u"finding"_s);
    return facts.join(u" · "_s);
}

void addArticle(QByteArray &html, const Shown &shown, const Reading &reading, const Tally &tally,
                qsizetype at)
{
    const QByteArray number = QByteArray::number(at);
    const QString name = nameOf(shown);
    html += "<article id=\"paper" + number + '"' + (isWrong(shown, false) ? " class=\"wrong\"" : "")
            + ">\n<h2 id=\"name" + number + "\"><a href=\"#paper" + number + "\" title=\""
            + escapedText(name) + "\">" + escapedText(name.section(u'/', -1)) + "</a></h2>\n<p>"
            + escapedText(factsOf(shown, tally)) + "</p>\n<pre>\n";
    addRows(html, shown, reading);
    html += "</pre>\n";
    if (const QStringList lines = told(shown); !lines.isEmpty()) {
        html += "<ul>\n";
        for (const QString &line : lines)
            html += "<li>" + escapedText(line.trimmed()) + "</li>\n";
        html += "</ul>\n";
    }
    html += "<a class=\"close\" href=\"#name" + number + "\">Close</a>\n</article>\n";
}

/// How many there are of each kind, and the sum of what was registered.
QByteArray totalsOf(const Tally &all)
{
    QByteArray html = "<table>\n<tr><th scope=\"col\">Kind</th><th scope=\"col\">Papers</th>"
                      "<th scope=\"col\">Sum</th></tr>\n";
    for (const SectionKind &kind : sectionKinds) {
        const QString sum = kind.section == Section::Fiscal && all.sums > 0 ? sumOf(all) : u"–"_s;
        if (const qsizetype count = all.sections.at(std::size_t(kind.section)); count > 0)
            html += "<tr><th scope=\"row\">" + QByteArray(kind.several.data()) + "</th><td>"
                    + QByteArray::number(count) + "</td><td>" + escapedText(sum) + "</td></tr>\n";
    }
    return html + "</table>\n";
}

} // namespace

QByteArray pageOf(const QList<Shown> &shown, const Reading &reading, const QString &title)
{
    Tally all;
    QList<Tally> tallies;
    for (const Shown &one : shown) {
        tallies.append(tallyOf(one, reading));
        all.add(tallies.constLast());
    }
    const QByteArray name = escapedText(title);
    QByteArray html =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
        "style-src 'unsafe-inline'; script-src 'unsafe-inline'\">\n"
        "<meta name=\"generator\" content=\"korvel-preview\">\n<title>"
        + name + "</title>\n<style>\n" + resource(u":/page.css"_s)
        + "</style>\n</head>\n<body style=\"--columns: " + QByteArray::number(reading.columns)
        + "\">\n<header>\n<h1>" + name + "</h1>\n" + totalsOf(all)
        + "<label hidden>Search <input type=\"search\"> <output></output></label>\n</header>\n"
          "<main>\n";
    for (qsizetype i = 0; i < shown.size(); ++i)
        addArticle(html, shown[i], reading, tallies[i], i + 1);
    html += "</main>\n<script>\n" + resource(u":/page.js"_s) + "</script>\n</body>\n</html>\n";
    return html;
}

} // namespace korvel::preview
