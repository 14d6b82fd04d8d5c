// The attributes of the vocabulary: what a value of each becomes on the paper.
#include "support/test.h"
#include "support/till.h"

#include <QRegularExpression>

namespace tst_vocabularyattributes {

using vocabulary::Attribute;
using vocabulary::Element;
using vocabulary::Method;
using vocabulary::Value;

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

bool isRead(const Attribute &row) { return row.value != Value::Kept && row.value != Value::Unread; }

class TestVocabularyAttributes : public QObject
{
    Q_OBJECT

private slots:
    /// What a value becomes on the paper, with its switches alone and without its own.
    void attribute_data() { addAttributes(); }

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
    void figuresInColumns_data() { addAttributes(); }

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
};

KORVEL_TEST(TestVocabularyAttributes)

} // namespace tst_vocabularyattributes

#include "tst_vocabularyattributes.moc"
