// The printer back end: the engine's lines, sections and sale rows as fiscal-printer commands.
#pragma once

#include "printer/printerdriver.h"

/**
 * Writes a job in the command language of a fiscal receipt printer (see commands.h).
 *
 * The device prints 32 characters a line and has no commands for bold, character sizes, logo,
 * paper cut or drawer; the calls are accepted and write nothing. Lines are centred with spaces.
 */
class CompanyPrinterDriver : public PrinterDriver
{
public:
    /// Opens the output file; see PrinterDriver.
    CompanyPrinterDriver(const QString &outputPath, bool append);

    /// Sends its commands into a text; see PrinterDriver.
    CompanyPrinterDriver(KVConfiguration &settings, QString &output);

    using PrinterDriver::printRowFiscal; // the overload for a total, which prints nothing

    /// 32, the device's line width in characters.
    int getPaperWidth() override;

    void setBold() override;

    /// Back to left justification.
    void setCharSize() override;

    /// Back to left justification, whatever the size.
    void setCharSize(int size) override;

    /// Centres the lines that follow, until a character size is set.
    void setCenterJustify() override;

    void fullCut() override;
    void generatePulse() override;

    /// Writes the commands that open the selected method's section on the printer.
    void startSection() override;

    /// Writes the command that closes the selected method's section.
    void endSection() override;

    /**
     * Appends to the line under construction; nothing is cut. Every "TOTALE" in the text goes out
     * as "T0TALE", with a zero.
     */
    void print(unsigned indent, const QString &text) override;

    /**
     * Appends like print(), then writes the line, framed and, if asked for, centred. A line wider
     * than the device's is neither centred nor cut.
     */
    void println(unsigned indent, const QString &text) override;

    void println(const QString &text) override;

    /**
     * Writes a sale row, or for a negative amount a deduction, at once: a line under construction
     * stays for the next println(). See PrinterDriver for the arguments; a deduction carries the
     * amount alone.
     */
    void printRowFiscal(const QString &department, const QString &quantity,
                        const QString &description, const QString &amount) override;

    void printLogo() override;

private:
    QString pendingLine; // the line under construction, opener included; unfinished, it is lost
};
