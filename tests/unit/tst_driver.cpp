// Life cycle, output file and initial state of the driver, and the order of its virtual operations.
#include "config/path.h"
#include "support/bytenames.h"
#include "support/bytes.h"
#include "support/capturedoutput.h"
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"

#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <clocale>
#include <cstddef>
#include <cstring>
#include <memory>
#include <type_traits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Driver = PrinterDriver;
using Settings = SyncSingleton<KVConfiguration>;

constexpr auto cannotOpen = "PrintManager::printAbstractOrder(...): Unable To Open File\n";

/// A back end of its own file: a printed line goes there with a line feed. It implements what every
/// back end must, and nothing else.
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

/// What comes first when a class adds an operation to the SAX handler, and to a back end.
class AfterHandler : public QXmlDefaultHandler
{
public:
    virtual void next() { }
};

class AfterDriver : public FileDriver
{
public:
    virtual void next() { }
};

constexpr std::ptrdiff_t notVirtual = -1;

/// The place in the virtual table that a member pointer holds: 1 + its offset in bytes. (Where
/// code addresses may be odd, the mark of a virtual member stands in the second word instead.)
template<typename Member>
std::ptrdiff_t slotOf(Member member)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof(member) == sizeof(words));
    std::memcpy(words, &member, sizeof(words));
    const bool isVirtual = (words[0] & 1) != 0 || (words[1] & 1) != 0;
    return isVirtual ? words[0] / std::ptrdiff_t(sizeof(void *)) : notVirtual;
}

struct Operation
{
    const char *name;
    std::ptrdiff_t slot;
};

/// The virtual operations in the order that back ends rely on.
QList<Operation> operations()
{
    using Plain = void (Driver::*)();
    using OfSize = void (Driver::*)(int);
    using OfText = void (Driver::*)(const QString &);
    using OfIndentedText = void (Driver::*)(unsigned, const QString &);
    using OfElement = void (Driver::*)(const QString &, const QXmlAttributes &);
    using OfFourTexts =
        void (Driver::*)(const QString &, const QString &, const QString &, const QString &);

    // clang-format off
    return {
        {"getPaperWidth",             slotOf(&Driver::getPaperWidth)                           },
        {"reset",                     slotOf(&Driver::reset)                                   },
        {"setBold",                   slotOf(&Driver::setBold)                                 },
        {"setCharSize()",             slotOf(static_cast<Plain>(&Driver::setCharSize))         },
        {"setCharSize(size)",         slotOf(static_cast<OfSize>(&Driver::setCharSize))        },
        {"setCenterJustify",          slotOf(&Driver::setCenterJustify)                        },
        {"fullCut",                   slotOf(&Driver::fullCut)                                 },
        {"generatePulse",             slotOf(&Driver::generatePulse)                           },
        {"printSeparatorLine",        slotOf(&Driver::printSeparatorLine)                      },
        {"startSection",              slotOf(&Driver::startSection)                            },
        {"endSection",                slotOf(&Driver::endSection)                              },
        {"initPrinter",               slotOf(&Driver::initPrinter)                             },
        {"print",                     slotOf(&Driver::print)                                   },
        {"println(indent, text)",     slotOf(static_cast<OfIndentedText>(&Driver::println))    },
        {"println(text)",             slotOf(static_cast<OfText>(&Driver::println))            },
        {"printRowFiscal(element)",   slotOf(static_cast<OfElement>(&Driver::printRowFiscal))  },
        {"printRowFiscal(texts)",     slotOf(static_cast<OfFourTexts>(&Driver::printRowFiscal))},
        {"printGeometry",             slotOf(&Driver::printGeometry)                           },
        {"printPrinterInfo",          slotOf(&Driver::printPrinterInfo)                        },
        {"printHeaders",              slotOf(&Driver::printHeaders)                            },
        {"printLogo",                 slotOf(&Driver::printLogo)                               },
        {"printCompanyHeader",        slotOf(&Driver::printCompanyHeader)                      },
        {"printReceiptHeader",        slotOf(&Driver::printReceiptHeader)                      },
        {"printInvoiceHeader",        slotOf(&Driver::printInvoiceHeader)                      },
        {"printDeliveryHeader",       slotOf(&Driver::printDeliveryHeader)                     },
        {"printCustomerHeader",       slotOf(&Driver::printCustomerHeader)                     },
        {"printOrderInfo",            slotOf(&Driver::printOrderInfo)                          },
        {"printSections",             slotOf(&Driver::printSections)                           },
        {"printColumnsHeader",        slotOf(&Driver::printColumnsHeader)                      },
        {"printPartialOrder",         slotOf(&Driver::printPartialOrder)                       },
        {"printFullOrder",            slotOf(&Driver::printFullOrder)                          },
        {"printFullOrderReceipt",     slotOf(&Driver::printFullOrderReceipt)                   },
        {"printFullOrderInvoice",     slotOf(&Driver::printFullOrderInvoice)                   },
        {"printFullOrderDelivery",    slotOf(&Driver::printFullOrderDelivery)                  },
        {"printFullOrderFiscal",      slotOf(&Driver::printFullOrderFiscal)                    },
        {"printAbstractOrder",        slotOf(&Driver::printAbstractOrder)                      },
        {"printAbstractOrderReceipt", slotOf(&Driver::printAbstractOrderReceipt)               },
        {"printAbstractOrderInvoice", slotOf(&Driver::printAbstractOrderInvoice)               },
        {"printAbstractOrderFiscal",  slotOf(&Driver::printAbstractOrderFiscal)                },
        {"printReport",               slotOf(&Driver::printReport)                             },
        {"printSold",                 slotOf(&Driver::printSold)                               },
        {"printStatementOfAccount",   slotOf(&Driver::printStatementOfAccount)                 },
        {"printDuplicate",            slotOf(&Driver::printDuplicate)                          },
    };
    // clang-format on
}

} // namespace

class TestDriver : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder = std::make_unique<QTemporaryDir>();
        QVERIFY(folder->isValid());
        path = folder->filePath("out");
    }

    void order_data()
    {
        QTest::addColumn<qsizetype>("place");
        QTest::addColumn<std::ptrdiff_t>("slot");
        const QList<Operation> table = operations();
        QCOMPARE(table.size(), 43);
        for (qsizetype i = 0; i < table.size(); ++i)
            QTest::newRow(table[i].name) << i << table[i].slot;
    }

    void order()
    {
        QFETCH(qsizetype, place);
        QFETCH(std::ptrdiff_t, slot);
        QVERIFY(slot != notVirtual);
        QCOMPARE(slot - operations().constFirst().slot, std::ptrdiff_t(place));
    }

    void noOtherVirtualOperation()
    {
        QCOMPARE(operations().constFirst().slot, slotOf(&AfterHandler::next));
        QCOMPARE(operations().constLast().slot + 1, slotOf(&AfterDriver::next));
    }

    void notVirtualOperations()
    {
        QCOMPARE(slotOf(&Driver::oneTime), notVirtual);
        QCOMPARE(slotOf(&Driver::documentPath), notVirtual);
        QCOMPARE(slotOf(&Driver::loadValues), notVirtual);
        QCOMPARE(slotOf(&Driver::descriptionRow), notVirtual);
    }

    void abstractContentHandler()
    {
        QVERIFY((std::is_convertible_v<PrinterDriver *, QXmlDefaultHandler *>));
        QVERIFY(std::is_abstract_v<PrinterDriver>);
        QVERIFY(std::has_virtual_destructor_v<PrinterDriver>);
    }

    void initialValues()
    {
        RecordingDriver driver;
        QCOMPARE(driver.currentMethod, "");
        QCOMPARE(driver.duplicate, false);
        QCOMPARE(driver.printDuplicate(), false);
        QCOMPARE(driver.justification, "left");
        QCOMPARE(driver.documentPrefix, "");
        QCOMPARE(driver.printerName, "");
        QCOMPARE(driver.printerCharSize, "");
        QCOMPARE(driver.printerAddress, "");
        QCOMPARE(driver.printerPort, "");
        QCOMPARE(driver.credit, "");
        QCOMPARE(driver.calls, QStringList());
    }

    void printDuplicateAnswersTheFlag()
    {
        RecordingDriver driver;
        driver.duplicate = true;
        QCOMPARE(driver.printDuplicate(), true);
        driver.duplicate = false;
        QCOMPARE(driver.printDuplicate(), false);
    }

    void oneTimeIsTrueOnce()
    {
        RecordingDriver driver;
        QCOMPARE(driver.oneTime(), true);
        QCOMPARE(driver.oneTime(), false);
        QCOMPARE(driver.oneTime(), false);
        QVERIFY(readJob(driver, "<job><method name='printPartialOrder'/></job>"));
        QCOMPARE(driver.oneTime(), false);

        RecordingDriver another;
        QCOMPARE(another.oneTime(), true);
    }

    void settingsAreTheSingleton()
    {
        const TemporaryHome fresh(settingsFile(documentGroup("doc", "paperWidth = \"40\";")));
        QVERIFY(!Settings::instance_pointer.load());
        {
            const FileDriver driver(path, false);
            QVERIFY(Settings::instance_pointer.load());
            QCOMPARE(driver.settings, Settings::instance());
            const FileDriver another(path, false);
            QCOMPARE(another.settings, driver.settings);
        }
        QCOMPARE(Settings::instance()->getStrValue("korvel.doc.paperWidth"), "40");
    }

    void documentHooks()
    {
        RecordingDriver driver;
        QCOMPARE(driver.startDocument(), true);
        QCOMPARE(driver.calls, QStringList("reset"));
        QCOMPARE(driver.endElement("", "job", "job"), true);
        QCOMPARE(driver.endElement("", "method", "method"), true);
        QCOMPARE(driver.calls, QStringList("reset"));
        QCOMPARE(driver.endDocument(), true);
        QCOMPARE(driver.calls, QStringList({"reset", "endSection"}));
    }

    void lifeCycle_data()
    {
        QTest::addColumn<QString>("job");
        QTest::addColumn<bool>("readToItsEnd");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *name, const QString &job, bool readToItsEnd,
                            const QStringList &calls) {
            QTest::newRow(name) << job << readToItsEnd << calls;
        };

        row("reset, section opened, section closed",
            "<job><method name='printPartialOrder'/></job>", true,
            {"reset", "startSection", "endSection"});
        row("a job without a method still closes the section", "<job/>", true,
            {"reset", "endSection"});
        row("a job cut short leaves the section open", "<job><method name='printPartialOrder'/>",
            false, {"reset", "startSection"});
        row("a broken job leaves the section open",
            "<job><method name='printPartialOrder'/></bill>", false, {"reset", "startSection"});
    }

    void lifeCycle()
    {
        QFETCH(QString, job);
        QFETCH(bool, readToItsEnd);
        QFETCH(QStringList, calls);
        RecordingDriver driver;
        QCOMPARE(readJob(driver, job), readToItsEnd);
        QCOMPARE(driver.calls, calls);
    }

    void defaultsDoNothing()
    {
        const QByteArray bytes = written([](FileDriver &driver) {
            driver.reset();
            driver.initPrinter();
            driver.printRowFiscal("total", QXmlAttributes());
            driver.printRowFiscal("1", "2", "COFFEE", "1.20");
            driver.write("what the test writes");
            QCOMPARE(driver.lines, QStringList());
        });
        QCOMPARE(bytes, "what the test writes");
    }

    void outputFile_data()
    {
        QTest::addColumn<bool>("append");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *name, bool append, const QByteArray &before,
                            const QString &text, const QByteArray &after) {
            QTest::newRow(name) << append << before << text << after;
        };
        const QByteArray none;
        const QString lines = QString("0123456789\n").repeated(100000);

        row("created when missing", false, none, "NEW\n", "NEW\n");
        row("created when missing, to append", true, none, "NEW\n", "NEW\n");
        row("created though nothing is written", false, none, "", "");
        row("emptied when not appending", false, "OLD AND LONGER\n", "NEW\n", "NEW\n");
        row("emptied though nothing is written", false, "OLD\n", "", "");
        row("kept when appending", true, "OLD\n", "NEW\n", "OLD\nNEW\n");
        row("kept when appending without a line end", true, "OLD", "NEW", "OLDNEW");
        row("kept though nothing is appended", true, "OLD\n", "", "OLD\n");
        row("flushed without a line end", false, none, "=T1", "=T1");
        row("flushed when it is long", false, none, lines, lines.toLatin1());
        row("line ends go out as they are", false, none, "=S\r\n=o\n\r", "=S\r\n=o\n\r");
        row("a NUL goes out as it is", false, none, QString("A") + QChar() + "B",
            QByteArray("A\0B", 3));
    }

    void outputFile()
    {
        QFETCH(bool, append);
        QFETCH(QByteArray, before);
        QFETCH(QString, text);
        QFETCH(QByteArray, after);
        if (!before.isEmpty())
            writeFile(before);

        const CapturedOutput output;
        {
            FileDriver driver(path, append);
            driver.write(text);
        }
        QVERIFY(QFile::exists(path));
        QCOMPARE(linesOf(bytesOf(path)), linesOf(after));
        QCOMPARE(output.bytes(), "");
    }

    void outputFilesOfAnyName_data() { addByteNames(); }

    void outputFilesOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Sweeper sweeper(folder->path());
        const QByteArray bytes = folder->path().toUtf8() + '/' + name;
        const CapturedOutput output;
        for (const bool append : {false, true, true}) {
            FileDriver driver(korvel::path::fromBytes(bytes), append);
            driver.write("=K\n");
        }
        QCOMPARE(output.bytes(), "");
        QCOMPARE(linesOf(bytesNamed(bytes)), linesOf("=K\n=K\n=K\n"));
        QCOMPARE(namesIn(folder->path().toUtf8()), QByteArrayList{name});
    }

    void outputFileOpensWithTheDriver()
    {
        writeFile("OLD\n");
        const FileDriver driver(path, false);
        QCOMPARE(QFile(path).size(), 0);
    }

    void outputIsUtf8_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::newRow("in the locale of the tests") << QByteArray("");
        QTest::newRow("in the C locale") << QByteArray("C");
    }

    void outputIsUtf8()
    {
        QFETCH(QByteArray, locale);
        const auto restore = qScopeGuard([] { std::setlocale(LC_ALL, ""); });
        QVERIFY(std::setlocale(LC_ALL, locale.constData()));

        const QByteArray bytes = written(
            [](FileDriver &driver) { driver.write("Caff\u00e8 \u20ac \U0001f600 \u4e2d"); });
        QCOMPARE(bytes, "Caff\xc3\xa8 \xe2\x82\xac \xf0\x9f\x98\x80 \xe4\xb8\xad");
    }

    void outputThatCannotBeOpened_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("append");
        const auto rows = [](const QByteArray &what, const QString &name) {
            QTest::newRow(what.constData()) << name << false;
            QTest::newRow((what + ", to append").constData()) << name << true;
        };

        rows("in a folder that is missing", "missing/out");
        rows("a folder", ".");
        rows("below a file", "file/out");
        rows("no path", "");
    }

    void outputThatCannotBeOpened()
    {
        QFETCH(QString, name);
        QFETCH(bool, append);
        path = folder->filePath("file");
        writeFile("OLD\n");

        const CapturedOutput output;
        FileDriver driver(name.isEmpty() ? name : folder->filePath(name), append);
        QCOMPARE(output.bytes(), cannotOpen);

        QVERIFY(readJob(driver, "<job><method name='printFullOrderReceipt'/>"
                                "<receipt serialnumber='42'/></job>"));
        QCOMPARE(driver.lines, QStringList({"Serial Number: 42", QString(32, '=')}));
        driver.write(QString(100000, 'A'));
        QCOMPARE(output.bytes(), cannotOpen);
        QCOMPARE(QDir(folder->path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
                 QStringList("file"));
        QCOMPARE(bytesOf(path), "OLD\n");
    }

    void outputToAPipe()
    {
        const QByteArray name = QFile::encodeName(path);
        QCOMPARE(mkfifo(name.constData(), S_IRUSR | S_IWUSR), 0);
        const int reader = open(name.constData(), O_RDONLY | O_NONBLOCK);
        QVERIFY(reader >= 0);
        const auto close = qScopeGuard([=] { ::close(reader); });

        const CapturedOutput output;
        {
            FileDriver driver(path, false);
            driver.write("=K\n");
        }
        QCOMPARE(output.bytes(), "");
        char bytes[16];
        QCOMPARE(read(reader, bytes, sizeof(bytes)), ssize_t(3));
        QCOMPARE(QByteArray(bytes, 3), "=K\n");
    }

    void outputToAFullDevice()
    {
        if (!QFile::exists("/dev/full"))
            QSKIP("there is no /dev/full here");
        const CapturedOutput output;
        {
            FileDriver driver("/dev/full", false);
            QVERIFY(readJob(driver, "<job><method name='printFullOrderReceipt'/>"
                                    "<receipt serialnumber='42'/></job>"));
            driver.write(QString(1000000, 'A'));
            QCOMPARE(driver.lines.size(), 2);
        }
        QCOMPARE(output.bytes(), "");
    }

private:
    /// What a driver leaves in the output file when it has gone.
    template<typename Use>
    QByteArray written(Use use)
    {
        {
            FileDriver driver(path, false);
            use(driver);
        }
        return bytesOf(path);
    }

    void writeFile(const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    const TemporaryHome home{""};
    std::unique_ptr<QTemporaryDir> folder;
    QString path; // of the output file
};

QTEST_GUILESS_MAIN(TestDriver)
#include "tst_driver.moc"
