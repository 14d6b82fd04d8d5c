// UTF-8 taken apart, and bytes spelt out.
#include "companions/paper/text.h"

#include "companions/shared/oneline.h"

#include <QList>
#include <QStringDecoder>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

QString decoded(QByteArrayView text)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless
                                                     | QStringDecoder::Flag::ConvertInitialBom);
    return decoder(text);
}

qsizetype characterLength(QByteArrayView text)
{
    if (text.isEmpty())
        return 0;
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80)
        return 1;
    qsizetype length = 1;
    if (lead >= 0xF0)
        length = 4;
    else if (lead >= 0xE0)
        length = 3;
    else if (lead >= 0xC0)
        length = 2;
    return length <= text.size() && text.first(length).isValidUtf8() ? length : 0;
}

bool isControl(QByteArrayView character)
{
    if (character.size() == 1)
        return static_cast<unsigned char>(character.front()) < 0x20 || character.front() == 0x7f;
    const QList<uint> points = decoded(character).toUcs4();
    return points.size() == 1 && QChar::category(points.front()) == QChar::Other_Control;
}

QString escaped(QByteArrayView bytes)
{
    QString text;
    while (!bytes.isEmpty()) {
        if (const char c = bytes.front(); c >= ' ' && c <= '~' && c != '\\') { // by far the most
            text += QLatin1Char(c);
            bytes = bytes.sliced(1);
            continue;
        }
        const qsizetype length = characterLength(bytes);
        const QByteArrayView character = bytes.first(length > 0 ? length : 1);
        const QString shown = decoded(character);
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
