// The period report. Not laid out yet.
#include "printer/printerdriver.h"

void PrinterDriver::printReport(const QString & /*qName*/, const QXmlAttributes & /*attributes*/) {
}
