// What is shown for characters that do not print.
#include "companions/shared/oneline.h"

#include <QList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::shared {

bool isPrintable(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    return QChar::isPrint(character) && category != QChar::Separator_Line
           && category != QChar::Separator_Paragraph;
}

QString inOneLine(const QString &text, QChar substitute)
{
    if (std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c <= u'~'; }))
        return text; // as most are, and fast
    QString shown;
    for (const uint point : text.toUcs4()) { // half a pair comes as a replacement character
        if (isPrintable(point))
            shown += QChar::fromUcs4(point);
        else
            shown += QString(QChar::requiresSurrogates(point) ? 2 : 1, substitute);
    }
    return shown;
}

QString quoted(const QString &value)
{
    constexpr qsizetype longest = 40;
    const QString cut = value.size() > longest ? value.first(longest - 1) + u'…' : value;
    return u'"' + inOneLine(cut, u' ') + u'"';
}

QByteArray jsonText(const QString &text)
{
    const auto isPlain = [](QChar c) { return c >= u' ' && c <= u'~' && c != u'"' && c != u'\\'; };
    if (std::all_of(text.begin(), text.end(), isPlain))
        return '"' + text.toLatin1() + '"'; // as most are, and fast
    QString json;
    for (qsizetype i = 0, length = 0; i < text.size(); i += length) {
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        length = isPair ? 2 : 1;
        const QStringView character = QStringView(text).sliced(i, length);
        const char32_t point =
            isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : char32_t(text[i].unicode());
        if (point == U'"' || point == U'\\')
            json += u'\\' + character;
        else if (isPrintable(point))
            json += character;
        else
            for (const QChar unit : character)
                json += u"\\u"_s + QString::number(unit.unicode(), 16).rightJustified(4, u'0');
    }
    return '"' + json.toUtf8() + '"';
}

QString characterName(char32_t character)
{
    QString number = u"U+"_s + QString::number(character, 16).toUpper().rightJustified(4, u'0');
    if (!isPrintable(character))
        return number;
    return u'"' + QString::fromUcs4(&character, 1) + u"\" ("_s + number + u')';
}

QString counted(qint64 number, const QString &thing)
{
    return QString::number(number) + u' ' + thing + (number == 1 ? QString() : u"s"_s);
}

} // namespace korvel::shared
