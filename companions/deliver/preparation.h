// From the bytes of a file to a document that may be sent: checked, rendered, judged, recoded.
#pragma once

#include "companions/recode/codepage.h"
#include "delivery/journal.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace korvel::deliver {

/// Bytes of a job or a stream, and of a settings file, that are taken at most. A larger job or
/// stream is refused.
inline constexpr qint64 largestDocument = 50'000'000;

/// What came of preparing a document.
struct Prepared
{
    enum class End {
        Ready,   // contents has all of it
        Refused, // the job, the settings or the stream is wrong, or the renderer complained
        Failed,  // the renderer was ended from outside, or could not work: that refuses nothing
    };

    End end = End::Ready;
    delivery::Contents contents = {};
    QString reason = {};      // why it is not ready, in one line
    QStringList remarks = {}; // the first 1000 of all that was found, warnings too, and of what the
                              // code page lacks; a line each

    /// The first remark, and how many more there are; empty when there is none.
    [[nodiscard]] QString remark() const;
};

/// What a document is made from, before it is prepared: a stream when it begins with "=", else a
/// job with settings.
delivery::Contents madeFrom(const QByteArray &file, const QByteArray &settings,
                            const recode::CodePage &charset);

/**
 * Checks a job as korvel-check does and renders it with korvel-print in a child process, judges the
 * stream as korvel-preview does, and recodes it. Needs an application object.
 *
 * @param contents of madeFrom()
 * @param name     of the file, for remarks; as settingsName
 */
Prepared prepared(delivery::Contents contents, const recode::CodePage &charset, const QString &name,
                  const QString &settingsName);

} // namespace korvel::deliver
