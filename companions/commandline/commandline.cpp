// Help, version, errors, standard input and output of the companions.
#include "companions/commandline/commandline.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void silence(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/)
{
}

QString programName() { return QFileInfo(QCoreApplication::applicationFilePath()).fileName(); }

} // namespace

void prepareCompanion()
{
    qInstallMessageHandler(silence);
    // Opened the wrong way round: to read from it, or to write to it, is the error that it was.
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0)
            static_cast<void>(open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY));
    }
}

QStringList argumentsOf(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    return arguments;
}

QString shownName(const QString &path)
{
    QString shown = path;
    for (QChar &c : shown) {
        const QChar::Category category = c.category();
        if ((!c.isPrint() && !c.isSurrogate()) || category == QChar::Separator_Line
            || category == QChar::Separator_Paragraph)
            c = QChar::ReplacementCharacter;
    }
    return shown;
}

std::optional<int> readCommandLine(QCommandLineParser &parser, const QStringList &arguments)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsCompactedShortOptions);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    if (!parser.parse(arguments))
        return trouble(parser.errorText());
    if (parser.isSet(help) || parser.isSet(u"help-all"_s))
        return writeOut(parser.helpText(), Clean);
    if (parser.isSet(version))
        return writeOut(programName() + u' ' + QStringLiteral(KORVEL_VERSION) + u'\n', Clean);
    return {};
}

int trouble(const QString &text)
{
    const QByteArray line = (programName() + u": "_s + shownName(text) + u'\n').toUtf8();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    return Trouble;
}

Output::Output() { failed = !file.open(stdout, QIODevice::WriteOnly); }

Output &Output::operator<<(const QString &text)
{
    failed = failed || file.write(text.toUtf8()) < 0;
    return *this;
}

int Output::end(int status)
{
    failed = failed || !file.flush();
    return failed ? trouble(u"cannot write to standard output"_s) : status;
}

int writeOut(const QString &text, int status)
{
    Output out;
    out << text;
    return out.end(status);
}

std::optional<QByteArray> readWhole(const QString &path, qint64 limit, QString &error)
{
    QFile file(path);
    const bool open =
        path == "-"_L1 ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!open) {
        error = file.errorString();
        return {};
    }
    QByteArray bytes;
    while (bytes.size() <= limit) {
        const QByteArray more = file.read(limit + 1 - bytes.size());
        if (more.isEmpty())
            break;
        bytes += more;
    }
    if (file.error() != QFileDevice::NoError) {
        error = file.errorString();
        return {};
    }
    if (bytes.size() > limit) {
        error = u"larger than "_s + QString::number(limit) + u" bytes"_s;
        return {};
    }
    return bytes;
}
