// Printers of each kind, read in a thread of their own.
#include "torture/papers.h"

#include "support/loopback.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace torture {

namespace {

constexpr char newPage = '\f';

/// Reads what comes at descriptors as it comes.
class ReadPaper : public Paper
{
public:
    ~ReadPaper() override
    {
        for (const int descriptor : open)
            ::close(descriptor);
    }

    std::string all() override
    {
        // Whoever sent is gone: what is under way is a matter of moments. Three of them without
        // anything new, and nothing open but what always is, is the end.
        for (int quiet = 0; quiet < 3;) {
            const std::lock_guard lock(mutex);
            quiet = readOnce() || open.size() > kept ? 0 : quiet + 1;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        const std::lock_guard lock(mutex);
        return paper;
    }

protected:
    /// @param listening whether the descriptor gives others, one for each sender
    void begin(int descriptor, bool listening)
    {
        open = {descriptor};
        isListener = listening;
        reader = std::thread([this] {
            while (!isOver) {
                {
                    const std::lock_guard lock(mutex);
                    readOnce();
                }
                std::this_thread::sleep_for(std::chrono::microseconds(200));
            }
        });
    }

    /// To be called before anything of a derived class goes.
    void end()
    {
        isOver = true;
        reader.join();
    }

private:
    /// Takes what is there; whether anything was.
    bool readOnce()
    {
        bool any = false;
        for (std::size_t i = open.size(); i-- > 0;) {
            pollfd polled{open[i], POLLIN, 0};
            if (::poll(&polled, 1, 0) != 1 || (polled.revents & (POLLIN | POLLERR)) == 0)
                continue;
            any = true;
            if (isListener && i == 0)
                open.push_back(::accept4(open[i], nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
            else
                any = take(i);
        }
        return any;
    }

    bool take(std::size_t i)
    {
        std::array<char, 4096> bytes;
        const ssize_t count = ::read(open[i], bytes.data(), bytes.size());
        if (count > 0)
            paper.append(bytes.data(), std::size_t(count));
        else if (isListener && !(count < 0 && errno == EAGAIN)) {
            paper += newPage;
            ::close(open[i]);
            open.erase(open.begin() + std::ptrdiff_t(i));
        }
        return count > 0 || isListener;
    }

    static constexpr std::size_t kept = 1;

    std::mutex mutex;
    std::vector<int> open; // the first is always open
    bool isListener = false;
    std::string paper;
    std::atomic<bool> isOver = false;
    std::thread reader;
};

class NetworkPaper : public ReadPaper
{
public:
    NetworkPaper()
    {
        const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        port = bindToLoopback(listener);
        if (port == 0 || ::listen(listener, SOMAXCONN) != 0)
            std::abort();
        begin(listener, true);
    }
    ~NetworkPaper() override { end(); }

    [[nodiscard]] std::string device() const override
    {
        return "tcp://127.0.0.1:" + std::to_string(port);
    }
    [[nodiscard]] std::string path() const override { return {}; }

private:
    int port = 0;
};

class FifoPaper : public ReadPaper
{
public:
    explicit FifoPaper(const std::string &folder)
        : name(folder + "/fifo")
    {
        if (::mkfifo(name.c_str(), 0600) != 0)
            std::abort();
        begin(::open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC), false);
    }
    ~FifoPaper() override
    {
        end();
        ::unlink(name.c_str());
    }

    [[nodiscard]] std::string device() const override { return name; }
    [[nodiscard]] std::string path() const override { return name; }

private:
    const std::string name;
};

/// A serial line; the test keeps its other end open, too.
class LinePaper : public ReadPaper
{
public:
    LinePaper()
    {
        const int line = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
        if (line < 0 || ::grantpt(line) != 0 || ::unlockpt(line) != 0)
            std::abort();
        name = ::ptsname(line);
        other = ::open(name.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        begin(line, false);
    }
    ~LinePaper() override
    {
        end();
        ::close(other);
    }

    [[nodiscard]] std::string device() const override { return "serial:" + name + "?baud=9600"; }
    [[nodiscard]] std::string path() const override { return name; }

private:
    std::string name;
    int other = -1;
};

class FilePaper : public Paper
{
public:
    explicit FilePaper(const std::string &folder)
        : name(folder + "/paper")
    {
    }
    ~FilePaper() override { ::unlink(name.c_str()); }

    [[nodiscard]] std::string device() const override { return "file:" + name; }
    [[nodiscard]] std::string path() const override { return name; }
    std::string all() override
    {
        std::ifstream file(name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    const std::string name;
};

} // namespace

std::unique_ptr<Paper> paperOf(const std::string &kind, const std::string &folder)
{
    if (kind == "tcp")
        return std::make_unique<NetworkPaper>();
    if (kind == "fifo")
        return std::make_unique<FifoPaper>(folder);
    if (kind == "line")
        return std::make_unique<LinePaper>();
    if (kind == "file")
        return std::make_unique<FilePaper>(folder);
    return nullptr;
}

int copiesOn(const std::string &paper, const std::string &document)
{
    int copies = 0;
    for (std::size_t at = paper.find(document); at != std::string::npos;
         at = paper.find(document, at + document.size()))
        ++copies;
    return copies;
}

} // namespace torture
