// The printer back end: framing and centring of lines, section commands, sale rows.
#include "printer/company/companyprinterdriver.h"

#include "printer/company/commands.h"
#include "vocabulary/methods.h"
#include "vocabulary/numbers.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace commands = korvel::commands;
namespace method = korvel::vocabulary::method;

namespace {

/// The commands around the documents of a method.
struct Section
{
    QLatin1StringView method;
    QLatin1StringView opening;
    QLatin1StringView closing;
};

// The last row is for all other methods.
// clang-format off
constexpr Section sections[] = {
    {method::printAbstractOrderFiscal,  commands::openFiscal,   commands::closeFiscal  },
    {method::printFullOrderFiscal,      commands::openFiscal,   commands::closeFiscal  },
    {method::printAbstractOrderReceipt, commands::openReceipt,  commands::closeDocument},
    {method::printFullOrderReceipt,     commands::openReceipt,  commands::closeDocument},
    {method::printAbstractOrderInvoice, commands::openReceipt,  commands::closeDocument},
    {method::printFullOrderInvoice,     commands::openReceipt,  commands::closeDocument},
    {{},                                commands::openDocument, commands::closeDocument},
};
// clang-format on

const Section &sectionOf(const QString &method)
{
    const auto *const last = std::prev(std::end(sections));
    return *std::find_if(std::begin(sections), last,
                         [&](const Section &row) { return row.method == method; });
}

/// A text as a decimal number, the point or the comma being the decimal mark; 0 for a text that is
/// no number or is beyond the range of one.
double amountOf(QString text)
{
    return korvel::vocabulary::numberIn(text.replace(u',', u'.')).value_or(0);
}

/// Hundredths as the printer takes them: at most 15 digits, a fraction only where one remains.
QString hundredths(double value)
{
    return value == 0 ? u"0"_s : QString::number(value, 'g', 15); // never a negative zero
}

} // namespace

CompanyPrinterDriver::CompanyPrinterDriver(const QString &outputPath, bool append)
    : PrinterDriver(outputPath, append)
    , pendingLine(commands::lineOpener)
{
}

CompanyPrinterDriver::CompanyPrinterDriver(KVConfiguration &ownSettings, QString &output)
    : PrinterDriver(ownSettings, output)
    , pendingLine(commands::lineOpener)
{
}

int CompanyPrinterDriver::getPaperWidth() { return commands::lineWidth; }

void CompanyPrinterDriver::setBold() { }

void CompanyPrinterDriver::setCharSize() { justification = u"left"_s; }

void CompanyPrinterDriver::setCharSize(int /*size*/) { justification = u"left"_s; }

void CompanyPrinterDriver::setCenterJustify() { justification = u"center"_s; }

void CompanyPrinterDriver::fullCut() { }

void CompanyPrinterDriver::generatePulse() { }

void CompanyPrinterDriver::startSection() { write(sectionOf(currentMethod).opening); }

void CompanyPrinterDriver::endSection() { write(sectionOf(currentMethod).closing); }

void CompanyPrinterDriver::print(unsigned indent, const QString &text)
{
    using korvel::vocabulary::reservedWord;
    pendingLine += QString(indent, u' ')
                   + (text.contains(reservedWord)
                          ? QString(text).replace(reservedWord, commands::reservedWordInPrint)
                          : text);
}

void CompanyPrinterDriver::println(unsigned indent, const QString &text)
{
    print(indent, text);
    print(0, commands::lineCloser);

    constexpr auto framing =
        static_cast<unsigned>(commands::lineOpener.size() + commands::lineCloser.size());
    const auto width = static_cast<unsigned>(getPaperWidth());
    const auto length = static_cast<unsigned>(pendingLine.size());
    if (justification == "center"_L1 && width + framing >= length)
        pendingLine.insert(commands::lineOpener.size(),
                           QString((width - length + framing) / 2, u' '));
    write(pendingLine);
    pendingLine = commands::lineOpener;
}

void CompanyPrinterDriver::println(const QString &text) { println(0, text); }

void CompanyPrinterDriver::printRowFiscal(const QString &department, const QString &quantity,
                                          const QString &description, const QString &amount)
{
    const double value = amountOf(amount);
    if (value < 0) {
        write(commands::announceDeduction);
        write(commands::deductionAmount + hundredths(value * -100) + commands::deductionEnd);
    } else {
        write(commands::saleDepartment + department + commands::saleAmount + hundredths(value * 100)
              + commands::saleQuantity + quantity + commands::saleDescription + description
              + commands::saleEnd);
    }
}

void CompanyPrinterDriver::printLogo() { }
