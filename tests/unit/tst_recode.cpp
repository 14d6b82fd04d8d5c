// Code pages by name, and texts in their bytes: what is kept, what is replaced, where it stands.
#include "companions/recode/codepage.h"
#include "companions/recode/substitutes.h"
#include "support/test.h"

namespace tst_recode {

using namespace korvel::recode;

/// Losses as text: "2:5 U+20AC E" with the line, the column and the substitute.
QStringList shown(const QList<Loss> &losses)
{
    QStringList texts;
    for (const Loss &loss : losses)
        texts.append(QString("%1:%2 U+%3 %4")
                         .arg(loss.line)
                         .arg(loss.column)
                         .arg(QString::number(loss.character, 16).toUpper(), 4, QChar('0'))
                         .arg(loss.substitute));
    return texts;
}

class TestRecode : public QObject
{
    Q_OBJECT

private slots:
    void names_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("known");
        const auto row = [](const QByteArray &name, bool known) {
            QTest::newRow(qPrintable('"' + QString::fromLatin1(name) + '"')) << name << known;
        };
        for (const char *name : {"cp858", "CP437", "cp850", "WINDOWS-1252", "ISO-8859-15", "latin1",
                                 "KOI8-R", "ASCII", "UTF-8", "utf-8", "utf8"})
            row(name, true);
        row("", false); // the user's own encoding, to iconv()
        row("nonsense", false);
        row(" cp858", false);
        row("cp858 ", false);
        row("cp858//TRANSLIT", false);
        row("cp858/", false);
        row("cp858,", false);
        row(QByteArray("cp858\0x", 7), false);
        row("\xC3\xA8", false);
        for (const char *name : {"UTF-16", "UTF-16LE", "UTF-32", "UTF-7", "SHIFT_JIS", "CP932",
                                 "GB18030", "BIG5", "EUC-KR", "ISO-2022-JP", "WCHAR_T"})
            row(name, false); // several bytes a character
        for (const char *name : {"CP1255", "CP1258", "TCVN"})
            row(name, false); // a letter depends on the accent that follows
        for (const char *name : {"CP037", "EBCDIC-IT", "ISO646-IT"})
            row(name, false); // not ASCII below 128
    }

    void names()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, known);
        const auto page = CodePage::named(name);
        QCOMPARE(page.has_value(), known);
        if (known)
            QCOMPARE(page->name(), QString::fromLatin1(name));
    }

    void texts_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("losses");
        const auto row = [](const char *what, const QByteArray &name, const QString &text,
                            const QByteArray &bytes, const QStringList &losses = {}) {
            QTest::newRow(what) << name << text << bytes << losses;
        };

        row("what the code page has", "cp858", "Caffè 1 €", "Caff\x8A 1 \xD5");
        row("another code page", "ISO-8859-15", "Caffè 1 €", "Caff\xE8 1 \xA4");
        row("ASCII and control characters stay", "cp437", QString("=\"/(a)\r\n\t") + QChar(0),
            QByteArray("=\"/(a)\r\n\t\0", 10));
        row("UTF-8 lacks nothing", "UTF-8", "è€🍕\uFEFF", "è€🍕\uFEFF");
        row("half a pair is lost in UTF-8 too", "UTF-8", QString("a") + QChar(0xD83C) + "b", "a?b",
            {"1:2 U+D83C ?"});

        row("the euro", "cp850", "1 €", "1 E", {"1:3 U+20AC E"});
        row("dashes", "cp437", "a–b—c", "a-b-c", {"1:2 U+2013 -", "1:4 U+2014 -"});
        row("quotes", "cp437", "“l’uovo”", "\"l'uovo\"",
            {"1:1 U+201C \"", "1:3 U+2019 '", "1:8 U+201D \""});
        row("an ellipsis is a single point", "cp437", "ecc…", "ecc.", {"1:4 U+2026 ."});
        row("a ligature is one letter", "ISO-8859-1", "Œuf \uFB01", "Ouf f",
            {"1:1 U+0152 O", "1:5 U+FB01 f"});
        row("a letter loses its accent", "ASCII", "Tiramisù À", "Tiramisu A",
            {"1:8 U+00F9 u", "1:10 U+00C0 A"});
        row("a letter loses the accent that the code page lacks alone", "ISO-8859-1", "ế", "\xEA",
            {"1:1 U+1EBF ê"});
        row("and both where it lacks both", "ASCII", "ế", "e", {"1:1 U+1EBF e"});
        row("a letter of another alphabet likewise", "ISO-8859-7", "ἀ", "\xE1", {"1:1 U+1F00 α"});
        row("an accent behind its letter is a character", "cp437", "e\u0300", "e`",
            {"1:2 U+0300 `"});
        row("two points of a substitute", "ASCII", "ǿ", "o", {"1:1 U+01FF o"});
        row("a letter that is like none", "cp437", "寿司", "??", {"1:1 U+5BFF ?", "1:2 U+53F8 ?"});
        row("a pair is two columns", "cp437", "🍕a", "??a", {"1:1 U+1F355 ??"});
        row("half a pair is one", "cp437", QString(QChar(0xDF55)) + "!", "?!", {"1:1 U+DF55 ?"});
        row("what is not equal is no equals sign", "ASCII", "≠", "?", {"1:1 U+2260 ?"});
        row("no slash and no parenthesis of another width", "ASCII", "⁄∕／（）＝", "??????",
            {"1:1 U+2044 ?", "1:2 U+2215 ?", "1:3 U+FF0F ?", "1:4 U+FF08 ?", "1:5 U+FF09 ?",
             "1:6 U+FF1D ?"});
        row("places in lines", "ASCII", "a\nè\n🍕è\n", "a\ne\n??e\n",
            {"2:1 U+00E8 e", "3:1 U+1F355 ??", "3:3 U+00E8 e"});
    }

    void texts()
    {
        QFETCH(QByteArray, name);
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, losses);
        const auto page = CodePage::named(name);
        QVERIFY(page);
        QList<Loss> lost;
        QCOMPARE(page->encode(text, [&](const Loss &loss) { lost.append(loss); }), bytes);
        QCOMPARE(shown(lost), losses);
        QCOMPARE(page->encode(text), bytes);
        if (losses.isEmpty())
            QCOMPARE(page->decode(bytes), text);
    }

    void bytesWithoutACharacter()
    {
        const auto greek = CodePage::named("ISO-8859-7");
        QVERIFY(greek);
        QCOMPARE(greek->decode("a\xD2z"), QString("a\uFFFDz")); // the byte is free in Greek
        QCOMPARE(CodePage::named("ASCII")->decode("\xE8)"), QString("\uFFFD)"));
        QCOMPARE(CodePage::named("UTF-8")->decode("\xE8)\n"), QString("\uFFFD)\n"));
        QCOMPARE(CodePage::named("UTF-8")->decode("\xE2\x82)\n").right(2), QString(")\n"));
    }

    void streams()
    {
        const QByteArray stream = "=K\n=C1\n=R1/$120/*2/(Caffè “d’oro”)\n=T1\n";
        const auto utf8 = CodePage::named("UTF-8");
        const auto page = CodePage::named("cp850");
        QList<Loss> losses;
        const auto take = [&](const Loss &loss) { losses.append(loss); };
        const QByteArray sent = recoded(stream, *utf8, *page, take);
        QCOMPARE(sent, "=K\n=C1\n=R1/$120/*2/(Caff\x8A \"d'oro\")\n=T1\n");
        QCOMPARE(shown(losses), QStringList({"3:20 U+201C \"", "3:22 U+2019 '", "3:26 U+201D \""}));
        QCOMPARE(recoded(sent, *page, *utf8), "=K\n=C1\n=R1/$120/*2/(Caffè \"d'oro\")\n=T1\n");
    }

    void bytesOfStreamsThatAreNoCharacters_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QByteArray>("sent");
        QTest::addColumn<QStringList>("lost"); // line, column and byte

        const auto row = [](const char *what, const QByteArray &from, const QByteArray &to,
                            const QByteArray &stream, const QByteArray &sent,
                            const QStringList &lost) {
            QTest::newRow(what) << from << to << stream << sent << lost;
        };
        row("no UTF-8", "UTF-8", "cp858", "a\n\xE8)", "a\n?)", {"2:1 e8"});
        row("no UTF-8, to UTF-8", "UTF-8", "UTF-8", "\xE8)", "?)", {"1:1 e8"});
        row("each byte of the beginning of a character", "UTF-8", "cp858", "\xE2\x82)\n",
            "?"
            "?)\n",
            {"1:1 e2", "1:2 82"});
        row("half a pair in UTF-8", "UTF-8", "UTF-8", "\xED\xB2\x80", "???",
            {"1:1 ed", "1:2 b2", "1:3 80"});
        row("free in Greek", "ISO-8859-7", "UTF-8", "\xE1\xD2", "\xCE\xB1?", {"1:2 d2"});
        row("no ASCII", "ASCII", "cp858", "=o\n\xFF=o\n", "=o\n?=o\n", {"2:1 ff"});
        row("a replacement character is one", "UTF-8", "UTF-8", "\xEF\xBF\xBD", "\xEF\xBF\xBD", {});
        row("so is a byte order mark", "UTF-8", "UTF-8", "\xEF\xBB\xBF=o\n", "\xEF\xBB\xBF=o\n",
            {});
    }

    void bytesOfStreamsThatAreNoCharacters()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QByteArray, stream);
        QFETCH(QByteArray, sent);
        QFETCH(QStringList, lost);
        QStringList found;
        const auto take = [&](const Loss &loss) {
            found.append(QString("%1:%2 %3")
                             .arg(loss.line)
                             .arg(loss.column)
                             .arg(loss.unreadByte().value_or(0), 0, 16));
        };
        QCOMPARE(recoded(stream, *CodePage::named(from), *CodePage::named(to), take), sent);
        QCOMPARE(found, lost);
    }
};

KORVEL_TEST(TestRecode)

} // namespace tst_recode

#include "tst_recode.moc"
