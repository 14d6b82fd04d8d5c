// The documents that jobs ask for, the sets of them that have something in common, and the groups
// of the settings by which they are laid out.
#pragma once

#include <QLatin1StringView>

namespace korvel::vocabulary {

using namespace Qt::Literals::StringLiterals;

/// The documents, one bit each, in the order of the methods' table.
enum Document : unsigned {
    KitchenOrder = 1U << 0U,
    FullOrder = 1U << 1U,
    Receipt = 1U << 2U,
    Invoice = 1U << 3U,
    DeliveryNote = 1U << 4U,
    FiscalReceipt = 1U << 5U,
    SummaryOrder = 1U << 6U,
    SummaryReceipt = 1U << 7U,
    SummaryInvoice = 1U << 8U,
    SummaryFiscalReceipt = 1U << 9U,
    PeriodReport = 1U << 10U,
    SoldItems = 1U << 11U,
    Statement = 1U << 12U,
};

/// Any number of documents.
using Documents = unsigned;

inline constexpr Documents receipts = Receipt | SummaryReceipt;
inline constexpr Documents invoices = Invoice | SummaryInvoice;
inline constexpr Documents fiscal = FiscalReceipt | SummaryFiscalReceipt;
inline constexpr Documents quantitiesOnly = KitchenOrder | DeliveryNote;
inline constexpr Documents itemised = FullOrder | Receipt | Invoice;
inline constexpr Documents summaries = SummaryReceipt | SummaryInvoice;
inline constexpr Documents withCustomer = quantitiesOnly | itemised | SummaryInvoice;

/// The documents with text lines, which share the elements at their top.
inline constexpr Documents shared =
    quantitiesOnly | itemised | summaries | PeriodReport | SoldItems | Statement;

/// Types of documents: those of a type are laid out by the same settings.
namespace type {

inline constexpr auto order = "order"_L1;
inline constexpr auto prefiscal = "prefiscal"_L1;
inline constexpr auto fiscal = "fiscal"_L1;
inline constexpr auto receipt = "receipt"_L1;
inline constexpr auto invoice = "invoice"_L1;
inline constexpr auto delivery = "delivery"_L1;
inline constexpr auto report = "report"_L1;
inline constexpr auto sold = "sold"_L1;

} // namespace type

/// Groups of the settings: "korvel" holds the others.
namespace group {

inline constexpr auto korvel = "korvel"_L1;
inline constexpr auto language = "language"_L1;
inline constexpr auto doc = "doc"_L1;
inline constexpr auto prefiscaldoc = "prefiscaldoc"_L1;
inline constexpr auto fiscaldoc = "fiscaldoc"_L1;
inline constexpr auto receiptdoc = "receiptdoc"_L1;
inline constexpr auto invoicedoc = "invoicedoc"_L1;
inline constexpr auto deliverydoc = "deliverydoc"_L1;
inline constexpr auto reportdoc = "reportdoc"_L1;
inline constexpr auto solddoc = "solddoc"_L1;

} // namespace group

struct DocumentType
{
    QLatin1StringView name;
    QLatin1StringView group; // of the settings, below "korvel"
};

// clang-format off
inline constexpr DocumentType documentTypes[] = {
    {type::order,     group::doc         },
    {type::prefiscal, group::prefiscaldoc},
    {type::fiscal,    group::fiscaldoc   },
    {type::receipt,   group::receiptdoc  },
    {type::invoice,   group::invoicedoc  },
    {type::delivery,  group::deliverydoc },
    {type::report,    group::reportdoc   },
    {type::sold,      group::solddoc     },
};
// clang-format on

} // namespace korvel::vocabulary
