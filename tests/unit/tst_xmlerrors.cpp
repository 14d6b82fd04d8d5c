// What is wrong with the XML of a job: the place and the words, and what keeps an XML bomb small.
#include "companions/check/job.h"
#include "support/test.h"

namespace tst_xmlerrors {

namespace check = korvel::check;

/// What is wrong with a job, behind the place: "2:5: words". A job is read up to one fault at most.
QString faultIn(const QByteArray &job, const QByteArray &code = "malformed-xml")
{
    const check::Job read = check::readJob(job);
    if (read.faults.isEmpty())
        return {};
    const check::Fault &fault = read.faults.first();
    if (read.faults.size() != 1 || check::infoOf(fault.code).name != QLatin1String(code))
        return "not one of " + code;
    return QString("%1:%2: %3").arg(fault.place.line).arg(fault.place.column).arg(fault.text);
}

/// A document type with these declarations in front of a job.
QByteArray typed(const QByteArray &declarations, const QByteArray &job)
{
    return "<!DOCTYPE job [" + declarations + "]>" + job;
}

/// Entities that each refer ten times to the one before.
QByteArray multiplied(int count)
{
    QByteArray declarations = "<!ENTITY e0 \"ha\">";
    for (int i = 1; i < count; ++i) {
        const QByteArray before = "&e" + QByteArray::number(i - 1) + ";";
        declarations += "<!ENTITY e" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    return declarations;
}

class TestXmlErrors : public QObject
{
    Q_OBJECT

private slots:
    /// The place of each is marked.
    void words_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QString>("words");
        const auto row = [](const QByteArray &job, const QString &words) {
            QTest::newRow(job.simplified().constData()) << job << words;
        };

        row("<job a='^& b'/>", "\"&\" begins no reference; write &amp;");
        row("<job>a ^& b</job>", "\"&\" begins no reference; write &amp;");
        row("<job a='^&amp b'/>",
            "\"&\" begins a reference without its \";\"; write &amp;, or end the reference");
        row("<job a='^&#xz;'/>",
            "\"&\" begins a reference without its \";\"; write &amp;, or end the reference");
        row("<job>^&amp",
            "\"&\" begins a reference without its \";\"; write &amp;, or end the reference");
        row("<job a='&amp;^&euro;' b='&euro;'/>",
            "XML does not know &euro;; write \"\u20ac\" or &#8364;");
        row("<job>&lt;^&nbsp;</job>", "XML does not know &nbsp;; write &#160;");
        row("<job a='>^&eacute;'/>", "XML does not know &eacute;; write \"\u00e9\" or &#233;");
        row("<job a='^&Ccedil;'/>", "XML does not know &Ccedil;; write \"\u00c7\" or &#199;");
        row("<job a='^&szlig;'/>", "XML does not know &szlig;; write \"\u00df\" or &#223;");
        row("<job a='R^&B;'/>", "XML does not know &B;, only &amp; &lt; &gt; &quot; &apos;; write "
                                "&amp; for a plain \"&\"");
        row("<job a='^&qgrave;'/>", "XML does not know &qgrave;, only &amp; &lt; &gt; &quot; "
                                    "&apos;; write &amp; for a plain \"&\"");
        row("<job a='^&#xFFFE;'/>", "&#xFFFE; is no character that XML allows");
        row("<job>^&#0;</job>", "&#0; is no character that XML allows");

        row("<job a='^<'/>", "\"<\" in a value; write &lt;, or end the value with its quote");
        row("<job a=^'1/>\n<b c='2'/>",
            "the value that begins here has no closing quote, or a \"<\"; for that write &lt;");
        row("<job a=^'1 b='2'/>", "the value that begins here has no closing quote");
        row("<job c='' a=^'1\" b='2'/>", "the value that begins here has no closing quote");
        row("<job a='1 '^2' 3'/>",
            "\"2\" cannot stand behind a value; for a quote in a value write &quot;");
        row("<job a='1'^, b='2'/>",
            "\",\" cannot stand behind a value; for a quote in a value write &quot;");
        row("<job a^'1'/>", "a value without a \"=\" before it");
        row("<job a=^\u201c1\u201d/>", "\"\u201c\" is no quote to XML; write \" or '");
        row("<job a=^1/>", "a value without quotes; write \"1\"");
        row("<job a=^\u00e8 b='1'>", "a value without quotes; write \"\u00e8\"");
        row("<job a=^1/2>", "a value without quotes; write \"1/2\"");
        row("<job a = ^>", "a value without quotes; write \"\"");
        row("<job a^/>", "an attribute without a value");
        row("<job a ^b='1'/>", "an attribute without a value");
        row("<job a='1'^b='2'/>", "no blank between a value and the next attribute");
        row("<job a='1' b='2'\n ^a='3'/>", "an attribute stands twice: \"a\"");
        row("<job ^1='1'/>", "\"1\" cannot begin a name");
        row("<job a^$='1'/>", "\"$\" cannot stand in a name");
        row("<job a='1'^/ >", "\"/\" in a tag without a \">\" behind it");
        row("<job>^<a b='1'\n<c/></job>", "the tag that begins here has no \">\"");
        row("<job><a>^</a\n</job>", "the tag that begins here has no \">\"");
        row("<job>^<a b='1'", "a tag without its \">\", or with a quote too few");
        row("<job>^<a b='1/>", "a tag without its \">\", or with a quote too few");
        row("<job>1 ^< 2</job>", "\"<\" begins no tag; write &lt;");
        row("<job> ^< a/></job>", "a blank behind \"<\"; the name of a tag stands right behind it");
        row("<job>a ^< b</job>", "\"<\" begins no tag; write &lt;");
        row("<job>^<1/></job>", "\"<\" begins no tag; write &lt;");
        row("<job>^</ job>", "\"</\" without a name");

        row("<job>\n<a>\n^</b></job>", "</b> where <a> of line 2 must be closed");
        row("<job>\n<a>\n^</jobs>", "</jobs> where <a> of line 2 must be closed");
        const QString open =
            "<%1> is never closed; write </%1> where it ends, or /> in place of its "
            ">: nothing behind line %2 was checked";
        row("<job>\n^<a>\n<b>\n</job >", open.arg("a").arg(4));
        row("\n^<job>\n<a/>\n", open.arg("job").arg(4));
        row("<job>\n<a/>\n^<job>", open.arg("job").arg(3));
        row("<job/>^</job>", "an end tag where no element is open");
        row("^</job>", "an end tag where no element is open");
        row("^", "there is no element");
        row("<!-- --> ^", "there is no element");
        row("<job/> ^<job/>", "a second root; one element must hold all others");
        row("<job/> ^text", "a text outside the root");
        row("<job/>^&lt;", "a text outside the root");
        row(" ^text <job/>", "a text outside the root");
        row("<job/>^<![CDATA[ ]]>", "a declaration or a section behind the end of the root");
        const QString notFirst = "the XML declaration is not the first in the file; nothing may "
                                 "stand before it, no blank either";
        row("\n^<?xml version='1.0'?><job/>", notFirst);
        row("<job>^<?xml version='1.0'?></job>", notFirst);
        const QString noDeclaration =
            "this is no XML declaration; write <?xml version=\"1.0\" encoding=\"UTF-8\"?>";
        row("<?xml version='1.0' ^a='b'?><job/>", noDeclaration);
        row("<?xml ^encoding='UTF-8'?><job/>", noDeclaration);
        row("^<?XML version='1.0'?><job/>",
            "an XML declaration begins with <?xml, in small letters");
        row("^<?xml version='1.1'?><job/>", "XML 1.1 is not read; write 1.0");

        row("<job>^]]></job>", "\"]]>\" in a text; write ]]&gt;");
        row("<job><!-- ^-- --></job>", "\"--\" in a comment; write a single -");
        row("<job>^<!-- </job>", "a comment without its \"-->\"");
        row("<job>^<?a </job>", "an instruction without its \"?>\"");
        row("<job>^<!DOCTYPE job></job>", "\"<!\" begins no comment and no CDATA section");
        row("<job>^<? a?></job>", "\"<?\" without a name");
        row("<job>^<?a\u00b7 b?></job>", "an instruction has no name");
        row("<job>^<a\u00b7/></job>", "\"a\u00b7\" is no name");
        row("<job ^a\u00b7='1'/>", "\"a\u00b7\" is no name");
        row("<job a='\u00e8^\x01'/>", "XML forbids the character U+0001");
        row("<job a='\U0001F355^\uFFFF'/>", "XML forbids the character U+FFFF");
        row("<job>\u00e8^\x1b</job>", "XML forbids the character U+001B");
        row("<job ^\u2028='1'/>", "U+2028 cannot begin a name");
    }

    void words()
    {
        QFETCH(QByteArray, job);
        QFETCH(QString, words);
        const qsizetype at = job.indexOf('^');
        const QByteArray before = job.first(at);
        const QString line = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1));
        const QString unread =
            words.contains("nothing behind") ? "" : ": nothing behind this was checked";
        QCOMPARE(faultIn(job.remove(at, 1)), QString("%1:%2: %3%4")
                                                 .arg(before.count('\n') + 1)
                                                 .arg(line.size() + 1)
                                                 .arg(words, unread));
    }

    void nullCharacter()
    {
        QCOMPARE(faultIn(QByteArray("<job>\0</job>", 12)),
                 "1:6: XML forbids the character U+0000: nothing behind this was checked");
    }

    /// What an entity has wrong is found where the entity is used.
    void entities_data()
    {
        QTest::addColumn<QByteArray>("declarations");
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QString>("words");
        const auto row = [](const QByteArray &declarations, const QByteArray &job,
                            const QString &words) {
            QTest::newRow(declarations.constData()) << declarations << job << words;
        };
        const QByteArray inText = "<job>\n&e;</job>";

        row("<!ENTITY e '<a b=1/>'>", inText, "&e; stands for what is not well-formed");
        row("<!ENTITY e '<a>'>", inText, "an entity with a start tag or an end tag alone");
        row("<!ENTITY e '<a></b>'>", inText, "an end tag of an entity closes another element");
        row("<!ENTITY e '<a b=\"\" b=\"\"/>'>", inText, "an attribute stands twice, in an entity");
        row("<!ENTITY e '&x;'>", inText,
            "&e; leads to no entity that is declared; write the character itself");
        row("<!ENTITY e '&x; '>", "<job>\n<a b='&e;'/></job>", "an entity that is not declared");
        row("<!ENTITY e SYSTEM 'file'>", "<job a='\n&e;'/>",
            "an entity of another file in a value");
        row("<!NOTATION n SYSTEM 'n'><!ENTITY e SYSTEM 'file' NDATA n>", inText,
            "an entity that is no text");
    }

    void entities()
    {
        QFETCH(QByteArray, declarations);
        QFETCH(QByteArray, job);
        QFETCH(QString, words);
        QCOMPARE(faultIn(typed(declarations, job)),
                 "2:1: " + words + ": nothing behind this was checked");
    }

    /// What the renderer reads over, or another file would have, is no fault.
    void documentTypes_data()
    {
        QTest::addColumn<QByteArray>("job");
        const auto row = [](const char *what, const QByteArray &job) {
            QTest::newRow(what) << job;
        };

        row("a file that nobody reads", "<!DOCTYPE job SYSTEM 'job.dtd'><job a='&x;'>&x;</job>");
        row("an entity of another file in a text",
            typed("<!ENTITY e SYSTEM 'file'>", "<job>&e;</job>"));
        row("elements and attributes",
            typed("<!ELEMENT job ANY><!ATTLIST job a CDATA #IMPLIED b (x|y) 'x'>", "<job a=''/>"));
        row("a parameter entity that declares another",
            typed("<!ENTITY % p '<!ENTITY e \"x\">'>%p;", "<job a='&e;'/>"));
        row("64 entities, and 4,096 characters", [] {
            QByteArray declarations;
            for (int i = 0; i < 64; ++i)
                declarations +=
                    "<!ENTITY e" + QByteArray::number(i) + " '" + QByteArray(64, 'x') + "'>";
            return typed(declarations, "<job a='&e0;&e63;'>&e0;</job>");
        }());
    }

    void documentTypes()
    {
        QFETCH(QByteArray, job);
        QCOMPARE(faultIn(job), QString());
    }

    /// The renderer ends a job at such entities before it reads an element, and so does the
    /// checker.
    void limitsOnEntities_data()
    {
        QTest::addColumn<QByteArray>("declarations");

        QTest::newRow("of each other, ten times") << multiplied(10);
        QTest::newRow("4,097 characters") << "<!ENTITY e '" + QByteArray(4097, 'x') + "'>";
        QTest::newRow("of itself") << QByteArray("<!ENTITY e '&e;'>");
        QByteArray many;
        for (int i = 0; i < 65; ++i)
            many += "<!ENTITY e" + QByteArray::number(i) + " ''>";
        QTest::newRow("65") << many;
        QTest::newRow("of parameters, each in another")
            << QByteArray("<!ENTITY % p '") + QByteArray(4097, ' ') + "'>%p;";
    }

    void limitsOnEntities()
    {
        QFETCH(QByteArray, declarations);
        const QString fault = faultIn(typed(declarations, "<job>&e;</job>"), "limit");
        QVERIFY2(fault.endsWith(": more entities than the renderer takes, longer ones, or one in "
                                "itself: the paper ends here"),
                 qPrintable(fault));
        QCOMPARE(check::readJob(typed(declarations, "<job/>")).tags.size(), 0);
    }

    /// A megabyte of references to an entity of kilobytes would be gigabytes.
    void referencesThatMultiply()
    {
        const QByteArray entity = "<!ENTITY e '" + QByteArray(4000, 'x') + "'>";
        const QByteArray references = QByteArray("&e;").repeated(300000);
        for (const QByteArray &job :
             {"<job a='" + references + "'/>", "<job>" + references + "</job>"}) {
            const QString fault = faultIn(typed(entity, job));
            QVERIFY2(fault.endsWith(": entities that make too much text: nothing behind this was "
                                    "checked"),
                     qPrintable(fault));
        }
    }

    void limitOnDeclaredAttributes()
    {
        const auto declared = [](int count) {
            QByteArray rows;
            for (int i = 0; i < count; ++i)
                rows += " a" + QByteArray::number(i) + " CDATA ''";
            return typed("<!ATTLIST job" + rows + ">", "<job/>");
        };
        QCOMPARE(faultIn(declared(1024)), QString());
        QVERIFY(faultIn(declared(1025), "limit")
                    .endsWith(": more than 1024 attributes in the document type: nothing behind "
                              "this was checked"));
    }
};

KORVEL_TEST(TestXmlErrors)

} // namespace tst_xmlerrors

#include "tst_xmlerrors.moc"
