// The layout settings of one document type.
#pragma once

namespace korvel {

/// What the settings file says of a document type's layout. Widths count characters (UTF-16
/// units); a flag is on only when its setting is exactly "true".
struct Layout
{
    int quantityFieldWidth = 0;   // quantity column
    int priceFieldWidth = 0;      // unit price or amount column
    int totalPriceFieldWidth = 0; // line total column
    int paperWidth = 0;           // characters of a printed line
    int paperRows = 0;            // rows of a page; no layout rule depends on it

    bool printGeometry = false;        // blank top margin
    bool printHeader = false;          // free header lines
    bool printLogo = false;            // kept for back ends that have a logo
    bool printCompany = false;         // company lines
    bool printDeliveryAddress = false; // lines of the customer block, to printFiscalCode
    bool printTelephone = false;
    bool printDate = false; // lines of the order information, to printNote
    bool printTime = false;
    bool printTable = false;
    bool printCustomer = false; // the customer block as a whole
    bool printBillingAddress = false;
    bool printLicenseNumber = false;
    bool printFiscalCode = false;
    bool printCredit = false;
    bool printWaiter = false;
    bool printNote = false;
    bool openCashDrawer = false; // kept for back ends that have a drawer
};

} // namespace korvel
