// The printer: puts documents on its paper, keeps them, adds up.
#pragma once

#include "companions/recode/codepage.h"
#include "companions/simulator/report.h"

namespace korvel::simulator {

/// No more rows of one document are shown than these.
inline constexpr qint64 mostRows = 100'000;

/// Takes documents one after the other.
class Printer
{
public:
    /**
     * @param codePage    what the texts of documents are in
     * @param paperFolder where documents are kept, behind those that are there; empty: nowhere
     */
    Printer(recode::CodePage codePage, QString paperFolder, Report &reported);

    /// Makes the folder, if it is not there; false, with its reason said, where documents cannot be
    /// kept in it.
    bool prepare();

    /// Keeps a document, reports it and what is wrong with it.
    void print(const Document &document, qint64 connection);

    [[nodiscard]] const Day &day() const { return sums; }

    /// Whether all documents could be kept; what could not is said on standard error.
    [[nodiscard]] bool isSound() const { return sound; }

private:
    void keep(const Print &print);
    void keepFile(qint64 number, const QString &ending, const QByteArray &bytes);

    const recode::CodePage charset;
    const QString folder;
    Report &report;
    qint64 last = 0; // number of the last document
    Day sums;
    bool sound = true;
};

} // namespace korvel::simulator
