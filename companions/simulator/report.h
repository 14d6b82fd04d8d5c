// What happens at the simulator, as lines for people or as JSON objects.
#pragma once

#include "companions/paper/paper.h"
#include "companions/preview/findings.h"
#include "companions/simulator/day.h"
#include "companions/simulator/fault.h"

#include <QJsonObject>
#include <QString>

namespace korvel::simulator {

/// A document as the printer shows it.
struct Print
{
    qint64 number = 0;     // of the document, from 1
    qint64 connection = 0; // that brought it, from 1
    const Document &document;
    const QList<preview::PaperRow> &paper; // its first rows
    qint64 rowsLeftOut = 0;                // behind those
};

/// The box that korvel-preview draws, a line that says how many rows are left out, and one that
/// says what is not whole.
QString paperOf(const Print &print, bool coloured);

/// Who ended a connection, and how; one that a fault leaves open is not heard of again.
enum class Closing { Sender, SenderReset, FaultReset, LeftOpen, Simulator };

/**
 * Writes each event to standard output at once: one line or more, or one JSON object in a line.
 * Texts of an input come without control characters. The keys are in docs/simulator.md.
 */
class Report
{
public:
    Report(bool json, bool coloured);

    /// The first line of all: what this is, and where it takes streams.
    void listening(const QString &place, const QJsonObject &details);
    /// @param from the sender's address; empty on a terminal line
    void connected(qint64 connection, const QString &from);
    void printed(const Print &print);
    void found(qint64 document, const preview::Finding &finding);
    void registered(const Day &day);
    /// @param bytes that were read before
    void faulted(qint64 connection, const Fault &fault, qint64 bytes);
    void closed(qint64 connection, Closing by, qint64 bytes, qint64 documents);
    void ended(const Day &day);

    /// Whether everything could be written; what could not is said on standard error, once.
    [[nodiscard]] bool isSound() const { return sound; }

private:
    void write(const QString &lines, const QJsonObject &object);

    const bool json;
    const bool coloured;
    bool introduced = false;
    bool sound = true;
};

} // namespace korvel::simulator
