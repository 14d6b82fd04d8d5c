// What the simulator does wrong on purpose.
#pragma once

#include <QString>

#include <optional>

namespace korvel::simulator {

/// A fault of the printer or of the way to it.
struct Fault
{
    enum class Kind {
        None,
        Refuse,   // nothing listens
        Reset,    // the connection is reset after so many bytes; on a terminal line, it is gone
        Stall,    // no byte is read after so many
        Slow,     // so many bytes a second are read
        KeepOpen, // the printer's side is never closed
        Deaf,     // the connection is taken, no byte is read
    };

    Kind kind = Kind::None;
    qint64 number = 0; // bytes, or bytes a second
    QString name;      // as it was given: "reset=64"

    /// After how many bytes nothing more is read; nothing where all is.
    [[nodiscard]] std::optional<qint64> lastByte() const;
};

/**
 * The fault that a text names: "refuse", "reset=N", "stall=N", "slow=RATE", "keep-open" or "deaf".
 * N is a whole number from 0 on, RATE one from 1 on; nothing for any other text.
 */
std::optional<Fault> faultNamed(const QString &text);

/// All spellings, for a message.
QString faultNames();

} // namespace korvel::simulator
