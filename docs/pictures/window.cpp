// korvel-window-picture: the settings editor's window on a file, as the user's guide shows it.
//
//   korvel-window-picture SETTINGS PICTURE
#include "companions/settings/window.h"
#include "companions/shared/rendering.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QPixmap>
#include <QWidget>

#include <cstdio>

using namespace korvel::settings;
using namespace Qt::Literals::StringLiterals;

namespace {

int complain(const char *text)
{
    std::fprintf(stderr, "korvel-window-picture: %s\n", text);
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    // For a file that is not there the window would ask, and wait.
    if (argc != 3 || !QFile::exists(QFile::decodeName(argv[1])))
        return complain("usage: korvel-window-picture SETTINGS PICTURE");

    SettingsWindow window(QFile::decodeName(argv[1]), korvel::shared::Rendering::findRenderer());
    window.show();
    window.resize(1100, 720); // more than the screen that is none has
    window.activateWindow();
    window.begin();
    auto *field = window.findChild<QWidget *>(u"receiptdoc.paperWidth"_s);
    if (!field)
        return complain("the form has no receiptdoc.paperWidth");
    field->setFocus();
    const QDeadlineTimer deadline(30000);
    while (window.shownStream().isEmpty() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    // What the field with the focus makes is looked for and lit behind that.
    for (const QDeadlineTimer lit(2000); !lit.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    if (window.shownStream().isEmpty())
        return complain("the renderer gives no paper");
    if (!window.grab().save(QFile::decodeName(argv[2]), "png"))
        return complain("the picture cannot be written");
    return 0;
}
