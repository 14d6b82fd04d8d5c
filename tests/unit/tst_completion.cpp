// The completion of bash: each program's options, and the words that they take, as its help has
// them.
#include "support/built.h"
#include "support/renderer.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace tst_completion {

// clang-format off
const QStringList programs = {
    built::check, built::deliver,     built::journal, built::preview,
    built::print, built::printerSim, built::recode,  built::settings,
};
// clang-format on

QStringList inOrder(QStringList list)
{
    list.sort();
    return list;
}

/// All spellings of the options in the help.
QStringList optionsInTheHelp(const QString &program)
{
    const Run run = runProgram(program, {"--help"}, {QDir::tempPath(), {}, {}});
    static const QRegularExpression row("^  (-[^\\s,]+)(?:, (--\\S+))?",
                                        QRegularExpression::MultilineOption);
    QStringList options;
    for (const auto &match : row.globalMatch(QString::fromUtf8(run.standardOutput)))
        for (const QString &spelling : {match.captured(1), match.captured(2)})
            if (!spelling.isEmpty())
                options.append(spelling);
    return inOrder(options);
}

class TestCompletion : public QObject
{
    Q_OBJECT

private slots:
    /// As they are installed: one file under the name of each program.
    void initTestCase()
    {
        const QString folder = data.filePath("bash-completion/completions/");
        QVERIFY(QDir().mkpath(folder));
        for (const QString &program : programs)
            QVERIFY(QFile::copy(KORVEL_SOURCE_DIR "/packaging/completion.bash",
                                folder + QFileInfo(program).fileName()));
        QVERIFY(home.isValid());
        for (const char *name : {"job.xml", "other.xml"}) {
            QFile file(home.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QVERIFY(QDir(home.path()).mkdir("folder"));
    }

    /// Each option is offered, and none that the program does not have.
    void options_data()
    {
        QTest::addColumn<QString>("program");
        for (const QString &program : programs)
            QTest::newRow(qPrintable(QFileInfo(program).fileName())) << program;
    }

    void options()
    {
        QFETCH(QString, program);
        const QString name = QFileInfo(program).fileName();
        const QStringList options =
            name == "korvel-print" ? QStringList() : optionsInTheHelp(program);
        QCOMPARE(offered({name, "-"}), options);
        QCOMPARE(options.isEmpty(), name == "korvel-print");
        if (!options.isEmpty())
            QVERIFY(options.contains("--help") && options.contains("-v"));
    }

    void words_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("offers");
        const auto row = [](const char *line, const char *offers) {
            QTest::newRow(line) << QString(line) << QString(offers);
        };
        row("korvel-print ", "folder job.xml other.xml");
        row("korvel-print j", "job.xml");
        row("korvel-print job.xml ", "folder job.xml other.xml");
        row("korvel-check --set", "--settings");
        row("korvel-check --settings o", "other.xml");
        row("korvel-check --settings=o", "other.xml");
        row("korvel-check job.xml o", "other.xml");
        row("korvel-check --strict j", "job.xml");
        row("korvel-check --charset ", "");
        row("korvel-check --schema ", "rng xsd");
        row("korvel-check --explain lost-g", "lost-group");
        row("korvel-check --ignore lost-group,lost-e", "lost-group,lost-element");
        row("korvel-check -- j", "job.xml");
        row("korvel-preview --format ", "html pdf png svg");
        row("korvel-preview --look=th", "thermal");
        row("korvel-preview -o j", "job.xml");
        row("korvel-preview --columns ", "");
        row("korvel-preview --explain unknown-c", "unknown-command");
        row("korvel-printer-sim --fault ", "deaf keep-open refuse reset= slow= stall=");
        row("korvel-printer-sim --paper ", "folder");
        row("korvel-printer-sim ", "");
        row("korvel-deliver --to j", "job.xml");
        row("korvel-deliver --to tcp://127.0.0.1:9100 j", "job.xml");
        row("korvel-deliver --id ", "");
        row("korvel-journal ", "export forget head list replay resolve show sum verify");
        row("korvel-journal l", "list");
        row("korvel-journal --journal o", "other.xml");
        row("korvel-journal --journal other.xml s", "show sum");
        row("korvel-journal list --state in", "in-doubt");
        row("korvel-journal list --state ",
            "accepted in-doubt not-printed not-sent printed refused sending sent");
        row("korvel-journal resolve ", "");
        row("korvel-journal resolve 17 ", "not-printed printed");
        row("korvel-journal show --day x 17 ", "");
        row("korvel-recode --from ", "");
        row("korvel-recode j", "job.xml");
        row("korvel-settings o", "other.xml");
    }

    void words()
    {
        QFETCH(QString, line);
        QFETCH(QString, offers);
        QCOMPARE(offered(line.split(' ')).join(' '), offers);
    }

private:
    /// What bash offers for the last of these words, as the shell itself breaks the line.
    QStringList offered(const QStringList &words)
    {
        QString path = QString::fromLocal8Bit(qgetenv("PATH"));
        for (const QString &program : programs)
            path.prepend(QFileInfo(program).path() + ':');
        const QStringList variables = {"PATH=" + path, "LINE=" + words.join(' '),
                                       "XDG_DATA_DIRS=" + data.path()};
        const Run run = runProgram("bash", {"--norc", "-c", R"(
            . /usr/share/bash-completion/bash_completion
            _completion_loader "${LINE%% *}"
            # The shell breaks words at "=" and ":" too.
            mapfile -t COMP_WORDS < <(grep -oE '[^ =:]+|[=:]+' <<<"$LINE")
            [[ $LINE != *' ' ]] || COMP_WORDS+=('')
            COMP_LINE=$LINE COMP_POINT=${#LINE} COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
            compopt() { :; } # there is no line being typed
            _korvel "${COMP_WORDS[0]}" "${COMP_WORDS[-1]}" "${COMP_WORDS[-2]}"
            printf '%s\n' "${COMPREPLY[@]}")"},
                                   {home.path(), variables, {}});
        return inOrder(QString::fromUtf8(run.standardOutput).split('\n', Qt::SkipEmptyParts));
    }

    const QTemporaryDir data;
    const QTemporaryDir home;
};

KORVEL_TEST(TestCompletion)

} // namespace tst_completion

#include "tst_completion.moc"
