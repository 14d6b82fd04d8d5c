// The limits on jobs and settings: what lies within one is printed, what lies beyond does no harm.
#include "support/settingstext.h"
#include "support/shop.h"

#include "config/config.h"

#include <QTest>

#include <limits>

#include <sys/stat.h>

namespace {

// Sanitizers make long jobs slow.
constexpr int slowness = sanitized ? 4 : 1;

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

// Summary fiscal receipts print a name as it stands and depend on no setting.

QByteArray fiscalJob(const QByteArray &dtd, const QByteArray &elements)
{
    return dtd + "<job><method name=\"printAbstractOrderFiscal\"/>" + elements + "</job>";
}

QByteArray sale(const QByteArray &name)
{
    return "<receipe_type department=\"1\" name=\"" + name + "\" price=\"2\"/>";
}

QByteArray saleRow(const QByteArray &name) { return "=R1/$200/*1/(" + name + ")\n"; }

const QByteArray fiscalOpening = "=K\n=C1\n";
const QByteArray fiscalClosing = "=T1\n";

QByteArray declaring(const QByteArray &declarations)
{
    return "<!DOCTYPE job [" + declarations + "]>";
}

QByteArray entity(const QByteArray &name, const QByteArray &text)
{
    return "<!ENTITY " + name + " \"" + text + "\">";
}

QByteArray times(qsizetype count, const QByteArray &text) { return text.repeated(count); }

QByteArray line(const QByteArray &text) { return "=\"/(" + text + " )\n"; }

/// Texts made of their indexes, joined.
template<typename Make>
QByteArray each(int count, const Make &make)
{
    QByteArray all;
    for (int i = 0; i < count; ++i)
        all += make(QByteArray::number(i));
    return all;
}

const QByteArray noSettings = "korvel:\n{\n};\n";

/// A group of the brace notation within others of the same name: `depth` of them in all.
QByteArray nestedGroups(int depth, const QByteArray &inner)
{
    return times(depth, "g:{") + inner + times(depth, "};");
}

QByteArray nestedElements(int depth, const QByteArray &attributes)
{
    return times(depth - 1, "<g>") + "<g " + attributes + "/>" + times(depth - 1, "</g>");
}

/// The key of a setting within that many groups.
QString nestedKey(int depth, const QString &setting)
{
    return QString("g.").repeated(depth) + setting;
}

/// The settings that a file of these bytes gives.
class Settings
{
public:
    Settings(const QByteArray &bytes, const QString &notation)
    {
        const QString path = folder.filePath("settings");
        writeFile(path, bytes);
        store.readFile(path, notation);
    }

    const QTemporaryDir folder;
    libconfig::Config store;
};

// What every document prints for the elements that all of them share, without attributes and with
// every switch on. The name of the printer is empty, and centred: 16 blanks.
const QByteArray separator = line("================================");
const QByteArray sharedElements = "<printers/><geometry/><headers/><logo/><company/><receipt/>"
                                  "<invoice/><delivery/><orderinfo/>";
const QByteArray sharedLines =
    line("") + separator + line("                ") + separator + separator
    + line(" Serial Number: ") + separator + line(" Invoice Number: ") + separator
    + line(" Delivery Number: ") + separator + line(" Date: ") + line(" Time: ") + line(" Table: ")
    + line(" Waiter: ") + line(" Note: ") + line(" Credit: ") + separator;
const QByteArray customerLines = line("CUSTOMER") + line(" ") + line(" Telephone: ")
                                 + line(" License Number: ") + line(" Fiscal Code: ") + separator;
const QByteArray documentElements =
    "<customer/><receipe/><otherreceipe/><variant/><total/><notPaid/><receipe_type/><totals/>"
    "<date/><prefiscalssummary/><receiptssummary/><taxrate_item/><invoicessummary/>"
    "<cancelledsummary/><statement_list/><statement/><unknown/>";

constexpr const char *documentGroups[] = {"doc",        "prefiscaldoc", "fiscaldoc", "receiptdoc",
                                          "invoicedoc", "deliverydoc",  "reportdoc", "solddoc"};

QByteArray settingsOfAllDocuments(const QByteArray &settings)
{
    QByteArray groups;
    for (const char *name : documentGroups)
        groups += documentGroup(name, settings);
    return settingsFile(groups);
}

constexpr auto everySwitch =
    R"(printGeometry = "true"; printHeader = "true"; printLogo = "true"; printCompany = "true";
       printDeliveryAddress = "true"; printBillingAddress = "true"; printTelephone = "true";
       printDate = "true"; printTime = "true"; printTable = "true"; printCustomer = "true";
       printLicenseNumber = "true"; printFiscalCode = "true"; printCredit = "true";
       printWaiter = "true"; printNote = "true"; openCashDrawer = "true"; )";

} // namespace

class TestLimits : public QObject
{
    Q_OBJECT

private slots:
    void elementsNestedInEachOther_data()
    {
        QTest::addColumn<int>("depth"); // with the root element
        QTest::addColumn<int>("printed");
        QTest::addColumn<bool>("sound");

        QTest::newRow("one fewer than the most") << 1023 << 1022 << true;
        QTest::newRow("the most") << 1024 << 1023 << true;
        QTest::newRow("one more than the most") << 1025 << 1023 << false;
        QTest::newRow("very many") << 300000 << 1023 << false;
    }

    void elementsNestedInEachOther()
    {
        QFETCH(int, depth);
        QFETCH(int, printed);
        QFETCH(bool, sound);
        const Shop shop(noSettings);
        const QByteArray open = sale("X").replace("/>", ">");
        const auto run = shop.render(
            fiscalJob("", times(depth - 1, open) + times(depth - 1, "</receipe_type>")));
        VERIFY_QUIET(run);
        QCOMPARE(difference(shop.output(), fiscalOpening + times(printed, saleRow("X"))
                                               + (sound ? fiscalClosing : QByteArray())),
                 QString());
    }

    void elementsBesideEachOtherAreNotNested()
    {
        const Shop shop(noSettings);
        VERIFY_QUIET(shop.render(fiscalJob("", times(2000, "<a><b/></a>") + sale("X"))));
        QCOMPARE(difference(shop.output(), fiscalOpening + saleRow("X") + fiscalClosing),
                 QString());
    }

    /// The name is printed, or the job ends before its first element.
    void entities_data()
    {
        QTest::addColumn<QByteArray>("declarations");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("printed"); // null when the job ends

        const auto row = [](const char *title, const QByteArray &declarations,
                            const QByteArray &name, const QByteArray &printed) {
            QTest::newRow(title) << declarations << name << printed;
        };
        const QByteArray ends;

        // How many.
        const auto general = [](const QByteArray &i) { return entity("e" + i, "text" + i); };
        const auto parameter = [](const QByteArray &i) { return entity("% p" + i, "text" + i); };
        const auto external = [](const QByteArray &i) {
            return "<!ENTITY x" + i + " SYSTEM \"missing" + i + "\">";
        };
        row("63 entities", each(63, general), "&e62;", "text62");
        row("64 entities", each(64, general), "&e63;", "text63");
        row("65 entities", each(65, general), "&e0;", ends);
        row("3 parameter entities", each(3, parameter), "X", "X");
        row("4 parameter entities, more than the reader takes", each(4, parameter), "X", ends);
        row("64 external entities", each(64, external), "X", "X");
        row("65 external entities", each(65, external), "X", ends);
        row("64 of all kinds", each(30, general) + each(31, external) + each(3, parameter), "&e9;",
            "text9");
        row("65 of all kinds", each(30, general) + each(32, external) + each(3, parameter), "&e9;",
            ends);
        row("100,000 entities", each(100000, general), "X", ends);

        // How much text.
        row("no text", entity("e", ""), "&e;", "");
        for (const int length : {4095, 4096, 4097}) {
            const auto named = [&](const char *what) {
                return QByteArray(what) + ' ' + QByteArray::number(length);
            };
            const QByteArray text = times(length, "x");
            row(named("a text of"), entity("e", text), "&e;", length > 4096 ? ends : text);
            row(named("a text that is not referred to, of"), entity("e", text), "X",
                length > 4096 ? ends : "X");
            row(named("two texts that come to"),
                entity("e", times(4000, "x")) + entity("f", times(length - 4000, "y")), "&f;",
                length > 4096 ? ends : times(length - 4000, "y"));
            row(named("character references that come to"), entity("e", times(length, "&#120;")),
                "&e;", length > 4096 ? ends : text);

            // 1,023 of its own, three times 1,023 beside 3, 4 or 5 further ones.
            const QByteArray inner = entity("i", times(1023, "x"));
            const QByteArray outer = entity("o", "&i;&i;&i;" + times(length - 4092, "y"));
            const QByteArray expanded = times(3069, "x") + times(length - 4092, "y");
            row(named("nested texts that come to"), inner + outer, "&o;",
                length > 4096 ? ends : expanded);
            row(named("nested texts, declared in reverse order, that come to"), outer + inner,
                "&o;", length > 4096 ? ends : expanded);
            row(named("texts nested by character references that come to"),
                inner + entity("o", "&#38;i;&#x26;i;&i;" + times(length - 4092, "y")), "&o;",
                length > 4096 ? ends : expanded);
            row(named("texts of parameter entities that come to"),
                entity("% i", times(1023, "x"))
                    + entity("o", "%i;%i;%i;" + times(length - 4092, "y")),
                "&o;", length > 4096 ? ends : expanded);
        }
        row("a text of 3,000,000", entity("e", times(3000000, "x")), "X", ends);
        row("ten times ten, five deep",
            entity("a", times(10, "x")) + entity("b", times(10, "&a;"))
                + entity("c", times(10, "&b;")) + entity("d", times(10, "&c;"))
                + entity("e", times(10, "&d;")),
            "X", ends);
        row("ten times ten, sixty deep in reverse order",
            each(60,
                 [](const QByteArray &i) {
                     return entity("e" + QByteArray::number(60 - i.toInt()),
                                   times(10, "&e" + QByteArray::number(59 - i.toInt()) + ';'));
                 })
                + entity("e0", "x"),
            "X", ends);

        // Without an end, or without a text.
        row("an entity of itself", entity("a", "&a;"), "&a;", ends);
        row("an entity of itself that is not referred to", entity("a", "&a;"), "X", ends);
        row("two entities of each other", entity("a", "&b;") + entity("b", "&a;"), "&a;", ends);
        row("entities in a circle",
            entity("a", "&b;") + entity("b", "&c;") + entity("c", "&d;") + entity("d", "&b;"), "X",
            ends);
        row("a circle by character references",
            entity("a", "&#38;b;") + entity("b", "&#x26;#38;a;") + entity("b2", "&#38;a;"), "X",
            "X"); // "&#38;a;" is a text of its own: nothing refers to it again
        row("a true circle by character references",
            entity("a", "&#38;b;") + entity("b", "&#x26;a;"), "&a;", ends);
        row("a parameter entity of itself", entity("% a", "&#37;a;") + "%a;", "X", ends);
        row("two parameter entities of each other",
            entity("% a", "&#37;b;") + entity("% b", "&#37;a;") + "%a;", "X", ends);
        row("empty texts, twenty times twenty, fifty deep",
            entity("e0", "")
                + each(50,
                       [](const QByteArray &i) {
                           return entity("e" + QByteArray::number(i.toInt() + 1),
                                         times(20, "&e" + i + ';'));
                       }),
            "X", ends);
        row("empty texts, twenty parameter entities deep",
            entity("% e0", "")
                + each(20,
                       [](const QByteArray &i) {
                           return entity("% e" + QByteArray::number(i.toInt() + 1),
                                         times(20, "&#37;e" + i + ';'));
                       })
                + "%e20;",
            "X", ends);
        row("a chain without branches",
            entity("e0", "end")
                + each(63,
                       [](const QByteArray &i) {
                           return entity("e" + QByteArray::number(i.toInt() + 1), "&e" + i + ';');
                       }),
            "&e63;", "end");
    }

    void entities()
    {
        QFETCH(QByteArray, declarations);
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, printed);
        const Shop shop(noSettings);
        VERIFY_QUIET(shop.render(fiscalJob(declaring(declarations), sale(name))));
        QCOMPARE(difference(shop.output(), printed.isNull()
                                               ? QByteArray()
                                               : fiscalOpening + saleRow(printed) + fiscalClosing),
                 QString());
    }

    void charactersReferredToInAll_data()
    {
        QTest::addColumn<int>("references"); // of one character each, after 1,048,320
        QTest::addColumn<int>("printed");
        QTest::addColumn<bool>("sound");

        QTest::newRow("1,048,575") << 255 << 255 << true;
        QTest::newRow("1,048,576") << 256 << 256 << true;
        QTest::newRow("1,048,577") << 257 << 256 << false;
        QTest::newRow("many more") << 20000 << 256 << false;
    }

    void charactersReferredToInAll()
    {
        QFETCH(int, references);
        QFETCH(int, printed);
        QFETCH(bool, sound);
        const Shop shop(noSettings);
        const QByteArray text = times(4095, "x");
        VERIFY_QUIET(
            shop.render(fiscalJob(declaring(entity("e", text) + entity("f", "y")),
                                  times(256, sale("&e;")) + times(references, sale("&f;")))));
        QCOMPARE(difference(shop.output(), fiscalOpening + times(256, saleRow(text))
                                               + times(printed, saleRow("y"))
                                               + (sound ? fiscalClosing : QByteArray())),
                 QString());
    }

    void referencesByLongNamesCount()
    {
        // However the name lies in the blocks that the job is read in.
        const Shop shop(noSettings);
        const QByteArray name = times(1500, "n");
        const QByteArray text = times(4096, "x");
        VERIFY_QUIET(shop.render(
            fiscalJob(declaring(entity(name, text)), times(300, sale('&' + name + ';')))));
        QCOMPARE(difference(shop.output(), fiscalOpening + times(256, saleRow(text))), QString());
    }

    void referencesBetweenTagsCount()
    {
        const Shop shop(noSettings);
        VERIFY_QUIET(
            shop.render(fiscalJob(declaring(entity("e", times(4096, "x"))),
                                  sale("A") + times(256, "&e;") + sale("B") + "&e;" + sale("C"))));
        QCOMPARE(difference(shop.output(), fiscalOpening + saleRow("A") + saleRow("B")), QString());
    }

    void referencesToEmptyTextsThatReferOnCount()
    {
        // One reference comes to 1,000 further ones: 1,048 of them stay within the limit.
        const Shop shop(noSettings);
        VERIFY_QUIET(
            shop.render(fiscalJob(declaring(entity("e", "") + entity("f", times(1000, "&e;"))),
                                  times(1048, "&f;") + sale("A") + "&f;" + sale("B"))));
        QCOMPARE(difference(shop.output(), fiscalOpening + saleRow("A")), QString());
    }

    /// What a DTD may hold besides entities.
    void documentTypes_data()
    {
        QTest::addColumn<QByteArray>("dtd");
        QTest::addColumn<bool>("sound");

        const auto groups = [](int depth) {
            return declaring("<!ELEMENT job " + times(depth, "(") + 'a' + times(depth, ")") + '>');
        };
        QTest::newRow("a name alone") << QByteArray("<!DOCTYPE job>") << true;
        QTest::newRow("a name on a line of its own") << QByteArray("<!DOCTYPE job>\n") << true;
        QTest::newRow("the name of another element") << QByteArray("<!DOCTYPE other>\n") << true;
        QTest::newRow("no declarations") << declaring("") << true;
        QTest::newRow("a content model of a group") << groups(1) << true;
        QTest::newRow("a content model of 100 groups in each other") << groups(100) << true;
        QTest::newRow("a content model of 300,000") << groups(300000) << false;
        QTest::newRow("300,000 groups without an end")
            << "<!DOCTYPE job [<!ELEMENT job " + times(300000, "(") << false;
        QTest::newRow("a content model of 100,000 names")
            << declaring("<!ELEMENT job (a" + times(100000, "|a") + ")>") << true;
        QTest::newRow("20,000 attribute lists") << declaring(each(20000, [](const QByteArray &i) {
            return "<!ATTLIST job a" + i + " CDATA \"d\">";
        })) << true;
        QTest::newRow("20,000 notations and entities that are not XML") << declaring(
            each(20000, [](const QByteArray &i) {
                return "<!NOTATION n" + i + " SYSTEM \"n\"><!ENTITY u" + i + " SYSTEM \"u\" NDATA n"
                       + i + '>';
            })) << true;
        QTest::newRow("sections in each other, 300,000 deep")
            << declaring(times(300000, "<![INCLUDE[")) << false;
    }

    void documentTypes()
    {
        QFETCH(QByteArray, dtd);
        QFETCH(bool, sound);
        const Shop shop(noSettings);
        VERIFY_QUIET(shop.render(fiscalJob(dtd, sale("X"))));
        QCOMPARE(difference(shop.output(),
                            sound ? fiscalOpening + saleRow("X") + fiscalClosing : QByteArray()),
                 QString());
    }

    /// A FIFO that nobody writes to stops whoever opens it; a file would show in the output.
    void externalFilesAreNotRead_data()
    {
        QTest::addColumn<QByteArray>("dtd"); // %1 is the path of the file
        QTest::addColumn<QByteArray>("reference");

        QTest::newRow("an external DTD")
            << QByteArray("<!DOCTYPE job SYSTEM \"%1\">") << QByteArray();
        QTest::newRow("a public DTD")
            << QByteArray("<!DOCTYPE job PUBLIC \"-//Till//DTD\" \"%1\">") << QByteArray();
        QTest::newRow("an external DTD beside declarations")
            << QByteArray("<!DOCTYPE job SYSTEM \"%1\" [<!ENTITY e \"E\">]>") << QByteArray();
        QTest::newRow("an external entity")
            << QByteArray("<!DOCTYPE job [<!ENTITY e SYSTEM \"%1\">]>") << QByteArray("&e;");
        QTest::newRow("a public entity")
            << QByteArray("<!DOCTYPE job [<!ENTITY e PUBLIC \"-//Till//E\" \"%1\">]>")
            << QByteArray("&e;");
        QTest::newRow("an external parameter entity")
            << QByteArray("<!DOCTYPE job [<!ENTITY % e SYSTEM \"%1\">%e;]>") << QByteArray();
        QTest::newRow("an entity that is not XML")
            << QByteArray("<!DOCTYPE job [<!NOTATION n SYSTEM \"%1\">"
                          "<!ENTITY e SYSTEM \"%1\" NDATA n>]>")
            << QByteArray();
        QTest::newRow("a schema") << QByteArray("<?xml-stylesheet href=\"%1\"?>") << QByteArray();
    }

    void externalFilesAreNotRead()
    {
        QFETCH(QByteArray, dtd);
        QFETCH(QByteArray, reference);
        const Shop shop(noSettings);
        writeFile(shop.path("marker"), sale("MARKER"));
        QCOMPARE(mkfifo(qPrintable(shop.path("fifo")), 0600), 0);
        for (const QString &path :
             {QString("marker"), shop.path("marker"), "file://" + shop.path("marker"),
              QString("fifo"), shop.path("fifo"), "file://" + shop.path("fifo")}) {
            Launch patient;
            patient.patience = 20;
            const auto run = shop.render(fiscalJob(QByteArray(dtd).replace("%1", path.toUtf8()),
                                                   sale("A") + reference + sale("B")),
                                         patient);
            VERIFY_QUIET(run);
            QCOMPARE(difference(shop.output(),
                                fiscalOpening + saleRow("A") + saleRow("B") + fiscalClosing),
                     QString());
        }
    }

    void anExternalEntityInAnAttributeEndsTheJob()
    {
        const Shop shop(noSettings);
        writeFile(shop.path("marker"), "MARKER");
        VERIFY_QUIET(shop.render(
            fiscalJob("<!DOCTYPE job [<!ENTITY e SYSTEM \"marker\">]>", sale("A") + sale("&e;"))));
        QCOMPARE(difference(shop.output(), fiscalOpening + saleRow("A")), QString());
    }

    /// A row of the sold items: "7", " x ", the description "X" in what the other columns leave,
    /// an empty price filled with dots, "9".
    void widths_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QByteArray>("row");

        const auto padded = [](qsizetype blanks, const QByteArray &text) {
            return times(blanks, " ") + text;
        };
        // The description in the 29 columns that widths of 0 leave, and in none.
        const QByteArray usual = "X" + times(28, ".");
        const QByteArray widest = "X" + times(65535, ".");

        const auto row = [](const QByteArray &settings, const QByteArray &expected) {
            QTest::newRow(settings.constData()) << settings << expected;
        };
        const auto quantity = [&](const QByteArray &width, const QByteArray &expected) {
            row("quantityFieldWidth = " + width + ';', expected);
        };
        const auto price = [&](const QByteArray &width, const QByteArray &expected) {
            row("priceFieldWidth = " + width + ';', expected);
        };
        const auto total = [&](const QByteArray &width, const QByteArray &expected) {
            row("totalPriceFieldWidth = " + width + ';', expected);
        };
        const auto paper = [&](const QByteArray &width, const QByteArray &expected) {
            row("paperWidth = " + width + ';', expected);
        };

        quantity("65535", padded(65534, "7") + " x " + "9");
        quantity("65536", padded(65535, "7") + " x " + "9");
        quantity("65537", padded(65535, "7") + " x " + "9");
        quantity("2147483647", padded(65535, "7") + " x " + "9");
        quantity("-1", "7 x X" + times(29, ".") + '9');
        quantity("-2147483648", "7 x " + widest + '9');

        price("65535", "7 x " + times(65535, ".") + '9');
        price("65536", "7 x " + times(65536, ".") + '9');
        price("65537", "7 x " + times(65536, ".") + '9');
        price("2147483647", "7 x " + times(65536, ".") + '9');
        price("-1", "7 x X" + times(29, ".") + '9');
        price("-2147483648", "7 x " + widest + '9');

        total("65535", "7 x " + padded(65534, "9"));
        total("65536", "7 x " + padded(65535, "9"));
        total("65537", "7 x " + padded(65535, "9"));
        total("2147483647", "7 x " + padded(65535, "9"));
        total("-1", "7 x X" + times(29, ".") + '9');
        total("-2147483648", "7 x " + widest + '9');

        // Three characters of the line are the " x ".
        paper("65535", "7 x X" + times(65531, ".") + '9');
        paper("65536", "7 x X" + times(65532, ".") + '9');
        paper("65537", "7 x X" + times(65533, ".") + '9');
        paper("65538", "7 x X" + times(65534, ".") + '9');
        paper("65539", "7 x " + widest + '9');
        paper("65540", "7 x " + widest + '9');
        paper("2147483647", "7 x " + widest + '9');
        paper("-1", "7 x 9");
        paper("-2147483648", "7 x 9");

        // Sums beyond 32 bits.
        row("quantityFieldWidth = 2147483647; priceFieldWidth = 2147483647; "
            "totalPriceFieldWidth = 2147483647; paperWidth = 2147483647;",
            padded(65535, "7") + " x " + times(65536, ".") + padded(65535, "9"));
        row("quantityFieldWidth = 2147483647; priceFieldWidth = 2147483647; "
            "totalPriceFieldWidth = 2147483647; paperWidth = -2147483648;",
            padded(65535, "7") + " x " + times(65536, ".") + padded(65535, "9"));
        row("quantityFieldWidth = -2147483648; priceFieldWidth = -2147483648; "
            "totalPriceFieldWidth = -2147483648; paperWidth = 2147483647;",
            "7 x " + widest + '9');
        row("quantityFieldWidth = -2147483648; priceFieldWidth = -2147483648; "
            "totalPriceFieldWidth = -2147483648; paperWidth = -2147483648;",
            "7 x " + widest + '9'); // 3 * 2^31 - 2^31 are left
        row("quantityFieldWidth = 2147483647; priceFieldWidth = -2147483648; paperWidth = 3;",
            padded(65535, "7") + " x X9"); // 3 - (2^31 - 1) + 2^31 - 3: one column
        // What is no number of 32 bits counts as 0, and a paper width of 0 as 32.
        for (const char *key :
             {"quantityFieldWidth", "priceFieldWidth", "totalPriceFieldWidth", "paperWidth"})
            for (const char *width : {"2147483648", "-2147483649", "4294967299", "1e5",
                                      "99999999999999999999999999999999"})
                row(QByteArray(key) + " = " + width + ';', "7 x " + usual + '9');
    }

    void widths()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QByteArray, row);
        const Shop shop(settingsFile(documentGroup("solddoc", settings)));
        VERIFY_QUIET(shop.render(R"(<job><method name="printSold"/>
            <receipe quantity="7" description="X" amount="9"/></job>)"));
        QCOMPARE(difference(shop.output(), "=o\n" + line(row) + "=o\n"), QString());
    }

    void separators_data()
    {
        QTest::addColumn<QByteArray>("width");
        QTest::addColumn<int>("length");

        QTest::newRow("65,535") << QByteArray("65535") << 65535;
        QTest::newRow("65,536") << QByteArray("65536") << 65536;
        QTest::newRow("65,537") << QByteArray("65537") << 65536;
        QTest::newRow("largest") << QByteArray::number(largest) << 65536;
        QTest::newRow("below 0") << QByteArray("-1") << 0;
        QTest::newRow("smallest") << QByteArray::number(smallest) << 0;
    }

    void separators()
    {
        QFETCH(QByteArray, width);
        QFETCH(int, length);
        const Shop shop(settingsFile(documentGroup("doc", "paperWidth = " + width + ';')));
        VERIFY_QUIET(shop.render(R"(<job><method name="printPartialOrder"/><orderinfo/></job>)"));
        QCOMPARE(difference(shop.output(), "=o\n" + line(times(length, "=")) + "=o\n"), QString());
    }

    void margins_data()
    {
        QTest::addColumn<QByteArray>("margin");
        QTest::addColumn<int>("lines");

        QTest::newRow("65,535") << QByteArray("65535") << 65535;
        QTest::newRow("65,536") << QByteArray("65536") << 65536;
        QTest::newRow("65,537") << QByteArray("65537") << 65536;
        QTest::newRow("largest") << QByteArray::number(largest) << 65536;
        QTest::newRow("one more than the largest") << QByteArray("2147483648") << 0;
        QTest::newRow("below 0") << QByteArray("-1") << 0;
        QTest::newRow("smallest") << QByteArray::number(smallest) << 0;
    }

    void margins()
    {
        QFETCH(QByteArray, margin);
        QFETCH(int, lines);
        const Shop shop(settingsFile(
            documentGroup("doc", "printGeometry = true; topMargin = " + margin + ';')));
        VERIFY_QUIET(shop.render(R"(<job><method name="printPartialOrder"/><geometry/></job>)"));
        QCOMPARE(difference(shop.output(), "=o\n" + times(lines, line("")) + "=o\n"), QString());
    }

    void fiscalDescriptions_data()
    {
        QTest::addColumn<QByteArray>("width");
        QTest::addColumn<int>("length");

        QTest::newRow("65,536") << QByteArray("65536") << 65536;
        QTest::newRow("65,537") << QByteArray("65537") << 65537;
        QTest::newRow("largest") << QByteArray::number(largest) << 70000;
        QTest::newRow("below 0") << QByteArray("-1") << 70000;
        QTest::newRow("smallest") << QByteArray::number(smallest) << 70000;
        QTest::newRow("no number of 32 bits") << QByteArray("2147483648") << 32;
    }

    void fiscalDescriptions()
    {
        QFETCH(QByteArray, width);
        QFETCH(int, length);
        const Shop shop(
            settingsFile(documentGroup("fiscaldoc", "descriptionWidth = " + width + ';')));
        VERIFY_QUIET(shop.render("<job><method name=\"printFullOrderFiscal\"/><receipe name=\""
                                 + times(70000, "x") + "\"/></job>"));
        QCOMPARE(difference(shop.output(), fiscalOpening + "=R/$0/*/(" + times(length, "x") + ")\n"
                                               + fiscalClosing),
                 QString());
    }

    void settingsGroups_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<int>("depth");
        QTest::addColumn<bool>("read");

        for (const char *notation : {"cfg", "xml"}) {
            const auto row = [&](const char *title, int depth, bool read) {
                QTest::addRow("%s: %s", notation, title) << QString(notation) << depth << read;
            };
            row("999 deep", 999, true);
            row("1,000 deep", 1000, true);
            row("1,001 deep", 1001, false);
            row("200,000 deep", 200000, false);
        }
    }

    void settingsGroups()
    {
        QFETCH(QString, notation);
        QFETCH(int, depth);
        QFETCH(bool, read);
        const bool xml = notation == "xml";
        // The deepest group, beside it one that is no deeper than the limit, and what follows both.
        const QByteArray bytes = xml ? "<g>" + nestedElements(depth - 1, "s=\"deep\"")
                                           + "<g s=\"near\"/><h s=\"after\"/></g>"
                                     : "g:{" + nestedGroups(depth - 1, "s = deep;")
                                           + "g:{ s = near; }; h:{ s = after; }; s = here; };";
        const Settings settings(bytes, notation);
        QCOMPARE(settings.store.lookup(nestedKey(depth, "s")), QString(read ? "deep" : ""));
        QCOMPARE(settings.store.lookup(nestedKey(depth + 1, "s")), QString());
        QCOMPARE(settings.store.lookup("g.g.s"), QString("near"));
        QCOMPARE(settings.store.lookup("g.h.s"), QString("after"));
        QCOMPARE(settings.store.lookup("g.s"), QString(xml ? "" : "here"));
    }

    void settingsOfTheDeepestGroupThatIsRead_data() { settingsNotations(); }

    void settingsOfTheDeepestGroupThatIsRead()
    {
        QFETCH(QString, notation);
        // The thousandth group has settings before and after one that is too deep.
        const QByteArray bytes =
            notation == "xml"
                ? times(999, "<g>") + R"(<g a="before" b="after"><g s="deep"/></g>)"
                      + times(999, "</g>")
                : nestedGroups(1000, "a = before; g:{ s = deep; g:{ s = deeper; }; }; b = after;");
        const Settings settings(bytes, notation);
        QCOMPARE(settings.store.lookup(nestedKey(1000, "a")), QString("before"));
        QCOMPARE(settings.store.lookup(nestedKey(1000, "b")), QString("after"));
        QCOMPARE(settings.store.lookup(nestedKey(1001, "s")), QString());
    }

    void groupsWithoutAnEnd()
    {
        const Settings settings("g:{ s = read; " + times(200000, "g:{ s = x; "), "cfg");
        QCOMPARE(settings.store.lookup("g.s"), QString("read"));
        QCOMPARE(settings.store.lookup(nestedKey(1000, "s")), QString("x"));
        QCOMPARE(settings.store.lookup(nestedKey(1001, "s")), QString());
    }

    void malformedXmlSettings()
    {
        const Settings settings("<g s=\"read\">" + times(50000, "<g>"), "xml");
        QCOMPARE(settings.store.lookup("g.s"), QString());
    }

    void deepSettingsInARun()
    {
        const Shop shop("korvel:{ doc:{ " + nestedGroups(200000, "s = x;")
                        + "quantityFieldWidth = 3; }; };");
        VERIFY_QUIET(shop.render(
            R"(<job><method name="printPartialOrder"/><receipe number="2" name="X"/></job>)"));
        QCOMPARE(difference(shop.output(), "=o\n" + line("  2 X" + times(25, " ")) + "=o\n"),
                 QString());
    }

    /// A megabyte of groups is read; of twelve the first part is, and the rest is read over.
    void manySettingsInARun()
    {
        constexpr auto job =
            R"(<job><method name="printPartialOrder"/><receipe number="2" name="X"/></job>)";
        const QByteArray sound = "doc:{ quantityFieldWidth = 3; };";
        const QByteArray printed = "=o\n" + line("  2 X" + times(25, " ")) + "=o\n";
        for (const QByteArray &groups :
             {times(120000, "a:{b=1;};") + sound, sound + times(1200000, "a:{b=1;};")}) {
            const Shop shop("korvel:{" + groups + "};");
            VERIFY_QUIET(shop.render(job));
            QCOMPARE(difference(shop.output(), printed), QString());
        }
    }

    void namesAndValues_data() { settingsNotations(); }

    void namesAndValues()
    {
        QFETCH(QString, notation);
        for (const int length : {2047, 2048, 2049, 100000}) {
            const QByteArray group = times(length, "g");
            const QByteArray name = times(length, "n");
            const QByteArray value = times(length, "v");
            if (notation == "xml" && length > 4096)
                continue; // the toolkit takes no longer name for well-formed
            const Settings settings(notation == "xml" ? "<k><" + group + ' ' + name + "=\"" + value
                                                            + "\" o=\"other\"/></k>"
                                                      : "k: { " + group + ": { " + name + " = \""
                                                            + value + "\"; o = \"other\"; }; };",
                                    notation);
            const auto lookup = [&](const QByteArray &setting) {
                return settings.store.lookup("k." + QString(group) + '.' + setting).toUtf8();
            };
            QCOMPARE(difference(lookup(name), value), QString());
            QCOMPARE(lookup(name.chopped(1)), QByteArray());
            QCOMPARE(lookup("o"), QByteArray("other"));
        }
    }

    void longNamesInAJob()
    {
        const Shop shop(noSettings);
        for (const int length : {2047, 2048, 2049, 1000000 / slowness}) {
            const QByteArray name = times(length, "x");
            VERIFY_QUIET(shop.render(
                fiscalJob("", '<' + name + ' ' + name + "=\"" + name + "\"/>" + sale(name))));
            QCOMPARE(difference(shop.output(), fiscalOpening + saleRow(name) + fiscalClosing),
                     QString());
        }
    }

    void elementsWithoutAttributes_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("stream");

        const auto row = [](const char *method, const QByteArray &stream) {
            QTest::newRow(method) << QByteArray(method) << stream;
        };
        // The settings give the columns 3, 7 and 8 characters of a line of 32.
        const QByteArray titles = line("Num Description    Price  Amount");
        const QByteArray summaryTitles = line("Num Description            Price");
        const QByteArray total = line("") + line("    TOTAL...............        ");
        const QByteArray taxBlock = line("") + line("    Taxable.............        ")
                                    + line("    TaxRate.............        ")
                                    + line("    Tax.................        ")
                                    + line("    TOTAL...............        ");
        const QByteArray kitchen = line("                              ")
                                   + line("                              ")
                                   + line("    -                         ");

        row("printPartialOrder", "=o\n" + sharedLines + customerLines + kitchen + "=o\n");
        row("printFullOrder", "=o\n" + sharedLines + customerLines + titles
                                  + line("    ....................        ")
                                  + line("    - ..................        ") + total + "=o\n");
        row("printFullOrderReceipt", "=o/*1\n" + sharedLines + customerLines + titles
                                         + line("    x ..................        ").mid(0) + total
                                         + line("") + line("    Amount not paid: ") + "=o\n");
        row("printFullOrderInvoice", "=o/*1\n" + sharedLines + customerLines + titles
                                         + line("    ....................        ") + taxBlock
                                         + "=o\n");
        row("printFullOrderDelivery", "=o\n" + sharedLines + customerLines + kitchen + "=o\n");
        row("printFullOrderFiscal", "=K\n=C1\n=R/$0/*/()\n=T1\n");
        row("printAbstractOrder", "=o\n=o\n");
        row("printAbstractOrderReceipt", "=o/*1\n" + sharedLines + total + line("")
                                             + line("   Corrispettivo non pagato: ") + summaryTitles
                                             + line("    x ..................        ") + "=o\n");
        row("printAbstractOrderInvoice", "=o/*1\n" + sharedLines + customerLines + summaryTitles
                                             + line("    x ..................        ") + taxBlock
                                             + "=o\n");
        row("printAbstractOrderFiscal", "=K\n=C1\n=R/$0/*1/()\n=T1\n");
        // Centred: 16 blanks for an empty line, (32 - n) / 2 for n characters. Labels are filled
        // with dots up to 17 characters.
        row("printReport",
            "=o\n" + sharedLines + line(times(16, " ")) + line("           SUMMARIES")
                + line(times(16, " ")) + line("BeginDate: ") + line("EndDate: ")
                + line(times(16, " ")) + line("       PREFISCAL SUMMARY") + line("")
                + line("Number...........") + line("TOTAL............") + line(times(16, " "))
                + line("        RECEIPTS SUMMARY") + line("") + line("Number...........")
                + line("Serials.......... - ") + line("Amount not paid: ") + line("Cash: ")
                + line("Credit Card: ") + line("Bancomat: ") + line("Other: ")
                + line("TOTAL............") + line("") + separator
                + line("TAXRATE    TAXABLE        TAX     AMOUNT")
                + line("      %                                  ") + separator + line("")
                + line(times(16, " ")) + line("        INVOICES SUMMARY") + line("")
                + line("Number...........") + line("Serials.......... - ")
                + line("Taxable..........") + line("Tax..............") + line("TOTAL............")
                + line(times(16, " ")) + line("     CANCELLED DOC SUMMARY") + line("")
                + line("Number...........") + line("TOTAL............") + line("")
                + line("SERIAL    TOTAL      TAXRATE   ") + "=o\n");
        row("printSold", "=o\n" + sharedLines + line("    x ..................        ") + "=o\n");
        // The date's 15 characters, 7 for the amount, 7 left for the type.
        row("printStatementOfAccount", "=o\n" + sharedLines + line("Date           Descrip Amount")
                                           + line(":              ..............") + "=o\n");
    }

    void elementsWithoutAttributes()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, stream);
        const Shop shop(
            settingsOfAllDocuments(QByteArray(everySwitch)
                                   + "topMargin = 1; quantityFieldWidth = 3; priceFieldWidth = 7; "
                                     "totalPriceFieldWidth = 8; paperWidth = 32;"));
        const auto run = shop.render("<job><method name=\"" + method + "\"/>" + sharedElements
                                     + documentElements + "</job>");
        VERIFY_QUIET(run);
        QCOMPARE(linesOf(shop.output()), linesOf(stream));
    }

    /// All documents in one job with the widest columns: how much, not what, is at stake.
    void widestColumnsOfAllDocuments_data()
    {
        QTest::addColumn<int>("width");

        QTest::newRow("largest") << largest;
        QTest::newRow("smallest") << smallest;
    }

    void widestColumnsOfAllDocuments()
    {
        QFETCH(int, width);
        const QByteArray number = QByteArray::number(width);
        const Shop shop(settingsOfAllDocuments(
            QByteArray(everySwitch) + "topMargin = 3; quantityFieldWidth = " + number
            + "; priceFieldWidth = " + number + "; totalPriceFieldWidth = " + number
            + "; paperWidth = " + number + "; paperRows = " + number
            + "; descriptionWidth = " + number + ';'));
        QByteArray elements;
        for (const char *method :
             {"printPartialOrder", "printFullOrder", "printFullOrderReceipt",
              "printFullOrderInvoice", "printFullOrderDelivery", "printFullOrderFiscal",
              "printAbstractOrder", "printAbstractOrderReceipt", "printAbstractOrderInvoice",
              "printAbstractOrderFiscal", "printReport", "printSold", "printStatementOfAccount"})
            elements +=
                QByteArray("<method name=\"") + method + "\"/>" + sharedElements + documentElements;
        VERIFY_QUIET(shop.render("<job>" + elements + "</job>"));
        const QByteArray stream = shop.output();
        // Eight kinds of document open with "=o" alone, each but the summary order with a margin.
        QCOMPARE(stream.count("\n=o/*1\n"), 4);
        QCOMPARE(stream.count("=K\n=C1\n"), 2);
        QVERIFY(stream.startsWith("=o\n" + times(3, line(""))));
        QVERIFY(stream.endsWith("\n=o\n"));
        for (const QByteArray &row : stream.split('\n'))
            QVERIFY(row.size() <= 4 * 65536 + 20);
    }

    void cancelledDocuments_data()
    {
        QTest::addColumn<int>("attributes"); // with the number and the totals
        QTest::addColumn<QByteArray>("rows");

        const QByteArray ab = line("a         b                    ");
        const QByteArray abc = line("a         b          c         ");
        QTest::newRow("none") << 2 << QByteArray();
        QTest::newRow("a serial number") << 3 << line("a                              ");
        QTest::newRow("a serial number and a total") << 4 << ab;
        QTest::newRow("a whole document") << 5 << abc;
        QTest::newRow("a document and a serial number")
            << 6 << abc + line("d                              ");
        QTest::newRow("a document, a serial number and a total")
            << 7 << abc + line("d         e                    ");
        QTest::newRow("two documents") << 8 << abc + line("d         e          f         ");
    }

    void cancelledDocuments()
    {
        QFETCH(int, attributes);
        QFETCH(QByteArray, rows);
        const QByteArrayList all = {R"(number="2")", R"(totals="21.00")", R"(x1="a")", R"(x2="b")",
                                    R"(x3="c")",     R"(x4="d")",         R"(x5="e")", R"(x6="f")"};
        const Shop shop(noSettings);
        VERIFY_QUIET(shop.render("<job><method name=\"printReport\"/><cancelledsummary "
                                 + all.first(attributes).join(' ') + "/></job>"));
        QCOMPARE(linesOf(shop.output()),
                 linesOf("=o\n" + line(times(16, " ")) + line("     CANCELLED DOC SUMMARY")
                         + line("") + line("Number...........2") + line("TOTAL............21.00")
                         + line("") + line("SERIAL    TOTAL      TAXRATE   ") + rows + "=o\n"));
    }

    /// Long jobs are printed to their end.
    void longJobs_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("piece"); // # is its number
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QByteArray>("printedBefore");
        QTest::addColumn<QByteArray>("printed"); // of one piece
        QTest::addColumn<QByteArray>("printedAfter");

        const auto row = [](const char *title, int count, const QByteArray &before,
                            const QByteArray &piece, const QByteArray &after,
                            const QByteArray &printedBefore, const QByteArray &printed,
                            const QByteArray &printedAfter) {
            QTest::newRow(title) << count << before << piece << after << printedBefore << printed
                                 << printedAfter;
        };
        const QByteArray kitchen = "<job><method name=\"printPartialOrder\"/>";
        const QByteArray fiscal = "<job><method name=\"printAbstractOrderFiscal\"/>";
        const QByteArray item = line("2 X" + times(28, " "));

        row("fields of an address", 400000, kitchen + "<customer name=\"N\" billingaddress=\"",
            "a,", "\"/></job>", "=o\n" + line("CUSTOMER") + line(" N"), line(" a"),
            line(" Telephone: ") + line(" License Number: ") + line(" Fiscal Code: ") + separator
                + "=o\n");
        row("attributes of an element", 100000, kitchen + "<headers", " a#=\"v\"", "/></job>",
            "=o\n", line("v"), separator + line(times(16, " ")) + separator + "=o\n");
        row("documents of a report", 40000,
            "<job><method name=\"printReport\"/><cancelledsummary number=\"\" totals=\"\"",
            " a#=\"1\" b#=\"2\" c#=\"3\"", "/></job>",
            "=o\n" + line(times(16, " ")) + line("     CANCELLED DOC SUMMARY") + line("")
                + line("Number...........") + line("TOTAL............") + line("")
                + line("SERIAL    TOTAL      TAXRATE   "),
            line("1         2          3         "), "=o\n");
        row("items", 100000, kitchen, R"(<receipe number="2" name="X"/>)", "</job>", "=o\n", item,
            "=o\n");
        row("methods", 3000, "<job>", R"(<method name="printAbstractOrder"/>)", "</job>", "",
            "=o\n", "=o\n");
        row("elements nobody knows", 100000, kitchen, "<unknown# a=\"b\"/>",
            R"(<receipe number="2" name="X"/></job>)", "=o\n", "", item + "=o\n");
        row("texts, comments and instructions", 50000, fiscal, "text<!-- # --><?a #?><![CDATA[x]]>",
            sale("X") + "</job>", fiscalOpening, "", saleRow("X") + fiscalClosing);
        row("characters of a name", 1000000, fiscal + "<receipe_type name=\"", "x", "\"/></job>",
            fiscalOpening + "=R/$0/*1/(", "x", ")\n" + fiscalClosing);
        row("characters of a comment", 2000000, fiscal + "<!--", "x", "-->" + sale("X") + "</job>",
            fiscalOpening, "", saleRow("X") + fiscalClosing);
        row("elements in namespaces", 50000, fiscal + "<a xmlns:p=\"v\">", "<p:b/>",
            "</a>" + sale("X") + "</job>", fiscalOpening, "", saleRow("X") + fiscalClosing);
    }

    void longJobs()
    {
        QFETCH(int, count);
        count /= slowness;
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, piece);
        QFETCH(QByteArray, after);
        QFETCH(QByteArray, printedBefore);
        QFETCH(QByteArray, printed);
        QFETCH(QByteArray, printedAfter);
        const Shop shop(settingsFile(documentGroup("doc", everySwitch)));
        const QByteArray all =
            piece.contains('#') ? each(
                count, [&](const QByteArray &i) { return QByteArray(piece).replace('#', i); })
                                : times(count, piece);
        VERIFY_QUIET(shop.render(before + all + after));
        QCOMPARE(difference(shop.output(), printedBefore + times(count, printed) + printedAfter),
                 QString());
    }

    /// Namespaces that are in force count, not all that a job ever declares.
    void namespacesInForce_data()
    {
        QTest::addColumn<QByteArray>("elements");
        QTest::addColumn<bool>("whole");
        const auto declared = [](int count) {
            return each(count, [](const QByteArray &i) { return " xmlns:n" + i + "=\"v\""; });
        };

        QTest::newRow("one below") << "<a" + declared(63) + "/>" << true;
        QTest::newRow("at the limit") << "<a" + declared(64) + "/>" << true;
        QTest::newRow("one above") << "<a" + declared(65) + "/>" << false;
        QTest::newRow("one above, on two levels")
            << "<a" + declared(33) + "><b" + declared(32) + "/></a>" << false;
        QTest::newRow("side by side") << ("<a" + declared(64) + "/>").repeated(100) << true;
        QTest::newRow("far above") << "<a" + declared(100000) + "/>" << false;
    }

    void namespacesInForce()
    {
        QFETCH(QByteArray, elements);
        QFETCH(bool, whole);
        const Shop shop(noSettings);
        const auto run = shop.render(fiscalJob("", sale("A") + elements + sale("B")));
        VERIFY_QUIET(run);
        QCOMPARE(
            difference(shop.output(), fiscalOpening + saleRow("A")
                                          + (whole ? saleRow("B") + fiscalClosing : QByteArray())),
            QString());
    }

    void longSettings_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QByteArray>("piece");

        QTest::newRow("settings of a group") << 50000 << QByteArray("s# = v;\n");
        QTest::newRow("the same setting again") << 50000 << QByteArray("s = v;\n");
        QTest::newRow("groups") << 50000 << QByteArray("g#: { s = v; };\n");
        QTest::newRow("the same group again") << 50000 << QByteArray("g: { s = v; };\n");
        QTest::newRow("empty groups") << 50000 << QByteArray("g#: { };\n");
        QTest::newRow("groups without a name") << 50000 << QByteArray(": { s = v; };\n");
        QTest::newRow("settings without a name") << 50000 << QByteArray("= v;\n");
        QTest::newRow("stray text") << 50000 << QByteArray("stray } ; ");
    }

    void longSettings()
    {
        QFETCH(int, count);
        count /= slowness;
        QFETCH(QByteArray, piece);
        const Shop shop(
            "korvel: { solddoc: { quantityFieldWidth = 3; }; doc: {\n"
            + each(count, [&](const QByteArray &i) { return QByteArray(piece).replace('#', i); })
            + "}; };");
        VERIFY_QUIET(shop.render(R"(<job><method name="printSold"/>
            <receipe quantity="7" description="X" amount="9"/></job>)"));
        // 32 - 3 - 3 characters for the description.
        QCOMPARE(
            difference(shop.output(), "=o\n" + line("  7 x X" + times(25, ".") + '9') + "=o\n"),
            QString());
    }

private:
    static void settingsNotations()
    {
        QTest::addColumn<QString>("notation");

        QTest::newRow("braces") << "cfg";
        QTest::newRow("XML") << "xml";
    }
};

QTEST_GUILESS_MAIN(TestLimits)
#include "tst_limits.moc"
