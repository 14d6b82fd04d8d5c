// XML, and where each tag and attribute stands.
#include "companions/check/job.h"

#include "app/entities.h"
#include "companions/check/encoding.h"
#include "companions/check/xmlerrors.h"
#include "vocabulary/limits.h"

#include <expat.h>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

namespace limit = korvel::vocabulary::limit;

// The parser compares what a document type declares for an element with each other.
constexpr int mostDeclaredAttributes = 1024;

// Entities may make so many times of a job what it is, once that is so many bytes: beyond both they
// are longer than the renderer takes.
constexpr float mostAmplified = 2;
constexpr unsigned long long longestUnlimited = 2'097'152;

// In front of the text it keeps the parser from taking anything else for a mark or an encoding.
constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";

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

/// Finds lines and columns of bytes that are asked for in rising order.
class Places
{
public:
    explicit Places(QByteArrayView document)
        : text(document)
    {
    }

    Place of(qsizetype byte)
    {
        for (; at < byte; ++at) {
            const auto c = static_cast<unsigned char>(text[at]);
            if (c == '\n')
                place = {place.line + 1, 1};
            else if (c < 0x80U || c >= 0xC0U) // no further byte of a character
                place.column += c < 0xF0U ? 1 : 2;
        }
        return place;
    }

private:
    QByteArrayView text;
    qsizetype at = byteOrderMark.size();
    Place place;
};

/// An attribute in a start tag of the file.
struct Spelt
{
    QByteArrayView value;
    qsizetype offset = 0; // of the name
};

/// The attributes of a well-formed start tag, as they are spelt.
QList<Spelt> speltAttributes(QByteArrayView tag)
{
    QList<Spelt> attributes;
    qsizetype at = 0;
    const auto isBlank = [&] {
        return tag[at] == ' ' || tag[at] == '\t' || tag[at] == '\n' || tag[at] == '\r';
    };
    while (at < tag.size() && !isBlank()) // the element's name
        ++at;
    for (;;) {
        while (at < tag.size() && isBlank())
            ++at;
        const qsizetype name = at;
        at = tag.indexOf('=', at) + 1;
        if (at == 0)
            return attributes;
        while (isBlank())
            ++at;
        const qsizetype value = at + 1;
        at = tag.indexOf(tag[at], value);
        attributes.append({tag.sliced(value, at - value), name});
        ++at;
    }
}

/// Reads the tags of a job's text.
class Reader
{
public:
    explicit Reader(const QString &text)
        : document(byteOrderMark.toByteArray() + text.toUtf8())
        , places(document)
        , parser(XML_ParserCreate("UTF-8"))
    {
        Q_CHECK_PTR(parser);
        XML_SetUserData(parser.get(), this);
        XML_SetElementHandler(parser.get(), call<&Reader::readTag>, call<&Reader::closeTag>);
        XML_SetCharacterDataHandler(parser.get(), call<&Reader::readText>);
        XML_SetProcessingInstructionHandler(parser.get(), call<&Reader::readInstruction>);
        XML_SetXmlDeclHandler(parser.get(), call<&Reader::readDeclaration>);
        XML_SetEntityDeclHandler(parser.get(), call<&Reader::readEntity>);
        XML_SetAttlistDeclHandler(parser.get(), call<&Reader::readDeclaredAttribute>);
        // Of the document type itself alone: nobody fetches what stands elsewhere.
        XML_SetParamEntityParsing(parser.get(), XML_PARAM_ENTITY_PARSING_ALWAYS);
        XML_SetBillionLaughsAttackProtectionMaximumAmplification(parser.get(), mostAmplified);
        XML_SetBillionLaughsAttackProtectionActivationThreshold(parser.get(), longestUnlimited);
    }

    Job read()
    {
        const auto size = static_cast<int>(document.size());
        const auto status = XML_Parse(parser.get(), document.constData(), size, XML_TRUE);
        if (status != XML_STATUS_OK && !stopped) {
            const auto error = XML_GetErrorCode(parser.get());
            const qsizetype at = error == XML_ERROR_UNDEFINED_ENTITY ? undeclared() : offset();
            const Tag *left = error == XML_ERROR_TAG_MISMATCH ? leftOpen(at) : nullptr;
            const Tag *innermost = open.isEmpty() ? nullptr : &job.tags[open.constLast().tag];
            const XmlFault fault =
                faultIn(document, error, at, left ? left : innermost, left != nullptr);
            const Place stop = places.of(fault.offset);
            if (fault.isInOpen)
                stopAtMalformed((left ? left : innermost)->place, fault.words,
                                filled(phrase::behindLine, QString::number(stop.line)));
            else
                stopAtMalformed(stop, fault.words);
        }
        return job;
    }

private:
    struct Open
    {
        qsizetype tag;
        qsizetype namespaces; // declared by it
    };

    /// An operation as the parser calls it, as long as nothing has stopped the reader.
    template<auto operation, typename... Arguments>
    static void call(void *reader, Arguments... arguments)
    {
        auto *self = static_cast<Reader *>(reader);
        if (!self->stopped)
            (self->*operation)(arguments...);
    }

    /// The first byte of what the parser has come to; of what stands in an entity, the reference.
    [[nodiscard]] qsizetype offset() const
    {
        return std::max<qsizetype>(XML_GetCurrentByteIndex(parser.get()), byteOrderMark.size());
    }

    /// Where in the start tag that the parser has come to the first reference to nothing stands;
    /// it says itself no more than the tag.
    [[nodiscard]] qsizetype undeclared() const
    {
        static const QStringList predefined = {u"amp"_s, u"apos"_s, u"gt"_s, u"lt"_s, u"quot"_s};
        const QByteArrayView tag = QByteArrayView(document).sliced(offset());
        if (!tag.startsWith('<'))
            return offset();
        char quote = 0;
        for (qsizetype i = 0; i < tag.size() && (quote != 0 || tag[i] != '>'); ++i) {
            if (quote == tag[i])
                quote = 0;
            else if (quote == 0 && (tag[i] == '"' || tag[i] == '\''))
                quote = tag[i];
            if (tag[i] != '&')
                continue;
            const QByteArrayView behind = tag.sliced(i + 1);
            const QString name = QString::fromUtf8(behind.first(behind.indexOf(';')));
            if (!name.startsWith(u'#') && !predefined.contains(name) && !entities.isDeclared(name))
                return offset() + i;
        }
        return offset();
    }

    /// The outermost element that an end tag leaves open, which closes one around it; null when it
    /// closes none that is open.
    [[nodiscard]] const Tag *leftOpen(qsizetype endTag) const
    {
        const QByteArrayView name = QByteArrayView(document).sliced(endTag);
        for (qsizetype i = open.size() - 2; i >= 0; --i) {
            const QByteArray outer = job.tags[open[i].tag].name.toUtf8();
            const char behind = name.startsWith(outer) ? name.data()[outer.size()] : 'x';
            if (behind == '>' || behind == ' ' || behind == '\t' || behind == '\n'
                || behind == '\r')
                return &job.tags[open[i + 1].tag];
        }
        return nullptr;
    }

    void readTag(const char *name, const char **attributes)
    {
        if (!open.isEmpty())
            job.tags[open.constLast().tag].holdsOthers = true;
        const qsizetype start = offset();
        Tag tag;
        tag.name = QString::fromUtf8(name);
        tag.place = places.of(start);
        if (!open.isEmpty())
            tag.parent = open.constLast().tag;
        if (!isName(tag.name))
            return stopAtMalformed(tag.place, filled(phrase::noName, tag.name));

        const qsizetype declared = readAttributes(tag, start, attributes);
        if (stopped)
            return;
        open.append({job.tags.size(), declared});
        namespaces += declared;
        if (open.size() > limit::deepestElement)
            stopAtLimit(tag.place,
                        filled(phrase::nestedElements, QString::number(limit::deepestElement)));
        else if (namespaces > limit::mostNamespaces)
            stopAtLimit(tag.place,
                        filled(phrase::declaredNamespaces, QString::number(limit::mostNamespaces)));
        else
            job.tags.append(std::move(tag));
    }

    /// Adds its attributes to a tag, and counts the namespaces among them. Those that the document
    /// type would add the renderer does not print.
    qsizetype readAttributes(Tag &tag, qsizetype start, const char **attributes)
    {
        QList<Spelt> spellings;
        if (document[start] == '<') // a tag that comes out of an entity is spelt elsewhere
            spellings = speltAttributes(
                QByteArrayView(document).sliced(start, XML_GetCurrentByteCount(parser.get())));
        const qsizetype count = XML_GetSpecifiedAttributeCount(parser.get()) / 2;
        qsizetype declared = 0;
        for (qsizetype i = 0; i < count; ++i) {
            JobAttribute attribute{QString::fromUtf8(attributes[2 * i]),
                                   QString::fromUtf8(attributes[2 * i + 1]), tag.place};
            QByteArrayView spelling = attributes[2 * i + 1];
            if (!spellings.isEmpty()) {
                spelling = spellings[i].value;
                attribute.place = places.of(start + spellings[i].offset);
            }
            if (!isName(attribute.name)) {
                stopAtMalformed(attribute.place, filled(phrase::noName, attribute.name));
                break;
            }
            if (isNamespaceDeclaration(attribute.name)) {
                ++declared;
                continue;
            }
            for (const QByteArrayView value : {QByteArrayView(attributes[2 * i + 1]), spelling}) {
                attribute.lineBreak |= value.contains('\n') || value.contains('\r');
                attribute.tab |= value.contains('\t');
            }
            tag.attributes.append(attribute);
        }
        return declared;
    }

    void readText(const char *bytes, int length)
    {
        constexpr qsizetype longest = 80; // of what findings show
        Tag &tag = job.tags[open.constLast().tag];
        QByteArrayView text(bytes, length);
        if (tag.text.isEmpty()) {
            while (!text.isEmpty() && QByteArrayView(" \t\r\n").contains(text.front()))
                text = text.sliced(1);
            if (text.isEmpty())
                return;
            const bool spelt = document[offset()] == *bytes; // else it comes out of an entity
            tag.textPlace = places.of(offset() + (spelt ? length - text.size() : 0));
        }
        if (tag.text.size() < longest)
            tag.text += QString::fromUtf8(text.first(std::min(text.size(), longest)));
    }

    void closeTag(const char * /*name*/) { namespaces -= open.takeLast().namespaces; }

    void readInstruction(const char *target, const char * /*data*/)
    {
        if (!isName(QString::fromUtf8(target)))
            stopAtMalformed(places.of(offset()), phrase::namelessInstruction);
    }

    void readDeclaration(const char *version, const char * /*encoding*/, int /*standalone*/)
    {
        if (version && qstrcmp(version, "1.0") != 0)
            stopAtMalformed(places.of(offset()),
                            filled(phrase::otherVersion, QString::fromUtf8(version)));
    }

    void readEntity(const char *name, int isParameter, const char *text, int length,
                    const char * /*base*/, const char * /*systemId*/, const char * /*publicId*/,
                    const char * /*notation*/)
    {
        const QString prefix = isParameter != 0 ? u"%"_s : QString();
        if (!entities.declare(prefix + QString::fromUtf8(name), QString::fromUtf8(text, length)))
            stopAtLimit(places.of(offset()), phrase::declaredEntities);
    }

    void readDeclaredAttribute(const char * /*element*/, const char * /*name*/,
                               const char * /*type*/, const char * /*value*/, int /*required*/)
    {
        if (++declaredAttributes > mostDeclaredAttributes)
            stopAtLimit(places.of(offset()), filled(phrase::declaredAttributes,
                                                    QString::number(mostDeclaredAttributes)));
    }

    void stopAtMalformed(Place place, const QString &words,
                         const QString &unread = phrase::behindThis)
    {
        stop(Code::MalformedXml, place, worded(Code::MalformedXml, words, unread));
    }

    void stopAtLimit(Place place, const QString &words)
    {
        stop(Code::Limit, place, worded(Code::Limit, words));
    }

    void stop(Code code, Place place, const QString &text)
    {
        job.faults.append({code, place, text});
        stopped = true;
        XML_StopParser(parser.get(), XML_FALSE);
    }

    struct Free
    {
        void operator()(XML_Parser finished) const { XML_ParserFree(finished); }
    };

    const QByteArray document; // in UTF-8, with a mark in front
    Places places;
    std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free> parser;
    Job job;
    QList<Open> open;
    app::Entities entities;
    qsizetype namespaces = 0;
    int declaredAttributes = 0;
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
