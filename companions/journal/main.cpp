// korvel-journal: what became of the documents that were delivered.
#include "companions/journal/subcommands.h"
#include "companions/journal/words.h"
#include "companions/shared/commandline.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"

#include <QCoreApplication>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

namespace {

/// All states, for the help and a message.
QString stateNames()
{
    QStringList names;
    for (const delivery::StateInfo &row : delivery::stateTable)
        names.append(row.name);
    const QString last = names.takeLast();
    return names.join(u", "_s) + u" or "_s + last;
}

const QCommandLineOption journalOption(u"journal"_s, u"Read this journal, not the user's."_s,
                                       u"file"_s);
const QCommandLineOption
    stateOption(u"state"_s, u"list: only documents in this state: "_s + stateNames() + u'.',
                u"state"_s);
const QCommandLineOption sinceOption(u"since"_s,
                                     u"list, export: only what happened at this date or later."_s,
                                     u"date"_s);
const QCommandLineOption jsonOption(u"json"_s, u"list: write a JSON object for each document."_s);
const QCommandLineOption jobOption(u"job"_s, u"show: write the job alone."_s);
const QCommandLineOption streamOption(u"stream"_s, u"show: write the rendered stream alone."_s);
const QCommandLineOption sentOption(u"sent"_s, u"show: write what went to the printer alone."_s);
const QCommandLineOption settingsOption(u"settings"_s, u"show: write the settings alone."_s);
const QCommandLineOption headOption(u"head"_s,
                                    u"verify: the journal must have this event; see head."_s,
                                    u"number:hash"_s);
const QCommandLineOption dayOption(u"day"_s, u"sum: only documents of this day."_s, u"date"_s);
const QCommandLineOption
    beforeOption(u"before"_s, u"forget: documents of which all is older than this."_s, u"date"_s);

/// A subcommand, and what may stand behind it.
struct Subcommand
{
    QString name;
    QString arguments; // as the usage shows them; an optional one in brackets
    QString does;
    QList<QCommandLineOption> options;
    int (*run)(const Call &call);
};

const QList<Subcommand> subcommands = {
    {u"list"_s, {}, u"the documents, a line each"_s, {stateOption, sinceOption, jsonOption}, list},
    {u"show"_s,
     u"ID"_s,
     u"a document, its events, and the paper"_s,
     {jobOption, streamOption, sentOption, settingsOption},
     show},
    {u"resolve"_s,
     u"ID printed|not-printed"_s,
     u"says what is on the paper of one in doubt"_s,
     {},
     resolve},
    {u"verify"_s, {}, u"whether anything was changed, taken out or put in"_s, {headOption}, verify},
    {u"replay"_s, u"[ID]"_s, u"renders again, and compares"_s, {}, replay},
    {u"sum"_s, {}, u"documents and what they registered, by kind"_s, {dayOption}, sum},
    {u"export"_s, {}, u"all events as JSON"_s, {sinceOption}, exportEvents},
    {u"forget"_s,
     {},
     u"removes contents of finished documents; needs --before"_s,
     {beforeOption},
     forget},
    {u"head"_s, {}, u"the last event's number and hash"_s, {}, head},
};

const Subcommand *subcommandNamed(const QString &name)
{
    for (const Subcommand &subcommand : subcommands) {
        if (subcommand.name == name)
            return &subcommand;
    }
    return nullptr;
}

/// What the subcommands are, for the help.
QString description()
{
    QString text = u"Says what became of the documents that korvel-deliver sent.\n\n"_s;
    for (const Subcommand &subcommand : subcommands)
        text += u"  "_s + QString(subcommand.name + u' ' + subcommand.arguments).leftJustified(34)
                + subcommand.does + u'\n';
    text += u"\nA DATE is a day of this place, such as 2026-05-12, or a time such as "
            "2026-05-12T18:30."_s;
    return text;
}

/// Reads the values of the options; why one does not fit, empty when all do.
QString readOptions(const QCommandLineParser &parser, Call &call)
{
    call.journal =
        parser.isSet(journalOption) ? parser.value(journalOption) : delivery::Journal::userPath();
    if (parser.isSet(journalOption) && call.journal.isEmpty())
        return u"--journal takes the name of a file"_s;
    call.json = parser.isSet(jsonOption);
    if (parser.isSet(stateOption)) {
        call.state = delivery::stateNamed(parser.value(stateOption));
        if (!call.state)
            return u"--state takes "_s + stateNames();
    }
    for (const auto &[option, time] :
         {std::pair(&sinceOption, &call.since), std::pair(&beforeOption, &call.before)}) {
        const auto named = timeNamed(parser.value(*option));
        if (parser.isSet(*option) && !named)
            return u"--"_s + option->names().constFirst()
                   + u" takes a date such as 2026-05-12, or a "
                     "time such as 2026-05-12T18:30 that the clocks here do not skip"_s;
        *time = named.value_or(QDateTime());
    }
    call.day = dayNamed(parser.value(dayOption)).value_or(QDate());
    if (parser.isSet(dayOption) && !call.day.isValid())
        return u"--day takes a day such as 2026-05-12"_s;
    if (parser.isSet(headOption)) {
        call.head = headNamed(parser.value(headOption));
        if (!call.head)
            return u"--head takes what \"korvel-journal head\" wrote: NUMBER:HASH"_s;
    }
    for (const auto &[option, part] :
         {std::pair(&jobOption, Part::Job), std::pair(&streamOption, Part::Stream),
          std::pair(&sentOption, Part::Sent), std::pair(&settingsOption, Part::Settings)}) {
        if (!parser.isSet(*option))
            continue;
        if (call.part)
            return u"--job, --stream, --sent and --settings exclude each other"_s;
        call.part = part;
    }
    return {};
}

/// Reads what stands behind the subcommand; why it does not fit, empty when it does.
QString readArguments(const QStringList &arguments, const Subcommand &subcommand, Call &call)
{
    const QStringList wanted = subcommand.arguments.split(u' ', Qt::SkipEmptyParts);
    const qsizetype least = subcommand.arguments.startsWith(u'[') ? 0 : wanted.size();
    if (arguments.size() < least || arguments.size() > wanted.size())
        return subcommand.name
               + (wanted.isEmpty() ? u" takes no argument"_s : u" takes "_s + subcommand.arguments)
               + u"; see --help"_s;
    call.id = arguments.value(0);
    if (!arguments.isEmpty() && call.id.isEmpty())
        return u"an id is never empty"_s;
    if (arguments.size() < 2)
        return {};
    const auto resolution = delivery::stateNamed(arguments.at(1));
    if (resolution != delivery::State::Printed && resolution != delivery::State::NotPrinted)
        return u"resolve takes \"printed\" or \"not-printed\""_s;
    call.resolution = *resolution;
    return {};
}

/// Why an option does not belong to the subcommand; empty when all do.
QString strayOption(const QCommandLineParser &parser, const Subcommand &subcommand)
{
    QStringList known = journalOption.names();
    for (const QCommandLineOption &option : subcommand.options)
        known += option.names();
    for (const QString &name : parser.optionNames()) {
        if (!known.contains(name))
            return subcommand.name + u" takes no --"_s + name + u"; see --help"_s;
    }
    return {};
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(description());
    parser.addPositionalArgument(u"ID"_s, u"The id of a document."_s,
                                 u"SUBCOMMAND [ARGUMENT...]"_s);
    parser.addOptions({journalOption, stateOption, sinceOption, jsonOption, jobOption, streamOption,
                       sentOption, settingsOption, headOption, dayOption, beforeOption});
    if (const auto status = readCommandLine(parser, arguments))
        return *status;
    QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return trouble(u"a subcommand is needed; see --help"_s);
    const QString name = words.takeFirst();
    const Subcommand *const subcommand = subcommandNamed(name);
    if (!subcommand)
        return trouble(u"there is no subcommand \""_s + name + u"\"; see --help"_s);
    Call call;
    for (const QString &misuse :
         {strayOption(parser, *subcommand), readArguments(words, *subcommand, call),
          readOptions(parser, call)}) {
        if (!misuse.isEmpty())
            return trouble(misuse);
    }
    if (subcommand->run == forget && !call.before.isValid())
        return trouble(u"forget needs --before DATE"_s);
    try {
        return subcommand->run(call);
    } catch (const delivery::JournalError &error) {
        return trouble(error.text());
    }
}

} // namespace

} // namespace korvel::journal

int main(int argc, char *argv[])
{
    prepareCompanion();
    const QCoreApplication application(argc, argv);
    return korvel::journal::run(argumentsOf(argc, argv));
}
