// Addresses of this machine's own network, and ports of it that nobody has.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

/// An address there; port 0 is any free one.
inline sockaddr_in loopbackAt(in_port_t port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// Gives a socket a free port there; the port, or 0 where it gets none.
inline in_port_t bindToLoopback(int descriptor)
{
    sockaddr_in address = loopbackAt(0);
    socklen_t size = sizeof address;
    auto *const plain = reinterpret_cast<sockaddr *>(&address);
    if (::bind(descriptor, plain, size) != 0 || ::getsockname(descriptor, plain, &size) != 0)
        return 0;
    return ntohs(address.sin_port);
}
