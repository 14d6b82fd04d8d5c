// Runs korvel-preview as a user does, on a stream that lies ready.
#pragma once

#include "support/built.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/program.h"

#include <QDir>
#include <QRegularExpression>
#include <QSize>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

inline const QString examples = KORVEL_SOURCE_DIR "/examples/expected/";

inline Run preview(const QStringList &arguments, const Surroundings &surroundings = {})
{
    return runProgram(built::preview, arguments, surroundings);
}

/// A folder in which a stream lies ready as "x.out".
class Desk
{
public:
    explicit Desk(const QByteArray &stream) { writeFile(path("x.out"), stream); }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] Run run(const QStringList &arguments, const QStringList &variables = {}) const
    {
        return preview(arguments, {folder.path(), variables, {}});
    }

    const QTemporaryDir folder;
};

/// Lines behind the name of the stream that they are about.
inline QStringList behind(const QString &stream, QStringList lines)
{
    for (QString &line : lines)
        line.prepend(stream);
    return lines;
}

/// Names of what lies beside the stream, sorted.
inline QStringList outputFiles(const Desk &desk)
{
    QStringList files = QDir(desk.folder.path()).entryList(QDir::Files | QDir::System);
    files.removeOne("x.out");
    return files;
}

/// The size that a PNG says it has.
inline QSize sizeOfPng(const QByteArray &png)
{
    constexpr auto signature = "\x89PNG\r\n\x1a\n";
    if (!png.startsWith(signature) || png.size() < 24)
        return {};
    return {qFromBigEndian<qint32>(png.constData() + 16),
            qFromBigEndian<qint32>(png.constData() + 20)};
}

/// Whether a text is one line that says why the program ended.
inline bool isTrouble(const QByteArray &text)
{
    return QRegularExpression("\\Akorvel-preview: [^\n]+\n\\z")
        .match(QString::fromUtf8(text))
        .hasMatch();
}

/// Fails the test unless a run ended by itself with this status.
#define VERIFY_ENDED(run, expectedStatus)                                                          \
    do {                                                                                           \
        const Run &ended = (run);                                                                  \
        QVERIFY2(ended.exited, ended.standardError.constData());                                   \
        QVERIFY2(ended.status == (expectedStatus), ended.standardError.constData());               \
    } while (false)

/// Fails the test unless a run said in one line why it could not do what was asked, and nothing
/// else.
#define VERIFY_TROUBLE(run)                                                                        \
    do {                                                                                           \
        const Run &troubled = (run);                                                               \
        VERIFY_ENDED(troubled, 2);                                                                 \
        QCOMPARE(linesOf(troubled.standardOutput), QStringList());                                 \
        QVERIFY2(isTrouble(troubled.standardError), troubled.standardError.constData());           \
    } while (false)
