// How a companion begins, who called it, and its command line: help, version, arguments.
#pragma once

#include <QCommandLineParser>
#include <QString>

#include <optional>

namespace korvel::shared {

/**
 * First thing of a companion's main: keeps what the toolkit has to say of locales and displays off
 * standard error, and closed standard streams closed, so that no file that is opened takes their
 * place. A file that may not grow is an error of its writer like others (SIGXFSZ), and how a child
 * ended is known, whatever the caller ignores (SIGCHLD).
 */
void prepareCompanion();

/// The arguments of main, as texts; paths among them lose nothing, see config/path.h.
QStringList argumentsOf(int argc, char *argv[]);

/// The name of the user who runs the program; his number where he has none.
QString userName();

/**
 * Reads the command line: adds --help and --version, and answers them.
 *
 * @param arguments with the program's name first
 * @return the status to end with at once, or nothing when the program goes on
 */
std::optional<int> readCommandLine(QCommandLineParser &parser, const QStringList &arguments);

} // namespace korvel::shared
