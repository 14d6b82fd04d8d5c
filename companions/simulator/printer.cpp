// A document's way: to UTF-8, on paper, into files, into the report and the sums.
#include "companions/simulator/printer.h"

#include "companions/shared/files.h"
#include "companions/shared/output.h"
#include "config/path.h"
#include "printer/company/commands.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

#include <dirent.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::simulator {

namespace {

constexpr int digits = 4; // of a file's name, at least

/// The number of the file of a document: "0012.out"; 0 for any other.
qint64 numberOf(QByteArrayView name)
{
    const qsizetype point = name.indexOf('.');
    if (point < digits || (name.sliced(point) != ".out" && name.sliced(point) != ".txt")
        || !std::all_of(name.begin(), name.begin() + point,
                        [](char c) { return c >= '0' && c <= '9'; }))
        return 0;
    return name.first(point).toLongLong();
}

struct CloseFolder
{
    void operator()(DIR *folder) const { closedir(folder); }
};

} // namespace

Printer::Printer(recode::CodePage codePage, QString paperFolder, Report &reported)
    : charset(std::move(codePage))
    , folder(std::move(paperFolder))
    , report(reported)
{
}

bool Printer::prepare()
{
    if (folder.isEmpty())
        return true;
    const QByteArray path = korvel::path::toBytes(folder);
    if (::mkdir(path.constData(), 0777) != 0 && errno != EEXIST) {
        shared::trouble(folder + u": "_s + qt_error_string());
        return false;
    }
    const std::unique_ptr<DIR, CloseFolder> entries(::opendir(path.constData()));
    if (!entries) {
        shared::trouble(folder + u": "_s + qt_error_string());
        return false;
    }
    while (const dirent *entry = ::readdir(entries.get()))
        last = std::max(last, numberOf(QByteArrayView(&entry->d_name[0])));
    return true;
}

void Printer::print(const Document &document, qint64 connection)
{
    QList<preview::PaperRow> rows;
    qint64 rowsLeftOut = 0;
    preview::Roll roll(commands::lineWidth, [&](const preview::PaperRow &row) {
        if (rows.size() < mostRows)
            rows.append(row);
        else
            ++rowsLeftOut;
    });
    preview::Decoder decoder(document.bytes, charset);
    while (const auto command = decoder.next())
        roll.print(*command);
    roll.end();

    const Print print{++last, connection, document, rows, rowsLeftOut};
    if (!folder.isEmpty())
        keep(print);
    report.printed(print);
    for (const preview::Finding &finding :
         preview::findings(document.bytes, commands::lineWidth, {}, charset))
        report.found(print.number, finding);
    sums.add(document);
    if (document.section == preview::Section::Fiscal)
        report.registered(sums);
}

/// Writes the files of a document, the paper last: where that is, both are.
void Printer::keep(const Print &print)
{
    keepFile(print.number, u".out"_s, print.document.bytes);
    keepFile(print.number, u".txt"_s, paperOf(print, false).toUtf8());
}

void Printer::keepFile(qint64 number, const QString &ending, const QByteArray &bytes)
{
    const QString path =
        folder + u'/' + QString::number(number).rightJustified(digits, u'0') + ending;
    QString error;
    if (!shared::writeWhole(path, bytes, error)) {
        shared::trouble(path + u": "_s + error);
        sound = false;
    }
}

} // namespace korvel::simulator
