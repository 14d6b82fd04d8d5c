// Texts in their code page, and bytes spelt out.
#include "companions/paper/text.h"

#include "companions/shared/oneline.h"

#include <QList>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

/// The hexadecimal digit of the last four bits.
QLatin1Char digitOf(int bits) { return QLatin1Char("0123456789abcdef"[bits & 0xf]); }

} // namespace

bool isReadable(QByteArrayView text, const CodePage &page)
{
    if (page.isUnicode())
        return text.isValidUtf8();
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (page.characterLength(text.sliced(i, 1)) == 0)
            return false;
    }
    return true;
}

bool isControl(QByteArrayView character, const CodePage &page)
{
    if (character.size() == 1 && static_cast<unsigned char>(character.front()) < 0x80)
        return static_cast<unsigned char>(character.front()) < 0x20 || character.front() == 0x7f;
    const QList<uint> points = page.decode(character).toUcs4();
    return points.size() == 1 && QChar::category(points.front()) == QChar::Other_Control;
}

QString escaped(QByteArrayView bytes, const CodePage &page)
{
    QString text;
    while (!bytes.isEmpty()) {
        if (const char c = bytes.front(); c >= ' ' && c <= '~' && c != '\\') { // by far the most
            text += QLatin1Char(c);
            bytes = bytes.sliced(1);
            continue;
        }
        const qsizetype length = page.characterLength(bytes);
        const QByteArrayView character = bytes.first(length > 0 ? length : 1);
        const char first = character.front();
        if (first == '\n')
            text += "\\n"_L1;
        else if (first == '\r')
            text += "\\r"_L1;
        else if (first == '\t')
            text += "\\t"_L1;
        else if (first == '\\')
            text += "\\\\"_L1;
        else if (const QString shown = length > 0 ? page.decode(character) : QString();
                 !shown.isEmpty() && shared::isPrintable(shown.toUcs4().front()))
            text += shown;
        else
            for (const char byte : character)
                text += "\\x"_L1 + digitOf(byte >> 4) + digitOf(byte);
        bytes = bytes.sliced(character.size());
    }
    return text;
}

QString quoted(QByteArrayView bytes, const CodePage &page)
{
    return u'"' + escaped(bytes, page) + u'"';
}

} // namespace korvel::preview
