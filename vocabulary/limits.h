// Limits of a job and of what it prints: no sane one comes near, and what goes beyond is held back.
#pragma once

#include <QtGlobal>

namespace korvel::vocabulary::limit {

// Beyond these, a job ends.
inline constexpr int deepestElement = 1024;            // elements nested in each other
inline constexpr int mostNamespaces = 64;              // declared where the job is
inline constexpr qint64 mostEntities = 64;             // declared in a job
inline constexpr qint64 longestEntities = 4096;        // characters of all, fully expanded
inline constexpr qint64 longestReferences = 1'048'576; // characters of all references in a job

// Beyond these, a document goes on without the rest.
inline constexpr qint64 widestPad = 65536;  // characters that a column or a separator is padded to
inline constexpr int longestMargin = 65536; // lines of a top margin

} // namespace korvel::vocabulary::limit
