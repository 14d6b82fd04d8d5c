// The settings: the keys of a document's group, and those of the group "language".
#pragma once

#include "vocabulary/documents.h"

#include <QStringBuilder>

namespace korvel::vocabulary {

/// How the text of a setting is read.
enum class Kind {
    Number, // a whole number; anything else counts as 0
    Switch, // on when it is exactly `on`
    Text,
};

inline constexpr auto on = "true"_L1;

struct Setting
{
    QLatin1StringView key; // in its group
    Kind kind;
    QLatin1StringView unit;
    Documents documents; // that read it and print by it; none when nothing depends on it
    const char *meaning; // in ASCII; catalogues have it in the context "vocabulary"
};

/// The settings of the group "language", which are not a document's.
struct LanguageSetting
{
    QLatin1StringView key;
    QLatin1StringView unit;
    const char *meaning; // as of a Setting
};

/// What a setting is looked up by, such as "korvel.language.file". Without a key it is what all of
/// the group have in common, the point included.
inline QString pathOf(QLatin1StringView group, QLatin1StringView key = {})
{
    return group::korvel % u'.' % group % u'.' % key;
}

namespace key {

inline constexpr auto quantityFieldWidth = "quantityFieldWidth"_L1;
inline constexpr auto priceFieldWidth = "priceFieldWidth"_L1;
inline constexpr auto totalPriceFieldWidth = "totalPriceFieldWidth"_L1;
inline constexpr auto paperWidth = "paperWidth"_L1;
inline constexpr auto paperRows = "paperRows"_L1;
inline constexpr auto style = "style"_L1;
inline constexpr auto topMargin = "topMargin"_L1;
inline constexpr auto descriptionWidth = "descriptionWidth"_L1;
inline constexpr auto printGeometry = "printGeometry"_L1;
inline constexpr auto printHeader = "printHeader"_L1;
inline constexpr auto printLogo = "printLogo"_L1;
inline constexpr auto printCompany = "printCompany"_L1;
inline constexpr auto printDeliveryAddress = "printDeliveryAddress"_L1;
inline constexpr auto printBillingAddress = "printBillingAddress"_L1;
inline constexpr auto printTelephone = "printTelephone"_L1;
inline constexpr auto printDate = "printDate"_L1;
inline constexpr auto printTime = "printTime"_L1;
inline constexpr auto printTable = "printTable"_L1;
inline constexpr auto printCustomer = "printCustomer"_L1;
inline constexpr auto printLicenseNumber = "printLicenseNumber"_L1;
inline constexpr auto printFiscalCode = "printFiscalCode"_L1;
inline constexpr auto printCredit = "printCredit"_L1;
inline constexpr auto printWaiter = "printWaiter"_L1;
inline constexpr auto printNote = "printNote"_L1;
inline constexpr auto openCashDrawer = "openCashDrawer"_L1;

inline constexpr Documents items = quantitiesOnly | itemised | summaries | SoldItems;
inline constexpr Documents prices = itemised | summaries | SoldItems;

// In the order of the reference pages.
// clang-format off
inline constexpr Setting rows[] = {
    {quantityFieldWidth,   Kind::Number, "characters"_L1, items,
     QT_TRANSLATE_NOOP("vocabulary", "width of the quantity column")},
    {priceFieldWidth,      Kind::Number, "characters"_L1, prices | Statement,
     QT_TRANSLATE_NOOP("vocabulary",
                       "width of the unit price column; in a statement, of the amount")},
    {totalPriceFieldWidth, Kind::Number, "characters"_L1, prices,
     QT_TRANSLATE_NOOP("vocabulary", "width of the last column, the amount")},
    {paperWidth,           Kind::Number, "characters"_L1, shared,
     QT_TRANSLATE_NOOP("vocabulary",
                       "width of a line and of a separator. 0 is the printer's width. Centring "
                       "always goes by the printer's 32")},
    {paperRows,            Kind::Number, "rows"_L1,       0,
     QT_TRANSLATE_NOOP("vocabulary", "nothing depends on it")},
    {style,                Kind::Text,   "text"_L1,       0,
     QT_TRANSLATE_NOOP("vocabulary", "read and discarded")},
    {topMargin,            Kind::Number, "lines"_L1,      shared,
     QT_TRANSLATE_NOOP("vocabulary",
                       "empty lines of the top margin; none when negative, 65536 at most")},
    {descriptionWidth,     Kind::Number, "characters"_L1, FiscalReceipt,
     QT_TRANSLATE_NOOP("vocabulary",
                       "characters of an item's name that are sent. 0 is the printer's width; "
                       "a negative number leaves the name whole. The summary fiscal receipt "
                       "never cuts")},
    {printGeometry,        Kind::Switch, "switch"_L1,     shared,
     QT_TRANSLATE_NOOP("vocabulary", "the top margin")},
    {printHeader,          Kind::Switch, "switch"_L1,     shared,
     QT_TRANSLATE_NOOP("vocabulary",
                       "the header lines. The printer's name after them has no switch")},
    {printLogo,            Kind::Switch, "switch"_L1,     0,
     QT_TRANSLATE_NOOP("vocabulary", "nothing: kept for printers with a logo")},
    {printCompany,         Kind::Switch, "switch"_L1,     shared,
     QT_TRANSLATE_NOOP("vocabulary", "the company")},
    {printDeliveryAddress, Kind::Switch, "switch"_L1,     withCustomer,
     QT_TRANSLATE_NOOP("vocabulary", "the customer's delivery address")},
    {printBillingAddress,  Kind::Switch, "switch"_L1,     withCustomer,
     QT_TRANSLATE_NOOP("vocabulary", "the customer's billing address")},
    {printTelephone,       Kind::Switch, "switch"_L1,     withCustomer,
     QT_TRANSLATE_NOOP("vocabulary", "the customer's telephone")},
    {printDate,            Kind::Switch, "switch"_L1,     shared,
     QT_TRANSLATE_NOOP("vocabulary", "the date of the order information")},
    {printTime,            Kind::Switch, "switch"_L1,     shared,
     QT_TRANSLATE_NOOP("vocabulary", "the time of the order information")},
    {printTable,           Kind::Switch, "switch"_L1,     shared,
     QT_TRANSLATE_NOOP("vocabulary", "the table of the order information")},
    {printCustomer,        Kind::Switch, "switch"_L1,     withCustomer,
     QT_TRANSLATE_NOOP("vocabulary",
                       "the whole customer block; the customer's other switches count only "
                       "when it is on")},
    {printLicenseNumber,   Kind::Switch, "switch"_L1,     withCustomer,
     QT_TRANSLATE_NOOP("vocabulary", "the customer's license number")},
    {printFiscalCode,      Kind::Switch, "switch"_L1,     withCustomer,
     QT_TRANSLATE_NOOP("vocabulary", "the customer's fiscal code")},
    {printCredit,          Kind::Switch, "switch"_L1,     shared,
     QT_TRANSLATE_NOOP("vocabulary", "the credit of the order information")},
    {printWaiter,          Kind::Switch, "switch"_L1,     shared,
     QT_TRANSLATE_NOOP("vocabulary", "the waiter of the order information")},
    {printNote,            Kind::Switch, "switch"_L1,     shared,
     QT_TRANSLATE_NOOP("vocabulary", "the note of the order information")},
    {openCashDrawer,       Kind::Switch, "switch"_L1,     0,
     QT_TRANSLATE_NOOP("vocabulary", "nothing: kept for printers with a drawer")},
};
// clang-format on

} // namespace key

namespace language {

inline constexpr auto basedir = "basedir"_L1;
inline constexpr auto file = "file"_L1;

// clang-format off
inline constexpr LanguageSetting rows[] = {
    {basedir, "path"_L1, QT_TRANSLATE_NOOP("vocabulary", "the folder of the catalogues")},
    {file,    "text"_L1,
     QT_TRANSLATE_NOOP("vocabulary",
                       "which catalogue: its name is put right behind the folder, and begins "
                       "with `/`")},
};
// clang-format on

} // namespace language

} // namespace korvel::vocabulary
