// The XML notation, in: a group is an element, a setting is an attribute.
#include "config/config.h"

#include <QFile>
#include <QXmlStreamReader>

namespace libconfig {

void Config::loadXmlFile()
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray xml = file.readAll();
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
