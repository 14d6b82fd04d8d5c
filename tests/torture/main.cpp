// korvel-torture: kills a delivery before each call that changes something, and looks at the paper.
//
//   korvel-torture FOLDER DEVICE HARM [SAMPLES]
//
// FOLDER   an empty one to work in; it has the program's places, see below
// DEVICE   tcp, fifo, file or line
// HARM     alone: the process that makes the call is killed; all: every process of the delivery;
//          EIO, ENOSPC, EINTR: the call fails instead; order: nothing is done, and the order of
//          writing, syncing and sending is looked at
// SAMPLES  how many of the calls, evenly spread; all unless given
//
// KORVEL_DELIVER, KORVEL_JOURNAL and KORVEL_PRINT in the environment are the programs,
// KORVEL_EXAMPLES is the folder of the sample shop.
#include "torture/order.h"
#include "torture/papers.h"
#include "torture/tracer.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace torture;

namespace {

enum Status { Sent = 0, Refused = 1, NotPossible = 2, NotSent = 3, InDoubt = 4 };

struct Broken : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

void require(bool holds, const std::string &promise)
{
    if (!holds)
        throw Broken(promise);
}

std::string fromEnvironment(const char *name)
{
    const char *const value = std::getenv(name);
    if (!value)
        throw std::runtime_error(std::string(name) + " is not set");
    return value;
}

std::string contentOf(const fs::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Ran
{
    int status = -1;
    std::string said;
};

/// Runs a program as it is, and keeps what it says.
Ran run(const std::vector<std::string> &command)
{
    int ends[2] = {};
    if (::pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    const pid_t child = ::fork();
    if (child == 0) {
        std::vector<char *> arguments;
        for (const std::string &argument : command)
            arguments.push_back(const_cast<char *>(argument.c_str()));
        arguments.push_back(nullptr);
        ::dup2(ends[1], STDOUT_FILENO);
        ::dup2(ends[1], STDERR_FILENO);
        ::close(ends[0]);
        ::close(ends[1]);
        ::execv(arguments.front(), arguments.data());
        ::_exit(127);
    }
    ::close(ends[1]);
    Ran ran;
    char bytes[4096];
    for (ssize_t count = 0; (count = ::read(ends[0], bytes, sizeof bytes)) > 0;)
        ran.said.append(bytes, std::size_t(count));
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    ran.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return ran;
}

/// A shop with a printer and a journal, in which one document is delivered again and again.
class Shop
{
public:
    Shop(fs::path place, std::string kindOfDevice)
        : folder(std::move(place))
        , kind(std::move(kindOfDevice))
        , examples(fromEnvironment("KORVEL_EXAMPLES"))
        , job(examples / "jobs/receipt.xml")
    {
        fs::create_directories(folder / "home/.korvel/conf");
        fs::create_directories(folder / "tmp");
        fs::copy_file(examples / "korvel.conf", folder / "home/.korvel/conf/korvel.conf",
                      fs::copy_options::overwrite_existing);
        ::setenv("HOME", (folder / "home").c_str(), 1);
        ::setenv("TMPDIR", (folder / "tmp").c_str(), 1);
        const fs::path stream = folder / "stream";
        require(run({fromEnvironment("KORVEL_PRINT"), job, stream}).status == 0, "no stream");
        document = contentOf(stream);
        require(!document.empty(), "an empty stream");
    }

    /// A fresh journal and a fresh printer.
    void begin()
    {
        paper = nullptr;
        fs::remove(journal());
        fs::remove(journal() + "-journal");
        fs::remove_all(folder / "tmp");
        fs::create_directories(folder / "tmp");
        paper = paperOf(kind, folder);
        if (!paper)
            throw std::runtime_error("no device " + kind);
    }

    [[nodiscard]] std::string journal() const { return folder / "journal.db"; }
    [[nodiscard]] Paper &printer() const { return *paper; }

    [[nodiscard]] std::vector<std::string> delivery() const
    {
        return {fromEnvironment("KORVEL_DELIVER"),
                "--to",
                paper->device(),
                "--id",
                "till1-118",
                "--journal",
                journal(),
                "--timeout",
                "5",
                job};
    }

    [[nodiscard]] Ran ask(std::vector<std::string> what) const
    {
        what.insert(what.begin(), {fromEnvironment("KORVEL_JOURNAL"), "--journal", journal()});
        return run(what);
    }

    [[nodiscard]] int copies() const { return copiesOn(paper->all(), document); }

    /// What a first run that was harmed may say of itself.
    void judge(const Traced &first) const
    {
        const int copiesNow = copies();
        require(copiesNow <= 1, "two copies by one call");
        const bool saysSent =
            ask({"list", "--state", "sent"}).said.find("till1-118") != std::string::npos;
        require(!saysSent || copiesNow == 1, "the journal says sent, and it is not on paper");
        if (!first.exited)
            return;
        require(first.status >= Sent && first.status <= InDoubt, "an exit status that is none");
        require(first.status != Sent || copiesNow == 1, "it says sent, and it is not on paper");
        require(first.status == Sent || first.status == InDoubt
                    || paper->all().find_first_not_of('\f') == std::string::npos,
                "it says that nothing was sent, and something is on paper");
    }

    /// Calls again until it is sent, as a till and a cashier would, and once more.
    void finish() const
    {
        constexpr int mostCalls = 6;
        Ran last;
        for (int calls = 0; calls < mostCalls && last.status != Sent; ++calls) {
            last = run(delivery());
            require(copies() <= 1, "a second copy");
            require(last.status == Sent || last.status == NotSent || last.status == InDoubt,
                    "a call in order ends with " + std::to_string(last.status) + ": " + last.said);
            if (last.status == InDoubt) {
                const Ran said =
                    ask({"resolve", "till1-118", copies() == 1 ? "printed" : "not-printed"});
                require(said.status == 0, "not resolved: " + said.said);
            }
        }
        require(last.status == Sent, "it is never sent: " + last.said);
        require(copies() == 1, "it says sent, and it is not on paper");
        last = run(delivery());
        require(last.status == Sent && last.said.find("already sent") != std::string::npos,
                "called once more: " + last.said);
        require(copies() == 1, "a second copy by one call more");
        const Ran verified = ask({"verify"});
        require(verified.status == 0, "the journal is broken: " + verified.said);
    }

private:
    const fs::path folder;
    const std::string kind;
    const fs::path examples;
    const fs::path job;
    std::string document;
    std::unique_ptr<Paper> paper;
};

Harm harmOf(const std::string &name)
{
    static const std::map<std::string, Harm> all = {
        {"alone", {Harm::Kind::KillAlone, 0, 0}}, {"all", {Harm::Kind::KillAll, 0, 0}},
        {"EIO", {Harm::Kind::Fail, 0, EIO}},      {"ENOSPC", {Harm::Kind::Fail, 0, ENOSPC}},
        {"EINTR", {Harm::Kind::Fail, 0, EINTR}},
    };
    const auto found = all.find(name);
    if (found == all.end())
        throw std::runtime_error("no harm " + name);
    return found->second;
}

/// Delivers undisturbed and looks at the order of what is done; the calls that change something.
long lookAtOrder(Shop &shop)
{
    shop.begin();
    Order order(shop.journal(), shop.printer().path());
    const Traced traced =
        trace(shop.delivery(), Harm(), [&](const Call &call) { order.take(call); });
    require(traced.exited && traced.status == Sent, "an undisturbed delivery does not succeed");
    const std::string wrong = order.end();
    require(wrong.empty(), wrong);
    shop.judge(traced);
    shop.finish();
    return traced.changes;
}

/// Harms a delivery at one call; whether it got so far.
bool harmOnce(Shop &shop, Harm harm, long before)
{
    harm.before = before;
    shop.begin();
    const Traced traced = trace(shop.delivery(), harm);
    try {
        require(!traced.hangs, "it hangs");
        shop.judge(traced);
        shop.finish();
    } catch (const Broken &broken) {
        throw Broken("before call " + std::to_string(before) + ", " + traced.harmed + ", status "
                     + std::to_string(traced.status) + ": " + broken.what());
    }
    return traced.isHarmed;
}

int torment(const std::string &folder, const std::string &device, const std::string &harm,
            long samples)
{
    Shop shop(folder, device);
    if (harm == "order") {
        std::printf("%s: in order, %ld calls that change something\n", device.c_str(),
                    lookAtOrder(shop));
        return 0;
    }
    const Harm kind = harmOf(harm);
    long step = 1;
    if (samples > 0) {
        shop.begin();
        step = std::max(1L, trace(shop.delivery(), Harm()).changes / samples);
    }
    long count = 0;
    for (long before = 1; harmOnce(shop, kind, before); before += step)
        ++count;
    std::printf("%s, %s: %ld runs harmed, no second copy, none lost\n", device.c_str(),
                harm.c_str(), count);
    return count > 0 ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 4 && argc != 5) {
        std::fprintf(stderr, "usage: korvel-torture FOLDER DEVICE HARM [SAMPLES]\n");
        return 2;
    }
    try {
        return torment(argv[1], argv[2], argv[3], argc == 5 ? std::atol(argv[4]) : 0);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "korvel-torture: %s, %s: %s\n", argv[2], argv[3], error.what());
        return 1;
    }
}
