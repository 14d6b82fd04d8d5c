// The vocabulary of jobs as a schema for editors and validators.
#pragma once

#include <QByteArray>

namespace korvel::check {

/**
 * A RELAX NG schema, in the XML syntax, of the jobs that a point of sale should write: a root of
 * any name, in it the method and behind it, side by side, the elements that its document prints,
 * with their attributes. It knows names and places; values are the checker's matter.
 */
QByteArray relaxNgSchema();

} // namespace korvel::check
