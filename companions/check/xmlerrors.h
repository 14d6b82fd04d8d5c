// What is wrong with a job's XML, in words.
#pragma once

#include "companions/check/job.h"

#include <expat.h>

namespace korvel::check {

/// Where XML is wrong and what is, in a few words without an end.
struct XmlFault
{
    qsizetype offset; // of the byte that is wrong, or of the first of several
    QString words;
};

/**
 * What is wrong at an error of the parser.
 *
 * @param document  the whole of the XML, in UTF-8
 * @param offset    the byte of it that the parser stopped at; its size at most
 * @param innermost the innermost element that is open there; null when none is
 */
XmlFault faultIn(const QByteArray &document, XML_Error error, qsizetype offset,
                 const Tag *innermost);

} // namespace korvel::check
