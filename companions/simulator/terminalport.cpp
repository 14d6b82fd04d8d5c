// A pseudo terminal, which a till opens as its serial line.
#include "companions/simulator/port.h"

#include <array>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::simulator {

namespace {

class TerminalPort : public Port
{
public:
    TerminalPort() = default;
    ~TerminalPort() override
    {
        if (master >= 0)
            ::close(master);
    }
    Q_DISABLE_COPY_MOVE(TerminalPort)

    bool open(QString &error) override
    {
        std::array<char, 64> name{};
        master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
        if (master < 0 || ::grantpt(master) != 0 || ::unlockpt(master) != 0
            || ::ptsname_r(master, name.data(), name.size()) != 0 || !setUp()) {
            error = u"no pseudo terminal can be had: "_s + qt_error_string();
            return false;
        }
        path = QString::fromLatin1(name.data());
        return true;
    }

    [[nodiscard]] QString place() const override { return path; }
    [[nodiscard]] QJsonObject details() const override { return {{u"pty"_s, path}}; }
    [[nodiscard]] int descriptor() const override { return master; }

    /// As long as nobody has the line open there is nothing to read, but an end to be seen.
    std::optional<Connection> accept() override
    {
        pollfd polled{master, POLLIN, 0};
        if (::poll(&polled, 1, 0) != 1 || (polled.revents & POLLIN) == 0)
            return {};
        return Connection{master, {}};
    }

    [[nodiscard]] bool isLine() const override { return true; }

    bool part(const Connection &connection, Parting how) override
    {
        if (how == Parting::Reset) {
            // As if the adapter were unplugged; the next one has another name.
            ::close(master);
            QString error;
            if (!open(error))
                master = -1;
            return true;
        }
        // What nobody read is not for the next sender.
        std::array<char, 4096> rest;
        while (::read(connection.descriptor, rest.data(), rest.size()) > 0) { }
        return false;
    }

private:
    /// Raw, 9600 baud, 8 bits, no parity, one stop bit, on the side that is opened.
    [[nodiscard]] bool setUp() const
    {
        termios settings = {};
        if (::tcgetattr(master, &settings) != 0)
            return false;
        ::cfmakeraw(&settings);
        settings.c_cflag |= CLOCAL | CREAD;
        settings.c_cflag &= ~static_cast<tcflag_t>(CSTOPB);
        return ::cfsetspeed(&settings, B9600) == 0 && ::tcsetattr(master, TCSANOW, &settings) == 0;
    }

    int master = -1;
    QString path;
};

} // namespace

std::unique_ptr<Port> terminalPort() { return std::make_unique<TerminalPort>(); }

} // namespace korvel::simulator
