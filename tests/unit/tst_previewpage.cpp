// The preview's page: its box, options, findings and keys are those of the program.
#include "support/names.h"
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace tst_previewpage {

const QString page = KORVEL_SOURCE_DIR "/docs/preview.md";
const QString schema = KORVEL_SOURCE_DIR "/docs/preview.schema.json";

/// The first bytes of each row of a table of the page that begins with something in backticks.
QStringList firstCells(const QString &heading)
{
    const QString text = QString::fromUtf8(bytesOf(page));
    const QString section = text.section("\n## " + heading + "\n", 1, 1).section("\n## ", 0, 0);
    QStringList cells;
    for (const auto &match :
         QRegularExpression("^\\| (`.*?`) \\|", QRegularExpression::MultilineOption)
             .globalMatch(section))
        cells.append(match.captured(1).remove('`'));
    return cells;
}

class TestPreviewPage : public QObject
{
    Q_OBJECT

private slots:
    /// The page's box, list and finding are real, and so is each of its objects.
    void pageShowsWhatTheProgramWrites()
    {
        const QByteArray text = bytesOf(page);
        const QString stream = examples + "fiscal-receipt.out";
        for (const QString &option : QStringList{"--columns=32", "--list"}) {
            const Run run = preview({option, stream});
            VERIFY_ENDED(run, 0);
            QVERIFY2(text.contains("```text\n" + run.standardOutput + "```\n"), qPrintable(option));
        }

        const Run found = preview({"receipt-summary.out"}, {examples, {}, {}});
        VERIFY_ENDED(found, 0);
        QVERIFY(text.contains("\n    " + found.standardError));
        const QString top = KORVEL_SOURCE_DIR "/";
        const Run job = preview({"--settings", top + "examples/korvel.conf", "receipt-summary.xml"},
                                {top + "examples/jobs", {}, {}});
        VERIFY_ENDED(job, 0);
        QVERIFY(text.contains("\n    " + job.standardError));

        QList<QJsonObject> written;
        for (const QString &shown : {stream, examples + "receipt-summary.out"})
            for (const QByteArray &line : preview({"--json", shown}).standardOutput.split('\n'))
                written.append(QJsonDocument::fromJson(line).object());
        int objects = 0;
        for (const QByteArray &line : text.split('\n')) {
            if (!line.startsWith("    {"))
                continue;
            ++objects;
            QVERIFY2(written.contains(QJsonDocument::fromJson(line).object()), line.constData());
            QVERIFY2(!QJsonDocument::fromJson(line).object().isEmpty(), line.constData());
        }
        QCOMPARE(objects, 3);
    }

    void pageNamesTheOptions()
    {
        const Run run = preview({"--help"});
        const char *const option = "(?:^|[ `])(--[a-z][a-z-]*)";
        Names names;
        for (const QString &cell : firstCells("Options"))
            names += matches(cell, option);
        QCOMPARE(sorted(names), sorted(matches(QString::fromUtf8(run.standardOutput), option)
                                       - Names{"--help-all"}));
        QCOMPARE(names.size(), 19);
    }

    /// Each code that the page explains can be met.
    void pageExplainsTheFindings()
    {
        Names met;
        for (const QByteArray &stream : brokenStreams) {
            const Run run = preview({"--strict", "-"}, {{}, {}, stream});
            VERIFY_ENDED(run, 1);
            for (const QString &line : linesOf(run.standardError)) {
                const auto finding =
                    QRegularExpression("^-:\\d+: byte \\d+: (error|warning): .* \\[([a-z0-9-]+)\\]"
                                       "\\\\n$")
                        .match(line);
                QVERIFY2(finding.hasMatch(), qPrintable(line));
                met.insert(finding.captured(2));
            }
        }
        Names explained;
        for (const QString &code : firstCells("What can be wrong"))
            explained.insert(code);
        QCOMPARE(sorted(explained), sorted(met));
    }

    void pageNamesTheKeys()
    {
        const QJsonObject commands =
            QJsonDocument::fromJson(bytesOf(schema)).object()["$defs"].toObject();
        QStringList inTheSchema;
        for (const QJsonValue &definition : commands) {
            const QJsonObject properties = definition["properties"].toObject();
            for (const QString &key : properties.keys()) {
                const QJsonObject names = properties["command"].toObject();
                QJsonArray all = names["enum"].toArray();
                if (names.contains("const"))
                    all.append(names["const"]);
                for (const QJsonValue &name : all)
                    if (!QStringList{"command", "offset", "line", "file"}.contains(key))
                        inTheSchema.append(name.toString() + ' ' + key);
            }
        }
        inTheSchema.sort();

        QStringList onThePage;
        const QString text = QString::fromUtf8(bytesOf(page));
        for (const auto &match :
             QRegularExpression("^\\| `([a-z-]+)` \\| (`[^|]*) \\|",
                                QRegularExpression::MultilineOption)
                 .globalMatch(text.section("\n## JSON\n", 1, 1).section("\n## ", 0, 0)))
            for (const QString &key : matches(match.captured(2), "`(\\w+)`"))
                onThePage.append(match.captured(1) + ' ' + key);
        onThePage.sort();
        QCOMPARE(onThePage, inTheSchema);
        QCOMPARE(onThePage.size(), 14);
    }
};

KORVEL_TEST(TestPreviewPage)

} // namespace tst_previewpage

#include "tst_previewpage.moc"
