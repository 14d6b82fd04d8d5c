// korvel-settings: the settings file in a form, the receipt beside it.
#include "companions/settings/window.h"
#include "companions/shared/commandline.h"
#include "companions/shared/output.h"
#include "companions/shared/rendering.h"
#include "companions/shared/stopsignals.h"
#include "config/path.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

using namespace korvel::settings;
using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Reads the command line without a display; the status to end with, or the file that is named.
std::optional<int> readArguments(int argc, char *argv[], QString &file)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Edits the settings of korvel-print and shows what they make of a receipt."_s);
    parser.addPositionalArgument(u"FILE"_s,
                                 u"The settings file, or a job to be shown by the user's; "
                                 "without it, the user's, ~/.korvel/conf/korvel.conf."_s,
                                 u"[FILE]"_s);
    if (const auto status = readCommandLine(parser, argumentsOf(argc, argv)))
        return status;
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1)
        return trouble(u"one file at most; see --help"_s);
    file = files.value(0);
    // The toolkit would make replacement characters of the rest, and files of such names.
    for (const char *variable : {"HOME", "XDG_CONFIG_HOME"})
        if (const QString path = korvel::path::fromBytes(qgetenv(variable)); !path.isValidUtf16())
            return trouble(QLatin1String(variable) + u'=' + path + u": the name is not UTF-8"_s);
    if (!file.isValidUtf16())
        return trouble(file + u": the name is not UTF-8"_s);
    // The toolkit would end the program with a crash.
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return trouble(u"there is no display: neither DISPLAY nor WAYLAND_DISPLAY is set"_s);
    return {};
}

} // namespace

int main(int argc, char *argv[])
{
    prepareCompanion();
    QString file;
    if (const auto status = readArguments(argc, argv, file))
        return *status;

    const QApplication application(argc, argv);
    QApplication::setOrganizationName(u"korvel"_s);
    QApplication::setApplicationName(u"korvel-settings"_s);
    QApplication::setDesktopFileName(u"korvel-settings"_s);
    QApplication::setWindowIcon(QIcon(u":/korvel-settings.svg"_s));

    // The texts are English as they are: a second language must not come before it.
    QTranslator buttons; // of the toolkit's own dialogs
    QTranslator texts;
    if (!QLocale().uiLanguages().value(0).startsWith("en"_L1)) {
        if (buttons.load(QLocale(), u"qtbase"_s, u"_"_s,
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QApplication::installTranslator(&buttons);
        if (texts.load(QLocale(), u"korvel-settings"_s, u"_"_s, u":/translations"_s))
            QApplication::installTranslator(&texts);
    }

    // What lies in temporary folders goes with the window, on a signal too.
    StopSignals stop;
    bool isStopped = false;
    QObject::connect(&stop, &StopSignals::stopped, [&isStopped] {
        isStopped = true;
        QCoreApplication::exit();
    });
    int status = 0;
    {
        SettingsWindow window(korvel::path::home() + korvel::path::settingsInHome,
                              Rendering::findRenderer());
        window.show();
        window.begin(file); // which may ask, and be stopped meanwhile
        if (!isStopped)
            status = QApplication::exec();
    }
    stop.obey();
    return status;
}
