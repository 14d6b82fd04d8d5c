// The kinds of findings in a stream: a code for each, and all that it says.
#pragma once

#include "companions/shared/codes.h"

namespace korvel::preview {

/// An error: the printer refuses or misreads what is sent, or stays open behind it. A warning: it
/// prints, and looks otherwise than it was meant.
using shared::Level;

/// The kinds of findings, in the order of docs/preview.md.
enum class Code {
    TooWide,

    // The stream as a whole.
    EmptyStream,
    LeftOpen,
    StillOpen,
    NotOpen,

    // What is registered.
    OutsideFiscal,
    WrongAmount,
    WrongQuantity,
    TooLarge,

    // Texts.
    EndsText,
    EndsField,
    BreaksText,
    ControlCode,
    NotUtf8,

    // Bytes that are no command.
    UnknownCommand,
    BrokenCommand,
    UnterminatedCommand,

    // More findings than are listed.
    MoreErrors,
    MoreWarnings,

    Count, // of the codes above
};

using CodeInfo = shared::CodeRow<Code>;

/// All rows, in the order of the codes.
const QList<CodeInfo> &codes();

/// The row of a code.
const CodeInfo &infoOf(Code code);

} // namespace korvel::preview
