// The methods by which jobs ask for documents.
#pragma once

#include "vocabulary/documents.h"
#include "vocabulary/table.h"

namespace korvel::vocabulary {

struct Method
{
    QLatin1StringView name; // as jobs ask for it
    Document document;
    QLatin1StringView documentType; // whose layout settings apply
    QLatin1StringView sample;       // job of the sample shop: a name in examples/jobs
    QLatin1StringView title;        // to people; catalogues have it in the context "documents"
    QLatin1StringView group = rowOf(documentTypes, documentType).group; // of the settings
};

namespace method {

inline constexpr auto printPartialOrder = "printPartialOrder"_L1;
inline constexpr auto printFullOrder = "printFullOrder"_L1;
inline constexpr auto printFullOrderReceipt = "printFullOrderReceipt"_L1;
inline constexpr auto printFullOrderInvoice = "printFullOrderInvoice"_L1;
inline constexpr auto printFullOrderDelivery = "printFullOrderDelivery"_L1;
inline constexpr auto printFullOrderFiscal = "printFullOrderFiscal"_L1;
inline constexpr auto printAbstractOrder = "printAbstractOrder"_L1;
inline constexpr auto printAbstractOrderReceipt = "printAbstractOrderReceipt"_L1;
inline constexpr auto printAbstractOrderInvoice = "printAbstractOrderInvoice"_L1;
inline constexpr auto printAbstractOrderFiscal = "printAbstractOrderFiscal"_L1;
inline constexpr auto printReport = "printReport"_L1;
inline constexpr auto printSold = "printSold"_L1;
inline constexpr auto printStatementOfAccount = "printStatementOfAccount"_L1;

// In the order of the reference pages. The full order has a layout of its own, the pre-fiscal one;
// the statement shares the report's.
// clang-format off
inline constexpr Method rows[] = {
    {printPartialOrder,         KitchenOrder,         type::order,     "kitchen-order"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "kitchen order"))},
    {printFullOrder,            FullOrder,            type::prefiscal, "full-order"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "full order"))},
    {printFullOrderReceipt,     Receipt,              type::receipt,   "receipt"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "receipt"))},
    {printFullOrderInvoice,     Invoice,              type::invoice,   "invoice"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "invoice"))},
    {printFullOrderDelivery,    DeliveryNote,         type::delivery,  "delivery-note"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "delivery note"))},
    {printFullOrderFiscal,      FiscalReceipt,        type::fiscal,    "fiscal-receipt"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "fiscal receipt"))},
    {printAbstractOrder,        SummaryOrder,         type::order,     "order-summary"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "summary order"))},
    {printAbstractOrderReceipt, SummaryReceipt,       type::receipt,   "receipt-summary"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "summary receipt"))},
    {printAbstractOrderInvoice, SummaryInvoice,       type::invoice,   "invoice-summary"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "summary invoice"))},
    {printAbstractOrderFiscal,  SummaryFiscalReceipt, type::fiscal,    "fiscal-receipt-summary"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "summary fiscal receipt"))},
    {printReport,               PeriodReport,         type::report,    "period-report"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "period report"))},
    {printSold,                 SoldItems,            type::sold,      "sold-items"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "sold items"))},
    {printStatementOfAccount,   Statement,            type::report,    "statement"_L1,
     QLatin1StringView(QT_TRANSLATE_NOOP("documents", "statement of account"))},
};
// clang-format on

} // namespace method

} // namespace korvel::vocabulary
