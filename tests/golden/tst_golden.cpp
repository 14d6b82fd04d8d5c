// Whole jobs through the real program: each case folder and each example, compared byte by byte.
#include "support/built.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/methods.h"
#include "support/renderer.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QRegularExpression>
#include <QSet>

#include <array>

namespace tst_golden {

const QString casesFolder = KORVEL_SOURCE_DIR "/tests/golden/cases/";
const QString examplesFolder = KORVEL_SOURCE_DIR "/examples/";

/// The methods that jobs ask for, where nothing but one is asked for.
QSet<QString> methodsIn(const QStringList &jobs)
{
    static const QRegularExpression method(R"re(<method name="(\w+)")re");
    QSet<QString> names;
    for (const QString &job : jobs) {
        const QString text = QString::fromUtf8(bytesOf(job));
        if (text.count("<method") == 1)
            names.insert(method.match(text).captured(1));
    }
    return names;
}

class TestGolden : public QObject
{
    Q_OBJECT

private slots:
    /// A case is a folder with job.xml, korvel.conf, expected.out and expected.stdout; an example
    /// is a job, its stream, and the settings of the shop.
    void rendersToTheByte_data()
    {
        QTest::addColumn<QString>("job");
        QTest::addColumn<QString>("settings");
        QTest::addColumn<QString>("expectedStream");
        QTest::addColumn<QString>("expectedStandardOutput");

        for (const QString &job : filesBelow(casesFolder, "job.xml")) {
            const QString folder = QFileInfo(job).path() + '/';
            QTest::newRow(qPrintable(folder.mid(casesFolder.size()).chopped(1)))
                << job << folder + "korvel.conf" << folder + "expected.out"
                << folder + "expected.stdout";
        }
        for (const QString &job : filesBelow(examplesFolder + "jobs", "*.xml")) {
            const QString name = QFileInfo(job).completeBaseName();
            QTest::newRow(qPrintable("example " + name))
                << job << examplesFolder + "korvel.conf"
                << examplesFolder + "expected/" + name + ".out"
                << "/dev/null";
        }
    }

    void rendersToTheByte()
    {
        QFETCH(QString, job);
        QFETCH(QString, settings);
        QFETCH(QString, expectedStream);
        QFETCH(QString, expectedStandardOutput);
        for (const QString &file : {settings, expectedStream, expectedStandardOutput})
            QVERIFY2(QFile::exists(file), qPrintable("missing: " + file));

        const TemporaryHome home(bytesOf(settings));
        const Run run = runRenderer({job, "stream.out"}, home.path());
        VERIFY_SOUND(run);
        const QByteArray stream = bytesOf(home.path() + "/stream.out");
        QCOMPARE(linesOf(stream), linesOf(bytesOf(expectedStream)));
        QCOMPARE(stream, bytesOf(expectedStream));
        QCOMPARE(linesOf(run.standardOutput), linesOf(bytesOf(expectedStandardOutput)));
    }

    /// A run keeps no state: jobs may be rendered side by side.
    void examplesEightAtATime()
    {
        const TemporaryHome home(bytesOf(examplesFolder + "korvel.conf"));
        const QStringList jobs = filesBelow(examplesFolder + "jobs", "*.xml");
        QVERIFY(jobs.size() >= 13);

        constexpr int sideBySide = 8;
        std::array<QProcess, sideBySide> processes;
        for (int i = 0; i < 4 * jobs.size(); ++i) {
            QProcess &process = processes[size_t(i % sideBySide)];
            QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished());
            process.start(built::print,
                          {jobs[i % jobs.size()], home.path() + QString("/%1.out").arg(i)});
        }
        for (QProcess &process : processes)
            QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished());

        for (int i = 0; i < 4 * jobs.size(); ++i) {
            const QString name = QFileInfo(jobs[i % jobs.size()]).completeBaseName();
            QCOMPARE(linesOf(bytesOf(home.path() + QString("/%1.out").arg(i))),
                     linesOf(bytesOf(examplesFolder + "expected/" + name + ".out")));
        }
    }

    void everyMethodHasACase_data() { addMethods(); }

    /// The examples show the sample shop alone; what a method prints by other settings and for
    /// other elements is shown by cases.
    void everyMethodHasACase()
    {
        QVERIFY(methodsIn(filesBelow(casesFolder, "job.xml")).contains(QTest::currentDataTag()));
    }

    void everyMethodHasAnExample_data() { addMethods(); }

    void everyMethodHasAnExample()
    {
        QVERIFY(methodsIn(filesBelow(examplesFolder + "jobs", "*.xml"))
                    .contains(QTest::currentDataTag()));
    }

    void everyExpectedStreamHasAnExample()
    {
        for (const QString &stream : filesBelow(examplesFolder + "expected", "*"))
            QVERIFY2(QFile::exists(examplesFolder + "jobs/" + QFileInfo(stream).completeBaseName()
                                   + ".xml"),
                     qPrintable("no job for " + stream));
    }

private:
    static void addMethods()
    {
        QTest::addColumn<int>("unused");
        QCOMPARE(methodNames.size(), 13);
        for (const QString &name : methodNames)
            QTest::newRow(qPrintable(name)) << 0;
    }
};

KORVEL_TEST(TestGolden)

} // namespace tst_golden

#include "tst_golden.moc"
