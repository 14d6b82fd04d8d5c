// What each command, finding and sum is called, to people and to programs.
#include "companions/preview/listing.h"

#include "companions/paper/text.h"

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

using Kind = Command::Kind;

struct KindNames
{
    Kind kind;
    QLatin1StringView name;
    QLatin1StringView key; // in JSON
};

constexpr KindNames kinds[] = {
    {Kind::Line, "text line"_L1, "line"_L1},
    {Kind::SectionOpened, "section opening"_L1, "section-opened"_L1},
    {Kind::SectionClosed, "section closing"_L1, "section-closed"_L1},
    {Kind::SaleRow, "sale row"_L1, "sale-row"_L1},
    {Kind::Deduction, "deduction"_L1, "deduction"_L1},
    {Kind::Unknown, "unknown command"_L1, "unknown"_L1},
};

struct SectionNames
{
    Section section;
    QLatin1StringView name;
    QLatin1StringView key; // in JSON
};

constexpr SectionNames sections[] = {
    {Section::Fiscal, "fiscal section"_L1, "fiscal"_L1},
    {Section::Receipt, "receipt section"_L1, "receipt"_L1},
    {Section::Document, "document section"_L1, "document"_L1},
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

QString meaning(const Command &command)
{
    const auto quoted = [&](const QByteArray &text) {
        return QString(u'"' + escaped(text, *command.codePage) + u'"');
    };
    switch (command.kind) {
    case Kind::Line:
        return u"text line, "_s
               + (command.spaces > 0 ? QString::number(command.spaces) + u" centring blanks, "_s
                                     : QString())
               + quoted(command.content);
    case Kind::SectionOpened:
        return sectionName(command.section) + u" opened"_s;
    case Kind::SectionClosed:
        return sectionName(command.section) + u" closed"_s;
    case Kind::SaleRow:
        return u"sale row, department "_s + quoted(command.department) + u", amount "_s
               + quoted(command.amount) + u", quantity "_s + quoted(command.quantity)
               + u", description "_s + quoted(command.description);
    case Kind::Deduction:
        return u"deduction, amount "_s + quoted(command.amount);
    case Kind::Unknown:
        break;
    }
    return u"unknown command, "_s + quoted(command.content);
}

} // namespace

QString sectionName(Section section) { return namesOf(section).name; }

QString kindName(Kind kind) { return namesOf(kind).name; }

QString listed(const Command &command)
{
    return QString::number(command.offset).rightJustified(8) + u' '
           + QString::number(command.line).rightJustified(6) + u"  "_s + meaning(command);
}

QJsonObject toJson(const Command &command)
{
    QJsonObject object{
        {u"command"_s, namesOf(command.kind).key},
        {u"offset"_s, command.offset},
        {u"line"_s, command.line},
    };
    const auto text = [&](const QString &key, const QByteArray &bytes) {
        object.insert(key, decoded(bytes, *command.codePage));
    };
    switch (command.kind) {
    case Kind::Line:
        object.insert(u"spaces"_s, command.spaces);
        text(u"text"_s, command.content);
        break;
    case Kind::SectionOpened:
    case Kind::SectionClosed:
        object.insert(u"section"_s, namesOf(command.section).key);
        break;
    case Kind::SaleRow:
        text(u"department"_s, command.department);
        text(u"amount"_s, command.amount);
        text(u"quantity"_s, command.quantity);
        text(u"description"_s, command.description);
        break;
    case Kind::Deduction:
        text(u"amount"_s, command.amount);
        break;
    case Kind::Unknown:
        object.insert(u"badByte"_s, command.badByte);
        break;
    }
    const QByteArray bytes = encode(command);
    if (command.kind == Kind::Unknown || !isReadable(bytes, *command.codePage))
        object.insert(u"bytes"_s, QString::fromLatin1(bytes.toHex()));
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
