// Sold items and the statement of account. Not laid out yet.
#include "printer/printerdriver.h"

void PrinterDriver::printSold(const QString & /*qName*/, const QXmlAttributes & /*attributes*/) { }

void PrinterDriver::printStatementOfAccount(const QString & /*qName*/,
                                            const QXmlAttributes & /*attributes*/)
{
}
