// The help: the reference pages, which travel in the program.
#pragma once

#include <QTextBrowser>

namespace korvel::settings {

/**
 * Shows the page on the settings. Its links lead to places in it, to the other pages, and to the
 * sample settings and jobs; what else they name is not opened. Alt and the arrow to the left leads
 * back, Escape closes it.
 */
class HelpPage : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpPage(QWidget *parent = nullptr);

    QVariant loadResource(int type, const QUrl &name) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

signals:
    /// A link leads to what the program does not have.
    void failed(const QString &text);

private:
    void follow(const QUrl &link);
    void showPlace(const QUrl &page);
};

} // namespace korvel::settings
