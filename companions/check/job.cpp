// Encoding, XML, and where each tag and attribute stands.
#include "companions/check/job.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

// What the renderer takes at most; see docs/reliability.md.
constexpr qsizetype deepestElement = 1024;
constexpr qsizetype mostNamespaces = 64;

bool isNamespaceDeclaration(QStringView name)
{
    return name == "xmlns"_L1 || name.startsWith("xmlns:"_L1);
}

/// Whether the renderer takes a text for a name.
bool isName(QStringView name)
{
    const auto begins = [](QChar c) {
        return c.isLetter() || c.category() == QChar::Number_Letter || c == u'_' || c == u':';
    };
    const auto goesOn = [&](QChar c) {
        return begins(c) || c.isNumber() || c.isMark() || c == u'-' || c == u'.';
    };
    return !name.isEmpty() && begins(name.front()) && std::all_of(name.begin(), name.end(), goesOn);
}

/// A text in one line.
QString inOneLine(QString text)
{
    for (QChar &c : text) {
        if (!c.isPrint() && !c.isSurrogate())
            c = u' ';
    }
    return text.simplified();
}

bool isBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r'; }

/// Finds lines and columns of offsets, fastest when they are asked for in rising order.
class Places
{
public:
    explicit Places(const QString &document)
        : text(document)
    {
    }

    Place of(qsizetype offset)
    {
        if (offset < lineStart) {
            at = 0;
            line = 1;
            lineStart = 0;
        }
        for (; at < offset && at < text.size(); ++at) {
            if (text[at] == u'\n') {
                ++line;
                lineStart = at + 1;
            }
        }
        return {line, offset - lineStart + 1};
    }

private:
    const QString &text;
    qsizetype at = 0;
    qsizetype line = 1;
    qsizetype lineStart = 0;
};

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

/// The text of a job; what its encoding has wrong is noted.
QString decoded(const QByteArray &bytes, QList<Fault> &faults)
{
    const auto marked = QStringConverter::encodingForData(bytes, u'<');
    const QByteArray head =
        marked ? QString(QStringDecoder(*marked)(bytes.left(1024))).toUtf8() : bytes.left(256);
    const QByteArray name = namedEncoding(head);
    // The renderer starts anew with the encoding that is named, unless it does not know it.
    if (marked && QStringDecoder(name.constData()).isValid() && inAnother(*marked, name, bytes)) {
        faults.append({Code::Encoding, {}, worded(Code::Encoding, phrase::otherEncoding)});
        return {};
    }
    QStringDecoder decoder = marked ? QStringDecoder(*marked)
                                    : QStringDecoder(name.isEmpty() ? "UTF-8" : name.constData());
    if (!decoder.isValid()) {
        const QString unknown = inOneLine(QString::fromLatin1(name));
        faults.append(
            {Code::Encoding, {}, worded(Code::Encoding, filled(phrase::unknownEncoding, unknown))});
        return {};
    }
    QString text = decoder(bytes);
    if (decoder.hasError()) {
        Places places(text);
        faults.append({Code::Encoding, places.of(firstWrong(text, decoder.name(), bytes)),
                       worded(Code::Encoding,
                              filled(phrase::wrongBytes, QString::fromLatin1(decoder.name())))});
    }
    return text;
}

/// An attribute's name and value in a start tag of the file.
struct Spelt
{
    QStringView value;
    qsizetype offset = 0; // of the name
};

/// The attributes of a start tag that stands between two offsets, as they are spelt.
QList<Spelt> speltAttributes(const QString &text, qsizetype start, qsizetype end)
{
    QList<Spelt> attributes;
    const auto skip = [&](auto fits) {
        while (start < end && fits(text[start]))
            ++start;
    };
    skip([](QChar c) { return !isBlank(c); }); // the element's name
    for (;;) {
        skip(isBlank);
        const qsizetype name = start;
        skip([](QChar c) { return c != u'=' && c != u'>'; });
        if (start >= end || text[start] == u'>')
            return attributes;
        ++start;
        skip(isBlank);
        if (start >= end)
            return attributes;
        const QChar quote = text[start++];
        const qsizetype value = start;
        skip([quote](QChar c) { return c != quote; });
        attributes.append({QStringView(text).mid(value, start - value), name});
        ++start;
    }
}

/// Reads the tags of a job's text.
class Reader
{
public:
    explicit Reader(const QString &document)
        : text(document)
        , places(document)
        , xml(document)
    {
        xml.setNamespaceProcessing(false);
    }

    Job read()
    {
        while (!xml.atEnd() && !stopped) {
            const auto token = xml.readNext();
            if (token == QXmlStreamReader::StartElement)
                readTag();
            else if (token == QXmlStreamReader::EndElement)
                closeTag();
            else if (token == QXmlStreamReader::ProcessingInstruction
                     && !isName(xml.processingInstructionTarget()))
                stop(Code::MalformedXml, worded(Code::MalformedXml, phrase::namelessInstruction));
        }
        if (xml.hasError()) {
            // What a reader says over several lines is one finding.
            QString what = inOneLine(xml.errorString());
            while (what.endsWith(u'.'))
                what.chop(1);
            stop(Code::MalformedXml, worded(Code::MalformedXml, what));
        }
        return job;
    }

private:
    struct Open
    {
        qsizetype tag;
        qsizetype namespaces; // declared by it
    };

    void readTag()
    {
        if (!open.isEmpty())
            job.tags[open.constLast().tag].holdsOthers = true;
        QStringList names = {xml.qualifiedName().toString()};
        for (const QXmlStreamAttribute &attribute : xml.attributes())
            names.append(attribute.qualifiedName().toString());
        for (const QString &name : names) {
            if (!isName(name))
                return stop(Code::MalformedXml,
                            worded(Code::MalformedXml, filled(phrase::noName, inOneLine(name))));
        }

        const qsizetype end = xml.characterOffset();
        const bool spelt = end > 0 && end <= text.size() && text[end - 1] == u'>';
        const qsizetype start =
            spelt ? std::max<qsizetype>(text.lastIndexOf(u'<', end - 1), 0) : end;
        Tag tag;
        tag.name = xml.qualifiedName().toString();
        tag.place = places.of(start);

        // A tag that comes out of an entity is spelt elsewhere.
        const QList<Spelt> spellings = spelt ? speltAttributes(text, start, end) : QList<Spelt>();
        const QXmlStreamAttributes attributes = xml.attributes();
        qsizetype declared = 0;
        for (qsizetype i = 0; i < attributes.size(); ++i) {
            JobAttribute attribute{attributes[i].qualifiedName().toString(),
                                   attributes[i].value().toString(), tag.place};
            if (isNamespaceDeclaration(attribute.name)) {
                ++declared;
                continue;
            }
            QStringView spelling = attribute.value;
            if (spellings.size() == attributes.size()) {
                spelling = spellings[i].value;
                attribute.place = places.of(spellings[i].offset);
            }
            for (const QStringView value : {QStringView(attribute.value), spelling}) {
                attribute.lineBreak |= value.contains(u'\n') || value.contains(u'\r');
                attribute.tab |= value.contains(u'\t');
            }
            tag.attributes.append(attribute);
        }
        open.append({job.tags.size(), declared});
        namespaces += declared;
        const Place place = tag.place;
        if (open.size() > deepestElement)
            stop(Code::Limit,
                 worded(Code::Limit, QString::number(deepestElement), phrase::nestedElements),
                 place);
        else if (namespaces > mostNamespaces)
            stop(Code::Limit,
                 worded(Code::Limit, QString::number(mostNamespaces), phrase::declaredNamespaces),
                 place);
        else
            job.tags.append(std::move(tag));
    }

    void closeTag() { namespaces -= open.takeLast().namespaces; }

    void stop(Code code, const QString &what, std::optional<Place> place = {})
    {
        job.faults.append({code, place ? *place : places.of(xml.characterOffset()), what});
        stopped = true;
    }

    const QString &text;
    Places places;
    QXmlStreamReader xml;
    Job job;
    QList<Open> open;
    qsizetype namespaces = 0;
    bool stopped = false;
};

} // namespace

const JobAttribute *Tag::find(QAnyStringView attribute) const
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const JobAttribute &row) { return row.name == attribute; });
    return found == attributes.end() ? nullptr : &*found;
}

Job readJob(const QByteArray &bytes)
{
    QList<Fault> faults;
    const QString text = decoded(bytes, faults);
    const bool readable = faults.isEmpty() || !text.isEmpty();
    Job job = readable ? Reader(text).read() : Job();
    job.faults = faults + job.faults;
    return job;
}

} // namespace korvel::check
