// The layout settings as tables: their keys, the members they fill, and whose document reads which.
#pragma once

#include "printer/layout.h"
#include "support/recordingdriver.h"

#include <QByteArray>

#include <cstddef>

// In the order in which the members are declared.

struct Number
{
    const char *key;
    int korvel::Layout::*member;
};

// clang-format off
inline constexpr Number numbers[] = {
    {"quantityFieldWidth",   &korvel::Layout::quantityFieldWidth  },
    {"priceFieldWidth",      &korvel::Layout::priceFieldWidth     },
    {"totalPriceFieldWidth", &korvel::Layout::totalPriceFieldWidth},
    {"paperWidth",           &korvel::Layout::paperWidth          },
    {"paperRows",            &korvel::Layout::paperRows           },
};
// clang-format on

struct Flag
{
    const char *key;
    bool korvel::Layout::*member;
};

// clang-format off
inline constexpr Flag flags[] = {
    {"printGeometry",        &korvel::Layout::printGeometry       },
    {"printHeader",          &korvel::Layout::printHeader         },
    {"printLogo",            &korvel::Layout::printLogo           },
    {"printCompany",         &korvel::Layout::printCompany        },
    {"printDeliveryAddress", &korvel::Layout::printDeliveryAddress},
    {"printTelephone",       &korvel::Layout::printTelephone      },
    {"printDate",            &korvel::Layout::printDate           },
    {"printTime",            &korvel::Layout::printTime           },
    {"printTable",           &korvel::Layout::printTable          },
    {"printCustomer",        &korvel::Layout::printCustomer       },
    {"printBillingAddress",  &korvel::Layout::printBillingAddress },
    {"printLicenseNumber",   &korvel::Layout::printLicenseNumber  },
    {"printFiscalCode",      &korvel::Layout::printFiscalCode     },
    {"printCredit",          &korvel::Layout::printCredit         },
    {"printWaiter",          &korvel::Layout::printWaiter         },
    {"printNote",            &korvel::Layout::printNote           },
    {"openCashDrawer",       &korvel::Layout::openCashDrawer      },
};
// clang-format on

struct DocumentType
{
    const char *name;
    const char *group;
    const char *prefix;
};

// clang-format off
inline constexpr DocumentType documentTypes[] = {
    {"order",     "doc",          "korvel.doc."         },
    {"prefiscal", "prefiscaldoc", "korvel.prefiscaldoc."},
    {"fiscal",    "fiscaldoc",    "korvel.fiscaldoc."   },
    {"receipt",   "receiptdoc",   "korvel.receiptdoc."  },
    {"invoice",   "invoicedoc",   "korvel.invoicedoc."  },
    {"delivery",  "deliverydoc",  "korvel.deliverydoc." },
    {"report",    "reportdoc",    "korvel.reportdoc."   },
    {"sold",      "solddoc",      "korvel.solddoc."     },
};
// clang-format on

constexpr int deviceWidth = 57;

/// A device whose lines are no multiple of 32.
class WideDriver : public RecordingDriver
{
public:
    int getPaperWidth() override { return deviceWidth; }
};

/// A setting as it stands in a file.
inline QByteArray setting(const QByteArray &key, const QByteArray &value)
{
    return key + " = \"" + value + "\";\n";
}

/// All settings of a table, with the same value.
template<typename Setting, std::size_t count>
QByteArray allSet(const Setting (&table)[count], const QByteArray &value)
{
    QByteArray settings;
    for (const Setting &row : table)
        settings += setting(row.key, value);
    return settings;
}
