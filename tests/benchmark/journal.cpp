// A journal with documents that were sent, for what is measured on a long one.
//
//   bench-journal FILE NUMBER
#include "delivery/journal.h"

#include <cstdlib>

using namespace korvel::delivery;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A document of its own: nothing is stored once for two.
Contents contentsOf(const QByteArray &name)
{
    const QByteArray stream = "=o\n=\"/(" + name + " )\n=o\n";
    return {"<job>" + name + "</job>", "korvel: {};", {}, stream, stream, u"utf-8"_s};
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3)
        return EXIT_FAILURE;
    const QString device = u"tcp://192.0.2.7:9100"_s;
    Journal journal(QString::fromLocal8Bit(argv[1]), Journal::Access::Write);
    for (int i = 0; i < std::atoi(argv[2]); ++i) {
        const QString id = u"till1-"_s + QString::number(i);
        journal.accept(id, contentsOf(id.toUtf8()), device, u"till"_s);
        for (const State state : {State::Sending, State::Sent})
            journal.change(id, state, device, {});
    }
    return EXIT_SUCCESS;
}
