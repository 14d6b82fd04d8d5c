// What the command lines of all companions share: help, version, errors, exit statuses.
#pragma once

#include <QByteArray>
#include <QCommandLineParser>
#include <QFile>
#include <QString>

#include <optional>

/// How a companion ends.
enum ExitStatus {
    Clean = 0,    // nothing to complain of
    Findings = 1, // something is wrong with what it was given
    Trouble = 2,  // it could not be read or written, or the command line is wrong
};

/**
 * First thing of a companion's main: keeps what the toolkit has to say of locales and displays off
 * standard error, and closed standard streams closed, so that no file that is opened takes their
 * place.
 */
void prepareCompanion();

/// The arguments of main, as texts; paths among them lose nothing, see config/path.h.
QStringList argumentsOf(int argc, char *argv[]);

/// A file's name in one line that a terminal can show: what does not print, or is no UTF-8, is
/// replaced.
QString shownName(const QString &path);

/**
 * Reads the command line: adds --help and --version, and answers them.
 *
 * @param arguments with the program's name first
 * @return the status to end with at once, or nothing when the program goes on
 */
std::optional<int> readCommandLine(QCommandLineParser &parser, const QStringList &arguments);

/// Says in one line on standard error, behind the program's name, why it ends; gives Trouble.
int trouble(const QString &text);

/// Standard output, as UTF-8.
class Output
{
public:
    Output();
    Output &operator<<(const QString &text);

    /// The status to end with: the one given, or Trouble, with its reason said, when something
    /// could not be written.
    int end(int status);

private:
    void writePending();

    QFile file;
    QString pending; // is converted and written a block at a time
    bool failed = false;
};

/// Writes a text to standard output; the status to end with, as Output::end().
int writeOut(const QString &text, int status);

/**
 * All bytes of a file, or of standard input for "-".
 *
 * @param limit bytes that are read at most
 * @param error why nothing is given, as one line without the file's name
 */
std::optional<QByteArray> readWhole(const QString &path, qint64 limit, QString &error);

/**
 * Replaces a file by these bytes, or makes a new one: whole, or not at all. What a link leads to is
 * replaced, a link that leads nowhere is itself.
 *
 * @param error why it is not, as one line without the file's name
 */
bool writeWhole(const QString &path, const QByteArray &bytes, QString &error);
