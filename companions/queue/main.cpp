// korvel: the backend of CUPS that brings a stream to the printer, at most once.
#include "companions/queue/backend.h"
#include "companions/queue/supervisor.h"
#include "companions/shared/commandline.h"
#include "config/path.h"

#include <QCoreApplication>

#include <cups/backend.h>

#include <csignal>
#include <cstdlib>
#include <vector>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::queue {

namespace {

/**
 * CUPS starts a backend as the superuser where others may not start it. Then the owner of the
 * journal's folder goes on, with the groups that printers and serial lines belong to, so that the
 * filter and the backend are one user to the journal.
 */
bool becomeOwnerOfJournal()
{
    const QByteArray folder =
        path::toBytes(journalPath().section(u'/', 0, -2, QString::SectionIncludeTrailingSep));
    struct stat status = {};
    if (::geteuid() != 0 || ::stat(folder.constData(), &status) != 0 || status.st_uid == 0)
        return true;
    std::vector<gid_t> groups = {status.st_gid};
    for (const char *const name : {"lp", "dialout"}) {
        if (const group *const known = ::getgrnam(name))
            groups.push_back(known->gr_gid);
    }
    return ::setgroups(groups.size(), groups.data()) == 0 && ::setgid(status.st_gid) == 0
           && ::setuid(status.st_uid) == 0;
}

/// Waits until the filters have ended: what they say would stand in the place of the reason.
void ignoreStream()
{
    char bytes[4096];
    while (::read(STDIN_FILENO, &bytes[0], sizeof bytes) > 0) { }
}

int run(int argc, char *argv[])
{
    const pid_t caller = ::getppid();
    shared::prepareCompanion();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN); // a journal that may not grow is an error like others
    int none = 1;                  // what a job is called is no option of the toolkit's
    if (argc == 1) {
        const QCoreApplication application(none, argv);
        return listDevices();
    }
    QString error;
    const auto request = requestOf(shared::argumentsOf(argc, argv), error);
    if (request && request->id.isEmpty())
        error = u"the job has no job-uuid, by which it is sent at most once: print it without "
                "\"-o job-uuid=\""_s;
    if (!error.isEmpty()) {
        ignoreStream();
        tell(Level::Error, error);
        return CUPS_BACKEND_CANCEL;
    }
    if (!becomeOwnerOfJournal()) {
        tell(Level::Error,
             u"nothing was printed: the backend cannot become the owner of "_s + journalPath());
        return CUPS_BACKEND_STOP;
    }
    return supervised(
        caller,
        [&] {
            const QCoreApplication application(none, argv);
            return deliverJob(*request);
        },
        [&] { return deliveryLost(*request); });
}

} // namespace

} // namespace korvel::queue

int main(int argc, char *argv[]) { return korvel::queue::run(argc, argv); }
