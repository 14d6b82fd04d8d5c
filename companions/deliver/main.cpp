// korvel-deliver: brings a job or a stream to the printer, at most once.
#include "companions/deliver/document.h"
#include "companions/shared/commandline.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"

#include <QCoreApplication>

#include <exception>
#include <new>
#include <string_view>

#include <unistd.h>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::deliver {

using delivery::Journal;
using delivery::JournalError;

namespace {

constexpr int longestId = 200;
constexpr int mostSeconds = 31'536'000; // a year

const QCommandLineOption
    toOption(u"to"_s,
             u"Send to this device: tcp://HOST, serial:/dev/ttyS0?baud=9600, the path of a device "
             "or FIFO, or file:/path."_s,
             u"device"_s);
const QCommandLineOption idOption(u"id"_s,
                                  u"Call the document so; what was sent by that id is not sent "
                                  "again."_s,
                                  u"id"_s);
const QCommandLineOption
    settingsOption(u"settings"_s, u"Render by these settings, not by the user's."_s, u"file"_s);
const QCommandLineOption charsetOption(u"charset"_s, u"The printer's code page, such as cp858."_s,
                                       u"name"_s, u"UTF-8"_s);
const QCommandLineOption journalOption(u"journal"_s, u"Keep the journal here, not at the user's."_s,
                                       u"file"_s);
const QCommandLineOption timeoutOption(u"timeout"_s,
                                       u"So long connecting, and each byte, may take."_s,
                                       u"seconds"_s, u"30"_s);
const QCommandLineOption waitOption(u"wait"_s, u"Wait so long for a printer that is off or busy."_s,
                                    u"seconds"_s, u"0"_s);
const QCommandLineOption dryRunOption(u"dry-run"_s,
                                      u"Send nothing, write no journal; say all that is found."_s);

std::optional<std::chrono::seconds> secondsOf(const QCommandLineParser &parser,
                                              const QCommandLineOption &option, int least)
{
    bool isNumber = false;
    const int number = parser.value(option).toInt(&isNumber);
    if (!isNumber || number < least || number > mostSeconds)
        return {};
    return std::chrono::seconds(number);
}

/// Why an id cannot be one; empty when it can.
QString faultOf(const QString &id)
{
    if (id.isEmpty() || id.toUcs4().size() > longestId || id.trimmed() != id || inOneLine(id) != id)
        return u"--id takes from 1 to "_s + QString::number(longestId)
               + u" characters that print, without blanks around them"_s;
    return {};
}

/// Reads the options; where they are wrong, says so in one line and gives nothing.
std::optional<Task> taskOf(const QCommandLineParser &parser)
{
    const auto wrong = [](const QString &text) -> std::optional<Task> {
        static_cast<void>(trouble(text));
        return {};
    };
    const QStringList files = parser.positionalArguments();
    if (files.isEmpty())
        return wrong(u"a job or a stream is needed; see --help"_s);
    if (!parser.isSet(toOption))
        return wrong(u"--to DEVICE is needed; see --help"_s);
    for (const auto &option : {settingsOption, journalOption}) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return wrong(u"--"_s + option.names().constFirst() + u" takes the name of a file"_s);
    }
    if (parser.isSet(idOption) && files.size() > 1)
        return wrong(u"--id names one document: give one file with it"_s);
    if (const QString fault = faultOf(parser.value(idOption));
        parser.isSet(idOption) && !fault.isEmpty())
        return wrong(fault);
    const auto timeout = secondsOf(parser, timeoutOption, 1);
    if (!timeout)
        return wrong(u"--timeout takes a whole number of seconds from 1 on"_s);
    const auto wait = secondsOf(parser, waitOption, 0);
    if (!wait)
        return wrong(u"--wait takes a whole number of seconds from 0 on"_s);
    const auto charset = recode::CodePage::named(parser.value(charsetOption).toUtf8());
    if (!charset)
        return wrong(recode::noCodePage(parser.value(charsetOption)));
    QString error;
    const auto device = delivery::deviceNamed(parser.value(toOption), error);
    if (!device)
        return wrong(error);
    return Task{*device,
                *charset,
                parser.value(idOption),
                parser.value(settingsOption),
                parser.value(journalOption),
                *timeout,
                *wait,
                parser.isSet(dryRunOption),
                files};
}

/// Says without any memory that there is none.
int withoutMemory(std::string_view line, Status status)
{
    static_cast<void>(!::write(STDERR_FILENO, line.data(), line.size()));
    return status;
}

/// Says how far a document came for which memory ran out: the journal knows, or nobody.
int reportWithoutMemory(const Task &task, const Document &document, const QString &file,
                        Journal *journal)
{
    try {
        const auto known = journal ? journal->find(document.name()) : std::nullopt;
        const bool inDoubt = known
                             && (known->state == delivery::State::Sending
                                 || known->state == delivery::State::InDoubt);
        return report(
            {file, known ? document.name() : task.id, task.device.text, task.journal},
            {inDoubt ? delivery::End::InDoubt : delivery::End::NotSent, u"not enough memory"_s});
    } catch (const std::exception &) {
        return withoutMemory(
            "korvel-deliver: in doubt: not enough memory, nor to say more; look at "
            "the paper, then see korvel-journal\n",
            Doubtful);
    }
}

int deliverFile(const Task &task, Journal *journal, const QString &file)
{
    Document document(task, journal, file);
    try {
        return document.deliver();
    } catch (const std::bad_alloc &) {
        return reportWithoutMemory(task, document, file, journal);
    }
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Brings jobs and command streams to a printer, each at most once."_s);
    parser.addPositionalArgument(
        u"FILE"_s, u"A job, or what korvel-print wrote; - for standard input."_s, u"FILE..."_s);
    parser.addOptions({toOption, idOption, settingsOption, charsetOption, journalOption,
                       timeoutOption, waitOption, dryRunOption});
    if (const auto status = readCommandLine(parser, arguments))
        return *status;
    const auto task = taskOf(parser);
    if (!task)
        return NotPossible;

    std::optional<Journal> journal;
    try {
        if (!task->isDry)
            journal.emplace(task->journal.isEmpty() ? Journal::userPath() : task->journal,
                            Journal::Access::Write);
    } catch (const JournalError &error) {
        static_cast<void>(trouble(error.text()));
        return NotPossible;
    }
    for (const QString &file : task->files) {
        const int status = deliverFile(*task, journal ? &*journal : nullptr, file);
        if (status != Delivered)
            return status;
    }
    return Delivered;
}

} // namespace

} // namespace korvel::deliver

int main(int argc, char *argv[])
{
    prepareCompanion();
    try {
        const QCoreApplication application(argc, argv);
        return korvel::deliver::run(argumentsOf(argc, argv));
    } catch (const std::bad_alloc &) { // not of a delivery, see deliverFile()
        return korvel::deliver::withoutMemory(
            "korvel-deliver: not sent: not enough memory; call again\n",
            korvel::deliver::Undelivered);
    }
}
