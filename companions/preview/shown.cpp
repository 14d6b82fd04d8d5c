// What is said of a file, and its paper.
#include "companions/preview/shown.h"

#include "companions/preview/listing.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

bool isWrong(const Shown &shown, bool strict)
{
    const Input &input = shown.input;
    return input.said || !input.errors.isEmpty()
           || std::any_of(shown.found.begin(), shown.found.end(), [&](const Finding &finding) {
                  return strict || infoOf(finding.code).level == Level::Error;
              });
}

QString nameOf(const Shown &shown)
{
    return shown.input.path == "-"_L1 ? u"Standard input"_s : shared::inOneLine(shown.input.path);
}

QStringList told(const Shown &shown)
{
    const Input &input = shown.input;
    QStringList lines;
    for (const Input::CheckError &error : input.errors)
        lines += lineOf(error.file, error.finding);
    if (input.said)
        lines += shared::inOneLine(input.path) + u": "_s + *input.said + u'\n';
    for (const Finding &finding : shown.found)
        lines += lineOf(input.path, input.isJob, finding);
    return lines;
}

void printRows(const Shown &shown, const Reading &reading, const Roll::TakeRow &take)
{
    Roll roll(reading.columns, take);
    Decoder decoder(shown.input.stream, *reading.page);
    while (const auto command = decoder.next())
        roll.print(*command);
    roll.end();
}

} // namespace korvel::preview
