// Streams, pictures and folders of any names that korvel-preview is given.
#include "support/built.h"
#include "support/bytenames.h"
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

namespace tst_previewnames {

class TestPreviewNames : public QObject
{
    Q_OBJECT

private slots:
    void streamsOfAnyName_data() { addByteNames(); }

    void streamsOfAnyName()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, shown);
        const Desk desk("=x\n");
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        const Run missing = runWithBytes(built::preview, {"--", name}, folder);
        VERIFY_TROUBLE(missing);
        QCOMPARE(missing.standardError,
                 "korvel-preview: " + shown + ": No such file or directory\n");

        std::filesystem::rename(desk.path("x.out").toStdString(),
                                (folder + '/' + name).toStdString());
        const Run run = runWithBytes(built::preview, {"--list", "--", name}, folder);
        VERIFY_ENDED(run, 1);
        QVERIFY2(run.standardError.startsWith(shown + ":1: byte 1: "),
                 run.standardError.constData());
        QVERIFY(run.standardError.isValidUtf8());
        QCOMPARE(namesIn(folder), QByteArrayList{name});
    }

    void picturesOfAnyName_data() { addByteNames(); }

    void picturesOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Desk desk(documentOf("Ciao"));
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        for (const QByteArray &path :
             {name + ".png", name + ".pdf", folder + '/' + name + ".PNG"}) {
            const Run run = runWithBytes(built::preview, {"-o", path, "x.out"}, folder);
            VERIFY_ENDED(run, 0);
            QCOMPARE(run.standardError, "");
        }
        QCOMPARE(sizeOfPng(bytesNamed(folder + '/' + name + ".png")), QSize(464, 24 + 24 + 24));
        QCOMPARE(sizeOfPng(bytesNamed(folder + '/' + name + ".PNG")), QSize(464, 24 + 24 + 24));
        QVERIFY(bytesNamed(folder + '/' + name + ".pdf").startsWith("%PDF"));
        QCOMPARE(namesIn(folder),
                 sortedNames({"x.out", name + ".png", name + ".pdf", name + ".PNG"}));
    }

    void picturesThatCannotBeWrittenOfAnyName_data() { addByteNames(); }

    void picturesThatCannotBeWrittenOfAnyName()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, shown);
        const Desk desk(documentOf("Ciao"));
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        const Run missing = runWithBytes(built::preview, {"-o", name + "/y.png", "x.out"}, folder);
        VERIFY_TROUBLE(missing);
        QCOMPARE(missing.standardError,
                 "korvel-preview: " + shown + "/y.png: No such file or directory\n");

        std::filesystem::create_directory((folder + '/' + name + ".png").toStdString());
        const Run inFolder = runWithBytes(built::preview, {"-o", name + ".png", "x.out"}, folder);
        VERIFY_TROUBLE(inFolder);
        QCOMPARE(inFolder.standardError, "korvel-preview: " + shown + ".png: no regular file\n");
        QCOMPARE(namesIn(folder), sortedNames({"x.out", name + ".png"}));
    }

    void picturesInAFolderOfAnyName_data() { addByteNames(); }

    void picturesInAFolderOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Desk desk(documentOf("Ciao"));
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8() + '/' + name;
        std::filesystem::create_directory(folder.toStdString());
        VERIFY_ENDED(runWithBytes(built::preview, {"-o", "y.png", "../x.out"}, folder), 0);
        QCOMPARE(sizeOfPng(bytesNamed(folder + "/y.png")), QSize(464, 24 + 24 + 24));
        QCOMPARE(namesIn(folder), QByteArrayList{"y.png"});
        QCOMPARE(namesIn(desk.folder.path().toUtf8()), sortedNames({name, "x.out"}));
    }

    void aLinkStaysOne_data() { addByteNames(); }

    void aLinkStaysOne()
    {
        QFETCH(QByteArray, name);
        const Desk desk(documentOf("Ciao"));
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        const std::string link = desk.path("y.png").toStdString();
        std::filesystem::create_symlink(name.toStdString(), link);
        writeNamed(folder + '/' + name, "the one before");
        VERIFY_ENDED(desk.run({"-o", "y.png", "x.out"}), 0);
        QCOMPARE(sizeOfPng(bytesNamed(folder + '/' + name)), QSize(464, 24 + 24 + 24));
        QVERIFY(std::filesystem::is_symlink(link));
        QCOMPARE(namesIn(folder), sortedNames({"y.png", "x.out", name}));

        // One that leads nowhere gives way.
        std::filesystem::remove((folder + '/' + name).toStdString());
        VERIFY_ENDED(desk.run({"-o", "y.png", "x.out"}), 0);
        QCOMPARE(sizeOfPng(bytesOf(desk.path("y.png"))), QSize(464, 24 + 24 + 24));
        QVERIFY(!std::filesystem::is_symlink(link));
        QCOMPARE(namesIn(folder), sortedNames({"y.png", "x.out"}));
    }

    void optionsThatAreNoText()
    {
        const Desk desk(documentOf("Ciao"));
        const QByteArray folder = desk.folder.path().toUtf8();
        for (const QByteArray &argument : QByteArrayList{"--b\xE8t", "--columns=\xFF", "-\x1b"}) {
            const Run run = runWithBytes(built::preview, {argument, "x.out"}, folder);
            VERIFY_TROUBLE(run);
            QVERIFY(run.standardError.isValidUtf8());
            QVERIFY(!run.standardError.contains('\x1b'));
        }
    }
};

KORVEL_TEST(TestPreviewNames)

} // namespace tst_previewnames

#include "tst_previewnames.moc"
