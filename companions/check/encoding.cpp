// What encoding a job is in, and what it has wrong.
#include "companions/check/encoding.h"

#include "companions/shared/oneline.h"

#include <QStringDecoder>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// The name of the encoding in an XML declaration; empty when it names none.
QByteArray namedEncoding(const QByteArray &bytes)
{
    const QByteArray head = bytes.left(256);
    if (!head.startsWith("<?xml"))
        return {};
    const QByteArray declaration = head.left(head.indexOf("?>"));
    const qsizetype name = declaration.indexOf("encoding");
    if (name < 0)
        return {};
    const QByteArray rest = declaration.mid(name + 8).trimmed();
    if (!rest.startsWith('='))
        return {};
    const QByteArray value = rest.mid(1).trimmed();
    return value.isEmpty() ? value : value.mid(1, value.indexOf(value.front(), 1) - 1);
}

/// Whether the bytes of a job do not say what the encoding that it names would.
bool inAnother(QStringConverter::Encoding marked, const QByteArray &name, const QByteArray &bytes)
{
    const QByteArray upper = name.toUpper();
    switch (marked) {
    case QStringConverter::Utf8:
        return upper != "UTF-8" && upper != "UTF8";
    case QStringConverter::Utf16LE:
        return upper != "UTF-16" && upper != "UTF-16LE";
    case QStringConverter::Utf16BE:
        return !(upper == "UTF-16" && bytes.startsWith("\xFE\xFF")) && upper != "UTF-16BE";
    default:
        return upper != "UTF-32";
    }
}

/// How many bytes at the beginning of a text are UTF-8.
qsizetype validPrefix(const QByteArray &bytes)
{
    qsizetype at = 0;
    while (at < bytes.size()) {
        const qsizetype feed = bytes.indexOf('\n', at);
        const qsizetype end = feed < 0 ? bytes.size() : feed + 1;
        if (!QByteArrayView(bytes).sliced(at, end - at).isValidUtf8())
            break;
        at = end;
    }
    // Of the first line that is not, character by character.
    for (qsizetype length = 1; at + length <= bytes.size() && length <= 4;) {
        if (QByteArrayView(bytes).sliced(at, length).isValidUtf8()) {
            at += length;
            length = 1;
        } else {
            ++length;
        }
    }
    return at;
}

/// Where the first bytes stand that are wrong, in the text that they were decoded to.
qsizetype firstWrong(const QString &text, const char *encoding, const QByteArray &bytes)
{
    if (qstrcmp(encoding, "UTF-8") == 0)
        return QString::fromUtf8(bytes.first(validPrefix(bytes))).size();
    return std::max<qsizetype>(text.indexOf(QChar::ReplacementCharacter), 0);
}

/// Whether an encoding has more than a byte even for ASCII.
bool isWide(QStringDecoder &decoder)
{
    const bool wide = QString(decoder("<")) != "<"_L1;
    decoder.resetState();
    return wide;
}

/// Whether bytes are a text in UTF-8 and have more in them than ASCII.
bool isUtf8(const QByteArray &bytes)
{
    return bytes.isValidUtf8() && std::any_of(bytes.begin(), bytes.end(), [](char byte) {
               return static_cast<unsigned char>(byte) >= 0x80;
           });
}

/// Notes that the renderer ends at the name of an encoding that the job is not in.
void noteOther(QList<Fault> &faults, const QByteArray &name, const char *written)
{
    faults.append({Code::Encoding,
                   {},
                   worded(Code::Encoding, filled(phrase::otherEncoding, QString::fromLatin1(name),
                                                 QString::fromLatin1(written)))});
}

} // namespace

QString decoded(const QByteArray &bytes, QList<Fault> &faults)
{
    const auto marked = QStringConverter::encodingForData(bytes, u'<');
    const QByteArray head =
        marked ? QString(QStringDecoder(*marked)(bytes.left(1024))).toUtf8() : bytes.left(256);
    const QByteArray name = namedEncoding(head);
    // The renderer starts anew with the encoding that is named, unless it does not know it.
    if (marked && QStringDecoder(name.constData()).isValid() && inAnother(*marked, name, bytes)) {
        noteOther(faults, name, QStringConverter::nameForEncoding(*marked));
        return {};
    }
    QStringDecoder decoder = marked ? QStringDecoder(*marked)
                                    : QStringDecoder(name.isEmpty() ? "UTF-8" : name.constData());
    if (!decoder.isValid()) {
        const QString unknown = shared::inOneLine(QString::fromLatin1(name), u' ').simplified();
        faults.append(
            {Code::Encoding, {}, worded(Code::Encoding, filled(phrase::unknownEncoding, unknown))});
        return {};
    }
    if (!marked && isWide(decoder)) { // though the name could be read
        noteOther(faults, name, "UTF-8");
        return {};
    }
    if (!marked && isUtf8(bytes) && qstrcmp(decoder.name(), "UTF-8") != 0) {
        faults.append(
            {Code::Encoding,
             {},
             worded(Code::Encoding, filled(phrase::namedWrongly, QString::fromLatin1(name)))});
        return QString::fromUtf8(bytes);
    }
    QString text = decoder(bytes);
    if (decoder.hasError()) {
        const auto before = QStringView(text).first(firstWrong(text, decoder.name(), bytes));
        const Place place{before.count(u'\n') + 1, before.size() - before.lastIndexOf(u'\n')};
        const QString words = filled(phrase::wrongBytes, QString::fromLatin1(decoder.name()));
        faults.append({Code::Encoding, place, worded(Code::Encoding, words)});
    }
    return text;
}

} // namespace korvel::check
