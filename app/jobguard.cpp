// Limits on a job's XML: nesting, entities, and the stack that the reader uses.
#include "app/jobguard.h"

#include "vocabulary/limits.h"

#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <algorithm>
#include <cstdint>
#include <utility>

#include <sys/resource.h>

namespace limit = korvel::vocabulary::limit;

namespace korvel::app {

namespace {

/// Where on the stack the caller is.
std::uintptr_t stackPosition()
{
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

/// A third of the stack that the process may use.
std::uintptr_t stackLimit()
{
    constexpr rlim_t usual = 8'388'608;
    rlimit stack{};
    return getrlimit(RLIMIT_STACK, &stack) == 0 ? std::min(stack.rlim_cur, usual) / 3 : usual / 3;
}

/// The job's characters, as long as the reader may have them. It takes each through next(), and has
/// a kilobyte fetched at a time, from the depth of its own calls; references it replaces on its
/// own.
class Source : public QXmlInputSource
{
public:
    Source(QIODevice *job, Entities &counted)
        : QXmlInputSource(job)
        , entities(counted)
    {
    }

    void fetchData() override
    {
        if (base - stackPosition() > limit) // the stack grows downwards
            ended = true;
        if (ended)
            setData(QString());
        else
            QXmlInputSource::fetchData();
    }

    QChar next() override
    {
        return entities.isEmpty() ? QXmlInputSource::next() : nextBehindEntities();
    }

private:
    QChar nextBehindEntities()
    {
        if (ended)
            return EndOfDocument;
        if (std::exchange(reading, true))
            return QXmlInputSource::next(); // asked by itself, after it has fetched
        const QChar c = QXmlInputSource::next();
        reading = false;
        if (c == u'&' || c == u'%') {
            reference = c == u'%' ? QString(c) : QString();
            inReference = true;
        } else if (inReference && c == u';') {
            inReference = false;
            ended = !entities.refer(reference);
        } else if (inReference && c != QChar(EndOfData)) {
            reference += c;
            inReference = reference.size() <= limit::longestEntities;
        }
        return ended ? QChar(EndOfDocument) : c;
    }

    Entities &entities;
    const std::uintptr_t base = stackPosition();
    const std::uintptr_t limit = stackLimit();
    QString reference; // name of the reference that is being read
    bool inReference = false;
    bool reading = false;
    bool ended = false;
};

} // namespace

JobGuard::JobGuard(QXmlContentHandler &handler)
    : content(handler)
{
}

void JobGuard::parse(QIODevice &job)
{
    Source source(&job, entities);
    QXmlSimpleReader reader;
    reader.setContentHandler(this);
    reader.setDeclHandler(this);
    reader.parse(source);
}

bool JobGuard::startDocument() { return content.startDocument(); }

bool JobGuard::endDocument() { return content.endDocument(); }

bool JobGuard::startElement(const QString &namespaceUri, const QString &localName,
                            const QString &qName, const QXmlAttributes &attributes)
{
    return ++depth <= limit::deepestElement
           && content.startElement(namespaceUri, localName, qName, attributes);
}

bool JobGuard::endElement(const QString &namespaceUri, const QString &localName,
                          const QString &qName)
{
    --depth;
    return content.endElement(namespaceUri, localName, qName);
}

bool JobGuard::startPrefixMapping(const QString & /*prefix*/, const QString & /*uri*/)
{
    return ++prefixes <= limit::mostNamespaces;
}

bool JobGuard::endPrefixMapping(const QString & /*prefix*/)
{
    --prefixes;
    return true;
}

bool JobGuard::internalEntityDecl(const QString &name, const QString &value)
{
    return entities.declare(name, value);
}

bool JobGuard::externalEntityDecl(const QString &name, const QString & /*publicId*/,
                                  const QString & /*systemId*/)
{
    return entities.declare(name, QString());
}

} // namespace korvel::app
