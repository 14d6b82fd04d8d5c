// The attributes of jobs' elements, and what their values are to the documents that read them.
#pragma once

#include "vocabulary/columns.h"
#include "vocabulary/elements.h"

namespace korvel::vocabulary {

/// What an attribute's value is to the document that reads it.
enum class Value {
    Text,            // printed as it is
    Amount,          // printed as it is; people read it as an amount of money
    RegisteredPrice, // read as a number and sent in hundredths, to be registered
    RegisteredText,  // sent to be registered
    RegisteredCount, // likewise, a quantity
    VariantQuantity, // read as a number, printed as a sign
    Address,         // printed in lines, parted at commas
    Kept,            // read, not printed by this printer
    Unread,          // not read, though jobs often carry it
};

/// An attribute of an element, in some of the documents that know the element.
struct Attribute
{
    QLatin1StringView element;
    Documents documents;
    QLatin1StringView name;
    Value value;
    QLatin1StringView setting = {}; // that switches it on, beside the element's, if anything does
    Column column = NoColumn;       // of a row, if it stands in one as a figure
    QLatin1StringView meaning = {}; // to people
};

namespace meaning {

// What several attributes are.
inline constexpr auto quantity = "the quantity"_L1;
inline constexpr auto itemName = "the item's name, cut to its column"_L1;
inline constexpr auto sign =
    "1 for something added, -1 for something left out; another number as it is"_L1;
inline constexpr auto variantName = "the variant's name, cut to its column"_L1;
inline constexpr auto unitPrice = "the price of one piece"_L1;
inline constexpr auto lineAmount = "the amount of the line"_L1;
inline constexpr auto department = "the department that the sale is booked to"_L1;
inline constexpr auto taxable = "the taxable amount"_L1;
inline constexpr auto taxRate = "the tax rate"_L1;
inline constexpr auto tax = "the tax"_L1;
inline constexpr auto total = "the total"_L1;
inline constexpr auto sum = "their total"_L1;
inline constexpr auto firstNumber = "the number of the first one"_L1;
inline constexpr auto lastNumber = "the number of the last one"_L1;
inline constexpr auto notPaid = "the amount that is not paid"_L1;
inline constexpr auto network = "kept for printers in a network; not printed"_L1;

} // namespace meaning

namespace attribute {

inline constexpr auto name = "name"_L1;
inline constexpr auto charsize = "charsize"_L1;
inline constexpr auto ipaddress = "ipaddress"_L1;
inline constexpr auto port = "port"_L1;
inline constexpr auto serialnumber = "serialnumber"_L1;
inline constexpr auto date = "date"_L1;
inline constexpr auto time = "time"_L1;
inline constexpr auto table = "table"_L1;
inline constexpr auto waiter = "waiter"_L1;
inline constexpr auto note = "note"_L1;
inline constexpr auto credit = "credit"_L1;
inline constexpr auto billingaddress = "billingaddress"_L1;
inline constexpr auto deliveryaddress = "deliveryaddress"_L1;
inline constexpr auto telephone = "telephone"_L1;
inline constexpr auto licensenumber = "licensenumber"_L1;
inline constexpr auto fiscalcode = "fiscalcode"_L1;
inline constexpr auto number = "number"_L1;
inline constexpr auto price = "price"_L1;
inline constexpr auto totalPrice = "totalPrice"_L1;
inline constexpr auto department = "department"_L1;
inline constexpr auto quantity = "quantity"_L1;
inline constexpr auto description = "description"_L1;
inline constexpr auto amount = "amount"_L1;
inline constexpr auto taxable = "taxable"_L1;
inline constexpr auto taxrate = "taxrate"_L1;
inline constexpr auto tax = "tax"_L1;
inline constexpr auto total = "total"_L1;
inline constexpr auto begindate = "begindate"_L1;
inline constexpr auto enddate = "enddate"_L1;
inline constexpr auto firstserial = "firstserial"_L1;
inline constexpr auto lastserial = "lastserial"_L1;
inline constexpr auto notPaid = "notPaid"_L1;
inline constexpr auto cash = "cash"_L1;
inline constexpr auto creditCard = "creditCard"_L1;
inline constexpr auto bancomat = "bancomat"_L1;
inline constexpr auto other = "other"_L1;
inline constexpr auto totals = "totals"_L1;
inline constexpr auto type = "type"_L1;

// In the order of the reference pages.
// clang-format off
inline constexpr Attribute rows[] = {
    {element::printers,  shared, name,         Value::Text, {}, {},
     "the printer's name, which `headers` prints"_L1},
    {element::printers,  shared, charsize,     Value::Kept, {}, {},
     "kept for printers that have several sizes; not printed"_L1},
    {element::printers,  shared, ipaddress,    Value::Kept, {}, {},
     meaning::network},
    {element::printers,  shared, port,         Value::Kept, {}, {},
     meaning::network},
    {element::receipt,   shared, serialnumber, Value::Text, {}, {},
     "the number of the receipt"_L1},
    {element::invoice,   shared, serialnumber, Value::Text, {}, {},
     "the number of the invoice"_L1},
    {element::delivery,  shared, serialnumber, Value::Text, {}, {},
     "the number of the delivery note"_L1},
    {element::orderinfo, shared, date,         Value::Text,
     key::printDate, {}, "` Date: ` and the value"_L1},
    {element::orderinfo, shared, time,         Value::Text,
     key::printTime, {}, "` Time: ` and the value"_L1},
    {element::orderinfo, shared, table,        Value::Text,
     key::printTable, {}, "` Table: ` and the value"_L1},
    {element::orderinfo, shared, waiter,       Value::Text,
     key::printWaiter, {}, "` Waiter: ` and the value"_L1},
    {element::orderinfo, shared, note,         Value::Text,
     key::printNote, {}, "` Note: ` and the value"_L1},
    {element::orderinfo, shared, credit,       Value::Amount,
     key::printCredit, {}, "` Credit: ` and the value"_L1},

    {element::customer, withCustomer, name,            Value::Text,
     {}, {}, "the line `CUSTOMER`, then the name"_L1},
    {element::customer, withCustomer, billingaddress,  Value::Address,
     key::printBillingAddress, {}, "a line for each part of the address"_L1},
    {element::customer, withCustomer, deliveryaddress, Value::Address,
     key::printDeliveryAddress, {}, "a line for each part of the address"_L1},
    {element::customer, withCustomer, telephone,       Value::Text,
     key::printTelephone, {}, "` Telephone: ` and the value"_L1},
    {element::customer, withCustomer, licensenumber,   Value::Text,
     key::printLicenseNumber, {}, "` License Number: ` and the value"_L1},
    {element::customer, withCustomer, fiscalcode,      Value::Text,
     key::printFiscalCode, {}, "` Fiscal Code: ` and the value"_L1},

    {element::receipe, quantitiesOnly, number,      Value::Text,            {}, Quantity,
     meaning::quantity},
    {element::receipe, quantitiesOnly, name,        Value::Text,            {}, {},
     meaning::itemName},
    {element::receipe, itemised,       number,      Value::Text,            {}, Quantity,
     meaning::quantity},
    {element::receipe, itemised,       name,        Value::Text,            {}, {},
     meaning::itemName},
    {element::receipe, itemised,       price,       Value::Amount,          {}, Price,
     meaning::unitPrice},
    {element::receipe, itemised,       totalPrice,  Value::Amount,          {}, Total,
     meaning::lineAmount},
    {element::receipe, FiscalReceipt,  department,  Value::RegisteredText,  {}, {},
     meaning::department},
    {element::receipe, FiscalReceipt,  number,      Value::RegisteredCount, {}, {},
     "the quantity, which is registered"_L1},
    {element::receipe, FiscalReceipt,  name,        Value::RegisteredText,  {}, {},
     "the item's name, which is registered"_L1},
    {element::receipe, FiscalReceipt,  price,       Value::RegisteredPrice, {}, {},
     "the price of one piece, which is registered; below 0 it is a deduction"_L1},
    {element::receipe, SoldItems,      quantity,    Value::Text,            {}, Quantity,
     meaning::quantity},
    {element::receipe, SoldItems,      description, Value::Text,            {}, {},
     meaning::itemName},
    {element::receipe, SoldItems,      amount,      Value::Amount,          {}, Total,
     meaning::lineAmount},

    {element::otherreceipe, quantitiesOnly, number,     Value::Text,            {}, Quantity,
     meaning::quantity},
    {element::otherreceipe, quantitiesOnly, name,       Value::Text,            {}, {},
     meaning::itemName},
    {element::variant,      quantitiesOnly, number,     Value::Text,            {}, Quantity,
     meaning::quantity},
    {element::variant,      quantitiesOnly, quantity,   Value::VariantQuantity, {}, {},
     meaning::sign},
    {element::variant,      quantitiesOnly, name,       Value::Text,            {}, {},
     meaning::variantName},
    {element::variant,      FullOrder,      number,     Value::Text,            {}, Quantity,
     meaning::quantity},
    {element::variant,      FullOrder,      quantity,   Value::VariantQuantity, {}, {},
     meaning::sign},
    {element::variant,      FullOrder,      name,       Value::Text,            {}, {},
     meaning::variantName},
    {element::variant,      FullOrder,      price,      Value::Amount,          {}, Price,
     meaning::unitPrice},
    {element::variant,      FullOrder,      totalPrice, Value::Amount,          {}, Total,
     meaning::lineAmount},

    {element::receipe_type, summaries,            number,     Value::Text,            {}, Quantity,
     meaning::quantity},
    {element::receipe_type, summaries,            name,       Value::Text,            {}, {},
     "the name of the kind, cut to its column"_L1},
    {element::receipe_type, summaries,            price,      Value::Amount,          {}, Total,
     meaning::lineAmount},
    {element::receipe_type, SummaryFiscalReceipt, department, Value::RegisteredText,  {}, {},
     meaning::department},
    {element::receipe_type, SummaryFiscalReceipt, number,     Value::Unread,          {}, {},
     "not read: 1 is registered"_L1},
    {element::receipe_type, SummaryFiscalReceipt, name,       Value::RegisteredText,  {}, {},
     "the name of the kind, which is registered"_L1},
    {element::receipe_type, SummaryFiscalReceipt, price,      Value::RegisteredPrice, {}, {},
     "the amount of the line, which is registered; below 0 it is a deduction"_L1},

    {element::total,   FullOrder | receipts, price,   Value::Amount, {}, Total,
     meaning::total},
    {element::total,   fiscal,               price,   Value::Unread, {}, {},
     "not read: the printer adds up by itself"_L1},
    {element::notPaid, receipts,             price,   Value::Amount, {}, {},
     meaning::notPaid},
    {element::totals,  invoices,             taxable, Value::Amount, {}, Total,
     meaning::taxable},
    {element::totals,  invoices,             taxrate, Value::Text,   {}, Total,
     meaning::taxRate},
    {element::totals,  invoices,             tax,     Value::Amount, {}, Total,
     meaning::tax},
    {element::totals,  invoices,             total,   Value::Amount, {}, Total,
     meaning::total},

    {element::date,              PeriodReport, begindate,   Value::Text,   {}, {},
     "the first day of the period"_L1},
    {element::date,              PeriodReport, enddate,     Value::Text,   {}, {},
     "the last day of the period"_L1},
    {element::prefiscalssummary, PeriodReport, number,      Value::Text,   {}, {},
     "how many documents there are"_L1},
    {element::prefiscalssummary, PeriodReport, total,       Value::Amount, {}, {},
     meaning::sum},
    {element::receiptssummary,   PeriodReport, number,      Value::Text,   {}, {},
     "how many receipts there are"_L1},
    {element::receiptssummary,   PeriodReport, firstserial, Value::Text,   {}, {},
     meaning::firstNumber},
    {element::receiptssummary,   PeriodReport, lastserial,  Value::Text,   {}, {},
     meaning::lastNumber},
    {element::receiptssummary,   PeriodReport, notPaid,     Value::Amount, {}, {},
     meaning::notPaid},
    {element::receiptssummary,   PeriodReport, cash,        Value::Amount, {}, {},
     "what was paid in cash"_L1},
    {element::receiptssummary,   PeriodReport, creditCard,  Value::Amount, {}, {},
     "what was paid by credit card"_L1},
    {element::receiptssummary,   PeriodReport, bancomat,    Value::Amount, {}, {},
     "what was paid by debit card"_L1},
    {element::receiptssummary,   PeriodReport, other,       Value::Amount, {}, {},
     "what was paid otherwise"_L1},
    {element::receiptssummary,   PeriodReport, total,       Value::Amount, {}, {},
     meaning::sum},
    {element::taxrate_item,      PeriodReport, taxrate,     Value::Text,   {}, {},
     meaning::taxRate},
    {element::taxrate_item,      PeriodReport, taxable,     Value::Amount, {}, {},
     meaning::taxable},
    {element::taxrate_item,      PeriodReport, tax,         Value::Amount, {}, {},
     meaning::tax},
    {element::taxrate_item,      PeriodReport, amount,      Value::Amount, {}, {},
     "the amount with its tax"_L1},
    {element::invoicessummary,   PeriodReport, number,      Value::Text,   {}, {},
     "how many invoices there are"_L1},
    {element::invoicessummary,   PeriodReport, firstserial, Value::Text,   {}, {},
     meaning::firstNumber},
    {element::invoicessummary,   PeriodReport, lastserial,  Value::Text,   {}, {},
     meaning::lastNumber},
    {element::invoicessummary,   PeriodReport, taxable,     Value::Amount, {}, {},
     meaning::taxable},
    {element::invoicessummary,   PeriodReport, tax,         Value::Amount, {}, {},
     meaning::tax},
    {element::invoicessummary,   PeriodReport, total,       Value::Amount, {}, {},
     meaning::sum},
    {element::cancelledsummary,  PeriodReport, number,      Value::Text,   {}, {},
     "how many documents are cancelled, and listed in the attributes behind `totals`"_L1},
    {element::cancelledsummary,  PeriodReport, totals,      Value::Amount, {}, {},
     meaning::sum},

    {element::statement, Statement, date,   Value::Text,   {}, {},
     "the day of the movement"_L1},
    {element::statement, Statement, type,   Value::Text,   {}, {},
     "what it is, translated if the catalogue knows the word"_L1},
    {element::statement, Statement, amount, Value::Amount, {}, Price,
     "its amount"_L1},
};
// clang-format on

} // namespace attribute

} // namespace korvel::vocabulary
