// Documents that nobody sends any more, and ids that no document has.
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

} // namespace korvel::journal
