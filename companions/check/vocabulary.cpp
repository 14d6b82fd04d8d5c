// The tables of the vocabulary, and how they are searched.
#include "companions/check/vocabulary.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace vocabulary {

namespace {

constexpr Documents all = (1U << 13U) - 1;
constexpr Documents fiscal = FiscalReceipt | SummaryFiscalReceipt;
constexpr Documents shared = all & ~(fiscal | SummaryOrder);
constexpr Documents withCustomer =
    KitchenOrder | FullOrder | Receipt | Invoice | SummaryInvoice | DeliveryNote;
constexpr Documents quantitiesOnly = KitchenOrder | DeliveryNote;
constexpr Documents itemised = FullOrder | Receipt | Invoice;
constexpr Documents summaries = SummaryReceipt | SummaryInvoice;
constexpr Documents receipts = Receipt | SummaryReceipt;
constexpr Documents invoices = Invoice | SummaryInvoice;

} // namespace

const QList<Method> &methods()
{
    static const QList<Method> rows = {
        {"printPartialOrder"_L1,         KitchenOrder,         "kitchen order"_L1,          "doc"_L1         },
        {"printFullOrder"_L1,            FullOrder,            "full order"_L1,             "prefiscaldoc"_L1},
        {"printFullOrderReceipt"_L1,     Receipt,              "receipt"_L1,                "receiptdoc"_L1  },
        {"printFullOrderInvoice"_L1,     Invoice,              "invoice"_L1,                "invoicedoc"_L1  },
        {"printFullOrderDelivery"_L1,    DeliveryNote,         "delivery note"_L1,          "deliverydoc"_L1 },
        {"printFullOrderFiscal"_L1,      FiscalReceipt,        "fiscal receipt"_L1,         "fiscaldoc"_L1   },
        {"printAbstractOrder"_L1,        SummaryOrder,         "summary order"_L1,          "doc"_L1         },
        {"printAbstractOrderReceipt"_L1, SummaryReceipt,       "summary receipt"_L1,        "receiptdoc"_L1  },
        {"printAbstractOrderInvoice"_L1, SummaryInvoice,       "summary invoice"_L1,        "invoicedoc"_L1  },
        {"printAbstractOrderFiscal"_L1,  SummaryFiscalReceipt, "summary fiscal receipt"_L1,
         "fiscaldoc"_L1                                                                                      },
        {"printReport"_L1,               PeriodReport,         "period report"_L1,          "reportdoc"_L1   },
        {"printSold"_L1,                 SoldItems,            "sold items"_L1,             "solddoc"_L1     },
        {"printStatementOfAccount"_L1,   Statement,            "statement of account"_L1,   "reportdoc"_L1   },
    };
    return rows;
}

const QList<Element> &elements()
{
    static const QList<Element> rows = {
        {"printers"_L1,          shared,               ""_L1,              false,
         "nothing; the name is kept for `headers`, the rest for printers that have a use for it"_L1                                          },
        {"geometry"_L1,          shared,               "printGeometry"_L1, false,
         "as many empty lines as `topMargin` says"_L1                                                                                        },
        {"headers"_L1,           shared,               "printHeader"_L1,   true,
         "a line for each attribute's value, in the order of the job; a separator"_L1                                                        },
        {"logo"_L1,              shared,               ""_L1,              false, "nothing: this printer has no logo"_L1                     },
        {"company"_L1,           shared,               "printCompany"_L1,  true,
         "a centred line for each attribute's value, in the order of the job; a separator"_L1                                                },
        {"receipt"_L1,           shared,               ""_L1,              false, "` Serial Number: ` and the number; a separator"_L1        },
        {"invoice"_L1,           shared,               ""_L1,              false, "` Invoice Number: ` and the number; a separator"_L1       },
        {"delivery"_L1,          shared,               ""_L1,              false,
         "` Delivery Number: ` and the number; a separator"_L1                                                                               },
        {"orderinfo"_L1,         shared,               ""_L1,              false,
         "the lines that are switched on; a separator in any case"_L1                                                                        },
        {"customer"_L1,          withCustomer,         "printCustomer"_L1, false, "the customer block"_L1                                    },

        {"receipe"_L1,           quantitiesOnly,       ""_L1,              false, "an item: quantity and name"_L1                            },
        {"receipe"_L1,           FullOrder,            ""_L1,              false,
         "an item: quantity, name, unit price, amount. An item whose name begins with `=` is left out"_L1                                    },
        {"receipe"_L1,           Receipt,              ""_L1,              false,
         "an item: quantity, `x`, name, unit price, amount; the first one brings the titles"_L1                                              },
        {"receipe"_L1,           Invoice,              ""_L1,              false,
         "an item: quantity, name, unit price, amount; the first one brings the titles"_L1                                                   },
        {"receipe"_L1,           FiscalReceipt,        ""_L1,              false,
         "a sale row; the name is cut to the setting `descriptionWidth`. For a negative price a deduction, which carries the amount alone"_L1},
        {"receipe"_L1,           SoldItems,            ""_L1,              false, "quantity, `x`, description, amount"_L1                    },
        {"otherreceipe"_L1,      KitchenOrder,         ""_L1,              false,
         "an item in the other size; this printer has one size, so it looks alike"_L1                                                        },
        {"otherreceipe"_L1,      DeliveryNote,         ""_L1,              false, "an item in the other size"_L1                             },
        {"variant"_L1,           quantitiesOnly,       ""_L1,              false, "quantity, mark and name"_L1                               },
        {"variant"_L1,           FullOrder,            ""_L1,              false, "quantity, mark and name, unit price, amount"_L1           },
        {"receipe_type"_L1,      summaries,            ""_L1,              false,
         "a kind of item: quantity, `x`, name, amount; the first one brings the titles"_L1                                                   },
        {"receipe_type"_L1,      SummaryFiscalReceipt, ""_L1,              false,
         "a sale row of quantity 1, whatever the line's own quantity; the name is not cut. For a negative price a deduction"_L1              },
        {"total"_L1,             FullOrder | receipts, ""_L1,              false, "an empty line, then the total"_L1                         },
        {"total"_L1,             fiscal,               ""_L1,              false, "nothing: the end of the section closes the receipt"_L1    },
        {"notPaid"_L1,           Receipt,              ""_L1,              false,
         "an empty line, then `    Amount not paid: ` and the amount"_L1                                                                     },
        {"notPaid"_L1,           SummaryReceipt,       ""_L1,              false,
         "an empty line, then `   Corrispettivo non pagato: ` and the amount, in Italian whatever the translation"_L1                        },
        {"totals"_L1,            Invoice,              ""_L1,              false, "an empty line, then the tax block: four lines"_L1         },
        {"totals"_L1,            SummaryInvoice,       ""_L1,              false, "an empty line, then the tax block"_L1                     },

        {"date"_L1,              PeriodReport,         ""_L1,              false, "the report's title and its period"_L1                     },
        {"prefiscalssummary"_L1, PeriodReport,         ""_L1,              false,
         "title, count and total of the pre-fiscal documents"_L1                                                                             },
        {"receiptssummary"_L1,   PeriodReport,         ""_L1,              false,
         "title, count, serial numbers, what was paid and how, total; a separator and the titles of the tax-rate table"_L1                   },
        {"taxrate_item"_L1,      PeriodReport,         ""_L1,              false, "a row of that table"_L1                                   },
        {"invoicessummary"_L1,   PeriodReport,         ""_L1,              false,
         "a separator, title, count, serial numbers, taxable amount, tax, total"_L1                                                          },
        {"cancelledsummary"_L1,  PeriodReport,         ""_L1,              true,
         "title, count, total; a row for each document: serial number, total, tax rate"_L1                                                   },
        {"statement_list"_L1,    Statement,            ""_L1,              false, "the column titles, each time it occurs"_L1                },
        {"statement"_L1,         Statement,            ""_L1,              false, "a movement: date, type, amount"_L1                        },
    };
    return rows;
}

const QList<Attribute> &attributes()
{
    static const QList<Attribute> rows = {
        {"printers"_L1,          shared,               "name"_L1,            Value::Text,            ""_L1                  },
        {"printers"_L1,          shared,               "charsize"_L1,        Value::Kept,            ""_L1                  },
        {"printers"_L1,          shared,               "ipaddress"_L1,       Value::Kept,            ""_L1                  },
        {"printers"_L1,          shared,               "port"_L1,            Value::Kept,            ""_L1                  },
        {"receipt"_L1,           shared,               "serialnumber"_L1,    Value::Text,            ""_L1                  },
        {"invoice"_L1,           shared,               "serialnumber"_L1,    Value::Text,            ""_L1                  },
        {"delivery"_L1,          shared,               "serialnumber"_L1,    Value::Text,            ""_L1                  },
        {"orderinfo"_L1,         shared,               "date"_L1,            Value::Text,            "printDate"_L1         },
        {"orderinfo"_L1,         shared,               "time"_L1,            Value::Text,            "printTime"_L1         },
        {"orderinfo"_L1,         shared,               "table"_L1,           Value::Text,            "printTable"_L1        },
        {"orderinfo"_L1,         shared,               "waiter"_L1,          Value::Text,            "printWaiter"_L1       },
        {"orderinfo"_L1,         shared,               "note"_L1,            Value::Text,            "printNote"_L1         },
        {"orderinfo"_L1,         shared,               "credit"_L1,          Value::Amount,          "printCredit"_L1       },
        {"customer"_L1,          withCustomer,         "name"_L1,            Value::Text,            ""_L1                  },
        {"customer"_L1,          withCustomer,         "billingaddress"_L1,  Value::Address,
         "printBillingAddress"_L1                                                                                           },
        {"customer"_L1,          withCustomer,         "deliveryaddress"_L1, Value::Address,
         "printDeliveryAddress"_L1                                                                                          },
        {"customer"_L1,          withCustomer,         "telephone"_L1,       Value::Text,            "printTelephone"_L1    },
        {"customer"_L1,          withCustomer,         "licensenumber"_L1,   Value::Text,            "printLicenseNumber"_L1},
        {"customer"_L1,          withCustomer,         "fiscalcode"_L1,      Value::Text,            "printFiscalCode"_L1   },
        {"receipe"_L1,           quantitiesOnly,       "number"_L1,          Value::Text,            ""_L1                  },
        {"receipe"_L1,           quantitiesOnly,       "name"_L1,            Value::Text,            ""_L1                  },
        {"receipe"_L1,           itemised,             "number"_L1,          Value::Text,            ""_L1                  },
        {"receipe"_L1,           itemised,             "name"_L1,            Value::Text,            ""_L1                  },
        {"receipe"_L1,           itemised,             "price"_L1,           Value::Amount,          ""_L1                  },
        {"receipe"_L1,           itemised,             "totalPrice"_L1,      Value::Amount,          ""_L1                  },
        {"receipe"_L1,           FiscalReceipt,        "department"_L1,      Value::RegisteredText,  ""_L1                  },
        {"receipe"_L1,           FiscalReceipt,        "number"_L1,          Value::RegisteredCount, ""_L1                  },
        {"receipe"_L1,           FiscalReceipt,        "name"_L1,            Value::RegisteredText,  ""_L1                  },
        {"receipe"_L1,           FiscalReceipt,        "price"_L1,           Value::RegisteredPrice, ""_L1                  },
        {"receipe"_L1,           SoldItems,            "quantity"_L1,        Value::Text,            ""_L1                  },
        {"receipe"_L1,           SoldItems,            "description"_L1,     Value::Text,            ""_L1                  },
        {"receipe"_L1,           SoldItems,            "amount"_L1,          Value::Amount,          ""_L1                  },
        {"otherreceipe"_L1,      quantitiesOnly,       "number"_L1,          Value::Text,            ""_L1                  },
        {"otherreceipe"_L1,      quantitiesOnly,       "name"_L1,            Value::Text,            ""_L1                  },
        {"variant"_L1,           quantitiesOnly,       "number"_L1,          Value::Text,            ""_L1                  },
        {"variant"_L1,           quantitiesOnly,       "quantity"_L1,        Value::VariantQuantity, ""_L1                  },
        {"variant"_L1,           quantitiesOnly,       "name"_L1,            Value::Text,            ""_L1                  },
        {"variant"_L1,           FullOrder,            "number"_L1,          Value::Text,            ""_L1                  },
        {"variant"_L1,           FullOrder,            "quantity"_L1,        Value::VariantQuantity, ""_L1                  },
        {"variant"_L1,           FullOrder,            "name"_L1,            Value::Text,            ""_L1                  },
        {"variant"_L1,           FullOrder,            "price"_L1,           Value::Amount,          ""_L1                  },
        {"variant"_L1,           FullOrder,            "totalPrice"_L1,      Value::Amount,          ""_L1                  },
        {"receipe_type"_L1,      summaries,            "number"_L1,          Value::Text,            ""_L1                  },
        {"receipe_type"_L1,      summaries,            "name"_L1,            Value::Text,            ""_L1                  },
        {"receipe_type"_L1,      summaries,            "price"_L1,           Value::Amount,          ""_L1                  },
        {"receipe_type"_L1,      SummaryFiscalReceipt, "department"_L1,      Value::RegisteredText,  ""_L1                  },
        {"receipe_type"_L1,      SummaryFiscalReceipt, "number"_L1,          Value::Unread,          ""_L1                  },
        {"receipe_type"_L1,      SummaryFiscalReceipt, "name"_L1,            Value::RegisteredText,  ""_L1                  },
        {"receipe_type"_L1,      SummaryFiscalReceipt, "price"_L1,           Value::RegisteredPrice, ""_L1                  },
        {"total"_L1,             FullOrder | receipts, "price"_L1,           Value::Amount,          ""_L1                  },
        {"total"_L1,             fiscal,               "price"_L1,           Value::Unread,          ""_L1                  },
        {"notPaid"_L1,           receipts,             "price"_L1,           Value::Amount,          ""_L1                  },
        {"totals"_L1,            invoices,             "taxable"_L1,         Value::Amount,          ""_L1                  },
        {"totals"_L1,            invoices,             "taxrate"_L1,         Value::Text,            ""_L1                  },
        {"totals"_L1,            invoices,             "tax"_L1,             Value::Amount,          ""_L1                  },
        {"totals"_L1,            invoices,             "total"_L1,           Value::Amount,          ""_L1                  },
        {"date"_L1,              PeriodReport,         "begindate"_L1,       Value::Text,            ""_L1                  },
        {"date"_L1,              PeriodReport,         "enddate"_L1,         Value::Text,            ""_L1                  },
        {"prefiscalssummary"_L1, PeriodReport,         "number"_L1,          Value::Text,            ""_L1                  },
        {"prefiscalssummary"_L1, PeriodReport,         "total"_L1,           Value::Amount,          ""_L1                  },
        {"receiptssummary"_L1,   PeriodReport,         "number"_L1,          Value::Text,            ""_L1                  },
        {"receiptssummary"_L1,   PeriodReport,         "firstserial"_L1,     Value::Text,            ""_L1                  },
        {"receiptssummary"_L1,   PeriodReport,         "lastserial"_L1,      Value::Text,            ""_L1                  },
        {"receiptssummary"_L1,   PeriodReport,         "notPaid"_L1,         Value::Amount,          ""_L1                  },
        {"receiptssummary"_L1,   PeriodReport,         "cash"_L1,            Value::Amount,          ""_L1                  },
        {"receiptssummary"_L1,   PeriodReport,         "creditCard"_L1,      Value::Amount,          ""_L1                  },
        {"receiptssummary"_L1,   PeriodReport,         "bancomat"_L1,        Value::Amount,          ""_L1                  },
        {"receiptssummary"_L1,   PeriodReport,         "other"_L1,           Value::Amount,          ""_L1                  },
        {"receiptssummary"_L1,   PeriodReport,         "total"_L1,           Value::Amount,          ""_L1                  },
        {"taxrate_item"_L1,      PeriodReport,         "taxrate"_L1,         Value::Text,            ""_L1                  },
        {"taxrate_item"_L1,      PeriodReport,         "taxable"_L1,         Value::Amount,          ""_L1                  },
        {"taxrate_item"_L1,      PeriodReport,         "tax"_L1,             Value::Amount,          ""_L1                  },
        {"taxrate_item"_L1,      PeriodReport,         "amount"_L1,          Value::Amount,          ""_L1                  },
        {"invoicessummary"_L1,   PeriodReport,         "number"_L1,          Value::Text,            ""_L1                  },
        {"invoicessummary"_L1,   PeriodReport,         "firstserial"_L1,     Value::Text,            ""_L1                  },
        {"invoicessummary"_L1,   PeriodReport,         "lastserial"_L1,      Value::Text,            ""_L1                  },
        {"invoicessummary"_L1,   PeriodReport,         "taxable"_L1,         Value::Amount,          ""_L1                  },
        {"invoicessummary"_L1,   PeriodReport,         "tax"_L1,             Value::Amount,          ""_L1                  },
        {"invoicessummary"_L1,   PeriodReport,         "total"_L1,           Value::Amount,          ""_L1                  },
        {"cancelledsummary"_L1,  PeriodReport,         "number"_L1,          Value::Text,            ""_L1                  },
        {"cancelledsummary"_L1,  PeriodReport,         "totals"_L1,          Value::Amount,          ""_L1                  },
        {"statement"_L1,         Statement,            "date"_L1,            Value::Text,            ""_L1                  },
        {"statement"_L1,         Statement,            "type"_L1,            Value::Text,            ""_L1                  },
        {"statement"_L1,         Statement,            "amount"_L1,          Value::Amount,          ""_L1                  },
    };
    return rows;
}

const QList<Setting> &settings()
{
    constexpr Documents items = quantitiesOnly | itemised | summaries | SoldItems;
    constexpr Documents prices = itemised | summaries | SoldItems;
    // clang-format off
    static const QList<Setting> rows = {
        {"quantityFieldWidth"_L1, Kind::Number, "characters"_L1, items,
         QT_TRANSLATE_NOOP("vocabulary", "width of the quantity column")},
        {"priceFieldWidth"_L1, Kind::Number, "characters"_L1, prices | Statement,
         QT_TRANSLATE_NOOP("vocabulary", "width of the unit price column; in a statement, of the amount")},
        {"totalPriceFieldWidth"_L1, Kind::Number, "characters"_L1, prices,
         QT_TRANSLATE_NOOP("vocabulary", "width of the last column, the amount")},
        {"paperWidth"_L1, Kind::Number, "characters"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "width of a line and of a separator. 0 is the printer's width. Centring always goes by the printer's 32")},
        {"paperRows"_L1, Kind::Number, "rows"_L1, 0,
         QT_TRANSLATE_NOOP("vocabulary", "nothing depends on it")},
        {"style"_L1, Kind::Text, "text"_L1, 0,
         QT_TRANSLATE_NOOP("vocabulary", "read and discarded")},
        {"topMargin"_L1, Kind::Number, "lines"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "empty lines that `geometry` prints; none when negative, 65536 at most")},
        {"descriptionWidth"_L1, Kind::Number, "characters"_L1, FiscalReceipt,
         QT_TRANSLATE_NOOP("vocabulary", "characters of an item's name that are sent. 0 is the printer's width; a negative number leaves the name whole. The summary fiscal receipt never cuts")},
        {"printGeometry"_L1, Kind::Switch, "switch"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "the top margin")},
        {"printHeader"_L1, Kind::Switch, "switch"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "the lines of `headers`. The printer's name after them has no switch")},
        {"printLogo"_L1, Kind::Switch, "switch"_L1, 0,
         QT_TRANSLATE_NOOP("vocabulary", "nothing: kept for printers with a logo")},
        {"printCompany"_L1, Kind::Switch, "switch"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "the company")},
        {"printDeliveryAddress"_L1, Kind::Switch, "switch"_L1, withCustomer,
         QT_TRANSLATE_NOOP("vocabulary", "the customer's delivery address")},
        {"printBillingAddress"_L1, Kind::Switch, "switch"_L1, withCustomer,
         QT_TRANSLATE_NOOP("vocabulary", "the customer's billing address")},
        {"printTelephone"_L1, Kind::Switch, "switch"_L1, withCustomer,
         QT_TRANSLATE_NOOP("vocabulary", "the customer's telephone")},
        {"printDate"_L1, Kind::Switch, "switch"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "the date of `orderinfo`")},
        {"printTime"_L1, Kind::Switch, "switch"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "the time of `orderinfo`")},
        {"printTable"_L1, Kind::Switch, "switch"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "the table of `orderinfo`")},
        {"printCustomer"_L1, Kind::Switch, "switch"_L1, withCustomer,
         QT_TRANSLATE_NOOP("vocabulary", "the whole customer block; the customer's other switches count only when it is on")},
        {"printLicenseNumber"_L1, Kind::Switch, "switch"_L1, withCustomer,
         QT_TRANSLATE_NOOP("vocabulary", "the customer's license number")},
        {"printFiscalCode"_L1, Kind::Switch, "switch"_L1, withCustomer,
         QT_TRANSLATE_NOOP("vocabulary", "the customer's fiscal code")},
        {"printCredit"_L1, Kind::Switch, "switch"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "the credit of `orderinfo`")},
        {"printWaiter"_L1, Kind::Switch, "switch"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "the waiter of `orderinfo`")},
        {"printNote"_L1, Kind::Switch, "switch"_L1, shared,
         QT_TRANSLATE_NOOP("vocabulary", "the note of `orderinfo`")},
        {"openCashDrawer"_L1, Kind::Switch, "switch"_L1, 0,
         QT_TRANSLATE_NOOP("vocabulary", "nothing: kept for printers with a drawer")},
    };
    // clang-format on
    return rows;
}

const QList<LanguageSetting> &languageSettings()
{
    // clang-format off
    static const QList<LanguageSetting> rows = {
        {"basedir"_L1, QT_TRANSLATE_NOOP("vocabulary", "the folder of the catalogues")   },
        {"file"_L1,    QT_TRANSLATE_NOOP("vocabulary", "which catalogue; begins with `/`")},
    };
    // clang-format on
    return rows;
}

namespace {

/// The first row that fits; null when none does.
template<typename Row, typename Fits>
const Row *find(const QList<Row> &rows, Fits fits)
{
    const auto found = std::find_if(rows.begin(), rows.end(), fits);
    return found == rows.end() ? nullptr : &*found;
}

/// Steps from one name to another: a letter added, left out, replaced or swapped with the next.
qsizetype steps(QStringView from, QStringView to)
{
    const qsizetype columns = to.size() + 1;
    std::vector<qsizetype> before(static_cast<std::size_t>(columns));
    std::vector<qsizetype> last(before.size());
    std::vector<qsizetype> now(before.size());
    std::iota(last.begin(), last.end(), 0);
    const auto cell = [](std::vector<qsizetype> &row, qsizetype i) -> qsizetype & {
        return row[static_cast<std::size_t>(i)];
    };
    for (qsizetype i = 1; i <= from.size(); ++i) {
        cell(now, 0) = i;
        for (qsizetype j = 1; j < columns; ++j) {
            const bool same = from[i - 1] == to[j - 1];
            cell(now, j) = std::min(
                {cell(last, j) + 1, cell(now, j - 1) + 1, cell(last, j - 1) + (same ? 0 : 1)});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                cell(now, j) = std::min(cell(now, j), cell(before, j - 2) + 1);
        }
        before.swap(last);
        last.swap(now);
    }
    return last.back();
}

} // namespace

const Method *findMethod(QAnyStringView name)
{
    return find(methods(), [&](const Method &row) { return row.name == name; });
}

const Method &methodOf(Document document)
{
    return *find(methods(), [&](const Method &row) { return row.document == document; });
}

const Element *findElement(QAnyStringView name, Document document)
{
    return find(elements(), [&](const Element &row) {
        return row.name == name && (row.documents & document) != 0;
    });
}

bool isShared(const Element &element) { return element.documents == shared; }

bool isOptional(const Attribute &attribute)
{
    return !attribute.setting.isEmpty() || attribute.value == Value::Kept
           || attribute.value == Value::Unread || attribute.element == "printers"_L1;
}

QList<Attribute> attributesOf(QAnyStringView element, Document document)
{
    QList<Attribute> rows;
    for (const Attribute &row : attributes()) {
        if (row.element == element && (row.documents & document) != 0)
            rows.append(row);
    }
    return rows;
}

const Setting *findSetting(QAnyStringView key)
{
    return find(settings(), [&](const Setting &row) { return row.key == key; });
}

Documents documentsOf(QAnyStringView group)
{
    Documents documents = 0;
    for (const Method &method : methods()) {
        if (method.group == group)
            documents |= method.document;
    }
    return documents;
}

QString titlesOf(Documents documents)
{
    QStringList titles;
    for (const Method &method : methods()) {
        if ((documents & method.document) != 0)
            titles.append(method.title);
    }
    if (2 * titles.size() > methods().size())
        return u"other documents"_s;
    return titles.join(", "_L1);
}

QString nearest(QStringView misspelt, const QStringList &names)
{
    QString best;
    // Two slips, but not so many that a short name becomes another one.
    qsizetype fewest = std::min<qsizetype>(2, (misspelt.size() - 1) / 2) + 1;
    for (const QString &name : names) {
        if (name.compare(misspelt, Qt::CaseInsensitive) == 0)
            return name;
        if (std::abs(name.size() - misspelt.size()) >= fewest)
            continue; // each step changes the length by one at most
        if (const qsizetype count = steps(misspelt, name); count < fewest) {
            fewest = count;
            best = name;
        }
    }
    return best;
}

} // namespace vocabulary
