// The catalogues of the settings editor: whole, and true to the texts that they translate.
#include "companions/check/vocabulary.h"
#include "companions/settings/window.h"
#include "support/built.h"
#include "support/test.h"

#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTranslator>
#include <QXmlStreamReader>

namespace tst_settingstranslations {

using namespace korvel::settings;

const QString sources = KORVEL_SOURCE_DIR "/companions/settings/translations";
const QString compiled = built::path("/companions/settings");
const QStringList languages = {"de", "es", "fr", "it"};

QString nameOf(const QString &language) { return "korvel-settings_" + language; }

struct Message
{
    QString context, source, translation;
    bool finished;
};

/// The messages of a catalogue, in its order; none when it cannot be read.
QList<Message> messagesOf(const QString &language)
{
    QFile file(sources + '/' + nameOf(language) + ".ts");
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Message> messages;
    QString context;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QString("TS")) {
            if (reader.attributes().value("language") != language)
                return {};
        } else if (reader.name() == QString("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QString("source")) {
            messages.append({context, reader.readElementText(), {}, false});
        } else if (reader.name() == QString("translation")) {
            messages.last().finished = !reader.attributes().hasAttribute("type");
            messages.last().translation = reader.readElementText();
        }
    }
    return reader.hasError() ? QList<Message>() : messages;
}

/// What tells a message from the others: context and source.
QStringList keysOf(const QList<Message> &messages)
{
    QStringList keys;
    for (const Message &message : messages)
        keys.append(message.context + ": " + message.source);
    return keys;
}

/// One row for each message of each catalogue.
void addMessages()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("finished");
    for (const QString &language : languages) {
        for (const Message &message : messagesOf(language))
            QTest::newRow(qPrintable(language + ", " + message.context + ": " + message.source))
                << language << message.context << message.source << message.translation
                << message.finished;
    }
}

/// All places where a pattern fits, sorted.
QStringList allThatFit(const QString &text, const char *pattern)
{
    QStringList found;
    auto it = QRegularExpression(pattern).globalMatch(text);
    while (it.hasNext())
        found.append(it.next().captured());
    found.sort();
    return found;
}

/// A message that is the same in a language as in English.
struct Same
{
    QString language, source, reason;
};

const QList<Same> sameAsSource = {
    {"it", "&File", "Italian took over the English word, and programs name this menu so"},
    {"fr", "point", "the decimal mark has the same name"},
    {"de", "OK", "German has no other word on this button"},
    {"fr", "OK", "nor has French"},
    {"it", "OK", "nor has Italian"},
    {"es", "&No", "the word is the same"},
    {"it", "&No", "the word is the same"},
};

/// Notes the texts that it is asked for in the contexts of the catalogues.
class Listener : public QTranslator
{
public:
    Listener() { QCoreApplication::installTranslator(this); }
    ~Listener() override { QCoreApplication::removeTranslator(this); }

    Q_DISABLE_COPY_MOVE(Listener)

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text,
                                    const char * /*disambiguation*/, int /*n*/) const override
    {
        if (QString(context) == "korvel::settings::SettingsWindow"
            || QString(context) == "documents")
            heard.append(QString(context) + ": " + QString::fromUtf8(text));
        return {};
    }

    mutable QStringList heard; // as keysOf() names them
};

/// The letters that Alt reaches, in lower case; an empty text for a text without one.
QStringList mnemonicsOf(const QStringList &texts)
{
    QStringList letters;
    for (const QString &text : texts)
        letters.append(QKeySequence::mnemonic(text).toString().section('+', -1).toLower());
    return letters;
}

class TestSettingsTranslations : public QObject
{
    Q_OBJECT

private slots:
    void eachLanguageHasACatalogue()
    {
        QStringList files;
        for (const QString &language : languages)
            files.append(nameOf(language) + ".ts");
        QCOMPARE(QDir(sources).entryList(QDir::Files, QDir::Name), files);
    }

    void cataloguesHaveTheSameMessages_data() { addLanguages(); }

    void cataloguesHaveTheSameMessages()
    {
        QFETCH(QString, language);
        const QStringList keys = keysOf(messagesOf(language));
        QVERIFY(!keys.isEmpty());
        QCOMPARE(keys, keysOf(messagesOf(languages.first())));
        QCOMPARE(QStringList(keys).removeDuplicates(), 0);
    }

    /// What the tables of the vocabulary say in the window, and what the window says by itself.
    void nothingIsMissing_data() { addLanguages(); }

    void nothingIsMissing()
    {
        QFETCH(QString, language);
        const Listener listener;
        {
            const SettingsWindow window("korvel.conf", "korvel-print");
        }
        QStringList wanted = listener.heard;
        QVERIFY(wanted.contains("korvel::settings::SettingsWindow: &File"));
        for (const vocabulary::Method &method : vocabulary::methods())
            wanted.append("documents: " + QString(method.title));
        for (const vocabulary::Setting &setting : vocabulary::settings())
            wanted.append("vocabulary: " + QString(setting.meaning));
        for (const vocabulary::LanguageSetting &setting : vocabulary::languageSettings())
            wanted.append("vocabulary: " + QString(setting.meaning));

        const QStringList keys = keysOf(messagesOf(language));
        for (const QString &text : wanted)
            QVERIFY2(keys.contains(text), qPrintable(text));
    }

    void messageIsTranslated_data() { addMessages(); }

    void messageIsTranslated()
    {
        QFETCH(QString, translation);
        QFETCH(bool, finished);
        QVERIFY(finished);
        QVERIFY(!translation.isEmpty());
        QCOMPARE(
            translation.simplified(),
            QString(translation).replace('\n', ' ').replace(QChar::Nbsp, ' ')); // no stray blanks
    }

    /// What the program reads or fills in, and what shows how a text goes on.
    void messageKeepsItsMarks_data() { addMessages(); }

    void messageKeepsItsMarks()
    {
        QFETCH(QString, source);
        QFETCH(QString, translation);
        QCOMPARE(allThatFit(translation, "%\\d"), allThatFit(source, "%\\d"));
        QCOMPARE(allThatFit(translation, "\\[\\*\\]"), allThatFit(source, "\\[\\*\\]"));
        QCOMPARE(translation.count('&'), source.count('&'));
        QCOMPARE(translation.count('\n'), source.count('\n'));
        QCOMPARE(allThatFit(translation, "\"[^\"]*\""), allThatFit(source, "\"[^\"]*\""));
        QCOMPARE(allThatFit(translation, "\\(\\*[*. a-z]*\\)(;;)?"),
                 allThatFit(source, "\\(\\*[*. a-z]*\\)(;;)?")); // the file dialog's filters
        QCOMPARE(allThatFit(translation, "\\d+"), allThatFit(source, "\\d+"));
        QCOMPARE(allThatFit(translation, "( …|[.:?])$"), allThatFit(source, "( …|[.:?])$"));
    }

    /// A translation may name the element where the English text has a pronoun.
    void messageKeepsItsNames_data() { addMessages(); }

    void messageKeepsItsNames()
    {
        QFETCH(QString, source);
        QFETCH(QString, translation);
        const QStringList names = allThatFit(translation, "`[^`]*`");
        for (const QString &name : allThatFit(source, "`[^`]*`"))
            QVERIFY2(names.contains(name), qPrintable(name));
        for (const QString &name : names)
            QVERIFY2(name == "`/`"
                         || vocabulary::findElement(QString(name).remove('`'), vocabulary::Receipt),
                     qPrintable(name));
        QCOMPARE(translation.count('`'), 2 * names.size());
    }

    void messageIsNotLeftInEnglish_data() { addMessages(); }

    void messageIsNotLeftInEnglish()
    {
        QFETCH(QString, language);
        QFETCH(QString, source);
        QFETCH(QString, translation);
        bool same = false;
        for (const Same &row : sameAsSource)
            same = same || (row.language == language && row.source == source);
        QCOMPARE(translation == source, same);
    }

    /// The chooser capitalises them.
    void titlesStandInSentences_data() { addLanguages(); }

    void titlesStandInSentences()
    {
        QFETCH(QString, language);
        QStringList titles;
        for (const Message &message : messagesOf(language)) {
            if (message.context == "documents")
                titles.append(message.translation);
        }
        QCOMPARE(titles.size(), vocabulary::methods().size());
        for (const QString &title : titles) {
            QVERIFY2(!title.contains(','), qPrintable(title)); // commas part them in a list
            if (language != "de") // which has capital letters in sentences, too
                QVERIFY2(title[0].isLower(), qPrintable(title));
        }
        QCOMPARE(titles.removeDuplicates(), 0);
    }

    void compiledCatalogueSaysTheSame_data() { addLanguages(); }

    void compiledCatalogueSaysTheSame()
    {
        QFETCH(QString, language);
        QTranslator catalogue;
        QVERIFY(catalogue.load(nameOf(language), compiled));
        const QList<Message> messages = messagesOf(language);
        QVERIFY(!messages.isEmpty());
        for (const Message &message : messages)
            QCOMPARE(catalogue.translate(message.context.toUtf8(), message.source.toUtf8()),
                     message.translation);
    }

    void mnemonicsAreUnique_data()
    {
        addLanguages();
        QTest::newRow("en") << "en";
    }

    void mnemonicsAreUnique()
    {
        QFETCH(QString, language);
        QTranslator catalogue;
        if (language != "en") {
            QVERIFY(catalogue.load(nameOf(language), compiled));
            QCoreApplication::installTranslator(&catalogue);
        }
        const SettingsWindow window("korvel.conf", "korvel-print");

        QStringList inWindow;
        for (const QAction *menu : window.menuBar()->actions()) {
            inWindow.append(menu->text());
            QStringList inMenu;
            for (const QAction *action : menu->menu()->actions()) {
                if (!action->isSeparator())
                    inMenu.append(action->text());
            }
            verifyMnemonics(inMenu);
        }
        for (const QLabel *label : window.findChildren<QLabel *>()) {
            if (label->buddy())
                inWindow.append(label->text());
        }
        for (const QPushButton *button : window.findChildren<QPushButton *>())
            inWindow.append(button->text());
        const auto *tabs = window.findChild<QTabWidget *>("tabs");
        QVERIFY(tabs);
        inWindow.append({tabs->tabText(0), tabs->tabText(1)});
        verifyMnemonics(inWindow);
    }

private:
    /// Each text has a letter that Alt reaches, and none has another's.
    static void verifyMnemonics(const QStringList &texts)
    {
        QStringList letters = mnemonicsOf(texts);
        QVERIFY(!letters.isEmpty());
        QVERIFY2(!letters.contains(QString()), qPrintable(texts.join(' ')));
        QVERIFY2(letters.removeDuplicates() == 0, qPrintable(texts.join(' ')));
    }

    static void addLanguages()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : languages)
            QTest::newRow(qPrintable(language)) << language;
    }
};

KORVEL_TEST(TestSettingsTranslations)

} // namespace tst_settingstranslations

#include "tst_settingstranslations.moc"
