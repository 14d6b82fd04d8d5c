// Rows that are sent to the printer to be registered: sales and deductions.
#include "companions/check/context.h"
#include "companions/check/words.h"
#include "vocabulary/numbers.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Attribute;
using vocabulary::Value;

/// A number of the job that the printer or the renderer reads: a sign, digits, a point or comma.
QRegularExpressionMatch plainNumber(const QString &value)
{
    static const QRegularExpression number(
        u"^\\s*+([+-]?+)0*+([0-9]*+)(?:[.,]((?:0*+[1-9])*+)0*+)?+\\s*+$"_s);
    const auto match = number.match(value);
    const bool hasDigit =
        std::any_of(value.begin(), value.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return hasDigit ? match : QRegularExpressionMatch();
}

/// A price as the renderer reads it.
std::optional<double> registeredPrice(QString value)
{
    return vocabulary::numberIn(value.replace(u',', u'.'));
}

void checkPrice(Context &context, const JobAttribute &attribute)
{
    const auto note = [&](Code code, const auto &...words) {
        context.note(attribute.place, code, attribute.name, quoted(attribute.value), words...);
    };
    const auto number = plainNumber(attribute.value);
    if (!registeredPrice(attribute.value))
        note(Code::FiscalAmount, phrase::noNumber);
    else if (!number.hasMatch())
        note(Code::FiscalAmount, phrase::noPlainNumber);
    else if (number.captured(2).size() > 13)
        note(Code::FiscalAmount, phrase::tooManyDigits);
    else if (number.captured(3).size() > 2)
        note(Code::FiscalHundredths);
}

/// A quantity that is sold.
bool isAboveZero(const QString &value)
{
    const auto number = plainNumber(value);
    return number.hasMatch() && number.captured(1) != "-"_L1
           && !(number.captured(2).isEmpty() && number.captured(3).isEmpty());
}

bool isDepartment(const QString &value)
{
    const bool digits =
        std::all_of(value.begin(), value.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return digits && std::any_of(value.begin(), value.end(), [](QChar c) { return c != u'0'; });
}

/// A character that ends or splits the printer's command, as findings call it; empty for none.
/// A description may have a slash.
QString endOfCommand(const JobAttribute &attribute)
{
    if (attribute.lineBreak)
        return phrase::lineBreak;
    if (attribute.value.contains(u')'))
        return phrase::parenthesis;
    if (attribute.name != vocabulary::attribute::name && attribute.value.contains(u'/'))
        return phrase::slash;
    return {};
}

} // namespace

bool isRegistered(const Attribute &row)
{
    return row.value == Value::RegisteredText || row.value == Value::RegisteredCount
           || row.value == Value::RegisteredPrice;
}

bool isDeduction(const Tag &tag, const QList<Attribute> &known)
{
    return std::any_of(known.begin(), known.end(), [&](const Attribute &row) {
        const JobAttribute *price =
            row.value == Value::RegisteredPrice ? tag.find(row.name) : nullptr;
        return price && isDeduction(price->value);
    });
}

bool isDeduction(const QString &price) { return registeredPrice(price).value_or(0) < 0; }

void noteIncomplete(Context &context, const Tag &tag, const QStringList &lacking)
{
    if (!lacking.isEmpty())
        context.note(tag.place, Code::FiscalIncomplete, quoted(lacking),
                     lacking.constLast() == vocabulary::attribute::price ? phrase::zeroRegistered
                                                                         : phrase::maybeRefused);
}

void checkRegistered(Context &context, Value kind, const JobAttribute &attribute)
{
    if (attribute.value.isEmpty())
        return;
    if (kind == Value::RegisteredPrice) {
        checkPrice(context, attribute);
        return;
    }
    const QString value = quoted(attribute.value);
    const auto character = endOfCommand(attribute);
    if (!character.isEmpty())
        context.note(attribute.place, Code::EndsCommand, attribute.name, value, character);
    checkCharacters(context, attribute, filled(phrase::saleRowHas, attribute.name, value));
    if (!character.isEmpty() || hasControl(attribute))
        return; // that is why it is no number
    if (kind == Value::RegisteredCount && !isAboveZero(attribute.value))
        context.note(attribute.place, Code::FiscalQuantity, attribute.name, value);
    if (attribute.name == vocabulary::attribute::department && !isDepartment(attribute.value))
        context.note(attribute.place, Code::FiscalDepartment, attribute.name, value);
}

} // namespace korvel::check
