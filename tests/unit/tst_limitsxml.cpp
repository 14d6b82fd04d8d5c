// The limits on the XML of jobs: nesting, namespaces, DTDs, and files that a job names.
#include "support/limits.h"
#include "support/test.h"

#include <sys/stat.h>

namespace tst_limitsxml {

class TestLimitsXml : public QObject
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
};

KORVEL_TEST(TestLimitsXml)

} // namespace tst_limitsxml

#include "tst_limitsxml.moc"
