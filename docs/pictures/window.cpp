// korvel-window-picture: the settings editor's window on a file, as the user's guide shows it.
//
//   korvel-window-picture SETTINGS PICTURE
#include "companions/settings/window.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QPixmap>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <cstdio>

using namespace korvel::settings;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Chooses the value of a setting in a group; false when there is none.
bool choose(QTreeWidget &view, const QString &group, const QString &setting)
{
    for (QTreeWidgetItemIterator row(&view); *row; ++row) {
        const QTreeWidgetItem *parent = (*row)->parent();
        if ((*row)->text(0) == setting && parent && parent->text(0) == group) {
            view.setCurrentItem((*row)->child(0));
            return (*row)->childCount() == 1;
        }
    }
    return false;
}

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
    window.activateWindow();
    window.begin();
    auto *view = window.findChild<QTreeWidget *>(u"settings"_s);
    if (!view || !choose(*view, u"receiptdoc"_s, u"paperWidth"_s))
        return complain("the settings have no receiptdoc.paperWidth");
    const QDeadlineTimer deadline(30000);
    while (window.shownStream().isEmpty() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    if (window.shownStream().isEmpty())
        return complain("the renderer gives no paper");
    if (!window.grab().save(QFile::decodeName(argv[2]), "png"))
        return complain("the picture cannot be written");
    return 0;
}
