// Life cycle and initial state of the driver, and the order of its virtual operations.
#include "support/filedriver.h"
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace tst_driver {

using Driver = PrinterDriver;
using Settings = SyncSingleton<KVConfiguration>;

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

class TestDriver : public QObject
{
    Q_OBJECT

private slots:
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
            const FileDriver driver("/dev/null", false);
            QVERIFY(Settings::instance_pointer.load());
            QCOMPARE(driver.settings, Settings::instance());
            const FileDriver another("/dev/null", false);
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

private:
    const TemporaryHome home{""};
};

KORVEL_TEST(TestDriver)

} // namespace tst_driver

#include "tst_driver.moc"
