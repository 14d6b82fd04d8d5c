// The reference pages: nothing is missing, and their examples are real.
#include "companions/check/vocabulary.h"
#include "support/names.h"
#include "support/renderer.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace tst_documentation {

const QString top = KORVEL_SOURCE_DIR "/";

QString textOf(const QString &path) { return QString::fromUtf8(bytesOf(top + path)); }

// What the pages say.

struct Block
{
    QString heading;  // of the section that it stands in
    QString language; // "xml", "text", "stream", "conf" or none
    QString text;
    QString stream; // the last file with the ending .out that the page named before
    int line = 0;
};

struct Page
{
    QList<QStringList> rows; // of all tables, without their titles
    QList<Block> blocks;
};

QStringList cellsOf(const QString &line)
{
    QStringList cells = line.split('|');
    cells.removeFirst();
    cells.removeLast();
    for (QString &cell : cells)
        cell = cell.trimmed();
    return cells;
}

Page read(const QString &path)
{
    static const QRegularExpression streamLink(R"re(\]\((?:\.\./)?(\S+\.out)\))re");
    Page page;
    QString heading;
    QString stream;
    bool inTable = false;
    bool inBlock = false;
    int number = 0;
    for (const QString &line : textOf(path).split('\n')) {
        ++number;
        if (line.startsWith("```")) {
            inBlock = !inBlock;
            if (inBlock)
                page.blocks.append({heading, line.mid(3), {}, stream, number});
        } else if (inBlock) {
            page.blocks.last().text += line + '\n';
        } else if (line.startsWith('|')) {
            if (inTable && !line.startsWith("|---"))
                page.rows.append(cellsOf(line));
        } else if (line.startsWith('#')) {
            heading = line;
        } else if (const auto link = streamLink.match(line); link.hasMatch()) {
            stream = link.captured(1);
        }
        inTable = !inBlock && line.startsWith('|');
    }
    return page;
}

/// What a text says in backticks.
Names quotedIn(const QString &text) { return matches(text, "`([^`]+)`"); }

const QString jobFormat = "docs/job-format.md";
const QString settingsPage = "docs/settings.md";
const QString oddities = "docs/oddities.md";

QStringList pages()
{
    QStringList paths = {"README.md"};
    for (const QString &file : QDir(top + "docs").entryList({"*.md"}, QDir::Files, QDir::Name))
        paths.append("docs/" + file);
    return paths;
}

// Examples: a job and what the renderer makes of it.

/// A job as a page shows it: whole, or the elements after the method that its section is about.
QString wholeJob(const Block &block)
{
    if (block.text.contains("<method "))
        return block.text;
    const QStringList methods = sorted(quotedIn(block.heading));
    return "<job><method name=\"" + methods.value(0) + "\"/>\n" + block.text + "</job>\n";
}

/// The stream of a job with the settings of the sample shop.
void render(const QString &job, QByteArray *stream)
{
    const TemporaryHome home(bytesOf(top + "examples/korvel.conf"));
    QFile file(home.path() + "/job.xml");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(job.toUtf8());
    file.close();
    const Run run = runRenderer({"job.xml", "stream.out"}, home.path());
    VERIFY_SOUND(run);
    QCOMPARE(linesOf(run.standardOutput), QStringList());
    *stream = bytesOf(home.path() + "/stream.out");
}

QString withoutBlanksAtItsEnd(QString line)
{
    while (line.endsWith(' '))
        line.chop(1);
    return line;
}

/// The text lines of a stream, without framing and without blanks at their ends.
QStringList contentOf(const QByteArray &stream)
{
    const QString opener = "=\"/(";
    const QString closer = " )\\n";
    QStringList content;
    for (const QString &line : linesOf(stream))
        if (line.startsWith(opener) && line.endsWith(closer))
            content.append(
                withoutBlanksAtItsEnd(line.sliced(opener.size()).chopped(closer.size())));
    return content;
}

/// The lines of a block, with what its language leaves out: "stream" has remarks behind the line
/// ends, other languages have no line ends.
QStringList expectedOf(const Block &block)
{
    QStringList lines = block.text.split('\n');
    lines.removeLast();
    for (QString &line : lines) {
        if (block.language == "stream")
            line.truncate(line.indexOf("\\n") + 2);
        else if (block.language.isEmpty())
            line += "\\n";
    }
    return lines;
}

class TestDocumentation : public QObject
{
    Q_OBJECT

private slots:
    /// Its section has its title and the table of its elements, if it has any.
    void everyMethodHasASection_data() { addMethods(); }

    void everyMethodHasASection()
    {
        const vocabulary::Method *method = vocabulary::findMethod(QString(QTest::currentDataTag()));
        QVERIFY(method);
        const QString title =
            QString(method->title.front()).toUpper() + QString(method->title).mid(1);
        const QString heading = "\n## " + title + ": `" + method->name + "`\n";
        QVERIFY2(textOf(jobFormat).count(heading) == 1, qPrintable(heading));
        bool hasElements = false; // the summary order has none
        for (const vocabulary::Element &row : vocabulary::elements())
            hasElements =
                hasElements
                || ((row.documents & method->document) != 0 && !vocabulary::isShared(row));
        const QString section = textOf(jobFormat).section(heading, 1).section("\n## ", 0, 0);
        QCOMPARE(section.count("<!-- table: elements " + method->name + " -->"),
                 hasElements ? 1 : 0);
    }

    /// What stands between the marks of a table is written by scripts/lint --update.
    void otherTables_data()
    {
        QTest::addColumn<QString>("page");
        QTest::newRow("methods") << jobFormat;
        QTest::newRow("elements shared") << jobFormat;
        QTest::newRow("attributes orderinfo") << jobFormat;
        QTest::newRow("attributes customer") << jobFormat;
        QTest::newRow("groups") << settingsPage;
        QTest::newRow("settings") << settingsPage;
        QTest::newRow("language settings") << settingsPage;
        QTest::newRow("codes") << QString("docs/checks.md");
    }

    void otherTables()
    {
        QFETCH(QString, page);
        QCOMPARE(textOf(page).count(QString("\n<!-- table: ") + QTest::currentDataTag() + " -->\n"),
                 1);
    }

    void everyMethodHasAnExample_data() { addMethods(); }

    void everyMethodHasAnExample()
    {
        bool found = false;
        for (const Block &block : read(jobFormat).blocks)
            found =
                found
                || (block.language == "xml"
                    && wholeJob(block).contains('"' + QByteArray(QTest::currentDataTag()) + '"'));
        QVERIFY(found);
    }

    /// A job in an xml block is followed by what the renderer makes of it: the content of the text
    /// lines ("text"), the stream with its line ends spelt out ("stream") or without them.
    void example_data()
    {
        QTest::addColumn<QString>("job");
        QTest::addColumn<QString>("streamFile");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("expected");

        for (const QString &path : pages()) {
            const QList<Block> blocks = read(path).blocks;
            for (qsizetype i = 0; i < blocks.size(); ++i) {
                const bool isResult = i > 0 && blocks[i - 1].language == "xml";
                if (!isResult && blocks[i].language != "stream")
                    continue;
                QTest::addRow("%s:%d", qPrintable(path), blocks[i].line)
                    << (isResult ? wholeJob(blocks[i - 1]) : QString()) << blocks[i].stream
                    << blocks[i].language << expectedOf(blocks[i]);
            }
        }
    }

    void example()
    {
        QFETCH(QString, job);
        QFETCH(QString, streamFile);
        QFETCH(QString, language);
        QFETCH(QStringList, expected);
        QByteArray stream;
        if (job.isEmpty())
            stream = bytesOf(top + streamFile);
        else
            render(job, &stream);
        QVERIFY(!stream.isEmpty());
        QCOMPARE(language == "text" ? contentOf(stream) : linesOf(stream), expected);
    }

    void jobsHaveAResult_data() { addPages(); }

    void jobsHaveAResult()
    {
        QString before;
        for (const Block &block : read(QTest::currentDataTag()).blocks) {
            QVERIFY2(
                before != "xml" || block.language != "xml",
                qPrintable(QString("a job without its result before line %1").arg(block.line)));
            before = block.language;
        }
        QVERIFY(before != "xml");
    }

    void settingsExampleIsRead()
    {
        int count = 0;
        for (const Block &block : read(settingsPage).blocks) {
            if (block.language != "conf")
                continue;
            ++count;
            const TemporaryHome home(block.text.toUtf8());
            const KVConfiguration settings;
            for (const auto &match :
                 QRegularExpression("(\\w+) = \"([^\"]+)\"").globalMatch(block.text)) {
                const QString group = match.captured(1) == "basedir" || match.captured(1) == "file"
                                          ? "language"
                                          : "receiptdoc";
                QCOMPARE(settings.getStrValue("korvel." + group + '.' + match.captured(1)),
                         match.captured(2));
            }
        }
        QCOMPARE(count, 1);
    }

    /// An oddity stands in a file that exists and is held by tests that exist.
    void oddity_data()
    {
        QTest::addColumn<QString>("where");
        QTest::addColumn<QString>("tests");
        int count = 0;
        for (const QStringList &row : read(oddities).rows) {
            QCOMPARE(row.size(), 3);
            QTest::addRow("%d: %s", ++count, qPrintable(row[0])) << row[1] << row[2];
        }
        QVERIFY(count > 80);
    }

    void oddity()
    {
        QFETCH(QString, where);
        QFETCH(QString, tests);
        QVERIFY(!quotedIn(where).isEmpty());
        for (const QString &file : quotedIn(where))
            QVERIFY2(QFileInfo(top + file).isFile(), qPrintable(file));

        QVERIFY(!quotedIn(tests).isEmpty());
        for (const QString &test : quotedIn(tests)) {
            if (!test.startsWith("tst_")) {
                QVERIFY2(QFile::exists(top + "tests/golden/cases/" + test + "/job.xml"),
                         qPrintable(test));
                continue;
            }
            const QString file = "tests/unit/" + test.section(": ", 0, 0) + ".cpp";
            const QString name = test.section(": ", 1);
            QVERIFY2(QFileInfo(top + file).isFile(), qPrintable(file));
            QVERIFY2(holds(textOf(file), name), qPrintable(test));
        }
    }

    void oddityNeedsATestThatExists()
    {
        const QString test = textOf("tests/unit/tst_orders.cpp");
        QVERIFY(holds(test, "variantMark"));
        QVERIFY(holds(test, "an item in the normal size"));
        QVERIFY(!holds(test, "an item in the normal"));
        QVERIFY(!holds(test, "compare"));
        QVERIFY(!holds(test, ""));
    }

    void links_data() { addPages(); }

    void links()
    {
        const QString page = QTest::currentDataTag();
        const QDir folder = QFileInfo(top + page).dir();
        for (const QString &link : matches(textOf(page), R"re(\]\(([^)\s]+)\))re")) {
            if (link.contains("://") || link.startsWith('#'))
                continue;
            QVERIFY2(QFileInfo::exists(folder.filePath(link.section('#', 0, 0))), qPrintable(link));
        }
    }

private:
    /// Whether a test has a data row or a function of that name.
    static bool holds(const QString &test, const QString &name)
    {
        if (name.isEmpty())
            return false;
        return test.contains('"' + name + '"') || test.contains("\n    void " + name + "()");
    }

    static void addMethods()
    {
        QTest::addColumn<int>("unused");
        for (const vocabulary::Method &method : vocabulary::methods())
            QTest::newRow(method.name.data()) << 0;
    }

    static void addPages()
    {
        QTest::addColumn<int>("unused");
        for (const QString &page : pages())
            QTest::newRow(qPrintable(page)) << 0;
    }
};

KORVEL_TEST(TestDocumentation)

} // namespace tst_documentation

#include "tst_documentation.moc"
