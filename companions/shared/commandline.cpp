// Standard streams, help and version of the companions.
#include "companions/shared/commandline.h"

#include "companions/shared/output.h"
#include "config/path.h"

#include <csignal>

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::shared {

namespace {

void silence(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/)
{
}

} // namespace

void prepareCompanion()
{
    qInstallMessageHandler(silence);
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGCHLD, SIG_DFL); // else the system reaps children before they are asked
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

QString userName()
{
    const passwd *const user = ::getpwuid(::getuid());
    return user ? QString::fromLocal8Bit(user->pw_name) : QString::number(::getuid());
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

} // namespace korvel::shared
