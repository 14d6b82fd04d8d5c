// Help, version, errors, standard input and output of the companions.
#include "companions/commandline/commandline.h"

#include "config/path.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void silence(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/)
{
}

/// Why the last call on a file, or else of the system, failed.
QString reasonOf(const QFile &file)
{
    return file.error() == QFileDevice::NoError ? qt_error_string() : file.errorString();
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
        arguments.append(korvel::path::fromBytes(argv[i]));
    return arguments;
}

QString shownName(const QString &path)
{
    QString shown;
    for (const uint point : path.toUcs4()) { // half a pair comes as a replacement character
        const QChar::Category category = QChar::category(point);
        const bool prints = QChar::isPrint(point) && category != QChar::Separator_Line
                            && category != QChar::Separator_Paragraph;
        shown += QChar::fromUcs4(prints ? point : uint(QChar::ReplacementCharacter));
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
    QFile file;
    const bool open = path == "-"_L1 ? file.open(stdin, QIODevice::ReadOnly)
                                     : korvel::path::open(file, path, QIODevice::ReadOnly);
    if (!open) {
        error = reasonOf(file);
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

bool writeWhole(const QString &path, const QByteArray &bytes, QString &error)
{
    QByteArray target = korvel::path::toBytes(path);
    const std::unique_ptr<char, decltype(&std::free)> end(::realpath(target.constData(), nullptr),
                                                          &std::free);
    if (end)
        target = end.get();
    struct stat before = {};
    const bool existed = ::stat(target.constData(), &before) == 0;
    if (existed && ::access(target.constData(), W_OK) != 0) {
        error = qt_error_string();
        return false;
    }
    const mode_t mask = ::umask(0);
    ::umask(mask);

    QByteArray temporary = target + ".XXXXXX";
    QFile file;
    const int descriptor = ::mkostemp(temporary.data(), O_CLOEXEC);
    if (descriptor >= 0 && file.open(descriptor, QIODevice::WriteOnly, QFile::AutoCloseHandle)
        && file.write(bytes) == bytes.size() && file.flush()
        && ::fchmod(descriptor, existed ? before.st_mode & 07777U : 0666U & ~mask) == 0
        && ::fsync(descriptor) == 0 && ::rename(temporary.constData(), target.constData()) == 0)
        return true;
    error = reasonOf(file);
    if (descriptor >= 0)
        ::unlink(temporary.constData());
    return false;
}
