// Fiscal receipts. Not laid out yet.
#include "printer/printerdriver.h"

void PrinterDriver::printFullOrderFiscal(const QString & /*qName*/,
                                         const QXmlAttributes & /*attributes*/)
{
}

void PrinterDriver::printAbstractOrderFiscal(const QString & /*qName*/,
                                             const QXmlAttributes & /*attributes*/)
{
}

void PrinterDriver::printRowFiscal(const QString & /*qName*/, const QXmlAttributes & /*attributes*/)
{
}

void PrinterDriver::printRowFiscal(const QString & /*department*/, const QString & /*quantity*/,
                                   const QString & /*description*/, const QString & /*amount*/)
{
}
