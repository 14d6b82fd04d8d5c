// The XSD of jobs, as a validator reads it: what it says, and what it cannot say.
#include "companions/check/schema.h"
#include "companions/check/vocabulary.h"
#include "support/bytes.h"
#include "support/schemajobs.h"
#include "support/test.h"
#include "support/validator.h"

namespace tst_xmlschema {

namespace check = korvel::check;

Validator xsd(const QByteArray &schema = check::xmlSchema())
{
    return Validator("--schema", schema);
}

bool hasNamedRoot(const QByteArray &job)
{
    return job.contains("<printjob>") || job.contains("<printjob ");
}

class TestXmlSchema : public QObject
{
    Q_OBJECT

private slots:
    void isXmlSchema()
    {
        const Run run = xsd().run(printJobOf("printSold", ""));
        QVERIFY2(run.exited && run.status == Valid, run.standardError.constData());
        QCOMPARE(run.standardOutput, QByteArray());

        // What is no schema is noticed.
        const QByteArray schema = check::xmlSchema();
        const Validator broken = xsd(QByteArray(schema).replace("xs:choice", "xs:choices"));
        QCOMPARE(broken.run(printJobOf("printSold", "")).status, int(BadSchema));
        const Validator cut = xsd(schema.first(schema.size() / 2));
        QCOMPARE(cut.run(printJobOf("printSold", "")).status, int(BadSchema));
    }

    void examples_data() { addExampleJobs(); }

    void examples()
    {
        QFETCH(QString, path);
        const Run run = xsd().run(bytesOf(path));
        QVERIFY2(run.exited && run.status == Valid, run.standardError.constData());
    }

    void accepts_data()
    {
        QTest::addColumn<AcceptedJob>("sound");
        for (const AcceptedJob &sound : acceptedJobs())
            QTest::newRow(qPrintable(sound.what)) << sound;
    }

    /// All but a root of another name.
    void accepts()
    {
        QFETCH(AcceptedJob, sound);
        const Run run = xsd().run(sound.job);
        QVERIFY(run.exited);
        QVERIFY2(run.status == (sound.namedRoot ? Valid : Invalid), run.standardError.constData());
    }

    void rejects_data()
    {
        QTest::addColumn<WrongJob>("job");
        for (const WrongJob &row : wrongJobs())
            QTest::newRow(qPrintable(row.what)) << row;
    }

    /// What is wrong in every document; what the method alone makes wrong cannot be said.
    void rejects()
    {
        QFETCH(WrongJob, job);
        const Validator validator = xsd();
        const Run wrong = validator.run(job.wrong);
        QVERIFY2(wrong.exited && wrong.status == (job.everywhere ? Invalid : Valid),
                 wrong.standardError.constData());
        const Run right = validator.run(job.right);
        QVERIFY2(right.exited && right.status == Valid, right.standardError.constData());
    }

    /// What RELAX NG accepts is accepted.
    void acceptsWhatRelaxNgAccepts()
    {
        QByteArrayList jobs;
        for (const QString &path : filesBelow(KORVEL_SOURCE_DIR "/tests/golden/cases", "job.xml")) {
            if (const QByteArray job = bytesOf(path); hasNamedRoot(job))
                jobs.append(job);
        }
        const QList<bool> stricter = Validator("--relaxng", check::relaxNgSchema()).areValid(jobs);
        const QList<bool> valid = xsd().areValid(jobs);
        QVERIFY(stricter.count(true) > 20 && valid.count(false) > 5);
        for (qsizetype i = 0; i < jobs.size(); ++i)
            QVERIFY2(valid[i] || !stricter[i], jobs[i].constData());
    }
};

KORVEL_TEST(TestXmlSchema)

} // namespace tst_xmlschema

#include "tst_xmlschema.moc"
