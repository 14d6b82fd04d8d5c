// Each rule of what a stream should be, checked command by command.
#include "companions/preview/findings.h"

#include "companions/preview/amounts.h"
#include "companions/preview/listing.h"
#include "companions/preview/paper.h"
#include "companions/preview/text.h"
#include "printer/company/commands.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

using Kind = Command::Kind;

/// Goes through the commands and notes what is wrong.
class Inspector
{
public:
    Inspector(const QByteArray &bytes, int paperColumns, const CodePage &codePage)
        : stream(bytes)
        , columns(paperColumns)
        , page(codePage)
    {
    }

    QList<Finding> inspect()
    {
        if (stream.isEmpty())
            note(0, u"the stream is empty: nothing is printed"_s);
        Decoder decoder(stream, page);
        while (const auto command = tooMany ? std::nullopt : decoder.next())
            inspect(*command);
        if (open)
            note(openedAt, nameOf(*open) + u" opened here is never closed"_s);
        std::stable_sort(found.begin(), found.end(),
                         [](const Finding &a, const Finding &b) { return a.offset < b.offset; });
        if (tooMany) {
            const qsizetype last = found.constLast().offset;
            found.append(
                {last, 0,
                 u"byte "_s + QString::number(last) + u": too much is wrong; no more is listed"_s});
        }
        countLines();
        return found;
    }

private:
    [[nodiscard]] QString nameOf(Section section) const { return u"the "_s + sectionName(section); }
    [[nodiscard]] QString nameOf(QByteArrayView bytes) const
    {
        return u'"' + escaped(bytes, page) + u'"';
    }

    void note(qsizetype offset, const QString &text)
    {
        if (found.size() == mostFindings) {
            tooMany = true;
            return;
        }
        found.append({offset, 0, u"byte "_s + QString::number(offset) + u": "_s + text});
    }

    void inspect(const Command &command)
    {
        switch (command.kind) {
        case Kind::Line:
            inspectText(command.offset + commands::lineOpener.size() + command.spaces,
                        command.content);
            inspectWidth(command, u"line"_s);
            break;
        case Kind::SectionOpened:
            if (open)
                note(command.offset, nameOf(*open) + u" opened at byte "_s
                                         + QString::number(openedAt) + u" is still open where "_s
                                         + nameOf(command.section) + u" is opened"_s);
            open = command.section;
            openedAt = command.offset;
            registered = {};
            break;
        case Kind::SectionClosed:
            if (open != command.section)
                note(command.offset, nameOf(command.section) + u" is closed but not open"_s);
            else
                open.reset();
            break;
        case Kind::SaleRow:
            inspectSaleRow(command);
            break;
        case Kind::Deduction:
            inspectRegistered(command,
                              command.offset + commands::announceDeduction.size()
                                  + commands::deductionAmount.size(),
                              u"deduction"_s);
            inspectWidth(command, u"deduction"_s);
            countDeduction(command);
            break;
        case Kind::Unknown:
            inspectUnknown(command);
            break;
        }
    }

    void inspectSaleRow(const Command &row)
    {
        const qsizetype department = row.offset + commands::saleDepartment.size();
        const qsizetype amount = department + row.department.size() + commands::saleAmount.size();
        const qsizetype quantity = amount + row.amount.size() + commands::saleQuantity.size();
        const qsizetype description =
            quantity + row.quantity.size() + commands::saleDescription.size();
        inspectField(department, row.department);
        inspectRegistered(row, amount, u"sale row"_s);
        inspectField(quantity, row.quantity);
        if (isQuantity(row.quantity))
            count(row, Amount::of(row.amount, row.quantity), u"sale row"_s);
        else
            note(quantity, u"the quantity "_s + nameOf(row.quantity) + u" is no number"_s);
        inspectText(description, row.description);
        inspectWidth(row, u"sale row"_s);
    }

    void inspectRegistered(const Command &row, qsizetype amountAt, const QString &what)
    {
        if (open != Section::Fiscal)
            note(row.offset, u"a "_s + what + u" outside a fiscal section"_s);
        if (!isWholeHundredths(row.amount))
            note(amountAt,
                 u"the amount "_s + nameOf(row.amount) + u" is no whole number of hundredths"_s);
    }

    /// Adds to what was registered; what cannot be added has been found to be no number, or is
    /// said.
    void count(const Command &row, std::optional<Amount> amount, const QString &what)
    {
        if (open != Section::Fiscal)
            return;
        if (amount ? !registered.add(*amount) : isWholeHundredths(row.amount))
            note(row.offset, u"the "_s + what + u" is too large for the preview to add up"_s);
    }

    void countDeduction(const Command &deduction)
    {
        const auto amount = Amount::of(deduction.amount);
        count(deduction, amount ? std::optional(-*amount) : std::nullopt, u"deduction"_s);
    }

    void inspectWidth(const Command &command, const QString &what)
    {
        const qsizetype width = widestRow(command, columns).size();
        if (width > columns)
            note(command.offset, u"a "_s + what + u" of "_s + QString::number(width)
                                     + u" characters is wider than the paper ("_s
                                     + QString::number(columns) + u')');
    }

    /// Notes what a printer would misread in a text.
    void inspectText(qsizetype offset, QByteArrayView text)
    {
        bool readable =
            true; // bytes that are no characters are one finding as long as they follow each other
        while (!text.isEmpty() && !tooMany) {
            const qsizetype length = characterLength(text, page);
            const QByteArrayView character = text.first(std::max<qsizetype>(length, 1));
            if (length == 0 && readable)
                note(offset, nameOf(character) + u" is not "_s + page.name());
            else if (character == ")")
                note(offset, u"a \")\" inside a text ends it early"_s);
            else if (length > 0 && isControl(character, page))
                note(offset, u"the control character "_s + nameOf(character) + u" inside a text"_s);
            readable = length > 0;
            offset += character.size();
            text = text.sliced(character.size());
        }
    }

    /// Notes a mark of the language inside a field of a sale row.
    void inspectField(qsizetype offset, const QByteArray &field)
    {
        inspectText(offset, field);
        if (const qsizetype mark = field.indexOf('/'); mark >= 0)
            note(offset + mark, u"a \"/\" inside a field of a sale row ends it early"_s);
    }

    void inspectUnknown(const Command &command)
    {
        QString what = u"unknown command"_s;
        if (command.begunAs)
            what = u"broken "_s + kindName(*command.begunAs);
        const qsizetype bad = command.badByte;
        if (bad >= stream.size()) {
            if (command.begunAs)
                what = u"unterminated "_s + kindName(*command.begunAs);
            note(bad, what + u" that begins at byte "_s + QString::number(command.offset)
                          + u": the stream ends here"_s);
            return;
        }
        const QByteArrayView rest = QByteArrayView(stream).sliced(bad);
        note(bad, what + u": "_s
                      + nameOf(rest.first(std::max<qsizetype>(characterLength(rest, page), 1)))
                      + u" does not belong here"_s);
    }

    void countLines()
    {
        qsizetype line = 1;
        qsizetype at = 0;
        for (Finding &finding : found) {
            line += std::count(stream.cbegin() + at, stream.cbegin() + finding.offset, '\n');
            at = finding.offset;
            finding.line = line;
        }
    }

    const QByteArray &stream;
    const int columns;
    const CodePage &page;
    std::optional<Section> open;
    qsizetype openedAt = 0;
    Amount registered; // since then
    QList<Finding> found;
    bool tooMany = false; // more than are listed
};

} // namespace

QList<Finding> findings(const QByteArray &stream, int columns, const CodePage &page)
{
    return Inspector(stream, columns, page).inspect();
}

QString widestRow(const Command &command, int columns)
{
    QString widest;
    if (command.kind == Kind::Line) {
        widest = QString(command.spaces, u' ') + decoded(command.content, *command.codePage);
    } else if (command.kind == Kind::SaleRow || command.kind == Kind::Deduction) {
        // A row may hold more than the description: a quantity, a department.
        Roll roll(columns, [&](const PaperRow &row) {
            if (row.text.size() > widest.size())
                widest = row.text;
        });
        roll.print(command);
    }
    return widest;
}

} // namespace korvel::preview
