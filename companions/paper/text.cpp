// Texts in their code page, and bytes spelt out.
#include "companions/paper/text.h"

#include "companions/shared/oneline.h"

#include <QList>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

QString decoded(QByteArrayView text, const CodePage &page) { return page.decode(text); }

qsizetype characterLength(QByteArrayView text, const CodePage &page)
{
    return page.characterLength(text);
}

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
    const QList<uint> points = decoded(character, page).toUcs4();
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
        const qsizetype length = characterLength(bytes, page);
        const QByteArrayView character = bytes.first(length > 0 ? length : 1);
        const QString shown = decoded(character, page);
        const char first = character.front();
        if (first == '\n')
            text += "\\n"_L1;
        else if (first == '\r')
            text += "\\r"_L1;
        else if (first == '\t')
            text += "\\t"_L1;
        else if (first == '\\')
            text += "\\\\"_L1;
        else if (length > 0 && shared::isPrintable(shown.toUcs4().front()))
            text += shown;
        else
            for (const char byte : character)
                text += "\\x"_L1 + QString::fromLatin1(QByteArray(1, byte).toHex());
        bytes = bytes.sliced(character.size());
    }
    return text;
}

} // namespace korvel::preview
