// How settings files are written wrong: each slip is said once, where it is, whatever follows.
#include "config/config.h"
#include "support/bytes.h"
#include "support/checkjobs.h"
#include "support/test.h"

#include <QDomDocument>

#include <functional>

namespace tst_checknotation {

namespace check = korvel::check;

const QByteArray example = bytesOf(KORVEL_SOURCE_DIR "/examples/korvel.conf");

/// Whether the renderer's own reader finds the same in both.
bool readsTheSame(const QByteArray &a, const QByteArray &b)
{
    class Reader : public libconfig::Config
    {
    public:
        explicit Reader(const QByteArray &bytes) { readBytes(bytes, "file", "cfg"); }
        [[nodiscard]] QByteArray written() const { return document->toByteArray(); }
    };
    return Reader(a).written() == Reader(b).written();
}

class TestCheckNotation : public QObject
{
    Q_OBJECT

private:
    /// What is lost is one finding in the line that was changed; what changes nothing is none.
    static void expectOne(const QByteArray &settings, qsizetype line, const QByteArray &what)
    {
        const QStringList found = shown(checkSettings(*settingsOf(settings)));
        const QByteArray said =
            what + " in line " + QByteArray::number(line) + ":\n" + found.join('\n').toUtf8();
        if (readsTheSame(settings, example)) {
            QVERIFY2(found.size() <= 1 && (found.isEmpty() || !what.startsWith("comment")), said);
            return;
        }
        QVERIFY2(found.size() == 1, said);
        QVERIFY2(found.first().startsWith(QString::number(line) + ':'), said);
        QVERIFY2(found.first().contains(": error: "), said);
    }

private slots:
    void example_isSound()
    {
        QCOMPARE(shown(checkSettings(*settingsOf(example))), QStringList());
        QCOMPARE(shown(checkSettings(*settingsOf(QByteArray(example).replace("\n", "\r\n")))),
                 QStringList());
    }

    /// Any mark of the example, one at a time.
    void marks_data()
    {
        QTest::addColumn<char>("mark");
        QTest::addColumn<QByteArray>("instead");

        QTest::newRow("no ;") << ';' << QByteArray();
        QTest::newRow("two ;") << ';' << QByteArray(";;");
        QTest::newRow("a comma for a ;") << ';' << QByteArray(",");
        QTest::newRow("no {") << '{' << QByteArray();
        QTest::newRow("no }") << '}' << QByteArray();
        QTest::newRow("no :") << ':' << QByteArray();
        QTest::newRow("two :") << ':' << QByteArray("::");
        QTest::newRow("an = for a :") << ':' << QByteArray(" =");
        QTest::newRow("no =") << '=' << QByteArray();
        QTest::newRow("a : for an =") << '=' << QByteArray(":");
    }

    void marks()
    {
        QFETCH(char, mark);
        QFETCH(QByteArray, instead);
        int count = 0;
        for (qsizetype at = 0; (at = example.indexOf(mark, at)) >= 0; ++at, ++count) {
            const QByteArray before = example.first(at);
            expectOne(before + instead + example.sliced(at + 1), before.count('\n') + 1,
                      QTest::currentDataTag());
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY(count > 9);
    }

    /// A comment before each line of the example, and behind it.
    void comments_data()
    {
        QTest::addColumn<QByteArray>("comment");

        for (const QByteArray comment :
             {"# a note", "# ends;", "# half {", "# }", "# a:\n# b = 3", "// see: x", "/* a; b */",
              "; of another notation", "-- of another language", "<!-- XML -->"})
            QTest::newRow(comment.constData()) << comment;
    }

    void comments()
    {
        QFETCH(QByteArray, comment);
        const QList<QByteArray> lines = example.split('\n');
        for (qsizetype i = 0; i < lines.size(); ++i) {
            if (lines[i].trimmed().isEmpty())
                continue;
            QList<QByteArray> before = lines;
            before.insert(i, comment);
            expectOne(before.join('\n'), i + 1, "comment before");
            if (!lines[i].contains('"') || QTest::currentTestFailed())
                continue;
            QList<QByteArray> behind = lines;
            behind[i] += ' ' + comment;
            expectOne(behind.join('\n'), i + 1, "comment behind");
        }
    }

    void byteOrderMarks()
    {
        const QString said = "1:1: error: nothing of the file is read: %1; save it as plain ASCII "
                             "[byte-order-mark]";
        QCOMPARE(shown(checkSettings(*settingsOf("\xEF\xBB\xBF" + example))),
                 QStringList(said.arg("a byte order mark stands in front of it")));
        QCOMPARE(shown(checkSettings(*settingsOf(utf16(example)))),
                 QStringList(said.arg("it is written as UTF-16")));
    }

    void emptyFile()
    {
        for (const char *bytes : {"", " \r\n\t\n"})
            QCOMPARE(shown(checkSettings(*settingsOf(bytes))),
                     QStringList("1:1: error: nothing of the file is read: it is empty "
                                 "[no-settings]"));
    }

    /// A value that goes on in the next line, which is no statement.
    void valuesOfSeveralLines()
    {
        const QByteArray settings =
            "korvel: { doc: {\nprintDate = tr\nue;\npaperWidth = 3\n2;\n};};";
        const QStringList expected = {
            "2:1: warning: printDate is \"tr ue\" and counts as off; does the line end with ;? "
            "[not-true]",
            "4:1: warning: paperWidth is \"3 2\", no whole number, and counts as 0; does the line "
            "end with ;? [not-a-number]"};
        QCOMPARE(shown(checkSettings(*settingsOf(settings))), expected);
    }

    /// A job is checked by what the settings mean, or without them when nothing is read.
    void jobsBesideLostSettings()
    {
        const QByteArray job = kitchen("<company name=\"x\"/>");
        const QByteArray group = "doc: { printCompany = %1; };";
        const auto codesBeside = [&](const QByteArray &text) {
            const auto settings = settingsOf(text);
            return codesIn(job, settings.get());
        };
        QCOMPARE(codesBeside("korvel: { doc: { printCompany = false; }; };"),
                 QStringList("switched-off"));
        for (const char *lost :
             {"", "{}", "first: { x = 1; }; korvel: { doc: { printCompany = false; }; };",
              "KORVEL: { doc: { printCompany = true; }; };",
              "\xEF\xBB\xBFkorvel: { doc: { printCompany = true; }; };",
              "# a comment\nkorvel: { doc: { printCompany = true; }; };",
              "korvel: { doc: {\npaperWidth = 32\nprintCompany = true; }; };"})
            QCOMPARE(codesBeside(lost), QStringList());
    }

    /// What a mistake loses is read as it is meant, so that no job is said to be switched off.
    void jobsBesideMistakes_data()
    {
        QTest::addColumn<QByteArray>("settings");

        for (const QByteArray settings :
             {"korvel: { Doc: { printCompany = true; }; };",
              "korvel: { : { printCompany = true; }; };", "korvel: { { printCompany = true; }; };",
              "korvel: { my doc: { printCompany = true; }; };",
              "korvel: { docs: { doc: { printCompany = true; }; }; };",
              "korvel: { receiptdoc: { printDate = true; }; }; korvel: { doc: { printCompany = "
              "true; }; };",
              "korvel: { doc: { printcompany = true; }; };",
              "korvel: { doc: { company = true; }; };",
              "korvel: { doc: { printCompany = True; }; };",
              "korvel: { doc: { printCompany = 1; }; };",
              "korvel: { doc: { printCompany == true; }; };",
              "korvel: { doc: { printCompany \"true\"; }; };",
              "korvel: { doc: { printCompany; }; };", "korvel: { doc: { = true; }; };",
              "korvel: { doc: { printCompany = 'true'; }; };",
              "korvel: { doc: { printCompany = \"\xE2\x80\x9Ctrue\"; }; };"})
            QTest::newRow(settings.constData()) << settings;
    }

    void jobsBesideMistakes()
    {
        QFETCH(QByteArray, settings);
        const auto read = settingsOf(settings);
        QCOMPARE(shown(checkSettings(*read)).size(), 1);
        QCOMPARE(codesIn(kitchen("<company name=\"x\"/>"), read.get()), QStringList());
    }

    /// What is meant to be off is off, and settings behind one that nobody knows stay in their
    /// group.
    void jobsBesideWhatIsOff()
    {
        for (const char *settings : {"korvel: { doc: { printCompany = no; }; };",
                                     "korvel: { doc: { # printCompany = true;\n}; };",
                                     "korvel: { receiptdoc: { printCompany = true; colour = red; "
                                     "}; doc: { style = a; }; };"})
            QCOMPARE(codesIn(kitchen("<company name=\"x\"/>"), settingsOf(settings).get()),
                     QStringList("switched-off"));
    }

    /// Quotes of Windows, and letters of UTF-8 that end in such a byte.
    void quotesOfWindows()
    {
        const auto found = [](const QByteArray &value) {
            return shown(
                checkSettings(*settingsOf("korvel: { doc: { style = " + value + "; }; };")));
        };
        QCOMPARE(
            found("\x93"
                  "a\x94"),
            QStringList("1:18: error: \u201C stands where a \" of korvel.doc.style belongs, and "
                        "becomes part of the value [unterminated]"));
        QCOMPARE(found("CAFF\xC3\x93"), QStringList());
        QCOMPARE(found("\"a\""), QStringList());
    }

    /// Checking takes time in proportion to the file: what grows with its square ends with none.
    void longFiles_data()
    {
        QTest::addColumn<QByteArray>("line");

        for (const QByteArray line : {"a = b\n",
                                      "paperWidth = 32\n",
                                      "/* a\n",
                                      "a:\n",
                                      "}\n",
                                      "doc: {\n",
                                      ";\n",
                                      "};",
                                      "# a = b\n",
                                      "a b ",
                                      "a = \"",
                                      "doc: doc",
                                      "doc: { a = 1; }; ",
                                      "dok: { a = 1; }; ",
                                      "{ a = 1; };",
                                      "[",
                                      "] ;",
                                      "a: [ b = 1;",
                                      "x: { doc: { a = 1; }; };",
                                      "# doc: {\n",
                                      ": ",
                                      "<!--",
                                      "printDate ",
                                      "= ",
                                      "{"})
            QTest::newRow(line.constData()) << line;
    }

    void longFiles()
    {
        QFETCH(QByteArray, line);
        const QByteArray settings = "korvel: { " + line.repeated(20'000) + " = 1;";
        QVERIFY(!checkSettings(*settingsOf(settings)).isEmpty());
    }
};

KORVEL_TEST(TestCheckNotation)

} // namespace tst_checknotation

#include "tst_checknotation.moc"
