// The XML notation, in: a group is an element, a setting is an attribute.
#include "config/config.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace libconfig {

namespace {

/// A document without the elements nested deeper than a number of levels; as it stands when there
/// are none, or when it is malformed.
QByteArray withoutDeepElements(const QByteArray &xml, int deepest)
{
    QByteArray rest;
    bool anyLeftOut = false;
    QXmlStreamReader in(xml);
    in.setNamespaceProcessing(false);
    QXmlStreamWriter out(&rest);
    for (int depth = 0; in.readNext() != QXmlStreamReader::Invalid && !in.isEndDocument();) {
        if (in.isStartElement() && depth == deepest) {
            in.skipCurrentElement();
            anyLeftOut = true;
            continue;
        }
        depth += in.isStartElement() - in.isEndElement();
        out.writeCurrentToken(in);
    }
    return anyLeftOut && !in.hasError() ? rest : xml;
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
