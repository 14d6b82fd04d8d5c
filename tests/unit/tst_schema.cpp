// The RELAX NG schema of jobs, as a validator reads it.
#include "companions/check/checks.h"
#include "companions/check/schema.h"
#include "companions/check/vocabulary.h"
#include "support/bytes.h"
#include "support/schemajobs.h"
#include "support/test.h"
#include "support/validator.h"

#include <QSet>

namespace tst_schema {

namespace check = korvel::check;

Validator relaxNg(const QByteArray &schema = check::relaxNgSchema())
{
    return Validator("--relaxng", schema);
}

/// An element with all attributes that a document reads of it.
QByteArray elementOf(const vocabulary::Element &element, vocabulary::Document document)
{
    QByteArray tag = QByteArray("<") + element.name.data();
    for (const vocabulary::Attribute &row : vocabulary::attributesOf(element.name, document))
        tag += QByteArray(" ") + row.name.data() + "=\"1\"";
    return tag + "/>";
}

class TestSchema : public QObject
{
    Q_OBJECT

private slots:
    void isRelaxNg()
    {
        const Run run = relaxNg().run(printJobOf("printSold", ""));
        QVERIFY2(run.exited && run.status == Valid, run.standardError.constData());
        QCOMPARE(run.standardOutput, QByteArray());

        // What is no schema is noticed.
        const QByteArray schema = check::relaxNgSchema();
        const Validator broken = relaxNg(QByteArray(schema).replace("zeroOrMore", "anyNumberOf"));
        QCOMPARE(broken.run(printJobOf("printSold", "")).status, int(BadSchema));
        const Validator cut = relaxNg(schema.first(schema.size() / 2));
        QCOMPARE(cut.run(printJobOf("printSold", "")).status, int(BadSchema));
    }

    void examples_data() { addExampleJobs(); }

    void examples()
    {
        QFETCH(QString, path);
        const Run run = relaxNg().run(bytesOf(path));
        QVERIFY2(run.exited && run.status == Valid, run.standardError.constData());
    }

    void accepts_data()
    {
        QTest::addColumn<QByteArray>("job");
        for (const AcceptedJob &sound : acceptedJobs())
            QTest::newRow(qPrintable(sound.what)) << sound.job;
    }

    void accepts()
    {
        QFETCH(QByteArray, job);
        const Run run = relaxNg().run(job);
        QVERIFY2(run.exited && run.status == Valid, run.standardError.constData());
    }

    /// Each job has one thing wrong; beside it stands the job that has not.
    void rejects_data()
    {
        QTest::addColumn<QByteArray>("wrong");
        QTest::addColumn<QByteArray>("right");
        for (const WrongJob &row : wrongJobs())
            QTest::newRow(qPrintable(row.what)) << row.wrong << row.right;
    }

    void rejects()
    {
        QFETCH(QByteArray, wrong);
        QFETCH(QByteArray, right);
        const Validator validator = relaxNg();
        const Run refused = validator.run(wrong);
        QVERIFY2(refused.exited && refused.status == Invalid, refused.standardError.constData());
        const Run accepted = validator.run(right);
        QVERIFY2(accepted.exited && accepted.status == Valid, accepted.standardError.constData());
    }

    /// Each element is accepted in the documents that know it, and in no other.
    void elementsOfDocuments()
    {
        QByteArrayList jobs;
        QList<bool> known;
        QStringList what;
        for (const vocabulary::Method &method : vocabulary::methods()) {
            QSet<QString> tried;
            for (const vocabulary::Element &element : vocabulary::elements()) {
                const bool knows = (element.documents & method.document) != 0;
                const QString name = element.name;
                if (!knows
                    && (tried.contains(name) || vocabulary::findElement(name, method.document)))
                    continue;
                tried.insert(name);
                const auto document =
                    knows ? method.document
                          : vocabulary::Document(element.documents & ~(element.documents - 1));
                jobs.append(printJobOf(method.name.data(), elementOf(element, document)));
                known.append(knows);
                what.append(name + " in " + method.name);
            }
        }
        QVERIFY(known.count(true) > 100 && known.count(false) > 100);
        const QList<bool> valid = relaxNg().areValid(jobs);
        for (qsizetype i = 0; i < jobs.size(); ++i)
            QVERIFY2(valid[i] == known[i], qPrintable(what[i]));
    }

    /// What the schema accepts is in order for the checker too.
    void agreesWithTheChecker()
    {
        const QSet<QString> structure = {
            "no-method",          "unknown-method",   "second-method", "before-method",
            "unknown-element",    "ignored-element",  "lost-element",  "unknown-attribute",
            "misspelt-attribute", "missing-attribute"};
        QByteArrayList jobs;
        for (const QString &path : filesBelow(KORVEL_SOURCE_DIR "/tests/golden/cases", "job.xml"))
            jobs.append(bytesOf(path));
        const QList<bool> valid = relaxNg().areValid(jobs);
        QVERIFY(valid.count(true) > 20 && valid.count(false) > 20);
        for (qsizetype i = 0; i < jobs.size(); ++i) {
            for (const check::Finding &finding : check::checkJob(jobs[i], nullptr))
                QVERIFY2(!valid[i] || !structure.contains(infoOf(finding.code).name),
                         qPrintable(finding.text + " in " + jobs[i]));
        }
    }
};

KORVEL_TEST(TestSchema)

} // namespace tst_schema

#include "tst_schema.moc"
