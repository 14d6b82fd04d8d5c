// Folders gone through, and jobs and streams told from other files by how they begin.
#include "companions/preview/folders.h"

#include "companions/preview/input.h"
#include "companions/shared/oneline.h"
#include "config/path.h"

#include <QFile>

#include <algorithm>
#include <memory>

#include <dirent.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

bool isFolder(const QString &path)
{
    struct stat status = {};
    return ::stat(korvel::path::toBytes(path).constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// The names in a folder that are not hidden, in order.
std::optional<QStringList> namesIn(const QString &folder)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> open(
        ::opendir(korvel::path::toBytes(folder).constData()), ::closedir);
    if (!open)
        return {};
    QStringList names;
    while (const dirent *entry = ::readdir(open.get())) {
        if (entry->d_name[0] != '.')
            names.append(korvel::path::fromBytes(entry->d_name));
    }
    names.sort();
    return names;
}

/// Whether a file begins as a job or as a stream does, or cannot be read, which is said later. What
/// a browser shows begins as jobs do.
bool isShown(const QString &path)
{
    constexpr qint64 beginning = 512;
    if (korvel::path::kindOf(path) != korvel::path::Kind::File)
        return false;
    QFile file;
    if (!korvel::path::open(file, path, QIODevice::ReadOnly))
        return true;
    const QByteArray bytes = file.read(beginning);
    if (!isJob(bytes))
        return bytes.isEmpty() || isStream(bytes);
    const QByteArray text = bytes.toLower();
    return !text.contains("<!doctype html") && !text.contains("<html") && !text.contains("<svg");
}

} // namespace

std::optional<Files> filesOf(const QStringList &given, QString &error)
{
    Files files;
    for (const QString &path : given) {
        if (path == "-"_L1 || !isFolder(path)) {
            files.paths.append(path);
            continue;
        }
        const auto names = namesIn(path);
        if (!names) {
            error = path + u": "_s + qt_error_string();
            return {};
        }
        const qsizetype before = files.paths.size();
        for (const QString &name : *names) {
            const QString inside = path + (path.endsWith(u'/') ? u""_s : u"/"_s) + name;
            (isShown(inside) ? files.paths : files.passedOver).append(inside);
        }
        if (files.paths.size() == before) {
            error = path + u": there is no job or stream in this folder"_s;
            return {};
        }
    }
    const QString &first = given.constFirst();
    const bool isAlone = given.size() == 1;
    files.isOneOfOne = isAlone && files.paths == given;
    if (!isAlone)
        files.title = QString::number(files.paths.size()) + u" documents"_s;
    else if (first == "-"_L1)
        files.title = u"Standard input"_s;
    else
        files.title = shared::inOneLine(first.section(u'/', -1, -1, QString::SectionSkipEmpty));
    return files;
}

} // namespace korvel::preview
