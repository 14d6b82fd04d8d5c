// A driver that notes each call on the printer as one line of text.
#pragma once

#include "printer/printerdriver.h"

#include <QStringList>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

/**
 * Stands in for a back end when the engine is tested: "println |text|", "println 1 |text|",
 * "print 1 |text|", "setBold", "setCharSize", "setCharSize 1", "setCenterJustify", "startSection",
 * "endSection", "reset", "initPrinter", "printLogo", "printRowFiscal |1|2|COFFEE|1.20|",
 * "printRowFiscal total".
 *
 * Prints nothing; its paper is 32 characters wide.
 */
class RecordingDriver : public PrinterDriver
{
public:
    RecordingDriver()
        : PrinterDriver("/dev/null", false)
    {
    }

    /// The calls that a job causes: the elements, inside a root element, after the method's.
    QStringList callsOf(const QString &method, const QString &elements)
    {
        return callsOf("<method name=\"" + method + "\"/>" + elements);
    }

    /// The calls that a job of these elements causes, without the one that opens the section of a
    /// first method and without those of the job's start and end.
    QStringList callsOf(const QString &elements)
    {
        QXmlInputSource source;
        source.setData("<job>" + elements + "</job>");
        QXmlSimpleReader reader;
        reader.setContentHandler(this);
        calls.clear();
        wellFormed = reader.parse(source);
        QStringList result = calls;
        result.removeOne("reset");
        result.removeOne("startSection");
        result.removeOne("endSection");
        return result;
    }

    QStringList calls;      // every call since the last callsOf()
    bool wellFormed = true; // whether the last job was read to its end

    // What back ends and documents share, for tests to look at.
    using PrinterDriver::credit;
    using PrinterDriver::currentMethod;
    using PrinterDriver::documentPrefix;
    using PrinterDriver::duplicate;
    using PrinterDriver::justification;
    using PrinterDriver::layout;
    using PrinterDriver::printerAddress;
    using PrinterDriver::printerCharSize;
    using PrinterDriver::printerName;
    using PrinterDriver::printerPort;

    int getPaperWidth() override { return 32; }
    void reset() override { note("reset"); }
    void setBold() override { note("setBold"); }
    void setCharSize() override { note("setCharSize"); }
    void setCharSize(int size) override { note("setCharSize " + QByteArray::number(size)); }
    void setCenterJustify() override { note("setCenterJustify"); }
    void fullCut() override { note("fullCut"); }
    void generatePulse() override { note("generatePulse"); }
    void startSection() override { note("startSection"); }
    void endSection() override { note("endSection"); }
    void initPrinter() override { note("initPrinter"); }
    void print(unsigned indent, const QString &text) override
    {
        note("print " + QByteArray::number(indent), {text});
    }
    void println(unsigned indent, const QString &text) override
    {
        note("println " + QByteArray::number(indent), {text});
    }
    void println(const QString &text) override { note("println", {text}); }
    void printRowFiscal(const QString &qName, const QXmlAttributes & /*attributes*/) override
    {
        note("printRowFiscal " + qName.toUtf8());
    }
    void printRowFiscal(const QString &department, const QString &quantity,
                        const QString &description, const QString &amount) override
    {
        note("printRowFiscal", {department, quantity, description, amount});
    }
    void printLogo() override { note("printLogo"); }

private:
    void note(const QByteArray &call, const QStringList &texts = {})
    {
        QString line = QString::fromUtf8(call);
        if (!texts.isEmpty())
            line += " |" + texts.join(u'|') + u'|';
        calls.append(line);
    }
};
