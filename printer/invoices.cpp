// Invoices and delivery notes. Not laid out yet.
#include "printer/printerdriver.h"

void PrinterDriver::printFullOrderInvoice(const QString & /*qName*/,
                                          const QXmlAttributes & /*attributes*/)
{
}

void PrinterDriver::printFullOrderDelivery(const QString & /*qName*/,
                                           const QXmlAttributes & /*attributes*/)
{
}

void PrinterDriver::printAbstractOrderInvoice(const QString & /*qName*/,
                                              const QXmlAttributes & /*attributes*/)
{
}
