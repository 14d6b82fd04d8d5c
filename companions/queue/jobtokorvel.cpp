// jobtokorvel: the filter of CUPS that makes a job a command stream, or nothing.
#include "companions/deliver/preparation.h"
#include "companions/queue/document.h"
#include "companions/shared/commandline.h"
#include "companions/shared/files.h"
#include "companions/shared/output.h"
#include "config/path.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <chrono>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace korvel::queue {

using deliver::Prepared;
using delivery::Contents;
using delivery::Journal;
using delivery::JournalError;

namespace {

constexpr std::chrono::seconds pause(2); // until what the renderer lacks may be there

enum Status { Written = 0, Failed = 1 };

Status failed(const QString &text)
{
    tell(Level::Error, text);
    waitUntilHeard();
    return Failed;
}

/// Whether the file is another one of the job than its first, by the name that CUPS gives it.
bool isFurtherFile(const Request &request)
{
    static const QRegularExpression numbered(u"/d\\d+-(\\d+)$"_s);
    return numbered.match(request.files.value(0)).captured(1).toInt() > 1;
}

/// The filtering of one job.
class Filter
{
public:
    Filter(const Request &given, const recode::CodePage &page)
        : request(given)
        , charset(page)
    {
    }

    Status run()
    {
        if (isFurtherFile(request))
            return write(furtherFile.toByteArray());
        QString error;
        const QString path = request.files.value(0, u"-"_s);
        const auto bytes = shared::readUpTo(path, deliver::largestDocument, error);
        if (!bytes)
            return failed(u"the job cannot be read: "_s + error);
        if (bytes->size() > deliver::largestDocument)
            return refused({}, u"it has more than "_s + QString::number(deliver::largestDocument)
                                   + u" bytes, the most that is taken"_s);
        return filter(*bytes);
    }

private:
    /// Does something with the journal. Where that is not to be had the backend says so, and sends
    /// nothing.
    template<typename Task>
    void inJournal(const Task &task)
    {
        QString error;
        if (isUnrecorded || request.id.isEmpty() || !deviceOf(request.device, error))
            return;
        try {
            Journal journal(journalPath(), Journal::Access::WriteForGroup);
            task(journal);
        } catch (const JournalError &missing) {
            tell(Level::Debug, missing.text());
            isUnrecorded = true;
        }
    }

    Status filter(const QByteArray &bytes)
    {
        Contents contents = deliver::madeFrom(bytes, {}, charset);
        // As it was accepted, whatever would be made of it today.
        QByteArray before;
        inJournal([&](Journal &journal) {
            before = takenIn(journal, request.id, contents).value_or(Contents()).rendered;
        });
        if (!before.isEmpty())
            return write(before);
        if (!contents.job.isEmpty()) {
            QString error;
            const auto settings = shared::readSettings(settingsFile, error);
            if (!settings)
                return refused(contents, u"the settings of the queue cannot be read: "_s
                                             + settingsFile + u": "_s + error);
            contents.settings = *settings;
        }
        const Prepared ready = prepare(contents);
        const QString reason = ready.end == Prepared::End::Refused
                                   ? ready.reason
                                   : misuseOf(request, ready.contents.rendered);
        if (!reason.isEmpty())
            return refused(ready.contents, reason);
        inJournal([&](Journal &journal) {
            QString error;
            journal.accept(request.id, ready.contents, deviceOf(request.device, error)->text,
                           request.origin(), ready.remark());
        });
        return write(ready.contents.rendered);
    }

    /// Until the renderer can work: what keeps it from that is no fault of the job's.
    [[nodiscard]] Prepared prepare(const Contents &contents) const
    {
        for (;;) {
            Prepared ready = deliver::prepared(contents, charset, request.file(), settingsFile);
            if (ready.end != Prepared::End::Failed) {
                for (const QString &remark : ready.remarks)
                    tell(Level::Debug, remark);
                return ready;
            }
            tell(Level::Info, u"waiting: "_s + ready.reason);
            std::this_thread::sleep_for(pause);
        }
    }

    Status refused(const Contents &contents, const QString &reason)
    {
        inJournal([&](Journal &journal) { refuse(journal, request, contents, reason); });
        return failed(refusal(reason));
    }

    static Status write(const QByteArray &stream)
    {
        return shared::writeBytes(stream, Written) == Written ? Written : Failed;
    }

    const Request &request;
    const recode::CodePage &charset;
    const QString settingsFile = settingsOf(request.queue);
    bool isUnrecorded = false; // as the journal cannot be had
};

int run(const QStringList &arguments)
{
    QString error;
    const auto request = requestOf(arguments, error);
    if (!request)
        return failed(error);
    const auto charset = recode::CodePage::named(request->charset.toUtf8());
    if (!charset)
        return failed(refusal(recode::noCodePage(request->charset)));
    return Filter(*request, *charset).run();
}

} // namespace

} // namespace korvel::queue

int main(int argc, char *argv[])
{
    korvel::shared::prepareCompanion();
    const QStringList arguments = korvel::shared::argumentsOf(argc, argv);
    int none = 1; // what a job is called is no option of the toolkit's
    const QCoreApplication application(none, argv);
    return korvel::queue::run(arguments);
}
