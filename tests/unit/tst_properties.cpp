// What holds of all jobs and settings, tried on some made from seeds.
#include "app/jobguard.h"
#include "printer/company/companyprinterdriver.h"
#include "support/bytes.h"
#include "support/generator.h"
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace tst_properties {

/// A row for each seed.
void addSeeds()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1U, 2U, 3U, 5U, 8U, 13U, 21U, 34U, 55U, 89U, 144U, 233U})
        QTest::addRow("seed %u", seed) << seed;
}

/// The command stream of a job, in the present HOME.
QByteArray streamOf(QByteArray job)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath("stream.out");
    QFile::remove(path); // some file systems wait for the disk when a file is emptied
    {
        CompanyPrinterDriver driver(path, false);
        korvel::app::JobGuard guard(driver);
        QBuffer input(&job);
        guard.parse(input);
    }
    return bytesOf(path);
}

/// A settings store read from bytes, with what its writers make of it.
class Store : public libconfig::Config
{
public:
    Store(const QByteArray &bytes, const QString &notation)
    {
        QFile file(folder.filePath("settings"));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the settings");
        file.close();
        readFile(file.fileName(), notation);
    }

    [[nodiscard]] QByteArray braces() const
    {
        buildConfigFile(folder.filePath("written"));
        return bytesOf(folder.filePath("written"));
    }

    [[nodiscard]] QByteArray xml() const
    {
        buildConfigXmlFile(folder.filePath("written"));
        return bytesOf(folder.filePath("written"));
    }

private:
    QTemporaryDir folder;
};

class TestProperties : public QObject
{
    Q_OBJECT

private slots:
    void aJobCutOffPrintsABeginning_data() { addSeeds(); }

    void aJobCutOffPrintsABeginning()
    {
        QFETCH(unsigned, seed);
        Generator generator(seed);
        const TemporaryHome home{generator.layout()};
        const QByteArray job =
            Generator::job(generator.elements(8) + generator.elements("printFullOrder", 4));
        const QByteArray whole = streamOf(job);
        QVERIFY(whole.endsWith("=o\n"));

        qsizetype before = 0;
        for (qsizetype cut = 0; cut <= job.size(); ++cut) {
            const QByteArray stream = streamOf(job.first(cut));
            if (!whole.startsWith(stream)) {
                QCOMPARE(linesOf(stream), linesOf(whole)); // shows where they part
                QFAIL("no beginning of the whole stream");
            }
            QVERIFY2(stream.size() >= before, "more of a job prints no less");
            before = stream.size();
        }
        QCOMPARE(before, whole.size());
    }

    void aFiscalReceiptLeavesNoTrace_data() { addSeeds(); }

    void aFiscalReceiptLeavesNoTrace()
    {
        QFETCH(unsigned, seed);
        Generator generator(seed);
        const TemporaryHome home{generator.layout()};
        const QByteArray fiscal = generator.fiscalElements(12);
        const QByteArray other = generator.elements(12);
        const auto joined = [](const QByteArray &one, const QByteArray &two) {
            // The section of the first stays open: its last command is not sent.
            const QByteArray first = streamOf(Generator::job(one));
            const qsizetype closing = first.lastIndexOf("\n=") + 1;
            const QByteArray second = streamOf(Generator::job(two));
            const QByteArray both = streamOf(Generator::job(one + two));
            QCOMPARE(linesOf(both), linesOf(first.first(closing) + second));
        };
        joined(fiscal, other);
        joined(other, fiscal);
        joined(fiscal, fiscal);
    }

    void rowsAreAsWideAsThePaper_data() { addSeeds(); }

    void rowsAreAsWideAsThePaper()
    {
        QFETCH(unsigned, seed);
        Generator generator(seed);
        const TemporaryHome home{""};
        RecordingDriver driver;
        for (int i = 0; i < 200; ++i) {
            const int q = driver.layout.quantityFieldWidth = generator.below(8);
            const int p = driver.layout.priceFieldWidth = generator.below(12);
            const int t = driver.layout.totalPriceFieldWidth = generator.below(12);
            const int W = driver.layout.paperWidth = q + p + t + 18 + generator.below(40);
            const QString quantity = generator.text(q);
            const QString price = generator.text(p);
            const QString total = generator.text(t);
            const QString description = generator.text(60);
            const auto row = [&](const char *style) {
                return driver.descriptionRow(quantity, description, price, total, '.', style);
            };
            QCOMPARE(row("qdpt").size(), W);
            QCOMPARE(row("qxdpt").size(), W);
            QCOMPARE(row("qxd").size(), W);
            QCOMPARE(row("qd").size(), W - 2);
            QCOMPARE(row("date-amount-type").size(), W - 3);
            QCOMPARE(row("qxdtDoubleLine").section('\n', 1).size(), W);
            QCOMPARE(row("qxdtDoubleLine").section('\n', 0, 0), quantity + " x " + price);
        }
    }

    void settingsAreWhatTheyWere_data() { addSeeds(); }

    void settingsAreWhatTheyWere()
    {
        QFETCH(unsigned, seed);
        Generator generator(seed);
        const GeneratedSettings settings = generator.settings();
        const auto compare = [&](const Store &store) {
            for (const auto &[key, value] : settings.answers)
                QCOMPARE(key + '=' + store.lookup(key), key + '=' + value);
        };

        const Store store(settings.braces, "cfg");
        compare(store);
        const Store fromBraces(store.braces(), "cfg");
        compare(fromBraces);
        const Store fromXml(store.xml(), "xml");
        compare(fromXml);
        QCOMPARE(fromBraces.braces(), store.braces());
        QCOMPARE(fromXml.braces(), store.braces());
        QCOMPARE(fromXml.xml(), store.xml());
    }
};

KORVEL_TEST(TestProperties)

} // namespace tst_properties

#include "tst_properties.moc"
