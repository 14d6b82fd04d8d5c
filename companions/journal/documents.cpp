// Documents found, and those that nobody sends any more.
#include "companions/journal/documents.h"

#include "companions/shared/output.h"
#include "delivery/lease.h"

using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

bool isAbandoned(const delivery::Document &document)
{
    return document.state == delivery::State::Sending && !delivery::Lease::isHeld(document.lease);
}

int noDocument(const QString &id)
{
    shared::trouble(u"there is no document "_s + id);
    return shared::Findings;
}

bool forEach(delivery::Journal &journal, const QString &id,
             const std::function<void(const delivery::Document &)> &take,
             const delivery::Progress &progress)
{
    if (id.isEmpty()) {
        journal.eachDocument({}, {}, take, progress);
        return true;
    }
    const auto document = journal.find(id);
    if (document)
        take(*document);
    return document.has_value();
}

} // namespace korvel::journal
