// Opens a settings file as the settings editor does: the document, its view, the marks in it.
#include "companions/settings/document.h"
#include "companions/settings/hints.h"

#include <QApplication>
#include <QFile>
#include <QTreeWidget>

using namespace korvel::settings;

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    SettingsDocument document(QFile::decodeName(argv[1]));
    const std::unique_ptr<QTreeWidget> view = document.read();
    hints::mark(*view, hints::find(SettingsDocument::writtenBy(*view)));
    return 0;
}
