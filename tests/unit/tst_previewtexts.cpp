// Texts of the preview's stream: characters, control characters, bytes spelt out.
#include "companions/paper/text.h"
#include "support/test.h"

namespace tst_previewtexts {

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

class TestPreviewTexts : public QObject
{
    Q_OBJECT

private slots:
    void characterLengths_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<qsizetype>("length");
        const auto row = [](const char *name, const QByteArray &text, qsizetype length) {
            QTest::newRow(name) << text << length;
        };

        row("nothing", "", 0);
        row("a letter", "ab", 1);
        row("a null", "\0a"_ba, 1);
        row("the last of ASCII", "\x7F", 1);
        row("an accented letter", "èb", 2);
        row("the euro sign", "€b", 3);
        row("a byte order mark", "\xEF\xBB\xBF=", 3);
        row("an emoji", "\xF0\x9F\x8D\x95\xF0\x9F\x8D\x95", 4);
        row("the last of Unicode", "\xF4\x8F\xBF\xBD", 4);
        row("half an accented letter", "\xC3", 0);
        row("half an accented letter and another", "\xC3z", 0);
        row("two thirds of the euro sign", "\xE2\x82", 0);
        row("three quarters of an emoji", "\xF0\x9F\x8D", 0);
        row("the inside of a character", "\x80\x80", 0);
        row("longer than need be, 2 bytes", "\xC0\x80", 0);
        row("longer than need be, 3 bytes", "\xE0\x80\x80", 0);
        row("half of a pair", "\xED\xA0\x80", 0);
        row("beyond Unicode", "\xF4\x90\x80\x80", 0);
        row("never in UTF-8", "\xFF\xFF\xFF\xFF\xFF", 0);
    }

    void characterLengths()
    {
        QFETCH(QByteArray, text);
        QFETCH(qsizetype, length);
        QCOMPARE(characterLength(text), length);
    }

    void controlCharacters_data()
    {
        QTest::addColumn<QByteArray>("character");
        QTest::addColumn<bool>("control");
        const auto row = [](const char *name, const QByteArray &character, bool control) {
            QTest::newRow(name) << character << control;
        };

        row("null", "\0"_ba, true);
        row("tab", "\t", true);
        row("line feed", "\n", true);
        row("carriage return", "\r", true);
        row("escape", "\x1B", true);
        row("the last before the blank", "\x1F", true);
        row("delete", "\x7F", true);
        row("next line", "\xC2\x85", true);
        row("blank", " ", false);
        row("letter", "a", false);
        row("accented letter", "è", false);
        row("blank that does not break", "\xC2\xA0", false);
        row("byte order mark", "\xEF\xBB\xBF", false);
        row("emoji", "\xF0\x9F\x8D\x95", false);
    }

    void controlCharacters()
    {
        QFETCH(QByteArray, character);
        QFETCH(bool, control);
        QCOMPARE(isControl(character), control);
    }

    void decodedTexts_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        const QString replaced(QChar::ReplacementCharacter);
        const auto row = [](const char *name, const QByteArray &bytes, const QString &text) {
            QTest::newRow(name) << bytes << text;
        };

        row("nothing", "", "");
        row("UTF-8", "Caff\xC3\xA8 \xE2\x82\xAC", u"Caff\u00E8 \u20AC"_s);
        row("an emoji is two units", "\xF0\x9F\x8D\x95", u"\xD83C\xDF55"_s);
        row("a null", "a\0b"_ba, QString("a") + QChar(u'\0') + 'b');
        row("a byte order mark at the start", "\xEF\xBB\xBF=o", u"\uFEFF=o"_s);
        row("a byte order mark alone", "\xEF\xBB\xBF", u"\uFEFF"_s);
        row("two byte order marks", "\xEF\xBB\xBF\xEF\xBB\xBF", u"\uFEFF\uFEFF"_s);
        row("a byte order mark inside", "=\xEF\xBB\xBFo", u"=\uFEFFo"_s);
        row("not UTF-8 at the start", "\xFFz", replaced + "z");
        row("not UTF-8 inside", "a\xFF\xFEz", "a" + replaced.repeated(2) + "z");
        row("not UTF-8 at the end", "a\xFF", "a" + replaced);
        row("half a character at the end", "Caff\xC3", "Caff" + replaced);
        row("half a character alone", "\xC3", replaced);
    }

    void decodedTexts()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(decoded(bytes), text);
    }

    void escapes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QByteArray &bytes, const QString &text) {
            QTest::newRow(name) << bytes << text;
        };

        row("nothing", "", "");
        row("text", "Caffè € \xF0\x9F\x8D\x95", "Caffè € \xF0\x9F\x8D\x95");
        row("marks of the language", "=\"/( )", "=\"/( )");
        row("line feed, carriage return, tab", "\n\r\t", "\\n\\r\\t");
        row("a backslash", "\\n", "\\\\n");
        row("a null", "a\0b"_ba, "a\\x00b");
        row("a terminal's command", "\x1B[31m", "\\x1b[31m");
        row("delete", "\x7F", "\\x7f");
        row("a control character of two bytes", "\xC2\x85", "\\xc2\\x85");
        row("a mark that turns the text round", "\xE2\x80\xAE", "\\xe2\\x80\\xae");
        row("a mark of no width", "\xE2\x80\x8B", "\\xe2\\x80\\x8b");
        row("a byte order mark", "\xEF\xBB\xBF=o", "\\xef\\xbb\\xbf=o");
        row("a separator of lines",
            "a\xE2\x80\xA8"
            "b",
            "a\\xe2\\x80\\xa8b");
        row("a separator of paragraphs",
            "a\xE2\x80\xA9"
            "b",
            "a\\xe2\\x80\\xa9b");
        row("a character for private use", "\xEE\x80\x80", "\\xee\\x80\\x80");
        row("not UTF-8", "\xFF\xFE", "\\xff\\xfe");
        row("half a character and a letter", "\xC3z", "\\xc3z");
        row("a character broken off", "a\xF0\x9F\x8D", "a\\xf0\\x9f\\x8d");
    }

    void escapes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(escaped(bytes), text);
    }
};

KORVEL_TEST(TestPreviewTexts)

} // namespace tst_previewtexts

#include "tst_previewtexts.moc"
