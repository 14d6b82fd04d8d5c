// The help of the settings editor: its page, and where the links of the page lead.
#include "companions/settings/helppage.h"
#include "support/answers.h"
#include "support/built.h"
#include "support/settingseditor.h"
#include "support/test.h"

#include <QDir>
#include <QPointer>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTranslator>

namespace tst_settingshelp {

class TestSettingsHelp : public QObject
{
    Q_OBJECT

private slots:
    void init() { answers.clear(); }

    void cleanup() { answers.verifyUsedUp(); }

    void itShowsTheSettingsPage()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        auto *page = opened(editor);
        QVERIFY(page->toPlainText().startsWith("The settings file"));
        QVERIFY(page->toPlainText().contains("quantityFieldWidth"));
        QVERIFY(!page->toPlainText().contains("table: settings"));
        QCOMPARE(page->windowTitle(), QString("Help: The settings file"));
        const QPointer<QTextBrowser> help = page;
        QTest::keyClick(page, Qt::Key_Escape);
        QTRY_VERIFY(!help);
    }

    // By keyboard: Tab goes from link to link, Enter follows.
    void linksAreFollowed()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        auto *page = opened(editor);
        followLink(*page, 1);
        QCOMPARE(page->windowTitle(), QString("Help: korvel.conf"));
        QVERIFY(page->toPlainText().contains("quantityFieldWidth = \"3\";"));
        QTest::keyClick(page, Qt::Key_Left, Qt::AltModifier);
        QVERIFY(page->toPlainText().startsWith("The settings file"));

        followLink(*page, 2);
        QCOMPARE(page->windowTitle(), QString("Help: The print job"));
        QCOMPARE(topBlock(*page), QString("Shared elements"));
        page->close();
    }

    void placesInThePage()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        auto *page = opened(editor);
        for (const char *place : {"#columns", "#keys-of-a-document"}) {
            emit page->anchorClicked(QUrl(place));
            QString heading = topBlock(*page).toLower();
            QCOMPARE('#' + heading.replace(' ', '-'), QString(place));
        }
        page->close();
    }

    // Whatever links between the pages, the help follows it to the place that is named: to each
    // once from within its page, and once from another.
    void linksBetweenThePages_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("link");
        const QDir docs(KORVEL_SOURCE_DIR "/docs");
        const QRegularExpression links(R"(\]\(([a-z0-9-]+\.md)?(#[a-z0-9-]+)?\))");
        QSet<QString> places;
        for (const QString &name : docs.entryList({"*.md"}, QDir::Files)) {
            auto found = links.globalMatch(QString::fromUtf8(bytesOf(docs.filePath(name))));
            while (found.hasNext()) {
                const auto match = found.next();
                const QString link = match.captured(1) + match.captured(2);
                const QString place = match.captured(1).isEmpty() ? name + link : "to " + link;
                if (link.isEmpty() || places.contains(place))
                    continue;
                places.insert(place);
                QTest::newRow(qPrintable(name + " " + link)) << name << link;
            }
        }
    }

    void linksBetweenThePages()
    {
        QFETCH(QString, from);
        QFETCH(QString, link);
        const QString named = link.section('#', 1);
        HelpPage page;
        page.resize(640, 480);
        page.show();
        page.setSource(QUrl("qrc:/docs/" + from), QTextDocument::HtmlResource);
        emit page.anchorClicked(QUrl(link));
        const QString file = link.section('#', 0, 0);
        QCOMPARE(page.source().fileName(), file.isEmpty() ? from : file);
        QVERIFY(page.toPlainText().size() > 500);
        if (named.isEmpty())
            return;
        // A place near the end cannot stand at the top.
        const QScrollBar *bar = page.verticalScrollBar();
        QString heading = topBlock(page).toLower();
        heading.remove(QRegularExpression("[^a-z0-9 _-]")).replace(' ', '-');
        QVERIFY2(heading == named || bar->value() == bar->maximum(), qPrintable(heading));
    }

    void whatTheHelpDoesNotHaveIsSaid_data()
    {
        QTest::addColumn<QString>("link");
        QTest::newRow("a file beside the pages") << "../README.md#install-it";
        QTest::newRow("a folder") << "../examples/jobs";
        QTest::newRow("a page elsewhere") << "https://example.org/settings.md";
    }

    void whatTheHelpDoesNotHaveIsSaid()
    {
        QFETCH(QString, link);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        auto *page = opened(editor);
        answers.give({Answers::enter});
        emit page->anchorClicked(QUrl(link));
        QCOMPARE(answers.seen.value(0).text, "The help has no page " + link + ".");
        QVERIFY(page->toPlainText().startsWith("The settings file"));
        page->close();
    }

    // The pages are in English alone, which a window in another language says.
    void theLanguageOfThePages()
    {
        QTranslator german;
        QVERIFY(german.load("korvel-settings_de", built::path("/companions/settings")));
        QCoreApplication::installTranslator(&german);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        auto *page = opened(editor);
        QCOMPARE(page->windowTitle(), QString("Hilfe (auf Englisch): The settings file"));
        page->close();
    }

private:
    using HelpPage = korvel::settings::HelpPage;

    static HelpPage *opened(Editor &editor)
    {
        editor.shortcut(Qt::Key_F1, Qt::NoModifier);
        return editor.child<HelpPage>("help");
    }

    static void followLink(QTextBrowser &page, int number)
    {
        page.setFocus();
        for (int i = 0; i < number; ++i)
            QTest::keyClick(&page, Qt::Key_Tab);
        QTest::keyClick(&page, Qt::Key_Return);
    }

    /// The text that stands at the top of what is seen.
    static QString topBlock(const QTextBrowser &page)
    {
        return page.cursorForPosition({20, 12}).block().text();
    }

    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsHelp)

} // namespace tst_settingshelp

#include "tst_settingshelp.moc"
