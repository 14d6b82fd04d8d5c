// The JSON and the list that korvel-preview writes, and the schema of the JSON.
#include "support/jsonschema.h"
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

namespace tst_previewjson {

const QString top = KORVEL_SOURCE_DIR "/";
const QString schema = top + "docs/preview.schema.json";

QByteArray json(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

class TestPreviewJson : public QObject
{
    Q_OBJECT

private slots:
    void jsonNamesEveryCommand()
    {
        const Desk desk(everyCommand);
        const Run run = desk.run({"--json", "x.out"});
        VERIFY_ENDED(run, 1);
        QCOMPARE(
            linesOf(run.standardError),
            QStringList("x.out:12: byte 92: error: unknown command: \"?\" does not belong here "
                        "[unknown-command]\\n"));

        const auto command = [](const char *name, int offset, int line, QJsonObject more) {
            more.insert("command", name);
            more.insert("offset", offset);
            more.insert("line", line);
            return more;
        };
        const QList<QJsonObject> expected = {
            command("section-opened", 0, 1, {{"section", "fiscal"}}),
            command("sale-row", 7, 3,
                    {{"department", "1"},
                     {"amount", "120"},
                     {"quantity", "2"},
                     {"description", "COFFEE"}}),
            command("deduction", 28, 4, {{"amount", "50"}}),
            command("section-closed", 40, 6, {{"section", "fiscal"}}),
            // 1.20 twice, less 0.50
            {{"sum", "1.90"},
             {"offset", 0},
             {"line", 1},
             {"counted", 2},
             {"uncounted", 0},
             {"closed", true}},
            command("section-opened", 44, 7, {{"section", "receipt"}}),
            command("line", 50, 8, {{"spaces", 13}, {"text", "Caffè"}}),
            command("line", 76, 9, {{"spaces", 0}, {"text", " x"}}),
            command("section-closed", 85, 10, {{"section", "receipt"}}),
            command("section-opened", 88, 11, {{"section", "document"}}),
            command("unknown", 91, 12, {{"bytes", "3d3f0a"}, {"badByte", 92}}),
            // Behind two rows of the sale, one of the deduction, two of the sum, the mark between
            // documents, two lines and another mark.
            {{"code", "unknown-command"},
             {"level", "error"},
             {"offset", 92},
             {"line", 12},
             {"row", 10},
             {"text", "unknown command: \"?\" does not belong here"}},
            command("section-closed", 94, 13, {{"section", "document"}}),
        };
        QVERIFY(run.standardOutput.endsWith('\n'));
        const QByteArrayList lines = run.standardOutput.chopped(1).split('\n');
        QCOMPARE(lines.size(), expected.size());
        for (qsizetype i = 0; i < lines.size(); ++i)
            QCOMPARE(QJsonDocument::fromJson(lines[i]).object(), expected[i]);
    }

    void listNamesEveryCommand()
    {
        const Desk desk(everyCommand);
        const Run run = desk.run({"--list", "x.out"});
        VERIFY_ENDED(run, 1);
        // The offset takes eight places, the line of the stream six.
        QCOMPARE(linesOf(run.standardOutput),
                 QStringList({
                     "       0      1  fiscal section opened\\n",
                     "       7      3  sale row, department \"1\", amount \"120\", quantity \"2\", "
                     "description \"COFFEE\"\\n",
                     "      28      4  deduction, amount \"50\"\\n",
                     "      40      6  fiscal section closed\\n",
                     "      44      7  receipt section opened\\n",
                     "      50      8  text line, 13 centring blanks, \"Caffè\"\\n",
                     "      76      9  text line, \" x\"\\n",
                     "      85     10  receipt section closed\\n",
                     "      88     11  document section opened\\n",
                     "      91     12  unknown command, \"=?\\n\"\\n",
                     "      94     13  document section closed\\n",
                 }));
    }

    void jsonIsWhatTheSchemaAllows()
    {
        QList<QPair<QString, QByteArray>> streams; // with their names
        const auto addFolder = [&](const QString &folder, const QString &pattern) {
            for (QDirIterator it(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
                 it.hasNext();) {
                const QString path = it.next();
                streams.append({path.mid(top.size()), bytesOf(path)});
            }
            return streams.size();
        };
        QCOMPARE(addFolder(examples, "*.out"), 13);
        QVERIFY(addFolder(top + "tests/golden/cases", "expected.out") > 60);
        for (const QByteArray &stream : brokenStreams)
            streams.append({linesOf(stream).join(QString()), stream});

        // One run of the validator for all, which takes most of the time.
        QByteArray lines;
        QStringList origins; // of each line
        for (const auto &[name, stream] : streams) {
            const Run run = preview({"--json", "--quiet", "-"}, {{}, {}, stream});
            QVERIFY2(run.exited && (run.status == 0 || run.status == 1), qPrintable(name));
            QCOMPARE(linesOf(run.standardError), QStringList());
            QVERIFY2(stream.isEmpty() || run.standardOutput.endsWith("}\n"), qPrintable(name));
            lines += run.standardOutput;
            origins += QStringList(run.standardOutput.count('\n'), name);
        }
        QStringList refusedOf;
        for (const QString &number : refusedBy(schema, lines))
            refusedOf.append(origins.value(number.toInt() - 1, number));
        QCOMPARE(refusedOf, QStringList());
        QVERIFY(origins.size() > 1000);
    }

    /// The program writes the schema that it keeps to.
    void theSchemaIsWritten()
    {
        const Run run = preview({"--schema"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(run.standardOutput, bytesOf(schema));
    }

    void schemaAllowsNothingElse_data()
    {
        QTest::addColumn<QJsonObject>("object");
        const auto add = [](const QJsonObject &object) {
            const QString bytes = object.contains("bytes") ? " with its bytes" : "";
            QTest::newRow(
                qPrintable(object.value("command").toString(object.keys().join(' ')) + bytes))
                << object;
        };
        const auto row = [&](QJsonObject object) {
            if (!object.contains("column"))
                object.insert("offset", 7);
            object.insert("line", 3);
            add(object);
        };

        row({{"command", "line"}, {"spaces", 13}, {"text", "CASSA"}});
        row({{"command", "section-opened"}, {"section", "fiscal"}});
        row({{"command", "section-closed"}, {"section", "document"}});
        row({{"command", "sale-row"},
             {"department", "1"},
             {"amount", "120"},
             {"quantity", "2"},
             {"description", "COFFEE"}});
        row({{"command", "deduction"}, {"amount", "50"}});
        // Texts that are not UTF-8.
        row({{"command", "line"}, {"spaces", 0}, {"text", "x"}, {"bytes", "3d222f2878ff20290a"}});
        row({{"command", "sale-row"},
             {"department", "1"},
             {"amount", "120"},
             {"quantity", "2"},
             {"description", ""},
             {"bytes", "3d"}});
        row({{"command", "deduction"}, {"amount", "50"}, {"bytes", "3d"}});
        row({{"command", "unknown"}, {"bytes", "3d3f0a"}, {"badByte", 8}});
        // What is no command.
        row({{"code", "too-wide"}, {"level", "warning"}, {"text", "x"}});
        row({{"sum", "-1.005"}, {"counted", 1}, {"uncounted", 0}, {"closed", false}});
        row({{"code", "limit"}, {"level", "error"}, {"text", "x"}, {"file", "x"}, {"column", 1}});
        add({{"said", "x"}});
    }

    void schemaAllowsNothingElse()
    {
        QFETCH(QJsonObject, object);
        QCOMPARE(refusedBy(schema, json(object)), QStringList());

        const auto with = [&](const QString &key, const QJsonValue &value) {
            QJsonObject changed = object;
            changed.insert(key, value);
            return json(changed);
        };
        const auto without = [&](const QString &key) {
            QJsonObject changed = object;
            changed.remove(key);
            return json(changed);
        };
        QByteArrayList wrong = {
            with("colour", "red"),
            with("Command", "line"),
            with("offset", -1),
            with("offset", 1.5),
            with("level", "note"),
            with("sum", "1"),
            with("column", 0),
            with("row", 0),
            with("line", 0),
            with("command", "cut"),
            "[]\n",
            "\"line\"\n",
            "{}\n",
        };
        for (const QString &key : object.keys()) {
            if (key != "bytes" || object.value("command") == "unknown")
                wrong += without(key);
            wrong += with(key, QJsonValue::Null);
            if (!object.value(key).isBool())
                wrong += with(key, true);
            wrong += with(key, QJsonArray());
            wrong += object.value(key).isString() ? with(key, 1) : with(key, "1");
        }
        // Keys and values of another command.
        for (const auto &[key, value] : QMap<QString, QJsonValue>{
                 {"text", "x"},
                 {"section", "receipt"},
                 {"badByte", 1}}.toStdMap())
            if (!object.contains(key))
                wrong += with(key, value);
        if (object.contains("section"))
            wrong += with("section", "order");
        if (object.contains("bytes"))
            for (const QString &bytes : QStringList{"", "3", "3D", "xy", "3d ", "3d3"})
                wrong += with("bytes", bytes);
        if (object.contains("spaces"))
            wrong += {with("spaces", -1), with("spaces", 17), with("spaces", 0.5)};

        QStringList numbers;
        for (int i = 1; i <= wrong.size(); ++i)
            numbers.append(QString::number(i));
        QCOMPARE(refusedBy(schema, wrong.join()), numbers);
    }
};

KORVEL_TEST(TestPreviewJson)

} // namespace tst_previewjson

#include "tst_previewjson.moc"
