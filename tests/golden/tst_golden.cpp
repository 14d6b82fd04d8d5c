// Whole jobs through the real program: each case folder and each example, compared byte by byte.
#include "support/bytes.h"
#include "support/renderer.h"
#include "support/temporaryhome.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <array>

namespace {

const QString casesFolder = KORVEL_SOURCE_DIR "/tests/golden/cases/";
const QString examplesFolder = KORVEL_SOURCE_DIR "/examples/";

const QStringList methods = {
    "printPartialOrder",
    "printFullOrder",
    "printFullOrderReceipt",
    "printFullOrderInvoice",
    "printFullOrderDelivery",
    "printFullOrderFiscal",
    "printAbstractOrder",
    "printAbstractOrderReceipt",
    "printAbstractOrderInvoice",
    "printAbstractOrderFiscal",
    "printReport",
    "printSold",
    "printStatementOfAccount",
};

/// Paths of all files in a folder and below whose name matches.
QStringList filesBelow(const QString &folder, const QString &pattern)
{
    QStringList files;
    for (QDirIterator it(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();)
        files.append(it.next());
    files.sort();
    return files;
}

} // namespace

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
            process.start(KORVEL_PRINT,
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

    void everyMethodHasACase()
    {
        static const QRegularExpression method(R"re(<method name="(\w+)")re");
        QSet<QString> covered;
        for (const QString &job :
             filesBelow(casesFolder, "job.xml") + filesBelow(examplesFolder + "jobs", "*.xml"))
            for (const auto &match : method.globalMatch(QString::fromUtf8(bytesOf(job))))
                covered.insert(match.captured(1));
        for (const QString &name : methods)
            QVERIFY2(covered.contains(name), qPrintable("no case for " + name));
    }

    void everyExpectedStreamHasAnExample()
    {
        for (const QString &stream : filesBelow(examplesFolder + "expected", "*"))
            QVERIFY2(QFile::exists(examplesFolder + "jobs/" + QFileInfo(stream).completeBaseName()
                                   + ".xml"),
                     qPrintable("no job for " + stream));
    }
};

QTEST_GUILESS_MAIN(TestGolden)
#include "tst_golden.moc"
