// Reading, telling jobs from streams, checking and rendering.
#include "companions/preview/input.h"

#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/paper/decoder.h"
#include "companions/shared/files.h"
#include "companions/shared/rendering.h"
#include "config/path.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

struct Settings
{
    QString path; // for people
    QByteArray bytes;
};

QByteArray sampleSettings()
{
    QFile file(u":/examples/korvel.conf"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The settings to render by; see readInput().
std::optional<Settings> settingsFor(const QString &given, QString &note, QString &error)
{
    const QString missing = given.isEmpty() ? shared::remarkOnMissingSettings() : QString();
    if (!missing.isEmpty()) {
        note = u"shown by the sample shop's settings: "_s + missing;
        return Settings{u"sample settings"_s, sampleSettings()};
    }
    const QString path =
        given.isEmpty() ? korvel::path::home() + korvel::path::settingsInHome : given;
    const auto bytes = shared::readSettings(path, error);
    if (!bytes) {
        error = path + u": "_s + error;
        return {};
    }
    return Settings{path, *bytes};
}

void addErrors(Input &input, const QString &file, const QList<check::Finding> &findings,
               const QList<check::Code> &ignored)
{
    for (const check::Finding &finding : findings) {
        if (infoOf(finding.code).level == check::Level::Error && !ignored.contains(finding.code))
            input.errors.append({file, finding});
    }
}

} // namespace

bool isJob(QByteArrayView bytes)
{
    for (const QByteArrayView mark :
         {QByteArrayView("\xEF\xBB\xBF"), QByteArrayView("\xFF\xFE"), QByteArrayView("\xFE\xFF")}) {
        if (bytes.startsWith(mark))
            bytes = bytes.sliced(mark.size());
    }
    // In UTF-16, every other byte of these is null.
    while (!bytes.isEmpty() && QByteArrayView("\0 \t\r\n", 5).contains(bytes.front()))
        bytes = bytes.sliced(1);
    return bytes.startsWith('<');
}

bool isStream(QByteArrayView bytes) { return bytes.startsWith(commandStart); }

std::optional<Input> readInput(const QString &path, InputKind kind, const recode::CodePage &page,
                               const QString &settingsPath, const QList<check::Code> &ignored,
                               QString &error)
{
    const auto bytes = shared::readWhole(path, shared::largestStream, error);
    if (!bytes) {
        error = path + u": "_s + error;
        return {};
    }
    Input input{path, kind == InputKind::Job || (kind == InputKind::ByContent && isJob(*bytes))};
    if (!input.isJob) {
        input.stream = *bytes;
        return input;
    }
    if (!page.isUnicode()) {
        error = u"--charset is for streams; a job is rendered in UTF-8"_s;
        return {};
    }
    const auto settings = settingsFor(settingsPath, input.note, error);
    if (!settings)
        return {};
    const check::SettingsFile read(settings->bytes);
    addErrors(input, settings->path, checkSettings(read), ignored);
    addErrors(input, path, checkJob(*bytes, &read), ignored);

    const shared::Rendered rendered = shared::rendered(*bytes, settings->bytes);
    if (!rendered.isThere()) {
        error = path + u": "_s + rendered.reason();
        return {};
    }
    if (rendered.stream.size() > shared::largestStream) {
        error = path + u": its stream is larger than "_s + QString::number(shared::largestStream)
                + u" bytes"_s;
        return {};
    }
    input.stream = rendered.stream;
    if (rendered.end == shared::Rendered::End::Refused && input.errors.isEmpty())
        input.said = rendered.reason();
    return input;
}

} // namespace korvel::preview
