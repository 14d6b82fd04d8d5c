// The manual pages: their options and arguments are the programs' own, and their examples run.
#include "support/built.h"
#include "support/renderer.h"
#include "support/temporaryhome.h"
#include "support/test.h"
#include "support/vocabularytables.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace tst_manpages {

const QString top = KORVEL_SOURCE_DIR "/";

struct Program
{
    QString name;
    QString path;
};

// clang-format off
const QList<Program> programs = {
    {"korvel-check",       built::check      },
    {"korvel-deliver",     built::deliver    },
    {"korvel-journal",     built::journal    },
    {"korvel-preview",     built::preview    },
    {"korvel-print",       built::print      },
    {"korvel-printer-sim", built::printerSim},
    {"korvel-recode",      built::recode     },
    {"korvel-settings",    built::settings   },
};
// clang-format on

const QString renderer = "korvel-print";
const QString driver = "korvel-queue"; // of CUPS, whose programs nobody calls

// Pages whose examples are not run.
const QStringList notRun = {
    "korvel-settings", // they open a window and wait for its user
    driver,            // they need a print server with the driver: tst_queue*.cpp have one
};

QString pathOf(const QString &name)
{
    for (const Program &program : programs)
        if (program.name == name)
            return program.path;
    return {};
}

QStringList captured(const QString &text, const char *pattern)
{
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    for (const auto &match : expression.globalMatch(text))
        found.append(match.captured(1));
    return found;
}

// What the pages say.

QString pageOf(const QString &name, const QString &section = "1")
{
    return QString::fromUtf8(bytesOf(top + "docs/man/" + name + '.' + section + ".in"));
}

QString section(const QString &page, const QString &heading)
{
    return page.section("\n.Sh " + heading + '\n', 1, 1).section("\n.Sh ", 0, 0) + '\n';
}

/// Options as the help has them, "-o, --output <file>", each from its row of the list. A row that
/// is not understood comes as it is.
QStringList optionsOnThePage(const QString &page)
{
    static const QRegularExpression spelling("^Fl (\\S+)(?: Ar (\\S+))?$");
    QStringList options;
    for (const QString &row : captured(section(page, "OPTIONS"), "^\\.It (.*)$")) {
        QStringList spellings;
        QStringList arguments;
        for (const QString &part : row.split(" , ")) {
            const auto match = spelling.match(part);
            spellings.append(match.hasMatch() ? '-' + match.captured(1) : part);
            arguments.append(match.captured(2));
        }
        QString option = spellings.join(", ");
        for (const QString &argument : sorted(arguments))
            if (!argument.isEmpty())
                option += " <" + argument + '>';
        options.append(option);
    }
    return options;
}

QStringList spellingsOf(const QString &option) { return captured(option, "(?:^| )(--?[\\w-]+)"); }

/// All options that a text names, as they are typed.
QStringList optionsNamedIn(const QString &text)
{
    QStringList options;
    for (const QString &name : captured(text, "\\bFl (-?\\w[\\w-]*)"))
        options.append('-' + name);
    return sorted(options);
}

/// The arguments of the synopsis that belong to no option.
QStringList argumentsOnThePage(const QString &page)
{
    QString synopsis = section(page, "SYNOPSIS");
    synopsis.remove(QRegularExpression("Fl \\S+ Ar \\S+"));
    return sorted(captured(synopsis, "\\bAr (\\w+)"));
}

struct Example
{
    QString script;
    QStringList output; // none where the page shows none
};

/// A literal line without the escapes that keep its characters as they are typed.
QString literal(QString line)
{
    static const QRegularExpression numbered("\\\\\\[u([0-9A-F]{4})\\]");
    for (auto match = numbered.match(line); match.hasMatch(); match = numbered.match(line))
        line.replace(match.capturedStart(), match.capturedLength(),
                     QChar(match.captured(1).toUShort(nullptr, 16)));
    return line.remove("\\&").replace("\\-", "-").replace("\\(ti", "~").replace("\\e", "\\");
}

/// The displays of the examples: commands behind "$", their further lines behind ">", and what they
/// write.
QList<Example> examplesOf(const QString &page)
{
    QList<Example> examples;
    bool inDisplay = false;
    for (const QString &line : section(page, "EXAMPLES").split('\n')) {
        if (line.startsWith(".Bd -literal"))
            examples.append(Example());
        const bool isContent = inDisplay && line != ".Ed";
        inDisplay = line.startsWith(".Bd -literal") || isContent;
        if (!isContent)
            continue;
        if (line.startsWith("$ ") || line.startsWith("> "))
            examples.last().script += literal(line.mid(2)) + '\n';
        else
            examples.last().output.append(literal(line));
    }
    return examples;
}

// What the programs say.

QString saidBy(const QString &name, const QStringList &arguments)
{
    const Run run = runProgram(pathOf(name), arguments, {QDir::tempPath(), {}, {}});
    return run.exited && run.status == 0 ? QString::fromUtf8(run.standardOutput) : QString();
}

/// The part of a help below a heading, up to an empty line.
QString helpBelow(const QString &help, const QString &heading)
{
    return help.section('\n' + heading + ":\n", 1, 1).section("\n\n", 0, 0);
}

QStringList optionsInTheHelp(const QString &help)
{
    return captured(helpBelow(help, "Options"), "^  (-\\S*(?: \\S+)*)");
}

class TestManPages : public QObject
{
    Q_OBJECT

private slots:
    void everyProgramHasAPage()
    {
        QStringList files;
        for (const Program &program : programs)
            files.append(program.name + ".1.in");
        files.insert(files.indexOf("korvel-recode.1.in"), driver + ".8.in");
        QCOMPARE(QDir(top + "docs/man").entryList({"*.in"}, QDir::Files, QDir::Name), files);
    }

    void heads_data() { addPrograms(); }

    void heads()
    {
        const QString name = QTest::currentDataTag();
        const QStringList lines = pageOf(name).split('\n');
        QCOMPARE(lines.value(1), ".Dt " + name.toUpper() + " 1");
        QCOMPARE(lines.value(2), QString(".Os korvel-print @PROJECT_VERSION@"));
        QCOMPARE(lines.value(3), QString(".Sh NAME"));
        QCOMPARE(lines.value(4), ".Nm " + name);
    }

    /// A pattern that no longer fits would find nothing on either side.
    void optionsAreFound()
    {
        QCOMPARE(
            optionsOnThePage("\n.Sh OPTIONS\n.It Fl a Ar x , Fl -all Ar x\n.It Fl -b\n.Sh X\n"),
            QStringList({"-a, --all <x>", "--b"}));
        QCOMPARE(
            optionsInTheHelp("Usage\n\nOptions:\n  -a, --all <x>  All.\n                 More.\n"
                             "  --b            B.\n\nArguments:\n  -c  No option.\n"),
            QStringList({"-a, --all <x>", "--b"}));
        QVERIFY(optionsOnThePage(pageOf("korvel-preview")).contains("-o, --output <file>"));
        QVERIFY(optionsInTheHelp(saidBy("korvel-preview", {"--help"})).contains("--json"));
    }

    void options_data() { addPrograms(); }

    void options()
    {
        const QString name = QTest::currentDataTag();
        const QStringList onThePage = optionsOnThePage(pageOf(name));
        if (name == renderer) {
            QCOMPARE(onThePage, QStringList());
            QVERIFY(!section(pageOf(name), "OPTIONS").trimmed().isEmpty());
            return;
        }
        QCOMPARE(onThePage, optionsInTheHelp(saidBy(name, {"--help"})));
        QVERIFY(onThePage.contains("-h, --help"));
    }

    void synopsis_data() { addPrograms(); }

    void synopsis()
    {
        const QString name = QTest::currentDataTag();
        const QString page = pageOf(name);
        const QStringList inTheSynopsis = optionsNamedIn(section(page, "SYNOPSIS"));
        QStringList known;
        for (const QString &option : optionsOnThePage(page)) {
            const QStringList spellings = spellingsOf(option);
            known += spellings;
            bool found = spellings.contains("--help-all");
            for (const QString &spelling : spellings)
                found = found || inTheSynopsis.contains(spelling);
            QVERIFY2(found, qPrintable(option + " is not in the synopsis"));
        }
        for (const QString &option : optionsNamedIn(page))
            QVERIFY2(known.contains(option), qPrintable(option + " is not among the options"));
    }

    void arguments_data() { addPrograms(); }

    void arguments()
    {
        const QString name = QTest::currentDataTag();
        QStringList said;
        if (name == renderer) {
            const QString usage = saidBy(name, {});
            QVERIFY(usage.startsWith("Usage: " + QString(built::print) + " "));
            said = usage.section(built::print, 1).simplified().split(' ');
        } else {
            said = captured(helpBelow(saidBy(name, {"--help"}), "Arguments"), "^  (\\w+)");
            for (QString &argument : said)
                argument = argument.toLower(); // pages set them in another face, not in capitals
        }
        QCOMPARE(said.isEmpty(), name == "korvel-printer-sim"); // which has options alone
        QCOMPARE(argumentsOnThePage(pageOf(name)), sorted(said));
    }

    void references_data() { addPrograms(); }

    void references()
    {
        const QString name = QTest::currentDataTag();
        QStringList others;
        for (const Program &program : programs)
            if (program.name != name)
                others.append(program.name);
        others.append(driver);
        const QString page = pageOf(name);
        QCOMPARE(captured(section(page, "SEE ALSO"), "^\\.Xr (\\S+) [18]\\b"), others);
        QCOMPARE(sorted(captured(page, "\\bXr (\\S+)")), sorted(others));
    }

    void referencesOfTheDriver()
    {
        QStringList all;
        for (const Program &program : programs)
            all.append(program.name);
        QCOMPARE(captured(section(pageOf(driver, "8"), "SEE ALSO"), "^\\.Xr (\\S+) [18]\\b"),
                 all + QStringList({"lp", "lpadmin"}));
    }

    /// Each message of the renderer, in its order, is a row of its page.
    void diagnosticsOfTheRenderer()
    {
        const TemporaryHome home;
        QFile job(home.path() + "/job.xml");
        QVERIFY(job.open(QIODevice::WriteOnly));
        job.write("<job><method name=\"print\"/></job>");
        job.close();
        const Run usage = runRenderer({}, home.path());
        VERIFY_SOUND(usage);
        const Run run = runRenderer({"job.xml", "."}, home.path());
        VERIFY_SOUND(run);
        const QString said = QString::fromUtf8(usage.standardOutput + run.standardOutput)
                                 .replace(built::print, renderer)
                                 .replace(home.settingsPath(), "path")
                                 .trimmed();
        QCOMPARE(said.split('\n').size(), 4);
        QCOMPARE(captured(section(pageOf(renderer), "DIAGNOSTICS"), "^\\.It (.*)$"),
                 said.split('\n'));
    }

    /// What is set apart is an example, which is run below.
    void displaysAreExamples_data()
    {
        addPrograms();
        QTest::newRow(qPrintable(driver)) << QString();
    }

    void displaysAreExamples()
    {
        const QString name = QTest::currentDataTag();
        const QString page = pageOf(name, name == driver ? "8" : "1");
        QCOMPARE(page.count("\n.Bd "), section(page, "EXAMPLES").count("\n.Bd -literal"));
        QCOMPARE(page.count("\n.Dl "), 0);
    }

    void examples_data()
    {
        QTest::addColumn<QString>("unused");
        for (const Program &program : programs)
            if (!notRun.contains(program.name))
                QTest::newRow(qPrintable(program.name)) << QString();
    }

    void examples()
    {
        const QList<Example> examples = examplesOf(pageOf(QTest::currentDataTag()));
        QVERIFY(examples.size() >= 3);

        // They find what is installed, and nothing else.
        const QTemporaryDir installed;
        const Run install = runProgram(
            "cmake",
            {"--install", built::folder, "--component", "print", "--prefix", installed.path()}, {});
        QVERIFY2(install.status == 0, install.standardError.constData());

        // One folder and one HOME for all examples of a page: a later one may build on an earlier.
        const TemporaryHome home(bytesOf(top + "examples/korvel.conf"));
        QString path = QString::fromLocal8Bit(qgetenv("PATH"));
        for (const Program &program : programs)
            path.prepend(QFileInfo(program.path).path() + ':');
        const QStringList variables = {
            "PATH=" + path,
            "EXAMPLES=" + installed.filePath("share/doc/korvel-print/examples"),
            "SAMPLE=" + installed.filePath("share/korvel-print/korvel.conf"),
            "CATALOGUES=" + installed.filePath("share/korvel-print/translations"),
        };
        for (const Example &example : examples) {
            QString script = example.script;
            QVERIFY(!script.isEmpty());
            script.replace("/usr/share/doc/korvel-print/examples", "\"$EXAMPLES\"")
                .replace("/usr/share/korvel-print/korvel.conf", "\"$SAMPLE\"")
                .replace("/usr/share/korvel-print/translations", "\"$CATALOGUES\"")
                .replace("/dev/usb/lp0", "printed");
            const Run run = runProgram("/bin/sh", {"-e", "-c", "exec 2>&1\n" + script},
                                       {home.path(), variables, {}});
            const QString output = QString::fromUtf8(run.standardOutput).remove('\r');
            QVERIFY2(run.exited && run.status == 0, qPrintable(script + output));
            if (!example.output.isEmpty())
                QCOMPARE(output, example.output.join('\n') + '\n');
        }
    }

private:
    static void addPrograms()
    {
        QTest::addColumn<QString>("unused");
        for (const Program &program : programs)
            QTest::newRow(qPrintable(program.name)) << QString();
    }
};

KORVEL_TEST(TestManPages)

} // namespace tst_manpages

#include "tst_manpages.moc"
