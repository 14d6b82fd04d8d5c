// A desk at which korvel-check runs: jobs of each kind, settings, and what it says of them.
#pragma once

#include "support/built.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/jsonschema.h"
#include "support/program.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

inline const QString top = KORVEL_SOURCE_DIR "/";

/// The user has settings, from now on: without any, each run would say so.
inline void haveSettings()
{
    static const QTemporaryDir home;
    if (qgetenv("HOME") == home.path().toUtf8())
        return;
    QVERIFY(QDir(home.path()).mkpath(".korvel/conf"));
    writeFile(home.filePath(".korvel/conf/korvel.conf"), {});
    qputenv("HOME", home.path().toUtf8());
}

inline Run checker(const QStringList &arguments, const Surroundings &surroundings = {})
{
    haveSettings();
    return runProgram(built::check, arguments, surroundings);
}

inline const QByteArray cleanJob = "<job><method name=\"printSold\"/></job>\n";
inline const QByteArray jobWithWarning = "<job><method name=\"printSold\"/><customer/></job>\n";
inline const QByteArray jobWithError = "<job>\n<method name=\"printSold\"/><recipe/></job>\n";

inline const QByteArray warning =
    ":1:32: warning: <customer> prints nothing in the document \"sold items\"; it is printed in "
    "kitchen order, full order, receipt, invoice, delivery note, summary invoice "
    "[ignored-element]\n";
inline const QByteArray error =
    ":2:27: error: no document knows <recipe>: nothing is printed; did you "
    "mean \"receipe\"? [unknown-element]\n";

inline const QByteArray jobWithAccents =
    "<job>\n<method name=\"printSold\"/><receipe quantity=\"1\" description=\"Caffè\" "
    "amount=\"1.20\"/></job>\n";
inline const QByteArray inAscii =
    "accents.xml:2:49: warning: \"description\" has what ascii lacks: \"è\" (U+00E8) prints as "
    "\"e\" [not-in-charset]\n";

/// Adds the columns of runs, and gives what adds a run: its arguments, status and output.
inline auto addRuns()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("output");
    return [](const char *what, const QStringList &arguments, int status,
              const QByteArray &output) { QTest::newRow(what) << arguments << status << output; };
}

/// A folder with a job of each kind, and settings.
class CheckDesk
{
public:
    CheckDesk()
    {
        haveSettings();
        writeFile(path("clean.xml"), cleanJob);
        writeFile(path("warning.xml"), jobWithWarning);
        writeFile(path("error.xml"), jobWithError);
        writeFile(path("accents.xml"), jobWithAccents);
        writeFile(path("korvel.conf"), "korvel:\n{\n    solddoc:\n    {\n        printDate = yes;\n"
                                       "    };\n};\n");
    }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] Run run(const QStringList &arguments, const QByteArray &standardInput = {}) const
    {
        return checker(arguments, {folder.path(), {}, standardInput});
    }

    const QTemporaryDir folder;
};

inline const QByteArray settingsWarning =
    "korvel.conf:5:9: warning: printDate is \"yes\" and counts as off; did you mean \"true\"? "
    "[not-true]\n";

/// The lines of an output that ends with a line end, without their ends.
inline QStringList linesWithoutEnds(const QByteArray &output)
{
    QStringList lines = QString::fromUtf8(output).split('\n');
    if (!lines.last().isEmpty())
        lines.last() += "(no line end)";
    else
        lines.removeLast();
    return lines;
}

/// Fails the test unless a run ended by itself with this status, and said nothing beside it.
#define VERIFY_ENDED(run, expectedStatus)                                                          \
    do {                                                                                           \
        QVERIFY((run).exited);                                                                     \
        QCOMPARE(linesOf((run).standardError), QStringList());                                     \
        QCOMPARE((run).status, expectedStatus);                                                    \
    } while (false)

/// Fails the test unless a run said in one line why it could not do what was asked, and wrote
/// nothing but this.
#define VERIFY_TROUBLE(run, output)                                                                \
    do {                                                                                           \
        QVERIFY((run).exited);                                                                     \
        QCOMPARE((run).status, 2);                                                                 \
        QCOMPARE(linesOf((run).standardOutput), linesOf(output));                                  \
        QVERIFY2((run).standardError.startsWith("korvel-check: ")                                  \
                     && (run).standardError.indexOf('\n') == (run).standardError.size() - 1        \
                     && (run).standardError.size() > 16,                                           \
                 (run).standardError.constData());                                                 \
    } while (false)
