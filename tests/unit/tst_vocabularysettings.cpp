// The settings of the vocabulary: which of them change a job of all elements of a document.
#include "support/test.h"
#include "support/till.h"

namespace tst_vocabularysettings {

using vocabulary::Document;
using vocabulary::Element;
using vocabulary::Method;
using vocabulary::Setting;

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

class TestVocabularySettings : public QObject
{
    Q_OBJECT

private slots:
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
};

KORVEL_TEST(TestVocabularySettings)

} // namespace tst_vocabularysettings

#include "tst_vocabularysettings.moc"
