// The user's settings file and the singleton that the program reads it through.
#include "config/configuration.h"
#include "support/capturedoutput.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace tst_configuration {

using Settings = SyncSingleton<KVConfiguration>;

constexpr auto width24 = R"(korvel: { receiptdoc: { descriptionWidth = "24"; }; };)";
const QString width = "korvel.receiptdoc.descriptionWidth";

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// Takes a while to construct, so that threads meet in it.
struct Slow
{
    Slow()
    {
        ++constructions;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        whole = true;
    }
    bool whole = false;
    inline static std::atomic<int> constructions = 0;
};

/// Cannot be constructed at the first try.
struct SecondTry
{
    SecondTry()
    {
        if (++tries == 1)
            throw std::runtime_error("not yet");
    }
    inline static int tries = 0;
};

/// Counts how many of it were deleted.
struct Counted
{
    ~Counted() { ++deletions; }
    inline static int deletions = 0;
};

/// Says on a pipe that it is deleted, and ends the process there: a leak checker that runs later
/// would trip over the threads that a fork leaves behind.
struct Farewell
{
    ~Farewell() { ::_exit(::write(pipe, "deleted", 7) == 7 ? 0 : 1); }
    int pipe = -1;
};

class TestConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void value_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        const auto row = [](const char *name, const QByteArray &text, const QString &key,
                            const QString &value) { QTest::newRow(name) << text << key << value; };

        row("a number is a text", width24, width, "24");
        row("a missing setting is empty", width24, "korvel.receiptdoc.paperWidth", "");
        row("a missing group is empty", width24, "korvel.invoicedoc.descriptionWidth", "");
        row("no key", width24, "", "");
        row("an empty value is empty", R"(korvel: { a = ""; };)", "korvel.a", "");
        row("the second top-level group is out of reach",
            R"(korvel: { a = "1"; }; other: { b = "2"; };)", "other.b", "");
        row("a setting outside every group is out of reach", R"(a = "1"; korvel: { b = "2"; };)",
            "korvel.a", "");
        row("blanks inside the quotes stay", R"(korvel: { a = "  x "; };)", "korvel.a", "  x ");
        row("quotes in the middle go", R"(korvel: { a = say "hi"; };)", "korvel.a", "say hi");
        row("a yes is no more than a text", R"(korvel: { a = "TRUE"; };)", "korvel.a", "TRUE");
        row("a value is Latin-1", "korvel: { a = \"caff\xE8 \xFF\"; };", "korvel.a", "caffè ÿ");
        row("a value in UTF-8 is read as Latin-1", "korvel: { a = \"\xC3\xA8\"; };", "korvel.a",
            "Ã¨");
        row("a key may be Latin-1", "korvel: { caff\xE8 = \"1\"; };", "korvel.caffè", "1");
        row("a key beyond Latin-1 is not found", "korvel: { x = \"1\"; };", "korvel.€", "");
        row("a character of a key beyond Latin-1 counts as '?'", "korvel: { price in ? = \"1\"; };",
            "korvel.price in €", "1");
        row("so it does in a group", "korvel: { ?: { x = \"1\"; }; };", "korvel.Ж.x", "1");
    }

    void value()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, key);
        QFETCH(QString, value);
        const TemporaryHome home(text);
        QCOMPARE(KVConfiguration().getStrValue(key), value);
        QCOMPARE(Settings::instance()->getStrValue(key), value);
    }

    void everyByteOfAValue()
    {
        QByteArray value;
        for (int byte = 1; byte <= 255; ++byte)
            if (byte != ';' && byte != '"')
                value += static_cast<char>(byte);
        const TemporaryHome home("korvel: { a = \"" + value + "\"; };");
        const QString answer = KVConfiguration().getStrValue("korvel.a");
        QCOMPARE(answer, QString::fromLatin1(value));
        QCOMPARE(answer.toLatin1(), value);
    }

    void home_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("tail");
        const auto row = [](const char *name, const QString &folder, const QString &tail) {
            QTest::newRow(name) << folder << tail;
        };

        row("without a slash at its end", "/home", "");
        row("with a slash at its end", "/home", "/");
        row("with an accent", "/caffè", "");
        row("with an accent and a slash", "/caffè", "/");
        row("with a character beyond Latin-1", "/кофе€", "");
        row("with blanks", "/my home ", "");
        row("with %1 and quotes", "/%1\"'", "");
    }

    void home()
    {
        QFETCH(QString, folder);
        QFETCH(QString, tail);
        const TemporaryHome temporary;
        const QString conf = temporary.path() + folder + "/.korvel/conf";
        const QString path = conf + "/korvel.conf";
        QVERIFY(QDir().mkpath(conf));
        qputenv("HOME", (temporary.path() + folder + tail).toUtf8());

        QCOMPARE(outputOf([] { QCOMPARE(KVConfiguration().getStrValue(width), ""); }),
                 notFound(path));
        write(path, width24);
        QCOMPARE(outputOf([] { QCOMPARE(KVConfiguration().getStrValue(width), "24"); }), "");
    }

    void missingFile()
    {
        const TemporaryHome home;
        const QByteArray output = outputOf([] {
            QVERIFY(Settings::instance());
            QCOMPARE(Settings::instance()->getStrValue(width), "");
            QCOMPARE(Settings::instance()->getStrValue("korvel.language.file"), "");
            QCOMPARE(Settings::instance()->getStrValue(""), "");
        });
        QCOMPARE(output, notFound(home.path() + "/.korvel/conf/korvel.conf"));
    }

    void onlyTheBraceNotation()
    {
        const TemporaryHome home(R"(<korvel a="1"/>)");
        QCOMPARE(KVConfiguration().getStrValue("korvel.a"), "");
    }

    void ofBytes()
    {
        const TemporaryHome home("korvel: { a = user; };");
        const KVConfiguration settings("korvel: { a = own\xE8; };");
        QCOMPARE(settings.getStrValue("korvel.a"), QString("ownè"));
        QCOMPARE(KVConfiguration(QByteArray()).getStrValue("korvel.a"), "");
    }

    void madeOnFirstUse()
    {
        const TemporaryHome home(width24);
        QVERIFY(!Settings::instance_pointer.load());
        QVERIFY(!Settings::instance_destroyer.pointer);
        const KVConfiguration *instance = Settings::instance();
        QVERIFY(instance);
        QCOMPARE(Settings::instance_pointer.load(), instance);
        QCOMPARE(Settings::instance_destroyer.pointer, instance);
    }

    void madeOnce()
    {
        const TemporaryHome home(width24);
        const KVConfiguration *instance = Settings::instance();
        QCOMPARE(Settings::instance(), instance);
        Settings::createInstance();
        QCOMPARE(Settings::instance(), instance);
        QCOMPARE(Settings::instance_destroyer.pointer, instance);
    }

    void readOnce()
    {
        const TemporaryHome home(width24);
        QCOMPARE(Settings::instance()->getStrValue(width), "24");
        write(home.settingsPath(), R"(korvel: { receiptdoc: { descriptionWidth = "32"; }; };)");
        QCOMPARE(Settings::instance()->getStrValue(width), "24");
        QVERIFY(QFile::remove(home.settingsPath()));
        QCOMPARE(outputOf([] { QCOMPARE(Settings::instance()->getStrValue(width), "24"); }), "");
    }

    void threadsShareOneInstance()
    {
        std::array<Slow *, 8> instances = {};
        std::array<bool, 8> whole = {};
        std::atomic<std::size_t> missing = instances.size();
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < instances.size(); ++i)
            threads.emplace_back([&, i] {
                --missing;
                while (missing > 0)
                    std::this_thread::yield();
                instances[i] = SyncSingleton<Slow>::instance();
                whole[i] = instances[i]->whole;
            });
        for (std::thread &thread : threads)
            thread.join();

        QCOMPARE(Slow::constructions.load(), 1);
        for (std::size_t i = 0; i < instances.size(); ++i) {
            QCOMPARE(instances[i], SyncSingleton<Slow>::instance());
            QVERIFY(whole[i]);
        }
    }

    void failedConstruction()
    {
        using Singleton = SyncSingleton<SecondTry>;
        QVERIFY_EXCEPTION_THROWN(Singleton::instance(), std::runtime_error);
        QVERIFY(!Singleton::instance_pointer.load());
        QVERIFY(!Singleton::instance_destroyer.pointer);
        QVERIFY(Singleton::instance());
        QCOMPARE(SecondTry::tries, 2);
    }

    void destroyer()
    {
        {
            SyncSingleton<Counted>::Destroyer<Counted> full;
            QVERIFY(!full.pointer);
            full.pointer = new Counted;
            const SyncSingleton<Counted>::Destroyer<Counted> empty;
            QCOMPARE(Counted::deletions, 0);
        }
        QCOMPARE(Counted::deletions, 1);
    }

    void deletedWhenTheProcessEnds()
    {
        int ends[2];
        QCOMPARE(::pipe(ends), 0);
        const pid_t child = ::fork();
        QVERIFY(child >= 0);
        if (child == 0) {
            SyncSingleton<Farewell>::instance()->pipe = ends[1];
            std::exit(0);
        }
        ::close(ends[1]);
        QFile said;
        QVERIFY(said.open(ends[0], QIODevice::ReadOnly, QFile::AutoCloseHandle));
        QCOMPARE(said.readAll(), "deleted");
        int status = -1;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
    }
};

KORVEL_TEST(TestConfiguration)

} // namespace tst_configuration

#include "tst_configuration.moc"
