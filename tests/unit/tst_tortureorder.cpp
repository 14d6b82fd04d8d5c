// The order of syncs: that what a power cut would lose is seen in the calls of a delivery.
#include "support/test.h"
#include "torture/order.h"

#include <fcntl.h>
#include <linux/sockios.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>

namespace tst_tortureorder {

using torture::Call;

const std::string journal = "/shop/journal.db";
const std::string paper = "/shop/paper";

Call call(long number, const std::string &path)
{
    Call made;
    made.number = number;
    made.path = path;
    return made;
}

Call opened(const std::string &path)
{
    Call made = call(SYS_openat, path);
    made.arguments[2] = O_CREAT | O_RDWR;
    return made;
}

Call askedForBytes(const std::string &path, int value)
{
    Call made = call(SYS_ioctl, path);
    made.arguments[1] = SIOCOUTQ;
    made.value = value;
    return made;
}

Call connected()
{
    Call made = call(SYS_connect, "socket:[1]");
    made.toNetwork = true;
    return made;
}

Call wrote(const std::string &bytes)
{
    Call made = call(SYS_pwrite64, journal);
    made.bytes = bytes;
    return made;
}

const Call written = wrote("a page with an event: sending");
const Call synced = call(SYS_fdatasync, journal);
const Call sent = call(SYS_write, paper);
const Call taken = call(SYS_fsync, paper);
const Call sentOut = call(SYS_write, "socket:[1]");
const Call closed = call(SYS_shutdown, "socket:[1]");

std::string wrongWith(const QList<Call> &calls, const std::string &device = paper)
{
    torture::Order order(journal, device);
    for (const Call &each : calls)
        order.take(each);
    return order.end();
}

class TestTortureOrder : public QObject
{
    Q_OBJECT

private slots:
    void inOrder()
    {
        QCOMPARE(wrongWith({written, synced, sent, taken, written, synced}), std::string());
        const std::string network;
        QCOMPARE(wrongWith({connected(), written, synced, sentOut, askedForBytes("socket:[1]", 0),
                            closed, written, synced},
                           network),
                 std::string());
    }

    void aByteBeforeTheSync()
    {
        QCOMPARE(wrongWith({written, sent, synced, taken, written, synced}),
                 "a byte leaves before " + journal + " is synced");
        Call failed = synced;
        failed.result = -5;
        QCOMPARE(wrongWith({written, failed, sent, taken, written, synced}),
                 "a byte leaves before " + journal + " is synced");
    }

    void aByteBeforeItIsAnnounced()
    {
        QCOMPARE(wrongWith({wrote("accepted"), synced, sent, taken, written, synced}),
                 std::string("a byte leaves before it is written that it is being sent"));
    }

    void aNewJournalWhoseFolderIsNotSynced()
    {
        QCOMPARE(wrongWith({opened(journal), written, synced, sent, taken, written, synced}),
                 std::string("a byte leaves before /shop is synced"));
    }

    void sentBeforeAllIsTaken()
    {
        const std::string early =
            "something is recorded behind the first byte and before all are taken";
        QCOMPARE(wrongWith({written, synced, sent, written, synced, taken}), early);
        QCOMPARE(wrongWith({connected(), written, synced, sentOut, askedForBytes("socket:[1]", 0),
                            written, synced, closed},
                           {}),
                 early);
    }

    void ourHalfClosedTooEarly()
    {
        QCOMPARE(wrongWith({connected(), written, synced, sentOut, askedForBytes("socket:[1]", 9),
                            closed, written, synced},
                           {}),
                 std::string("our half is closed before all is acknowledged"));
    }

    void theLastWriteUnsynced()
    {
        QCOMPARE(wrongWith({written, synced, sent, taken, written}),
                 journal + " is left without a sync");
    }

    void nothingSeen() { QVERIFY(!wrongWith({written, synced}).empty()); }
};

KORVEL_TEST(TestTortureOrder)

} // namespace tst_tortureorder

#include "tst_tortureorder.moc"
