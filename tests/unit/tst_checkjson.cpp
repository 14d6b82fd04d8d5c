// The findings of korvel-check in JSON, and the schema of a line.
#include "companions/check/codes.h"
#include "support/checkdesk.h"
#include "support/test.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tst_checkjson {

namespace check = korvel::check;

class TestCheckJson : public QObject
{
    Q_OBJECT

private slots:
    void json()
    {
        const CheckDesk desk;
        const Run clean = desk.run({"--json", "clean.xml"});
        VERIFY_ENDED(clean, 0);
        QCOMPARE(clean.standardOutput, QByteArray());

        writeFile(desk.path("texts.xml"),
                  "<job><method name=\"\xC3\xA8\\\xF0\x9F\x8D\x95&quot;&#9;\"/></job>");
        const Run texts = desk.run({"texts.xml", "--json"});
        VERIFY_ENDED(texts, 1);
        QCOMPARE(linesOf(texts.standardOutput).size(), 1);
        const QJsonObject object = QJsonDocument::fromJson(texts.standardOutput).object();
        const QJsonObject expected{
            {"file", "texts.xml"},
            {"line", 1},
            {"column", 14},
            {"level", "error"},
            {"code", "unknown-method"},
            {"text", QString::fromUtf8("no document is called \"\xC3\xA8\\\xF0\x9F\x8D\x95\" \": "
                                       "the job ends here")},
        };
        QCOMPARE(object, expected);
        QCOMPARE(refusedBy(checkSchema, texts.standardOutput), QStringList());
    }

    /// The schema of a line accepts every finding, and refuses what is none.
    void jsonSchema()
    {
        const Run run =
            checker(QStringList{"--json", "--settings",
                                top
                                    + "tests/golden/cases/two-methods/"
                                      "a-fiscal-document-hears-of-no-printer/korvel.conf"}
                    + filesBelow(top + "tests/golden/cases", "job.xml"));
        VERIFY_ENDED(run, 1);
        const qsizetype count = run.standardOutput.count('\n');
        QVERIFY(count > 300);
        QCOMPARE(refusedBy(checkSchema, run.standardOutput), QStringList());

        const QJsonObject line{
            {"file", "x"},      {"line", 1},       {"column", 1},
            {"level", "error"}, {"code", "limit"}, {"text", "x"},
        };
        QByteArray wrong;
        const auto add = [&](const QJsonObject &object) {
            wrong += QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
        };
        const auto with = [&](const QString &key, const QJsonValue &value) {
            QJsonObject changed = line;
            changed[key] = value;
            return changed;
        };
        for (const QString &key : line.keys()) {
            QJsonObject changed = line;
            changed.remove(key);
            add(changed);
            add(with(key, QJsonArray()));
        }
        add(with("more", 1));
        add(with("file", ""));
        add(with("line", 0));
        add(with("line", 1.5));
        add(with("column", 0));
        add(with("level", "note"));
        add(with("code", ""));
        add(with("code", "No Code"));
        add(with("text", ""));
        add(with("text", "a\nb"));
        wrong += "x\n";
        QStringList numbers;
        for (int number = 1; number <= wrong.count('\n'); ++number)
            numbers.append(QString::number(number));
        add(line); // accepted
        QCOMPARE(refusedBy(checkSchema, wrong), numbers);
    }

    void jsonSchemaTakesAllCodes()
    {
        QByteArray lines;
        for (const check::CodeInfo &row : check::codes()) {
            const QJsonObject line{
                {"file", "x"},
                {"line", 1},
                {"column", 1},
                {"level", QString(check::levelName(row.level))},
                {"code", QString(row.name)},
                {"text", "x"},
            };
            lines += QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
        }
        QCOMPARE(refusedBy(checkSchema, lines), QStringList());
    }
};

KORVEL_TEST(TestCheckJson)

} // namespace tst_checkjson

#include "tst_checkjson.moc"
