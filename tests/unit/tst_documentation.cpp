// The reference pages: they name what the code reads and nothing else, they say what the vocabulary
// says, and their examples are real.
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

/// The text of all C++ files of a folder, one after the other.
QString sourcesOf(const QString &folder)
{
    QString text;
    for (const QString &file : QDir(top + folder).entryList({"*.cpp"}, QDir::Files, QDir::Name))
        text += textOf(folder + '/' + file);
    return text;
}

/// What the first group of a pattern matches, everywhere in a text.
Names matches(const QString &text, const char *pattern)
{
    Names names;
    for (const auto &match : QRegularExpression(pattern).globalMatch(text))
        names.insert(match.captured(1));
    return names;
}

/// Pairs of what the two groups of a pattern match.
QMap<QString, QString> pairs(const QString &text, const char *pattern)
{
    QMap<QString, QString> result;
    for (const auto &match : QRegularExpression(pattern).globalMatch(text))
        result.insert(match.captured(1), match.captured(2));
    return result;
}

Names keysOf(const QMap<QString, QString> &map) { return {map.keyBegin(), map.keyEnd()}; }

Names valuesOf(const QMap<QString, QString> &map) { return {map.begin(), map.end()}; }

QStringList sorted(const Names &names)
{
    QStringList list = names.values();
    list.sort();
    return list;
}

// What the code reads.

Names elementsIn(const QString &code) { return matches(code, R"re(qName [!=]= "(\w+)"_L1)re"); }

/// Attributes asked for by name, those of the order information's table and of the tax block's.
Names attributesIn(const QString &code)
{
    return matches(code, R"re(\bvalue\("(\w+)"_L1\))re")
           + matches(code, R"re(QT_TRANSLATE_NOOP\("\w+", "[^"]*"\),\s*"(\w+)"_L1)re")
           + matches(code, R"re(\brow\(tr\("\w+"\), "(\w+)"_L1\))re");
}

/// The document type of each method.
QMap<QString, QString> methodTypes()
{
    return pairs(textOf("printer/dispatch.cpp"), R"re(\{"(print\w+)"_L1,\s*"(\w+)"_L1,)re");
}

/// The prefix of each document type.
QMap<QString, QString> typePrefixes()
{
    return pairs(textOf("printer/layout.cpp"), R"re(\{"(\w+)"_L1,\s*"(korvel\.\w+\.)"_L1)re");
}

Names settingsInTheCode()
{
    return matches(textOf("printer/layout.cpp"), R"re(\{"(\w+)"_L1,\s*&Layout::\w+)re")
           + matches(textOf("printer/layout.cpp"), R"re(\btext\("(\w+)"_L1\))re")
           + matches(sourcesOf("printer"), R"re(documentPrefix \+ "(\w+)"_L1)re")
           + matches(sourcesOf("app"), R"re(u"(korvel\.[\w.]+)"_s)re");
}

/// The bodies of the driver's operations by name; those of one name together.
QMap<QString, QString> operations()
{
    static const QRegularExpression body(
        R"re(^[\w ]+\bPrinterDriver::(\w+)\((?:[^{]*\{[^\n]*\}$|.*?^\}$))re",
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    QMap<QString, QString> bodies;
    for (const auto &match : body.globalMatch(sourcesOf("printer")))
        bodies[match.captured(1)] += match.captured(0) + '\n';
    return bodies;
}

/// Names of the operations that a piece of code calls, and of those that these call, but for the
/// shared elements and the customer block, which have tables of their own.
QStringList calledBy(const QString &code)
{
    const QMap<QString, QString> bodies = operations();
    QStringList names;
    QString rest = code;
    while (!rest.isEmpty()) {
        QString next;
        for (const auto &[name, body] : bodies.toStdMap()) {
            if (name != "printSections" && name != "printCustomerHeader" && !names.contains(name)
                && rest.contains(QRegularExpression("(?<!:)\\b" + name + "\\("))) {
                names.append(name);
                next += body;
            }
        }
        rest = next;
    }
    return names;
}

/// A piece of code and all that it calls.
QString wholeCodeOf(QString code)
{
    for (const QString &name : calledBy(code))
        code += operations().value(name);
    return code;
}

/// The elements of a document and the attributes that it reads of each, but for those of shared
/// elements and of the customer: "total: price".
QStringList elementsOfDocument(const QString &method)
{
    static const QRegularExpression branch(R"re(qName == "(\w+)"_L1(.*?)(?=qName ==|^\}$))re",
                                           QRegularExpression::MultilineOption
                                               | QRegularExpression::DotMatchesEverythingOption);
    const QMap<QString, QString> bodies = operations();
    const Names shared = elementsIn(bodies.value("printSections"));
    QStringList elements;
    for (const QString &name : QStringList(method) + calledBy(bodies.value(method))) {
        for (const auto &match : branch.globalMatch(bodies.value(name))) {
            const QString element = match.captured(1);
            if (shared.contains(element) || elements.contains(element + ':'))
                continue;
            Names attributes;
            if (element != "customer")
                attributes = attributesIn(wholeCodeOf(match.captured(2)));
            elements.append((element + ": " + sorted(attributes).join(' ')).trimmed());
        }
    }
    elements.sort();
    return elements;
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

/// What a column of these tables says in backticks: of those whose first column is called so.
Names quotedIn(const QList<Table> &tables, const QString &firstColumn, const QString &column)
{
    Names names;
    for (const Table &table : tables) {
        const qsizetype i = table.columns.indexOf(column);
        if (table.columns.first() != firstColumn || i < 0)
            continue;
        for (const QStringList &row : table.rows)
            names += quotedIn(row.value(i));
    }
    return names;
}

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

Q_DECLARE_METATYPE(Names)

class TestDocumentation : public QObject
{
    Q_OBJECT

private slots:
    /// A pattern that no longer fits the code would find nothing and nothing would be missing.
    void extractionFindsTheNames_data()
    {
        QTest::addColumn<Names>("names");
        QTest::addColumn<int>("count");

        QTest::newRow("elements") << elementsIn(sourcesOf("printer")) << 26;
        QTest::newRow("attributes") << attributesIn(sourcesOf("printer")) << 38;
        QTest::newRow("methods") << keysOf(methodTypes()) << 13;
        QTest::newRow("document types") << keysOf(typePrefixes()) << 8;
        QTest::newRow("settings") << settingsInTheCode() << 27;
        QTest::newRow("attributes of the tax block")
            << attributesIn(operations().value("printTaxBlock")) << 4;
        QTest::newRow("elements of the report")
            << elementsIn(operations().value("printReport")) << 6;
    }

    void extractionFindsTheNames()
    {
        QFETCH(Names, names);
        QFETCH(int, count);
        QVERIFY2(names.size() == count, qPrintable(sorted(names).join(' ')));
    }

    /// A name that the code reads in a way that the patterns do not know.
    void everyNameInTheCodeIsOneOfThem()
    {
        const QString code = sourcesOf("printer");
        Names known = elementsIn(code) + attributesIn(code) + settingsInTheCode();
        known += keysOf(methodTypes()) + keysOf(typePrefixes());
        known += {"true", "qdpt", "qxdpt", "qxdtDoubleLine", "qxd", "qd"};
        QCOMPARE(sorted(matches(code, R"re("([A-Za-z]\w*)"_L1)re") - known), QStringList());
    }

    void pagesAndCodeNameTheSame_data()
    {
        QTest::addColumn<Names>("onThePage");
        QTest::addColumn<Names>("inTheCode");
        const QString code = sourcesOf("printer");
        const QList<Table> jobTables = read(jobFormat).tables;
        const QList<Table> settingTables = read(settingsPage).tables;

        QTest::newRow("elements") << quotedIn(jobTables, "element", "element") + Names{"method"}
                                  << elementsIn(code);
        QTest::newRow("attributes") << quotedIn(jobTables, "element", "attributes")
                                           + quotedIn(jobTables, "attribute", "attribute")
                                    << attributesIn(code);
        QTest::newRow("methods") << quotedIn(jobTables, "method", "method")
                                 << keysOf(methodTypes());
        QTest::newRow("settings") << quotedIn(settingTables, "key", "key") << settingsInTheCode();
        QTest::newRow("prefixes") << quotedIn(settingTables, "group", "prefix of its keys")
                                  << valuesOf(typePrefixes());
        QTest::newRow("shared elements")
            << sharedElements(jobTables) << elementsIn(operations().value("printSections"));
        QTest::newRow("customer") << quotedIn(tablesUnder("### Customer"), "attribute", "attribute")
                                  << attributesIn(operations().value("printCustomerHeader"));
    }

    void pagesAndCodeNameTheSame()
    {
        QFETCH(Names, onThePage);
        QFETCH(Names, inTheCode);
        QVERIFY2((inTheCode - onThePage).isEmpty(),
                 qPrintable("not on the page: " + sorted(inTheCode - onThePage).join(' ')));
        QVERIFY2((onThePage - inTheCode).isEmpty(),
                 qPrintable("not in the code: " + sorted(onThePage - inTheCode).join(' ')));
    }

    void switchesAreSettings()
    {
        const QList<Table> tables = read(jobFormat).tables;
        const Names switches = quotedIn(tables, "element", "switched on by")
                               + quotedIn(tables, "attribute", "switched on by");
        QCOMPARE(switches.size(), 15);
        QCOMPARE(sorted(switches - settingsInTheCode()), QStringList());
    }

    void documentsReadWhatTheirTablesSay_data() { addMethods(); }

    void documentsReadWhatTheirTablesSay()
    {
        const QString method = QTest::currentDataTag();
        QStringList onThePage;
        for (const Table &table : tablesAbout(method))
            for (const QStringList &row : table.rows)
                onThePage.append(
                    unquoted(row[0] + ": " + sorted(quotedIn(row[1])).join(' ')).trimmed());
        onThePage.sort();
        QCOMPARE(onThePage, elementsOfDocument(method));
    }

    void switchesBelongToTheirLines()
    {
        const QString code = textOf("printer/headers.cpp");
        const auto lines = pairs(
            code,
            "&Layout::(\\w+),\\s*QT_TRANSLATE_NOOP\\(\"\\w+\", \"[^\"]*\"\\),\\s*\"(\\w+)\"_L1");
        const auto more = pairs(code, "if \\(layout\\.(\\w+)\\)\\s+\\w+\\((?:tr\\(\"[^\"]*\"\\), "
                                      ")?attributes\\.value\\(\"(\\w+)\"_L1");
        QStringList inTheCode = {"printCustomer name"};
        for (const auto &map : {lines, more})
            for (const auto &[setting, attribute] : map.toStdMap())
                inTheCode.append(setting + ' ' + attribute);
        inTheCode.sort();

        QStringList onThePage;
        for (const Table &table : read(jobFormat).tables)
            for (const QStringList &row : table.rows)
                if (table.columns.first() == "attribute")
                    onThePage.append(unquoted(row[1] + ' ' + row[0]));
        onThePage.sort();
        QCOMPARE(onThePage, inTheCode);
    }

    /// Its group of settings on both pages, and what opens and closes its section.
    void methodsAndGroups_data() { addMethods(); }

    void methodsAndGroups()
    {
        const QString method = QTest::currentDataTag();
        const QString prefix = typePrefixes().value(methodTypes().value(method));
        QVERIFY(!prefix.isEmpty());
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
        const auto settings = vocabulary::settings();
        QCOMPARE(rows.size(), settings.size());
        for (qsizetype i = 0; i < rows.size(); ++i) {
            const QString key = settings[i].key;
            QCOMPARE(rows[i][0], inBackticks(key));
            QCOMPARE(key + ": " + rows[i][1], key + ": " + settings[i].unit);
            QVERIFY2(kindOf(rows[i][1]) == settings[i].kind, qPrintable(key));
            QVERIFY2((rows[i][2] == "off") == (settings[i].kind == vocabulary::Kind::Switch),
                     qPrintable(key));
            QVERIFY2(documentsIn(rows[i][3]) == settings[i].documents, qPrintable(key));
            QCOMPARE(key + ": " + rows[i][4], key + ": " + settings[i].meaning);
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

    static QList<Table> tablesUnder(const QString &heading)
    {
        QList<Table> tables;
        for (const Table &table : read(jobFormat).tables)
            if (table.heading == heading)
                tables.append(table);
        return tables;
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

    static Names sharedElements(const QList<Table> &tables)
    {
        Names names;
        for (const Table &table : tables)
            if (table.columns.contains("switched on by"))
                names += quotedIn({table}, "element", "element");
        return names;
    }

    static void addMethods()
    {
        QTest::addColumn<int>("unused");
        const QStringList methods = methodTypes().keys();
        QCOMPARE(methods.size(), 13);
        for (const QString &method : methods)
            QTest::newRow(qPrintable(method)) << 0;
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
