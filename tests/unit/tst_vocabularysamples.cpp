// The jobs of the sample shop: the vocabulary knows all in them, and they show all of it.
#include "support/bytes.h"
#include "support/test.h"
#include "support/vocabularytables.h"

#include <QDir>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace tst_vocabularysamples {

using vocabulary::Attribute;
using vocabulary::Element;
using vocabulary::Method;
using vocabulary::Value;

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

class TestVocabularySamples : public QObject
{
    Q_OBJECT

private slots:
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
};

KORVEL_TEST(TestVocabularySamples)

} // namespace tst_vocabularysamples

#include "tst_vocabularysamples.moc"
