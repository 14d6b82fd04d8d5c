// The commands of README and the pages of docs: each is run as it stands, or a row says why not.
// Those of the manual pages are run by tst_manpages.
#include "support/built.h"
#include "support/keptport.h"
#include "support/pagecommands.h"
#include "support/printers.h"
#include "support/test.h"

#include <QFileInfo>

namespace tst_pagecommands {

const QString top = KORVEL_SOURCE_DIR "/";

struct Excuse
{
    const char *pattern; // of a whole command, or of the first line of a block
    const char *reason;
};

// clang-format off

// Commands that are not run here.
const Excuse notRun[] = {
    {"sudo .*",                    "needs root; scripts/package --check installs the packages"},
    {"(lp|lpstat) .*",             "needs a print server with the driver: tst_queue*.cpp have one"},
    {"\\./(scripts/|\\.ci/).*",    "builds or measures for minutes: each change runs it"},
    {"git .*",                     "makes a release"},
    {"cmake .*",                   "builds for minutes: the tests consumer* do the same"},
    {"HOME=\\$PWD/build/print.*",  "runs what was built: the test consumer does the same"},
    {"parallel .*",                "needs machines of a shop"},
    {"korvel-settings",            "opens a window and waits for its user: tst_settings*.cpp"},
    {"korvel-printer-sim( --pty| --fault reset=64 --first 1)?",
                                   "waits for senders until it is ended: tst_simulator*.cpp"},
};

// Blocks that are not commands: forms of a call, lines of a file, what is written.
const Excuse noCommands[] = {
    {"korvel-[a-z-]+ \\[.*",       "how a program is called"},
    {"file:line:.*",               "the form of a finding"},
    {"receipt(-summary)?\\.xml: .*", "what is said of a job"},
    {"receipt-summary\\.out:.*",   "what is said of a stream"},
    {"\\{\".*",                    "an object of the JSON"},
    {"<.*",                        "a line of a job"},
    {"~/\\S+",                     "the place of a file"},
    {"Num Description.*",          "lines of a receipt"},
    {"  2 x .*",                   "a line of a receipt"},
    {"\\(32 - n\\).*",             "a formula"},
    {"run   .*",                   "what is measured"},
    {"pictures   .*",              "the picture of the rooms"},
    {"project\\(.*",               "lines of CMakeLists.txt"},
    {"=o/.*",                      "a stream"},
    {" +job or stream wrong",      "the picture of the states"},
};

// clang-format on

/// The excuse for a text, if there is one.
template<std::size_t Count>
const Excuse *excuseOf(const Excuse (&excuses)[Count], const QString &text)
{
    for (const Excuse &excuse : excuses) {
        const QString pattern = QRegularExpression::anchoredPattern(excuse.pattern);
        const QRegularExpression whole(pattern, QRegularExpression::DotMatchesEverythingOption);
        if (whole.match(text).hasMatch())
            return &excuse;
    }
    return nullptr;
}

bool isCommands(const PageBlock &block)
{
    return block.kind == PageBlock::Commands
           && !excuseOf(noCommands, block.text.section('\n', 0, 0));
}

/// Whether a page starts the printer that is at 127.0.0.1:9100.
bool hasPrinter(const QString &page)
{
    return QString::fromUtf8(bytesOf(top + page))
        .contains(
            QRegularExpression("korvel-printer-sim (--listen 127.0.0.1:9100|--documents) .*&"));
}

bool isTutorial(const QString &page) { return page.startsWith("docs/tutorial-"); }

QStringList pages()
{
    QStringList paths = {"README.md"};
    for (const QString &file : QDir(top + "docs").entryList({"*.md"}, QDir::Files, QDir::Name))
        paths.append("docs/" + file);
    return paths;
}

/// What a reference page takes for granted: the sample shop's settings, some jobs and streams.
void furnish(const PageShell &shell)
{
    const QDir home(shell.home());
    home.mkpath(".korvel/conf");
    home.mkpath("day");
    QFile::copy(top + "examples/korvel.conf", home.filePath(".korvel/conf/korvel.conf"));
    QFile::link(top + "examples", home.filePath("examples"));
    for (const char *name : {"receipt.xml", "job.xml", "input_file", "120.xml"})
        QFile::copy(top + "examples/jobs/receipt.xml", home.filePath(name));
    for (const char *name : {"receipt.out", "118.out", "119.out", "day/118.out"})
        QFile::copy(top + "examples/expected/receipt.out", home.filePath(name));
    shell.addProgram("producer-of-jobs", "cat ~/receipt.xml\n");
    shell.addProgram("lp", "cat > /dev/null\n");
}

class TestPageCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const Run install = runProgram(
            "cmake",
            {"--install", built::folder, "--component", "print", "--prefix", installed.path()}, {});
        QVERIFY2(install.status == 0, install.standardError.constData());
    }

    void commandsRun_data()
    {
        QTest::addColumn<QString>("unused");
        for (const QString &page : pages())
            QTest::newRow(qPrintable(page)) << QString();
    }

    void commandsRun()
    {
        const QString page = QTest::currentDataTag();
        NetworkPrinter network;
        LinePrinter line;
        const KeptPort simulated; // where a page's own commands listen
        PageShell shell(standIns(hasPrinter(page) ? simulated.address() : network.device().mid(6),
                                 network.device(), line.path()));
        if (!isTutorial(page))
            furnish(shell);

        const QList<PageBlock> blocks = blocksOf(top + page);
        for (const PageBlock &block : blocks) {
            QVERIFY2(block.kind != PageBlock::Unknown, qPrintable(block.text));
            if (block.kind == PageBlock::File && isTutorial(page))
                shell.save(block.name, block.text);
            if (!isCommands(block))
                continue;
            QStringList commands;
            for (const QString &command : commandsOf(block))
                if (!excuseOf(notRun, command))
                    commands.append(command);
            shell.type(block.line, commands.join('\n'));
        }
        const Run run = shell.run(programs());
        QCOMPARE(run.standardError, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(QString::fromUtf8(shell.failed()), QString());

        // What a tutorial shows below its commands is what they write.
        for (qsizetype i = 1; i < blocks.size() && isTutorial(page); ++i) {
            if (blocks[i].kind != PageBlock::Output)
                continue;
            QVERIFY2(isCommands(blocks[i - 1]), qPrintable(blocks[i].text));
            const QString output = shell.output(blocks[i - 1].line);
            const QString shown = QString("line %1 shows\n%2but it is\n%3");
            QVERIFY2(output == blocks[i].text,
                     qPrintable(shown.arg(blocks[i].line).arg(blocks[i].text, output)));
        }
    }

    /// An excuse that no page needs is dropped.
    void everyExcuseIsNeeded()
    {
        QSet<const Excuse *> needed;
        for (const QString &page : pages()) {
            for (const PageBlock &block : blocksOf(top + page)) {
                if (block.kind != PageBlock::Commands)
                    continue;
                needed.insert(excuseOf(noCommands, block.text.section('\n', 0, 0)));
                if (!isCommands(block))
                    continue;
                for (const QString &command : commandsOf(block))
                    needed.insert(excuseOf(notRun, command));
            }
        }
        for (const Excuse &excuse : notRun)
            QVERIFY2(needed.contains(&excuse), excuse.pattern);
        for (const Excuse &excuse : noCommands)
            QVERIFY2(needed.contains(&excuse), excuse.pattern);
    }

    /// A command that fails, and an output that differs, are seen.
    void whatFailsIsSeen()
    {
        PageShell shell(QList<StandIn>{{"/there", "/here"}});
        shell.type(1, "false\necho /there");
        QCOMPARE(shell.run({}).status, 0);
        QCOMPARE(shell.failed(), "false\n");
        QCOMPARE(shell.output(1), "/there\n");

        PageShell wrong(QList<StandIn>{});
        wrong.type(1, "project(x)");
        QVERIFY(wrong.run({}).status != 0);
    }

    void blocksAreFound()
    {
        const QTemporaryDir folder;
        writeFile(folder.filePath("page.md"),
                  "text\n    no block\n\n    one   a remark\n    two \\\n"
                  "        three\n\n```sh\nfour\n```\n```text\nfive\n"
                  "```\n```xml job.xml\n<job/>\n```\n"
                  "```console\nsix\n```\n");
        const QList<PageBlock> blocks = blocksOf(folder.filePath("page.md"));
        QCOMPARE(blocks.size(), 5);
        QCOMPARE(blocks[0].kind, PageBlock::Commands);
        QCOMPARE(blocks[0].line, 4);
        QCOMPARE(commandsOf(blocks[0]), QStringList({"one", "two \\\n    three"}));
        QCOMPARE(blocks[1].kind, PageBlock::Commands);
        QCOMPARE(blocks[1].text, "four\n");
        QCOMPARE(blocks[2].kind, PageBlock::Output);
        QCOMPARE(blocks[3].kind, PageBlock::File);
        QCOMPARE(blocks[3].name, "job.xml");
        QCOMPARE(blocks[4].kind, PageBlock::Unknown);
    }

private:
    /// @param simulated where 127.0.0.1:9100 is here
    /// @param network the printer of the examples' network
    [[nodiscard]] QList<StandIn> standIns(const QString &simulated, const QString &network,
                                          const QString &serial) const
    {
        const QString share = installed.filePath("share");
        return {
            {"/usr/share/doc/korvel-print/examples", share + "/doc/korvel-print/examples"},
            {"/usr/share/korvel-print", share + "/korvel-print"},
            {"tcp://192.168.1.50:9100", network},
            {"tcp://192.168.1.50", network},
            {"/dev/tcp/192.168.1.50/9100", "/dev/tcp/" + network.mid(6).replace(':', '/')},
            {"127.0.0.1:9100", simulated},
            {"korvel-printer-sim --documents",
             "korvel-printer-sim --listen " + simulated + " --documents"},
            {"/dev/tcp/127.0.0.1/9100", "/dev/tcp/" + QString(simulated).replace(':', '/')},
            {"/dev/ttyS0", serial},
            {"/dev/usb/lp0", "/dev/null"},
        };
    }

    static QStringList programs()
    {
        QStringList folders;
        for (const char *program : {built::print, built::preview, built::check, built::recode,
                                    built::printerSim, built::deliver, built::journal})
            folders.append(QFileInfo(program).path());
        return folders;
    }

    const QTemporaryDir installed;
};

KORVEL_TEST(TestPageCommands)

} // namespace tst_pagecommands

#include "tst_pagecommands.moc"
