// Where findings are: lines and columns in jobs of all shapes, and settings.
#include "app/jobguard.h"
#include "support/checkjobs.h"
#include "support/settingstext.h"
#include "support/test.h"

#include <QBuffer>
#include <QXmlDefaultHandler>

namespace tst_checkplaces {

namespace check = korvel::check;

class TestCheckPlaces : public QObject
{
    Q_OBJECT

private slots:
    void place_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QStringList>("places");

        const QByteArray root = "<job>\n<method name=\"printPartialOrder\"/>\n";
        const QByteArray wrong = "<receipe number=\"1\" name=\"a)\"/>";
        QTest::newRow("lines count line feeds, columns from 1")
            << root + "  " + wrong + "\n</job>" << QStringList{"3:23"};
        QTest::newRow("a carriage return before a line feed is no line of its own")
            << QByteArray(root + wrong + "\n \n" + wrong + "\n</job>").replace("\n", "\r\n")
            << QStringList{"3:21", "5:21"};
        QTest::newRow("a tag over several lines")
            << root + "<receipe\n  number = \"1\"\n\tname\n = \"a)\"\n/>\n</job>"
            << QStringList{"5:2"};
        QTest::newRow("a tag over several lines that end in carriage returns")
            << QByteArray(root + "<receipe\n  number=\"1\"\n  name=\"a)\"\n/>\n</job>")
                   .replace("\n", "\r\n")
            << QStringList{"5:3"};
        QTest::newRow("values in single quotes, with other marks in them")
            << root + "<receipe number='1\">' name='a=\"b\">)'/></job>" << QStringList{"3:23"};
        QTest::newRow("two tags in a line")
            << root + wrong + wrong + "</job>" << QStringList{"3:21", "3:52"};
        QTest::newRow("references before it count as they are spelt")
            << root + "<receipe number=\"1&amp;&#232;\" name=\"a)\"/></job>" << QStringList{"3:32"};
        QTest::newRow("an accent is one column, an emoji two")
            << root + "<!-- \xC3\xA8\xF0\x9F\x8D\x95 -->" + wrong + "</job>" << QStringList{"3:33"};
        QTest::newRow("a byte order mark is no column") << QByteArray(
            "\xEF\xBB\xBF<job><method name=\"printPartialOrder\"/>" + wrong + "</job>")
                                                        << QStringList{"1:60"};
        QTest::newRow("UTF-16") << utf16(root + wrong + "</job>") << QStringList{"3:21"};
        QTest::newRow("Latin-1")
            << "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<!-- \xE8\xE8 -->\n" + root
                   + "<!-- \xE8 -->" + wrong + "</job>"
            << QStringList{"5:31"};
        QTest::newRow("a start tag and an end tag")
            << root + "<receipe number=\"1\" name=\"a)\"></receipe></job>" << QStringList{"3:21"};
        QTest::newRow("beside what the document type would add")
            << "<!DOCTYPE job [<!ATTLIST receipe town CDATA \"1\">]>\n" + root
                   + " <receipe number=\"1\" name=\"a)\"/></job>"
            << QStringList{"4:22"};
        QTest::newRow("far down") << root + QByteArray(5000, '\n') + QByteArray(3000, ' ') + wrong
                                         + "</job>"
                                  << QStringList{"5003:3021"};
        QTest::newRow("far to the right, behind accents")
            << root + "<!--" + QByteArray("\xC3\xA8").repeated(9000) + "-->" + wrong + "</job>"
            << QStringList{"3:9028"};
    }

    void place()
    {
        QFETCH(QByteArray, job);
        QFETCH(QStringList, places);
        QStringList found;
        for (const check::Finding &finding : check::checkJob(job, nullptr)) {
            QCOMPARE(infoOf(finding.code).name, QLatin1String("parenthesis"));
            found.append(QString("%1:%2").arg(finding.place.line).arg(finding.place.column));
        }
        QCOMPARE(found, places);
    }

    /// What the document type would add to an element, the renderer does not see: it is missing.
    void attributesOfTheDocumentType()
    {
        class Counter : public QXmlDefaultHandler
        {
        public:
            int attributes = 0;

            bool startElement(const QString &, const QString &, const QString &name,
                              const QXmlAttributes &all) override
            {
                attributes += name == "receipe" ? all.count() : 0;
                return true;
            }
        };
        QByteArray job = "<!DOCTYPE job [<!ATTLIST receipe name CDATA \"a)\">]>"
                         + kitchen("<receipe number=\"1\"/>");
        QCOMPARE(shown(check::checkJob(job, nullptr)),
                 QStringList{"1:91: error: <receipe> has no \"name\": its place prints empty "
                             "[missing-attribute]"});
        QBuffer device(&job);
        Counter counter;
        korvel::app::JobGuard(counter).parse(device);
        QCOMPARE(counter.attributes, 1);
    }

    /// A tag out of an entity stands where the entity is used: in its line, at least.
    void placeOfAnEntity()
    {
        const QByteArray job = "<!DOCTYPE job [<!ENTITY e \"<receipe number='1' name='a)'/>\">]>\n"
                               "<job><method name=\"printPartialOrder\"/>\n\n&e;\n</job>";
        const auto findings = check::checkJob(job, nullptr);
        QCOMPARE(codesIn(job), QStringList{"parenthesis"});
        QCOMPARE(findings.first().place.line, 4);
    }

    /// The same group twice is searched in its order, and places are found in each.
    void placeInARepeatedGroup()
    {
        const auto settings =
            settingsOf(settingsFile(documentGroup("doc", "printDate = true;")
                                    + documentGroup("receiptdoc", "topMargin = 1;")
                                    + documentGroup("doc", "topMargin = x;")));
        const QStringList expected = {
            "11:5: warning: the group doc stands here a second time: what the one in line 3 sets "
            "counts, this one adds what it does not set [duplicate]",
            "13:9: warning: topMargin is \"x\", no whole number, and counts as 0 [not-a-number]"};
        QCOMPARE(shown(checkSettings(*settings)), expected);
    }

    /// The setting, or the group, that each finding in a settings file is about.
    void settingOfAFinding()
    {
        const auto settings = settingsOf(
            "loose = 1;\n"
            + settingsFile(documentGroup("doc", "quantityFieldWidth = 40; paperWidth = 33; "
                                                "printDate = yes; topMargin = x; colour = red;")));
        QStringList about;
        for (const check::Finding &finding : checkSettings(*settings))
            about.append(QString(infoOf(finding.code).name) + ' ' + finding.setting.join('.'));
        const QStringList expected = {"unread-key loose",
                                      "columns korvel.doc.quantityFieldWidth",
                                      "columns korvel.doc.paperWidth",
                                      "not-true korvel.doc.printDate",
                                      "not-a-number korvel.doc.topMargin",
                                      "unread-key korvel.doc.colour"};
        QCOMPARE(about, expected);
        for (const check::Finding &finding : check::checkJob(kitchen("<recipe/>"), settings.get()))
            QCOMPARE(finding.setting, QStringList());
    }
};

KORVEL_TEST(TestCheckPlaces)

} // namespace tst_checkplaces

#include "tst_checkplaces.moc"
