// A back end that implements what every back end must, and nothing else.
#pragma once

#include "printer/printerdriver.h"

#include <QStringList>

/// A back end of its own file: a printed line goes there with a line feed.
class FileDriver : public PrinterDriver
{
public:
    using PrinterDriver::PrinterDriver;
    using PrinterDriver::settings;
    using PrinterDriver::write;

    QStringList lines; // printed so far, whether the file opened or not

    int getPaperWidth() override { return 32; }
    void setBold() override { }
    void setCharSize() override { }
    void setCharSize(int /*size*/) override { }
    void setCenterJustify() override { }
    void fullCut() override { }
    void generatePulse() override { }
    void startSection() override { }
    void endSection() override { }
    void print(unsigned /*indent*/, const QString &text) override { write(text); }
    void println(unsigned /*indent*/, const QString &text) override { println(text); }
    void println(const QString &text) override
    {
        lines.append(text);
        write(text + "\n");
    }
    void printLogo() override { }
};
