// The reference pages as a browser shows them.
#include "companions/settings/helppage.h"

#include "companions/settings/jobs.h"

#include <QAbstractTextDocumentLayout>
#include <QFileInfo>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

namespace {

/// Where a page lies in the program.
QString fileOf(const QUrl &page) { return u':' + page.path(); }

/// A heading as links name it.
QString anchorOf(const QString &heading)
{
    QString anchor;
    for (const QChar c : heading.toLower()) {
        if (c.isLetterOrNumber() || c == u'-' || c == u'_')
            anchor += c;
        else if (c.isSpace())
            anchor += u'-';
    }
    return anchor;
}

} // namespace

HelpPage::HelpPage(QWidget *parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::follow);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpPage::showPlace);
    setSource(QUrl(u"qrc:/docs/settings.md"_s), QTextDocument::HtmlResource);
}

/// A page without the marks of those who write it, and without pictures, which stay with the
/// installed pages; any other file as it is.
QVariant HelpPage::loadResource(int /*type*/, const QUrl &name)
{
    static const QRegularExpression marks(u"<!--.*?-->"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression pictures(uR"(!\[([^\]]*)\]\([^)]*\))"_s);
    const QString text = QString::fromUtf8(resource(fileOf(name)));
    if (!name.path().endsWith(".md"_L1))
        return QString(u"<pre>"_s + text.toHtmlEscaped() + u"</pre>"_s);
    // The browser would lay the page out anew with every word of Markdown.
    QTextDocument page;
    page.setMarkdown(QString(text).remove(marks).replace(pictures, u"*\\1*"_s));
    return page.toHtml();
}

void HelpPage::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        close();
    else
        QTextBrowser::keyPressEvent(event);
}

void HelpPage::follow(const QUrl &link)
{
    const QUrl page = source().resolved(link);
    if (page.scheme() == "qrc"_L1 && QFileInfo(fileOf(page)).isFile())
        setSource(page, QTextDocument::HtmlResource);
    else
        emit failed(tr("The help has no page %1.").arg(link.toString()));
}

/// Brings the heading that a link names to the top, as the toolkit gives headings no anchors.
void HelpPage::showPlace(const QUrl &page)
{
    const bool isText = page.path().endsWith(".md"_L1);
    setWindowTitle(tr("Help: %1").arg(isText ? document()->firstBlock().text() : page.fileName()));
    if (!page.hasFragment())
        return;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && anchorOf(block.text()) == page.fragment()) {
            const QRectF place = document()->documentLayout()->blockBoundingRect(block);
            verticalScrollBar()->setValue(static_cast<int>(place.top()));
            return;
        }
    }
}

} // namespace korvel::settings
