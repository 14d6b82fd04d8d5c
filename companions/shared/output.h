// What a companion says, and the status that it ends with.
#pragma once

#include <QFile>
#include <QJsonObject>
#include <QString>

namespace korvel::shared {

/// How a companion ends.
enum ExitStatus {
    Clean = 0,    // nothing to complain of
    Findings = 1, // something is wrong with what it was given
    Trouble = 2,  // it could not be read or written, or the command line is wrong
};

/// The name of the program's file.
QString programName();

/// Says something in one line on standard error, behind the program's name.
void remark(const QString &text);

/// The same of why the program ends; gives Trouble.
int trouble(const QString &text);

/// Standard output, as UTF-8.
class Output
{
public:
    Output();
    Output &operator<<(const QString &text);
    Output &operator<<(const QByteArray &utf8);

    /// Writes what was not written yet.
    void flush();

    /// The status to end with: the one given, or Trouble, with its reason said, when something
    /// could not be written.
    int end(int status);

private:
    Output &added();
    void writePending();

    QFile file;
    QByteArray pending; // is written a block at a time
    bool failed = false;
};

/// An object as JSON in one line, with the line's end and what does not print as escapes.
QString jsonLine(const QJsonObject &object);

/// Writes bytes to standard output as they are; the status to end with, as Output::end().
int writeBytes(const QByteArray &bytes, int status);

/// Writes a text to standard output; the status to end with, as Output::end().
int writeOut(const QString &text, int status);

} // namespace korvel::shared
