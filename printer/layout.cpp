// The layout settings: their keys and the members they fill, the prefixes of the document types.
#include "printer/layout.h"

#include "config/configuration.h"
#include "printer/printerdriver.h"

#include <algorithm>
#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

template<typename Value>
struct Setting
{
    QLatin1StringView key;
    Value Layout::*member;
};

// Both tables are in the order in which the settings are read.
constexpr Setting<int> numbers[] = {
    {"quantityFieldWidth"_L1,   &Layout::quantityFieldWidth  },
    {"priceFieldWidth"_L1,      &Layout::priceFieldWidth     },
    {"totalPriceFieldWidth"_L1, &Layout::totalPriceFieldWidth},
    {"paperWidth"_L1,           &Layout::paperWidth          },
    {"paperRows"_L1,            &Layout::paperRows           },
};

constexpr Setting<bool> flags[] = {
    {"printGeometry"_L1,        &Layout::printGeometry       },
    {"printHeader"_L1,          &Layout::printHeader         },
    {"printLogo"_L1,            &Layout::printLogo           },
    {"printCompany"_L1,         &Layout::printCompany        },
    {"printDeliveryAddress"_L1, &Layout::printDeliveryAddress},
    {"printBillingAddress"_L1,  &Layout::printBillingAddress },
    {"printTelephone"_L1,       &Layout::printTelephone      },
    {"printDate"_L1,            &Layout::printDate           },
    {"printTime"_L1,            &Layout::printTime           },
    {"printTable"_L1,           &Layout::printTable          },
    {"printCustomer"_L1,        &Layout::printCustomer       },
    {"printLicenseNumber"_L1,   &Layout::printLicenseNumber  },
    {"printFiscalCode"_L1,      &Layout::printFiscalCode     },
    {"printCredit"_L1,          &Layout::printCredit         },
    {"printWaiter"_L1,          &Layout::printWaiter         },
    {"printNote"_L1,            &Layout::printNote           },
    {"openCashDrawer"_L1,       &Layout::openCashDrawer      },
};

struct DocumentPath
{
    QLatin1StringView documentType;
    QLatin1StringView prefix;
};

constexpr DocumentPath documentPaths[] = {
    {"order"_L1,     "korvel.doc."_L1         },
    {"prefiscal"_L1, "korvel.prefiscaldoc."_L1},
    {"fiscal"_L1,    "korvel.fiscaldoc."_L1   },
    {"receipt"_L1,   "korvel.receiptdoc."_L1  },
    {"invoice"_L1,   "korvel.invoicedoc."_L1  },
    {"delivery"_L1,  "korvel.deliverydoc."_L1 },
    {"report"_L1,    "korvel.reportdoc."_L1   },
    {"sold"_L1,      "korvel.solddoc."_L1     },
};

} // namespace

QString PrinterDriver::documentPath(const QString &documentType)
{
    const QString type = documentType.toLower();
    const auto *const found =
        std::find_if(std::begin(documentPaths), std::end(documentPaths),
                     [&](const DocumentPath &row) { return row.documentType == type; });
    if (found != std::end(documentPaths))
        return found->prefix;

    std::cout << "Error into PrinterDriver::documentPath:  " << type.toStdString() << std::endl;
    return u"korvel.prefiscaldoc."_s;
}

void PrinterDriver::loadValues(const QString &documentType)
{
    documentPrefix = documentPath(documentType);
    const auto text = [&](QLatin1StringView key) {
        return settings->getStrValue(documentPrefix + key);
    };

    for (const auto &[key, member] : numbers)
        layout.*member = text(key).toInt();
    if (layout.paperWidth == 0)
        layout.paperWidth = getPaperWidth();

    // Settings files carry a style that no layout rule depends on.
    static_cast<void>(text("style"_L1));

    for (const auto &[key, member] : flags)
        layout.*member = text(key) == "true"_L1;
}
