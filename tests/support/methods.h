// The document methods that a job can ask for.
#pragma once

#include <QStringList>

inline const QStringList methodNames = {
    "printPartialOrder",
    "printFullOrder",
    "printFullOrderReceipt",
    "printFullOrderInvoice",
    "printFullOrderDelivery",
    "printFullOrderFiscal",
    "printAbstractOrder",
    "printAbstractOrderReceipt",
    "printAbstractOrderInvoice",
    "printAbstractOrderFiscal",
    "printReport",
    "printSold",
    "printStatementOfAccount",
};
