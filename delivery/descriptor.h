// A file descriptor that is closed when it goes, and waiting for one.
#pragma once

#include <QDeadlineTimer>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <poll.h>
#include <unistd.h>

namespace korvel::delivery {

class Descriptor
{
public:
    explicit Descriptor(int number = -1)
        : fd(number)
    {
    }
    Descriptor(Descriptor &&other) noexcept
        : fd(std::exchange(other.fd, -1))
    {
    }
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(fd, other.fd);
        return *this;
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (fd >= 0)
            ::close(fd);
    }

    [[nodiscard]] bool isOpen() const { return fd >= 0; }
    [[nodiscard]] int number() const { return fd; }

private:
    int fd;
};

/// Calls a function of the system until no signal interrupts it.
template<typename Call>
auto uninterrupted(const Call &call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/// Waits until poll() has something to tell of a descriptor; what it tells, 0 when it is too late.
inline short waitFor(const Descriptor &descriptor, short events, const QDeadlineTimer &deadline)
{
    pollfd polled{descriptor.number(), events, 0};
    const int count = uninterrupted([&] {
        const qint64 left = deadline.remainingTime();
        constexpr qint64 longest = 60'000;
        return ::poll(&polled, 1, static_cast<int>(left < 0 ? longest : std::min(left, longest)));
    });
    return count > 0 ? polled.revents : short(0);
}

} // namespace korvel::delivery
