// The order of steps: what becomes of a document in every state, and what the printer gets.
#include "delivery/delivery.h"
#include "delivery/device.h"
#include "delivery/lease.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/ordinaryuser.h"
#include "support/printers.h"
#include "support/test.h"

#include <algorithm>

namespace tst_delivery {

using namespace korvel::delivery;
using namespace std::chrono_literals;

const QByteArray document = "=o/*1\n=\"/(Serial Number: 118 )\n=o\n";
const QString id = "till1-118";

Contents contentsOf(const QByteArray &stream)
{
    Contents contents;
    contents.rendered = stream;
    contents.sent = stream;
    contents.charset = "utf-8";
    return contents;
}

DeviceName named(const QString &device)
{
    QString error;
    const auto name = deviceNamed(device, error);
    if (!name)
        qFatal("%s", qPrintable(error));
    return *name;
}

/// A shop with a journal and a file for a printer.
class Shop
{
public:
    Shop() { writeFile(path("paper"), {}); }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] QString device() const { return "file:" + path("paper"); }
    [[nodiscard]] QByteArray paper() const { return bytesOf(path("paper")); }

    Journal journal() const { return {path("journal.db"), Journal::Access::Write}; }
    [[nodiscard]] State state() const { return journal().find(id)->state; }

    Outcome deliver(const QString &to, const QByteArray &stream = document,
                    std::chrono::seconds wait = 0s) const
    {
        Journal open = journal();
        Order order{id, "test", {}, named(to), contentsOf(stream)};
        order.timeout = 2s;
        order.wait = wait;
        return korvel::delivery::deliver(open, order);
    }
    Outcome deliver() const { return deliver(device()); }

    /// Brings the document into a state, as its life would.
    void bring(State state) const
    {
        Journal open = journal();
        if (state == State::Refused) {
            open.refuse(id, contentsOf(document), device(), "test", "wrong");
            return;
        }
        open.accept(id, contentsOf(document), device(), "test");
        static const QHash<State, QList<State>> ways = {
            {State::NotSent, {State::NotSent}},
            {State::Sending, {State::Sending}},
            {State::Sent, {State::Sending, State::Sent}},
            {State::InDoubt, {State::Sending, State::InDoubt}},
            {State::Printed, {State::Sending, State::InDoubt, State::Printed}},
            {State::NotPrinted, {State::Sending, State::InDoubt, State::NotPrinted}},
        };
        for (const State next : ways.value(state))
            open.change(id, next, device(), "before",
                        next == State::Sending ? lease() : QByteArray());
    }

    /// The name of the lease of the shop's printer.
    [[nodiscard]] QByteArray lease() const
    {
        QString error;
        return placesOf(named(device()), QDeadlineTimer(1s), error).at(0)->leaseName();
    }

private:
    const QTemporaryDir folder;
};

class TestDelivery : public QObject
{
    Q_OBJECT

private slots:
    void aNewDocumentIsSent()
    {
        const Shop shop;
        QCOMPARE(int(shop.deliver().end), int(End::Sent));
        QCOMPARE(shop.paper(), document);
        QCOMPARE(shop.state(), State::Sent);
    }

    void fromEachState_data()
    {
        QTest::addColumn<State>("state");
        QTest::addColumn<int>("end");
        QTest::addColumn<State>("then");
        QTest::addColumn<int>("copies");
        const auto row = [](const char *name, State state, End end, State then, int copies) {
            QTest::newRow(name) << state << int(end) << then << copies;
        };
        // clang-format off
        row("accepted",    State::Accepted,   End::Sent,        State::Sent,    1);
        row("refused",     State::Refused,    End::Sent,        State::Sent,    1);
        row("not-sent",    State::NotSent,    End::Sent,        State::Sent,    1);
        row("not-printed", State::NotPrinted, End::Sent,        State::Sent,    1);
        row("sent",        State::Sent,       End::AlreadySent, State::Sent,    0);
        row("printed",     State::Printed,    End::AlreadySent, State::Printed, 0);
        row("in-doubt",    State::InDoubt,    End::InDoubt,     State::InDoubt, 0);
        row("sending, by nobody any more", State::Sending, End::InDoubt, State::InDoubt, 0);
        // clang-format on
    }

    void fromEachState()
    {
        QFETCH(State, state);
        QFETCH(int, end);
        QFETCH(State, then);
        QFETCH(int, copies);
        const Shop shop;
        shop.bring(state);
        QCOMPARE(int(shop.deliver().end), end);
        QCOMPARE(shop.state(), then);
        QCOMPARE(shop.paper(), document.repeated(copies));
    }

    void anotherDocumentUnderTheSameIdIsRefused_data()
    {
        QTest::addColumn<State>("state");
        for (const StateInfo &row : stateTable) {
            if (row.state != State::Refused)
                QTest::newRow(row.name.latin1()) << row.state;
        }
    }

    void anotherDocumentUnderTheSameIdIsRefused()
    {
        QFETCH(State, state);
        const Shop shop;
        shop.bring(state);
        const Outcome outcome = shop.deliver(shop.device(), document + document);
        QCOMPARE(int(outcome.end), int(End::Refused));
        QVERIFY2(outcome.reason.contains(id), qPrintable(outcome.reason));
        QCOMPARE(shop.state(), state);
        QCOMPARE(shop.paper(), QByteArray());
    }

    void whatMakesADocumentAnother()
    {
        Contents job;
        job.job = "<job/>";
        job.settings = "korvel { };";
        job.charset = "cp858";
        const Shop shop;
        Journal journal = shop.journal();
        job.rendered = job.sent = "=o\n";
        journal.accept(id, job, shop.device(), "test");
        const Document known = *journal.find(id);
        QVERIFY(isMadeOf(known, job));
        Contents same = job;
        same.rendered = "=o another renderer\n"; // which the input decides, and the day
        QVERIFY(isMadeOf(known, same));
        for (QByteArray Contents::*part : {&Contents::job, &Contents::settings}) {
            Contents other = job;
            other.*part += ' ';
            QVERIFY(!isMadeOf(known, other));
        }
        Contents other = job;
        other.charset = "utf-8";
        QVERIFY(!isMadeOf(known, other));
        QVERIFY(!isMadeOf(known, contentsOf("=o\n")));
    }

    void whatIsSentIsWhatWasAccepted()
    {
        const Shop shop;
        shop.bring(State::NotSent);
        Journal journal = shop.journal();
        Order order{id, "test", {}, named(shop.device()), contentsOf(document)};
        order.contents.sent = "of another day";
        QCOMPARE(int(deliver(journal, order).end), int(End::Sent));
        QCOMPARE(shop.paper(), document);
    }

    void anotherDeviceIsTakenWhileNothingLeft()
    {
        const Shop shop;
        QCOMPARE(int(shop.deliver(nobodysDevice()).end), int(End::NotSent));
        QCOMPARE(shop.state(), State::NotSent);
        QCOMPARE(int(shop.deliver().end), int(End::Sent));
        QCOMPARE(shop.paper(), document);
    }

    void anotherDeviceIsNotTakenForWhatIsInDoubt()
    {
        PrinterFault fault;
        fault.resetsAfter = 3;
        NetworkPrinter printer(fault);
        const Shop shop;
        const Outcome first = shop.deliver(printer.device());
        QCOMPARE(int(first.end), int(End::InDoubt));
        QCOMPARE(int(shop.deliver().end), int(End::InDoubt));
        QCOMPARE(shop.deliver().reason, first.reason);
        QCOMPARE(shop.paper(), QByteArray());
    }

    void aBusyPrinterIsNotSentTo()
    {
        const Shop shop;
        QString error;
        const auto lease = Lease::take(shop.lease(), error);
        QVERIFY2(lease, qPrintable(error));
        const Outcome outcome = shop.deliver();
        QCOMPARE(int(outcome.end), int(End::NotSent));
        QCOMPARE(outcome.reason, QString("the printer is busy with another document"));
        QCOMPARE(shop.state(), State::NotSent);
        QCOMPARE(shop.paper(), QByteArray());
    }

    void whatAnotherProcessSendsIsLeftToIt()
    {
        const Shop shop;
        shop.bring(State::Sending);
        QString error;
        {
            const auto lease = Lease::take(shop.lease(), error);
            const Outcome outcome = shop.deliver();
            QCOMPARE(int(outcome.end), int(End::NotSent));
            QCOMPARE(outcome.reason, QString("another process is sending it"));
            QCOMPARE(shop.state(), State::Sending);
        }
        QCOMPARE(int(shop.deliver().end), int(End::InDoubt));
    }

    /// A living sender is known by the lease that it took, wherever the name of its device leads
    /// meanwhile.
    void aSenderLivesAsLongAsItsLease()
    {
        const Shop shop;
        shop.bring(State::Sending);
        QString error;
        const auto lease = Lease::take(shop.lease(), error);
        QVERIFY(QFile::rename(shop.path("paper"), shop.path("paper.old")));
        Journal journal = shop.journal();
        const Order another{"another", "test", {}, named(shop.device()), contentsOf("=o\n")};
        QCOMPARE(int(deliver(journal, another).end), int(End::Sent)); // to the file made anew
        QCOMPARE(shop.state(), State::Sending);
        QCOMPARE(int(shop.deliver().end), int(End::NotSent));
        QCOMPARE(shop.state(), State::Sending);
    }

    /// The folder must be synced too: where it cannot be, no byte is written.
    void aFileWhoseFolderCannotBeReadIsNotWritten()
    {
        const Shop shop;
        QVERIFY(QDir().mkdir(shop.path("closed")));
        writeFile(shop.path("closed/paper"), {});
        const QFile::Permissions enter = QFile::WriteOwner | QFile::ExeOwner;
        QVERIFY(QFile::setPermissions(shop.path("closed"), enter));
        {
            const OrdinaryUser user;
            QCOMPARE(int(shop.deliver("file:" + shop.path("closed/paper")).end), int(End::NotSent));
        }
        QVERIFY(QFile::setPermissions(shop.path("closed"), enter | QFile::ReadOwner));
        QCOMPARE(shop.state(), State::NotSent);
        QCOMPARE(bytesOf(shop.path("closed/paper")), QByteArray());
    }

    void whatIsOddIsInTheJournal()
    {
        const Shop shop;
        Journal journal = shop.journal();
        const Order order{id, "test", "receipt.xml:3:1: warning: x", named(shop.device()),
                          contentsOf(document)};
        QCOMPARE(int(deliver(journal, order).end), int(End::Sent));
        QCOMPARE(journal.events(id).constFirst().name, QString("accepted"));
        QCOMPARE(journal.events(id).constFirst().detail, QString("receipt.xml:3:1: warning: x"));
    }

    void theNextHolderRecordsTheDoubt_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<State>("state");
        QTest::newRow("by the same name") << "paper" << State::InDoubt;
        QTest::newRow("by another name") << "link" << State::InDoubt;
        QTest::newRow("of another device") << "other" << State::Sending;
    }

    /// Whoever takes the device next says of all that was being sent to it that it is in doubt.
    void theNextHolderRecordsTheDoubt()
    {
        QFETCH(QString, name);
        QFETCH(State, state);
        const Shop shop;
        QVERIFY(QFile::link(shop.path("paper"), shop.path("link")));
        shop.bring(State::Sending);
        Journal journal = shop.journal();
        const QString to = shop.path(name);
        const Order order{"another", "test", {}, named("file:" + to), contentsOf("=o\n")};
        QCOMPARE(int(deliver(journal, order).end), int(End::Sent));
        QCOMPARE(shop.state(), state);
        QCOMPARE(bytesOf(to), QByteArray("=o\n"));
    }

    void aPrinterThatIsSwitchedOnIsWaitedFor()
    {
        const Shop shop;
        const QString path = shop.path("fifo");
        QStringList reasons;
        Journal journal = shop.journal();
        Order order{id, "test", {}, named(path), contentsOf(document)};
        order.wait = 30s;
        std::unique_ptr<FifoPrinter> printer;
        order.waiting = [&](const QString &reason) {
            reasons.append(reason);
            if (reasons.size() == 2)
                printer = std::make_unique<FifoPrinter>(path);
        };
        QCOMPARE(int(deliver(journal, order).end), int(End::Sent));
        QCOMPARE(reasons.size(), 2);
        QCOMPARE(reasons.constFirst(), path + " cannot be reached: " + qt_error_string(ENOENT));
        QCOMPARE(printer->paper(document.size()), document);
    }

    void anAddressOfSeveralIsTriedAtEach()
    {
        NetworkPrinter printer; // at 127.0.0.1 alone
        const Shop shop;
        const QString device = printer.device().replace("127.0.0.1", "localhost");
        const Outcome outcome = shop.deliver(device);
        QVERIFY2(outcome.end == End::Sent, qPrintable(outcome.reason));
        QCOMPARE(printer.pages(), QList<QByteArray>({document}));
    }

    void whatIsLostOnTheWayIsInDoubt()
    {
        PrinterFault fault;
        fault.stallsAfter = 5;
        NetworkPrinter printer(fault);
        const Shop shop;
        const Outcome outcome = shop.deliver(printer.device(), document.repeated(300'000));
        QCOMPARE(int(outcome.end), int(End::InDoubt));
        QCOMPARE(outcome.reason, QString("the printer took no byte for 2 seconds"));
        QCOMPARE(shop.state(), State::InDoubt);
        QCOMPARE(shop.journal().find(id)->detail, outcome.reason);
    }

    void theEventsComeInTheirOrder()
    {
        const Shop shop;
        shop.deliver(nobodysDevice());
        shop.deliver();
        QStringList names;
        for (const Event &event : shop.journal().events(id))
            names.append(event.name);
        QCOMPARE(names, QStringList({"accepted", "not-sent", "sending", "sent"}));
    }
};

KORVEL_TEST(TestDelivery)

} // namespace tst_delivery

#include "tst_delivery.moc"
