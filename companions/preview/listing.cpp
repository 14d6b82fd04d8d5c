// What each command, finding and sum is called, to people and to programs.
#include "companions/preview/listing.h"

#include "companions/paper/text.h"
#include "companions/shared/codes.h"

#include <algorithm>
#include <array>
#include <charconv>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

using Kind = Command::Kind;

struct KindNames
{
    Kind kind;
    shared::Phrase name;
    QByteArrayView key; // in JSON
};

constexpr KindNames kinds[] = {
    {Kind::Line, {QT_TRANSLATE_NOOP("findings", "text line")}, "line"},
    {Kind::SectionOpened, {QT_TRANSLATE_NOOP("findings", "section opening")}, "section-opened"},
    {Kind::SectionClosed, {QT_TRANSLATE_NOOP("findings", "section closing")}, "section-closed"},
    {Kind::SaleRow, {QT_TRANSLATE_NOOP("findings", "sale row")}, "sale-row"},
    {Kind::Deduction, {QT_TRANSLATE_NOOP("findings", "deduction")}, "deduction"},
    {Kind::Unknown, {QT_TRANSLATE_NOOP("findings", "unknown command")}, "unknown"},
};

struct SectionNames
{
    Section section;
    shared::Phrase name;
    QByteArrayView key; // in JSON
};

constexpr SectionNames sections[] = {
    {Section::Fiscal, {QT_TRANSLATE_NOOP("findings", "fiscal section")}, "fiscal"},
    {Section::Receipt, {QT_TRANSLATE_NOOP("findings", "receipt section")}, "receipt"},
    {Section::Document, {QT_TRANSLATE_NOOP("findings", "document section")}, "document"},
};

const KindNames &namesOf(Kind kind)
{
    const KindNames *row = kinds;
    while (row->kind != kind)
        ++row;
    return *row;
}

const SectionNames &namesOf(Section section)
{
    const SectionNames *row = sections;
    while (row->section != section)
        ++row;
    return *row;
}

/// A number in decimal that takes no memory from the heap: there may be millions.
class Digits
{
public:
    explicit Digits(qsizetype number)
        : end(std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr)
    {
    }
    [[nodiscard]] QByteArrayView bytes() const { return {digits.data(), end}; }
    [[nodiscard]] QLatin1StringView text() const { return {digits.data(), end}; }

    /// The blanks that make it so wide.
    [[nodiscard]] QLatin1StringView before(qsizetype width) const
    {
        constexpr auto blanks = "        "_L1;
        return blanks.first(std::clamp<qsizetype>(width - text().size(), 0, blanks.size()));
    }

private:
    std::array<char, 20> digits = {}; // of a qsizetype, with its sign
    const char *end;
};

QString meaning(const Command &command)
{
    const auto shown = [&](const QByteArray &text) { return quoted(text, *command.codePage); };
    switch (command.kind) {
    case Kind::Line:
        return u"text line, "_s
               + (command.spaces > 0 ? QString::number(command.spaces) + u" centring blanks, "_s
                                     : QString())
               + shown(command.content);
    case Kind::SectionOpened:
        return sectionName(command.section) + u" opened"_s;
    case Kind::SectionClosed:
        return sectionName(command.section) + u" closed"_s;
    case Kind::SaleRow:
        return u"sale row, department "_s + shown(command.department) + u", amount "_s
               + shown(command.amount) + u", quantity "_s + shown(command.quantity)
               + u", description "_s + shown(command.description);
    case Kind::Deduction:
        return u"deduction, amount "_s + shown(command.amount);
    case Kind::Unknown:
        break;
    }
    return u"unknown command, "_s + shown(command.content);
}

} // namespace

QString sectionName(Section section) { return namesOf(section).name; }

QString kindName(Kind kind) { return namesOf(kind).name; }

QString listed(const Command &command)
{
    const Digits offset(command.offset);
    const Digits line(command.line);
    return offset.before(8) + offset.text() + u' ' + line.before(6) + line.text() + "  "_L1
           + meaning(command);
}

QByteArray jsonOf(const Command &command)
{
    // There may be millions of commands: the toolkit's objects would take ten times as long.
    constexpr qsizetype usual = 160;
    QByteArray object;
    object.reserve(usual);
    object.append("{\"command\":\"").append(namesOf(command.kind).key);
    object.append("\",\"offset\":").append(Digits(command.offset).bytes());
    object.append(",\"line\":").append(Digits(command.line).bytes());
    bool readable = true;
    const auto text = [&](QByteArrayView key, const QByteArray &bytes) {
        readable = readable && isReadable(bytes, *command.codePage);
        object.append(",\"").append(key).append("\":");
        object.append(shared::jsonText(command.codePage->decode(bytes)));
    };
    switch (command.kind) {
    case Kind::Line:
        object.append(",\"spaces\":").append(Digits(command.spaces).bytes());
        text("text", command.content);
        break;
    case Kind::SectionOpened:
    case Kind::SectionClosed:
        object.append(",\"section\":\"").append(namesOf(command.section).key).append('"');
        break;
    case Kind::SaleRow:
        text("department", command.department);
        text("amount", command.amount);
        text("quantity", command.quantity);
        text("description", command.description);
        break;
    case Kind::Deduction:
        text("amount", command.amount);
        break;
    case Kind::Unknown:
        object.append(",\"badByte\":").append(Digits(command.badByte).bytes());
        break;
    }
    if (command.kind == Kind::Unknown || !readable)
        object.append(",\"bytes\":\"").append(encode(command).toHex()).append('"');
    return object;
}

QJsonObject toJson(const Finding &finding)
{
    const CodeInfo &info = infoOf(finding.code);
    QJsonObject object{
        {u"code"_s, info.name},        {u"level"_s, shared::levelName(info.level)},
        {u"offset"_s, finding.offset}, {u"line"_s, finding.line},
        {u"text"_s, finding.text},
    };
    if (finding.row > 0)
        object.insert(u"row"_s, finding.row);
    return object;
}

QJsonObject toJson(const Sum &sum)
{
    return {
        {u"sum"_s, sum.amount.toString()},
        {u"offset"_s, sum.offset},
        {u"line"_s, sum.line},
        {u"counted"_s, sum.counted},
        {u"uncounted"_s, sum.uncounted},
        {u"closed"_s, sum.closed},
    };
}

QString lineOf(const QString &file, bool isJob, const Finding &finding)
{
    QString place = u"byte "_s + QString::number(finding.offset);
    if (!isJob)
        place = QString::number(finding.line) + u": "_s + place;
    else if (finding.row > 0)
        place = u"line "_s + QString::number(finding.row) + u" of the paper"_s;
    else
        place += u" of its stream"_s;
    return shared::inOneLine(file) + (isJob ? u": "_s : u":"_s) + place + u": "_s
           + shared::toldFinding(infoOf(finding.code), finding.text);
}

} // namespace korvel::preview
