// Texts in one line: characters that print, and what stands for the others.
#include "companions/shared/oneline.h"
#include "support/test.h"

namespace tst_oneline {

using namespace Qt::Literals::StringLiterals;
using namespace korvel::shared;

class TestOneLine : public QObject
{
    Q_OBJECT

private slots:
    void characters()
    {
        for (const char32_t character : {U' ', U'a', U'\u00A0', U'\u00E8', U'\u0301', U'\u20AC',
                                         U'\u65E5', U'\uFFFD', U'\U0001F355'})
            QVERIFY2(isPrintable(character), qPrintable(QString::number(character, 16)));
        for (const char32_t character : {U'\0', U'\t', U'\n', U'\x1B', U'\x7F', U'\x85', U'\u00AD',
                                         U'\u200B', U'\u2028', U'\u2029', U'\u202E', U'\uE000',
                                         U'\uFEFF', U'\U000E0001', U'\U0010FFFF', char32_t(0xD83D)})
            QVERIFY2(!isPrintable(character), qPrintable(QString::number(character, 16)));
    }

    void texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        const QString replaced(QChar::ReplacementCharacter);
        const auto row = [](const char *name, const QString &text, const QString &shown) {
            QTest::newRow(name) << text << shown;
        };

        row("nothing", "", "");
        row("text", u"Caffè € \U0001F355"_s, u"Caffè € \U0001F355"_s);
        row("an accent over the letter before it", u"e\u0301"_s, u"e\u0301"_s);
        row("a blank that does not break", u"a\u00A0b"_s, u"a\u00A0b"_s);
        row("line ends and tabs", "a\r\n\tb", "a" + replaced.repeated(3) + "b");
        row("a null", QString(QChar(u'\0')), replaced);
        row("a terminal's command", "\x1B[31m", replaced + "[31m");
        row("a control character beyond ASCII", u"\u0085\u009B"_s, replaced.repeated(2));
        row("a mark that turns the text round", u"\u202E"_s, replaced);
        row("a mark of no width", u"\u200B\uFEFFa"_s, replaced.repeated(2) + "a");
        row("separators of lines and paragraphs", u"\u2028\u2029"_s, replaced.repeated(2));
        row("a character for private use", u"\uE000"_s, replaced);
        row("one of two units", u"\U000E0001"_s, replaced.repeated(2));
        row("half a pair", QString(QChar(0xD83D)) + "a", replaced + "a");
        row("the other half", "a" + QString(QChar(0xDE00)), "a" + replaced);
    }

    void texts()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QCOMPARE(inOneLine(text), shown);
        QCOMPARE(inOneLine(text).size(), text.size());
    }

    void otherSubstitutes()
    {
        QCOMPARE(inOneLine(u"a\n\u2028\u2029\U000E0001b"_s, u' '), u"a     b"_s);
        QCOMPARE(inOneLine(QString(QChar(0xD83D)), u' '), QString(QChar::ReplacementCharacter));
    }

    void namesOfCharacters()
    {
        QCOMPARE(characterName(U'è'), u"\"è\" (U+00E8)"_s);
        QCOMPARE(characterName(U'\U0001F355'), u"\"\U0001F355\" (U+1F355)"_s);
        QCOMPARE(characterName(U'\n'), u"U+000A"_s);
        QCOMPARE(characterName(0xDC80), u"U+DC80"_s);
    }
};

KORVEL_TEST(TestOneLine)

} // namespace tst_oneline

#include "tst_oneline.moc"
