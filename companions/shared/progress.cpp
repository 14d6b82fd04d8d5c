// A line that a terminal overwrites.
#include "companions/shared/progress.h"

#include "companions/shared/oneline.h"

#include <cstdio>
#include <utility>

#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::shared {

namespace {

constexpr qint64 pause = 250;  // milliseconds from line to line, and before the first
constexpr int usualWidth = 80; // of a terminal that does not say; a full line would begin another

void write(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace

ProgressLine::ProgressLine(QString of)
    : what(std::move(of))
    , onTerminal(isatty(STDERR_FILENO) == 1)
{
    sinceShown.start();
}

void ProgressLine::show(const QString &text)
{
    if (!onTerminal || sinceShown.elapsed() < pause)
        return;
    sinceShown.restart();
    shown = true;
    winsize size = {};
    const bool isKnown = ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    const QString line = what + u": "_s + inOneLine(text);
    write(u"\r\033[K"_s + line.left((isKnown ? size.ws_col : usualWidth) - 1));
}

void ProgressLine::show(qint64 done, qint64 all)
{
    show(QString::number(done) + u" of "_s + QString::number(all));
}

void ProgressLine::clear()
{
    if (shown)
        write(u"\r\033[K"_s);
    shown = false;
}

} // namespace korvel::shared
