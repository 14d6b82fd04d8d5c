// The vocabulary of jobs as schemas for editors and validators.
#pragma once

#include <QByteArray>

namespace korvel::check {

/**
 * A RELAX NG schema, in the XML syntax, of the jobs that a point of sale should write: a root of
 * any name, in it the method and behind it, side by side, the elements that its document prints,
 * with their attributes. It knows names and places; values are the checker's matter. Elements and
 * attributes carry what they mean, for editors to show.
 */
QByteArray relaxNgSchema();

/**
 * The same as an XML Schema (XSD 1.0), as far as that can say it: what stands in a job cannot
 * depend on its method there, so any document may have every element, with the attributes that it
 * has in any of them; those that all of them print must be there. The root is "printjob".
 */
QByteArray xmlSchema();

} // namespace korvel::check
