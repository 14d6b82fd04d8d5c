// A job laid out by the engine and the printer's back end, as the renderer would print it.
#pragma once

#include "companions/check/job.h"
#include "companions/check/settingsfile.h"
#include "companions/check/vocabulary.h"

#include <functional>

namespace korvel::check {

/// How a job is laid out: as it is, or otherwise, to see what makes its lines wide.
enum class Trial {
    AsPrinted,
    Hollow, // with the least that values can be, and the labels of no catalogue
    Narrow, // with no more of a paper width than the printer has; a document without rows in
            // columns with as little as there can be, so that nothing is filled up
};

/// An element of a document, laid out.
struct Printed
{
    const Tag &tag;
    const vocabulary::Method &method;
    const QString &commands; // that the printer gets for it, UTF-16 as the engine has it
};

/**
 * Lays the elements of a job's documents out, up to a method that nobody knows. Nothing is written,
 * and nothing is said.
 *
 * @param settings by which they are laid out, and whose catalogue has their labels; those of the
 *                 user are not read
 * @param take     gets one element after the other, whether it prints anything or not
 */
void layOut(const QList<Tag> &tags, const SettingsFile &settings, Trial trial,
            const std::function<void(const Printed &)> &take);

/// The widest row of the paper that each command takes, in their order; see preview::widestRow().
QStringList rowsOf(const QString &commands);

} // namespace korvel::check
