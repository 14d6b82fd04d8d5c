// A back end for plain text: what the engine prints, as a file that anyone can read.
#pragma once

#include <printer/printerdriver.h>

/// Writes each line as it is, and a sale row in words.
class TextPrinter : public PrinterDriver
{
public:
    using PrinterDriver::PrinterDriver;
    using PrinterDriver::printRowFiscal; // the overload for a total

    int getPaperWidth() override { return 40; }
    void setBold() override { }
    void setCharSize() override { }
    void setCharSize(int /*size*/) override { }
    void setCenterJustify() override { }
    void fullCut() override { }
    void generatePulse() override { }
    void startSection() override { }
    void endSection() override { }
    void printLogo() override { }

    void print(unsigned indent, const QString &text) override
    {
        line += QString(indent, ' ') + text;
    }

    void println(unsigned indent, const QString &text) override
    {
        print(indent, text);
        write(line + '\n');
        line.clear();
    }

    void println(const QString &text) override { println(0, text); }

    void printRowFiscal(const QString &department, const QString &quantity,
                        const QString &description, const QString &amount) override
    {
        println(quantity + " x " + description + " at " + amount + ", department " + department);
    }

private:
    QString line; // the line under construction
};
