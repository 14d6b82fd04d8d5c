// Lists: sold items, and a customer's statement of account.
#include "printer/printerdriver.h"

#include "vocabulary/attributes.h"
#include "vocabulary/columns.h"

using namespace Qt::Literals::StringLiterals;

namespace attribute = korvel::vocabulary::attribute;
namespace element = korvel::vocabulary::element;
namespace style = korvel::vocabulary::style;

namespace {

// The movement types that statements carry, for the catalogues.
[[maybe_unused]] constexpr const char *movementTypes[] = {
    QT_TRANSLATE_NOOP("PrinterDriver", "payment"),
    QT_TRANSLATE_NOOP("PrinterDriver", "invoice"),
    QT_TRANSLATE_NOOP("PrinterDriver", "receipt"),
    QT_TRANSLATE_NOOP("PrinterDriver", "credit note"),
    QT_TRANSLATE_NOOP("PrinterDriver", "deposit"),
    QT_TRANSLATE_NOOP("PrinterDriver", "refund"),
};

/// A movement type as the catalogue has it; unchanged when it has not.
QString translatedType(const QString &type)
{
    const QByteArray key = type.toUtf8();
    // A type with a null character, say, cannot be a key.
    if (QString::fromUtf8(key.constData()) != type)
        return type;
    return PrinterDriver::tr(key.constData());
}

} // namespace

void PrinterDriver::printSold(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == element::receipe) {
        setBold();
        println(descriptionRow(value(attribute::quantity), value(attribute::description), {},
                               value(attribute::amount), u'.', style::qxdpt));
        setCharSize();
    }
}

void PrinterDriver::printStatementOfAccount(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == element::statement_list) {
        setBold();
        // Where other documents have a description, a statement has room for a short word alone.
        println(descriptionRow(tr("Date"), tr("Description", "of a movement, in 6 characters"),
                               tr("Amount"), {}, u' ', style::dateAmountType));
        reset(); // where other documents set the character size
    } else if (qName == element::statement) {
        println(descriptionRow(value(attribute::date) + ": "_L1,
                               translatedType(value(attribute::type)), value(attribute::amount), {},
                               u'.', style::dateAmountType));
    }
}
