// The XML notation, in: a group is an element, a setting is an attribute.
#include "config/config.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace libconfig {

namespace {

void writeAttributes(QXmlStreamWriter &out, const QXmlStreamAttributes &attributes)
{
    for (const QXmlStreamAttribute &attribute : attributes)
        out.writeAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
}

/// A document without the elements nested deeper than a number of levels; as it stands when there
/// are none. Empty when it is malformed.
QByteArray withoutDeepElements(const QByteArray &xml, int deepest)
{
    QByteArray rest;
    bool anyLeftOut = false;
    QXmlStreamReader in(xml);
    in.setNamespaceProcessing(false);
    QXmlStreamWriter out(&rest);
    for (int depth = 0; !in.atEnd();) {
        switch (in.readNext()) {
        case QXmlStreamReader::StartElement:
            if (depth == deepest) {
                in.skipCurrentElement();
                anyLeftOut = true;
                continue;
            }
            ++depth;
            out.writeStartElement(in.qualifiedName().toString());
            writeAttributes(out, in.attributes());
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            out.writeEndElement();
            break;
        case QXmlStreamReader::StartDocument:
            if (!in.documentVersion().isEmpty())
                out.writeStartDocument();
            break;
        case QXmlStreamReader::Invalid:
            return {};
        default:
            out.writeCurrentToken(in);
        }
    }
    return anyLeftOut ? rest : xml;
}

} // namespace

void Config::loadXmlFile()
{
    QFile file(fileName);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    // The toolkit's tree takes itself apart level by level on the stack.
    const QByteArray xml = withoutDeepElements(file.readAll(), deepestGroup);
    if (!document->setContent(xml)) {
        document = std::make_unique<QDomDocument>();
        return;
    }
    noteSettingOrder(xml);

    // The first node goes below the wrapper, whatever it is: with a declaration or a comment
    // before the root element, look-ups start at the root element's first child.
    QDomElement wrapper = document->createElement(fileName);
    wrapper.appendChild(document->firstChild());
    document->appendChild(wrapper);
}

/// Notes the order of each element's attributes, which only the text itself still tells: its start
/// tags come in the order in which the tree is walked.
void Config::noteSettingOrder(const QByteArray &xml)
{
    QXmlStreamReader tags(xml);
    tags.setNamespaceProcessing(false);

    const auto walk = [&](const QDomNode &node, const auto &self) -> void {
        for (QDomElement group = node.firstChildElement(); !group.isNull();
             group = group.nextSiblingElement()) {
            while (!tags.atEnd() && tags.readNext() != QXmlStreamReader::StartElement) { }
            const auto attributes = tags.attributes();
            for (const QXmlStreamAttribute &attribute : attributes)
                noteSetting(group, attribute.qualifiedName().toString());
            self(group, self);
        }
    };
    walk(*document, walk);
}

} // namespace libconfig
