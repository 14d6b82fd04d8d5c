// Each rule of what a stream should be, checked command by command.
#include "companions/preview/findings.h"

#include "companions/paper/ledger.h"
#include "companions/paper/paper.h"
#include "companions/paper/text.h"
#include "companions/preview/listing.h"
#include "printer/company/commands.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

using Kind = Command::Kind;
using shared::filled;

namespace phrase {

using shared::Phrase;

// TooWide: what is
constexpr Phrase line{QT_TRANSLATE_NOOP("findings", "line")};

// UnknownCommand: what does not fit
constexpr Phrase cutShort{
    QT_TRANSLATE_NOOP("findings", "unknown command that begins at byte %1: the stream ends here")};
constexpr Phrase misplaced{
    QT_TRANSLATE_NOOP("findings", "unknown command: %1 does not belong here")};

} // namespace phrase

/// Goes through the commands and notes what is wrong.
class Inspector
{
public:
    Inspector(const QByteArray &bytes, int paperColumns, const QList<Code> &ignoredCodes,
              const CodePage &codePage)
        : stream(bytes)
        , columns(paperColumns)
        , ignored(ignoredCodes)
        , page(codePage)
    {
    }

    QList<Finding> inspect()
    {
        if (stream.isEmpty())
            note(Code::EmptyStream, 0);
        Decoder decoder(stream, page);
        while (const auto command = more == Code::MoreErrors ? std::nullopt : decoder.next())
            inspect(*command);
        if (open)
            note(Code::LeftOpen, openedAt, sectionName(*open));
        std::stable_sort(found.begin(), found.end(),
                         [](const Finding &a, const Finding &b) { return a.offset < b.offset; });
        if (more && !ignored.contains(*more))
            found.append({*more, found.constLast().offset, worded(infoOf(*more))});
        findPlaces();
        return found;
    }

private:
    template<typename... Words>
    void note(Code code, qsizetype offset, const Words &...words)
    {
        if (ignored.contains(code))
            return;
        if (found.size() < mostFindings)
            found.append({code, offset, worded(infoOf(code), words...)});
        else if (infoOf(code).level == Level::Error)
            more = Code::MoreErrors;
        else if (!more)
            more = Code::MoreWarnings;
    }

    void inspect(const Command &command)
    {
        const qsizetype uncounted = ledger.section() ? ledger.section()->uncounted : 0;
        ledger.take(command);
        const bool counted = !ledger.section() || ledger.section()->uncounted == uncounted;
        switch (command.kind) {
        case Kind::Line:
            inspectText(command.offset + commands::lineOpener.size() + command.spaces,
                        command.content);
            inspectWidth(command, phrase::line);
            break;
        case Kind::SectionOpened:
            if (open)
                note(Code::StillOpen, command.offset, sectionName(*open), QString::number(openedAt),
                     sectionName(command.section));
            open = command.section;
            openedAt = command.offset;
            break;
        case Kind::SectionClosed:
            if (open != command.section)
                note(Code::NotOpen, command.offset, sectionName(command.section));
            else
                open.reset();
            break;
        case Kind::SaleRow:
            inspectSaleRow(command, counted);
            break;
        case Kind::Deduction:
            inspectAmount(command,
                          command.offset + commands::announceDeduction.size()
                              + commands::deductionAmount.size(),
                          kindName(command.kind));
            inspectWidth(command, kindName(command.kind));
            if (!counted)
                inspectSize(command, Amount::of(command.amount), kindName(command.kind));
            break;
        case Kind::Unknown:
            inspectUnknown(command);
            break;
        }
    }

    void inspectSaleRow(const Command &row, bool counted)
    {
        const qsizetype department = row.offset + commands::saleDepartment.size();
        const qsizetype amount = department + row.department.size() + commands::saleAmount.size();
        const qsizetype quantity = amount + row.amount.size() + commands::saleQuantity.size();
        const qsizetype description =
            quantity + row.quantity.size() + commands::saleDescription.size();
        inspectField(department, row.department);
        inspectAmount(row, amount, kindName(row.kind));
        inspectField(quantity, row.quantity);
        if (!isQuantity(row.quantity))
            note(Code::WrongQuantity, quantity, quoted(row.quantity, page));
        else if (!counted)
            inspectSize(row, Amount::of(row.amount, row.quantity), kindName(row.kind));
        inspectText(description, row.description, Code::EndsField);
        inspectWidth(row, kindName(row.kind));
    }

    void inspectAmount(const Command &row, qsizetype amountAt, const QString &what)
    {
        if (open != Section::Fiscal)
            note(Code::OutsideFiscal, row.offset, what);
        if (!isWholeHundredths(row.amount))
            note(Code::WrongAmount, amountAt, quoted(row.amount, page));
    }

    /// Notes a row that is not in the sum, unless that is so because its amount is no number, which
    /// has been said.
    void inspectSize(const Command &row, const std::optional<Amount> &amount, const QString &what)
    {
        if (amount || isWholeHundredths(row.amount))
            note(Code::TooLarge, row.offset, what);
    }

    void inspectWidth(const Command &command, const QString &what)
    {
        const qsizetype width = widestRow(command, columns).size();
        if (width > columns)
            note(Code::TooWide, command.offset, what, QString::number(width),
                 QString::number(columns));
    }

    /// Notes what a printer would misread in a text.
    void inspectText(qsizetype offset, QByteArrayView text, Code parenthesis = Code::EndsText)
    {
        bool readable =
            true; // bytes that are no characters are one finding as long as they follow each other
        while (!text.isEmpty() && more != Code::MoreErrors) {
            const qsizetype length = page.characterLength(text);
            const QByteArrayView character = text.first(std::max<qsizetype>(length, 1));
            if (length == 0 && readable)
                note(Code::NotUtf8, offset, quoted(character, page), page.name());
            else if (character == ")")
                note(parenthesis, offset, u")"_s);
            else if (character == "\n" || character == "\r")
                note(Code::BreaksText, offset, quoted(character, page));
            else if (length > 0 && isControl(character, page))
                note(Code::ControlCode, offset, quoted(character, page));
            readable = length > 0;
            offset += character.size();
            text = text.sliced(character.size());
        }
    }

    /// Notes a mark of the language inside a field of a sale row.
    void inspectField(qsizetype offset, const QByteArray &field)
    {
        inspectText(offset, field, Code::EndsField);
        if (const qsizetype mark = field.indexOf('/'); mark >= 0)
            note(Code::EndsField, offset + mark, u"/"_s);
    }

    void inspectUnknown(const Command &command)
    {
        const qsizetype bad = command.badByte;
        const QString begin = QString::number(command.offset);
        if (bad >= stream.size()) {
            if (command.begunAs)
                note(Code::UnterminatedCommand, bad, kindName(*command.begunAs), begin);
            else
                note(Code::UnknownCommand, bad, filled(phrase::cutShort, begin));
            return;
        }
        const QByteArrayView rest = QByteArrayView(stream).sliced(bad);
        const QString byte =
            quoted(rest.first(std::max<qsizetype>(page.characterLength(rest), 1)), page);
        if (command.begunAs)
            note(Code::BrokenCommand, bad, kindName(*command.begunAs), byte);
        else
            note(Code::UnknownCommand, bad, filled(phrase::misplaced, byte));
    }

    /// Finds lines and rows, of which a stream with nothing wrong needs none.
    void findPlaces()
    {
        if (found.isEmpty())
            return;
        qsizetype printed = 0;
        qsizetype own = 0; // the command's first
        Roll roll(columns, [&](const PaperRow &row) {
            ++printed;
            if (own == 0 && row.kind != PaperRow::Kind::Cut && row.kind != PaperRow::Kind::Computed)
                own = printed;
        });
        auto next = found.begin();
        qsizetype line = 1;
        qsizetype at = 0;
        Decoder decoder(stream, page);
        for (auto command = decoder.next(); next != found.end();) {
            own = 0;
            if (command)
                roll.print(*command);
            command = command ? decoder.next() : std::nullopt;
            for (; next != found.end() && (!command || next->offset < command->offset); ++next) {
                line += std::count(stream.cbegin() + at, stream.cbegin() + next->offset, '\n');
                at = next->offset;
                next->line = line;
                next->row = own;
            }
        }
    }

    const QByteArray &stream;
    const int columns;
    const QList<Code> &ignored;
    const CodePage &page;
    std::optional<Section> open;
    qsizetype openedAt = 0;
    Ledger ledger;
    QList<Finding> found;
    std::optional<Code> more; // than are listed
};

} // namespace

QList<Finding> findings(const QByteArray &stream, int columns, const QList<Code> &ignored,
                        const CodePage &page)
{
    return Inspector(stream, columns, ignored, page).inspect();
}

} // namespace korvel::preview
