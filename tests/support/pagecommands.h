// What a page of the documentation has to type, and a shell that types it.
#pragma once

#include "support/bytes.h"
#include "support/files.h"
#include "support/program.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/// A part of a page.
struct PageBlock
{
    enum Kind {
        Commands, // indented, or fenced as "sh" or without a language
        File,     // fenced, with a name behind the language: the reader saves it
        Output,   // fenced as "text"
        Content,  // fenced as what no reader types
        Unknown   // any other fence
    };
    Kind kind;
    int line;     // of its first line on the page, from 1
    QString name; // of a file
    QString text;
};

/// What is fenced with a language and the name of a file.
inline PageBlock::Kind kindOfFence(const QString &language, const QString &name)
{
    static const QStringList contents = {"cmake", "conf", "cpp", "json", "stream", "udev", "xml"};
    if (!name.isEmpty())
        return PageBlock::File;
    if (language.isEmpty() || language == "sh")
        return PageBlock::Commands;
    if (language == "text")
        return PageBlock::Output;
    return contents.contains(language) ? PageBlock::Content : PageBlock::Unknown;
}

/// The blocks of a page, in their order.
inline QList<PageBlock> blocksOf(const QString &page)
{
    QList<PageBlock> blocks;
    const QStringList lines = QString::fromUtf8(bytesOf(page)).split('\n');
    bool isFenced = false;
    bool isIndented = false;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString &line = lines[i];
        if (line.startsWith("```")) {
            isFenced = !isFenced;
            isIndented = false;
            const QString language = line.mid(3).section(' ', 0, 0);
            const QString name = line.section(' ', 1);
            if (isFenced)
                blocks.append({kindOfFence(language, name), int(i + 2), name, {}});
            continue;
        }
        if (isFenced) {
            blocks.last().text += line + '\n';
            continue;
        }
        const bool follows = isIndented || i == 0 || lines[i - 1].isEmpty();
        if (line.startsWith("    ") && follows) {
            if (!isIndented)
                blocks.append({PageBlock::Commands, int(i + 1), {}, {}});
            blocks.last().text += line.mid(4) + '\n';
        }
        isIndented = line.startsWith("    ") && follows;
    }
    return blocks;
}

/// The commands of a block, each with the lines that continue it and without the remark behind it.
inline QStringList commandsOf(const PageBlock &block)
{
    static const QRegularExpression remark("\\s{3,}\\S.*$");
    QStringList commands;
    bool goesOn = false;
    for (QString line : block.text.chopped(1).split('\n')) {
        if (!goesOn && !line.startsWith(' '))
            line.remove(remark);
        if (goesOn)
            commands.last() += '\n' + line;
        else
            commands.append(line);
        goesOn = line.endsWith('\\');
    }
    return commands;
}

/// What stands on a page, and what is used in its place.
struct StandIn
{
    QString onThePage;
    QString here;
};

/// Types what a page says, in one shell, in a HOME of its own.
class PageShell
{
public:
    explicit PageShell(const QList<StandIn> &used)
        : standIns(used)
    {
        QDir(folder.path()).mkpath("home");
        QDir(folder.path()).mkpath("programs");
        script = "trap 'echo \"$BASH_COMMAND\" >> \"$FAILED\"' ERR\ncd\n";
    }

    [[nodiscard]] QString home() const { return folder.filePath("home"); }

    /// A program of the reader's own.
    void addProgram(const QString &name, const QByteArray &content) const
    {
        const QString path = folder.filePath("programs/" + name);
        writeFile(path, "#!/bin/sh\n" + content);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void save(const QString &name, const QString &text)
    {
        script += "cat > " + name + " <<'KORVEL_END'\n" + here(text) + "KORVEL_END\n";
    }

    /// @param line its number on the page, by which its output is asked for
    void type(int line, const QString &commands)
    {
        script +=
            QString("exec > '%1/%2' 2>&1\n").arg(folder.path()).arg(line) + here(commands) + '\n';
    }

    /// Runs all of it. Where what is typed is no command of a shell, the status is not 0.
    /// @param programs folders of programs
    [[nodiscard]] Run run(const QStringList &programs)
    {
        const QString path = folder.filePath("programs") + ':' + programs.join(':')
                             + ":/usr/bin:/bin:" + QString::fromLocal8Bit(qgetenv("PATH"));
        return runProgram("timeout",
                          {"-k", "1", "50", "bash", "-c",
                           script + "trap - ERR\nkill $(jobs -p) 2> /dev/null\nexit 0"},
                          {home(),
                           {"HOME=" + home(), "PATH=" + path, "LC_ALL=C.UTF-8", "LOCPATH",
                            "XDG_DATA_HOME", "FAILED=" + folder.filePath("failed")},
                           {}});
    }

    /// The commands that ended with another status than 0, a line each.
    [[nodiscard]] QByteArray failed() const { return bytesOf(folder.filePath("failed")); }

    /// What the commands of a line wrote, as the page would show it.
    [[nodiscard]] QString output(int line) const
    {
        QString text = QString::fromUtf8(bytesOf(folder.filePath(QString::number(line))));
        for (const StandIn &standIn : standIns)
            text.replace(standIn.here, standIn.onThePage);
        return text;
    }

private:
    [[nodiscard]] QString here(QString text) const
    {
        for (const StandIn &standIn : standIns)
            text.replace(standIn.onThePage, standIn.here);
        return text;
    }

    const QTemporaryDir folder;
    const QList<StandIn> standIns;
    QString script;
};
