// RELAX NG, written from the tables.
#include "companions/check/schema.h"

#include "companions/check/schematexts.h"

#include <QXmlStreamWriter>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Attribute;
using vocabulary::Element;
using vocabulary::Method;

const QString annotations = u"http://relaxng.org/ns/compatibility/annotations/1.0"_s;

class RelaxNgWriter
{
public:
    QByteArray write()
    {
        xml.setAutoFormatting(true);
        xml.setAutoFormattingIndent(2);
        xml.writeStartDocument();
        xml.writeStartElement(u"grammar"_s);
        xml.writeDefaultNamespace(u"http://relaxng.org/ns/structure/1.0"_s);
        xml.writeNamespace(annotations, u"a"_s);
        xml.writeStartElement(u"start"_s);
        xml.writeStartElement(u"element"_s); // the root, whatever its name
        writeDocumentation(rootDocumentation);
        xml.writeEmptyElement(u"anyName"_s);
        writeOtherAttributes({});
        xml.writeStartElement(u"choice"_s);
        for (const Method &method : vocabulary::methods())
            writeDocument(method);
        xml.writeEndDocument();
        return bytes;
    }

private:
    void writeDocument(const Method &method)
    {
        xml.writeStartElement(u"group"_s);
        xml.writeStartElement(u"element"_s);
        xml.writeAttribute(u"name"_s, vocabulary::element::method);
        writeDocumentation(methodDocumentation);
        xml.writeStartElement(u"attribute"_s);
        xml.writeAttribute(u"name"_s, vocabulary::attribute::name);
        writeDocumentation(method.title);
        xml.writeStartElement(u"value"_s);
        xml.writeAttribute(u"type"_s, u"string"_s);
        xml.writeCharacters(method.name);
        xml.writeEndElement();
        xml.writeEndElement();
        xml.writeEndElement();
        if (method.document != vocabulary::SummaryOrder) { // it knows no element
            xml.writeStartElement(u"zeroOrMore"_s);
            xml.writeStartElement(u"choice"_s);
            for (const Element &element : vocabulary::elements()) {
                if ((element.documents & method.document) != 0)
                    writeElement(element, method);
            }
            xml.writeEndElement();
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }

    void writeElement(const Element &element, const Method &method)
    {
        xml.writeStartElement(u"element"_s);
        xml.writeAttribute(u"name"_s, element.name);
        writeDocumentation(documentationOf(element));
        const QList<Attribute> known = vocabulary::attributesOf(element.name, method.document);
        for (const Attribute &attribute : known)
            writeAttribute(attribute);
        if (element.anyAttribute)
            writeOtherAttributes(known);
        else if (known.isEmpty())
            xml.writeEmptyElement(u"empty"_s);
        xml.writeEndElement();
    }

    /// What is printed in any case has to be there; what has a switch, or is not printed, may be.
    void writeAttribute(const Attribute &attribute)
    {
        const bool optional = vocabulary::isOptional(attribute);
        if (optional)
            xml.writeStartElement(u"optional"_s);
        xml.writeStartElement(u"attribute"_s);
        xml.writeAttribute(u"name"_s, attribute.name);
        writeDocumentation(documentationOf(attribute));
        xml.writeEndElement();
        if (optional)
            xml.writeEndElement();
    }

    void writeOtherAttributes(const QList<Attribute> &known)
    {
        xml.writeStartElement(u"zeroOrMore"_s);
        xml.writeStartElement(u"attribute"_s);
        if (known.isEmpty()) {
            xml.writeEmptyElement(u"anyName"_s);
        } else {
            xml.writeStartElement(u"anyName"_s);
            xml.writeStartElement(u"except"_s);
            for (const Attribute &attribute : known)
                xml.writeTextElement(u"name"_s, attribute.name);
            xml.writeEndElement();
            xml.writeEndElement();
        }
        xml.writeEndElement();
        xml.writeEndElement();
    }

    void writeDocumentation(const QString &text)
    {
        xml.writeTextElement(annotations, u"documentation"_s, text);
    }

    QByteArray bytes;
    QXmlStreamWriter xml{&bytes};
};

} // namespace

QByteArray relaxNgSchema() { return RelaxNgWriter().write(); }

} // namespace korvel::check
