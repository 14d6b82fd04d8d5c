// From a file of the command line to its exit status.
#include "companions/deliver/document.h"

#include "companions/deliver/preparation.h"
#include "companions/shared/commandline.h"
#include "companions/shared/files.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "companions/shared/progress.h"
#include "config/path.h"

#include <QElapsedTimer>
#include <QUuid>

#include <cstdio>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using korvel::delivery::Contents;
using korvel::delivery::End;
using korvel::delivery::JournalError;
using korvel::delivery::Outcome;

namespace korvel::deliver {

namespace {

/// Says that a file cannot be used.
Status misused(const QString &path, const QString &error)
{
    static_cast<void>(shared::trouble(path + u": "_s + error));
    return NotPossible;
}

} // namespace

Document::Document(const Task &given, delivery::Journal *openJournal, QString path)
    : task(given)
    , journal(openJournal)
    , file(std::move(path))
    , id(!task.id.isEmpty() || task.isDry ? task.id
                                          : QUuid::createUuid().toString(QUuid::WithoutBraces))
    , origin(shared::userName() + u": "_s + file)
{
}

Status Document::deliver()
{
    try {
        return run();
    } catch (const JournalError &error) {
        return told({End::Unrecorded, error.text()});
    }
}

Status Document::run()
{
    QString error;
    const auto bytes = shared::readUpTo(file, largestDocument, error);
    if (!bytes)
        return misused(file, error);
    if (bytes->size() > largestDocument)
        return refused({}, u"it has more than "_s + QString::number(largestDocument)
                               + u" bytes, the most that is taken"_s);
    QByteArray settings;
    if (madeFrom(*bytes, {}, task.charset).rendered.isEmpty()) {
        if (const auto status = readSettings(settings, *bytes))
            return *status;
    }
    Contents contents = madeFrom(*bytes, settings, task.charset);
    const auto known = journal ? journal->find(id) : std::nullopt;
    if (known && known->state != delivery::State::Refused)
        return send(contents); // as it was accepted, whatever would be made of it today

    const Prepared ready = prepared(std::move(contents), task.charset, file, settingsPath());
    if (task.isDry) {
        for (const QString &remark : ready.remarks)
            std::fputs((shared::inOneLine(remark) + u'\n').toUtf8().constData(), stderr);
    }
    switch (ready.end) {
    case Prepared::End::Refused:
        return refused(ready.contents, ready.reason);
    case Prepared::End::Failed:
        return told({End::NotSent, ready.reason}, task.id);
    case Prepared::End::Ready:
        break;
    }
    return task.isDry ? reportReady(subject(id)) : send(ready.contents, ready.remark());
}

QString Document::settingsPath() const
{
    return task.settings.isEmpty() ? path::home() + path::settingsInHome : task.settings;
}

/// Reads the settings for a job; the status to end with where they cannot be read.
std::optional<Status> Document::readSettings(QByteArray &settings, const QByteArray &job)
{
    const QString named = settingsPath();
    if (task.settings.isEmpty() && path::kindOf(named) == path::Kind::Nothing)
        return refused(madeFrom(job, {}, task.charset),
                       u"there are no settings in "_s + named + u"; --settings names others"_s);
    QString error;
    const auto bytes = shared::readSettings(named, error, largestDocument);
    if (!bytes)
        return misused(named, error);
    settings = *bytes;
    return {};
}

Status Document::send(const Contents &contents, const QString &remark)
{
    shared::ProgressLine progress(u"waiting"_s);
    QElapsedTimer since;
    since.start();
    const auto waiting = [&](const QString &reason) {
        progress.show(QString::number(since.elapsed() / 1000) + u" s: "_s + reason);
    };
    const Outcome outcome = delivery::deliver(
        *journal, {id, origin, remark, task.device, contents, task.timeout, task.wait, waiting});
    progress.clear();
    return told(outcome, id);
}

Status Document::refused(const Contents &contents, const QString &reason)
{
    if (journal)
        journal->refuse(id, contents, task.device.text, origin, reason);
    return told({End::Refused, reason});
}

Subject Document::subject(const QString &named) const
{
    return {file, named, task.device.text, task.journal};
}

/// @param named the id that the journal, or the caller, has of it
Status Document::told(const Outcome &outcome, const QString &named) const
{
    return report(subject(named), outcome);
}

} // namespace korvel::deliver
