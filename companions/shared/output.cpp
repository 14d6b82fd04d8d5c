// Standard output and standard error of the companions.
#include "companions/shared/output.h"

#include "companions/shared/oneline.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace korvel::shared {

namespace {

const QString unwritable = u"cannot write to standard output"_s;

} // namespace

QString programName() { return QFileInfo(QCoreApplication::applicationFilePath()).fileName(); }

int trouble(const QString &text)
{
    const QByteArray line = (programName() + u": "_s + inOneLine(text) + u'\n').toUtf8();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    return Trouble;
}

Output::Output() { failed = !file.open(stdout, QIODevice::WriteOnly); }

Output &Output::operator<<(const QString &text)
{
    constexpr qsizetype block = 32'768;
    pending += text;
    if (pending.size() >= block)
        writePending();
    return *this;
}

void Output::writePending()
{
    if (!pending.isEmpty())
        failed = failed || file.write(pending.toUtf8()) < 0;
    pending.resize(0);
}

int Output::end(int status)
{
    writePending();
    failed = failed || !file.flush();
    return failed ? trouble(unwritable) : status;
}

int writeBytes(const QByteArray &bytes, int status)
{
    QFile file;
    const bool written = file.open(stdout, QIODevice::WriteOnly)
                         && file.write(bytes) == bytes.size() && file.flush();
    return written ? status : trouble(unwritable);
}

int writeOut(const QString &text, int status)
{
    Output out;
    out << text;
    return out.end(status);
}

} // namespace korvel::shared
