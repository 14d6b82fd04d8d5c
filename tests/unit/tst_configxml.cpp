// The XML notation, read: what stands before the root, what is malformed, what is too deep.
#include "support/store.h"
#include "support/test.h"

namespace tst_configxml {

class TestConfigXml : public QObject
{
    Q_OBJECT

private slots:
    void xml_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("tree");
        const auto row = [](const char *name, const QByteArray &text, const QStringList &tree) {
            QTest::newRow(name) << text << tree;
        };

        row("groups are elements, settings are attributes", customaryXml, customaryTree);
        row("the root may have settings", R"(<a b="1"><c d="2"/></a>)",
            {"*", "  a b=|1|", "    c d=|2|"});
        row("elements of one name stay apart, in their order", R"(<a><b c="1"/><d/><b c="2"/></a>)",
            {"*", "  a", "    b c=|1|", "    d", "    b c=|2|"});
        row("an empty element stays", "<a/>", {"*", "  a"});
        row("an empty value stays", R"(<a b=""/>)", {"*", "  a b=||"});
        row("a prefix is part of the name", R"(<p:a p:b="1"><p:c p:d="2"/></p:a>)",
            {"*", "  p:a p:b=|1|", "    p:c p:d=|2|"});
        row("a namespace is a setting", R"(<a b="1" xmlns="u" xmlns:p="v" c="2"/>)",
            {"*", "  a b=|1| xmlns=|u| xmlns:p=|v| c=|2|"});
        row("attributes of comments and texts do not count",
            R"(<a b="1"><!-- <c d="0"/> --><![CDATA[<e f="0"/>]]><g h="2"/></a>)",
            {"*", "  a b=|1|", "    #comment", "    #cdata-section", "    g h=|2|"});

        // What stands before the root element goes below the file's element in its place.
        row("a comment before the root is moved", R"(<!-- note --><a b="1"><c d="2"/></a>)",
            {"a b=|1|", "  c d=|2|", "*", "  #comment"});
        row("a declaration before the root is moved", R"(<?xml version="1.0"?><a b="1"/>)",
            {"a b=|1|", "*", "  xml"});
        row("an instruction before the root is moved", R"(<?note x?><a b="1"/>)",
            {"a b=|1|", "*", "  note"});
        row("only the first node is moved", R"(<?xml version="1.0"?><!-- note --><a b="1"/>)",
            {"#comment", "a b=|1|", "*", "  xml"});
        row("a comment after the root stays", R"(<a b="1"/><!-- note -->)",
            {"#comment", "*", "  a b=|1|"});

        // Malformed files give an empty document.
        row("malformed: empty", "", {});
        row("malformed: white space", " \n", {});
        row("malformed: text", "korvel", {});
        row("malformed: white space before a declaration", "\n<?xml version=\"1.0\"?><a b=\"1\"/>",
            {});
        row("malformed: the brace notation", customary, {});
        row("malformed: a declaration alone", R"(<?xml version="1.0"?>)", {});
        row("malformed: a comment alone", "<!-- note -->", {});
        row("malformed: no end tag", R"(<a b="1"><c d="2"/>)", {});
        row("malformed: a wrong end tag", R"(<a b="1"><c d="2"></a></c>)", {});
        row("malformed: two roots", R"(<a b="1"/><c d="2"/>)", {});
        row("malformed: text after the root", R"(<a b="1"/>text)", {});
        row("malformed: a value without quotes", "<a b=1/>", {});
        row("malformed: a setting twice", R"(<a b="1" b="2"/>)", {});
        row("malformed: an unknown entity", R"(<a b="&unknown;"/>)", {});
        row("malformed: bytes that are not UTF-8", "<a b=\"\xE8\"/>", {});
    }

    void xml()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, tree);
        QCOMPARE(treeOf(text, "xml"), tree);
    }

    void xmlCutAnywhere()
    {
        SettingsFile file("");
        for (qsizetype size = 0; size < customaryXml.size(); ++size) {
            file.write(customaryXml.first(size));
            QCOMPARE(Store(file.path(), "xml").tree(), QStringList());
        }
    }

    /// Groups below the deepest level are read over; what stands beside them is read as ever.
    void deepElements_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        const auto nested = [](int levels) {
            return QByteArray("<g>").repeated(levels) + QByteArray("</g>").repeated(levels);
        };

        QTest::newRow("as deep as can be") << "<a x='1'>" + nested(999) + "<b y='2'/></a>"
                                           << "a.b.y"
                                           << "2";
        QTest::newRow("one deeper") << "<a x='1'>" + nested(1000) + "<b y='2'/></a>"
                                    << "a.b.y"
                                    << "2";
        QTest::newRow("much deeper") << "<a x='1'>" + nested(200000) + "<b y='2'/></a>"
                                     << "a.x"
                                     << "1";
        QTest::newRow("behind a declaration look-ups start a level lower, as ever")
            << "<?xml version='1.0'?><r><a x='1'/>" + nested(1000) + "</r>"
            << "a.x"
            << "1";
        QTest::newRow("prefixes stay")
            << "<?xml version='1.0'?><r><n:a n:x='1'/>" + nested(1000) + "</r>"
            << "n:a.n:x"
            << "1";
        QTest::newRow("malformed and deep") << QByteArray("<a x='1'>").repeated(40000) << "a.x"
                                            << "";
        QTest::newRow("malformed behind its deepest") << "<a x='1'>" + nested(20000) + "<"
                                                      << "a.x"
                                                      << "";
    }

    void deepElements()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, key);
        QFETCH(QString, value);
        QCOMPARE(lookupIn(xml, "xml", key), value);
    }
};

KORVEL_TEST(TestConfigXml)

} // namespace tst_configxml

#include "tst_configxml.moc"
