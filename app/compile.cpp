// The whole run: arguments, translation, driver, parse.
#include "app/compile.h"

#include "app/jobguard.h"
#include "config/catalogue.h"
#include "config/configuration.h"
#include "config/path.h"
#include "printer/company/companyprinterdriver.h"
#include "vocabulary/settings.h"

#include <QCoreApplication>
#include <QTranslator>

#include <iostream>
#include <new>

using namespace Qt::Literals::StringLiterals;

namespace group = korvel::vocabulary::group;
namespace language = korvel::vocabulary::language;
using korvel::vocabulary::pathOf;

namespace {

void silence(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/)
{
}

/// Loads the catalogue that the settings name. The toolkit completes the name; what it does not
/// find leaves labels untranslated.
void loadTranslation(QTranslator &translator, const KVConfiguration &settings)
{
    const QString name =
        korvel::catalogue::nameOf(settings.getStrValue(pathOf(group::language, language::basedir)),
                                  settings.getStrValue(pathOf(group::language, language::file)));
    if (!name.isEmpty())
        static_cast<void>(translator.load(korvel::path::forToolkit(name)));
}

/// Renders a job by the user's settings.
void render(int argc, char *argv[])
{
    const QString inputPath = korvel::path::fromBytes(argv[1]);
    const QString outputPath = korvel::path::fromBytes(argv[2]);

    // The toolkit warns of a locale that is not UTF-8, and the like.
    qInstallMessageHandler(silence);
    const QCoreApplication application(argc, argv);
    const KVConfiguration *settings = SyncSingleton<KVConfiguration>::instance();

    QTranslator translator;
    loadTranslation(translator, *settings);
    QCoreApplication::installTranslator(&translator);

    CompanyPrinterDriver driver(outputPath, false);
    korvel::app::JobGuard guard(driver);
    QFile input;
    if (korvel::path::open(input, inputPath, QIODevice::ReadOnly))
        guard.parse(input);
}

} // namespace

void compile(int argc, char *argv[])
{
    if (argc != 3 && argc != 4) {
        std::cout << "Usage: " << (argc > 0 ? argv[0] : "") << " input_file output_file"
                  << std::endl;
        return;
    }
    try {
        render(argc, argv);
    } catch (const std::bad_alloc &) {
        // The job ends here; what it printed so far stands.
    }
}
