// How far a long work is, on a terminal.
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace korvel::shared {

/**
 * A line on standard error that is overwritten, and gone in the end; nothing where that is no
 * terminal, or for a work that ends at once.
 */
class ProgressLine
{
public:
    /// @param what the work, as "verifying"
    explicit ProgressLine(QString what);
    ~ProgressLine() { clear(); }
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

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
