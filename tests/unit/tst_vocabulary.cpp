// The vocabulary: each row of its tables says what the engine does, and the engine knows no more.
#include "companions/check/vocabulary.h"
#include "printer/company/companyprinterdriver.h"
#include "support/bytes.h"
#include "support/capturedoutput.h"
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"

#include <QDir>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

using vocabulary::Attribute;
using vocabulary::Document;
using vocabulary::Documents;
using vocabulary::Element;
using vocabulary::Kind;
using vocabulary::Method;
using vocabulary::Setting;
using vocabulary::Value;

QStringList sorted(QStringList names)
{
    names.sort();
    names.removeDuplicates();
    return names;
}

/// A column of one of the tables.
template<typename Rows, typename Row>
QStringList column(const Rows &rows, QLatin1StringView Row::*member)
{
    QStringList cells;
    for (const Row &row : rows)
        cells.append(row.*member);
    return cells;
}

// Names to try.

QStringList namesOfTheVocabulary()
{
    return sorted(column(vocabulary::methods(), &Method::name)
                  + column(vocabulary::methods(), &Method::group)
                  + column(vocabulary::elements(), &Element::name)
                  + column(vocabulary::attributes(), &Attribute::name)
                  + column(vocabulary::settings(), &Setting::key));
}

/// All names of the vocabulary, these in other letter cases, and invented ones.
const QStringList &names()
{
    static const QStringList all = [] {
        QStringList result = {"foo", "item", "recipe", "x_method", "printNothing"};
        for (const QString &name : namesOfTheVocabulary()) {
            const QChar first = name.front();
            result += {name, name.toUpper(), name.toLower(),
                       (first.isUpper() ? first.toLower() : first.toUpper()) + name.mid(1)};
        }
        return sorted(result);
    }();
    return all;
}

/// The names for which a test holds, in one text.
template<typename Holds>
QString namesThat(Holds holds)
{
    QStringList found;
    std::copy_if(names().begin(), names().end(), std::back_inserter(found), holds);
    return found.join(' ');
}

// Settings and jobs to try them in.

using Settings = QMap<QString, QString>;

/// Columns with room between them, and every switch off.
// clang-format off
const Settings everythingOff = {
    {"quantityFieldWidth",   "4"    },
    {"priceFieldWidth",      "8"    },
    {"totalPriceFieldWidth", "9"    },
    {"paperWidth",           "50"   },
    {"paperRows",            "40"   },
    {"style",                "plain"},
    {"topMargin",            "2"    },
    {"descriptionWidth",     "20"   },
};
// clang-format on

Settings everythingOn()
{
    Settings settings = everythingOff;
    for (const Setting &row : vocabulary::settings())
        if (row.kind == Kind::Switch)
            settings.insert(row.key, "true");
    return settings;
}

/// Settings with these switches turned; an empty name is none.
Settings with(Settings settings, const QStringList &keys, const QString &value)
{
    for (const QString &key : keys)
        if (!key.isEmpty())
            settings.insert(key, value);
    return settings;
}

using Attributes = QMap<QString, QString>;

/// An attribute that has no row.
const Attributes another({std::pair(QString("z"), QString("any"))});

/// An element of a job: its attributes in the order of their names, then others.
QString tag(const QString &name, const Attributes &attributes, const Attributes &others = {})
{
    QString text = '<' + name;
    for (const Attributes &some : {attributes, others})
        for (const auto &[attribute, value] : some.toStdMap())
            text += ' ' + attribute + "=\"" + value + '"';
    return text + "/>";
}

/// The attributes of an element, all with the same value.
Attributes plainAttributes(const Element &element, Document document)
{
    Attributes attributes;
    for (const Attribute &row : vocabulary::attributesOf(element.name, document))
        attributes.insert(row.name, "5");
    return attributes;
}

/// An element, and after the printer the element that prints its name.
QString shownTag(const Element &element, const Attributes &attributes,
                 const Attributes &others = {})
{
    return tag(element.name, attributes, others) + (element.name == "printers" ? "<headers/>" : "");
}

/// A document's printer under some settings, which stand in the document's group alone. One at a
/// time: the last one made has the settings of all.
class Till
{
public:
    Till(const Method &document, const Settings &settings)
        : method(document.name)
        , home(settingsFile(documentGroup(QByteArray(document.group.data()), written(settings))))
        , path(home.path() + "/stream.out")
        , frame(linesOf(stream({})))
    {
    }

    /// What the printer gets of these elements.
    [[nodiscard]] QByteArray stream(const QString &elements) const
    {
        QFile::remove(path); // some file systems wait for the disk when a file is emptied
        {
            CompanyPrinterDriver driver(path, false);
            const QString job = "<job><method name=\"" + method + "\"/>" + elements + "</job>";
            if (!readJob(driver, job))
                qFatal("not read: %s", qPrintable(job));
        }
        return bytesOf(path);
    }

    /// The same between what opens and what closes the section.
    [[nodiscard]] QStringList lines(const QString &elements) const
    {
        const QStringList all = linesOf(stream(elements));
        return all.mid(frame.size() - 1, all.size() - frame.size());
    }

    /// What the engine asks of any printer for these elements.
    [[nodiscard]] QStringList calls(const QString &elements) const
    {
        return RecordingDriver().callsOf(method, elements);
    }

private:
    static QByteArray written(const Settings &settings)
    {
        QByteArray text;
        for (const auto &[key, value] : settings.toStdMap())
            text += key.toUtf8() + " = \"" + value.toUtf8() + "\"; ";
        return text;
    }

    QString method;
    TemporaryHome home;
    QString path;
    QStringList frame;
};

/// A text line as the printer gets it.
QString line(const QString &content) { return "=\"/(" + content + " )\\n"; }

/// All elements of a document with all their attributes, long names and short figures.
QString fullJob(Document document)
{
    static const QStringList longTexts = {"name", "description", "type"};
    QString job;
    for (const Element &row : vocabulary::elements()) {
        if ((row.documents & document) == 0)
            continue;
        auto attributes = plainAttributes(row, document);
        for (const QString &name : attributes.keys())
            if (longTexts.contains(name))
                attributes[name] = QString("abcdefghijklmnopqrstuvwxyz").repeated(3);
        job += tag(row.name, attributes, another);
    }
    return job;
}

/// Another value of a setting: the next number, or a switch turned off.
QString otherValue(const QString &value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    return isNumber ? QString::number(number + 1) : QString("false");
}

/// A value of an attribute, and a piece of a line that it makes.
struct Shown
{
    Value value;
    const char *given;
    const char *line;
};

// A number that stands for a variant's sign comes before its name, which is 5 here.
// clang-format off
const Shown shownValues[] = {
    {Value::Text,            "Zq8, Zq9", "^=\"/\\(.*Zq8, Zq9"                      },
    {Value::Amount,          "Zq8, Zq9", "^=\"/\\(.*Zq8, Zq9"                      },
    {Value::RegisteredPrice, "12.50",    "^=R5/\\$1250/\\*"                        },
    {Value::RegisteredPrice, "7,25",     "^=R5/\\$725/\\*"                         },
    {Value::RegisteredPrice, "-3",       "^=V/\\$300\\\\r"                         },
    {Value::RegisteredText,  "Zq8",      "^=R(Zq8/\\$500/\\*|5/.*/\\(Zq8\\)\\\\n$)"},
    {Value::RegisteredCount, "Zq8",      "^=R5/\\$500/\\*Zq8/\\(5\\)"              },
    {Value::VariantQuantity, "1",        " \\+ 5"                                  },
    {Value::VariantQuantity, "-1",       " - 5"                                    },
    {Value::VariantQuantity, "Zq8",      " - 5"                                    },
    {Value::VariantQuantity, "-2",       " -2 5"                                   },
    {Value::Address,         "Zq8, Zq9", "^=\"/\\( Zq8 \\)"                        },
    {Value::Address,         "Zq8, Zq9", "^=\"/\\( Zq9 \\)"                        },
};
// clang-format on

/// An attribute of a job of the sample shop, or an element without any.
struct Sample
{
    QString method, element, attribute, value;
};

QList<Sample> samples()
{
    QList<Sample> found;
    const QDir folder(KORVEL_SOURCE_DIR "/examples/jobs");
    for (const QString &file : folder.entryList({"*.xml"}, QDir::Files)) {
        QXmlStreamReader job(bytesOf(folder.filePath(file)));
        QString method;
        while (!job.atEnd()) {
            if (job.readNext() != QXmlStreamReader::StartElement)
                continue;
            const QString element = job.name().toString();
            if (element == "method")
                method = job.attributes().value("name").toString();
            if (element == "method" || element == "printjob")
                continue;
            if (job.attributes().isEmpty())
                found.append({method, element, {}, {}});
            for (const QXmlStreamAttribute &attribute : job.attributes())
                found.append(
                    {method, element, attribute.name().toString(), attribute.value().toString()});
        }
        if (job.hasError() || method.isEmpty())
            qFatal("%s is no job", qPrintable(file));
    }
    return found;
}

/// The row of a sample's attribute; null when there is none.
const Attribute *rowOf(const Sample &sample)
{
    const Method *method = vocabulary::findMethod(sample.method);
    for (const Attribute &row : vocabulary::attributes())
        if (method && row.element == sample.element && row.name == sample.attribute
            && (row.documents & method->document) != 0)
            return &row;
    return nullptr;
}

bool isRead(const Attribute &row) { return row.value != Value::Kept && row.value != Value::Unread; }

} // namespace

Q_DECLARE_METATYPE(const Method *)
Q_DECLARE_METATYPE(const Element *)
Q_DECLARE_METATYPE(const Attribute *)
Q_DECLARE_METATYPE(Sample)

class TestVocabulary : public QObject
{
    Q_OBJECT

private slots:
    void rowsFitTogether()
    {
        QStringList keys;
        Documents all = 0;
        for (const Method &row : vocabulary::methods()) {
            keys.append(row.name);
            QCOMPARE(unsigned(row.document), all + 1); // the next bit
            all |= row.document;
        }
        for (const Setting &row : vocabulary::settings()) {
            keys.append(row.key);
            QVERIFY2((row.documents & ~all) == 0, row.key.data());
        }
        const auto addRow = [&](const QString &name, Documents documents,
                                QLatin1StringView setting) {
            QVERIFY2(documents != 0 && (documents & ~all) == 0, qPrintable(name));
            for (const Method &method : vocabulary::methods())
                if ((documents & method.document) != 0)
                    keys.append(method.name + ' ' + name);
            if (setting.isEmpty())
                return;
            const Setting *row = vocabulary::findSetting(setting);
            QVERIFY2(row, qPrintable(name));
            QVERIFY2(row->kind == Kind::Switch, qPrintable(name));
            QVERIFY2((documents & ~row->documents) == 0, qPrintable(name));
        };
        for (const Element &row : vocabulary::elements())
            addRow(row.name, row.documents, row.setting);
        const QStringList elements = keys;
        for (const Attribute &row : vocabulary::attributes()) {
            addRow(row.element + ' ' + row.name, row.documents, row.setting);
            for (const Method &method : vocabulary::methods())
                if ((row.documents & method.document) != 0)
                    QVERIFY2(elements.contains(method.name + ' ' + row.element), row.name.data());
        }
        for (const QString &key : keys)
            QVERIFY2(keys.count(key) == 1, qPrintable(key));
    }

    /// The engine prints a document for these names and for no other.
    void methods()
    {
        const TemporaryHome home(QByteArray{});
        const CapturedOutput messages;
        const QString known = namesThat([](const QString &name) {
            RecordingDriver driver;
            driver.callsOf(name, {});
            return driver.wellFormed;
        });
        QCOMPARE(known, sorted(column(vocabulary::methods(), &Method::name)).join(' '));
    }

    /// Each group has a width of its own, and the document's paper is as wide as its group says.
    void group_data() { addMethods(); }

    void group()
    {
        QFETCH(const Method *, method);
        QStringList groups = column(vocabulary::methods(), &Method::group);
        groups.removeDuplicates();
        QByteArray settings;
        for (qsizetype i = 0; i < groups.size(); ++i)
            settings += documentGroup(groups[i].toUtf8(),
                                      "paperWidth = \"" + QByteArray::number(60 + i) + "\";");
        const TemporaryHome home(settingsFile(settings));
        RecordingDriver driver;
        driver.callsOf(method->name, {});
        QCOMPARE(driver.layout.paperWidth, 60 + groups.indexOf(method->group));
    }

    /// The elements for which the engine asks anything of a printer, and those that this one
    /// prints: lines of their own, or a change of what follows.
    void elements_data() { addMethods(); }

    void elements()
    {
        QFETCH(const Method *, method);
        Attributes attributes;
        for (const Attribute &row : vocabulary::attributes())
            attributes.insert(row.name, "12");
        QStringList rows;
        QStringList printingRows;
        for (const Element &row : vocabulary::elements()) {
            if ((row.documents & method->document) == 0)
                continue;
            rows.append(row.name);
            if (row.prints)
                printingRows.append(row.name);
        }
        const Till till(*method, everythingOn());

        QCOMPARE(namesThat([&](const QString &name) {
                     return name != "method" && !till.calls(tag(name, attributes)).isEmpty();
                 }),
                 sorted(rows).join(' '));

        const QString before = "<headers/>"; // what follows it is centred
        const QString after = "<receipt serialnumber=\"1\"/>";
        const QByteArray without = till.stream(before + after);
        QCOMPARE(namesThat([&](const QString &name) {
                     return name != "method"
                            && till.stream(before + tag(name, attributes) + after) != without;
                 }),
                 sorted(printingRows).join(' '));
    }

    /// What an element prints needs its own switch and no other. The printer's name, which comes
    /// with the headers, needs none.
    void switchOfAnElement_data() { addElements(); }

    void switchOfAnElement()
    {
        QFETCH(const Method *, method);
        QFETCH(const Element *, element);
        const QString job =
            tag(element->name, plainAttributes(*element, method->document), another);
        QStringList withoutIt;
        if (element->name == "headers")
            withoutIt = {line(QString(16, ' ')), line(QString(50, '='))};

        const QString setting = element->setting;
        const QStringList alone = Till(*method, with(everythingOff, {setting}, "true")).lines(job);
        QVERIFY(element->prints ? alone.size() > withoutIt.size() : alone.isEmpty());
        if (!setting.isEmpty())
            QCOMPARE(Till(*method, with(everythingOn(), {setting}, "false")).lines(job), withoutIt);
    }

    /// Attributes that have no row change nothing, unless the element prints any.
    void otherAttributes_data() { addElements(); }

    void otherAttributes()
    {
        QFETCH(const Method *, method);
        QFETCH(const Element *, element);
        const auto attributes = plainAttributes(*element, method->document);
        Attributes others;
        for (const QString &name : names())
            if (!attributes.contains(name))
                others.insert(name, "Zq8");
        const Till till(*method, everythingOn());
        const QStringList before = till.lines(shownTag(*element, attributes));
        const QStringList lines = till.lines(shownTag(*element, attributes, others));
        if (element->anyAttribute)
            QCOMPARE(lines.join(' ').count("Zq8"), others.size());
        else
            QCOMPARE(lines, before);
    }

    void anyAttributesKeepTheirOrder_data() { addElements(); }

    void anyAttributesKeepTheirOrder()
    {
        QFETCH(const Method *, method);
        QFETCH(const Element *, element);
        const QString job = tag(element->name, plainAttributes(*element, method->document));
        const QStringList lines =
            Till(*method, everythingOn()).lines(job.chopped(2) + " z='Zq8' a='Zq9' m='Zq0'/>");
        static const QRegularExpression mark("Zq\\d");
        QString found;
        for (const auto &match : mark.globalMatch(lines.join(' ')))
            found += match.captured();
        QCOMPARE(found, element->anyAttribute ? "Zq8Zq9Zq0" : "");
    }

    /// What a value becomes on the paper, with its switches alone and without its own.
    void attribute_data()
    {
        QTest::addColumn<const Method *>("method");
        QTest::addColumn<const Element *>("element");
        QTest::addColumn<const Attribute *>("row");
        for (const Attribute &row : vocabulary::attributes())
            for (const Method &method : vocabulary::methods())
                if ((row.documents & method.document) != 0)
                    QTest::addRow("%s %s %s", method.name.data(), row.element.data(),
                                  row.name.data())
                        << &method << vocabulary::findElement(row.element, method.document) << &row;
    }

    void attribute()
    {
        QFETCH(const Method *, method);
        QFETCH(const Element *, element);
        QFETCH(const Attribute *, row);
        const auto plain = plainAttributes(*element, method->document);
        const auto jobWith = [&](const QString &value) {
            auto attributes = plain;
            attributes.insert(row->name, value);
            return shownTag(*element, attributes);
        };
        const auto printed = [&](const Settings &settings, const QString &value) {
            return Till(*method, settings).lines(jobWith(value));
        };
        const Settings alone = with(everythingOff, {element->setting, row->setting}, "true");
        const Settings without = with(everythingOn(), {row->setting}, "false");

        if (!isRead(*row)) {
            QCOMPARE(printed(alone, "Zq8"), printed(alone, "5"));
            return;
        }
        int tried = 0;
        for (const Shown &shown : shownValues) {
            if (shown.value != row->value)
                continue;
            const QRegularExpression expected(shown.line);
            const QStringList lines = printed(alone, shown.given);
            QVERIFY2(!lines.filter(expected).isEmpty(), qPrintable(lines.join(QString())));
            QVERIFY(printed(alone, "5").filter(expected).isEmpty());
            if (!row->setting.isEmpty())
                QVERIFY(printed(without, shown.given).filter(expected).isEmpty());
            ++tried;
        }
        QVERIFY(tried > 0);
    }

    /// What is kept is what the driver knows of the printer afterwards, beside its name.
    void keptAttributes()
    {
        QStringList kept;
        for (const Method &method : vocabulary::methods()) {
            const Till till(method, everythingOn());
            for (const Attribute &row : vocabulary::attributes()) {
                if ((row.documents & method.document) == 0)
                    continue;
                RecordingDriver driver;
                const Attributes attributes({std::pair(QString(row.name), QString("Zq8"))});
                driver.callsOf(method.name, tag(row.element, attributes));
                const QStringList held = {driver.printerCharSize, driver.printerAddress,
                                          driver.printerPort};
                QVERIFY2(held.contains("Zq8") == (row.value == Value::Kept), row.name.data());
                if (row.value == Value::Kept)
                    kept.append(row.name);
            }
        }
        QCOMPARE(sorted(kept), QStringList({"charsize", "ipaddress", "port"}));
    }

    /// A figure fits as long as its column is wide, and makes the line longer beyond; nothing else
    /// does at the width of a column.
    void figuresInColumns_data() { attribute_data(); }

    void figuresInColumns()
    {
        QFETCH(const Method *, method);
        QFETCH(const Element *, element);
        QFETCH(const Attribute *, row);
        const Till till(*method, everythingOn());
        const auto printed = [&](int length) {
            auto attributes = plainAttributes(*element, method->document);
            attributes.insert(row->name, QString(length, '5'));
            return till.lines(shownTag(*element, attributes)).join(QString()).size();
        };
        for (const vocabulary::ColumnWidth &some : vocabulary::columnWidths) {
            const int width = everythingOff.value(some.setting).toInt();
            QVERIFY2((printed(width) == printed(1) && printed(width + 1) == printed(1) + 1)
                         == (row->column == some.column),
                     some.setting.data());
        }
    }

    /// A document's rows of items have the room for the description that their style says.
    void itemRows_data() { addMethods(); }

    void itemRows()
    {
        QFETCH(const Method *, method);
        const Till till(*method, everythingOn());
        QStringList expected;
        QStringList rooms;
        for (const vocabulary::ItemRows &rows : vocabulary::itemRows)
            if ((rows.documents & method->document) != 0)
                expected.append(QString::number(rows.style.descriptionWidth(50, 4, 8, 9)));
        for (const char *name : {"receipe", "receipe_type", "statement"}) {
            const Element *element = vocabulary::findElement(name, method->document);
            if (!element)
                continue;
            auto attributes = plainAttributes(*element, method->document);
            for (const char *text : {"name", "description", "type"})
                if (attributes.contains(text))
                    attributes.insert(text, QString(100, 'Q'));
            const QString printed = till.lines(tag(name, attributes)).join(QString());
            if (!printed.startsWith("=R")) // which the printer lays out
                rooms.append(QString::number(printed.count('Q')));
        }
        QCOMPARE(rooms, expected);
    }

    /// The settings that change a job of all elements of a document.
    void settings_data() { addMethods(); }

    void settings()
    {
        QFETCH(const Method *, method);
        const QString job = fullJob(method->document);
        const QStringList before = Till(*method, everythingOn()).lines(job);
        QStringList rows;
        QStringList read;
        for (const Setting &row : vocabulary::settings()) {
            if ((row.documents & method->document) != 0)
                rows.append(row.key);
            const QString value = otherValue(everythingOn().value(row.key));
            if (Till(*method, with(everythingOn(), {row.key}, value)).lines(job) != before)
                read.append(row.key);
        }
        QCOMPARE(read, rows);

        QStringList others = names();
        others.removeIf([](const QString &name) { return vocabulary::findSetting(name); });
        for (const char *value : {"true", "9"})
            QCOMPARE(Till(*method, with(everythingOn(), others, value)).lines(job), before);
    }

    /// The jobs of the sample shop have no element and no attribute that is not listed.
    void samplesAreKnown_data()
    {
        QTest::addColumn<Sample>("sample");
        int count = 0;
        for (const Sample &sample : samples())
            QTest::addRow("%d: %s %s %s", ++count, qPrintable(sample.method),
                          qPrintable(sample.element), qPrintable(sample.attribute))
                << sample;
    }

    void samplesAreKnown()
    {
        QFETCH(Sample, sample);
        const Method *method = vocabulary::findMethod(sample.method);
        QVERIFY(method);
        const Element *element = vocabulary::findElement(sample.element, method->document);
        QVERIFY(element);
        QVERIFY(sample.attribute.isEmpty() || element->anyAttribute || rowOf(sample));
    }

    /// Each method's own sample asks for it, and there are no others.
    void samplesOfMethods()
    {
        QStringList files;
        for (const Method &row : vocabulary::methods()) {
            files.append(row.sample + QLatin1StringView(".xml"));
            const QByteArray job = bytesOf(KORVEL_SOURCE_DIR "/examples/jobs/" + files.last());
            QVERIFY2(job.contains("<method name=\"" + QByteArray(row.name.data()) + "\"/>"),
                     row.name.data());
        }
        QCOMPARE(QDir(KORVEL_SOURCE_DIR "/examples/jobs").entryList(QDir::Files), sorted(files));
    }

    /// Amounts look like amounts in them, and nothing else does.
    void samplesLookLikeTheirValues_data() { samplesAreKnown_data(); }

    void samplesLookLikeTheirValues()
    {
        QFETCH(Sample, sample);
        static const QRegularExpression money("^-?\\d+\\.\\d\\d$");
        static const QRegularExpression price("^-?\\d+[.,]\\d\\d$");
        static const QRegularExpression wholeNumber("^-?\\d+$");
        const Attribute *row = rowOf(sample);
        if (!row || row->value == Value::Unread)
            return;
        if (row->value == Value::Amount)
            QVERIFY(sample.value.isEmpty() || sample.value.contains(money));
        else
            QCOMPARE(sample.value.contains(price), row->value == Value::RegisteredPrice);
        if (row->value == Value::RegisteredCount || row->value == Value::VariantQuantity)
            QVERIFY(sample.value.contains(wholeNumber));
    }

    /// All rows but one occur in them, those of attributes that no document reads included.
    void samplesShowAllAttributes()
    {
        QList<const Attribute *> absent;
        for (const Attribute &row : vocabulary::attributes())
            absent.append(&row);
        for (const Sample &sample : samples())
            if (!sample.value.isEmpty())
                absent.removeOne(rowOf(sample));
        QStringList shown;
        for (const Attribute *row : absent)
            shown.append(QString(row->element) + ' ' + row->name);
        QCOMPARE(shown, QStringList("orderinfo credit"));
    }

    // How the tables are searched.

    void methodsAreFound()
    {
        for (const Method &row : vocabulary::methods())
            QCOMPARE(vocabulary::findMethod(row.name), &row);
        QVERIFY(!vocabulary::findMethod(u"printfullorder"));
        QVERIFY(!vocabulary::findMethod(u""));
        QVERIFY(!vocabulary::findMethod(u"receipt"));
    }

    void elementsAreFound()
    {
        const auto meaning = [](QAnyStringView name, Document document) {
            const Element *row = vocabulary::findElement(name, document);
            return row ? QString(row->meaning) : QString("ignored");
        };
        QCOMPARE(meaning(u"receipe", vocabulary::SoldItems), "quantity, `x`, description, amount");
        QCOMPARE(meaning(u"receipe", vocabulary::KitchenOrder), "an item: quantity and name");
        QCOMPARE(meaning(u"receipe", vocabulary::SummaryReceipt), "ignored");
        QCOMPARE(meaning(u"Receipe", vocabulary::KitchenOrder), "ignored");
        QCOMPARE(meaning(u"company", vocabulary::SummaryOrder), "ignored");
        QCOMPARE(meaning(u"", vocabulary::KitchenOrder), "ignored");
    }

    void sharedElements()
    {
        QStringList shared;
        for (const Element &row : vocabulary::elements())
            if (vocabulary::isShared(row))
                shared.append(row.name);
        QCOMPARE(shared, QStringList({"printers", "geometry", "headers", "logo", "company",
                                      "receipt", "invoice", "delivery", "orderinfo"}));
    }

    void attributesAreFound()
    {
        const auto found = [](QAnyStringView element, Document document) {
            return column(vocabulary::attributesOf(element, document), &Attribute::name);
        };
        QCOMPARE(found(u"receipe", vocabulary::KitchenOrder), QStringList({"number", "name"}));
        QCOMPARE(found(u"receipe", vocabulary::SoldItems),
                 QStringList({"quantity", "description", "amount"}));
        QCOMPARE(found(u"receipe", vocabulary::PeriodReport), QStringList());
        QCOMPARE(found(u"headers", vocabulary::Receipt), QStringList());
        QCOMPARE(found(u"cancelledsummary", vocabulary::PeriodReport),
                 QStringList({"number", "totals"}));
        QCOMPARE(found(u"RECEIPE", vocabulary::KitchenOrder), QStringList());
    }

    void settingsAreFound()
    {
        for (const Setting &row : vocabulary::settings())
            QCOMPARE(vocabulary::findSetting(row.key), &row);
        QVERIFY(!vocabulary::findSetting(u"paperwidth"));
        QVERIFY(!vocabulary::findSetting(u"korvel.doc.paperWidth"));
        QVERIFY(!vocabulary::findSetting(u"basedir"));
        QVERIFY(!vocabulary::findSetting(u""));
    }

    void documentsOfAGroup()
    {
        QCOMPARE(vocabulary::documentsOf(u"doc"),
                 Documents(vocabulary::KitchenOrder | vocabulary::SummaryOrder));
        QCOMPARE(vocabulary::documentsOf(u"reportdoc"),
                 Documents(vocabulary::PeriodReport | vocabulary::Statement));
        QCOMPARE(vocabulary::documentsOf(u"solddoc"), Documents(vocabulary::SoldItems));
        QCOMPARE(vocabulary::documentsOf(u"language"), Documents(0));
        QCOMPARE(vocabulary::documentsOf(u"Doc"), Documents(0));
        QCOMPARE(vocabulary::documentsOf(u""), Documents(0));
    }

    void titlesOfDocuments()
    {
        using namespace vocabulary;
        QCOMPARE(titlesOf(0), "");
        QCOMPARE(titlesOf(Statement), "statement of account");
        QCOMPARE(titlesOf(SummaryReceipt | Receipt), "receipt, summary receipt");
        const Documents six =
            KitchenOrder | FullOrder | Receipt | Invoice | DeliveryNote | SummaryInvoice;
        QCOMPARE(titlesOf(six),
                 "kitchen order, full order, receipt, invoice, delivery note, summary invoice");
        QCOMPARE(titlesOf(six | SoldItems), "other documents");
    }

    void nearest_data()
    {
        QTest::addColumn<QStringList>("list");
        QTest::addColumn<QString>("expected");
        const QStringList methods = column(vocabulary::methods(), &Method::name);
        const QStringList elements = column(vocabulary::elements(), &Element::name);
        const QStringList attributes = column(vocabulary::attributes(), &Attribute::name);
        const QStringList settings = column(vocabulary::settings(), &Setting::key);
        const auto row = [](const char *misspelt, const QStringList &list, const char *expected) {
            QTest::newRow(misspelt) << list << expected;
        };

        // A missing, an extra, a wrong letter, two of them swapped.
        row("recipe", elements, "receipe");
        row("receeipe", elements, "receipe");
        row("receive", elements, "receipe");
        row("reciepe", elements, "receipe");
        row("totlal", elements, "total");
        row("totla", elements, "total");
        row("lgoo", elements, "logo");
        row("prefiscalsummary", elements, "prefiscalssummary");
        row("receipe-type", elements, "receipe_type");
        row("printSolds", methods, "printSold");
        row("printFulOrder", methods, "printFullOrder");
        row("serialnumbr", attributes, "serialnumber");
        row("nmae", attributes, "name");

        // Two slips.
        row("reciepee", elements, "receipe");
        row("orederinfos", elements, "orderinfo");
        row("printFullOrderReciep", methods, "printFullOrderReceipt");
        row("papreWith", settings, "paperWidth");

        // Other letter cases, however many.
        row("Receipe", elements, "receipe");
        row("RECEIPE_TYPE", elements, "receipe_type");
        row("notpaid", elements, "notPaid");
        row("printfullorderfiscal", methods, "printFullOrderFiscal");
        row("paperwidth", settings, "paperWidth");
        row("NAME", attributes, "name");

        // The nearest one, also behind others that are near.
        row("totalss", elements, "totals");
        row("receip", {"receipt_no", "receipts", "receipt"}, "receipt");
        row("other case first", {"other-case first", "Other Case First"}, "Other Case First");
        row("the first of two", {"the first of twi", "the first of twa"}, "the first of twi");

        // Nothing like any.
        row("x", elements, "");
        row("foo", elements, "");
        row("printjob", elements, "");
        row("printjob ", methods, "");
        row("item", elements, "");
        row("recp", elements, "");
        row("paper", settings, "");
        row("reciepee-s", elements, "");

        // Too short for a slip, or for two.
        row("a", {"b", "ab"}, "");
        row("ab", {"ac", "abc"}, "");
        row("abc", {"axx"}, "");
        row("abcd", {"abxx"}, "");
        row("abd", {"abc"}, "abc");
        row("abcde", {"abxxe"}, "abxxe");
        row("", {"a"}, "");
        row("nothing to choose from", {}, "");
    }

    void nearest()
    {
        QFETCH(QStringList, list);
        QFETCH(QString, expected);
        QCOMPARE(vocabulary::nearest(QString(QTest::currentDataTag()), list), expected);
    }

private:
    static void addMethods()
    {
        QTest::addColumn<const Method *>("method");
        for (const Method &row : vocabulary::methods())
            QTest::newRow(row.name.data()) << &row;
    }

    /// A row for each element of each document.
    static void addElements()
    {
        QTest::addColumn<const Method *>("method");
        QTest::addColumn<const Element *>("element");
        for (const Method &method : vocabulary::methods())
            for (const Element &row : vocabulary::elements())
                if ((row.documents & method.document) != 0)
                    QTest::addRow("%s %s", method.name.data(), row.name.data()) << &method << &row;
    }
};

QTEST_GUILESS_MAIN(TestVocabulary)
#include "tst_vocabulary.moc"
