// The methods of the vocabulary: the engine prints them, in groups and rows as the tables say.
#include "support/capturedoutput.h"
#include "support/settingstext.h"
#include "support/test.h"
#include "support/till.h"

namespace tst_vocabularymethods {

using vocabulary::Element;
using vocabulary::Method;

class TestVocabularyMethods : public QObject
{
    Q_OBJECT

private slots:
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
};

KORVEL_TEST(TestVocabularyMethods)

} // namespace tst_vocabularymethods

#include "tst_vocabularymethods.moc"
