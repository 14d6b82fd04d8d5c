// The brace notation, read: groups, names, values, and what is no statement.
#include "support/store.h"
#include "support/test.h"

#include <algorithm>

namespace tst_configbraces {

/// Every byte from 1 to 255 in its order, but these.
QByteArray allBytesBut(const QByteArray &excluded)
{
    QByteArray bytes;
    for (int byte = 1; byte <= 255; ++byte)
        if (!excluded.contains(static_cast<char>(byte)))
            bytes += static_cast<char>(byte);
    return bytes;
}

class TestConfigBraces : public QObject
{
    Q_OBJECT

private slots:
    void braces_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("tree");
        const auto row = [](const char *name, const QByteArray &text, const QStringList &tree) {
            QTest::newRow(name) << text << tree;
        };

        row("the customary form", customary, customaryTree);
        row("an empty file gives an empty document", "", {});
        row("a file of white space gives an empty document", " \n\t\r\n", {});
        row("white space between tokens is not needed", R"(a:{b="1";c:{d="2";};};)",
            {"*", "  a b=|1|", "    c d=|2|"});
        row("tabs and carriage returns are white space",
            "a\t:\r\n{\r\n\tb\t=\t\"1\"\t;\r\n}\t;\r\n", {"*", "  a b=|1|"});
        row("a setting may follow a subgroup", R"(a: { b: { c = "1"; }; d = "2"; };)",
            {"*", "  a d=|2|", "    b c=|1|"});

        // Values.
        row("a value needs no quotes", "a: { b = 1; };", {"*", "  a b=|1|"});
        row("blanks inside the quotes stay", R"(a: { b = "  x "; };)", {"*", "  a b=|  x |"});
        row("blanks outside the quotes go", "a: { b =   x  y   ; };", {"*", "  a b=|x  y|"});
        row("blanks go before the quotes do", "a: { b =  x \" ; };", {"*", "  a b=|x |"});
        row("a no-break space at an end is white space", "a: { b = \xA0x\xA0; };",
            {"*", "  a b=|x|"});
        row("quotes in the middle go", R"(a: { b = say "hi"; };)", {"*", "  a b=|say hi|"});
        row("quotes between quotes go", R"(a: { b = "say "hi""; };)", {"*", "  a b=|say hi|"});
        row("a quote alone goes", "a: { b = \"x; };", {"*", "  a b=|x|"});
        row("a value may span lines", "a: { b = \"one\n  two\"; };", {"*", "  a b=|one\n  two|"});
        row("a value may hold : { } =", R"(a: { b = "x: { y = z }"; };)",
            {"*", "  a b=|x: { y = z }|"});
        row("a ';' ends a value even between quotes", R"(a: { b = "x;y"; c = "1"; };)",
            {"*", "  a b=|x| y\"; c=|1|"});
        row("a value may be empty", R"(a: { b = ""; c = ; d =; };)", {"*", "  a b=|| c=|| d=||"});

        // Names and stray text.
        row("a name keeps its inner white space", "a: { two \n words = \"1\"; };",
            {"*", "  a two \n words=|1|"});
        row("a name keeps its quotes", R"(a: { "b" = "1"; };)", {"*", R"(  a "b"=|1|)"});
        row("a name may hold dots", R"(a: { b.c = "1"; };)", {"*", "  a b.c=|1|"});
        row("names differ by letter case", R"(a: { b = "1"; B = "2"; };)",
            {"*", "  a b=|1| B=|2|"});
        row("there are no comments", "a: { # note\nb = \"1\"; };", {"*", "  a # note\nb=|1|"});
        row("stray text joins the name of the next group", R"(stray a: { b = "1"; };)",
            {"*", "  stray a b=|1|"});
        row("a stray ';' joins the next name", R"(a: { b = "1";; c = "2"; };)",
            {"*", "  a b=|1| ; c=|2|"});
        row("a stray '{' joins the next name", R"(a: { { b = "1"; };)", {"*", "  a { b=|1|"});
        row("a group without ':' is part of a name", R"(a { b = "1"; };)", {"* a { b=|1|"});
        row("a byte order mark joins the first name", "\xEF\xBB\xBFz: { b = 1; };",
            {"*", "  ï»¿z b=|1|"});
        row("stray text before a '}' is dropped", R"(a: { b = "1"; stray }; c: { d = "2"; };)",
            {"*", "  a b=|1|", "  c d=|2|"});
        row("stray text at the end is dropped", R"(a: { b = "1"; }; stray)", {"*", "  a b=|1|"});
        row("text between ':' and '{' is read over", R"(a: x = "0"; y: } { b = "1"; };)",
            {"*", "  a b=|1|"});
        row("text between '}' and ';' is read over",
            R"(a: { b = "1"; } x: { y = "0" ; c: { d = "2"; };)", {"*", "  a b=|1|", "  c d=|2|"});
        row("bytes are Latin-1", "caff\xE8: { \xE0 = \"\xFC\xDF\"; };", {"*", "  caffè à=|üß|"});
        row("UTF-8 is read as Latin-1 too", "a: { b = \"caff\xC3\xA8\"; };",
            {"*", "  a b=|caffÃ¨|"});
        row("byte 0xFF is a character", "\xFF: { \xFF\xFF = \"\xFFx\xFF\"; b = \xFF; };",
            {"*", "  ÿ ÿÿ=|ÿxÿ| b=|ÿ|"});
        row("a setting may be nameless", R"(a: { = "1"; b = "2"; };)", {"*", "  a =|1| b=|2|"});

        // Repetition.
        row("a repeated setting has its first place and its last value",
            R"(a: { b = "1"; c = "2"; b = "3"; };)", {"*", "  a b=|3| c=|2|"});
        row("a repeated setting may end empty", R"(a: { b = "1"; b = ""; };)", {"*", "  a b=||"});
        row("groups of one name stay apart, in their order",
            R"(a: { b = "1"; }; c: { d = "2"; }; a: { b = "3"; };)",
            {"*", "  a b=|1|", "  c d=|2|", "  a b=|3|"});

        // Groups that leave no trace.
        row("a lone empty group gives an empty document", "a: { };", {});
        row("empty groups give an empty document", "a: { }; b: { }; c:{};", {});
        row("an empty group between others leaves no trace",
            R"(a: { b = "1"; }; c: { }; d: { e = "2"; };)", {"*", "  a b=|1|", "  d e=|2|"});
        row("an empty subgroup leaves no trace but keeps its parent", "a: { b: { }; };",
            {"*", "  a"});
        row("a nameless group is read over", R"(: { a = "1"; }; b: { c = "2"; };)",
            {"*", "  b c=|2|"});
        row("a nameless subgroup is read over", R"(a: { : { b = "1"; }; c = "2"; };)",
            {"*", "  a c=|2|"});
        row("the groups of a nameless group go with it",
            R"(: { a: { b = "1"; c: { d = "2"; }; }; }; e: { f = "3"; };)", {"*", "  e f=|3|"});

        // Settings outside every group.
        row("a setting outside every group belongs to the file", R"(x = "1";)", {"* x=|1|"});
        row("settings outside every group may stand anywhere",
            R"(x = "1"; a: { b = "2"; }; y = "3"; c: { d = "4"; }; z = "5";)",
            {"* x=|1| y=|3| z=|5|", "  a b=|2|", "  c d=|4|"});
        row("a setting outside every group goes beside an empty group", R"(a: { }; x = "1";)",
            {"* x=|1|"});

        // Where levels end.
        row("a file may end without a line end", R"(a: { b = "1"; };)", {"*", "  a b=|1|"});
        row("the last '}' needs no ';'", R"(a: { b = "1"; })", {"*", "  a b=|1|"});
        row("the last '}' of each level needs no ';'", R"(a: { b: { c = "1"; }})",
            {"*", "  a", "    b c=|1|"});
        row("without its ';' a '}' takes the next setting along",
            R"(a: { b: { c = "1"; } d = "2"; e = "3"; };)", {"*", "  a e=|3|", "    b c=|1|"});
        row("a '}' outside every group ends the reading", R"(a: { b = "1"; }; }; c: { d = "2"; };)",
            {"*", "  a b=|1|"});
        row("a '}' may end the reading at once", R"(}; a: { b = "1"; };)", {});
        row("a group may be open at the end", R"(a: { b = "1";)", {"*", "  a b=|1|"});
        row("groups may be open at the end", R"(a: { b: { c = "1"; )", {"*", "  a", "    b c=|1|"});
        row("a value may be open at the end", "a: { b = \"1", {"*", "  a b=|1|"});
        row("a value may be open at the end, outside every group", R"(x = "1")", {"* x=|1|"});
        row("a value missing at the end is empty", "a: { b =", {"*", "  a b=||"});
        row("a name at the end is dropped", R"(a: { b = "1"; c)", {"*", "  a b=|1|"});
        row("a name alone gives an empty document", "a", {});
        row("a group without '{' gives an empty document", R"(a: b = "1"; c)", {});
        row("a group that is only opened gives an empty document", "a: {", {});
    }

    void braces()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, tree);
        QCOMPARE(treeOf(text, "cfg"), tree);
    }

    void groupsNestDeeply()
    {
        constexpr int depth = 100;
        QStringList fields;
        QByteArray text;
        for (int level = 0; level < depth; ++level) {
            fields += QString("g%1").arg(level);
            text += fields.last().toLatin1() + ": {";
        }
        fields += "setting";
        text += "setting = \"deep\";" + QByteArray("};").repeated(depth);
        QCOMPARE(lookupIn(text, "cfg", fields.join('.')), "deep");
    }

    void everyByteOfAValue()
    {
        const QByteArray value = allBytesBut(";\"");
        QCOMPARE(lookupIn("a: { b = \"" + value + "\"; };", "cfg", "a.b"),
                 QString::fromLatin1(value));
    }

    void everyByteOfAName()
    {
        const QByteArray name = allBytesBut(":=}");
        const SettingsFile file(name + ": {" + name + "= \"1\"; };");
        const Store store(file.path(), "cfg");
        const QDomElement group = store.document->documentElement().firstChildElement();
        QCOMPARE(group.tagName(), QString::fromLatin1(name));
        QCOMPARE(store.settingNames(group), QStringList(QString::fromLatin1(name)));
    }

    void bracesCutAnywhere()
    {
        const std::pair<QString, QByteArray> settings[] = {
            {"korvel.language.basedir", "/opt/lang"},
            {"korvel.language.file", "/"},
            {"korvel.receiptdoc.descriptionWidth", "24"},
            {"korvel.receiptdoc.printLogo", "true"},
        };
        SettingsFile file("");
        for (qsizetype size = 0; size <= customary.size(); ++size) {
            file.write(customary.first(size));
            const Store store(file.path(), "cfg");
            for (const auto &[key, value] : settings) {
                // Of a value that is cut, what is there counts.
                const QByteArray setting = key.section('.', -1).toLatin1() + " = \"";
                const qsizetype start = customary.indexOf(setting) + setting.size();
                const qsizetype length = std::clamp<qsizetype>(size - start, 0, value.size());
                QCOMPARE(store.lookup(key), QString(value.first(length)));
            }
        }
    }

    void bodyOfOneGroup()
    {
        const SettingsFile file(R"( x = "1"; b: { y = "2"; }; } end;rest)");
        Store store(file.path(), "not read");
        const QDomElement parent = store.document->createElement("parent");
        QVERIFY(store.openFile());
        store.loadFile("a", parent);
        QCOMPARE(store.stream.get(), 'r');
        QVERIFY(store.stream.is_open());
        QCOMPARE(store.lookup(parent, "parent.a.x"), "1");
        QCOMPARE(store.lookup(parent, "parent.a.b.y"), "2");
        QCOMPARE(store.tree(), QStringList());
    }

    void bodyOfOneEmptyGroup()
    {
        const SettingsFile file("stray");
        Store store(file.path(), "not read");
        const QDomElement parent = store.document->createElement("parent");
        QVERIFY(store.openFile());
        store.loadFile("a", parent);
        QVERIFY(store.stream.is_open());
        QVERIFY(!parent.hasChildNodes());
    }
};

KORVEL_TEST(TestConfigBraces)

} // namespace tst_configbraces

#include "tst_configbraces.moc"
