// How each command looks on the paper, and the sum of a fiscal section.
#include "companions/paper/paper.h"

#include "companions/paper/text.h"
#include "companions/shared/oneline.h"

#include <QCoreApplication>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

using Kind = Command::Kind;
using Row = PaperRow::Kind;

QString textOf(const Command &command, const QByteArray &bytes)
{
    return shared::inOneLine(command.codePage->decode(bytes));
}

/// A text that is not the printer's: English, or where a translator has it the user's language.
QString translated(const char *text) { return QCoreApplication::translate("paper", text); }

/// The amount for the reader: "1.20", or as it was sent where it is no plain number.
QString moneyOf(const Command &command)
{
    const auto amount = Amount::of(command.amount);
    return amount ? amount->toString() : u'"' + textOf(command, command.amount) + u"\"/100"_s;
}

} // namespace

Roll::Roll(int paperColumns, TakeRow takeRow)
    : columns(paperColumns)
    , take(std::move(takeRow))
{
}

void Roll::print(const Command &command)
{
    if (cutNext && command.kind != Kind::SectionClosed) {
        append(Row::Cut, {});
        cutNext = false;
    }
    if (const auto sum = ledger.take(command))
        printSum(*sum);
    switch (command.kind) {
    case Kind::Line:
        append(Row::Printed, QString(command.spaces, u' ') + textOf(command, command.content));
        break;
    case Kind::SectionOpened:
        break;
    case Kind::SectionClosed:
        cutNext = true;
        break;
    case Kind::SaleRow:
        printSaleRow(command);
        break;
    case Kind::Deduction:
        appendSpread(Row::Deducted, translated(QT_TRANSLATE_NOOP("paper", "DEDUCTION")),
                     u'-' + moneyOf(command));
        break;
    case Kind::Unknown:
        append(Row::Unknown, escaped(command.content, *command.codePage));
        break;
    }
}

void Roll::end()
{
    if (const auto sum = ledger.end())
        printSum(*sum);
}

void Roll::printSaleRow(const Command &row)
{
    const auto amount = Amount::of(row.amount, row.quantity);
    if (row.quantity != "1" || !amount)
        append(Row::Registered, u"  "_s + textOf(row, row.quantity) + u" x "_s + moneyOf(row));
    const QString department = u" R"_s + textOf(row, row.department);
    appendSpread(Row::Registered, textOf(row, row.description),
                 (amount ? amount->toString() : u"?"_s) + department);
}

void Roll::printSum(const Sum &sum)
{
    append(Row::Computed, QString(columns, u'-'));
    appendSpread(Row::Computed,
                 translated(sum.closed ? QT_TRANSLATE_NOOP("paper", "Sum (by the preview)")
                                       : QT_TRANSLATE_NOOP("paper", "Sum so far (preview)")),
                 sum.amount.toString());
    if (sum.uncounted > 0)
        appendSpread(Row::Computed, translated(QT_TRANSLATE_NOOP("paper", "Rows not counted")),
                     QString::number(sum.uncounted));
}

void Roll::append(Row kind, const QString &text) { take({kind, text}); }

/// One text at the left and one at the right, on two rows where one has no room for both.
void Roll::appendSpread(Row kind, const QString &left, const QString &right)
{
    const qsizetype between = columns - left.size() - right.size();
    if (between >= 1) {
        append(kind, left + QString(between, u' ') + right);
        return;
    }
    append(kind, left);
    append(kind, right.rightJustified(columns));
}

QList<PaperRow> paperOf(const QByteArray &stream, int columns, const recode::CodePage &page)
{
    QList<PaperRow> rows;
    Roll roll(columns, [&](const PaperRow &row) { rows.append(row); });
    Decoder decoder(stream, page);
    while (const auto command = decoder.next())
        roll.print(*command);
    roll.end();
    return rows;
}

QString widestRow(const Command &command, int columns)
{
    QString widest;
    if (command.kind == Kind::Line) {
        widest = QString(command.spaces, u' ') + command.codePage->decode(command.content);
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
