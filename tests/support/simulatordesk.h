// Runs korvel-printer-sim as a till's test does, and sends to it.
#pragma once

#include "support/built.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/loopback.h"
#include "support/program.h"
#include "support/streams.h"

#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

// What hangs is given up; nothing that works waits for it.
inline constexpr int simulatorPatience = 30000; // milliseconds

inline const QString anyPort = "--listen=127.0.0.1:0";

/// A simulator that runs, from its start until it says where it listens.
class Simulator
{
public:
    explicit Simulator(const QStringList &arguments)
    {
        process.start(built::printerSim, arguments);
        waitFor("listening");
    }

    ~Simulator()
    {
        process.kill();
        process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Simulator)

    /// Waits until a line holds a text so many times in all; what was said until then.
    QByteArray waitFor(const QByteArray &text, int times = 1)
    {
        const QDeadlineTimer deadline(simulatorPatience);
        qsizetype counted = 0; // bytes: the whole lines that were looked through
        qsizetype seen = 0;
        int found = 0;
        const auto isThere = [&] {
            const QByteArrayView all = said;
            if (const qsizetype feed = all.sliced(seen).lastIndexOf('\n'); feed >= 0) {
                const qsizetype whole = seen + feed + 1;
                found += int(all.sliced(counted, whole - counted).count(text));
                counted = whole;
            }
            seen = all.size();
            return found >= times;
        };
        while (!isThere() && !deadline.hasExpired() && process.state() != QProcess::NotRunning) {
            process.waitForReadyRead(100);
            said += process.readAllStandardOutput();
        }
        said += process.readAllStandardOutput();
        return said;
    }

    /// Where it listens: what stands behind the last "listening on".
    QString place()
    {
        const QString text = QString::fromUtf8(said);
        const qsizetype at = text.lastIndexOf("listening on ");
        return text.sliced(at).section('\n', 0, 0).section(' ', -1);
    }

    quint16 port() { return place().section(':', -1).toUShort(); }
    qint64 id() const { return process.processId(); }

    /// Ends it by a signal.
    Run end(int signal = SIGTERM)
    {
        if (process.processId() > 0) // 0 would be this test and all around it
            ::kill(static_cast<pid_t>(process.processId()), signal);
        return finish();
    }

    /// Waits for its end.
    Run finish()
    {
        Run run;
        run.exited =
            (process.state() == QProcess::NotRunning || process.waitForFinished(simulatorPatience))
            && process.exitStatus() == QProcess::NormalExit;
        run.status = process.exitCode();
        run.standardOutput = said + process.readAllStandardOutput();
        run.standardError = process.readAllStandardError();
        return run;
    }

private:
    QProcess process;
    QByteArray said;
};

/// What a sender met at the end: the printer closed its side, an error, or nothing.
enum class Met { End, Reset, Nothing, Other };

/// A sender over the network.
class Sender
{
public:
    explicit Sender(quint16 port)
        : descriptor(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        const sockaddr_in address = loopbackAt(port);
        if (::connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address)
            != 0)
            error = errno;
    }
    ~Sender() { ::close(descriptor); }
    Q_DISABLE_COPY_MOVE(Sender)

    /// Hands bytes over, as far as they are taken within a moment; how many were.
    qsizetype send(QByteArrayView bytes, int moment = simulatorPatience)
    {
        qsizetype taken = 0;
        pollfd polled{descriptor, POLLOUT, 0};
        while (taken < bytes.size() && ::poll(&polled, 1, moment) == 1) {
            const ssize_t count =
                ::send(descriptor, bytes.data() + taken,
                       static_cast<std::size_t>(bytes.size() - taken), MSG_NOSIGNAL | MSG_DONTWAIT);
            wasReset = wasReset || (count < 0 && errno == ECONNRESET); // which is told only once
            if (count <= 0)
                break;
            taken += count;
        }
        return taken;
    }

    void finish() const { ::shutdown(descriptor, SHUT_WR); }

    /// What comes from the printer, waited for so long.
    Met meets(int milliseconds = simulatorPatience) const
    {
        pollfd polled{descriptor, POLLIN, 0};
        if (wasReset)
            return Met::Reset;
        if (::poll(&polled, 1, milliseconds) != 1)
            return Met::Nothing;
        char byte = 0;
        const ssize_t count = ::recv(descriptor, &byte, 1, 0);
        if (count == 0)
            return Met::End;
        return count < 0 && errno == ECONNRESET ? Met::Reset : Met::Other;
    }

    const int descriptor;
    int error = 0; // of connecting

private:
    bool wasReset = false;
};

/// Sends a stream as a till does, and waits for what the printer does then.
inline Met deliver(quint16 port, QByteArrayView stream)
{
    Sender sender(port);
    sender.send(stream);
    sender.finish();
    return sender.meets();
}

/// The events of a run with --json; an object that is none is empty.
inline QList<QJsonObject> eventsOf(const QByteArray &output, const QString &kind = {})
{
    QList<QJsonObject> events;
    for (const QByteArray &line : output.trimmed().split('\n')) {
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        if (kind.isEmpty() || object["event"] == kind)
            events.append(object);
    }
    return events;
}

/// The lines of a run that are not the paper.
inline QStringList remarksOf(const QByteArray &output)
{
    QStringList remarks;
    for (const QString &line : QString::fromUtf8(output).split('\n', Qt::SkipEmptyParts))
        if (!QString("┌│┊├└").contains(line.front()))
            remarks.append(line);
    return remarks;
}

/// Fails the test unless a simulator ended by itself, with this status and nothing on standard
/// error.
#define VERIFY_SIMULATED(run)                                                                      \
    do {                                                                                           \
        const Run &simulated = (run);                                                              \
        QVERIFY2(simulated.exited, simulated.standardError.constData());                           \
        QCOMPARE(linesOf(simulated.standardError), QStringList());                                 \
        QCOMPARE(simulated.status, 0);                                                             \
    } while (false)
