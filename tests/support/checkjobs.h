// Jobs of one document in one line, and what the checker finds in them.
#pragma once

#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"

#include <memory>

/// Findings as a person reads them: "2:5: error: text [code]".
inline QStringList shown(const QList<korvel::check::Finding> &findings)
{
    QStringList lines;
    for (const korvel::check::Finding &finding : findings)
        lines.append(QString("%1:%2: %3: %4 [%5]")
                         .arg(QString::number(finding.place.line),
                              QString::number(finding.place.column),
                              QString(levelName(infoOf(finding.code).level)), finding.text,
                              QString(infoOf(finding.code).name)));
    return lines;
}

inline std::unique_ptr<korvel::check::SettingsFile> settingsOf(const QByteArray &text)
{
    return std::make_unique<korvel::check::SettingsFile>(text);
}

/// The codes of a job's findings, in their order.
inline QStringList codesIn(const QByteArray &job,
                           const korvel::check::SettingsFile *settings = nullptr)
{
    QStringList codes;
    for (const korvel::check::Finding &finding : checkJob(job, settings))
        codes.append(infoOf(finding.code).name);
    return codes;
}

inline QByteArray attribute(const char *name, const QByteArray &value)
{
    return QByteArray(" ") + name + "=\"" + value + '"';
}

inline QByteArray documentOf(const QByteArray &method, const QByteArray &elements)
{
    return "<job><method" + attribute("name", method) + "/>" + elements + "</job>";
}

inline QByteArray kitchen(const QByteArray &elements)
{
    return documentOf("printPartialOrder", elements);
}

inline QByteArray receipt(const QByteArray &elements)
{
    return documentOf("printFullOrderReceipt", elements);
}

inline QByteArray fiscalJob(const QByteArray &elements)
{
    return documentOf("printFullOrderFiscal", elements);
}

inline QByteArray report(const QByteArray &elements) { return documentOf("printReport", elements); }

/// Attributes that declare so many namespaces.
inline QByteArray namespaces(int count)
{
    QByteArray declarations;
    for (int i = 0; i < count; ++i)
        declarations += attribute(qPrintable("xmlns:n" + QString::number(i)), "urn:x");
    return declarations;
}

inline QByteArray nested(int depth, const QByteArray &innermost)
{
    return QByteArray("<x>").repeated(depth) + innermost + QByteArray("</x>").repeated(depth);
}

/// A text in UTF-8 as UTF-16, with its byte order mark.
inline QByteArray utf16(const QByteArray &text)
{
    const QString wide = QString::fromUtf8(text);
    QByteArray bytes("\xFF\xFE");
    for (const QChar c : wide) {
        bytes += char(c.unicode() & 0xFFU);
        bytes += char(c.unicode() >> 8U);
    }
    return bytes;
}

/// An item of a kitchen order.
inline const QByteArray item = "<receipe number=\"1\" name=\"Caff\xC3\xA8\"/>";
