// A port of this machine's own network that is a test's as long as it wants it.
#pragma once

#include "support/loopback.h"

#include <QString>

#include <unistd.h>

/**
 * A port that no other socket is given meanwhile: tests run beside each other, and a job for a
 * printer that is off must not meet the next printer that another test switches on. A server that
 * sets SO_REUSEADDR, as servers do, can listen there; as long as none does, senders are refused.
 */
class KeptPort
{
public:
    KeptPort()
        : descriptor(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        const int on = 1;
        ::setsockopt(descriptor, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        port = bindToLoopback(descriptor);
        if (port == 0)
            qFatal("no free port");
    }
    ~KeptPort() { ::close(descriptor); }
    Q_DISABLE_COPY_MOVE(KeptPort)

    /// Its number behind the host, as programs take it.
    [[nodiscard]] QString address() const { return "127.0.0.1:" + QString::number(port); }

private:
    const int descriptor;
    in_port_t port = 0;
};
