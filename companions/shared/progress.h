// How far a long work is, on a terminal.
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace korvel::shared {

/**
 * A line on standard error that is overwritten, and gone in the end; nothing where that is no
 * terminal, or for a work that ends at once. What does not print is replaced.
 */
class ProgressLine
{
public:
    /// @param of the work, as "verifying"; stands in front of all that is shown
    explicit ProgressLine(QString of);
    ~ProgressLine() { clear(); }
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    /// Shows a text, cut to the terminal's width.
    void show(const QString &text);
    /// Shows so many of so many.
    void show(qint64 done, qint64 all);

    /// Makes room for another line.
    void clear();

private:
    const QString what;
    const bool onTerminal;
    QElapsedTimer sinceShown;
    bool shown = false;
};

} // namespace korvel::shared
