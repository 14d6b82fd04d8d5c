// The layout settings: their keys and the members they fill, and what the keys begin with.
#include "printer/layout.h"

#include "config/configuration.h"
#include "printer/printerdriver.h"
#include "vocabulary/settings.h"

#include <algorithm>
#include <iostream>

using korvel::Layout;
using korvel::vocabulary::DocumentType;
using korvel::vocabulary::documentTypes;
using korvel::vocabulary::on;
using korvel::vocabulary::pathOf;
namespace group = korvel::vocabulary::group;
namespace key = korvel::vocabulary::key;

namespace {

template<typename Value>
struct Setting
{
    QLatin1StringView key;
    Value Layout::*member;
};

// Both tables are in the order in which the settings are read.
// clang-format off
constexpr Setting<int> numbers[] = {
    {key::quantityFieldWidth,   &Layout::quantityFieldWidth  },
    {key::priceFieldWidth,      &Layout::priceFieldWidth     },
    {key::totalPriceFieldWidth, &Layout::totalPriceFieldWidth},
    {key::paperWidth,           &Layout::paperWidth          },
    {key::paperRows,            &Layout::paperRows           },
};

constexpr Setting<bool> flags[] = {
    {key::printGeometry,        &Layout::printGeometry       },
    {key::printHeader,          &Layout::printHeader         },
    {key::printLogo,            &Layout::printLogo           },
    {key::printCompany,         &Layout::printCompany        },
    {key::printDeliveryAddress, &Layout::printDeliveryAddress},
    {key::printBillingAddress,  &Layout::printBillingAddress },
    {key::printTelephone,       &Layout::printTelephone      },
    {key::printDate,            &Layout::printDate           },
    {key::printTime,            &Layout::printTime           },
    {key::printTable,           &Layout::printTable          },
    {key::printCustomer,        &Layout::printCustomer       },
    {key::printLicenseNumber,   &Layout::printLicenseNumber  },
    {key::printFiscalCode,      &Layout::printFiscalCode     },
    {key::printCredit,          &Layout::printCredit         },
    {key::printWaiter,          &Layout::printWaiter         },
    {key::printNote,            &Layout::printNote           },
    {key::openCashDrawer,       &Layout::openCashDrawer      },
};
// clang-format on

} // namespace

QString PrinterDriver::documentPath(const QString &documentType)
{
    const QString type = documentType.toLower();
    const auto *const found =
        std::find_if(std::begin(documentTypes), std::end(documentTypes),
                     [&](const DocumentType &row) { return row.name == type; });
    if (found != std::end(documentTypes))
        return pathOf(found->group);

    std::cout << "Error into PrinterDriver::documentPath:  " << type.toStdString() << std::endl;
    return pathOf(group::prefiscaldoc);
}

void PrinterDriver::loadValues(const QString &documentType)
{
    documentPrefix = documentPath(documentType);
    QString path = documentPrefix; // each key in the place of the one before
    const auto text = [&](QLatin1StringView key) {
        path.resize(documentPrefix.size());
        return settings->getStrValue(path += key);
    };

    for (const auto &[key, member] : numbers)
        layout.*member = text(key).toInt();
    if (layout.paperWidth == 0)
        layout.paperWidth = getPaperWidth();

    // Settings files carry a style that no layout rule depends on.
    static_cast<void>(text(key::style));

    for (const auto &[key, member] : flags)
        layout.*member = text(key) == on;
}
