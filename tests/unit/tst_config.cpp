// The settings store: both notations in, look-up of dotted keys, order of settings.
#include "config/config.h"
#include "support/capturedoutput.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

/// The customary form of a settings file.
const QByteArray customary = R"(korvel: 
{
    language: 
    {
        basedir = "/opt/lang";
        file = "/";
    };

    receiptdoc: 
    {
        descriptionWidth = "24";
        printLogo = "true";
    };

};
)";

/// The same settings in the XML notation.
const QByteArray customaryXml = R"(<korvel><language basedir="/opt/lang" file="/"/>)"
                                R"(<receiptdoc descriptionWidth="24" printLogo="true"/></korvel>)";

const QStringList customaryTree = {"*", "  korvel", "    language basedir=|/opt/lang| file=|/|",
                                   "    receiptdoc descriptionWidth=|24| printLogo=|true|"};

/// A file that is there for the time of a test. Its name has no dot.
class SettingsFile
{
public:
    explicit SettingsFile(const QByteArray &bytes) { write(bytes); }

    void write(const QByteArray &bytes)
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path()));
    }

    [[nodiscard]] QString path() const { return folder.filePath("settings"); }
    [[nodiscard]] QString folderPath() const { return folder.path(); }
    [[nodiscard]] QString missingPath() const { return folder.filePath("missing"); }

private:
    QTemporaryDir folder;
};

/// A store that shows what derived classes see.
class Store : public libconfig::Config
{
public:
    using Config::Config;
    using Config::document;
    using Config::fileFormat;
    using Config::fileName;
    using Config::settingNames;
    using Config::stream;

    /// The tree, one node a line below its parent's: "*" is the element named as the file, and
    /// settings are written name=|value| in their order.
    [[nodiscard]] QStringList tree() const
    {
        QStringList lines;
        describe(*document, {}, lines);
        return lines;
    }

private:
    void describe(const QDomNode &parent, const QString &indent, QStringList &lines) const
    {
        for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
            QString line = indent + (node.nodeName() == fileName ? "*" : node.nodeName());
            const QDomElement group = node.toElement();
            const QStringList names = settingNames(group);
            for (const QString &name : names)
                line += ' ' + name + "=|" + group.attribute(name) + '|';
            if (names.size() != group.attributes().count())
                line += QString(" but %1 settings").arg(group.attributes().count());
            lines += line;
            describe(node, indent + "  ", lines);
        }
    }
};

QStringList treeOf(const QByteArray &bytes, const QString &notation)
{
    const SettingsFile file(bytes);
    return Store(file.path(), notation).tree();
}

QString lookupIn(const QByteArray &bytes, const QString &notation, const QString &key)
{
    const SettingsFile file(bytes);
    return Store(file.path(), notation).lookup(key);
}

/// Every byte from 1 to 255 in its order, but these.
QByteArray allBytesBut(const QByteArray &excluded)
{
    QByteArray bytes;
    for (int byte = 1; byte <= 255; ++byte)
        if (!excluded.contains(static_cast<char>(byte)))
            bytes += static_cast<char>(byte);
    return bytes;
}

} // namespace

class TestConfig : public QObject
{
    Q_OBJECT

private slots:
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

    void emptyStore()
    {
        const Store store;
        QVERIFY(!store.document);
        QCOMPARE(store.fileName, "");
        QCOMPARE(store.fileFormat, "");
        QVERIFY(!store.stream.is_open());
        QCOMPARE(store.lookup("korvel.language.file"), "");
        QCOMPARE(store.lookup(""), "");
    }

    void storeBuiltOnAFile()
    {
        const SettingsFile file(customary);
        const Store store(file.path(), "cfg");
        QCOMPARE(store.fileName, file.path());
        QCOMPARE(store.fileFormat, "cfg");
        QCOMPARE(store.document->documentElement().tagName(), file.path());
        QCOMPARE(store.tree(), customaryTree);
        QCOMPARE(store.lookup("korvel.language.basedir"), "/opt/lang");
    }

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

    void lookupInBothNotations_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        const auto row = [](const char *name, const QString &key, const QString &value) {
            QTest::newRow(name) << key << value;
        };

        row("two fields: a setting of the first group", "korvel.version", "1");
        row("three fields: a setting of a subgroup", "korvel.language.file", "/");
        row("four fields: in the group that has the subgroup", "korvel.doc.margin.left", "2");
        row("the first value counts", "korvel.doc.rows", "60");
        row("an empty value is passed over for a later group's", "korvel.doc.width", "32");
        row("an empty value alone is the empty string", "korvel.language.basedir", "");

        row("no field", "", "");
        row("one field", "korvel", "");
        row("a group has no value", "korvel.language", "");
        row("a subgroup has no value", "korvel.doc.margin", "");
        row("a setting of a subgroup is not its parent's", "korvel.file", "");
        row("keys begin at the first group", "language.file", "");
        row("a missing setting", "korvel.language.missing", "");
        row("a missing group", "korvel.missing.file", "");
        row("a field below a setting", "korvel.language.file.x", "");
        row("fields are never skipped", "korvel.language.doc.rows", "");
        row("many fields", QString("korvel.").repeated(1000) + "version", "");

        row("groups differ by letter case", "Korvel.version", "");
        row("subgroups differ by letter case", "korvel.LANGUAGE.file", "");
        row("settings differ by letter case", "korvel.language.File", "");
        row("blanks of a key count", " korvel.version", "");
        row("blanks inside a key count", "korvel. version", "");
        row("the beginning of a name is not the name", "korv.version", "");
        row("the beginning of a setting is not the setting", "korvel.vers", "");

        row("empty fields alone", "...", "");
        row("an empty first field", ".version", "");
        row("an empty first field before a whole key", ".korvel.version", "");
        row("an empty second field", "korvel.", "");
        row("an empty second and third field", "korvel..", "");
        row("an empty second field before a third", "korvel..version", "");
        row("an empty third field: a setting of the first group", "korvel.version.", "1");
        row("what follows an empty third field is ignored", "korvel.version..x.y", "1");
        row("an empty third field: a group has no value", "korvel.language..file", "");
        row("an empty fourth field: a setting of the subgroup", "korvel.language.file.", "/");
        row("what follows an empty fourth field is ignored", "korvel.language.file..x", "/");
        row("an empty fifth field: a setting two groups down", "korvel.doc.margin.left.", "2");

        row("a setting outside every group is out of reach", "x", "");
        row("a setting outside every group is not the first group's", "korvel.x", "");
        row("the second top-level group is out of reach", "other.a", "");
        row("the subgroups of the second top-level group are, too", "other.sub.b", "");
    }

    void lookupInBothNotations()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        QCOMPARE(lookupIn(R"(x = "loose";
                             korvel:
                             {
                                 version = "1";
                                 language: { file = "/"; basedir = ""; };
                                 doc: { width = ""; rows = "60"; };
                                 doc: { width = "32"; rows = "66"; margin: { left = "2"; }; };
                                 doc: { width = "40"; };
                             };
                             other: { a = "9"; sub: { b = "9"; }; };)",
                          "cfg", key),
                 value);
        QCOMPARE(lookupIn(R"(<korvel version="1">
                                 <language file="/" basedir=""/>
                                 <doc width="" rows="60"/>
                                 <doc width="32" rows="66"><margin left="2"/></doc>
                                 <doc width="40"/>
                             </korvel>)",
                          "xml", key),
                 value);
    }

    void lookup_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        const auto row = [](const char *name, const QString &notation, const QByteArray &text,
                            const QString &key, const QString &value) {
            QTest::newRow(name) << notation << text << key << value;
        };

        const QByteArray nested = R"(a: { b: { c = "1"; }; };)";
        row("nested: the whole key", "cfg", nested, "a.b.c", "1");
        row("nested: the setting is missing", "cfg", nested, "a.b", "");
        row("nested: the subgroup is missing", "cfg", nested, "a.c", "");
        row("nested: the first group is missing", "cfg", nested, "b.c", "");

        row("blanks inside the quotes are answered", "cfg", R"(a: { b = "  x "; };)", "a.b",
            "  x ");
        row("quotes are not answered", "cfg", R"(a: { b = say "hi"; };)", "a.b", "say hi");
        row("names may hold blanks", "cfg", R"(the group: { the name = "1"; };)",
            "the group.the name", "1");
        row("a name with a dot is out of reach", "cfg", R"(a: { b.c = "1"; b: { d = "2"; }; };)",
            "a.b.c", "");
        row("a Latin-1 key", "cfg", "caff\xE8: { \xFF = \"1\"; };", "caffè.ÿ", "1");
        row("a nameless setting is found by an empty field", "cfg", R"(a: { = "1"; b = "2"; };)",
            "a.", "1");
        row("a setting after a nameless one", "cfg", R"(a: { = "1"; b = "2"; };)", "a.b", "2");

        const QByteArray sameName = R"(korvel: { language: { x = "1"; }; language = "it"; };)";
        row("a setting named as a group", "cfg", sameName, "korvel.language", "it");
        row("a group named as a setting", "cfg", sameName, "korvel.language.x", "1");
        row("an empty third field reads the setting, not the group", "cfg", sameName,
            "korvel.language..x", "it");

        row("only the first of two groups of one name at the top", "cfg",
            R"(a: { b = ""; }; a: { b = "1"; };)", "a.b", "");
        row("an empty group is not the first", "cfg", R"(a: { }; b: { c = "1"; };)", "b.c", "1");
        row("a nameless group is not the first", "cfg", R"(: { a = "1"; }; b: { c = "2"; };)",
            "b.c", "2");
        row("an empty value deep below is passed over", "cfg",
            R"(a: { b: { c: { d = ""; }; }; b: { c: { e = "0"; }; }; b: { c: { d = "1"; }; }; };)",
            "a.b.c.d", "1");
        row("a lone empty group answers nothing", "cfg", "korvel: { };", "korvel.a", "");

        const QByteArray commentFirst =
            R"(<!-- note --><korvel v="0"><a x="1"/><b y="2"/></korvel>)";
        row("xml, comment first: keys begin below the root", "xml", commentFirst, "a.x", "1");
        row("xml, comment first: only at its first child", "xml", commentFirst, "b.y", "");
        row("xml, comment first: the root is out of reach", "xml", commentFirst, "korvel.a.x", "");
        row("xml, comment first: so are its settings", "xml", commentFirst, "korvel.v", "");
        row("xml, declaration first: keys begin below the root", "xml",
            "<?xml version=\"1.0\"?>\n<korvel>\n  <a x=\"1\"/>\n</korvel>\n", "a.x", "1");
        row("xml, declaration first: the root is out of reach", "xml",
            R"(<?xml version="1.0"?><korvel><a x="1"/></korvel>)", "korvel.a.x", "");
        row("xml, declaration first: a first child that is a comment", "xml",
            R"(<?xml version="1.0"?><korvel><!-- note --><a x="1"/></korvel>)", "a.x", "");
        row("xml, declaration first: a first child that is a text", "xml",
            R"(<?xml version="1.0"?><korvel>text<a x="1"/></korvel>)", "a.x", "");
        row("xml: comments and texts between groups are passed over", "xml",
            R"(<korvel>text<!-- note --><a/>text<a x="1"/></korvel>)", "korvel.a.x", "1");
        row("xml: white space before and between elements", "xml",
            "\n  <korvel\n a=\"1\">\n  <b\tc=\"2\" />\n</korvel>\n\n", "korvel.b.c", "2");
        row("xml: blanks and signs of a value stay", "xml", R"(<a b=" x; {y}: = "/>)", "a.b",
            " x; {y}: = ");
        row("xml: references are characters", "xml", "<a b='&quot;&lt;&amp;&gt;&#232;&#x20AC;'/>",
            "a.b", "\"<&>è€");
        row("xml: UTF-8 without a declaration", "xml", "<caffè è=\"à\"/>", "caffè.è", "à");
        row("xml: a byte order mark", "xml", "\xEF\xBB\xBF<a b=\"1\"/>", "a.b", "1");
        row("xml: Latin-1 with a declaration", "xml",
            "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><k><a b=\"\xE8\xFF\"/></k>", "a.b",
            "èÿ");
        row("xml: malformed", "xml", R"(<korvel><a x="1"/>)", "korvel.a.x", "");
        row("xml: malformed behind a whole root", "xml", R"(<a b="1"/><)", "a.b", "");
    }

    void lookup()
    {
        QFETCH(QString, notation);
        QFETCH(QByteArray, text);
        QFETCH(QString, key);
        QFETCH(QString, value);
        QCOMPARE(lookupIn(text, notation, key), value);
    }

    void lookupNeverMatchesTheFile()
    {
        const SettingsFile file(R"(x = "1"; a: { b = "2"; };)");
        const Store store(file.path(), "cfg");
        QCOMPARE(store.lookup(file.path() + ".x"), "");
        QCOMPARE(store.lookup(file.path() + ".a.b"), "");
        QCOMPARE(store.lookup("a.b"), "2");
    }

    void lookupBelowANode()
    {
        const SettingsFile file(R"(<a b="1"><!-- note --><c d="2"><e f="3"/></c>text</a>)");
        const Store store(file.path(), "xml");
        const QDomElement a = store.document->documentElement().firstChildElement();
        const QDomElement c = a.firstChildElement();
        QCOMPARE(store.lookup(a, "a.b"), "1");
        QCOMPARE(store.lookup(a, "a.c.e.f"), "3");
        QCOMPARE(store.lookup(c, "c.d"), "2");
        QCOMPARE(store.lookup(c, "a.c.d"), "");
        QCOMPARE(store.lookup(c, "d"), "");
        QCOMPARE(store.lookup(a.firstChild(), "#comment.b"), "");
        QCOMPARE(store.lookup(a.lastChild(), "#text.b"), "");
        QCOMPARE(store.lookup(QDomNode(), "a.b"), "");
        QCOMPARE(store.lookup(QDomNode(), ""), "");
    }

    void anyLength_data()
    {
        QTest::addColumn<int>("length");
        for (const int length : {2047, 2048, 2049, 100'000})
            QTest::addRow("%d characters", length) << length;
    }

    void anyLength()
    {
        QFETCH(int, length);
        const QByteArray name = QByteArray(length - 1, 'n') + 'z';
        const QByteArray value = QByteArray(length - 1, 'v') + 'z';
        const QString key = name + '.' + name;
        QVERIFY(lookupIn(name + ": {" + name + " = \"" + value + "\"; };", "cfg", key) == value);
        QVERIFY(lookupIn("<a b=\"" + value + "\"/>", "xml", "a.b") == value);
        // To the toolkit, an XML file with a name of more than 4096 characters is malformed.
        if (length <= 4096)
            QVERIFY(lookupIn('<' + name + ' ' + name + "=\"" + value + "\"/>", "xml", key)
                    == value);

        const QByteArray blanks(length, ' ');
        QCOMPARE(lookupIn(blanks + 'a' + blanks + ':' + blanks + '{' + blanks + 'b' + blanks + '='
                              + blanks + '1' + blanks + ';' + blanks + '}' + blanks + ';',
                          "cfg", "a.b"),
                 "1");
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

    void xmlCutAnywhere()
    {
        SettingsFile file("");
        for (qsizetype size = 0; size < customaryXml.size(); ++size) {
            file.write(customaryXml.first(size));
            QCOMPARE(Store(file.path(), "xml").tree(), QStringList());
        }
    }

    void settingsKeepTheirOrder_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QByteArray>("format");
        QTest::newRow("braces") << "cfg" << QByteArray("a: { %1 b: { %1 }; };");
        QTest::newRow("xml") << "xml" << QByteArray("<a %1><b %1/></a>");
        QTest::newRow("xml with a declaration")
            << "xml" << QByteArray("<?xml version='1.0'?><!-- note --><a %1><b %1/></a>");
    }

    void settingsKeepTheirOrder()
    {
        QFETCH(QString, notation);
        QFETCH(QByteArray, format);
        const QStringList names = {"quantityFieldWidth", "priceFieldWidth", "totalPriceFieldWidth",
                                   "paperWidth",         "paperRows",       "style",
                                   "printGeometry",      "printHeader",     "printLogo",
                                   "printCompany",       "printDate",       "openCashDrawer"};
        QByteArray settings;
        for (const QString &name : names)
            settings += name.toLatin1() + (notation == "cfg" ? " = \"1\"; " : "=\"1\" ");
        const SettingsFile file(QByteArray(format).replace("%1", settings));

        Store store;
        // Again and again: no order may be left from the tree before.
        for (int reading = 0; reading < 20; ++reading) {
            store.readFile(file.path(), notation);
            const QDomNode a = store.document->elementsByTagName("a").at(0);
            QCOMPARE(store.settingNames(a.toElement()), names);
            QCOMPARE(store.settingNames(a.firstChildElement("b")), names);
        }
    }

    /// A derived class may change a group: its settings are shown as they are now.
    void settingNamesOfAChangedGroup()
    {
        const SettingsFile file("k: { d = 1; c = 2; b = 3; };");
        Store store(file.path(), "cfg");
        QDomElement group = store.document->documentElement().firstChildElement();
        group.removeAttribute("c");
        group.setAttribute("z", "4");
        QCOMPARE(store.settingNames(group), QStringList({"d", "b", "z"}));
        group.setAttribute("a", "5");
        QCOMPARE(store.settingNames(group), QStringList({"d", "b", "a", "z"}));
        QCOMPARE(store.lookup("k.c"), "");
        QCOMPARE(store.lookup("k.z"), "4");

        store.buildConfigFile(QString());
        QCOMPARE(Store(file.path(), "cfg").tree(),
                 QStringList({"*", "  k d=|1| b=|3| a=|5| z=|4|"}));
    }

    void settingNamesOfNoGroup()
    {
        const SettingsFile file(customary);
        const Store store(file.path(), "cfg");
        QCOMPARE(store.settingNames(QDomElement()), QStringList());
        QCOMPARE(store.settingNames(store.document->createElement("korvel")), QStringList());
        QCOMPARE(Store().settingNames(QDomElement()), QStringList());
    }

    void missingFile_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("reported");
        const auto row = [](const char *name, const QString &notation, const QString &fileName,
                            bool reported) {
            QTest::newRow(name) << notation << fileName << reported;
        };

        row("braces: reported", "cfg", "/no/such/folder/korvel.conf", true);
        row("braces: the path is reported as given", "cfg", "no-such-folder//../caffè %1.conf",
            true);
        row("braces: an empty path", "cfg", "", true);
        row("xml: not reported", "xml", "/no/such/folder/korvel.conf", false);
        row("another notation: not reported", "ini", "/no/such/folder/korvel.conf", false);
    }

    void missingFile()
    {
        QFETCH(QString, notation);
        QFETCH(QString, name);
        QFETCH(bool, reported);
        Store store;
        const QByteArray output = outputOf([&] { store.readFile(name, notation); });
        QCOMPARE(output, reported ? notFound(name) : QByteArray());
        QCOMPARE(store.tree(), QStringList());
        QCOMPARE(store.lookup("korvel.language.file"), "");
    }

    void unknownNotation_data()
    {
        QTest::addColumn<QString>("notation");
        for (const char *notation : {"", "CFG", "Xml", "cfg ", " xml", "ini", "cfgxml"})
            QTest::addRow("<%s>", notation) << notation;
    }

    void unknownNotation()
    {
        QFETCH(QString, notation);
        for (const QByteArray &text : {customary, customaryXml}) {
            const SettingsFile file(text);
            Store store;
            QCOMPARE(outputOf([&] { store.readFile(file.path(), notation); }), "");
            QCOMPARE(store.fileName, file.path());
            QCOMPARE(store.fileFormat, notation);
            QCOMPARE(store.tree(), QStringList());
            QCOMPARE(store.lookup("korvel.language.file"), "");
        }
    }

    void folderAsAFile_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::newRow("braces") << "cfg";
        QTest::newRow("xml") << "xml";
    }

    void folderAsAFile()
    {
        QFETCH(QString, notation);
        const SettingsFile file(customary);
        Store store;
        static_cast<void>(outputOf([&] { store.readFile(file.folderPath(), notation); }));
        QCOMPARE(store.tree(), QStringList());
        QCOMPARE(store.lookup("korvel.language.file"), "");
    }

    void readAgain_data()
    {
        QTest::addColumn<QByteArray>("first");
        QTest::addColumn<QString>("firstNotation");
        QTest::addColumn<QByteArray>("second");
        QTest::addColumn<QString>("secondNotation");
        QTest::addColumn<QStringList>("tree");
        const auto row = [](const char *name, const QByteArray &first, const QString &firstNotation,
                            const QByteArray &second, const QString &secondNotation,
                            const QStringList &tree) {
            QTest::newRow(name) << first << firstNotation << second << secondNotation << tree;
        };
        const QByteArray stopped = R"(a: { b = "1"; }; }; c: { d = "2"; };)";

        row("after a whole file", customary, "cfg", R"(a: { b = "1"; };)", "cfg",
            {"*", "  a b=|1|"});
        row("after one that stopped at a '}'", stopped, "cfg", customary, "cfg", customaryTree);
        row("after one in the other notation", customaryXml, "xml", stopped, "cfg",
            {"*", "  a b=|1|"});
        row("as xml", stopped, "cfg", R"(<a c="1"/>)", "xml", {"*", "  a c=|1|"});
        row("an empty file leaves nothing of the first", customary, "cfg", "", "cfg", {});
        row("a malformed file leaves nothing of the first", customaryXml, "xml", "<a", "xml", {});
        row("another notation leaves nothing of the first", customary, "cfg", customary, "ini", {});
    }

    void readAgain()
    {
        QFETCH(QByteArray, first);
        QFETCH(QString, firstNotation);
        QFETCH(QByteArray, second);
        QFETCH(QString, secondNotation);
        QFETCH(QStringList, tree);
        const SettingsFile firstFile(first);
        const SettingsFile secondFile(second);
        Store store(firstFile.path(), firstNotation);
        QVERIFY(store.document->hasChildNodes());
        store.readFile(secondFile.path(), secondNotation);
        QCOMPARE(store.fileName, secondFile.path());
        QCOMPARE(store.fileFormat, secondNotation);
        QCOMPARE(store.tree(), tree);
    }

    void readAgainAroundAMissingFile()
    {
        const SettingsFile file(customary);
        Store store(file.path(), "cfg");
        QCOMPARE(outputOf([&] { store.readFile(file.missingPath(), "cfg"); }),
                 notFound(file.missingPath()));
        QCOMPARE(store.tree(), QStringList());
        QCOMPARE(outputOf([&] { store.readFile(file.path(), "cfg"); }), "");
        QCOMPARE(store.tree(), customaryTree);
    }

    void openFile()
    {
        const SettingsFile file("\r\n\x1A\xFF");
        Store store;
        QCOMPARE(outputOf([&] { QVERIFY(store.openFile(file.path())); }), "");
        QVERIFY(store.stream.is_open());
        for (const int byte : {0x0D, 0x0A, 0x1A, 0xFF, EOF})
            QCOMPARE(store.stream.get(), byte);

        const SettingsFile other("x");
        QVERIFY(store.openFile(other.path()));
        QVERIFY(store.openFile(file.path()));
        QCOMPARE(store.stream.get(), '\r');

        QCOMPARE(outputOf([&] { QVERIFY(!store.openFile(file.missingPath())); }),
                 notFound(file.missingPath()));
        QVERIFY(!store.stream.is_open());
        QVERIFY(store.openFile(other.path()));
        QCOMPARE(store.stream.get(), 'x');
    }

    void openFileOfTheStore()
    {
        const SettingsFile file("x");
        Store store(file.path(), "not read");
        QCOMPARE(outputOf([&] { QVERIFY(store.openFile()); }), "");
        QCOMPARE(store.stream.get(), 'x');

        store.readFile(file.missingPath(), "not read");
        QCOMPARE(outputOf([&] { QVERIFY(!store.openFile()); }), notFound(file.missingPath()));
    }

    void closeFile()
    {
        const SettingsFile file("x");
        Store store;
        QVERIFY(store.openFile(file.path()));
        store.closeFile();
        QVERIFY(!store.stream.is_open());
        store.closeFile();
        QVERIFY(!store.stream.is_open());
    }

    void streamAfterReading()
    {
        const SettingsFile whole(customary);
        Store store(whole.path(), "cfg");
        QVERIFY(!store.stream.is_open());

        const SettingsFile stopped("} here;then");
        store.readFile(stopped.path(), "cfg");
        QVERIFY(store.stream.is_open());
        QCOMPARE(store.stream.get(), 't');
        store.closeFile();
        QVERIFY(!store.stream.is_open());
    }

    void jump()
    {
        const SettingsFile file("abc\nab\xFF;c");
        Store store;
        QVERIFY(store.openFile(file.path()));
        QVERIFY(store.jump('b'));
        QCOMPARE(store.stream.get(), 'c');
        QVERIFY(store.jump('b'));
        QVERIFY(store.jump('\xFF'));
        QVERIFY(store.jump(';'));
        QVERIFY(!store.jump('a'));
        QVERIFY(!store.jump('c'));
    }

    void jumpWithoutAFile()
    {
        const SettingsFile file("");
        Store store;
        QVERIFY(!store.jump(';'));
        QVERIFY(store.openFile(file.path()));
        QVERIFY(!store.jump(';'));
        static_cast<void>(outputOf([&] { store.openFile(file.missingPath()); }));
        QVERIFY(!store.jump(';'));
        static_cast<void>(outputOf([&] { store.openFile(file.folderPath()); }));
        QVERIFY(!store.jump(';'));
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

    void nothingOnStandardError_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("braces") << "cfg" << customary;
        QTest::newRow("braces, outside every group") << "cfg" << QByteArray(R"(x = "1";)");
        QTest::newRow("braces, nameless group")
            << "cfg" << QByteArray(R"(a: { : { b: { c = "1"; }; }; d = "2"; };)");
        QTest::newRow("xml") << "xml" << customaryXml;
        QTest::newRow("xml, malformed") << "xml" << QByteArray("<a");
    }

    void nothingOnStandardError()
    {
        QFETCH(QString, notation);
        QFETCH(QByteArray, text);
        const SettingsFile file(text);
        QTest::failOnWarning(QRegularExpression("."));
        const Store store(file.path(), notation);
        QCOMPARE(store.lookup("missing.key"), "");
    }
};

QTEST_GUILESS_MAIN(TestConfig)
#include "tst_config.moc"
