// The names of the settings and their order in the form.
#include "companions/settings/fields.h"

#include <QCoreApplication>

namespace korvel::settings::fields {

using namespace Qt::Literals::StringLiterals;

namespace {

namespace key = vocabulary::key;
namespace language = vocabulary::language;

// clang-format off
constexpr Field rows[] = {
    {key::paperWidth,           Section::Columns, QT_TRANSLATE_NOOP("fields", "paper width")},
    {key::quantityFieldWidth,   Section::Columns, QT_TRANSLATE_NOOP("fields", "quantity column")},
    {key::priceFieldWidth,      Section::Columns, QT_TRANSLATE_NOOP("fields", "price column")},
    {key::totalPriceFieldWidth, Section::Columns, QT_TRANSLATE_NOOP("fields", "amount column")},
    {key::descriptionWidth,     Section::Columns, QT_TRANSLATE_NOOP("fields", "length of names")},

    {key::printGeometry, Section::Header, QT_TRANSLATE_NOOP("fields", "top margin")},
    {key::topMargin,     Section::Header, QT_TRANSLATE_NOOP("fields", "lines of the top margin")},
    {key::printHeader,   Section::Header, QT_TRANSLATE_NOOP("fields", "header lines")},
    {key::printCompany,  Section::Header, QT_TRANSLATE_NOOP("fields", "company")},

    {key::printDate,   Section::OrderInformation, QT_TRANSLATE_NOOP("fields", "date")},
    {key::printTime,   Section::OrderInformation, QT_TRANSLATE_NOOP("fields", "time")},
    {key::printTable,  Section::OrderInformation, QT_TRANSLATE_NOOP("fields", "table")},
    {key::printWaiter, Section::OrderInformation, QT_TRANSLATE_NOOP("fields", "waiter")},
    {key::printNote,   Section::OrderInformation, QT_TRANSLATE_NOOP("fields", "note")},
    {key::printCredit, Section::OrderInformation, QT_TRANSLATE_NOOP("fields", "credit")},

    {key::printCustomer,        Section::Customer, QT_TRANSLATE_NOOP("fields", "customer")},
    {key::printDeliveryAddress, Section::Customer, QT_TRANSLATE_NOOP("fields", "delivery address")},
    {key::printBillingAddress,  Section::Customer, QT_TRANSLATE_NOOP("fields", "billing address")},
    {key::printTelephone,       Section::Customer, QT_TRANSLATE_NOOP("fields", "telephone")},
    {key::printLicenseNumber,   Section::Customer, QT_TRANSLATE_NOOP("fields", "license number")},
    {key::printFiscalCode,      Section::Customer, QT_TRANSLATE_NOOP("fields", "fiscal code")},

    {language::file,    Section::Language, QT_TRANSLATE_NOOP("fields", "language of the labels")},
    {language::basedir, Section::Language, QT_TRANSLATE_NOOP("fields", "folder of the catalogues")},

    {key::paperRows,      Section::NoEffect, QT_TRANSLATE_NOOP("fields", "rows of a page")},
    {key::style,          Section::NoEffect, QT_TRANSLATE_NOOP("fields", "style")},
    {key::printLogo,      Section::NoEffect, QT_TRANSLATE_NOOP("fields", "logo")},
    {key::openCashDrawer, Section::NoEffect, QT_TRANSLATE_NOOP("fields", "cash drawer")},
};

// In the order of the sections.
constexpr const char *headings[] = {
    QT_TRANSLATE_NOOP("fields", "Columns"),
    QT_TRANSLATE_NOOP("fields", "Top of the paper"),
    QT_TRANSLATE_NOOP("fields", "Order information"),
    QT_TRANSLATE_NOOP("fields", "Customer"),
    QT_TRANSLATE_NOOP("fields", "Language of the labels"),
    QT_TRANSLATE_NOOP("fields", "Read, without effect on the paper"),
};
// clang-format on

} // namespace

vocabulary::Rows<Field> all() { return vocabulary::Rows(rows); }

const Field *find(QAnyStringView key)
{
    for (const Field &field : rows) {
        if (QAnyStringView(field.key) == key)
            return &field;
    }
    return nullptr;
}

QString nameOf(const QString &key)
{
    const Field *field = find(key);
    return field ? QCoreApplication::translate("fields", field->name) : key;
}

QString titleOf(const QString &key) { return find(key) ? capitalised(nameOf(key)) : key; }

QString labelOf(const QStringList &path)
{
    const QString name = path.join(u'.');
    const bool isInForm = path.size() == 3 && path[0] == vocabulary::group::korvel
                          && vocabulary::isRead(path[1], path[2]);
    return isInForm ? titleOf(path[2]) + u" ("_s + name + u')' : name;
}

QString notSet() { return QCoreApplication::translate("fields", "not set"); }

QString emptyValue() { return QCoreApplication::translate("fields", "empty"); }

QString headingOf(Section section)
{
    return QCoreApplication::translate("fields", headings[static_cast<std::size_t>(section)]);
}

QString capitalised(QString text)
{
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

QStringList pathOf(QLatin1StringView group, QLatin1StringView key)
{
    return {vocabulary::group::korvel, group, key};
}

} // namespace korvel::settings::fields
