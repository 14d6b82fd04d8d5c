// The XML notation, in: a group is an element, a setting is an attribute.
#include "config/config.h"

#include "config/path.h"
#include "config/tree.h"

#include <QFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace libconfig {

namespace {

/// Copies a document without what is beyond the limits of the store's tree.
class Filter
{
public:
    explicit Filter(const QByteArray &xml)
        : in(xml)
        , out(&kept)
    {
        in.setNamespaceProcessing(false);
    }

    /// The document as it stands when nothing is left out; empty when it is malformed.
    QByteArray filtered(const QByteArray &xml)
    {
        while (!in.atEnd()) {
            switch (in.readNext()) {
            case QXmlStreamReader::StartElement:
                startElement();
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
        return anyLeftOut ? kept : xml;
    }

private:
    void startElement()
    {
        if (depth == Tree::deepestGroup || groups == Tree::mostGroups
            || !hasRoomFor(in.qualifiedName())) {
            in.skipCurrentElement();
            anyLeftOut = true;
            return;
        }
        ++depth;
        ++groups;
        out.writeStartElement(in.qualifiedName().toString());
        for (const QXmlStreamAttribute &attribute : in.attributes()) {
            if (settings == Tree::mostSettings
                || !hasRoomFor(attribute.qualifiedName(), attribute.value())) {
                anyLeftOut = true;
                continue;
            }
            ++settings;
            out.writeAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
        }
    }

    /// Counts a text, if it can be kept.
    bool hasRoomFor(QStringView name, QStringView value = {})
    {
        const auto more = static_cast<std::size_t>(name.size() + value.size());
        if (more > Tree::mostText - text)
            return false;
        text += more;
        return true;
    }

    QByteArray kept;
    QXmlStreamReader in;
    QXmlStreamWriter out;
    std::size_t depth = 0;
    std::size_t groups = 0;
    std::size_t settings = 0;
    std::size_t text = 0; // characters of all names and values
    bool anyLeftOut = false;
};

} // namespace

void Config::loadXmlFile()
{
    QFile file;
    if (korvel::path::kindOf(fileName) == korvel::path::Kind::File
        && korvel::path::open(file, fileName, QIODevice::ReadOnly))
        loadXml(file.readAll());
}

void Config::loadXml(const QByteArray &bytes)
{
    // The toolkit's tree takes itself apart level by level on the stack.
    const QByteArray xml = Filter(bytes).filtered(bytes);
    if (!document->setContent(xml)) {
        document.clear();
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
                document.noteSetting(group, attribute.qualifiedName().toString());
            self(group, self);
        }
    };
    walk(*document, walk);
}

} // namespace libconfig
