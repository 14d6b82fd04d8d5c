// Reading, telling jobs from streams, checking and rendering.
#include "companions/preview/input.h"

#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/shared/files.h"
#include "companions/shared/rendering.h"
#include "config/path.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

constexpr qint64 largestInput = 4'194'304;     // 4 MiB, of a stream or a job
constexpr qint64 largestSettings = 67'108'864; // 64 MiB

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
std::optional<Settings> readSettings(const QString &given, QString &note, QString &error)
{
    const QString path =
        given.isEmpty() ? korvel::path::home() + "/.korvel/conf/korvel.conf"_L1 : given;
    const auto kind = korvel::path::kindOf(path);
    if (given.isEmpty() && kind == korvel::path::Kind::Nothing) {
        note = u"there are no settings in "_s + path
               + u": shown by those of the sample shop; --settings names others"_s;
        return Settings{u"sample settings"_s, sampleSettings()};
    }
    // The renderer reads its settings from nothing else.
    if (path == "-"_L1 || kind == korvel::path::Kind::Other) {
        error = path + u": no regular file"_s;
        return {};
    }
    const auto bytes = shared::readWhole(path, largestSettings, error);
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

std::optional<Input> readInput(const QString &path, InputKind kind, const QString &settingsPath,
                               const QList<check::Code> &ignored, QString &error)
{
    const auto bytes = shared::readWhole(path, largestInput, error);
    if (!bytes) {
        error = path + u": "_s + error;
        return {};
    }
    Input input{path, kind == InputKind::Job || (kind == InputKind::ByContent && isJob(*bytes))};
    if (!input.isJob) {
        input.stream = *bytes;
        return input;
    }
    const auto settings = readSettings(settingsPath, input.note, error);
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
    if (rendered.stream.size() > largestInput) {
        error =
            path + u": its stream is larger than "_s + QString::number(largestInput) + u" bytes"_s;
        return {};
    }
    input.stream = rendered.stream;
    if (rendered.end == shared::Rendered::End::Refused)
        input.said = rendered.reason();
    return input;
}

} // namespace korvel::preview
