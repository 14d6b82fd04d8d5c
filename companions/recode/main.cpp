// korvel-recode: a command stream in the bytes that an 8-bit printer reads.
#include "companions/recode/codepage.h"
#include "companions/shared/commandline.h"
#include "companions/shared/files.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"

#include <QCoreApplication>
#include <QHash>

#include <cstdio>
#include <utility>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::recode {

namespace {

const QCommandLineOption fromOption(u"from"_s, u"The code page that the stream comes in."_s,
                                    u"name"_s, u"UTF-8"_s);
const QCommandLineOption toOption(u"to"_s, u"The code page that the printer is set to."_s,
                                  u"name"_s);
const QCommandLineOption quietOption({u"q"_s, u"quiet"_s},
                                     u"Do not say what is lost; the exit status still does."_s);

/// Says what is lost of a stream, a line for each character, and remembers whether anything was.
class Losses
{
public:
    Losses(const QString &stream, QString charset, bool isQuiet)
        : name(inOneLine(stream).toUtf8())
        , from(std::move(charset))
        , quiet(isQuiet)
    {
    }

    void add(const Loss &loss)
    {
        any = true;
        if (quiet)
            return;
        constexpr qsizetype block = 32'768;
        pending += name;
        pending += ':' + QByteArray::number(loss.line) + ':' + QByteArray::number(loss.column);
        pending += wordsOn(loss);
        if (pending.size() >= block)
            flush();
    }

    void flush()
    {
        std::fwrite(pending.constData(), 1, static_cast<std::size_t>(pending.size()), stderr);
        pending.resize(0);
    }

    [[nodiscard]] int status() const { return any ? Findings : Clean; }

private:
    /// What is said of a character: the same each time, in a stream that may have millions.
    const QByteArray &wordsOn(const Loss &loss)
    {
        QByteArray &text = words[loss.character];
        if (text.isEmpty()) {
            const auto byte = loss.unreadByte();
            const QString lost = byte ? u"the byte \\x"_s + QString::number(*byte, 16)
                                            + u" is not "_s + from + u" and"_s
                                      : characterName(loss.character);
            text = (u": "_s + lost + u" prints as \""_s + loss.substitute + u"\"\n"_s).toUtf8();
        }
        return text;
    }

    const QByteArray name;
    const QString from;
    const bool quiet;
    bool any = false;
    QHash<char32_t, QByteArray> words;
    QByteArray pending; // is written a block at a time
};

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Writes a command stream in the code page of an 8-bit printer to standard output."_s);
    parser.addPositionalArgument(u"STREAM"_s,
                                 u"What korvel-print wrote; standard input for - or for none."_s,
                                 u"[STREAM]"_s);
    parser.addOptions({fromOption, toOption, quietOption});
    if (const auto status = readCommandLine(parser, arguments))
        return *status;
    if (!parser.isSet(toOption))
        return trouble(
            u"--to is needed: the code page of the printer, such as cp858; see --help"_s);
    if (parser.positionalArguments().size() > 1)
        return trouble(u"one stream is enough; see --help"_s);
    const auto from = CodePage::named(parser.value(fromOption).toUtf8());
    if (!from)
        return trouble(korvel::recode::noCodePage(parser.value(fromOption)));
    const auto to = CodePage::named(parser.value(toOption).toUtf8());
    if (!to)
        return trouble(korvel::recode::noCodePage(parser.value(toOption)));

    const QString path = parser.positionalArguments().value(0, u"-"_s);
    QString error;
    const auto stream = readWhole(path, largestStream, error);
    if (!stream)
        return trouble(path + u": "_s + error);
    Losses losses(path, from->name(), parser.isSet(quietOption));
    const QByteArray bytes =
        recoded(*stream, *from, *to, [&](const Loss &loss) { losses.add(loss); });
    losses.flush();
    return writeBytes(bytes, losses.status());
}

} // namespace

} // namespace korvel::recode

int main(int argc, char *argv[])
{
    prepareCompanion();
    const QCoreApplication application(argc, argv);
    return korvel::recode::run(argumentsOf(argc, argv));
}
