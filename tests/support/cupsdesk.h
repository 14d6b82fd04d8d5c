// A cupsd of the test's own, with this system's driver in it, in a folder of its own.
#pragma once

#include "support/built.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/keptport.h"
#include "support/program.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cups/cups.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <memory>

#include <pwd.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

// What hangs is given up; nothing that works waits for it.
inline constexpr int queuePatience = 60000; // milliseconds

/// Waits until something holds; whether it did in time.
inline bool waitUntil(const std::function<bool()> &holds)
{
    const QDeadlineTimer deadline(queuePatience);
    while (!holds()) {
        if (deadline.hasExpired())
            return false;
        QTest::qWait(20);
    }
    return true;
}

/// What CUPS says of a job.
struct JobState
{
    ipp_jstate_t state = ipp_jstate_t(0); // 0: there is no such job
    QString message;                      // as lpstat shows it
};

/**
 * A print server and the folder that it works in. Run by the superuser, it runs filters and
 * backends as the user lp, as an installed one does; run by another user, as that user.
 */
class CupsDesk
{
public:
    CupsDesk()
    {
        for (const char *name :
             {"root/ppd", "bin/backend", "bin/filter", "data/mime", "data/model", "cache",
              "spool/tmp", "state", "log", "settings/queues", "journal"})
            QDir(folder.path()).mkpath(name);
        ::chmod(qPrintable(folder.path()), 0755);
        for (const auto &[from, to] : files()) {
            const QByteArray target = QFile::encodeName(path(to));
            if (::link(QFile::encodeName(from), target) != 0 && !QFile::copy(from, path(to)))
                qFatal("%s is not there", qPrintable(from));
        }
        for (const char *name : {"daemon", "notifier"})
            QFile::link("/usr/lib/cups/" + QString(name), path("bin/" + QString(name)));
        giveToServer("journal");
        writeFile(path("cups-files.conf"), placesConfiguration());
        writeFile(path("cupsd.conf"), serverConfiguration());
    }
    ~CupsDesk()
    {
        stop();
        for (const pid_t left : processesOf("bin/backend/korvel"))
            ::kill(left, SIGKILL);
    }
    Q_DISABLE_COPY_MOVE(CupsDesk)

    /// Why there can be no server here; empty where there can.
    static QString missing()
    {
        for (const char *name : {"/usr/sbin/cupsd", "/usr/bin/lp", "/usr/sbin/lpadmin",
                                 "/usr/lib/cups/daemon/cups-driverd"}) {
            if (!QFile::exists(name))
                return QString(name) + " is not there: install the packages cups and cups-client";
        }
        return {};
    }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] QString journalPath() const { return path("journal/journal.db"); }
    [[nodiscard]] QString uri(const QString &queue) const
    {
        return "ipp://" + port.address() + "/printers/" + queue;
    }

    void start()
    {
        // A test that breaks off takes its server along.
        server.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        server.start("/usr/sbin/cupsd",
                     {"-f", "-c", path("cupsd.conf"), "-s", path("cups-files.conf")});
        if (!waitUntil(
                [&] { return run("lpstat", {"-r"}).standardOutput.contains(" is running"); }))
            qFatal("cupsd does not start");
    }

    /// Ends the server, in order or by another signal; what it started may live on.
    void stop(int signal = SIGTERM)
    {
        if (server.state() == QProcess::NotRunning)
            return;
        ::kill(pid_t(server.processId()), signal);
        server.waitForFinished(queuePatience);
    }

    [[nodiscard]] qint64 serverId() const { return server.processId(); }

    /// Runs a client of this server.
    [[nodiscard]] Run run(const QString &program, const QStringList &arguments) const
    {
        const QString found = QStandardPaths::findExecutable(program, {"/usr/bin", "/usr/sbin"});
        return runProgram(found, arguments,
                          {folder.path(), {"CUPS_SERVER=" + socket(), "LC_ALL=C.UTF-8"}, {}});
    }

    /// Makes a queue with the driver.
    void addQueue(const QString &name, const QString &device, const QStringList &options = {}) const
    {
        QStringList arguments = {"-p", name, "-E", "-v", device, "-m", "korvel.ppd"};
        for (const QString &option : options)
            arguments += {"-o", option};
        const Run added = run("lpadmin", arguments);
        if (added.status != 0)
            qFatal("no queue: %s", added.standardError.constData());
    }

    /// Makes a queue that hands jobs on to another server as they are.
    void addRawQueue(const QString &name, const QString &target) const
    {
        const Run added = run("lpadmin", {"-p", name, "-E", "-v", target, "-m", "raw", "-o",
                                          "printer-error-policy=retry-current-job"});
        if (added.status != 0)
            qFatal("no queue: %s", added.standardError.constData());
    }

    /// Prints by lp; the job as CUPS calls it, empty where it did not take it.
    [[nodiscard]] QString print(const QString &queue, const QStringList &arguments) const
    {
        static const QRegularExpression id("request id is (\\S+)");
        const Run printed = run("lp", QStringList{"-d", queue} + arguments);
        return id.match(QString::fromUtf8(printed.standardOutput)).captured(1);
    }

    [[nodiscard]] JobState job(const QString &name) const
    {
        const QString target = "ipp://localhost/jobs/" + name.section('-', -1);
        ipp_t *const request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
                     qPrintable(target));
        JobState job;
        ask(request, "/jobs/", [&](ipp_t *answer) {
            if (const auto *state = ippFindAttribute(answer, "job-state", IPP_TAG_ENUM))
                job.state = ipp_jstate_t(ippGetInteger(const_cast<ipp_attribute_t *>(state), 0));
            if (auto *said = ippFindAttribute(answer, "job-printer-state-message", IPP_TAG_TEXT))
                job.message = ippGetString(said, 0, nullptr);
        });
        return job;
    }

    /// Waits until a job is in a state; the state that it is in at last, with its message.
    [[nodiscard]] JobState waitFor(const QString &name, ipp_jstate_t state) const
    {
        waitUntil([&] { return job(name).state == state; });
        return job(name);
    }

    /// What is shown of a queue.
    [[nodiscard]] QString shown(const QString &queue) const
    {
        return QString::fromUtf8(run("lpstat", {"-l", "-p", queue}).standardOutput);
    }

    [[nodiscard]] QByteArray errorLog() const { return bytesOf(path("log/error")); }

    [[nodiscard]] Run journal(const QStringList &arguments) const
    {
        return runProgram(built::journal, QStringList{"--journal", journalPath()} + arguments,
                          {folder.path(), {}, {}});
    }

    /// The state of a job's document in the journal, or the document of a copy.
    [[nodiscard]] QByteArray stateOf(const QString &name, const QString &copy = {}) const
    {
        const QByteArray id = idOf(name) + copy.toUtf8();
        for (const QByteArray &line : journal({"list"}).standardOutput.split('\n')) {
            const QList<QByteArray> words = line.simplified().split(' ');
            if (words.value(3) == id)
                return words.value(2);
        }
        return {};
    }

    /// The id of a job's document.
    [[nodiscard]] QByteArray idOf(const QString &name) const
    {
        const QString target = "ipp://localhost/jobs/" + name.section('-', -1);
        ipp_t *const request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
                     qPrintable(target));
        QByteArray id;
        ask(request, "/jobs/", [&](ipp_t *answer) {
            if (auto *uuid = ippFindAttribute(answer, "job-uuid", IPP_TAG_URI))
                id = ippGetString(uuid, 0, nullptr);
        });
        return id;
    }

    /// The processes of one of its programs, such as "bin/backend/korvel", each behind its parent.
    [[nodiscard]] QList<pid_t> processesOf(const QString &program) const
    {
        QList<pid_t> all;
        for (const QString &id : QDir("/proc").entryList({"[1-9]*"}, QDir::Dirs)) {
            if (QFile::symLinkTarget("/proc/" + id + "/exe") == path(program))
                all.append(id.toInt());
        }
        std::sort(all.begin(), all.end());
        return all;
    }

    /// Makes a folder the user's whom filters and backends run as.
    void giveToServer(const QString &name) const
    {
        const passwd *const lp = ::geteuid() == 0 ? ::getpwnam("lp") : nullptr;
        if (lp && ::chown(qPrintable(path(name)), lp->pw_uid, lp->pw_gid) != 0)
            qFatal("%s cannot be given away", qPrintable(name));
    }

private:
    static QList<std::pair<QString, QString>> files()
    {
        return {
            {built::print, "bin/filter/korvel-print"},
            {built::filter, "bin/filter/jobtokorvel"},
            {built::backend, "bin/backend/korvel"},
            {"/usr/lib/cups/backend/ipp", "bin/backend/ipp"},
            {"/usr/lib/cups/filter/gziptoany", "bin/filter/gziptoany"},
            {"/usr/share/cups/mime/mime.types", "data/mime/mime.types"},
            {"/usr/share/cups/mime/mime.convs", "data/mime/mime.convs"},
            {KORVEL_SOURCE_DIR "/companions/queue/korvel.types", "data/mime/korvel.types"},
            {KORVEL_SOURCE_DIR "/companions/queue/korvel.convs", "data/mime/korvel.convs"},
            {built::path("/companions/queue/korvel.ppd"), "data/model/korvel.ppd"},
            {KORVEL_SOURCE_DIR "/examples/korvel.conf", "settings/korvel.conf"},
        };
    }

    [[nodiscard]] QString socket() const { return path("socket"); }

    [[nodiscard]] QByteArray placesConfiguration() const
    {
        const QList<std::pair<QString, QString>> places = {
            {"ServerRoot", "root"},      {"ServerBin", "bin"},     {"DataDir", "data"},
            {"CacheDir", "cache"},       {"RequestRoot", "spool"}, {"TempDir", "spool/tmp"},
            {"StateDir", "state"},       {"DocumentRoot", "data"}, {"ErrorLog", "log/error"},
            {"AccessLog", "log/access"}, {"PageLog", "log/page"},
        };
        QByteArray text;
        for (const auto &[name, place] : places)
            text += (name + ' ' + path(place) + '\n').toUtf8();
        text += "SetEnv KORVEL_JOURNAL " + journalPath().toUtf8() + '\n';
        text += "SetEnv KORVEL_SETTINGS_DIR " + path("settings").toUtf8() + '\n';
        if (::geteuid() == 0)
            text += "User lp\nGroup lp\nSystemGroup root\n";
        return text;
    }

    /// Whoever reaches it may do all; in a folder of the test's own and on the loopback.
    [[nodiscard]] QByteArray serverConfiguration() const
    {
        return "Listen " + socket().toUtf8() + "\nListen " + port.address().toUtf8() + R"(
LogLevel debug
MaxLogSize 0
WebInterface No
Browsing Off
DefaultAuthType None
DirtyCleanInterval 0
JobRetryInterval 1
<Location />
    Order allow,deny
    Allow all
</Location>
<Policy default>
    JobPrivateAccess all
    JobPrivateValues none
    SubscriptionPrivateAccess all
    SubscriptionPrivateValues none
    <Limit All>
        Order deny,allow
    </Limit>
</Policy>
)";
    }

    /// Sends a request to the server, and gives its answer to somebody.
    void ask(ipp_t *request, const char *resource, const std::function<void(ipp_t *)> &take) const
    {
        http_t *const connection = httpConnect2(qPrintable(socket()), 0, nullptr, AF_UNSPEC,
                                                HTTP_ENCRYPTION_IF_REQUESTED, 1, 10000, nullptr);
        if (!connection) {
            ippDelete(request);
            return;
        }
        ipp_t *const answer = cupsDoRequest(connection, request, resource);
        take(answer);
        ippDelete(answer);
        httpClose(connection);
    }

    const QTemporaryDir folder;
    const KeptPort port;
    QProcess server;
};

/// Fails the test unless a job comes into a state, with a text in its message.
#define VERIFY_JOB(desk, name, expectedState, expectedText)                                        \
    do {                                                                                           \
        const JobState its = (desk).waitFor((name), (expectedState));                              \
        QVERIFY2(its.state == (expectedState),                                                     \
                 qPrintable(QString::number(its.state) + ": " + its.message));                     \
        QVERIFY2(its.message.contains(expectedText), qPrintable(its.message));                     \
    } while (false)
