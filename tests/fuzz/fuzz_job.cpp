// Jobs of any bytes, through the limits and the real back end into a file.
#include "app/jobguard.h"
#include "fuzz/expect.h"
#include "printer/company/companyprinterdriver.h"
#include "support/bytes.h"
#include "support/capturedoutput.h"
#include "support/jobs.h"
#include "support/temporaryhome.h"

#include <QBuffer>
#include <QStringDecoder>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

/// Every document with all that can be switched on.
QByteArray settings()
{
    QByteArray document = "quantityFieldWidth = 3; priceFieldWidth = 7; totalPriceFieldWidth = 8; "
                          "paperWidth = 32; topMargin = 2; descriptionWidth = 20;";
    for (const char *name : {"Geometry", "Header", "Logo", "Company", "DeliveryAddress",
                             "BillingAddress", "Telephone", "Date", "Time", "Table", "Customer",
                             "LicenseNumber", "FiscalCode", "Credit", "Waiter", "Note"})
        document += QByteArray(" print") + name + " = true;";

    QByteArray groups;
    for (const char *name : {"doc", "prefiscaldoc", "fiscaldoc", "receiptdoc", "invoicedoc",
                             "deliverydoc", "reportdoc", "solddoc"})
        groups += documentGroup(name, document);
    return settingsFile(groups);
}

/// What the reader handed to the back end.
struct Job
{
    qint64 elements = 0;
    qint64 attributes = 0;
    qint64 characters = 0; // of all values
    qint64 longest = 0;    // characters of the longest value
    bool lineEnds = false; // whether a value holds one
    bool ended = false;    // whether the job was read to its end
};

class Driver : public CompanyPrinterDriver
{
public:
    explicit Driver(const QString &outputPath)
        : CompanyPrinterDriver(outputPath, false)
    {
    }

    Job job;

    bool startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override
    {
        ++job.elements;
        job.attributes += attributes.count();
        for (int i = 0; i < attributes.count(); ++i) {
            const QString value = attributes.value(i);
            job.characters += value.size();
            job.longest = std::max<qint64>(job.longest, value.size());
            job.lineEnds = job.lineEnds || value.contains(u'\n') || value.contains(u'\r');
        }
        return CompanyPrinterDriver::startElement(namespaceUri, localName, qName, attributes);
    }

    bool endDocument() override
    {
        job.ended = true;
        return CompanyPrinterDriver::endDocument();
    }
};

struct Output
{
    Job job;
    QByteArray stream;
    QByteArray said;
};

Output outputOfJob(QByteArray bytes)
{
    static const TemporaryHome home{settings()};
    const QString path = home.path() + "/stream.out";

    QFile::remove(path); // some file systems wait for the disk when a file is emptied
    const CapturedOutput said;
    Output output;
    {
        Driver driver(path);
        korvel::app::JobGuard guard(driver);
        QBuffer job(&bytes);
        guard.parse(job);
        output.job = driver.job;
    }
    output.stream = bytesOf(path);
    output.said = said.bytes();
    return output;
}

/// Hundredths as the printer takes them: never below zero, and "nan" and "inf" are numbers.
bool isAmount(const QByteArray &text)
{
    bool isNumber = false;
    const double amount = text.toDouble(&isNumber);
    return text == text.trimmed() && isNumber && !(amount < 0) && !text.startsWith('-');
}

bool isSaleRow(const QByteArray &line)
{
    // The texts around the amount may hold any mark.
    for (qsizetype start = line.indexOf("/$"); start >= 0; start = line.indexOf("/$", start + 1))
        for (qsizetype end = line.indexOf("/*", start + 2);
             end >= 0 && isAmount(line.mid(start + 2, end - start - 2));
             end = line.indexOf("/*", end + 1))
            if (line.indexOf("/(", end + 2) >= 0)
                return line.startsWith("=R") && line.endsWith(')');
    return false;
}

/// Whether a line, without its end, is a command, or one of the two of a section or a deduction.
bool isCommand(const QByteArray &line, const QByteArray &before)
{
    if (before == "=S\r")
        return line.startsWith("=V/$") && line.endsWith('\r') && isAmount(line.mid(4).chopped(1));
    if (before == "=K")
        return line == "=C1";
    for (const char *command : {"=K", "=T1", "=o/*1", "=o", "=S\r"})
        if (line == command)
            return true;
    return (line.startsWith("=\"/(") && line.endsWith(" )")) || isSaleRow(line);
}

void expectCommands(const QByteArray &stream)
{
    QByteArray before;
    for (qsizetype start = 0; start < stream.size();) {
        const qsizetype end = stream.indexOf('\n', start);
        const QByteArray line = stream.mid(start, end - start);
        expect(isCommand(line, before), "the stream is made of whole commands");
        before = line;
        start = end + 1;
    }
    expect(before != "=K" && before != "=S\r", "a command of two lines has both");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QtMessageHandler silenced =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static_cast<void>(silenced);

    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const Output whole = outputOfJob(bytes);
    const Job &job = whole.job;

    expect(whole.stream.isEmpty() || whole.stream.endsWith('\n'), "the stream ends with a line");
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(whole.stream);
    expect(!decoder.hasError() && text.startsWith(u'=') != text.isEmpty(), "the stream is UTF-8");
    if (!job.lineEnds)
        expectCommands(whole.stream);
    if (job.ended)
        expect(whole.stream.endsWith("=o\n") || whole.stream.endsWith("=T1\n"),
               "a job that ends closes its section");
    expect(whole.said.isEmpty() || (whole.said == "File Format Not Supported\n" && !job.ended),
           "an unknown method ends the job with one line");
    // An element has fixed labels of less than 2,000 bytes, and repeats one earlier value at most;
    // framing and padding come to less than 64 bytes an attribute and 16 a character.
    expect(whole.stream.size() <= job.elements * (2000 + 3 * job.longest) + job.attributes * 64
                                      + job.characters * 16 + 4,
           "the stream has a limit");

    // A job that breaks off prints what came before, but that it may be well-formed only so.
    Output cut = outputOfJob(bytes.first(bytes.size() / 2));
    if (cut.job.ended && !whole.stream.startsWith(cut.stream))
        cut.stream.chop(cut.stream.endsWith("=T1\n") ? 4 : 3);
    expect(whole.stream.startsWith(cut.stream), "a job cut off prints a beginning of the whole");
    return 0;
}
