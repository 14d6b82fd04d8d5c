// Lists: sold items, and a customer's statement of account.
#include "printer/printerdriver.h"

using namespace Qt::Literals::StringLiterals;

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

    if (qName == "receipe"_L1) {
        setBold();
        println(descriptionRow(value("quantity"_L1), value("description"_L1), {},
                               value("amount"_L1), u'.', u"qxdpt"_s));
        setCharSize();
    }
}

void PrinterDriver::printStatementOfAccount(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == "statement_list"_L1) {
        setBold();
        println(descriptionRow(tr("Date"), tr("Description"), tr("Amount"), {}, u' ',
                               u"date-amount-type"_s));
        reset(); // where other documents set the character size
    } else if (qName == "statement"_L1) {
        println(descriptionRow(value("date"_L1) + ": "_L1, translatedType(value("type"_L1)),
                               value("amount"_L1), {}, u'.', u"date-amount-type"_s));
    }
}
