// korvel-journal sum: documents, and what they registered.
#include "companions/journal/documents.h"
#include "companions/journal/subcommands.h"
#include "companions/paper/amounts.h"
#include "companions/paper/decoder.h"
#include "companions/paper/ledger.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "companions/shared/progress.h"

#include <algorithm>
#include <iterator>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

namespace {

using delivery::State;
using preview::Amount;
using preview::Command;
using preview::Section;

/// Documents of a kind: those whose first section is of it.
struct Kind
{
    Section section;
    QLatin1StringView name;
    qint64 documents = 0;
};

/// What documents register, whatever they begin with.
struct Registered
{
    Amount amount = {};
    qint64 uncounted = 0; // rows that are no plain numbers, or too much

    void add(const preview::Sum &sum)
    {
        uncounted += sum.uncounted;
        if (!amount.add(sum.amount))
            uncounted += sum.counted;
    }
};

/// Counts a stream by its kind, and what its fiscal sections register.
void add(Kind (&kinds)[3], Registered &registered, const QByteArray &stream)
{
    preview::Decoder decoder(stream);
    preview::Ledger ledger;
    bool isCounted = false;
    while (const auto command = decoder.next()) {
        if (command->kind == Command::Kind::SectionOpened && !isCounted) {
            Kind *const kind =
                std::find_if(std::begin(kinds), std::end(kinds),
                             [&](const Kind &row) { return row.section == command->section; });
            ++kind->documents;
            isCounted = true;
        }
        if (const auto sum = ledger.take(*command))
            registered.add(*sum);
    }
    if (const auto sum = ledger.end())
        registered.add(*sum);
}

QString lineOf(const QString &name, qint64 documents, const QString &amount = {})
{
    constexpr int nameWidth = 16;
    constexpr int numberWidth = 8;
    constexpr int amountWidth = 16;
    QString line =
        name.leftJustified(nameWidth) + QString::number(documents).rightJustified(numberWidth);
    if (!amount.isEmpty())
        line += amount.rightJustified(amountWidth);
    return line + u'\n';
}

/// The day on which a document went out last; a person may answer for it days later.
QDate dayOf(delivery::Journal &journal, const delivery::Document &document)
{
    QDate day;
    for (const delivery::Event &event : journal.events(document.id)) {
        if (event.name == infoOf(State::Sending).name)
            day = event.time.toLocalTime().date();
    }
    return day;
}

} // namespace

int sum(const Call &call)
{
    delivery::Journal journal(call.journal, delivery::Journal::Access::Read);
    Kind kinds[] = {{Section::Fiscal, "fiscal receipts"_L1},
                    {Section::Receipt, "receipts"_L1},
                    {Section::Document, "other documents"_L1}};
    Registered registered;
    qint64 forgotten = 0;
    qint64 inDoubt = 0;
    ProgressLine progress(u"adding up"_s);
    journal.eachDocument(
        {}, call.day.isValid() ? call.day.startOfDay() : QDateTime(),
        [&](const delivery::Document &document) {
            if (call.day.isValid() && dayOf(journal, document) != call.day)
                return;
            if (document.state == State::InDoubt || isAbandoned(document))
                ++inDoubt;
            else if (document.state != State::Sent && document.state != State::Printed)
                return;
            else if (document.forgotten)
                ++forgotten;
            else
                add(kinds, registered, journal.contentsOf(document).rendered);
        },
        [&](qint64 done, qint64 all) { progress.show(done, all); });
    progress.clear();

    Output out;
    for (const Kind &kind : kinds)
        out << lineOf(kind.name, kind.documents,
                      kind.section == Section::Fiscal ? registered.amount.toString() : QString());
    if (registered.uncounted > 0)
        out << counted(registered.uncounted, u"sale row"_s)
                   + u" not in the sum: no plain number, or too much\n"_s;
    if (inDoubt > 0)
        out << counted(inDoubt, u"document"_s) + u" in doubt, not counted\n"_s;
    if (forgotten > 0)
        out << counted(forgotten, u"document"_s) + u" forgotten, not counted\n"_s;
    return out.end(Clean);
}

} // namespace korvel::journal
