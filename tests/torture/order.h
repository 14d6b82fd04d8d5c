// The order of writing, syncing and sending, read from the calls of a delivery: what a power cut at
// any moment would leave.
#pragma once

#include "torture/tracer.h"

#include <set>
#include <string>

namespace torture {

class Order
{
public:
    /// @param devicePath what a descriptor of the device is open on; empty for the network
    Order(std::string journalPath, std::string devicePath);

    void take(const Call &call);

    /// What is wrong, in one line; empty when nothing is.
    std::string end();

private:
    void takeJournal(const Call &call);
    void takeDevice(const Call &call);
    [[nodiscard]] bool isJournal(const std::string &path) const;
    void complain(const std::string &text);

    const std::string journal;
    const std::string folder; // that names the journal's files
    std::string device;       // path of its descriptors, known for the network when it connects
    const bool isNetwork;

    std::set<std::string> unsynced; // files of the journal, and their folder
    bool isAnnounced = false;       // "sending" was written
    bool hasSent = false;           // a byte
    bool isTaken = false;           // all of them
    bool wasAcknowledged = false;   // all of them, by the network
    bool isClosed = false;          // our half of a connection
    bool isRecorded = false;        // something was written to the journal behind it
    std::string wrong;
};

} // namespace torture
