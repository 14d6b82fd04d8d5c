// No byte before the journal's last write is synced; no "sent" before all is taken.
#include "torture/order.h"

#include "torture/calls.h"

namespace torture {

namespace {

bool isWriting(const Call &call)
{
    return call.number == SYS_write || call.number == SYS_writev || call.number == SYS_pwrite64
           || call.number == SYS_sendto || call.number == SYS_ftruncate
           || call.number == SYS_fallocate;
}

bool isSyncing(const Call &call)
{
    return call.number == SYS_fsync || call.number == SYS_fdatasync;
}

} // namespace

Order::Order(std::string journalPath, std::string devicePath)
    : journal(std::move(journalPath))
    , folder(journal.substr(0, journal.rfind('/')))
    , device(std::move(devicePath))
    , isNetwork(device.empty())
{
}

void Order::take(const Call &call)
{
    if (call.number == SYS_connect && call.toNetwork)
        device = call.path;
    if (!call.path.empty() && call.path == device)
        takeDevice(call);
    else
        takeJournal(call);
}

bool Order::isJournal(const std::string &path) const
{
    return path == journal || path == journal + "-journal" || path == journal + "-wal";
}

void Order::takeJournal(const Call &call)
{
    if (call.result < 0)
        return;
    if (isSyncing(call))
        unsynced.erase(call.path);
    if (!isJournal(call.path))
        return;
    if (call.number == SYS_openat && (call.arguments[2] & O_CREAT) != 0 && !hasSent)
        unsynced.insert(folder); // it may be new
    if (!isWriting(call))
        return;
    unsynced.insert(call.path);
    if (call.path == journal && call.bytes.find("sending") != std::string::npos)
        isAnnounced = true;
    if (hasSent && !isTaken)
        complain("something is recorded behind the first byte and before all are taken");
    isRecorded = isRecorded || hasSent;
}

void Order::takeDevice(const Call &call)
{
    if (call.result >= 0 && isWriting(call)) {
        if (!hasSent && !unsynced.empty())
            complain("a byte leaves before " + *unsynced.begin() + " is synced");
        if (!isAnnounced)
            complain("a byte leaves before it is written that it is being sent");
        hasSent = true;
        isTaken = false;
    }
    if (!hasSent || call.result < 0)
        return;
    isClosed = isClosed || call.number == SYS_shutdown;
    const bool isDrained = asksForBytes(call) && call.value == 0;
    const bool isLine = call.number == SYS_ioctl && call.arguments[1] == TCSBRK;
    if (isNetwork ? isClosed : isDrained || isLine || isSyncing(call))
        isTaken = true;
    if (isNetwork && isClosed && !wasAcknowledged)
        complain("our half is closed before all is acknowledged");
    wasAcknowledged = wasAcknowledged || isDrained;
}

std::string Order::end()
{
    if (!hasSent || !isTaken || !isRecorded)
        complain("no byte was seen to leave, to be taken and to be recorded");
    if (!unsynced.empty())
        complain(*unsynced.begin() + " is left without a sync");
    return wrong;
}

void Order::complain(const std::string &text)
{
    if (wrong.empty())
        wrong = text;
}

} // namespace torture
