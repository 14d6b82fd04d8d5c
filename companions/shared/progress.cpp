// A line that a terminal overwrites.
#include "companions/shared/progress.h"

#include <cstdio>
#include <utility>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::shared {

namespace {

constexpr qint64 pause = 250; // milliseconds from line to line, and before the first

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

void ProgressLine::show(qint64 done, qint64 all)
{
    if (!onTerminal || sinceShown.elapsed() < pause)
        return;
    sinceShown.restart();
    shown = true;
    write(u"\r\033[K"_s + what + u": "_s + QString::number(done) + u" of "_s
          + QString::number(all));
}

void ProgressLine::clear()
{
    if (shown)
        write(u"\r\033[K"_s);
    shown = false;
}

} // namespace korvel::shared
