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
    bool isInOpen = false; // whether it is the element that is open, which is never closed
};

/**
 * What is wrong at an error of the parser.
 *
 * @param document  the whole of the XML, in UTF-8
 * @param offset    the byte of it that the parser stopped at; its size at most
 * @param open      the innermost element that is open there, or the outermost that an end tag there
 *                  leaves open; null when none is
 * @param isLeft    whether an end tag there, of another element that is open, leaves it open
 */
XmlFault faultIn(const QByteArray &document, XML_Error error, qsizetype offset, const Tag *open,
                 bool isLeft);

} // namespace korvel::check
