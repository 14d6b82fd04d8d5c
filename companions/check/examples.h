// An example of each kind of finding: a job, or settings, that cause it, and the same mended.
#pragma once

#include "companions/check/codes.h"

#include <algorithm>

namespace korvel::check {

/// A job, settings, or a job beside its settings. At "%1" one of them has what is wrong, or right.
struct Example
{
    Code code;
    QLatin1StringView settings; // empty for a job that needs none
    QLatin1StringView job;      // empty for settings alone
    QLatin1StringView wrong;
    QLatin1StringView right;
};

namespace example {

inline constexpr QLatin1StringView none{};
inline constexpr QLatin1StringView whole{"%1"};
inline constexpr QLatin1StringView head{"%1\n"
                                        "<job>\n"
                                        "  <method name=\"printFullOrderReceipt\"/>\n"
                                        "</job>"};
inline constexpr QLatin1StringView any{"<job>\n"
                                       "  %1\n"
                                       "</job>"};
inline constexpr QLatin1StringView order{"<job>\n"
                                         "  <method name=\"printPartialOrder\"/>\n"
                                         "  %1\n"
                                         "</job>"};
inline constexpr QLatin1StringView receipt{"<job>\n"
                                           "  <method name=\"printFullOrderReceipt\"/>\n"
                                           "  %1\n"
                                           "</job>"};
inline constexpr QLatin1StringView fiscal{"<job>\n"
                                          "  <method name=\"printFullOrderFiscal\"/>\n"
                                          "  %1\n"
                                          "</job>"};
inline constexpr QLatin1StringView report{"<job>\n"
                                          "  <method name=\"printReport\"/>\n"
                                          "  %1\n"
                                          "</job>"};
inline constexpr QLatin1StringView kitchen{
    "<job>\n"
    "  %1\n"
    "  <receipe number=\"2\" name=\"Coffee\"/>\n"
    "  <variant number=\"1\" quantity=\"1\" name=\"Milk\"/>\n"
    "</job>"};
inline constexpr QLatin1StringView customer{"<job>\n"
                                            "  %1\n"
                                            "  <customer name=\"Mario Rossi\"/>\n"
                                            "</job>"};
inline constexpr QLatin1StringView prices{
    "<job>\n"
    "  <method name=\"printFullOrderReceipt\"/>\n"
    "  <receipe number=\"2\" name=\"Coffee\" price=\"1.20\" totalPrice=\"2.40\"/>\n"
    "  <total price=\"%1\"/>\n"
    "</job>"};
inline constexpr QLatin1StringView row{
    "<job>\n"
    "  <method name=\"printFullOrderReceipt\"/>\n"
    "  <receipe number=\"2\" name=\"Coffee\" price=\"1.20\" totalPrice=\"%1\"/>\n"
    "  <total price=\"%1\"/>\n"
    "</job>"};
inline constexpr QLatin1StringView item{
    "<job>\n"
    "  <method name=\"printFullOrderReceipt\"/>\n"
    "  <receipe number=\"2\" name=\"Coffee\" price=\"1.20\" totalPrice=\"2.40\"/>\n"
    "  %1\n"
    "</job>"};
inline constexpr QLatin1StringView invoice{"<job>\n"
                                           "  <method name=\"printFullOrderInvoice\"/>\n"
                                           "  %1\n"
                                           "</job>"};
inline constexpr QLatin1StringView table{"korvel:\n"
                                         "{\n"
                                         "  doc:\n"
                                         "  {\n"
                                         "    paperWidth = \"32\";\n"
                                         "    quantityFieldWidth = \"3\";\n"
                                         "    printTable = \"true\";\n"
                                         "  };\n"
                                         "};"};
inline constexpr QLatin1StringView company{"<job>\n"
                                           "  <method name=\"printFullOrderReceipt\"/>\n"
                                           "  <company name=\"Trattoria Da Nino\"/>\n"
                                           "</job>"};
inline constexpr QLatin1StringView emoji{"<job>\n"
                                         "  <method name=\"printFullOrderReceipt\"/>\n"
                                         "  <receipe number=\"1\" name=\"Caprese x&#127829;\"\n"
                                         "           price=\"7.00\" totalPrice=\"7.00\"/>\n"
                                         "  <total price=\"7.00\"/>\n"
                                         "</job>"};
inline constexpr QLatin1StringView total{"<job>\n"
                                         "  <method name=\"printFullOrderReceipt\"/>\n"
                                         "  <total price=\"1200000.00\"/>\n"
                                         "</job>"};
inline constexpr QLatin1StringView settings{"korvel:\n"
                                            "{\n"
                                            "  receiptdoc:\n"
                                            "  {\n"
                                            "    paperWidth = \"32\";\n"
                                            "    quantityFieldWidth = \"3\";\n"
                                            "    priceFieldWidth = \"8\";\n"
                                            "    totalPriceFieldWidth = \"8\";\n"
                                            "    %1\n"
                                            "  };\n"
                                            "};"};
inline constexpr QLatin1StringView group{"%1\n"
                                         "{\n"
                                         "  doc:\n"
                                         "  {\n"
                                         "    paperWidth = \"32\";\n"
                                         "    quantityFieldWidth = \"3\";\n"
                                         "  };\n"
                                         "};"};
inline constexpr QLatin1StringView document{"korvel:\n"
                                            "{\n"
                                            "  %1\n"
                                            "  {\n"
                                            "    paperWidth = \"32\";\n"
                                            "    quantityFieldWidth = \"3\";\n"
                                            "  };\n"
                                            "};"};
inline constexpr QLatin1StringView language{"korvel:\n"
                                            "{\n"
                                            "  language:\n"
                                            "  {\n"
                                            "    basedir = \"/no-such-folder\";\n"
                                            "    %1\n"
                                            "  };\n"
                                            "};"};
inline constexpr QLatin1StringView widths{"korvel:\n"
                                          "{\n"
                                          "  receiptdoc:\n"
                                          "  {\n"
                                          "    paperWidth = \"32\";\n"
                                          "    quantityFieldWidth = \"3\";\n"
                                          "    priceFieldWidth = \"8\";\n"
                                          "    %1\n"
                                          "  };\n"
                                          "};"};

} // namespace example

// In the order of the codes.
// clang-format off
inline constexpr Example exampleTable[] = {
    // The job as a whole.
    {Code::MalformedXml, example::none, example::receipt,
     "<company name=\"Sun & Sons\"/>"_L1,
     "<company name=\"Sun &amp; Sons\"/>"_L1},
    {Code::Encoding, example::none, example::head,
     "<?xml version=\"1.0\" encoding=\"latin\"?>"_L1,
     "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"_L1},
    {Code::Limit, example::none, example::whole,
     "<!DOCTYPE job [<!ENTITY shop \"Da &shop;\">]>\n"
     "<job>\n"
     "  <method name=\"printFullOrderReceipt\"/>\n"
     "  <company name=\"&shop;\"/>\n"
     "</job>"_L1,
     "<job>\n"
     "  <method name=\"printFullOrderReceipt\"/>\n"
     "  <company name=\"Da Nino\"/>\n"
     "</job>"_L1},
    {Code::NoMethod, example::none, example::whole,
     "<job>\n"
     "  <total price=\"12.00\"/>\n"
     "</job>"_L1,
     "<job>\n"
     "  <method name=\"printFullOrderReceipt\"/>\n"
     "  <total price=\"12.00\"/>\n"
     "</job>"_L1},
    {Code::UnknownMethod, example::none, example::any,
     "<method name=\"printReceipt\"/>"_L1,
     "<method name=\"printFullOrderReceipt\"/>"_L1},
    {Code::WrongMethod, example::none, example::kitchen,
     "<method name=\"printFullOrder\"/>"_L1,
     "<method name=\"printPartialOrder\"/>"_L1},
    {Code::SecondMethod, example::none, example::whole,
     "<job>\n"
     "  <method name=\"printFullOrderReceipt\"/>\n"
     "  <total price=\"12.00\"/>\n"
     "  <method name=\"printPartialOrder\"/>\n"
     "  <receipe number=\"1\" name=\"Coffee\"/>\n"
     "</job>"_L1,
     "<job>\n"
     "  <method name=\"printFullOrderReceipt\"/>\n"
     "  <total price=\"12.00\"/>\n"
     "</job>"_L1},
    {Code::BeforeMethod, example::none, example::whole,
     "<job>\n"
     "  <company name=\"Da Nino\"/>\n"
     "  <method name=\"printFullOrderReceipt\"/>\n"
     "</job>"_L1,
     "<job>\n"
     "  <method name=\"printFullOrderReceipt\"/>\n"
     "  <company name=\"Da Nino\"/>\n"
     "</job>"_L1},

    // Elements and attributes.
    {Code::UnknownElement, example::none, example::order,
     "<recipe number=\"2\" name=\"Coffee\"/>"_L1,
     "<receipe number=\"2\" name=\"Coffee\"/>"_L1},
    {Code::IgnoredElement, example::none, example::customer,
     "<method name=\"printAbstractOrderReceipt\"/>"_L1,
     "<method name=\"printFullOrderReceipt\"/>"_L1},
    {Code::LostElement, example::none, example::order,
     "<total price=\"12.00\"/>"_L1,
     "<receipe number=\"1\" name=\"Coffee\"/>"_L1},
    {Code::TextContent, example::none, example::order,
     "<receipe number=\"2\">Coffee</receipe>"_L1,
     "<receipe number=\"2\" name=\"Coffee\"/>"_L1},
    {Code::UnknownAttribute, example::none, example::receipt,
     "<receipt serialnumber=\"118\" cashier=\"Lucia\"/>"_L1,
     "<receipt serialnumber=\"118\"/>"_L1},
    {Code::LostFigure, example::none, example::order,
     "<receipe number=\"2\" name=\"Coffee\" price=\"1.20\"/>"_L1,
     "<receipe number=\"2\" name=\"Coffee\"/>"_L1},
    {Code::MisspeltAttribute, example::none, example::order,
     "<receipe quantity=\"2\" name=\"Coffee\"/>"_L1,
     "<receipe number=\"2\" name=\"Coffee\"/>"_L1},
    {Code::MissingAttribute, example::none, example::receipt,
     "<total/>"_L1,
     "<total price=\"12.00\"/>"_L1},
    {Code::MissingText, example::table, example::order,
     "<orderinfo/>"_L1,
     "<orderinfo table=\"7\"/>"_L1},
    {Code::CancelledList, example::none, example::report,
     "<cancelledsummary number=\"2\" totals=\"9.00\" a=\"116\" b=\"9.00\" c=\"10\"/>"_L1,
     "<cancelledsummary number=\"1\" totals=\"9.00\" a=\"116\" b=\"9.00\" c=\"10\"/>"_L1},

    // Amounts and quantities.
    {Code::Amount, example::none, example::prices, "two forty"_L1, "2.40"_L1},
    {Code::Hundredths, example::none, example::prices, "2.404"_L1, "2.40"_L1},
    {Code::DecimalComma, example::none, example::prices, "2,40"_L1, "2.40"_L1},
    {Code::VariantQuantity, example::none, example::order,
     "<variant number=\"1\" quantity=\"one\" name=\"Milk\"/>"_L1,
     "<variant number=\"1\" quantity=\"1\" name=\"Milk\"/>"_L1},
    {Code::FiscalIncomplete, example::none, example::fiscal,
     "<receipe department=\"1\" number=\"2\" price=\"1.20\"/>"_L1,
     "<receipe department=\"1\" number=\"2\" name=\"Coffee\" price=\"1.20\"/>"_L1},
    {Code::FiscalAmount, example::none, example::fiscal,
     "<receipe department=\"1\" number=\"1\" name=\"Banquet\" price=\"1.200,00\"/>"_L1,
     "<receipe department=\"1\" number=\"1\" name=\"Banquet\" price=\"1200,00\"/>"_L1},
    {Code::FiscalHundredths, example::none, example::fiscal,
     "<receipe department=\"1\" number=\"2\" name=\"Coffee\" price=\"1.205\"/>"_L1,
     "<receipe department=\"1\" number=\"2\" name=\"Coffee\" price=\"1.21\"/>"_L1},
    {Code::FiscalQuantity, example::none, example::fiscal,
     "<receipe department=\"1\" number=\"2 cups\" name=\"Coffee\" price=\"1.20\"/>"_L1,
     "<receipe department=\"1\" number=\"2\" name=\"Coffee\" price=\"1.20\"/>"_L1},
    {Code::FiscalDepartment, example::none, example::fiscal,
     "<receipe department=\"Bar\" number=\"2\" name=\"Coffee\" price=\"1.20\"/>"_L1,
     "<receipe department=\"1\" number=\"2\" name=\"Coffee\" price=\"1.20\"/>"_L1},

    // Sums.
    {Code::RowSum, example::none, example::row, "2.20"_L1, "2.40"_L1},
    {Code::TotalSum, example::none, example::prices, "2.50"_L1, "2.40"_L1},
    {Code::TaxSum, example::none, example::invoice,
     "<totals taxable=\"10.00\" taxrate=\"10%\" tax=\"2.00\" total=\"12.00\"/>"_L1,
     "<totals taxable=\"10.00\" taxrate=\"10%\" tax=\"1.00\" total=\"11.00\"/>"_L1},
    {Code::NoTotal, example::none, example::item,
     "<receipt serialnumber=\"118\"/>"_L1,
     "<total price=\"2.40\"/>"_L1},
    {Code::SecondTotal, example::none, example::prices,
     "2.40\"/>\n"
     "  <total price=\"2.40"_L1,
     "2.40"_L1},
    {Code::BehindTotal, example::none, example::receipt,
     "<total price=\"0.00\"/>\n"
     "  <receipe number=\"1\" name=\"Water\" price=\"0.00\" totalPrice=\"0.00\"/>"_L1,
     "<receipe number=\"1\" name=\"Water\" price=\"0.00\" totalPrice=\"0.00\"/>\n"
     "  <total price=\"0.00\"/>"_L1},

    // Texts.
    {Code::EndsCommand, example::none, example::fiscal,
     "<receipe department=\"1\" number=\"2\" name=\"Coffee (iced)\" price=\"1.20\"/>"_L1,
     "<receipe department=\"1\" number=\"2\" name=\"Coffee, iced\" price=\"1.20\"/>"_L1},
    {Code::LineBreak, example::none, example::order,
     "<receipe number=\"2\" name=\"Coffee&#10;iced\"/>"_L1,
     "<receipe number=\"2\" name=\"Coffee, iced\"/>"_L1},
    {Code::Parenthesis, example::none, example::order,
     "<receipe number=\"2\" name=\"Coffee (iced)\"/>"_L1,
     "<receipe number=\"2\" name=\"Coffee, iced\"/>"_L1},
    {Code::ControlCharacter, example::none, example::order,
     "<receipe number=\"2\" name=\"Coffee&#9;iced\"/>"_L1,
     "<receipe number=\"2\" name=\"Coffee, iced\"/>"_L1},
    {Code::Totale, example::none, example::receipt,
     "<company name=\"TOTALE Gelateria\"/>"_L1,
     "<company name=\"Totale Gelateria\"/>"_L1},
    {Code::Address, example::none, example::receipt,
     "<customer name=\"Mario Rossi\" billingaddress=\"Corso Re 2,,10121 Torino\"/>"_L1,
     "<customer name=\"Mario Rossi\" billingaddress=\"Corso Re 2,10121 Torino\"/>"_L1},
    {Code::Mojibake, example::none, example::order,
     "<receipe number=\"2\" name=\"Caff&#195;&#168;\"/>"_L1,
     "<receipe number=\"2\" name=\"Caff&#232;\"/>"_L1},
    {Code::OddCharacter, example::none, example::order,
     "<receipe number=\"2\" name=\"Caff&#xFFFD;\"/>"_L1,
     "<receipe number=\"2\" name=\"Caff&#232;\"/>"_L1},
    {Code::EscapedTwice, example::none, example::order,
     "<receipe number=\"2\" name=\"Fish &amp;amp; Chips\"/>"_L1,
     "<receipe number=\"2\" name=\"Fish &amp; Chips\"/>"_L1},
    {Code::NotInCharset, example::none, example::order,
     "<receipe number=\"2\" name=\"Menu 10 &#8364;\"/>"_L1,
     "<receipe number=\"2\" name=\"Menu 10 EUR\"/>"_L1},

    // The job beside its settings.
    {Code::SwitchedOff, example::settings, example::company,
     "printCompany = \"false\";"_L1,
     "printCompany = \"true\";"_L1},
    {Code::WideLine, example::widths, example::total,
     "totalPriceFieldWidth = \"8\";"_L1,
     "totalPriceFieldWidth = \"10\";"_L1},
    {Code::CutCharacter, example::widths, example::emoji,
     "totalPriceFieldWidth = \"8\";"_L1,
     "totalPriceFieldWidth = \"7\";"_L1},

    // The settings as a whole.
    {Code::NoSettings, example::group, example::none, "Korvel:"_L1, "korvel:"_L1},
    {Code::Comment, example::settings, example::none,
     "// two lines\n"
     "    topMargin = \"2\";"_L1,
     "topMargin = \"2\";"_L1},
    {Code::Unterminated, example::settings, example::none,
     "topMargin = \"2\""_L1,
     "topMargin = \"2\";"_L1},
    {Code::LostGroup, example::document, example::none, "reciptdoc:"_L1, "receiptdoc:"_L1},
    {Code::Catalogue, example::language, example::none,
     "file = \"korvel_it.qm\";"_L1,
     "file = \"\";"_L1},

    // The settings.
    {Code::Columns, example::widths, example::none,
     "totalPriceFieldWidth = \"18\";"_L1,
     "totalPriceFieldWidth = \"8\";"_L1},
    {Code::UnreadKey, example::settings, example::none,
     "printDates = \"true\";"_L1,
     "printDate = \"true\";"_L1},
    {Code::Duplicate, example::settings, example::none,
     "topMargin = \"2\";\n"
     "    topMargin = \"3\";"_L1,
     "topMargin = \"3\";"_L1},
    {Code::NotTrue, example::settings, example::none,
     "printDate = \"yes\";"_L1,
     "printDate = \"true\";"_L1},
    {Code::NotANumber, example::settings, example::none,
     "topMargin = \"two\";"_L1,
     "topMargin = \"2\";"_L1},
};
// clang-format on

/// The example of a code; null when it has none.
inline const Example *exampleOf(Code code)
{
    const auto *const found = std::find_if(std::begin(exampleTable), std::end(exampleTable),
                                           [&](const Example &row) { return row.code == code; });
    return found == std::end(exampleTable) ? nullptr : found;
}

/// The job of an example with what is wrong or right in it; empty for settings alone.
inline QString jobOf(const Example &example, QLatin1StringView words)
{
    return QString(example.job).replace("%1"_L1, words);
}

/// The settings of an example, likewise; empty for a job that needs none.
inline QString settingsOf(const Example &example, QLatin1StringView words)
{
    return QString(example.settings).replace("%1"_L1, words);
}

/// The lines of an example that are right instead of wrong.
inline QString mendedLinesOf(const Example &example)
{
    const QString text = QString(example.settings) + u'\n' + example.job;
    const QString line = text.split(u'\n').filter(u"%1"_s).value(0);
    return line.trimmed().replace("%1"_L1, example.right);
}

} // namespace korvel::check
