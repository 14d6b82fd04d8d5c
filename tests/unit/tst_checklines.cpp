// Findings are one line each, and nothing in them is obeyed by a terminal, whatever the input
// holds.
#include "support/built.h"
#include "support/bytenames.h"
#include "support/checkdesk.h"
#include "support/test.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace tst_checklines {

using namespace Qt::Literals::StringLiterals;

/// Characters that end lines, turn texts round, have no shape or command terminals. XML forbids
/// some of them.
const QByteArrayList hostile = {
    "\n",           "\r",
    "\t",           "\b",
    "\x1B[2J",      "\x7F",
    "\xC2\x85",     "\xC2\x9B",
    "\xC2\xAD",     "\xD8\x9C",
    "\xE2\x80\x8B", "\xE2\x80\x8E",
    "\xE2\x80\xA8", "\xE2\x80\xA9",
    "\xE2\x80\xAA", "\xE2\x80\xAE",
    "\xE2\x81\xA6", "\xE2\x81\xA9",
    "\xEF\xBB\xBF", "\xEF\xBF\xBE",
    "\xEE\x80\x80", "\xF3\xA0\x80\x81",
    "\xED\xA0\x80",
};

/// Each place of a job at which a finding may show what stands there.
const QByteArrayList jobs = {
    "?",
    "<?",
    "<?xml version=\"1.0?\"?><job/>",
    "<?xml version=\"1.0\" encoding=\"?\"?><job/>",
    "<?xml version=\"1.0\" encoding=\"a?b\"?><job/>",
    "<!DOCTYPE job [<!ENTITY e \"?<\">]><job>&e;</job>",
    "<job/>?",
    "<job>&a?;</job>",
    "<job>&?;</job>",
    "<job a?=\"1\"/>",
    "<job a=?/>",
    "<job a=\"?\" a=\"?\"/>",
    "<a?><b></a?>",
    "<job><!-- ?--? --></job>",
    "<job><?? x?></job>",
    "<job>?</job>",
    "<job><method name=\"a?b\"/></job>",
    "<job><method name=\"printSold\" ?=\"?\"/></job>",
    "<job><method name=\"printSold\"/><a?b c=\"1\"/></job>",
    "<job><method name=\"printSold\"/><?:b xmlns:?=\"1\"/></job>",
    "<job><method name=\"printPartialOrder\"/><customer n?=\"1\" name=\"a\"/></job>",
    "<job><method name=\"printPartialOrder\"/><customer name=\"a\" "
    "billingaddress=\"a?,,b\"/></job>",
    "<job><method name=\"printPartialOrder\"/><variant number=\"1\" quantity=\"?\" "
    "name=\"?)\"/></job>",
    "<job><method name=\"printSold\"/><receipe quantity=\"?\" description=\"?\" "
    "amount=\"1?\"/></job>",
    "<job><method name=\"printFullOrderFiscal\"/>"
    "<receipe department=\"?\" number=\"?\" name=\"?)\" price=\"?\"/></job>",
};

const QByteArrayList settings = {
    "?",
    "?: { a = \"?\"; };",
    "korvel: { ?: { a? = \"1\"; }; };",
    "korvel: { a = \"?\"; solddoc: { ? = \"1\"; b: { ?c = \"1\"; }; }; };",
    "korvel: { solddoc: { printDate = \"?\"; paperWidth = \"40\"; topMargin = \"?\"; }; };",
};

/// What a terminal would not show as it is; nothing when it shows all.
QString unshown(const QString &line)
{
    QStringList found;
    for (const uint point : line.toUcs4()) {
        const QChar::Category category = QChar::category(point);
        const bool other = category <= QChar::Other_NotAssigned && category >= QChar::Other_Control;
        if (other || category == QChar::Separator_Line || category == QChar::Separator_Paragraph)
            found.append(QString::number(point, 16));
    }
    return found.join(' ');
}

class TestCheckLines : public QObject
{
    Q_OBJECT

private slots:
    void unshownIsNoticed()
    {
        QCOMPARE(unshown(u"a è 日 \U0001F355 \uFFFD"_s), QString());
        QCOMPARE(unshown(u"\u001B\u009B\u2028\u2029\u202E\u2066\uE000\U000E0001"_s),
                 QString("1b 9b 2028 2029 202e 2066 e000 e0001"));
    }

    void findings_data()
    {
        QTest::addColumn<QByteArray>("character");
        for (const QByteArray &character : hostile)
            QTest::newRow(character.toHex().constData()) << character;
    }

    void findings()
    {
        QFETCH(QByteArray, character);
        const CheckDesk desk;
        const auto written = [&](const QByteArrayList &templates, const QString &ending) {
            QStringList names;
            for (QByteArray text : templates) {
                names.append(QString("%1.%2").arg(names.size()).arg(ending));
                // A mark of the XML itself stays: "<?" and "?>".
                text.replace("<?", "\1").replace("?>", "\2").replace("?", character);
                writeFile(desk.path(names.last()), text.replace("\1", "<?").replace("\2", "?>"));
            }
            return names;
        };
        QStringList lines;
        const QStringList jobNames = written(jobs, "xml");
        for (const QStringList &options : {QStringList(), QStringList{"--json"}}) {
            const Run run = desk.run(options + jobNames);
            VERIFY_ENDED(run, 1);
            lines += linesWithoutEnds(run.standardOutput);
            for (const QString &name : written(settings, "conf")) {
                const Run ofSettings = desk.run(options + QStringList{"--settings", name});
                QVERIFY(ofSettings.exited && ofSettings.status < 2);
                if (!ofSettings.standardOutput.isEmpty())
                    lines += linesWithoutEnds(ofSettings.standardOutput);
            }
        }
        static const QRegularExpression finding(
            "^\\d+\\.(xml|conf):\\d+:\\d+: (error|warning): \\S.* \\[[a-z-]+\\]$");
        QVERIFY(lines.size() > 40);
        for (const QString &line : lines) {
            QVERIFY2(unshown(line).isEmpty(), qPrintable(unshown(line) + " in " + line));
            QVERIFY2(finding.match(line).hasMatch()
                         || QJsonDocument::fromJson(line.toUtf8()).object().size() == 6,
                     qPrintable(line));
        }
    }

    /// What is no character, and a group's name, show as blanks.
    void namesInSettings()
    {
        const CheckDesk desk;
        writeFile(desk.path("shop.conf"),
                  "korvel:\n{\n  a\x1B[1m:\n  {\n    b\x1B[2m = \"1\";\n  };\n"
                  "  doc:\n  {\n    b\x1B[2m = \"1\";\n  };\n};\n");
        const Run run = desk.run({"--settings", "shop.conf"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(run.standardOutput,
                 "shop.conf:3:3: warning: nothing reads korvel.a [1m: no document has such a group "
                 "[unread-key]\n"
                 "shop.conf:9:5: warning: nothing reads korvel.doc.b [2m: there is no such setting "
                 "[unread-key]\n");
    }

    void namesOfFiles_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const QByteArray &character : hostile)
            QTest::newRow(character.toHex().constData()) << "a" + character + "b";
    }

    void namesOfFiles()
    {
        QFETCH(QByteArray, name);
        const CheckDesk desk;
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        writeNamed(folder + '/' + name, jobWithError);
        const auto run = [&](const QByteArrayList &arguments) {
            return runWithBytes(built::check, arguments, folder);
        };
        const Run text = run({name});
        VERIFY_ENDED(text, 1);
        const Run json = run({"--json", name});
        VERIFY_ENDED(json, 1);
        const Run missing = run({"x" + name});
        VERIFY_TROUBLE(missing, QByteArray());
        const Run option = run({"--" + name});
        VERIFY_TROUBLE(option, QByteArray());
        const Run code = run({"--explain", name});
        VERIFY_TROUBLE(code, QByteArray());
        for (const QByteArray &said :
             {text.standardOutput, json.standardOutput, missing.standardError, option.standardError,
              code.standardError}) {
            const QStringList lines = linesWithoutEnds(said);
            QCOMPARE(lines.size(), 1);
            QVERIFY2(unshown(lines[0]).isEmpty(), qPrintable(unshown(lines[0])));
        }
        if (QByteArrayView(name).isValidUtf8())
            QCOMPARE(QJsonDocument::fromJson(json.standardOutput)["file"].toString(),
                     QString::fromUtf8(name));
    }
};

KORVEL_TEST(TestCheckLines)

} // namespace tst_checklines

#include "tst_checklines.moc"
