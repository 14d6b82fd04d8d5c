// XML Schema, written from the tables.
#include "companions/check/schema.h"

#include "companions/check/schematexts.h"

#include <QStringList>
#include <QXmlStreamWriter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Attribute;
using vocabulary::Documents;
using vocabulary::Element;
using vocabulary::Method;

const QString root = vocabulary::element::root;
const QString xsd = u"http://www.w3.org/2001/XMLSchema"_s;

/// What the rows of a name mean, each meaning behind its documents, unless it is that of all.
template<typename Row>
QStringList documentationsOf(const QList<Row> &rows, Documents all)
{
    QStringList texts;
    QList<Documents> documents;
    for (const Row &row : rows) {
        const QString text = documentationOf(row);
        if (const qsizetype same = texts.indexOf(text); same >= 0) {
            documents[same] |= row.documents;
        } else {
            texts.append(text);
            documents.append(row.documents);
        }
    }
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (documents[i] != all)
            texts[i].prepend(vocabulary::titlesOf(documents[i]) + u": "_s);
    }
    return texts;
}

class XmlSchemaWriter
{
public:
    QByteArray write()
    {
        xml.setAutoFormatting(true);
        xml.setAutoFormattingIndent(2);
        xml.writeStartDocument();
        xml.writeNamespace(xsd, u"xs"_s);
        start(u"schema"_s);
        start(u"element"_s, root);
        writeDocumentation({rootDocumentation});
        start(u"complexType"_s);
        start(u"sequence"_s);
        writeMethod();
        start(u"choice"_s);
        xml.writeAttribute(u"minOccurs"_s, u"0"_s);
        xml.writeAttribute(u"maxOccurs"_s, u"unbounded"_s);
        QStringList written;
        for (const Element &row : vocabulary::elements()) {
            if (!written.contains(row.name))
                writeElement(row.name);
            written.append(row.name);
        }
        end();
        end();
        writeAnyAttribute();
        xml.writeEndDocument();
        return bytes;
    }

private:
    void writeMethod()
    {
        start(u"element"_s, vocabulary::element::method);
        writeDocumentation({methodDocumentation});
        start(u"complexType"_s);
        start(u"attribute"_s, vocabulary::attribute::name);
        xml.writeAttribute(u"use"_s, u"required"_s);
        start(u"simpleType"_s);
        start(u"restriction"_s);
        xml.writeAttribute(u"base"_s, u"xs:string"_s);
        for (const Method &method : vocabulary::methods()) {
            start(u"enumeration"_s);
            xml.writeAttribute(u"value"_s, method.name);
            writeDocumentation({method.title});
            end();
        }
        for (int depth = 0; depth < 5; ++depth)
            end();
    }

    /// An element as all documents together know it.
    void writeElement(const QString &name)
    {
        QList<Element> rows;
        Documents documents = 0;
        for (const Element &row : vocabulary::elements()) {
            if (row.name == name) {
                rows.append(row);
                documents |= row.documents;
            }
        }
        start(u"element"_s, name);
        writeDocumentation(documentationsOf(rows, vocabulary::shared));
        start(u"complexType"_s);
        QStringList written;
        for (const Attribute &row : vocabulary::attributes()) {
            if (row.element == name && !written.contains(row.name)) {
                writeAttribute(row, documents);
                written.append(row.name);
            }
        }
        if (rows.constFirst().anyAttribute)
            writeAnyAttribute();
        end();
        end();
    }

    /// An attribute with its rows for all documents, of those that know the element.
    void writeAttribute(const Attribute &first, Documents ofElement)
    {
        QList<Attribute> rows;
        Documents required = 0;
        for (const Attribute &row : vocabulary::attributes()) {
            if (row.element != first.element || row.name != first.name)
                continue;
            rows.append(row);
            if (!vocabulary::isOptional(row))
                required |= row.documents;
        }
        start(u"attribute"_s, first.name);
        xml.writeAttribute(u"type"_s, u"xs:string"_s);
        if (required == ofElement)
            xml.writeAttribute(u"use"_s, u"required"_s);
        writeDocumentation(documentationsOf(rows, ofElement));
        end();
    }

    void writeAnyAttribute()
    {
        start(u"anyAttribute"_s);
        xml.writeAttribute(u"processContents"_s, u"skip"_s);
        end();
    }

    void writeDocumentation(const QStringList &texts)
    {
        start(u"annotation"_s);
        for (const QString &text : texts)
            xml.writeTextElement(xsd, u"documentation"_s, text);
        end();
    }

    void start(const QString &element) { xml.writeStartElement(xsd, element); }

    void start(const QString &element, const QString &name)
    {
        start(element);
        xml.writeAttribute(u"name"_s, name);
    }

    void end() { xml.writeEndElement(); }

    QByteArray bytes;
    QXmlStreamWriter xml{&bytes};
};

} // namespace

QByteArray xmlSchema() { return XmlSchemaWriter().write(); }

} // namespace korvel::check
