// The reference pages: they say what the vocabulary says, and their examples are real.
#include "companions/check/vocabulary.h"
#include "support/renderer.h"
#include "support/temporaryhome.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

const QString top = KORVEL_SOURCE_DIR "/";

using Names = QSet<QString>;

QString textOf(const QString &path) { return QString::fromUtf8(bytesOf(top + path)); }

/// What the first group of a pattern matches, everywhere in a text.
Names matches(const QString &text, const char *pattern)
{
    Names names;
    for (const auto &match : QRegularExpression(pattern).globalMatch(text))
        names.insert(match.captured(1));
    return names;
}

QStringList sorted(const Names &names)
{
    QStringList list = names.values();
    list.sort();
    return list;
}

// What the pages say.

struct Table
{
    QString heading; // of the section that it stands in
    QStringList columns;
    QList<QStringList> rows;
};

struct Block
{
    QString heading;
    QString language; // "xml", "text", "stream", "conf" or none
    QString text;
    QString stream; // the last file with the ending .out that the page named before
    int line = 0;
};

struct Page
{
    QList<Table> tables;
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
            if (!inTable)
                page.tables.append({heading, cellsOf(line), {}});
            else if (!line.startsWith("|---"))
                page.tables.last().rows.append(cellsOf(line));
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

QString unquoted(QString text) { return text.remove('`'); }

const QString jobFormat = "docs/job-format.md";
const QString settingsPage = "docs/settings.md";
const QString oddities = "docs/oddities.md";

/// The tables of the section of job-format.md that is about a method.
QList<Table> tablesAbout(const QString &method)
{
    QList<Table> tables;
    for (const Table &table : read(jobFormat).tables)
        if (table.heading.contains('`' + method + '`'))
            tables.append(table);
    return tables;
}

QStringList pages()
{
    QStringList paths = {"README.md"};
    for (const QString &file : QDir(top + "docs").entryList({"*.md"}, QDir::Files, QDir::Name))
        paths.append("docs/" + file);
    return paths;
}

// What the vocabulary says, in the form of the pages.

/// The documents that a page speaks of in a word, beside those that go by their title.
struct Phrase
{
    const char *words;
    vocabulary::Documents documents;
};

constexpr vocabulary::Documents fiscalReceipts =
    vocabulary::FiscalReceipt | vocabulary::SummaryFiscalReceipt;
constexpr vocabulary::Documents receipts = vocabulary::Receipt | vocabulary::SummaryReceipt;
constexpr vocabulary::Documents invoices = vocabulary::Invoice | vocabulary::SummaryInvoice;
constexpr vocabulary::Documents withCustomer = vocabulary::FullOrder | vocabulary::Receipt
                                               | invoices | vocabulary::KitchenOrder
                                               | vocabulary::DeliveryNote;
constexpr vocabulary::Documents shared = withCustomer | receipts | vocabulary::PeriodReport
                                         | vocabulary::SoldItems | vocabulary::Statement;

// All documents read some settings that none prints by.
// clang-format off
const Phrase phrases[] = {
    {"all",                            0                        },
    {"shared",                         shared                   },
    {"every document with text lines", shared                   },
    {"with a customer",                withCustomer             },
    {"receipts",                       receipts                 },
    {"invoices",                       invoices                 },
    {"fiscal receipts",                fiscalReceipts           },
    {"fiscal receipt alone",           vocabulary::FiscalReceipt},
    {"statement",                      vocabulary::Statement    },
};
// clang-format on

/// The documents that a cell lists, parted by commas; what stands in parentheses is left out. No
/// setting has all the bits that a cell gives with a word that is not understood.
vocabulary::Documents documentsIn(const QString &cell)
{
    static const QRegularExpression inParentheses(" \\([^)]*\\)");
    vocabulary::Documents documents = 0;
    for (const QString &words : QString(cell).remove(inParentheses).split(", ")) {
        bool found = false;
        for (const Phrase &phrase : phrases) {
            if (words == phrase.words) {
                documents |= phrase.documents;
                found = true;
            }
        }
        for (const vocabulary::Method &method : vocabulary::methods()) {
            if (words == method.title) {
                documents |= method.document;
                found = true;
            }
        }
        if (!found)
            return ~0U;
    }
    return documents;
}

QString inBackticks(const QString &name) { return '`' + name + '`'; }

/// The attributes of an element that a document reads.
QList<vocabulary::Attribute> readAttributes(const vocabulary::Element &element,
                                            vocabulary::Document document)
{
    auto rows = vocabulary::attributesOf(element.name, document);
    rows.removeIf([](const auto &row) { return row.value == vocabulary::Value::Unread; });
    return rows;
}

/// Two elements have a table of their own for their attributes.
QString attributesCell(const vocabulary::Element &element, vocabulary::Document document)
{
    if (element.name == "orderinfo")
        return "the table below";
    if (element.name == "customer")
        return "as above";
    QStringList names;
    for (const vocabulary::Attribute &row : readAttributes(element, document))
        names.append(inBackticks(row.name));
    if (names.isEmpty())
        return element.anyAttribute ? "every attribute, whatever its name" : "none";
    if (element.anyAttribute)
        names.append("then three attributes of any name for each document");
    return names.join(", ");
}

/// What switches an element on, or its lines one by one.
QString switchCell(const vocabulary::Element &element)
{
    if (!element.setting.isEmpty())
        return inBackticks(element.setting);
    const auto rows = readAttributes(element, vocabulary::Receipt);
    const bool eachByItsOwn =
        !rows.isEmpty() && std::all_of(rows.begin(), rows.end(), [](const auto &row) {
            return !row.setting.isEmpty();
        });
    return eachByItsOwn ? "each line by its own" : "always";
}

/// The kind of a setting by its unit.
vocabulary::Kind kindOf(const QString &unit)
{
    if (unit == "switch")
        return vocabulary::Kind::Switch;
    return unit == "text" ? vocabulary::Kind::Text : vocabulary::Kind::Number;
}

/// Rows of cells as lines: what a failing test shows.
QStringList asLines(const QList<QStringList> &rows)
{
    QStringList lines;
    for (const QStringList &cells : rows)
        lines.append(cells.join(" | "));
    return lines;
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

} // namespace

class TestDocumentation : public QObject
{
    Q_OBJECT

private slots:
    /// Its group of settings on both pages, and what opens and closes its section.
    void methodsAndGroups_data() { addMethods(); }

    void methodsAndGroups()
    {
        const QString method = QTest::currentDataTag();
        const vocabulary::Method *known = vocabulary::findMethod(method);
        QVERIFY(known);
        const QString prefix = vocabulary::pathOf(known->group);
        bool inSettings = false;
        for (const Table &table : read(settingsPage).tables)
            for (const QStringList &row : table.rows)
                if (table.columns.first() == "group" && quotedIn(row[2]).contains(method)) {
                    QVERIFY(!inSettings);
                    inSettings = true;
                    QCOMPARE(row[0], '`' + prefix.chopped(1).section('.', 1) + '`');
                    QCOMPARE(row[1], '`' + prefix + '`');
                }
        QVERIFY(inSettings);

        for (const Table &table : read(jobFormat).tables)
            for (const QStringList &row : table.rows)
                if (table.columns.first() == "method" && row[0] == '`' + method + '`') {
                    QCOMPARE(row[2], '`' + prefix.chopped(1).section('.', 1) + '`');
                    QByteArray stream;
                    render("<job><method name=\"" + method + "\"/></job>", &stream);
                    const QString commands = linesOf(stream).join("`, `").remove("\\n");
                    QCOMPARE('`' + commands + '`', row[3] + ", " + row[4]);
                }
    }

    // The vocabulary has the rows of the pages, in their order and in their words.

    void methodsOfTheVocabulary()
    {
        const QString text = textOf(jobFormat);
        QList<QStringList> expected;
        for (const vocabulary::Method &row : vocabulary::methods()) {
            expected.append({inBackticks(row.name), row.title, inBackticks(row.group)});
            const QString title = QString(row.title.front()).toUpper() + QString(row.title).mid(1);
            const QString heading = "\n## " + title + ": " + inBackticks(row.name) + '\n';
            QVERIFY2(text.count(heading) == 1, qPrintable(heading));
        }
        QList<QStringList> rows;
        for (const QStringList &cells : rowsOf(jobFormat, "method"))
            rows.append(cells.first(3));
        QCOMPARE(asLines(rows), asLines(expected));
    }

    void groupsOfTheVocabulary()
    {
        QStringList groups;
        for (const QStringList &cells : rowsOf(settingsPage, "group")) {
            groups.append(unquoted(cells[0]));
            QCOMPARE(cells[1], inBackticks("korvel." + groups.last() + '.'));
            QCOMPARE(documentsIn(cells[2]), vocabulary::documentsOf(groups.last()));
            Names methods;
            for (const vocabulary::Method &row : vocabulary::methods())
                if (row.group == groups.last())
                    methods.insert(row.name);
            QCOMPARE(sorted(quotedIn(cells[2])), sorted(methods));
        }
        for (const vocabulary::Method &row : vocabulary::methods())
            QVERIFY2(groups.count(row.group) == 1, row.group.data());
    }

    /// The printer's name, which comes with the headers, has a row on the page alone.
    void sharedElementsOfTheVocabulary()
    {
        QList<QStringList> expected;
        for (const vocabulary::Element &row : vocabulary::elements())
            if (vocabulary::isShared(row))
                expected.append({inBackticks(row.name), attributesCell(row, vocabulary::Receipt),
                                 switchCell(row), row.meaning});
        QList<QStringList> rows = rowsOf(jobFormat, "element", "## Shared elements");
        QCOMPARE(rows.removeIf(
                     [](const QStringList &cells) { return cells.first() == "`headers`, then"; }),
                 1);
        QCOMPARE(asLines(rows), asLines(expected));
    }

    void elementsOfTheVocabulary_data() { addMethods(); }

    void elementsOfTheVocabulary()
    {
        const vocabulary::Method *method = vocabulary::findMethod(QString(QTest::currentDataTag()));
        QVERIFY(method);
        QList<QStringList> expected;
        for (const vocabulary::Element &row : vocabulary::elements())
            if ((row.documents & method->document) != 0 && !vocabulary::isShared(row))
                expected.append(
                    {inBackticks(row.name), attributesCell(row, method->document), row.meaning});
        QList<QStringList> rows;
        for (const Table &table : tablesAbout(method->name))
            rows += table.rows;
        QCOMPARE(asLines(rows), asLines(expected));
    }

    void attributesOfTheVocabulary_data()
    {
        QTest::addColumn<QString>("heading");
        QTest::addColumn<QString>("element");
        QTest::newRow("orderinfo") << "## Shared elements"
                                   << "orderinfo";
        QTest::newRow("customer") << "### Customer"
                                  << "customer";
    }

    void attributesOfTheVocabulary()
    {
        QFETCH(QString, heading);
        QFETCH(QString, element);
        const vocabulary::Element *row = vocabulary::findElement(element, vocabulary::Receipt);
        QVERIFY(row);
        QList<QStringList> expected;
        for (const vocabulary::Attribute &attribute : readAttributes(*row, vocabulary::Receipt))
            expected.append(
                {inBackticks(attribute.name),
                 inBackticks(attribute.setting.isEmpty() ? row->setting : attribute.setting)});
        QList<QStringList> rows;
        for (const QStringList &cells : rowsOf(jobFormat, "attribute", heading))
            rows.append(cells.first(2));
        QCOMPARE(asLines(rows), asLines(expected));
    }

    /// The tables of the documents have no column for switches, nor is one needed there.
    void switchesOfTheVocabulary()
    {
        for (const vocabulary::Element &row : vocabulary::elements())
            QVERIFY2(vocabulary::isShared(row) || row.setting.isEmpty() || row.name == "customer",
                     row.name.data());
        for (const vocabulary::Attribute &row : vocabulary::attributes())
            QVERIFY2(row.setting.isEmpty() || row.element == "orderinfo"
                         || row.element == "customer",
                     row.name.data());
    }

    void settingsOfTheVocabulary()
    {
        const QList<QStringList> rows = rowsOf(settingsPage, "key", "## Keys of a document");
        QCOMPARE(rows.size(), vocabulary::settings().size());
        auto cells = rows.begin();
        for (const vocabulary::Setting &setting : vocabulary::settings()) {
            const QString key = setting.key;
            const QStringList row = *cells++;
            QCOMPARE(row[0], inBackticks(key));
            QCOMPARE(key + ": " + row[1], key + ": " + setting.unit);
            QVERIFY2(kindOf(row[1]) == setting.kind, qPrintable(key));
            QVERIFY2((row[2] == "off") == (setting.kind == vocabulary::Kind::Switch),
                     qPrintable(key));
            QVERIFY2(documentsIn(row[3]) == setting.documents, qPrintable(key));
            QCOMPARE(key + ": " + row[4], key + ": " + setting.meaning);
        }
    }

    void languageSettingsOfTheVocabulary()
    {
        QList<QStringList> expected;
        for (const vocabulary::LanguageSetting &row : vocabulary::languageSettings())
            expected.append({inBackticks(QString("korvel.language.") + row.key), row.meaning});
        QList<QStringList> rows;
        for (const QStringList &cells : rowsOf(settingsPage, "key", "## Language"))
            rows.append({cells.first(), cells.last()});
        QCOMPARE(asLines(rows), asLines(expected));
    }

    /// A table of a kind that is compared above, under a heading that is not looked at there.
    void noOtherTableHasRowsOfTheVocabulary()
    {
        const auto count = [](const QString &path, const QString &firstColumn) {
            qsizetype tables = 0;
            for (const Table &table : read(path).tables)
                tables += table.columns.first() == firstColumn ? 1 : 0;
            return tables;
        };
        QCOMPARE(count(jobFormat, "method"), 1);
        QCOMPARE(count(jobFormat, "element"), 13); // the shared ones, all documents but one
        QCOMPARE(count(jobFormat, "attribute"), 2);
        QCOMPARE(count(settingsPage, "group"), 1);
        QCOMPARE(count(settingsPage, "key"), 2);
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
        for (const Table &table : read(oddities).tables)
            for (const QStringList &row : table.rows) {
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
        return test.contains('"' + name + '"')
               || test.contains(
                   QRegularExpression("^    void " + QRegularExpression::escape(name) + "\\(\\)",
                                      QRegularExpression::MultilineOption));
    }

    /// The rows of the tables whose first column is called so, of those under a heading if given.
    static QList<QStringList> rowsOf(const QString &path, const QString &firstColumn,
                                     const QString &heading = {})
    {
        QList<QStringList> rows;
        for (const Table &table : read(path).tables)
            if (table.columns.first() == firstColumn
                && (heading.isEmpty() || table.heading == heading))
                rows += table.rows;
        return rows;
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

QTEST_GUILESS_MAIN(TestDocumentation)
#include "tst_documentation.moc"
