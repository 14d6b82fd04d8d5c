// Standard output and standard error of the companions.
#include "companions/shared/output.h"

#include "companions/shared/oneline.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStringEncoder>

#include <algorithm>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace korvel::shared {

namespace {

const QString unwritable = u"cannot write to standard output"_s;

} // namespace

QString programName() { return QFileInfo(QCoreApplication::applicationFilePath()).fileName(); }

void remark(const QString &text)
{
    const QByteArray line = (programName() + u": "_s + inOneLine(text) + u'\n').toUtf8();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

int trouble(const QString &text)
{
    remark(text);
    return Trouble;
}

Output::Output() { failed = !file.open(stdout, QIODevice::WriteOnly); }

Output &Output::operator<<(const QString &text)
{
    QStringEncoder utf8(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const qsizetype before = pending.size();
    pending.resize(before + utf8.requiredSpace(text.size()));
    pending.truncate(utf8.appendToBuffer(pending.data() + before, text) - pending.constData());
    return added();
}

Output &Output::operator<<(const QByteArray &utf8)
{
    pending += utf8;
    return added();
}

Output &Output::added()
{
    constexpr qsizetype block = 32'768;
    if (pending.size() >= block)
        writePending();
    return *this;
}

void Output::writePending()
{
    if (!pending.isEmpty())
        failed = failed || file.write(pending) != pending.size();
    pending.resize(0);
}

void Output::flush()
{
    writePending();
    failed = failed || !file.flush();
}

int Output::end(int status)
{
    flush();
    return failed ? trouble(unwritable) : status;
}

QString jsonLine(const QJsonObject &object)
{
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    if (std::all_of(json.begin(), json.end(), [](char c) { return c >= ' ' && c <= '~'; }))
        return QString::fromLatin1(json) + u'\n'; // as most are, and fast
    QString line;
    for (const uint point : QString::fromUtf8(json).toUcs4()) {
        if (isPrintable(point)) {
            line += QChar::fromUcs4(point);
            continue;
        }
        for (const char16_t unit : QChar::fromUcs4(point))
            line += u"\\u"_s + QString::number(unit, 16).rightJustified(4, u'0');
    }
    return line + u'\n';
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
