// Limits on a job's XML, in front of the driver: what would exhaust the machine ends the job there.
#pragma once

#include "app/entities.h"

#include <QXmlDefaultHandler>

class QIODevice;

namespace korvel::app {

/**
 * Reads a job and hands its elements on, as far as it keeps within limits that no sane job comes
 * near. A job that goes beyond one ends there, as one with malformed XML would: what was printed
 * before stands, and nothing is said.
 *
 * The limits are those of vocabulary/limits.h: elements nested in each other; namespaces declared,
 * which the reader compares with each other for every element; entities as Entities counts them;
 * and a third of the stack for what the reader nests on its own, such as the groups of a content
 * model.
 */
class JobGuard : public QXmlDefaultHandler
{
public:
    /// @param handler receives the job's start, end and elements; belongs to the caller
    explicit JobGuard(QXmlContentHandler &handler);

    /// Parses the job in the device, which is opened if need be.
    void parse(QIODevice &job);

    // The reader's events.
    bool startDocument() override;
    bool endDocument() override;
    bool startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override;
    bool endElement(const QString &namespaceUri, const QString &localName,
                    const QString &qName) override;
    bool startPrefixMapping(const QString &prefix, const QString &uri) override;
    bool endPrefixMapping(const QString &prefix) override;
    bool internalEntityDecl(const QString &name, const QString &value) override;
    bool externalEntityDecl(const QString &name, const QString &publicId,
                            const QString &systemId) override;

private:
    QXmlContentHandler &content;
    Entities entities;
    int depth = 0;
    int prefixes = 0; // of namespaces, declared where the job is
};

} // namespace korvel::app
