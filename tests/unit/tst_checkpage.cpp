// The reference page of korvel-check: its options, keys and statuses, and its example.
#include "support/built.h"
#include "support/checkdesk.h"
#include "support/test.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

namespace tst_checkpage {

QStringList pageLines() { return QString::fromUtf8(bytesOf(top + "docs/checks.md")).split('\n'); }

/// The cells of the rows of the table below a heading of the page.
QList<QStringList> tableBelow(const QString &heading)
{
    QList<QStringList> rows;
    QString section;
    for (const QString &line : pageLines()) {
        if (line.startsWith("## "))
            section = line.mid(3);
        if (section != heading || !line.startsWith("| "))
            continue;
        QStringList cells = line.split('|');
        cells.removeFirst();
        cells.removeLast();
        for (QString &cell : cells)
            cell = cell.trimmed();
        rows.append(cells);
    }
    return rows.mid(1); // behind the titles
}

/// The text of the n-th block of the page that says this behind its opening fence.
QByteArray blockOfPage(const QString &info, int n = 0)
{
    QByteArray text;
    bool inside = false;
    for (const QString &line : pageLines()) {
        if (line.startsWith("```"))
            inside = line == "```" + info && n-- == 0;
        else if (inside)
            text += line.toUtf8() + '\n';
    }
    return text;
}

QString unquoted(QString cell) { return cell.remove('`'); }

class TestCheckPage : public QObject
{
    Q_OBJECT

private slots:
    /// Each option of --help is on the page, and each option of the page is in --help.
    void help()
    {
        const Run run = checker({"--help"});
        VERIFY_ENDED(run, 0);
        static const QRegularExpression option("^  (-.*?)(?:  |$)",
                                               QRegularExpression::MultilineOption);
        static const QRegularExpression name("(?<![\\w-])--?[a-z]+(-[a-z]+)*(?![\\w-])");
        QSet<QString> inHelp;
        for (const auto &match : option.globalMatch(QString::fromUtf8(run.standardOutput)))
            for (const auto &word : name.globalMatch(match.captured(1)))
                inHelp.insert(word.captured(0));
        QSet<QString> onThePage;
        for (const QStringList &row : tableBelow("Options"))
            for (const auto &word : name.globalMatch(unquoted(row[0])))
                onThePage.insert(word.captured(0));
        QVERIFY(inHelp.size() >= 9);
        QCOMPARE(inHelp, onThePage);
    }

    void pageListsAllKeys()
    {
        const QJsonObject properties =
            QJsonDocument::fromJson(bytesOf(top + "docs/check.schema.json"))
                .object()["properties"]
                .toObject();
        QStringList keys;
        for (const QStringList &row : tableBelow("JSON"))
            keys.append(unquoted(row[0]));
        keys.sort();
        QCOMPARE(keys, properties.keys());
    }

    void pageListsAllStatuses()
    {
        QStringList statuses;
        for (const QStringList &row : tableBelow("Exit status"))
            statuses.append(row[0]);
        const QStringList expected = {"0", "1", "2"};
        QCOMPARE(statuses, expected);
    }

    void exampleOfThePage()
    {
        const CheckDesk desk;
        const QByteArray job = blockOfPage("xml receipt.xml");
        QVERIFY(job.contains("<method "));
        writeFile(desk.path("receipt.xml"), job);
        const Run run = desk.run({"receipt.xml"});
        VERIFY_ENDED(run, 1);
        const QByteArray said = blockOfPage("text");
        QVERIFY(!said.isEmpty());
        QCOMPARE(linesOf(run.standardOutput), linesOf(said));

        const Run json = desk.run({"--json", "receipt.xml"});
        VERIFY_ENDED(json, 1);
        const QByteArray object = blockOfPage("json");
        QVERIFY(object.startsWith('{') && object.count('\n') == 1);
        QVERIFY2(linesOf(json.standardOutput).contains(linesOf(object).first()),
                 json.standardOutput.constData());
    }

    /// A line that names a schema to editors stands in front of a job and changes nothing.
    void linesForEditors()
    {
        QStringList lines;
        for (const QString &line : pageLines())
            if (line.contains("<?xml-model "))
                lines.append(line.trimmed());
        QCOMPARE(lines.size(), 2);
        for (const QString &line : lines) {
            QVERIFY2(line.endsWith("?>"), qPrintable(line));
            const CheckDesk desk;
            writeFile(desk.path("clean.xml"), line.toUtf8() + '\n' + cleanJob);
            const Run run = desk.run({"--strict", "clean.xml"});
            VERIFY_ENDED(run, 0);
            QCOMPARE(runProgram(built::print, {"clean.xml", "x.out"},
                                {desk.folder.path(), {"HOME=" + desk.folder.path()}, {}})
                         .status,
                     0);
            QCOMPARE(linesOf(bytesOf(desk.path("x.out"))), (QStringList{"=o\\n", "=o\\n"}));
        }
    }

    void pageIsWrapped()
    {
        bool inBlock = false;
        for (const QString &line : pageLines()) {
            if (line.startsWith("```"))
                inBlock = !inBlock;
            QVERIFY2(inBlock || line.startsWith('|') || line.size() <= 100, qPrintable(line));
        }
        QVERIFY(!inBlock);
    }
};

KORVEL_TEST(TestCheckPage)

} // namespace tst_checkpage

#include "tst_checkpage.moc"
