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
    QLatin1StringView meaning = {}; // to people, where it has a switch
};

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
    {element::printers,  shared, name,         Value::Text                    },
    {element::printers,  shared, charsize,     Value::Kept                    },
    {element::printers,  shared, ipaddress,    Value::Kept                    },
    {element::printers,  shared, port,         Value::Kept                    },
    {element::receipt,   shared, serialnumber, Value::Text                    },
    {element::invoice,   shared, serialnumber, Value::Text                    },
    {element::delivery,  shared, serialnumber, Value::Text                    },
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

    {element::receipe, quantitiesOnly, number,      Value::Text,            {}, Quantity},
    {element::receipe, quantitiesOnly, name,        Value::Text                         },
    {element::receipe, itemised,       number,      Value::Text,            {}, Quantity},
    {element::receipe, itemised,       name,        Value::Text                         },
    {element::receipe, itemised,       price,       Value::Amount,          {}, Price   },
    {element::receipe, itemised,       totalPrice,  Value::Amount,          {}, Total   },
    {element::receipe, FiscalReceipt,  department,  Value::RegisteredText               },
    {element::receipe, FiscalReceipt,  number,      Value::RegisteredCount              },
    {element::receipe, FiscalReceipt,  name,        Value::RegisteredText               },
    {element::receipe, FiscalReceipt,  price,       Value::RegisteredPrice              },
    {element::receipe, SoldItems,      quantity,    Value::Text,            {}, Quantity},
    {element::receipe, SoldItems,      description, Value::Text                         },
    {element::receipe, SoldItems,      amount,      Value::Amount,          {}, Total   },

    {element::otherreceipe, quantitiesOnly, number,     Value::Text,            {}, Quantity},
    {element::otherreceipe, quantitiesOnly, name,       Value::Text                         },
    {element::variant,      quantitiesOnly, number,     Value::Text,            {}, Quantity},
    {element::variant,      quantitiesOnly, quantity,   Value::VariantQuantity              },
    {element::variant,      quantitiesOnly, name,       Value::Text                         },
    {element::variant,      FullOrder,      number,     Value::Text,            {}, Quantity},
    {element::variant,      FullOrder,      quantity,   Value::VariantQuantity              },
    {element::variant,      FullOrder,      name,       Value::Text                         },
    {element::variant,      FullOrder,      price,      Value::Amount,          {}, Price   },
    {element::variant,      FullOrder,      totalPrice, Value::Amount,          {}, Total   },

    {element::receipe_type, summaries,            number,     Value::Text,            {}, Quantity},
    {element::receipe_type, summaries,            name,       Value::Text                         },
    {element::receipe_type, summaries,            price,      Value::Amount,          {}, Total   },
    {element::receipe_type, SummaryFiscalReceipt, department, Value::RegisteredText               },
    {element::receipe_type, SummaryFiscalReceipt, number,     Value::Unread                       },
    {element::receipe_type, SummaryFiscalReceipt, name,       Value::RegisteredText               },
    {element::receipe_type, SummaryFiscalReceipt, price,      Value::RegisteredPrice              },

    {element::total,   FullOrder | receipts, price,   Value::Amount, {}, Total},
    {element::total,   fiscal,               price,   Value::Unread           },
    {element::notPaid, receipts,             price,   Value::Amount           },
    {element::totals,  invoices,             taxable, Value::Amount, {}, Total},
    {element::totals,  invoices,             taxrate, Value::Text,   {}, Total},
    {element::totals,  invoices,             tax,     Value::Amount, {}, Total},
    {element::totals,  invoices,             total,   Value::Amount, {}, Total},

    {element::date,              PeriodReport, begindate,   Value::Text  },
    {element::date,              PeriodReport, enddate,     Value::Text  },
    {element::prefiscalssummary, PeriodReport, number,      Value::Text  },
    {element::prefiscalssummary, PeriodReport, total,       Value::Amount},
    {element::receiptssummary,   PeriodReport, number,      Value::Text  },
    {element::receiptssummary,   PeriodReport, firstserial, Value::Text  },
    {element::receiptssummary,   PeriodReport, lastserial,  Value::Text  },
    {element::receiptssummary,   PeriodReport, notPaid,     Value::Amount},
    {element::receiptssummary,   PeriodReport, cash,        Value::Amount},
    {element::receiptssummary,   PeriodReport, creditCard,  Value::Amount},
    {element::receiptssummary,   PeriodReport, bancomat,    Value::Amount},
    {element::receiptssummary,   PeriodReport, other,       Value::Amount},
    {element::receiptssummary,   PeriodReport, total,       Value::Amount},
    {element::taxrate_item,      PeriodReport, taxrate,     Value::Text  },
    {element::taxrate_item,      PeriodReport, taxable,     Value::Amount},
    {element::taxrate_item,      PeriodReport, tax,         Value::Amount},
    {element::taxrate_item,      PeriodReport, amount,      Value::Amount},
    {element::invoicessummary,   PeriodReport, number,      Value::Text  },
    {element::invoicessummary,   PeriodReport, firstserial, Value::Text  },
    {element::invoicessummary,   PeriodReport, lastserial,  Value::Text  },
    {element::invoicessummary,   PeriodReport, taxable,     Value::Amount},
    {element::invoicessummary,   PeriodReport, tax,         Value::Amount},
    {element::invoicessummary,   PeriodReport, total,       Value::Amount},
    {element::cancelledsummary,  PeriodReport, number,      Value::Text  },
    {element::cancelledsummary,  PeriodReport, totals,      Value::Amount},

    {element::statement, Statement, date,   Value::Text             },
    {element::statement, Statement, type,   Value::Text             },
    {element::statement, Statement, amount, Value::Amount, {}, Price},
};
// clang-format on

} // namespace attribute

} // namespace korvel::vocabulary
