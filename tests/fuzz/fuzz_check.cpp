// Jobs of any bytes, through the checker, and beside it through the renderer's own reader.
#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "fuzz/expect.h"
#include "support/guardedjob.h"

#include <QStringDecoder>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace check = korvel::check;

namespace {

/// Settings with narrow columns, a document of every kind, and every other switch on.
QByteArray settingsText()
{
    QByteArray groups;
    for (const char *name : {"doc", "prefiscaldoc", "fiscaldoc", "receiptdoc", "invoicedoc",
                             "deliverydoc", "reportdoc", "solddoc"})
        groups += QByteArray(name)
                  + ": { quantityFieldWidth = 1; priceFieldWidth = 4; totalPriceFieldWidth = 5; "
                    "printHeader = true; printCustomer = true; printTelephone = true; "
                    "printDeliveryAddress = true; printDate = true; printNote = true; };";
    return "korvel: {" + groups + "};";
}

/// The lines of a job that names no encoding, without their ends; of any other job none.
QStringList linesOfJob(const QByteArray &bytes)
{
    if (bytes.left(256).contains("encoding"))
        return {};
    const auto marked = QStringConverter::encodingForData(bytes, u'<');
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    return QString(decoder(bytes)).split('\n');
}

void expectPlaceInFile(const check::Place &place, const QStringList &lines, qsizetype bytes)
{
    expect(place.line >= 1 && place.column >= 1, "lines and columns count from 1");
    expect(place.line + place.column <= bytes + 2,
           "a place is no further on than the file is long");
    if (lines.isEmpty())
        return;
    expect(place.line <= lines.size(), "the line of a place exists");
    expect(place.column <= lines[place.line - 1].size() + 1, "the column of a place exists");
}

bool isOneLine(const QString &text)
{
    return !text.isEmpty() && std::none_of(text.begin(), text.end(), [](QChar c) {
        return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line
               || c.category() == QChar::Separator_Paragraph;
    });
}

bool isBefore(const check::Place &a, const check::Place &b)
{
    return std::pair(a.line, a.column) < std::pair(b.line, b.column);
}

void expectSound(const QList<check::Finding> &findings, const QByteArray &job)
{
    const QStringList lines = linesOfJob(job);
    for (qsizetype i = 0; i < findings.size(); ++i) {
        expect(isOneLine(findings[i].text), "a text is one line");
        expectPlaceInFile(findings[i].place, lines, job.size());
        expect(i == 0 || !isBefore(findings[i].place, findings[i - 1].place),
               "findings come in the order of the file");
    }
}

/// Whether a finding says that the job cannot be read, wholly or as it is meant.
bool isUnreadable(const check::Finding &finding)
{
    return finding.code == check::Code::MalformedXml || finding.code == check::Code::Limit
           || finding.code == check::Code::Encoding;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QtMessageHandler silenced =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static_cast<void>(silenced);
    static const check::SettingsFile settings(settingsText());

    const QByteArray job(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QList<check::Finding> findings = check::checkJob(job, nullptr);
    expectSound(findings, job);
    const QList<check::Finding> withSettings = check::checkJob(job, &settings);
    expectSound(withSettings, job);

    const auto unreadable = [](const QList<check::Finding> &all) {
        return std::count_if(all.begin(), all.end(), isUnreadable);
    };
    expect(unreadable(findings) == unreadable(withSettings), "settings do not make a job readable");

    // What a document type declares is beyond what the checker counts.
    const bool hasDocumentType = QByteArray(job).replace('\0', "").contains("<!DOCTYPE");
    if (unreadable(findings) == 0 && !hasDocumentType)
        expect(isReadToItsEnd(job), "the renderer reads what the checker takes for well-formed");
    return 0;
}
