// korvel-check as a user meets it: options, findings, JSON, exit statuses, and its reference page.
#include "companions/check/checks.h"
#include "support/bytenames.h"
#include "support/bytes.h"
#include "support/program.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace check = korvel::check;

namespace {

const QString top = KORVEL_SOURCE_DIR "/";
const QString page = top + "docs/checks.md";
const QString schema = top + "docs/check.schema.json";
const QString sample = top + "examples/korvel.conf";
const QString casesFolder = top + "tests/golden/cases/";

Run checker(const QStringList &arguments, const Surroundings &surroundings = {})
{
    return runProgram(KORVEL_CHECK, arguments, surroundings);
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

const QByteArray cleanJob = "<job><method name=\"printSold\"/></job>\n";
const QByteArray jobWithWarning = "<job><method name=\"printSold\"/><customer/></job>\n";
const QByteArray jobWithError = "<job>\n<method name=\"printSold\"/><recipe/></job>\n";

const QByteArray warning =
    ":1:32: warning: <customer> prints nothing in the document \"sold items\", only in kitchen "
    "order, full order, receipt, invoice, delivery note, summary invoice [ignored-element]\n";
const QByteArray error = ":2:27: error: no document knows <recipe>: nothing is printed; did you "
                         "mean \"receipe\"? [unknown-element]\n";

/// A folder with a job of each kind, and settings.
class Desk
{
public:
    Desk()
    {
        writeFile(path("clean.xml"), cleanJob);
        writeFile(path("warning.xml"), jobWithWarning);
        writeFile(path("error.xml"), jobWithError);
        writeFile(path("korvel.conf"), "korvel:\n{\n    solddoc:\n    {\n        printDate = yes;\n"
                                       "    };\n};\n");
    }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] Run run(const QStringList &arguments, const QByteArray &standardInput = {}) const
    {
        return checker(arguments, {folder.path(), {}, standardInput});
    }

    const QTemporaryDir folder;
};

const QByteArray settingsWarning =
    "korvel.conf:5:9: warning: printDate is \"yes\" and counts as off; only true switches it on "
    "[not-true]\n";

QStringList filesBelow(const QString &folder, const QString &pattern)
{
    QStringList files;
    for (QDirIterator it(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();)
        files.append(it.next());
    files.sort();
    return files;
}

/// An object of --json as the line of text that says the same.
QString lineOf(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    return QString("%1:%2:%3: %4: %5 [%6]")
        .arg(object["file"].toString(), QString::number(object["line"].toInt()),
             QString::number(object["column"].toInt()), object["level"].toString(),
             object["text"].toString(), object["code"].toString());
}

/// A name as --json gives it: half a pair for a byte that is no UTF-8.
QByteArray inJson(const QByteArray &name)
{
    QByteArray text;
    for (QByteArrayView rest = name; !rest.isEmpty();) {
        qsizetype length = std::min<qsizetype>(4, rest.size());
        while (length > 0 && !rest.first(length).isValidUtf8())
            --length;
        text += length > 0 ? rest.first(length).toByteArray()
                           : "\\udc" + rest.first(1).toByteArray().toHex();
        rest = rest.sliced(std::max<qsizetype>(1, length));
    }
    return text.replace("\x1b", "\\u001b");
}

/// The lines of an output that ends with a line end, without their ends.
QStringList linesWithoutEnds(const QByteArray &output)
{
    QStringList lines = QString::fromUtf8(output).split('\n');
    if (!lines.last().isEmpty())
        lines.last() += "(no line end)";
    else
        lines.removeLast();
    return lines;
}

/// Lines that the schema refuses, as their numbers, counted from 1; anything else that the
/// validator says is added, so that it is not taken for a refusal.
QStringList refused(const QByteArray &lines)
{
    // The machine's own interpreter is the one that sees the machine's packages.
    const Run run = runProgram("/usr/bin/python3", {top + "tests/support/validate.py", schema},
                               {{}, {}, lines});
    QStringList numbers;
    for (const QString &line : linesOf(run.standardOutput))
        numbers.append(line.section(':', 0, 0));
    if (!run.exited || run.status != 0 || !run.standardError.isEmpty())
        numbers.append(QString::fromUtf8(run.standardError));
    return numbers;
}

// The reference page.

QStringList pageLines() { return QString::fromUtf8(bytesOf(page)).split('\n'); }

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

} // namespace

/// Fails the test unless a run ended by itself with this status, and said nothing beside it.
#define VERIFY_ENDED(run, expectedStatus)                                                          \
    do {                                                                                           \
        QVERIFY((run).exited);                                                                     \
        QCOMPARE(linesOf((run).standardError), QStringList());                                     \
        QCOMPARE((run).status, expectedStatus);                                                    \
    } while (false)

/// Fails the test unless a run said in one line why it could not do what was asked, and wrote
/// nothing but this.
#define VERIFY_TROUBLE(run, output)                                                                \
    do {                                                                                           \
        QVERIFY((run).exited);                                                                     \
        QCOMPARE((run).status, 2);                                                                 \
        QCOMPARE(linesOf((run).standardOutput), linesOf(output));                                  \
        QVERIFY2((run).standardError.startsWith("korvel-check: ")                                  \
                     && (run).standardError.indexOf('\n') == (run).standardError.size() - 1        \
                     && (run).standardError.size() > 16,                                           \
                 (run).standardError.constData());                                                 \
    } while (false)

class TestCheckProgram : public QObject
{
    Q_OBJECT

private slots:
    void findingsAndStatus_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("output");
        const auto row = [](const char *what, const QStringList &arguments, int status,
                            const QByteArray &output) {
            QTest::newRow(what) << arguments << status << output;
        };

        row("clean", {"clean.xml"}, 0, "");
        row("a warning", {"warning.xml"}, 0, "warning.xml" + warning);
        row("an error", {"error.xml"}, 1, "error.xml" + error);
        row("strict: clean", {"--strict", "clean.xml"}, 0, "");
        row("strict: a warning", {"--strict", "warning.xml"}, 1, "warning.xml" + warning);
        row("strict: an error", {"error.xml", "--strict"}, 1, "error.xml" + error);
        row("several jobs, in the order given", {"warning.xml", "error.xml", "clean.xml"}, 1,
            "warning.xml" + warning + "error.xml" + error);
        row("the same job twice", {"warning.xml", "warning.xml"}, 0,
            "warning.xml" + warning + "warning.xml" + warning);
        row("a name as it was given", {"./warning.xml"}, 0, "./warning.xml" + warning);
        row("a name behind --", {"--", "error.xml"}, 1, "error.xml" + error);
        row("settings alone", {"--settings", "korvel.conf"}, 0, settingsWarning);
        row("settings alone, strict", {"--settings=korvel.conf", "--strict"}, 1, settingsWarning);
        row("settings, then jobs", {"error.xml", "--settings", "korvel.conf"}, 1,
            settingsWarning + "error.xml" + error);
    }

    void findingsAndStatus()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, output);
        const Run run = Desk().run(arguments);
        VERIFY_ENDED(run, status);
        QCOMPARE(linesOf(run.standardOutput), linesOf(output));
    }

    void standardInput()
    {
        const Desk desk;
        const Run alone = desk.run({"-"}, jobWithError);
        VERIFY_ENDED(alone, 1);
        QCOMPARE(alone.standardOutput, "-" + error);

        const Run between = desk.run({"warning.xml", "-", "error.xml"}, jobWithWarning);
        VERIFY_ENDED(between, 1);
        QCOMPARE(linesOf(between.standardOutput),
                 linesOf("warning.xml" + warning + "-" + warning + "error.xml" + error));

        const Run empty = desk.run({"-"}, "");
        VERIFY_ENDED(empty, 1);
        QVERIFY2(empty.standardOutput.startsWith("-:1:1: error: ")
                     && empty.standardOutput.endsWith(" [malformed-xml]\n"),
                 empty.standardOutput.constData());
    }

    void whatCannotBeRead_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("output");
        const auto row = [](const char *what, const QStringList &arguments,
                            const QByteArray &output = {}) {
            QTest::newRow(what) << arguments << output;
        };

        row("a missing job", {"missing.xml"});
        row("a folder", {"."});
        row("an empty name", {""});
        row("a missing job among others: these are checked",
            {"warning.xml", "missing.xml", "error.xml"},
            "warning.xml" + warning + "error.xml" + error);
        row("a missing job behind an error", {"error.xml", "missing.xml", "clean.xml"},
            "error.xml" + error);
        row("missing settings", {"--settings", "missing.conf", "error.xml"});
        row("settings in a folder", {"--settings", ".", "error.xml"});
        // The renderer takes what is no regular file for missing settings.
        row("settings in a device", {"--settings", "/dev/null"});
        row("settings in standard input", {"--settings", "-"});
    }

    void whatCannotBeRead()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, output);
        const Run run = Desk().run(arguments);
        VERIFY_TROUBLE(run, output);
    }

    void filesOfAnyName_data() { addByteNames(); }

    void filesOfAnyName()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, shown);
        const Desk desk;
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        const QByteArray path = folder + '/' + name;
        const QByteArray missing = "korvel-check: " + shown + ": No such file or directory\n";
        const auto run = [&](const QByteArrayList &arguments) {
            return runWithBytes(KORVEL_CHECK, arguments, folder);
        };

        const Run missingJob = run({"--", name});
        VERIFY_TROUBLE(missingJob, QByteArray());
        QCOMPARE(missingJob.standardError, missing);
        const Run missingSettings = run({"--settings", name});
        VERIFY_TROUBLE(missingSettings, QByteArray());
        QCOMPARE(missingSettings.standardError, missing);

        writeNamed(path, jobWithError);
        const Run job = run({"--", name});
        VERIFY_ENDED(job, 1);
        QCOMPARE(linesOf(job.standardOutput), linesOf(shown + error));
        const Run json = run({"--json", "--", name});
        VERIFY_ENDED(json, 1);
        QVERIFY2(json.standardOutput.contains("\"file\":\"" + inJson(name) + "\","),
                 json.standardOutput.constData());
        QCOMPARE(refused(json.standardOutput), QStringList());

        writeNamed(path, bytesOf(desk.path("korvel.conf")));
        const Run settings = run({"--settings", name});
        VERIFY_ENDED(settings, 0);
        QCOMPARE(linesOf(settings.standardOutput),
                 linesOf(QByteArray(settingsWarning).replace("korvel.conf", shown)));

        std::filesystem::remove(path.toStdString());
        std::filesystem::create_directory(path.toStdString());
        const Run inFolder = run({"--settings", name});
        VERIFY_TROUBLE(inFolder, QByteArray());
        QCOMPARE(inFolder.standardError, "korvel-check: " + shown + ": no regular file\n");
    }

    void filesThatAreTooLarge()
    {
        const Desk desk;
        QFile file(desk.path("large"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64(64) * 1024 * 1024 + 1));
        VERIFY_TROUBLE(desk.run({"large", "error.xml"}), "error.xml" + error);
        VERIFY_TROUBLE(desk.run({"--settings", "large", "error.xml"}), QByteArray());
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("nothing") << QStringList();
        QTest::newRow("no job") << QStringList{"--strict"};
        QTest::newRow("an unknown option") << QStringList{"--fix", "error.xml"};
        QTest::newRow("an unknown short option") << QStringList{"-x", "error.xml"};
        QTest::newRow("settings without a file") << QStringList{"error.xml", "--settings"};
        QTest::newRow("a value for an option that has none")
            << QStringList{"--strict=yes", "error.xml"};
        QTest::newRow("explain without a code") << QStringList{"--explain"};
        QTest::newRow("an unknown code") << QStringList{"--explain", "no-such-code"};
        QTest::newRow("an empty code") << QStringList{"--explain", ""};
        QTest::newRow("explain and a job") << QStringList{"--explain", "limit", "error.xml"};
        QTest::newRow("schema and a job") << QStringList{"--schema", "error.xml"};
        QTest::newRow("explain and settings")
            << QStringList{"--explain", "limit", "--settings", "korvel.conf"};
        QTest::newRow("schema and JSON") << QStringList{"--schema", "--json"};
        QTest::newRow("explain and schema") << QStringList{"--explain", "limit", "--schema"};
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        VERIFY_TROUBLE(Desk().run(arguments), QByteArray());
    }

    void outputThatCannotBeWritten_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("findings") << QStringList{"error.xml"};
        QTest::newRow("JSON") << QStringList{"--json", "error.xml"};
        QTest::newRow("schema") << QStringList{"--schema"};
        QTest::newRow("explanation") << QStringList{"--explain", "limit"};
        QTest::newRow("help") << QStringList{"--help"};
    }

    void outputThatCannotBeWritten()
    {
        QFETCH(QStringList, arguments);
        const Desk desk;
        VERIFY_TROUBLE(checker(arguments, {desk.folder.path(), {}, {}, "/dev/full"}), QByteArray());
    }

    void version()
    {
        for (const char *option : {"--version", "-v"}) {
            const Run run = checker({option});
            VERIFY_ENDED(run, 0);
            QCOMPARE(run.standardOutput, "korvel-check " KORVEL_VERSION "\n");
        }
    }

    /// Each option of --help is on the page, and each option of the page is in --help.
    void help()
    {
        const Run run = checker({"--help"});
        VERIFY_ENDED(run, 0);
        static const QRegularExpression option("^  (-.*?)(?:  |$)",
                                               QRegularExpression::MultilineOption);
        static const QRegularExpression name("(?<![\\w-])--?[a-z]+(?![\\w-])");
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

    void explain_data()
    {
        QTest::addColumn<QByteArray>("explanation");
        for (const check::CodeInfo &row : check::codes())
            QTest::newRow(row.name.data())
                << QByteArray(row.name.data()) + " ("
                       + (row.level == check::Level::Error ? "error" : "warning") + ")\n"
                       + row.meaning.data() + '\n' + row.advice.data() + '\n';
    }

    void explain()
    {
        QFETCH(QByteArray, explanation);
        const Run run = checker({"--explain", QTest::currentDataTag()});
        VERIFY_ENDED(run, 0);
        QCOMPARE(linesOf(run.standardOutput), linesOf(explanation));
    }

    void schemaForEditors()
    {
        const Run run = checker({"--schema"});
        VERIFY_ENDED(run, 0);
        const Desk desk;
        writeFile(desk.path("job.rng"), run.standardOutput);
        for (const auto &[job, status] :
             QMap<QString, int>{{"clean.xml", 0}, {"warning.xml", 3}, {"error.xml", 3}}.toStdMap())
            QCOMPARE(runProgram("xmllint", {"--noout", "--relaxng", "job.rng", job},
                                {desk.folder.path(), {}, {}})
                         .status,
                     status);
    }

    /// Findings of whole jobs, with the settings of each: every job that the renderer's own tests
    /// print.
    void goldenJobs_data()
    {
        QTest::addColumn<QString>("folder");
        const QStringList jobs = filesBelow(casesFolder, "job.xml");
        QVERIFY(jobs.size() > 60);
        for (const QString &job : jobs) {
            const QString folder = QFileInfo(job).path() + '/';
            QTest::newRow(qPrintable(folder.mid(casesFolder.size()).chopped(1))) << folder;
        }
    }

    void goldenJobs()
    {
        QFETCH(QString, folder);
        const QStringList arguments = {"--settings", "korvel.conf", "job.xml"};
        const Run run = checker(arguments, {folder, {}, {}});
        QVERIFY(run.exited);
        QCOMPARE(linesOf(run.standardError), QStringList());

        // A line is a file, its place, and a code of the table with its level.
        static const QRegularExpression finding("^(korvel\\.conf|job\\.xml):[1-9]\\d*:[1-9]\\d*: "
                                                "(error|warning): \\S.* \\[([a-z-]+)\\]$");
        const QStringList lines = linesWithoutEnds(run.standardOutput);
        bool hasError = false;
        for (const QString &line : lines) {
            const auto match = finding.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            const check::CodeInfo *code = check::findCode(match.captured(3));
            QVERIFY2(code, qPrintable(line));
            QCOMPARE(match.captured(2), QString(check::levelName(code->level)));
            hasError = hasError || code->level == check::Level::Error;
        }
        QCOMPARE(run.status, hasError ? 1 : 0);
        QCOMPARE(checker(QStringList("--strict") + arguments, {folder, {}, {}}).status,
                 lines.isEmpty() ? 0 : 1);

        // The same in JSON.
        const Run json = checker(QStringList("--json") + arguments, {folder, {}, {}});
        VERIFY_ENDED(json, run.status);
        QStringList said;
        for (const QString &line : linesWithoutEnds(json.standardOutput))
            said.append(lineOf(line.toUtf8()));
        QCOMPARE(said, lines);
    }

    void examplesAreClean()
    {
        QStringList jobs = filesBelow(top + "examples/jobs", "*.xml");
        QCOMPARE(jobs.size(), 13);
        const Run alone = checker(QStringList("--strict") + jobs);
        VERIFY_ENDED(alone, 0);
        QCOMPARE(linesOf(alone.standardOutput), QStringList());
        const Run withSettings = checker(QStringList{"--strict", "--settings", sample} + jobs);
        VERIFY_ENDED(withSettings, 0);
        QCOMPARE(linesOf(withSettings.standardOutput), QStringList());
    }

    void json()
    {
        const Desk desk;
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
        QCOMPARE(refused(texts.standardOutput), QStringList());
    }

    /// The schema of a line accepts every finding, and refuses what is none.
    void jsonSchema()
    {
        const Run run =
            checker(QStringList{"--json", "--settings",
                                casesFolder
                                    + "settings/"
                                      "only-the-first-top-level-group-counts/korvel.conf"}
                    + filesBelow(casesFolder, "job.xml"));
        VERIFY_ENDED(run, 1);
        const qsizetype count = run.standardOutput.count('\n');
        QVERIFY(count > 300);
        QCOMPARE(refused(run.standardOutput), QStringList());

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
        QCOMPARE(refused(wrong), numbers);
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
        QCOMPARE(refused(lines), QStringList());
    }

    void outputIsUtf8InAnyLocale()
    {
        const Desk desk;
        writeFile(desk.path("name.xml"), "<job><method name=\"Caff\xC3\xA8\"/></job>");
        const Run run = checker({"name.xml"}, {desk.folder.path(), {"LC_ALL=C"}, {}});
        VERIFY_ENDED(run, 1);
        QVERIFY2(run.standardOutput.contains("\"Caff\xC3\xA8\""), run.standardOutput.constData());
    }

    /// What a job says is shown in one line, whatever it is.
    void oneLineAFinding()
    {
        static const QRegularExpression finding("^-:\\d+:\\d+: error: \\S.* \\[[a-z-]+\\]$");
        const Desk desk;
        for (const QByteArray &job : QByteArrayList{
                 "<job><method name=\"a&#10;b\"/></job>",
                 "<?xml version=\"1.0\" encoding=\"a\nb\"?><job/>",
                 "<job>\x01</job>",
                 "<job><method name=\"a&#x2028;b&#x2029;c\"/></job>",
                 "<job><method name=\"printPartialOrder\"/><receipe number=\"1\" name=\"x\" "
                 "\xE2\x80\xA8=\"\"/></job>",
             }) {
            const Run run = desk.run({"-"}, job);
            QVERIFY(run.exited);
            const QStringList lines = linesWithoutEnds(run.standardOutput);
            QVERIFY(!lines.isEmpty());
            for (const QString &line : lines) {
                QVERIFY2(finding.match(line).hasMatch(), qPrintable(line));
                QVERIFY2(std::all_of(line.begin(), line.end(),
                                     [](QChar c) {
                                         return (c.isPrint() || c.isSurrogate())
                                                && c.category() != QChar::Separator_Line
                                                && c.category() != QChar::Separator_Paragraph;
                                     }),
                         qPrintable(line));
            }
        }
    }

    /// So is what a settings file says.
    void oneLineAFindingOfSettings()
    {
        const Desk desk;
        writeFile(desk.path("shop.conf"),
                  "korvel:\n{\n  a\x1B[1m:\n  {\n    b\x1B[2m = \"1\";\n  };\n};\n");
        const Run run = desk.run({"--settings", "shop.conf"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(run.standardOutput,
                 "shop.conf:5:5: warning: nothing reads korvel.a [1m.b [2m: no document reads the "
                 "group a [1m [unread-key]\n");
    }

    // The page.

    void pageListsAllKeys()
    {
        const QJsonObject properties =
            QJsonDocument::fromJson(bytesOf(schema)).object()["properties"].toObject();
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
        const Desk desk;
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

    /// The line that names the schema to editors stands in front of a job and changes nothing.
    void lineForEditors()
    {
        QString line;
        for (const QString &candidate : pageLines())
            if (candidate.contains("<?xml-model "))
                line = candidate.trimmed();
        QVERIFY(line.endsWith("?>"));
        const Desk desk;
        writeFile(desk.path("clean.xml"), line.toUtf8() + '\n' + cleanJob);
        const Run run = desk.run({"--strict", "clean.xml"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(runProgram(KORVEL_PRINT, {"clean.xml", "x.out"},
                            {desk.folder.path(), {"HOME=" + desk.folder.path()}, {}})
                     .status,
                 0);
        QCOMPARE(linesOf(bytesOf(desk.path("x.out"))), (QStringList{"=o\\n", "=o\\n"}));
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

QTEST_GUILESS_MAIN(TestCheckProgram)
#include "tst_checkprogram.moc"
