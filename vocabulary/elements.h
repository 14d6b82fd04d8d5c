// The elements of jobs. "receipe", "prefiscalssummary" and the like are how jobs spell them.
#pragma once

#include "vocabulary/documents.h"
#include "vocabulary/settings.h"

namespace korvel::vocabulary {

/// An element as some documents know it. Others have a row of their own or ignore it.
struct Element
{
    QLatin1StringView name;
    Documents documents;
    QLatin1StringView setting; // that switches it on; empty when nothing does
    bool anyAttribute;         // prints attributes of any name, in the order of the job
    bool prints;               // puts anything on the paper of this printer
    QLatin1StringView meaning; // to people
};

namespace element {

inline constexpr auto root = "printjob"_L1; // of the pages and the samples: any name will do
inline constexpr auto method = "method"_L1; // which comes before all others
inline constexpr auto printers = "printers"_L1;
inline constexpr auto geometry = "geometry"_L1;
inline constexpr auto headers = "headers"_L1;
inline constexpr auto logo = "logo"_L1;
inline constexpr auto company = "company"_L1;
inline constexpr auto receipt = "receipt"_L1;
inline constexpr auto invoice = "invoice"_L1;
inline constexpr auto delivery = "delivery"_L1;
inline constexpr auto orderinfo = "orderinfo"_L1;
inline constexpr auto customer = "customer"_L1;
inline constexpr auto receipe = "receipe"_L1;
inline constexpr auto otherreceipe = "otherreceipe"_L1;
inline constexpr auto variant = "variant"_L1;
inline constexpr auto receipe_type = "receipe_type"_L1;
inline constexpr auto total = "total"_L1;
inline constexpr auto notPaid = "notPaid"_L1;
inline constexpr auto totals = "totals"_L1;
inline constexpr auto date = "date"_L1;
inline constexpr auto prefiscalssummary = "prefiscalssummary"_L1;
inline constexpr auto receiptssummary = "receiptssummary"_L1;
inline constexpr auto taxrate_item = "taxrate_item"_L1;
inline constexpr auto invoicessummary = "invoicessummary"_L1;
inline constexpr auto cancelledsummary = "cancelledsummary"_L1;
inline constexpr auto statement_list = "statement_list"_L1;
inline constexpr auto statement = "statement"_L1;

// In the order of the reference pages.
// clang-format off
inline constexpr Element rows[] = {
    {printers,  shared,       {},                 false, false,
     "nothing; the name is kept for `headers`, the rest for printers that have a use for it"_L1},
    {geometry,  shared,       key::printGeometry, false, true,
     "as many empty lines as `topMargin` says"_L1},
    {headers,   shared,       key::printHeader,   true,  true,
     "a line for each attribute's value, in the order of the job; a separator"_L1},
    {logo,      shared,       {},                 false, false,
     "nothing: this printer has no logo"_L1},
    {company,   shared,       key::printCompany,  true,  true,
     "a centred line for each attribute's value, in the order of the job; a separator"_L1},
    {receipt,   shared,       {},                 false, true,
     "` Serial Number: ` and the number; a separator"_L1},
    {invoice,   shared,       {},                 false, true,
     "` Invoice Number: ` and the number; a separator"_L1},
    {delivery,  shared,       {},                 false, true,
     "` Delivery Number: ` and the number; a separator"_L1},
    {orderinfo, shared,       {},                 false, true,
     "the lines that are switched on; a separator in any case"_L1},
    {customer,  withCustomer, key::printCustomer, false, true,
     "the customer block"_L1},

    {receipe,      quantitiesOnly,       {}, false, true,
     "an item: quantity and name"_L1},
    {receipe,      FullOrder,            {}, false, true,
     "an item: quantity, name, unit price, amount. An item whose name begins with `=` is "
     "left out"_L1},
    {receipe,      Receipt,              {}, false, true,
     "an item: quantity, `x`, name, unit price, amount; the first one brings the titles"_L1},
    {receipe,      Invoice,              {}, false, true,
     "an item: quantity, name, unit price, amount; the first one brings the titles"_L1},
    {receipe,      FiscalReceipt,        {}, false, true,
     "a sale row; the name is cut to the setting `descriptionWidth`. For a negative price a "
     "deduction, which carries the amount alone"_L1},
    {receipe,      SoldItems,            {}, false, true,
     "quantity, `x`, description, amount"_L1},
    {otherreceipe, KitchenOrder,         {}, false, true,
     "an item in the other size; this printer has one size, so it looks alike"_L1},
    {otherreceipe, DeliveryNote,         {}, false, true,
     "an item in the other size"_L1},
    {variant,      quantitiesOnly,       {}, false, true,
     "quantity, mark and name"_L1},
    {variant,      FullOrder,            {}, false, true,
     "quantity, mark and name, unit price, amount"_L1},
    {receipe_type, summaries,            {}, false, true,
     "a kind of item: quantity, `x`, name, amount; the first one brings the titles"_L1},
    {receipe_type, SummaryFiscalReceipt, {}, false, true,
     "a sale row of quantity 1, whatever the line's own quantity; the name is not cut. For a "
     "negative price a deduction"_L1},
    {total,        FullOrder | receipts, {}, false, true,
     "an empty line, then the total"_L1},
    {total,        fiscal,               {}, false, false,
     "nothing: the end of the section closes the receipt"_L1},
    {notPaid,      Receipt,              {}, false, true,
     "an empty line, then `    Amount not paid: ` and the amount"_L1},
    {notPaid,      SummaryReceipt,       {}, false, true,
     "an empty line, then `   Corrispettivo non pagato: ` and the amount, in Italian "
     "whatever the translation"_L1},
    {totals,       Invoice,              {}, false, true,
     "an empty line, then the tax block: four lines"_L1},
    {totals,       SummaryInvoice,       {}, false, true,
     "an empty line, then the tax block"_L1},

    {date,              PeriodReport, {}, false, true,
     "the report's title and its period"_L1},
    {prefiscalssummary, PeriodReport, {}, false, true,
     "title, count and total of the pre-fiscal documents"_L1},
    {receiptssummary,   PeriodReport, {}, false, true,
     "title, count, serial numbers, what was paid and how, total; a separator and the titles "
     "of the tax-rate table"_L1},
    {taxrate_item,      PeriodReport, {}, false, true,
     "a row of that table"_L1},
    {invoicessummary,   PeriodReport, {}, false, true,
     "a separator, title, count, serial numbers, taxable amount, tax, total"_L1},
    {cancelledsummary,  PeriodReport, {}, true,  true,
     "title, count, total; a row for each document: serial number, total, tax rate"_L1},
    {statement_list,    Statement,    {}, false, true,
     "the column titles, each time it occurs"_L1},
    {statement,         Statement,    {}, false, true,
     "a movement: date, type, amount"_L1},
};
// clang-format on

} // namespace element

} // namespace korvel::vocabulary
