// Every character through every code page of the machine: columns, commands, and what comes back.
#include "companions/paper/decoder.h"
#include "companions/recode/codepage.h"
#include "companions/recode/substitutes.h"
#include "support/streams.h"
#include "support/test.h"

#include <QProcess>
#include <QSet>

#include <algorithm>
#include <utility>

namespace tst_recodepages {

using namespace korvel::recode;
using korvel::preview::Command;

/// All names that the machine's iconv() has.
QByteArrayList names()
{
    QProcess iconv;
    iconv.start("iconv", {"-l"});
    if (!iconv.waitForFinished() || iconv.exitCode() != 0)
        qFatal("iconv -l does not run");
    // "437//" a line, or several with commas between them
    QByteArrayList all;
    for (const QByteArray &word : iconv.readAllStandardOutput().simplified().split(' '))
        all.append(word.split(',').constFirst().split('/').constFirst());
    return all;
}

/// The code pages among them, each once, without UTF-8.
const QList<CodePage> &pages()
{
    static const QList<CodePage> all = [] {
        QByteArray everyByte;
        for (int i = 0; i < 256; ++i)
            everyByte += static_cast<char>(i);
        QSet<QString> seen;
        QList<CodePage> found;
        for (const QByteArray &name : names()) {
            const auto page = CodePage::named(name);
            if (!page || page->isUnicode() || seen.contains(page->decode(everyByte)))
                continue;
            seen.insert(page->decode(everyByte));
            found.append(*page);
        }
        return found;
    }();
    return all;
}

/// The basic plane without the halves of pairs, and some of those beyond.
QString everyCharacter()
{
    QString text;
    for (char32_t c = 0; c < 0x10000; ++c) {
        if (!QChar::isSurrogate(c))
            text += QChar(static_cast<char16_t>(c));
    }
    for (const char32_t c : {0x10000U, 0x1D538U, 0x1F355U, 0x20000U, 0xE0001U, 0x10FFFFU})
        text += QChar::fromUcs4(c);
    return text;
}

TakeLoss appendTo(QList<Loss> &losses)
{
    return [&losses](const Loss &loss) { losses.append(loss); };
}

bool isOfTheLanguage(QChar c)
{
    return c == u')' || c == u'(' || c == u'/' || c == u'=' || c.unicode() < 0x20
           || (c.unicode() >= 0x7F && c.unicode() < 0xA0);
}

/// The kinds of a stream's commands, each with its blanks and texts as the code page has them.
QStringList commandsOf(const QByteArray &stream, const CodePage &page)
{
    QStringList all;
    korvel::preview::Decoder decoder(stream);
    while (const auto command = decoder.next()) {
        QStringList parts = {QString::number(int(command->kind)),
                             QString::number(int(command->section)),
                             QString::number(command->line)};
        for (const QByteArray &text :
             {QByteArray(command->spaces, ' ') + command->content, command->department,
              command->amount, command->quantity, command->description})
            parts.append(page.decode(text));
        all.append(parts.join(u'|'));
    }
    return all;
}

class TestRecodePages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(pages().size() > 40); }

    /// One byte for each UTF-16 unit; what is not lost comes back whole, what is lost comes back as
    /// its substitute, which is none of the printer's language.
    void everyCharacterKeepsItsColumns()
    {
        const QString text = everyCharacter();
        const qsizetype second = text.indexOf(u'\n') + 1; // line; all that is lost is in it
        for (const CodePage &page : pages()) {
            QList<Loss> losses;
            const QByteArray bytes = page.encode(text, appendTo(losses));
            QCOMPARE(bytes.size(), text.size());
            QVERIFY(!losses.isEmpty());

            QString expected = text;
            bool inPlace = true;
            bool ofTheLanguage = false;
            for (const Loss &loss : std::as_const(losses)) {
                const qsizetype from = second + loss.column - 1;
                const qsizetype units = loss.substitute.size();
                inPlace = inPlace && loss.line == 2
                          && QStringView(QChar::fromUcs4(loss.character)) // a byte order mark, too
                                 == QStringView(text).mid(from, units);
                ofTheLanguage =
                    ofTheLanguage
                    || std::any_of(loss.substitute.begin(), loss.substitute.end(), isOfTheLanguage);
                std::copy_n(loss.substitute.begin(), units, expected.begin() + from);
            }
            QVERIFY2(inPlace, qPrintable(page.name()));
            QVERIFY2(!ofTheLanguage, qPrintable(page.name()));
            QVERIFY2(page.decode(bytes) == expected, qPrintable(page.name()));
        }
    }

    /// A code page has what its bytes stand for, and nothing of that is lost.
    void everyByteComesBack()
    {
        for (const CodePage &page : pages()) {
            for (int i = 0; i < 256; ++i) {
                const QString character = page.decode(QByteArray(1, static_cast<char>(i)));
                QCOMPARE(character.size(), 1);
                if (i < 128)
                    QCOMPARE(character.front().unicode(), char16_t(i));
                if (character.front() == QChar::ReplacementCharacter)
                    continue;
                QList<Loss> losses;
                QCOMPARE(page.decode(page.encode(character, appendTo(losses))), character);
                QVERIFY2(losses.isEmpty(), qPrintable(page.name()));
            }
        }
    }

    void likenessEnds()
    {
        int most = 0;
        for (char32_t c = 0; c < 0x110000; ++c) {
            int steps = 0;
            for (char16_t like = likeCharacter(c); like != 0 && steps < 9;)
                like = (++steps, likeCharacter(like));
            most = std::max(most, steps);
        }
        QCOMPARE(most, 3); // a letter with three accents
    }

    /// Streams in other bytes are the same commands with the same texts, but for what is lost.
    /// Beyond the characters that code pages have, the first in the plane will do.
    void commandsStayCommands()
    {
        const auto utf8 = CodePage::named("UTF-8");
        const QString text = everyCharacter().left(0x2600).remove(u'\n').remove(u')');
        QByteArray everything;
        for (qsizetype i = 0; i < text.size(); i += 64) {
            const QByteArray piece = text.mid(i, 64).toUtf8();
            everything += "=K\n=C1\n=R1/$120/*2/(" + piece + ")\n=S\r\n=V/$5\r\n=T1\n=o\n"
                          + line(piece) + line("a)" + piece) + "=?" + piece + "\n=o\n";
        }
        const QByteArrayList streams = brokenStreams + QByteArrayList{everything};
        for (const CodePage &page : pages()) {
            for (const QByteArray &stream : streams) {
                const QByteArray sent = recoded(stream, *utf8, page);
                const QString substituted = page.decode(page.encode(utf8->decode(stream)));
                QCOMPARE(commandsOf(sent, page), commandsOf(substituted.toUtf8(), *utf8));
            }
        }
    }
};

KORVEL_TEST(TestRecodePages)

} // namespace tst_recodepages

#include "tst_recodepages.moc"
