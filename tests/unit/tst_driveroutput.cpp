// The output file of the driver: created, emptied or appended to, UTF-8, or not to be opened.
#include "config/path.h"
#include "support/bytenames.h"
#include "support/bytes.h"
#include "support/capturedoutput.h"
#include "support/filedriver.h"
#include "support/files.h"
#include "support/jobs.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QScopeGuard>
#include <QTemporaryDir>

#include <clocale>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tst_driveroutput {

constexpr auto cannotOpen = "PrintManager::printAbstractOrder(...): Unable To Open File\n";

class TestDriverOutput : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder = std::make_unique<QTemporaryDir>();
        QVERIFY(folder->isValid());
        path = folder->filePath("out");
    }

    void defaultsDoNothing()
    {
        const QByteArray bytes = written([](FileDriver &driver) {
            driver.reset();
            driver.initPrinter();
            driver.printRowFiscal("total", QXmlAttributes());
            driver.printRowFiscal("1", "2", "COFFEE", "1.20");
            driver.write("what the test writes");
            QCOMPARE(driver.lines, QStringList());
        });
        QCOMPARE(bytes, "what the test writes");
    }

    void outputFile_data()
    {
        QTest::addColumn<bool>("append");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *name, bool append, const QByteArray &before,
                            const QString &text, const QByteArray &after) {
            QTest::newRow(name) << append << before << text << after;
        };
        const QByteArray none;
        const QString lines = QString("0123456789\n").repeated(100000);

        row("created when missing", false, none, "NEW\n", "NEW\n");
        row("created when missing, to append", true, none, "NEW\n", "NEW\n");
        row("created though nothing is written", false, none, "", "");
        row("emptied when not appending", false, "OLD AND LONGER\n", "NEW\n", "NEW\n");
        row("emptied though nothing is written", false, "OLD\n", "", "");
        row("kept when appending", true, "OLD\n", "NEW\n", "OLD\nNEW\n");
        row("kept when appending without a line end", true, "OLD", "NEW", "OLDNEW");
        row("kept though nothing is appended", true, "OLD\n", "", "OLD\n");
        row("flushed without a line end", false, none, "=T1", "=T1");
        row("flushed when it is long", false, none, lines, lines.toLatin1());
        row("line ends go out as they are", false, none, "=S\r\n=o\n\r", "=S\r\n=o\n\r");
        row("a NUL goes out as it is", false, none, QString("A") + QChar() + "B",
            QByteArray("A\0B", 3));
    }

    void outputFile()
    {
        QFETCH(bool, append);
        QFETCH(QByteArray, before);
        QFETCH(QString, text);
        QFETCH(QByteArray, after);
        if (!before.isEmpty())
            writeFile(path, before);

        const CapturedOutput output;
        {
            FileDriver driver(path, append);
            driver.write(text);
        }
        QVERIFY(QFile::exists(path));
        QCOMPARE(linesOf(bytesOf(path)), linesOf(after));
        QCOMPARE(output.bytes(), "");
    }

    void outputFilesOfAnyName_data() { addByteNames(); }

    void outputFilesOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Sweeper sweeper(folder->path());
        const QByteArray bytes = folder->path().toUtf8() + '/' + name;
        const CapturedOutput output;
        for (const bool append : {false, true, true}) {
            FileDriver driver(korvel::path::fromBytes(bytes), append);
            driver.write("=K\n");
        }
        QCOMPARE(output.bytes(), "");
        QCOMPARE(linesOf(bytesNamed(bytes)), linesOf("=K\n=K\n=K\n"));
        QCOMPARE(namesIn(folder->path().toUtf8()), QByteArrayList{name});
    }

    void outputFileOpensWithTheDriver()
    {
        writeFile(path, "OLD\n");
        const FileDriver driver(path, false);
        QCOMPARE(QFile(path).size(), 0);
    }

    void outputIsUtf8_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::newRow("in the locale of the tests") << QByteArray("");
        QTest::newRow("in the C locale") << QByteArray("C");
    }

    void outputIsUtf8()
    {
        QFETCH(QByteArray, locale);
        const auto restore = qScopeGuard([] { std::setlocale(LC_ALL, ""); });
        QVERIFY(std::setlocale(LC_ALL, locale.constData()));

        const QByteArray bytes = written(
            [](FileDriver &driver) { driver.write("Caff\u00e8 \u20ac \U0001f600 \u4e2d"); });
        QCOMPARE(bytes, "Caff\xc3\xa8 \xe2\x82\xac \xf0\x9f\x98\x80 \xe4\xb8\xad");
    }

    void outputThatCannotBeOpened_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("append");
        const auto rows = [](const QByteArray &what, const QString &name) {
            QTest::newRow(what.constData()) << name << false;
            QTest::newRow((what + ", to append").constData()) << name << true;
        };

        rows("in a folder that is missing", "missing/out");
        rows("a folder", ".");
        rows("below a file", "file/out");
        rows("no path", "");
    }

    void outputThatCannotBeOpened()
    {
        QFETCH(QString, name);
        QFETCH(bool, append);
        path = folder->filePath("file");
        writeFile(path, "OLD\n");

        const CapturedOutput output;
        FileDriver driver(name.isEmpty() ? name : folder->filePath(name), append);
        QCOMPARE(output.bytes(), cannotOpen);

        QVERIFY(readJob(driver, "<job><method name='printFullOrderReceipt'/>"
                                "<receipt serialnumber='42'/></job>"));
        QCOMPARE(driver.lines, QStringList({"Serial Number: 42", QString(32, '=')}));
        driver.write(QString(100000, 'A'));
        QCOMPARE(output.bytes(), cannotOpen);
        QCOMPARE(QDir(folder->path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
                 QStringList("file"));
        QCOMPARE(bytesOf(path), "OLD\n");
    }

    void outputToAPipe()
    {
        const QByteArray name = QFile::encodeName(path);
        QCOMPARE(mkfifo(name.constData(), S_IRUSR | S_IWUSR), 0);
        const int reader = open(name.constData(), O_RDONLY | O_NONBLOCK);
        QVERIFY(reader >= 0);
        const auto close = qScopeGuard([=] { ::close(reader); });

        const CapturedOutput output;
        {
            FileDriver driver(path, false);
            driver.write("=K\n");
        }
        QCOMPARE(output.bytes(), "");
        char bytes[16];
        QCOMPARE(read(reader, bytes, sizeof(bytes)), ssize_t(3));
        QCOMPARE(QByteArray(bytes, 3), "=K\n");
    }

    void outputToAFullDevice()
    {
        QVERIFY(QFile::exists("/dev/full"));
        const CapturedOutput output;
        {
            FileDriver driver("/dev/full", false);
            QVERIFY(readJob(driver, "<job><method name='printFullOrderReceipt'/>"
                                    "<receipt serialnumber='42'/></job>"));
            driver.write(QString(1000000, 'A'));
            QCOMPARE(driver.lines.size(), 2);
        }
        QCOMPARE(output.bytes(), "");
    }

private:
    /// What a driver leaves in the output file when it has gone.
    template<typename Use>
    QByteArray written(Use use)
    {
        {
            FileDriver driver(path, false);
            use(driver);
        }
        return bytesOf(path);
    }

    const TemporaryHome home{""};
    std::unique_ptr<QTemporaryDir> folder;
    QString path; // of the output file
};

KORVEL_TEST(TestDriverOutput)

} // namespace tst_driveroutput

#include "tst_driveroutput.moc"
