// korvel-preview as a user meets it: options, findings, pictures, JSON, exit statuses.
#include "support/bytenames.h"
#include "support/shop.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QtEndian>

#include <sys/stat.h>

namespace {

const QString top = KORVEL_SOURCE_DIR "/";
const QString examples = top + "examples/expected/";
const QString page = top + "docs/preview.md";
const QString schema = top + "docs/preview.schema.json";

using Names = QSet<QString>;

QStringList sorted(const Names &names)
{
    QStringList list = names.values();
    list.sort();
    return list;
}

Names matches(const QString &text, const char *pattern)
{
    Names names;
    for (const auto &match : QRegularExpression(pattern).globalMatch(text))
        names.insert(match.captured(1));
    return names;
}

Run preview(const QStringList &arguments, const Surroundings &surroundings = {})
{
    return runProgram(KORVEL_PREVIEW, arguments, surroundings);
}

/// A folder in which a stream lies ready as "x.out".
class Desk
{
public:
    explicit Desk(const QByteArray &stream) { writeFile(path("x.out"), stream); }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] Run run(const QStringList &arguments, const QStringList &variables = {}) const
    {
        return preview(arguments, {folder.path(), variables, {}});
    }

    const QTemporaryDir folder;
};

/// Lines behind the name of the stream that they are about.
QStringList behind(const QString &stream, QStringList lines)
{
    for (QString &line : lines)
        line.prepend(stream);
    return lines;
}

QStringList outputFiles(const Desk &desk)
{
    QStringList files = QDir(desk.folder.path()).entryList(QDir::Files | QDir::System);
    files.removeOne("x.out");
    return files;
}

/// Both kinds of rows and sections, a centred line and one that is not, and an unknown command.
const QByteArray everyCommand = "=K\n=C1\n"
                                "=R1/$120/*2/(COFFEE)\n"
                                "=S\r\n=V/$50\r\n"
                                "=T1\n"
                                "=o/*1\n"
                                "=\"/(             Caff\xC3\xA8 )\n"
                                "=\"/( x )\n"
                                "=o\n"
                                "=o\n"
                                "=?\n"
                                "=o\n";

/// A document with nothing wrong in it, a character wide or more.
QByteArray documentOf(const QByteArray &text) { return "=o\n=\"/(" + text + " )\n=o\n"; }

/// Streams with everything that can be wrong.
const QByteArrayList brokenStreams = {
    everyCommand,
    documentOf(QByteArray(33, 'x')),
    "=K\n=C1\n=R1/$100/*1/(" + QByteArray(33, 'x') + ")\n=T1\n",
    "=x\n",
    "x",
    "=\"/(abc)\n=o\n=o\n",
    "=R1x\n",
    "=S\r\n=V/$1\nx",
    "=o",
    "=\"/(abc",
    "=R1/$1",
    "=S\r\n=V/$1",
    "=K\n=C1\n",
    "=K\n=C1\n=o/*1\n",
    "=T1\n",
    "=R1/$1/*1/(x)\n",
    "=S\r\n=V/$1\r\n",
    "=K\n=C1\n=R1/$1.5/*1/(x)\n=T1\n",
    "=K\n=C1\n=R1/$1/*a/(x)\n=T1\n",
    documentOf("a)b"),
    documentOf("a\x1b[2J"),
    documentOf("a\xff\xfe"),
    "\n\n",
    QByteArray("=\"/(a\0b )\n", 10),
    "",
    "=K\n=C1\n=R1/$" + QByteArray(40, '9') + "/*1/(x)\n=T1\n",
    "=K\n=C1\n=S\r\n=V/$" + QByteArray(40, '9') + "\r\n=T1\n",
    "=K\n=C1\n=R1/2/$1/*1/(\xff)\n=T1\n",
    documentOf(QByteArray(1001, ')')),
};

/// A finding without what is different each time.
QString shapeOf(QString finding)
{
    return finding.replace(QRegularExpression("\"[^ ]+\""), "\"\"")
        .replace(QRegularExpression("\\d+"), "N")
        .replace(QRegularExpression("\\b(fiscal|receipt|document) section\\b(?= (opened|is))"),
                 "SECTION")
        .replace(QRegularExpression("^(broken|unterminated) (text line|sale row|deduction)"),
                 "\\1 COMMAND");
}

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

/// The size that a PNG says it has.
QSize sizeOfPng(const QByteArray &png)
{
    constexpr auto signature = "\x89PNG\r\n\x1a\n";
    if (!png.startsWith(signature) || png.size() < 24)
        return {};
    return {qFromBigEndian<qint32>(png.constData() + 16),
            qFromBigEndian<qint32>(png.constData() + 20)};
}

QByteArray json(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

/// Whether a text is one line that says why the program ended.
bool isTrouble(const QByteArray &text)
{
    return QRegularExpression("\\Akorvel-preview: [^\n]+\n\\z")
        .match(QString::fromUtf8(text))
        .hasMatch();
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

} // namespace

/// Fails the test unless a run ended by itself with this status.
#define VERIFY_ENDED(run, expectedStatus)                                                          \
    do {                                                                                           \
        const Run &ended = (run);                                                                  \
        QVERIFY2(ended.exited, ended.standardError.constData());                                   \
        QVERIFY2(ended.status == (expectedStatus), ended.standardError.constData());               \
    } while (false)

/// Fails the test unless a run said in one line why it could not do what was asked, and nothing
/// else.
#define VERIFY_TROUBLE(run)                                                                        \
    do {                                                                                           \
        const Run &troubled = (run);                                                               \
        VERIFY_ENDED(troubled, 2);                                                                 \
        QCOMPARE(linesOf(troubled.standardOutput), QStringList());                                 \
        QVERIFY2(isTrouble(troubled.standardError), troubled.standardError.constData());           \
    } while (false)

class TestPreviewProgram : public QObject
{
    Q_OBJECT

private slots:
    void paperInATerminal_data()
    {
        QTest::addColumn<QString>("box");

        QTest::newRow("receipt") << "┌────────────────────────────────┐\n"
                                    "│Benvenuti!                      │\n"
                                    "│================================│\n"
                                    "│             CASSA              │\n"
                                    "│================================│\n"
                                    "│       Trattoria Da Nino        │\n"
                                    "│        Via Garibaldi 12        │\n"
                                    "│          10122 Torino          │\n"
                                    "│       P.IVA 01234567890        │\n"
                                    "│================================│\n"
                                    "│ Serial Number: 118             │\n"
                                    "│================================│\n"
                                    "│ Date: 12/05/2026               │\n"
                                    "│ Time: 22:20                    │\n"
                                    "│ Table: 7                       │\n"
                                    "│================================│\n"
                                    "│CUSTOMER                        │\n"
                                    "│ Mario Rossi                    │\n"
                                    "│================================│\n"
                                    "│Num Description    Price  Amount│\n"
                                    "│  3 x Coperto.......2.00    6.00│\n"
                                    "│  2 x Spaghetti a..14.00   28.00│\n"
                                    "│  1 x Tagliata di..18.50   18.50│\n"
                                    "│  1 x Pizza Margh...9.00    9.00│\n"
                                    "│  2 x Tiramisù......5.50   11.00│\n"
                                    "│  1 x Vino rosso ...6.00    6.00│\n"
                                    "│  2 x Caffè.........1.20    2.40│\n"
                                    "│                                │\n"
                                    "│    TOTAL...............   80.90│\n"
                                    "│                                │\n"
                                    "│    Amount not paid: 30.90      │\n"
                                    "└────────────────────────────────┘\n";
        // 2 x 7.00 + 2 x 4.50 - 3.00
        QTest::newRow("fiscal-receipt") << "┌────────────────────────────────┐\n"
                                           "│  2 x 7.00                      │\n"
                                           "│Pizza Margherita        14.00 R1│\n"
                                           "│  2 x 4.50                      │\n"
                                           "│Birra media alla spina   9.00 R2│\n"
                                           "│DEDUCTION                  -3.00│\n"
                                           "┊--------------------------------┊\n"
                                           "┊Sum (by the preview)       20.00┊\n"
                                           "└────────────────────────────────┘\n";
        QTest::newRow("order-summary") << "┌────────────────────────────────┐\n"
                                          "└────────────────────────────────┘\n";
    }

    void paperInATerminal()
    {
        QFETCH(QString, box);
        const QString path = examples + QTest::currentDataTag() + ".out";
        const Run run = preview({path});
        VERIFY_ENDED(run, 0);
        QCOMPARE(linesOf(run.standardOutput), linesOf(box.toUtf8()));
        QCOMPARE(linesOf(run.standardError), QStringList());

        const Run fromStandardInput = preview({"-"}, {{}, {}, bytesOf(path)});
        VERIFY_ENDED(fromStandardInput, 0);
        QCOMPARE(linesOf(fromStandardInput.standardOutput), linesOf(box.toUtf8()));
        QCOMPARE(linesOf(fromStandardInput.standardError), QStringList());
    }

    void columns_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("said");

        QTest::newRow("none given") << QStringList{}
                                    << "┌" + QString(32, u'─') + "┐\n│Ciao" + QString(28, ' ')
                                           + "│\n└" + QString(32, u'─') + "┘\n"
                                    << "";
        QTest::newRow("just wide enough")
            << QStringList{"--columns", "4"} << "┌────┐\n│Ciao│\n└────┘\n"
            << "";
        QTest::newRow("too narrow")
            << QStringList{"--columns=3"} << "┌───┐\n│Cia»o\n└───┘\n"
            << "x.out:2: byte 3: a line of 4 characters is wider than the paper (3)\n";
        QTest::newRow("narrowest")
            << QStringList{"--columns", "1"} << "┌─┐\n│C»iao\n└─┘\n"
            << "x.out:2: byte 3: a line of 4 characters is wider than the paper (1)\n";
        QTest::newRow("widest") << QStringList{"--columns", "255"}
                                << "┌" + QString(255, u'─') + "┐\n│Ciao" + QString(251, ' ')
                                       + "│\n└" + QString(255, u'─') + "┘\n"
                                << "";
    }

    void columns()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, box);
        QFETCH(QString, said);
        const Desk desk(documentOf("Ciao"));
        const Run run = desk.run(arguments + QStringList{"x.out"});
        VERIFY_ENDED(run, said.isEmpty() ? 0 : 1);
        QCOMPARE(QString::fromUtf8(run.standardOutput), box);
        QCOMPARE(QString::fromUtf8(run.standardError), said);
    }

    void trouble_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("no argument") << QStringList{};
        QTest::newRow("two streams") << QStringList{"x.out", "x.out"};
        QTest::newRow("an option alone") << QStringList{"--json"};
        QTest::newRow("an option that it does not know") << QStringList{"--colour", "x.out"};
        QTest::newRow("a letter that it does not know") << QStringList{"-z", "x.out"};
        // What the toolkit's own applications take is none of this program's.
        QTest::newRow("another platform") << QStringList{"-platform", "none", "x.out"};
        QTest::newRow("a style") << QStringList{"-style", "fusion", "x.out"};
        QTest::newRow("a missing file") << QStringList{"missing.out"};
        QTest::newRow("a missing file whose name has two lines") << QStringList{"missing\nfile"};
        QTest::newRow("a folder") << QStringList{"."};
        QTest::newRow("a file in place of a folder") << QStringList{"x.out/y.out"};
        QTest::newRow("an empty name") << QStringList{""};
        QTest::newRow("an option behind --") << QStringList{"--", "--json"};

        QTest::newRow("columns: 0") << QStringList{"--columns", "0", "x.out"};
        QTest::newRow("columns: negative") << QStringList{"--columns=-1", "x.out"};
        QTest::newRow("columns: 256") << QStringList{"--columns", "256", "x.out"};
        QTest::newRow("columns: beyond an int") << QStringList{"--columns", "4294967328", "x.out"};
        QTest::newRow("columns: a word") << QStringList{"--columns", "wide", "x.out"};
        QTest::newRow("columns: a fraction") << QStringList{"--columns", "32.5", "x.out"};
        QTest::newRow("columns: empty") << QStringList{"--columns=", "x.out"};
        QTest::newRow("columns: no value") << QStringList{"x.out", "--columns"};

        QTest::newRow("output: another kind") << QStringList{"-o", "y.gif", "x.out"};
        QTest::newRow("output: no kind") << QStringList{"--output=png", "x.out"};
        QTest::newRow("output: empty") << QStringList{"--output=", "x.out"};
        QTest::newRow("output: no value") << QStringList{"x.out", "-o"};

        QTest::newRow("output and JSON") << QStringList{"-o", "y.png", "--json", "x.out"};
        QTest::newRow("output and list") << QStringList{"-o", "y.png", "--list", "x.out"};
        QTest::newRow("JSON and list") << QStringList{"--json", "--list", "x.out"};
    }

    void trouble()
    {
        QFETCH(QStringList, arguments);
        const Desk desk(documentOf("Ciao"));
        VERIFY_TROUBLE(desk.run(arguments));
        QCOMPARE(outputFiles(desk), QStringList());

        // A stream's findings may be left unsaid; trouble may not.
        if (!arguments.contains("--")) {
            VERIFY_TROUBLE(desk.run(QStringList("--quiet") + arguments));
            QCOMPARE(outputFiles(desk), QStringList());
        }
    }

    void aStreamCanBeNamedLikeAnOption()
    {
        const Desk desk(documentOf("Ciao"));
        QVERIFY(QFile::copy(desk.path("x.out"), desk.path("--json")));
        const Run run = desk.run({"--columns=4", "--", "--json"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(QString::fromUtf8(run.standardOutput), "┌────┐\n│Ciao│\n└────┘\n");
    }

    void aStreamOf4MebibytesAndNoMore()
    {
        constexpr qsizetype limit = 4 * 1024 * 1024;
        const QByteArray frame = documentOf({});
        const Desk desk(documentOf(QByteArray(limit - frame.size(), 'x')));
        const Run run = desk.run({"--list", "--quiet", "x.out"});
        VERIFY_ENDED(run, 1); // it is wider than the paper
        QCOMPARE(run.standardOutput.count('\n'), 3);
        QCOMPARE(run.standardOutput.count('x'), limit - frame.size() + 1); // and one of "text"

        QFile file(desk.path("x.out"));
        QVERIFY(file.open(QIODevice::Append));
        QCOMPARE(file.write("\n"), 1);
        file.close();
        VERIFY_TROUBLE(desk.run({"x.out"}));
        VERIFY_TROUBLE(desk.run({"/dev/zero"}));
    }

    void standardOutputThatTakesNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("paper") << QStringList{"x.out"};
        QTest::newRow("JSON") << QStringList{"--json", "x.out"};
        QTest::newRow("list") << QStringList{"--list", "x.out"};
        QTest::newRow("help") << QStringList{"--help"};
        QTest::newRow("version") << QStringList{"--version"};
    }

    void standardOutputThatTakesNothing()
    {
        QFETCH(QStringList, arguments);
        const Desk desk(documentOf("Ciao"));
        VERIFY_TROUBLE(preview(arguments, {desk.folder.path(), {}, {}, "/dev/full"}));
        // The same takes all that is written when there is no output to write.
        VERIFY_ENDED(desk.run(arguments), 0);
    }

    void closedStandardStreams()
    {
        const Desk desk(documentOf("Ciao"));
        const auto run = [&](const QString &closed, const QStringList &arguments) {
            return runProgram(
                "sh", QStringList{"-c", "exec \"$0\" \"$@\" " + closed, KORVEL_PREVIEW} + arguments,
                {desk.folder.path(), {}, {}});
        };
        VERIFY_TROUBLE(run("<&-", {"-"}));
        for (const QString &option : QStringList{"--columns=32", "--json", "--list", "--help"})
            VERIFY_TROUBLE(run(">&-", {option, "x.out"}));

        // What does not need them goes on.
        VERIFY_ENDED(run("<&-", {"x.out"}), 0);
        VERIFY_ENDED(run("2>&-", {"x.out"}), 0);
        VERIFY_ENDED(run("2>&-", {"--columns=1", "x.out"}), 1);
        VERIFY_ENDED(run("2>&-", {"missing.out"}), 2);
        VERIFY_ENDED(run("<&- >&- 2>&-", {"-o", "y.png", "x.out"}), 0);
        QCOMPARE(sizeOfPng(bytesOf(desk.path("y.png"))), QSize(464, 24 + 24 + 24));
        QCOMPARE(bytesOf(desk.path("x.out")), documentOf("Ciao"));
    }

    void findings()
    {
        const Desk desk(documentOf("a)b") + documentOf(QByteArray(40, 'x')) + "=x\n");
        // Sections take 3 bytes, a line 7 and its text: the first document 16, the second 53.
        const QStringList said = {
            "2: byte 8: a \")\" inside a text ends it early\\n",
            "5: byte 19: a line of 40 characters is wider than the paper (32)\\n",
            "7: byte 70: unknown command: \"x\" does not belong here\\n",
        };
        for (const QString &option :
             QStringList{"--columns=32", "--json", "--list", "--output=y.png"}) {
            const Run run = desk.run({option, "x.out"});
            VERIFY_ENDED(run, 1);
            QCOMPARE(linesOf(run.standardError), behind("x.out:", said));

            for (const QString &quiet : QStringList{"--quiet", "-q"}) {
                const Run quietRun = desk.run({option, quiet, "x.out"});
                VERIFY_ENDED(quietRun, 1);
                QCOMPARE(linesOf(quietRun.standardError), QStringList());
                QCOMPARE(linesOf(quietRun.standardOutput), linesOf(run.standardOutput));
            }
        }
        const Run fromStandardInput = preview({"-"}, {{}, {}, bytesOf(desk.path("x.out"))});
        VERIFY_ENDED(fromStandardInput, 1);
        QCOMPARE(linesOf(fromStandardInput.standardError), behind("-:", said));

        // A finding is one line, whatever the stream is called.
        QVERIFY(QFile::copy(desk.path("x.out"), desk.path("x\n\033.out")));
        const Run oddName = desk.run({"x\n\033.out"});
        VERIFY_ENDED(oddName, 1);
        QCOMPARE(linesOf(oddName.standardError),
                 behind(QString("x%1%1.out:").arg(QChar(QChar::ReplacementCharacter)), said));
    }

    void streamsOfAnyName_data() { addByteNames(); }

    void streamsOfAnyName()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, shown);
        const Desk desk("=x\n");
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        const Run missing = runWithBytes(KORVEL_PREVIEW, {"--", name}, folder);
        VERIFY_TROUBLE(missing);
        QCOMPARE(missing.standardError,
                 "korvel-preview: " + shown + ": No such file or directory\n");

        std::filesystem::rename(desk.path("x.out").toStdString(),
                                (folder + '/' + name).toStdString());
        const Run run = runWithBytes(KORVEL_PREVIEW, {"--list", "--", name}, folder);
        VERIFY_ENDED(run, 1);
        QVERIFY2(run.standardError.startsWith(shown + ":1: byte 1: "),
                 run.standardError.constData());
        QVERIFY(run.standardError.isValidUtf8());
        QCOMPARE(namesIn(folder), QByteArrayList{name});
    }

    void picturesOfAnyName_data() { addByteNames(); }

    void picturesOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Desk desk(documentOf("Ciao"));
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        for (const QByteArray &path :
             {name + ".png", name + ".pdf", folder + '/' + name + ".PNG"}) {
            const Run run = runWithBytes(KORVEL_PREVIEW, {"-o", path, "x.out"}, folder);
            VERIFY_ENDED(run, 0);
            QCOMPARE(run.standardError, "");
        }
        QCOMPARE(sizeOfPng(bytesNamed(folder + '/' + name + ".png")), QSize(464, 24 + 24 + 24));
        QCOMPARE(sizeOfPng(bytesNamed(folder + '/' + name + ".PNG")), QSize(464, 24 + 24 + 24));
        QVERIFY(bytesNamed(folder + '/' + name + ".pdf").startsWith("%PDF"));
        QCOMPARE(namesIn(folder),
                 sortedNames({"x.out", name + ".png", name + ".pdf", name + ".PNG"}));
    }

    void picturesThatCannotBeWrittenOfAnyName_data() { addByteNames(); }

    void picturesThatCannotBeWrittenOfAnyName()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, shown);
        const Desk desk(documentOf("Ciao"));
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        const Run missing = runWithBytes(KORVEL_PREVIEW, {"-o", name + "/y.png", "x.out"}, folder);
        VERIFY_TROUBLE(missing);
        QCOMPARE(missing.standardError,
                 "korvel-preview: " + shown + "/y.png: No such file or directory\n");

        std::filesystem::create_directory((folder + '/' + name + ".png").toStdString());
        const Run inFolder = runWithBytes(KORVEL_PREVIEW, {"-o", name + ".png", "x.out"}, folder);
        VERIFY_TROUBLE(inFolder);
        QCOMPARE(inFolder.standardError, "korvel-preview: " + shown + ".png: no regular file\n");
        QCOMPARE(namesIn(folder), sortedNames({"x.out", name + ".png"}));
    }

    void picturesInAFolderOfAnyName_data() { addByteNames(); }

    void picturesInAFolderOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Desk desk(documentOf("Ciao"));
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8() + '/' + name;
        std::filesystem::create_directory(folder.toStdString());
        VERIFY_ENDED(runWithBytes(KORVEL_PREVIEW, {"-o", "y.png", "../x.out"}, folder), 0);
        QCOMPARE(sizeOfPng(bytesNamed(folder + "/y.png")), QSize(464, 24 + 24 + 24));
        QCOMPARE(namesIn(folder), QByteArrayList{"y.png"});
        QCOMPARE(namesIn(desk.folder.path().toUtf8()), sortedNames({name, "x.out"}));
    }

    void aLinkStaysOne_data() { addByteNames(); }

    void aLinkStaysOne()
    {
        QFETCH(QByteArray, name);
        const Desk desk(documentOf("Ciao"));
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        const std::string link = desk.path("y.png").toStdString();
        std::filesystem::create_symlink(name.toStdString(), link);
        writeNamed(folder + '/' + name, "the one before");
        VERIFY_ENDED(desk.run({"-o", "y.png", "x.out"}), 0);
        QCOMPARE(sizeOfPng(bytesNamed(folder + '/' + name)), QSize(464, 24 + 24 + 24));
        QVERIFY(std::filesystem::is_symlink(link));
        QCOMPARE(namesIn(folder), sortedNames({"y.png", "x.out", name}));

        // One that leads nowhere gives way.
        std::filesystem::remove((folder + '/' + name).toStdString());
        VERIFY_ENDED(desk.run({"-o", "y.png", "x.out"}), 0);
        QCOMPARE(sizeOfPng(bytesOf(desk.path("y.png"))), QSize(464, 24 + 24 + 24));
        QVERIFY(!std::filesystem::is_symlink(link));
        QCOMPARE(namesIn(folder), sortedNames({"y.png", "x.out"}));
    }

    void permissionsOfAPicture()
    {
        const Desk desk(documentOf("Ciao"));
        const auto run = [&](const QString &mask) {
            return runProgram(
                "sh", {"-c", "umask " + mask + " && exec \"$0\" -o y.png x.out", KORVEL_PREVIEW},
                {desk.folder.path(), {}, {}});
        };
        const auto permissions = [&] {
            struct stat status = {};
            stat(desk.path("y.png").toUtf8().constData(), &status);
            return QByteArray::number(status.st_mode & 07777U, 8);
        };
        VERIFY_ENDED(run("027"), 0);
        QCOMPARE(permissions(), "640");
        VERIFY_ENDED(run("002"), 0); // of the one before
        QCOMPARE(permissions(), "640");
        QVERIFY(QFile::remove(desk.path("y.png")));
        VERIFY_ENDED(run("002"), 0);
        QCOMPARE(permissions(), "664");
    }

    void optionsThatAreNoText()
    {
        const Desk desk(documentOf("Ciao"));
        const QByteArray folder = desk.folder.path().toUtf8();
        for (const QByteArray &argument : QByteArrayList{"--b\xE8t", "--columns=\xFF", "-\x1b"}) {
            const Run run = runWithBytes(KORVEL_PREVIEW, {argument, "x.out"}, folder);
            VERIFY_TROUBLE(run);
            QVERIFY(run.standardError.isValidUtf8());
            QVERIFY(!run.standardError.contains('\x1b'));
        }
    }

    /// What is found wrong does not hide that nothing could be written.
    void findingsAndTrouble()
    {
        const Desk desk("=x\n");
        const Run run = desk.run({"-o", "missing/y.png", "x.out"});
        VERIFY_ENDED(run, 2);
        const QStringList said = linesOf(run.standardError);
        QCOMPARE(said.size(), 2);
        QVERIFY2(said[0].startsWith("x.out:1: byte 1: "), qPrintable(said[0]));
        QVERIFY2(said[1].startsWith("korvel-preview: missing/y.png: "), qPrintable(said[1]));
        VERIFY_TROUBLE(desk.run({"--quiet", "-o", "missing/y.png", "x.out"}));
    }

    /// In fiscal-receipt.out the rows begin at bytes 7 and 38, the deduction at 75 and 79, the end
    /// at 88; in receipt.out the first line begins at byte 6 and its text at 10.
    void oneWrongByteIsNamed_data()
    {
        QTest::addColumn<QString>("example");
        QTest::addColumn<qsizetype>("at");
        QTest::addColumn<char>("wrong");
        QTest::addColumn<QString>("named");
        const auto row = [](const char *name, const char *example, qsizetype at, char wrong,
                            const char *named) {
            QTest::newRow(name) << example << at << wrong << named;
        };
        const auto *const fiscal = "fiscal-receipt";
        const auto *const receipt = "receipt";

        row("the first byte", fiscal, 0, '#', "1: byte 0: ");
        row("fiscal opening, first command", fiscal, 1, '#', "1: byte 1: ");
        row("fiscal opening, second command", fiscal, 4, '#', "2: byte 4: ");
        row("fiscal opening, its end", fiscal, 6, '#', "2: byte 6: ");
        row("sale row, its first byte", fiscal, 7, '#', "3: byte 7: ");
        row("sale row, mark of the department", fiscal, 8, '#', "3: byte 8: ");
        row("sale row, amount", fiscal, 12, '#', "3: byte 12: ");
        row("sale row, mark of the quantity", fiscal, 16, '#', "3: byte 16: ");
        row("sale row, quantity", fiscal, 17, '#', "3: byte 17: ");
        row("sale row, mark of the description", fiscal, 19, '#', "3: byte 19: ");
        row("sale row, description", fiscal, 30, '\xe8', "3: byte 30: ");
        // All before it may stand in a description; the end of the line in front of a command may
        // not.
        row("sale row, end of the description", fiscal, 36, '#', "3: byte 37: ");
        row("deduction, announcement", fiscal, 76, '#', "5: byte 76: ");
        row("deduction, carriage return", fiscal, 77, '#', "5: byte 77: ");
        row("deduction, second command", fiscal, 80, '#', "6: byte 80: ");
        row("deduction, mark of the amount", fiscal, 82, '#', "6: byte 82: ");
        row("deduction, line feed", fiscal, 87, '#', "6: byte 87: ");
        row("fiscal closing", fiscal, 90, '#', "7: byte 90: ");
        row("the last byte", fiscal, 91, '#', "7: byte 91: ");
        row("receipt opening", receipt, 3, '#', "1: byte 3: ");
        row("line, opener", receipt, 7, '#', "2: byte 7: ");
        row("line, text", receipt, 12, '\xee', "2: byte 12: ");
        row("line, end of the text", receipt, 21, '#', "2: byte 22: ");
    }

    void oneWrongByteIsNamed()
    {
        QFETCH(QString, example);
        QFETCH(qsizetype, at);
        QFETCH(char, wrong);
        QFETCH(QString, named);
        QByteArray stream = bytesOf(examples + example + ".out");
        stream[at] = wrong;
        const Desk desk(stream);
        const Run run = desk.run({"x.out"});
        VERIFY_ENDED(run, 1);
        QVERIFY2(("\n" + run.standardError).contains("\nx.out:" + named.toUtf8()),
                 run.standardError.constData());
    }

    void aCommandThatBeginsWrongIsNamed_data() { addExamples(); }

    void aCommandThatBeginsWrongIsNamed()
    {
        const QByteArray whole = bytesOf(examples + QTest::currentDataTag());
        QList<qsizetype> starts; // of lines; no line feed stands inside a text of the examples
        for (qsizetype at = 0; at < whole.size(); at = whole.indexOf('\n', at) + 1)
            starts.append(at);
        for (const qsizetype line : {qsizetype(0), starts.size() / 2, starts.size() - 1}) {
            QByteArray stream = whole;
            QCOMPARE(stream[starts[line]], '=');
            stream[starts[line]] = '#';
            const Desk desk(stream);
            const Run run = desk.run({"x.out"});
            VERIFY_ENDED(run, 1);
            const QString named = QString("x.out:%1: byte %2: ").arg(line + 1).arg(starts[line]);
            QVERIFY2(run.standardError.contains(named.toUtf8()), run.standardError.constData());
        }
    }

    void aStreamThatBreaksOffIsNamedAtItsEnd()
    {
        const QByteArray whole = bytesOf(examples + "fiscal-receipt.out");
        for (const qsizetype size : {1, 5, 8, 20, 30, 77, 85, 90}) {
            const Desk desk(whole.first(size));
            const Run run = desk.run({"x.out"});
            VERIFY_ENDED(run, 1);
            const QString named = QString(": byte %1: ").arg(size);
            QVERIFY2(run.standardError.contains(named.toUtf8()), run.standardError.constData());
            QVERIFY2(run.standardError.contains("the stream ends here\n"),
                     run.standardError.constData());
        }
    }

    /// What the examples show is wider than the paper in two of them, on purpose.
    void whatTheExamplesGive_data() { addExamples(); }

    void whatTheExamplesGive()
    {
        const QMap<QString, QStringList> said = {
            {"period-report.out",
             {"30: byte 713: a line of 40 characters is wider than the paper (32)\\n",
              "31: byte 760: a line of 41 characters is wider than the paper (32)\\n",
              "38: byte 940: a line of 34 characters is wider than the paper (32)\\n"}},
            {"receipt-summary.out",
             {"19: byte 501: a line of 34 characters is wider than the paper (32)\\n"}},
        };
        const QString name = QTest::currentDataTag();
        const Run run = preview({name}, {examples, {}, {}});
        VERIFY_ENDED(run, said.contains(name) ? 1 : 0);
        QCOMPARE(linesOf(run.standardError), behind(name + ':', said.value(name)));
    }

    void jsonNamesEveryCommand()
    {
        const Desk desk(everyCommand);
        const Run run = desk.run({"--json", "x.out"});
        VERIFY_ENDED(run, 1);
        QCOMPARE(linesOf(run.standardError),
                 QStringList("x.out:12: byte 92: unknown command: \"?\" does not belong here\\n"));

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
            command("section-opened", 44, 7, {{"section", "receipt"}}),
            command("line", 50, 8, {{"spaces", 13}, {"text", "Caffè"}}),
            command("line", 76, 9, {{"spaces", 0}, {"text", " x"}}),
            command("section-closed", 85, 10, {{"section", "receipt"}}),
            command("section-opened", 88, 11, {{"section", "document"}}),
            command("unknown", 91, 12, {{"bytes", "3d3f0a"}, {"badByte", 92}}),
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
        for (const QString &number : refused(lines))
            refusedOf.append(origins.value(number.toInt() - 1, number));
        QCOMPARE(refusedOf, QStringList());
        QVERIFY(origins.size() > 1000);
    }

    void schemaAllowsNothingElse_data()
    {
        QTest::addColumn<QJsonObject>("object");
        const auto row = [](QJsonObject object) {
            object.insert("offset", 7);
            object.insert("line", 3);
            const QString bytes = object.contains("bytes") ? " with its bytes" : "";
            QTest::newRow(qPrintable(object.value("command").toString() + bytes)) << object;
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
    }

    void schemaAllowsNothingElse()
    {
        QFETCH(QJsonObject, object);
        QCOMPARE(refused(json(object)), QStringList());

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
        QCOMPARE(refused(wrong.join()), numbers);
    }

    /// Bytes of a stream that a terminal would obey come out as something that it shows.
    void aStreamDoesNotCommandTheTerminal()
    {
        const QByteArray text = "\x1b[2J\x1b]0;x\x07\x7f\r\t\b\xc2\x9b";
        const Desk desk("=K\n=C1\n=R" + text + "/$" + text + "/*" + text + "/(" + text
                        + ")\n=S\r\n=V/$" + text + "\n=T1\n" + documentOf(text) + text + "\n"
                        + QByteArray("=o\0\n", 4));
        for (const QString &option : QStringList{"--columns=32", "--list", "--json"}) {
            const Run run = desk.run({option, "x.out"});
            VERIFY_ENDED(run, 1);
            QVERIFY(!run.standardOutput.isEmpty());
            QVERIFY(!run.standardError.isEmpty());
            for (const QChar c :
                 QString::fromUtf8(run.standardOutput) + QString::fromUtf8(run.standardError)) {
                // In JSON, a character above these is itself.
                const bool obeyed = option == "--json" ? c < u' ' : !c.isPrint();
                QVERIFY2(c == u'\n' || !obeyed, qPrintable(QString::number(c.unicode(), 16)));
            }
        }
    }

    void coloursOnATerminalAlone_data()
    {
        QTest::addColumn<QStringList>("variables");
        QTest::addColumn<QString>("option");
        QTest::addColumn<bool>("coloured");
        const QString paper = "--columns=32";

        QTest::newRow("a terminal") << QStringList{"TERM=xterm", "NO_COLOR"} << paper << true;
        QTest::newRow("an unknown terminal") << QStringList{"TERM", "NO_COLOR"} << paper << true;
        QTest::newRow("NO_COLOR") << QStringList{"TERM=xterm", "NO_COLOR=1"} << paper << false;
        QTest::newRow("an empty NO_COLOR")
            << QStringList{"TERM=xterm", "NO_COLOR="} << paper << true;
        QTest::newRow("a dumb terminal") << QStringList{"TERM=dumb", "NO_COLOR"} << paper << false;
        QTest::newRow("list") << QStringList{"TERM=xterm", "NO_COLOR"} << "--list" << false;
        QTest::newRow("JSON") << QStringList{"TERM=xterm", "NO_COLOR"} << "--json" << false;
    }

    void coloursOnATerminalAlone()
    {
        QFETCH(QStringList, variables);
        QFETCH(QString, option);
        QFETCH(bool, coloured);
        const QString stream = examples + "fiscal-receipt.out";
        const Run inPipe = preview({option, stream}, {{}, variables, {}});
        VERIFY_ENDED(inPipe, 0);
        QVERIFY(!inPipe.standardOutput.contains('\033'));

        // script(1) runs a command in a terminal of its own.
        const QString command = QString(KORVEL_PREVIEW " %1 '%2'").arg(option, stream);
        const Run onTerminal =
            runProgram("script", {"--quiet", "--return", "--command", command, "/dev/null"},
                       {{}, variables, {}});
        VERIFY_ENDED(onTerminal, 0);
        QString shown = QString::fromUtf8(onTerminal.standardOutput).remove('\r');
        QCOMPARE(shown.contains("│\033[31mDEDUCTION                  -3.00\033[0m│\n"), coloured);
        QCOMPARE(shown.contains("┊\033[2mSum (by the preview)       20.00\033[0m┊\n"), coloured);
        QCOMPARE(shown.contains('\033'), coloured);
        shown.remove(QRegularExpression("\033\\[[0-9;]*m"));
        QCOMPARE(linesOf(shown.toUtf8()), linesOf(inPipe.standardOutput));
    }

    /// The paper is the same wherever the program runs, and nothing is said of it.
    void surroundings_data()
    {
        QTest::addColumn<QStringList>("variables");

        QTest::newRow("another platform") << QStringList{"QT_QPA_PLATFORM=none"};
        QTest::newRow("no plug-ins") << QStringList{"QT_PLUGIN_PATH=/none"};
        QTest::newRow("a theme") << QStringList{"QT_QPA_PLATFORMTHEME=gtk3"};
        QTest::newRow("a screen scale") << QStringList{"QT_SCALE_FACTOR=2"};
        QTest::newRow("a font scale") << QStringList{"QT_FONT_DPI=192"};
        QTest::newRow("no display") << QStringList{"DISPLAY", "WAYLAND_DISPLAY"};
        QTest::newRow("a display that is not there") << QStringList{"DISPLAY=:99"};
        QTest::newRow("no home") << QStringList{"HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME"};
        QTest::newRow("no run-time folder") << QStringList{"XDG_RUNTIME_DIR=/none"};
        QTest::newRow("the toolkit's messages")
            << QStringList{"QT_LOGGING_RULES=*=true", "QT_DEBUG_PLUGINS=1"};
        QTest::newRow("the plain locale") << QStringList{"LC_ALL=C"};
        QTest::newRow("an unknown locale") << QStringList{"LC_ALL=none"};
    }

    void surroundings()
    {
        QFETCH(QStringList, variables);
        const Desk desk(bytesOf(examples + "full-order.out"));
        const Run usual = desk.run({"x.out"});
        const Run run = desk.run({"x.out"}, variables);
        VERIFY_ENDED(run, 0);
        QCOMPARE(linesOf(run.standardOutput), linesOf(usual.standardOutput));
        QCOMPARE(linesOf(run.standardError), QStringList());

        const Run picture = desk.run({"-o", "y.png", "x.out"}, variables);
        VERIFY_ENDED(picture, 0);
        QCOMPARE(linesOf(picture.standardOutput + picture.standardError), QStringList());
        QCOMPARE(sizeOfPng(bytesOf(desk.path("y.png"))), QSize(464, 24 + 25 * 24 + 24));
    }

    void pictures_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QSize>("size"); // of a .png

        // 40 + 32 * 12 + 40 dots wide; 24 + 30 * 24 + 24 high for 30 rows.
        QTest::newRow("PNG") << QStringList{"--output", "y.png"} << QSize(464, 768);
        QTest::newRow("PNG, the short way") << QStringList{"-o", "y.PNG"} << QSize(464, 768);
        QTest::newRow("PNG on wider paper")
            << QStringList{"--output=y.png", "--columns=42"} << QSize(40 + 42 * 12 + 40, 768);
        QTest::newRow("PDF") << QStringList{"-o", "y.pdf"} << QSize();
        QTest::newRow("PDF in capitals") << QStringList{"-oy.PDF"} << QSize();
    }

    void pictures()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QSize, size);
        const Desk desk(bytesOf(examples + "receipt.out"));
        const Run run = desk.run(arguments + QStringList("x.out"));
        VERIFY_ENDED(run, 0);
        QCOMPARE(linesOf(run.standardOutput + run.standardError), QStringList());
        const QStringList files = outputFiles(desk);
        QCOMPARE(files.size(), 1);
        const QByteArray picture = bytesOf(desk.path(files.constFirst()));
        QCOMPARE(sizeOfPng(picture), size);
        QCOMPARE(picture.startsWith("%PDF-"), !size.isValid());
    }

    void aPictureReplacesAnother()
    {
        const Desk desk(documentOf("Ciao"));
        writeFile(desk.path("y.png"), QByteArray(100000, 'x'));
        VERIFY_ENDED(desk.run({"-o", "y.png", "x.out"}), 0);
        const QByteArray picture = bytesOf(desk.path("y.png"));
        QCOMPARE(sizeOfPng(picture), QSize(464, 24 + 24 + 24));
        QVERIFY(!picture.contains(QByteArray(1000, 'x')));
    }

    void aPictureThatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<QStringList>("variables");
        // A sanitizer wants to be loaded first.
        const QStringList fullDisk = {"LD_PRELOAD=" KORVEL_FAILING_CALL, "KORVEL_FAULT_CALL=1",
                                      "KORVEL_FAULT_KIND=ENOSPC",
                                      "ASAN_OPTIONS=verify_asan_link_order=0"};

        QTest::newRow("PNG, no such folder") << "missing/y.png" << QStringList();
        QTest::newRow("PDF, no such folder") << "missing/y.pdf" << QStringList();
        QTest::newRow("PNG, a folder") << "folder.png" << QStringList();
        QTest::newRow("PDF, a folder") << "folder.pdf" << QStringList();
        QTest::newRow("PNG, a full disk") << "y.png" << fullDisk;
        QTest::newRow("PDF, a full disk") << "y.pdf" << fullDisk;
        QTest::newRow("PNG, a pipe") << "pipe.png" << QStringList();
        QTest::newRow("PDF, a pipe") << "pipe.pdf" << QStringList();
        QTest::newRow("PNG, a link to a pipe") << "link.png" << QStringList();
    }

    void aPictureThatCannotBeWritten()
    {
        QFETCH(QString, output);
        QFETCH(QStringList, variables);
        const Desk desk(documentOf("Ciao"));
        writeFile(desk.path("y.png"), "the one before");
        writeFile(desk.path("y.pdf"), "the one before");
        QVERIFY(QDir(desk.folder.path()).mkdir("folder.png"));
        QVERIFY(QDir(desk.folder.path()).mkdir("folder.pdf"));
        for (const QString &pipe : QStringList{"pipe.png", "pipe.pdf"})
            QCOMPARE(mkfifo(QFile::encodeName(desk.path(pipe)).constData(), 0600), 0);
        QVERIFY(QFile::link(desk.path("pipe.png"), desk.path("link.png")));
        const QStringList before = QDir(desk.folder.path()).entryList();

        const Run run = desk.run({"-o", output, "x.out"}, variables);
        VERIFY_TROUBLE(run);
        QVERIFY2(run.standardError.startsWith("korvel-preview: " + output.toUtf8() + ": "),
                 run.standardError.constData());

        // Nothing is lost, nothing is left behind, and what is no file stays what it is.
        QCOMPARE(QDir(desk.folder.path()).entryList(), before);
        QCOMPARE(bytesOf(desk.path("y.png")), "the one before");
        QCOMPARE(bytesOf(desk.path("y.pdf")), "the one before");
        for (const QString &pipe : QStringList{"pipe.png", "pipe.pdf"}) {
            struct stat status
            {
            };
            QCOMPARE(lstat(QFile::encodeName(desk.path(pipe)).constData(), &status), 0);
            QVERIFY2(S_ISFIFO(status.st_mode), qPrintable(pipe));
        }
    }

    void aRollThatAPngCannotHold()
    {
        const QByteArray line = "=\"/(x )\n";
        const Desk desk("=o\n" + line.repeated(1300) + "=o\n");
        VERIFY_ENDED(desk.run({"-o", "y.png", "x.out"}), 0);
        QCOMPARE(sizeOfPng(bytesOf(desk.path("y.png"))), QSize(464, 24 + 1300 * 24 + 24));

        const Desk longer("=o\n" + line.repeated(1301) + "=o\n");
        const Run run = longer.run({"-o", "y.png", "x.out"});
        VERIFY_TROUBLE(run);
        QVERIFY2(run.standardError.contains("1300") && run.standardError.contains(".pdf"),
                 run.standardError.constData());
        QCOMPARE(outputFiles(longer), QStringList());
        VERIFY_ENDED(longer.run({"-o", "y.pdf", "x.out"}), 0);
        QVERIFY(bytesOf(longer.path("y.pdf")).startsWith("%PDF-"));
    }

    void withoutAFontThereIsNoPicture()
    {
        const Desk desk(documentOf("Ciao"));
        const QTemporaryDir fonts;
        writeFile(fonts.filePath("none.conf"), "<fontconfig></fontconfig>\n");
        const QStringList noFonts = {"FONTCONFIG_FILE=" + fonts.filePath("none.conf"),
                                     "FONTCONFIG_PATH", "QT_QPA_FONTDIR"};
        for (const QString &output : QStringList{"y.png", "y.pdf"}) {
            const Run run = desk.run({"-o", output, "x.out"}, noFonts);
            VERIFY_TROUBLE(run);
            QVERIFY2(run.standardError.contains("font"), run.standardError.constData());
            QCOMPARE(outputFiles(desk), QStringList());
        }
        const Run paper = desk.run({"--columns=4", "x.out"}, noFonts);
        VERIFY_ENDED(paper, 0);
        QCOMPARE(QString::fromUtf8(paper.standardOutput), "┌────┐\n│Ciao│\n└────┘\n");
    }

    void help()
    {
        for (const QString &option : QStringList{"--help", "-h", "--help-all"}) {
            const Run run = preview({option, "no stream is read"});
            VERIFY_ENDED(run, 0);
            QCOMPARE(linesOf(run.standardError), QStringList());
            const QString text = QString::fromUtf8(run.standardOutput);
            QVERIFY2(text.startsWith("Usage: "), qPrintable(text));
            for (const QString &name : QStringList{"--columns", "-o, --output", "--json", "--list",
                                                   "-q, --quiet", "--help", "--version", "STREAM"})
                QVERIFY2(text.contains(name), qPrintable(text));
        }
    }

    void version()
    {
        for (const QString &option : QStringList{"--version", "-v"}) {
            const Run run = preview({option});
            VERIFY_ENDED(run, 0);
            QCOMPARE(linesOf(run.standardError), QStringList());
            QCOMPARE(linesOf(run.standardOutput),
                     QStringList("korvel-preview " KORVEL_VERSION "\\n"));
        }
    }

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
        VERIFY_ENDED(found, 1);
        QVERIFY(text.contains("\n    " + found.standardError));

        QList<QJsonObject> written;
        for (const QByteArray &line : preview({"--json", stream}).standardOutput.split('\n'))
            written.append(QJsonDocument::fromJson(line).object());
        int objects = 0;
        for (const QByteArray &line : text.split('\n')) {
            if (!line.startsWith("    {"))
                continue;
            ++objects;
            QVERIFY2(written.contains(QJsonDocument::fromJson(line).object()), line.constData());
            QVERIFY2(!QJsonDocument::fromJson(line).object().isEmpty(), line.constData());
        }
        QCOMPARE(objects, 1);
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
        QCOMPARE(names.size(), 7);
    }

    /// Each finding that the page explains can be met, and each that is met is explained.
    void pageExplainsTheFindings()
    {
        Names met;
        for (const QByteArray &stream : brokenStreams) {
            const Run run = preview({"-"}, {{}, {}, stream});
            VERIFY_ENDED(run, 1);
            for (const QString &line : linesOf(run.standardError)) {
                const auto finding =
                    QRegularExpression("^-:\\d+: byte \\d+: (.*)\\\\n$").match(line);
                QVERIFY2(finding.hasMatch(), qPrintable(line));
                met.insert(shapeOf(finding.captured(1)));
            }
        }
        Names explained;
        for (const QString &finding : firstCells("What can be wrong"))
            explained.insert(shapeOf(finding));
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
                    if (key != "command" && key != "offset" && key != "line")
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

private:
    static void addExamples()
    {
        QTest::addColumn<int>("unused");
        const QStringList files = QDir(examples).entryList({"*.out"}, QDir::Files);
        QCOMPARE(files.size(), 13);
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << 0;
    }
};

QTEST_GUILESS_MAIN(TestPreviewProgram)
#include "tst_previewprogram.moc"
