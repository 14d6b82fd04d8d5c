// korvel-recode as a user starts it: streams, what is lost of them, wrong usage.
#include "support/built.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/program.h"
#include "support/streams.h"
#include "support/test.h"

#include <QRegularExpression>
#include <QTemporaryDir>

namespace tst_recodeprogram {

const QString expected = KORVEL_SOURCE_DIR "/examples/expected/";

Run recode(const QStringList &arguments, const Surroundings &surroundings = {})
{
    return runProgram(built::recode, arguments, surroundings);
}

/// A folder with a stream in it.
class Desk
{
public:
    explicit Desk(const QByteArray &stream) { writeFile(folder.filePath("x.out"), stream); }

    [[nodiscard]] Run run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        return recode(arguments, {folder.path(), {}, input});
    }

    const QTemporaryDir folder;
};

#define VERIFY_ENDED(run, expectedStatus)                                                          \
    do {                                                                                           \
        QVERIFY2((run).exited, (run).standardError.constData());                                   \
        QVERIFY2((run).status == (expectedStatus), (run).standardError.constData());               \
    } while (false)

class TestRecodeProgram : public QObject
{
    Q_OBJECT

private slots:
    void streams_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QByteArray>("sent");
        QTest::addColumn<QByteArray>("said"); // behind the stream's name
        const auto row = [](const char *what, const QStringList &options, const QByteArray &stream,
                            const QByteArray &sent, const QByteArray &said = {}) {
            QTest::newRow(what) << options << stream << sent << said;
        };

        row("nothing", {"--to", "cp858"}, "", "");
        row("what the code page has", {"--to", "cp858"}, documentOf("Caffè 1 €"),
            documentOf("Caff\x8A 1 \xD5"));
        row("any bytes below 128", {"--to=cp858"}, QByteArray("=S\r\n\0\x1B\n=V", 9),
            QByteArray("=S\r\n\0\x1B\n=V", 9));
        row("back again", {"--from", "cp858", "--to", "UTF-8"}, documentOf("Caff\x8A 1 \xD5"),
            documentOf("Caffè 1 €"));
        row("from one to the other", {"--from", "cp858", "--to", "latin1"}, "\x8A", "\xE8");
        // The text begins in the column 5 of the line 2.
        row("what it lacks", {"--to", "cp437"}, documentOf("1 € “oggi”"),
            documentOf("1 E \"oggi\""),
            ":2:7: \"€\" (U+20AC) prints as \"E\"\n"
            ":2:9: \"“\" (U+201C) prints as \"\"\"\n"
            ":2:14: \"”\" (U+201D) prints as \"\"\"\n");
        row("each time", {"--to", "ascii"}, "è\nè", "e\ne",
            ":1:1: \"è\" (U+00E8) prints as \"e\"\n:2:1: \"è\" (U+00E8) prints as \"e\"\n");
        row("an emoji is two columns", {"--to", "cp858"}, "🍕€\n☃", "??\xD5\n?",
            ":1:1: \"🍕\" (U+1F355) prints as \"??\"\n:2:1: \"☃\" (U+2603) prints as \"?\"\n");
        row("what does not print goes by its number", {"--to", "ascii"}, "a\xC2\x85", "a?",
            ":1:2: U+0085 prints as \"?\"\n");
        row("no UTF-8", {"--to", "cp858"}, "=\xE8\n", "=?\n",
            ":1:2: the byte \\xe8 is not UTF-8 and prints as \"?\"\n");
    }

    void streams()
    {
        QFETCH(QStringList, options);
        QFETCH(QByteArray, stream);
        QFETCH(QByteArray, sent);
        QFETCH(QByteArray, said);
        const int status = said.isEmpty() ? 0 : 1;
        const Desk desk(stream);
        const auto check = [&](const Run &run, const QByteArray &name) {
            VERIFY_ENDED(run, status);
            QCOMPARE(run.standardOutput, sent);
            QByteArray lines;
            for (const QByteArray &line : said.split('\n'))
                if (!line.isEmpty())
                    lines += name + line + '\n';
            QCOMPARE(linesOf(run.standardError), linesOf(lines));
        };
        check(desk.run(options + QStringList("x.out")), "x.out");
        check(desk.run(options + QStringList("-"), stream), "-");
        check(desk.run(options, stream), "-");

        const Run quiet = desk.run(options + QStringList{"-q", "x.out"});
        VERIFY_ENDED(quiet, status);
        QCOMPARE(quiet.standardOutput, sent);
        QCOMPARE(quiet.standardError, "");
    }

    /// The samples, to a printer and back.
    void samples()
    {
        const Desk desk({});
        for (const QString &path : filesBelow(expected, "*.out")) {
            const Run sent = desk.run({"--to", "cp858", path});
            VERIFY_ENDED(sent, 0);
            const Run back = desk.run({"--from=cp858", "--to=utf-8"}, sent.standardOutput);
            VERIFY_ENDED(back, 0);
            QCOMPARE(linesOf(back.standardOutput), linesOf(bytesOf(path)));
        }
    }

    void aStreamCanBeNamedLikeAnOption()
    {
        const Desk desk({});
        writeFile(desk.folder.filePath("--to"), "=o\n");
        const Run run = desk.run({"--to", "cp858", "--", "--to"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(run.standardOutput, "=o\n");
    }

    void trouble_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("says"); // within its line
        const auto row = [](const char *what, const QStringList &arguments,
                            const QByteArray &says) { QTest::newRow(what) << arguments << says; };
        const QByteArray mayBe = "; take UTF-8, or one that iconv knows of one byte a character, "
                                 "with ASCII below 128, such as cp858\n";

        row("no code page", {"x.out"}, ": --to is needed");
        row("no value", {"x.out", "--to"}, "--to");
        row("an unknown one", {"--to", "nonsense", "x.out"},
            "there is no code page \"nonsense\"" + mayBe);
        row("an empty one", {"--to", "", "x.out"}, "there is no code page \"\"" + mayBe);
        row("with a way to convert", {"--to", "cp858//TRANSLIT", "x.out"},
            "there is no code page \"cp858//TRANSLIT\"" + mayBe);
        row("of several bytes", {"--to", "UTF-16", "x.out"},
            "there is no code page \"UTF-16\"" + mayBe);
        row("from one of several bytes", {"--from", "SHIFT_JIS", "--to", "UTF-8", "x.out"},
            "there is no code page \"SHIFT_JIS\"" + mayBe);
        row("an unknown option", {"--to", "cp858", "--fast", "x.out"}, "fast");
        row("two streams", {"--to", "cp858", "x.out", "x.out"}, ": one stream is enough");
        row("a missing stream", {"--to", "cp858", "missing"}, ": missing: ");
        row("a folder", {"--to", "cp858", "."}, ": .: ");
        row("an endless stream", {"--to", "cp858", "/dev/zero"},
            ": /dev/zero: larger than 4194304 bytes");
    }

    void trouble()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, says);
        const Desk desk("=o\n");
        const Run run = desk.run(arguments);
        VERIFY_ENDED(run, 2);
        QCOMPARE(run.standardOutput, "");
        QVERIFY2(run.standardError.startsWith("korvel-recode: "), run.standardError.constData());
        QCOMPARE(run.standardError.count('\n'), 1);
        QVERIFY2(run.standardError.contains(says), run.standardError.constData());
    }

    void standardOutputThatTakesNothing()
    {
        const Desk desk(documentOf("Ciao"));
        for (const QStringList &arguments :
             {QStringList{"--to", "cp858", "x.out"}, QStringList{"--help"}}) {
            const Run run = recode(arguments, {desk.folder.path(), {}, {}, "/dev/full"});
            VERIFY_ENDED(run, 2);
            QCOMPARE(run.standardError, "korvel-recode: cannot write to standard output\n");
        }
    }

    void helpAndVersion()
    {
        const Run help = recode({"--help"});
        VERIFY_ENDED(help, 0);
        for (const char *name : {"--from", "--to", "-q, --quiet", "--version", "STREAM"})
            QVERIFY2(help.standardOutput.contains(name), help.standardOutput.constData());
        const Run version = recode({"--version"});
        VERIFY_ENDED(version, 0);
        QCOMPARE(version.standardOutput, "korvel-recode " KORVEL_VERSION "\n");
    }
};

KORVEL_TEST(TestRecodeProgram)

} // namespace tst_recodeprogram

#include "tst_recodeprogram.moc"
