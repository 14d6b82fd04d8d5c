// korvel-printer-sim: a printer without paper.
#include "companions/preview/terminal.h"
#include "companions/shared/commandline.h"
#include "companions/shared/output.h"
#include "companions/simulator/server.h"

#include <QCoreApplication>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::simulator {

namespace {

const QCommandLineOption listenOption(u"listen"_s,
                                      u"Take streams at this address; port 0 is any free one."_s,
                                      u"address"_s, u"127.0.0.1:9100"_s);
const QCommandLineOption ptyOption(u"pty"_s,
                                   u"Take streams on a serial line of its own instead."_s);
const QCommandLineOption charsetOption(u"charset"_s, u"The printer's code page, such as cp858."_s,
                                       u"name"_s, u"UTF-8"_s);
const QCommandLineOption
    paperOption(u"paper"_s,
                u"Keep each document in a folder: 0001.out as received, 0001.txt on paper."_s,
                u"folder"_s);
const QCommandLineOption jsonOption(u"json"_s, u"Write a JSON object for each event instead."_s);
const QCommandLineOption faultOption(u"fault"_s,
                                     u"Go wrong on purpose: "_s + faultNames()
                                         + u" (N bytes, RATE bytes a second)."_s,
                                     u"fault"_s);
const QCommandLineOption
    firstOption(u"first"_s, u"The first so many connections have the fault; all unless given."_s,
                u"number"_s);
const QCommandLineOption
    documentsOption(u"documents"_s,
                    u"End behind so many whole documents; on a signal unless given."_s,
                    u"number"_s);

/// The whole number from 1 on that an option has; nothing where it has another text.
std::optional<qint64> countOf(const QCommandLineParser &parser, const QCommandLineOption &option)
{
    bool isNumber = false;
    const qint64 number = parser.value(option).toLongLong(&isNumber);
    return isNumber && number >= 1 ? std::optional(number) : std::nullopt;
}

/// What is asked for that no run can do, in one line; empty where nothing is.
QString contradiction(const QCommandLineParser &parser, const Fault &fault)
{
    const bool onNetwork = fault.kind == Fault::Kind::Refuse || fault.kind == Fault::Kind::KeepOpen;
    if (!parser.positionalArguments().isEmpty())
        return u"no argument is taken; see --help"_s;
    if (parser.isSet(listenOption) && parser.isSet(ptyOption))
        return u"--listen and --pty exclude each other"_s;
    if (parser.isSet(ptyOption) && onNetwork)
        return u"a serial line has no fault "_s + fault.name + u"; leave out --pty"_s;
    if (parser.isSet(firstOption) && !parser.isSet(faultOption))
        return u"--first needs a --fault"_s;
    if (parser.isSet(firstOption) && fault.kind == Fault::Kind::Refuse)
        return u"connections that are refused cannot be counted; take --fault reset=0"_s;
    for (const auto &option : {firstOption, documentsOption}) {
        if (parser.isSet(option) && !countOf(parser, option))
            return u"--"_s + option.names().constFirst() + u" takes a whole number from 1 on"_s;
    }
    return {};
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"A printer without paper: takes command streams and shows what it would print."_s);
    parser.addOptions({listenOption, ptyOption, charsetOption, paperOption, jsonOption, faultOption,
                       firstOption, documentsOption});
    if (const auto status = readCommandLine(parser, arguments))
        return *status;

    Task task;
    if (parser.isSet(faultOption)) {
        const auto fault = faultNamed(parser.value(faultOption));
        if (!fault)
            return trouble(u"there is no fault \""_s + parser.value(faultOption)
                           + u"\"; take one of "_s + faultNames());
        task.fault = *fault;
    }
    if (const QString wrong = contradiction(parser, task.fault); !wrong.isEmpty())
        return trouble(wrong);
    task.faulty = countOf(parser, firstOption).value_or(task.faulty);
    task.documents = countOf(parser, documentsOption).value_or(0);
    const QString name = parser.value(charsetOption);
    const auto charset = recode::CodePage::named(name.toUtf8());
    if (!charset)
        return trouble(recode::noCodePage(name));

    Report report(parser.isSet(jsonOption), korvel::preview::wantsColours());
    Printer printer(*charset, parser.value(paperOption), report);
    if (!printer.prepare())
        return Trouble;
    using Kind = Fault::Kind;
    const bool takesLittle = task.fault.kind == Kind::Stall || task.fault.kind == Kind::Slow
                             || task.fault.kind == Kind::Deaf;
    const auto port = parser.isSet(ptyOption)
                          ? terminalPort()
                          : networkPort(parser.value(listenOption),
                                        {task.fault.kind == Kind::Refuse, takesLittle});
    QString error;
    if (!port->open(error))
        return trouble(error);
    Server(*port, printer, report, task).run();
    return report.isSound() && printer.isSound() ? Clean : Trouble;
}

} // namespace

} // namespace korvel::simulator

int main(int argc, char *argv[])
{
    prepareCompanion();
    const QCoreApplication application(argc, argv);
    return korvel::simulator::run(argumentsOf(argc, argv));
}
