// The command line of korvel-deliver: what is wrong usage, and that it sends nothing.
#include "support/built.h"
#include "support/deliverdesk.h"
#include "support/test.h"

namespace tst_deliveroptions {

class TestDeliverOptions : public QObject
{
    Q_OBJECT

private slots:
    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("advice");
        const auto row = [](const char *name, const QStringList &arguments, const char *advice) {
            QTest::newRow(name) << arguments << QString(advice);
        };
        const QString to = "--to=file:/nowhere/paper";
        // clang-format off
        row("no file",             {to},                                 "a stream is needed");
        row("no device",           {"receipt.xml"},                      "--to DEVICE is needed");
        row("no such device",      {"--to=lp0", "receipt.xml"},          "write tcp://HOST");
        row("an id for two",       {to, "--id=a", "x", "y"},             "--id names one document");
        row("an empty id",         {to, "--id=", "x"},                   "--id takes");
        row("an id of blanks",     {to, "--id= a", "x"},                 "--id takes");
        row("an id of 201",        {to, "--id=" + QString(201, 'a'), "x"}, "--id takes");
        row("an id with a tab",    {to, "--id=a\tb", "x"},               "--id takes");
        row("no such code page",   {to, "--charset=cp99999", "x"},       "cp99999");
        row("no settings",         {to, "--settings=", "x"},             "--settings takes");
        row("no journal",          {to, "--journal=", "x"},              "--journal takes");
        row("no time",             {to, "--timeout=0", "x"},             "--timeout takes");
        row("a word for a time",   {to, "--timeout=soon", "x"},          "--timeout takes");
        row("less than no wait",   {to, "--wait=-1", "x"},               "--wait takes");
        row("an unknown option",   {to, "--copies=2", "x"},              "copies");
        // clang-format on
    }

    /// Characters are counted, however many units they take.
    void aLongId()
    {
        const DeliverDesk desk;
        const QString longest = QString::fromUtf8("\xF0\x9F\x8D\xA8").repeated(200);
        VERIFY_DELIVERY(desk.run({"--id", longest, "receipt.xml"}), 0, "sent");
        VERIFY_DELIVERY(desk.run({"--id", longest + 'a', "receipt.xml"}), 2,
                        "--id takes from 1 to 200");
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, advice);
        const DeliverDesk desk;
        const Run run =
            runProgram(built::deliver, arguments, {desk.path("."), desk.variables(), {}});
        VERIFY_DELIVERY(run, 2, advice.toUtf8());
        QVERIFY(run.standardError.startsWith("korvel-deliver: "));
        QVERIFY2(!QFile::exists(desk.path("home/.local")), "a journal for wrong usage");
    }

    void theJournalIsTheUsersUnlessNamed()
    {
        const DeliverDesk desk;
        const Run run = runProgram(built::deliver, {"--to", desk.device(), "receipt.xml"},
                                   {desk.path("."), desk.variables(), {}});
        VERIFY_DELIVERY(run, 0, "receipt.xml: sent to ");
        QVERIFY(QFile::exists(desk.path("home/.local/share/korvel-print/journal.db")));
    }

    void helpAndVersion()
    {
        const DeliverDesk desk;
        const Run help = desk.run({"--help"});
        QCOMPARE(help.status, 0);
        QVERIFY(help.standardOutput.contains("--dry-run"));
        QCOMPARE(desk.run({"--version"}).standardOutput,
                 QByteArray("korvel-deliver " KORVEL_VERSION "\n"));
        QVERIFY(!QFile::exists(desk.path("journal.db")));
    }

    void aJournalThatCannotBe_data()
    {
        QTest::addColumn<QString>("journal");
        QTest::newRow("a folder") << ".";
        QTest::newRow("in no folder") << "no/such/folder/journal.db";
        QTest::newRow("no journal") << "receipt.xml";
    }

    void aJournalThatCannotBe()
    {
        QFETCH(QString, journal);
        const DeliverDesk desk;
        const Run run =
            runProgram(built::deliver, {"--to", desk.device(), "--journal", journal, "receipt.xml"},
                       {desk.path("."), desk.variables(), {}});
        VERIFY_DELIVERY(run, 2, "korvel-deliver: ");
        QCOMPARE(desk.paper(), QByteArray());
    }

    void aFileThatCannotBeRead_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no job") << QStringList{"no.xml"};
        QTest::newRow("a folder") << QStringList{"."};
        QTest::newRow("no settings") << QStringList{"--settings=no.conf", "receipt.xml"};
        QTest::newRow("settings in a folder") << QStringList{"--settings=.", "receipt.xml"};
    }

    void aFileThatCannotBeRead()
    {
        QFETCH(QStringList, arguments);
        const DeliverDesk desk;
        VERIFY_DELIVERY(desk.run(arguments), 2, ": ");
        QCOMPARE(desk.paper(), QByteArray());
    }
};

KORVEL_TEST(TestDeliverOptions)

} // namespace tst_deliveroptions

#include "tst_deliveroptions.moc"
