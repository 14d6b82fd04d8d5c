// The file behind the settings editor: read, saved, changed by others, and what saving would lose.
#include "companions/settings/document.h"
#include "support/settingsfiles.h"
#include "support/settingstext.h"
#include "support/settingsview.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QFileInfo>

#include <memory>

namespace tst_settingsdocument {

using namespace korvel::settings;

class TestSettingsDocument : public QObject
{
    Q_OBJECT

private slots:
    void theViewIsTheStores()
    {
        const TemporaryHome home(example("korvel.conf"));
        const std::unique_ptr<QTreeWidget> stores(KVConfiguration().newConfigListView());
        SettingsDocument document(home.settingsPath());
        const auto view = document.read();
        QCOMPARE(view->columnCount(), 1);
        QCOMPARE(rowsOf(*view), rowsOf(*stores));
        // The file, korvel and its language and eight documents, and two rows a setting.
        QCOMPARE(rowsOf(*view).size(), 1 + 1 + 9 + 2 * example("korvel.conf").count('='));
    }

    void savingNothingChangesNothing()
    {
        const File file(example("korvel.conf"));
        SettingsDocument document(file.path());
        const auto view = document.read();
        QVERIFY(!document.hasChanged());
        QCOMPARE(document.losses(*view), QStringList());
        QCOMPARE(document.save(*view), QString());
        QCOMPARE(linesOf(file.bytes()), linesOf(sampleAsWritten()));
        QVERIFY(!document.hasChanged());
    }

    void savingKeepsThePreviousFile()
    {
        const QByteArray before = settingsFile(documentGroup("doc", "paperWidth = 31;"));
        const File file(before);
        writeFile(file.backup(), "an older one");
        SettingsDocument document(file.path());
        const auto view = document.read();
        setValue(*view, "korvel.doc.paperWidth", "30");
        QCOMPARE(file.bytes(), before);
        QCOMPARE(document.losses(*view), QStringList());
        QCOMPARE(document.save(*view), QString());
        QCOMPARE(file.bytes(), QByteArray("korvel: \n{\n    doc: \n    {\n"
                                          "        paperWidth = \"30\";\n    };\n\n};\n\n"));
        QCOMPARE(bytesOf(file.backup()), before);
        QVERIFY(!document.hasChanged());

        const QByteArray second = file.bytes();
        setValue(*view, "korvel.doc.paperWidth", "29");
        QCOMPARE(document.save(*view), QString());
        QCOMPARE(bytesOf(file.backup()), second);
    }

    void savingKeepsThePermissions()
    {
        const File file(settingsFile(documentGroup("doc", "paperWidth = 31;")));
        const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QVERIFY(QFile::setPermissions(file.path(), permissions));
        const auto before = QFile::permissions(file.path());
        SettingsDocument document(file.path());
        QCOMPARE(document.save(*document.read()), QString());
        QCOMPARE(QFile::permissions(file.path()), before);
    }

    void savingGoesThroughALink()
    {
        const File file(settingsFile(documentGroup("doc", "paperWidth = 31;")));
        const QString link = file.folder.filePath("link.conf");
        QVERIFY(QFile::link(file.path(), link));
        SettingsDocument document(link);
        const auto view = document.read();
        setValue(*view, "korvel.doc.paperWidth", "30");
        QCOMPARE(document.save(*view), QString());
        QVERIFY(QFileInfo(link).isSymLink());
        QVERIFY(file.bytes().contains("\"30\""));
    }

    void savingMakesTheFolder()
    {
        const QTemporaryDir folder;
        SettingsDocument document(folder.filePath(".korvel/conf/korvel.conf"));
        QVERIFY(!document.exists());
        QCOMPARE(document.readError(), QString());
        QCOMPARE(rowsOf(*document.read()), QStringList());
        SettingsDocument sample(sampleFile);
        QCOMPARE(document.save(*sample.read()), QString());
        QCOMPARE(linesOf(bytesOf(document.path())), linesOf(sampleAsWritten()));
        QVERIFY(!QFile::exists(document.path() + '~'));
    }

    void theXmlNotationIsKept()
    {
        const File file("<korvel>\n<doc paperWidth=\"31\"/>\n</korvel>\n");
        SettingsDocument document(file.path());
        const auto view = document.read();
        setValue(*view, "korvel.doc.paperWidth", "30");
        QCOMPARE(document.losses(*view), QStringList());
        QCOMPARE(document.save(*view), QString());
        QCOMPARE(file.bytes().simplified(),
                 QByteArray("<korvel> <doc paperWidth = \"30\"> </doc> </korvel>"));
    }

    // What stands before the first element is none of the settings.
    void theXmlNotationIsReadBehind_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("an empty line") << QByteArray("\n");
        QTest::newRow("a declaration") << QByteArray("<?xml version=\"1.0\"?>\n");
        QTest::newRow("a comment") << QByteArray("<!-- the shop's -->");
        QTest::newRow("a document type") << QByteArray("<!DOCTYPE korvel>");
        QTest::newRow("all of them") << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                                   "<!DOCTYPE korvel>\n<!-- a --><!-- b -->\n");
        QTest::newRow("a byte order mark") << QByteArray("\xEF\xBB\xBF<?xml version=\"1.0\"?>");
    }

    void theXmlNotationIsReadBehind()
    {
        QFETCH(QByteArray, before);
        const File file(before
                        + "<korvel><doc paperWidth=\"31\"/><solddoc style=\"qd\"/></korvel>");
        SettingsDocument document(file.path());
        const auto view = document.read();
        QVERIFY(document.isXml());
        QCOMPARE(rowsOf(*view),
                 QStringList({file.path(), "  korvel", "    doc", "      paperWidth", "        *31",
                              "    solddoc", "      style", "        *qd"}));
        QCOMPARE(document.losses(*view), QStringList());
        QCOMPARE(document.save(*view), QString());
        QCOMPARE(file.bytes().simplified(),
                 QByteArray("<korvel> <doc paperWidth = \"31\"> </doc> "
                            "<solddoc style = \"qd\"> </solddoc> </korvel>"));
    }

    void changeOnDisk_data()
    {
        QTest::addColumn<bool>("before");      // whether there is a file at first
        QTest::addColumn<QByteArray>("after"); // null: none
        QTest::addColumn<bool>("changed");
        const QByteArray bytes = settingsFile(documentGroup("doc", "paperWidth = 31;"));

        QTest::newRow("the same") << true << bytes << false;
        QTest::newRow("one byte") << true << QByteArray(bytes).replace("31", "32") << true;
        QTest::newRow("emptied") << true << QByteArray("") << true;
        QTest::newRow("removed") << true << QByteArray() << true;
        QTest::newRow("still none") << false << QByteArray() << false;
        QTest::newRow("made") << false << bytes << true;
        QTest::newRow("made, empty") << false << QByteArray("") << true;
    }

    void changeOnDisk()
    {
        QFETCH(bool, before);
        QFETCH(QByteArray, after);
        const File file(settingsFile(documentGroup("doc", "paperWidth = 31;")));
        if (!before)
            QVERIFY(QFile::remove(file.path()));
        SettingsDocument document(file.path());
        const auto view = document.read();
        if (after.isNull())
            QFile::remove(file.path());
        else
            writeFile(file.path(), after);
        QTEST(document.hasChanged(), "changed");
        QCOMPARE(document.save(*view), QString());
        QVERIFY(!document.hasChanged());
    }

    void losses_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("setting"); // that is edited, if any
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("named"); // a word of each line, in their order
        const auto row = [](const char *name, const QByteArray &file, const QString &setting,
                            const QString &value, const QStringList &named) {
            QTest::newRow(name) << file << setting << value << named;
        };
        const QByteArray doc = settingsFile(documentGroup("doc", "style = a; paperWidth = 31;"));
        const QString style = "korvel.doc.style";
        const QString line = "Style (korvel.doc.style) ";
        const QString width = "Paper width (korvel.doc.paperWidth) ";

        row("a usual value", doc, style, "b", {});
        row("an empty value", doc, style, "", {});
        row("blanks at both ends", doc, style, "  b  ", {});
        row("braces, colon and equals sign", doc, style, "{a: b} = c", {});
        row("letters of Latin-1", doc, style, QString::fromUtf8("Caffè Ñandú ÿ"), {});
        row("a quote", doc, style, "1\" wide", {line});
        // The rest of the value becomes a part of the next name.
        row("a semicolon", doc, style, "a; b", {line, width});
        row("a semicolon in the last value", doc, "korvel.doc.paperWidth", "3; 2", {width});
        row("a character beyond Latin-1", doc, style, QString::fromUtf8("5 €"), {line});
        row("an emoji", doc, style, QString::fromUtf8("\xF0\x9F\x8D\x95"), {line});
        row("a semicolon before a brace", doc, style, "a; };", {line, width});
        row("the settings around are not named", doc, "korvel.doc.paperWidth", "3\"", {width});

        row("a second top-level group", doc + "second: { a = 1; b = 2; inner: { c = 3; }; };", {},
            {}, {"group second "});
        row("two more top-level groups", doc + "second: { a = 1; }; third: { b = 2; };", {}, {},
            {"group second ", "group third "});
        row("the group that is kept is the first", "first: { a = 1; };" + doc, {}, {},
            {"group korvel "});
        row("a setting outside all groups is kept", "a = 1;\n" + doc, {}, {}, {});
        row("one behind the group is kept", doc + "a = 1;\n", {}, {}, {});

        row("an empty group in the XML notation is kept",
            "<korvel><doc style=\"a\"/><empty/></korvel>", {}, {}, {});
        row("a quote in the XML notation", "<korvel><doc style=\"a\"/></korvel>", style, "\"",
            {"group korvel "});

        row("a third level is kept below the first group",
            settingsFile("doc: { a = 1; deep: { b = 2; }; }; receiptdoc: { c = 3; };"), {}, {}, {});
        row("a third level would move to the first group",
            settingsFile("doc: { a = 1; }; receiptdoc: { c = 3; deep: { b = 2; }; };"), {}, {},
            {"korvel.receiptdoc.deep "});
        row("also where the first group has one of that name",
            settingsFile("doc: { deep: { a = 1; }; }; receiptdoc: { c = 3; deep: { b = 2; }; };"),
            {}, {}, {"korvel.receiptdoc.deep "});

        row("a group twice is kept twice",
            settingsFile("doc: { style = a; }; doc: { style = b; };"), {}, {}, {});
        row("a group twice, the second with a quote",
            settingsFile("doc: { style = a; }; doc: { style = b; };"), "korvel.doc#2.style", "\"",
            {line});

        row("a file in which nothing can be read", "just some text\n", {}, {}, {"nothing"});
        row("stray text before a name stays with it", "# to be short\n" + doc, {}, {}, {});
        row("an empty group of the file",
            settingsFile("empty: { }; " + documentGroup("doc", "style = a;")), {}, {}, {"empty"});
        row("a setting twice in a group",
            settingsFile(documentGroup("doc", "style = a; style = b;")), {}, {},
            {"style stands twice"});
        row("the same setting in two groups",
            settingsFile(documentGroup("doc", "style = a;")
                         + documentGroup("fiscaldoc", "style = b;")),
            {}, {}, {});
        row("text before the end of a group", settingsFile("doc: { style = a; # remark\n };"), {},
            {}, {"# remark"});
        row("text behind the last setting", doc + "# the end\n", {}, {}, {"text at the end"});
    }

    void losses()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, setting);
        QFETCH(QString, value);
        QFETCH(QStringList, named);
        const File settings(file);
        SettingsDocument document(settings.path());
        const auto view = document.read();
        if (!setting.isEmpty())
            setValue(*view, setting, value);
        const QStringList lines = document.losses(*view);
        QVERIFY2(lines.size() == named.size(), qPrintable(lines.join('\n')));
        for (qsizetype i = 0; i < named.size(); ++i)
            QVERIFY2(lines[i].contains(named[i]), qPrintable(lines.join('\n')));
        QCOMPARE(settings.bytes(), file);
    }

    // A group in which nothing stands but an empty one looks like a value, and the group around it
    // like a setting.
    void aHollowGroupHidesNoLoss()
    {
        const File file(
            settingsFile("hollow: { inner: { }; }; " + documentGroup("doc", "style = a;")));
        SettingsDocument document(file.path());
        const auto view = document.read();
        const QByteArray written = SettingsDocument::writtenBy(*view);
        const QString lines = document.losses(*view).join('\n');
        QVERIFY2(written.contains("style = \"a\";") || lines.contains("korvel"),
                 qPrintable(written + lines.toUtf8()));
    }

    // What is read back after saving is what the view held, where no loss was named.
    void withoutLossesTheFileHoldsTheView()
    {
        const File file(example("korvel.conf"));
        SettingsDocument document(file.path());
        const auto view = document.read();
        setValue(*view, "korvel.doc.printHeader", " = {:} ");
        setValue(*view, "korvel.solddoc.paperWidth", "");
        QCOMPARE(document.losses(*view), QStringList());
        QCOMPARE(document.save(*view), QString());
        QCOMPARE(rowsOf(*SettingsDocument(file.path()).read()), rowsOf(*view));
    }

    void writtenByIsWhatTheRendererReads()
    {
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        QCOMPARE(linesOf(SettingsDocument::writtenBy(*view)), linesOf(sampleAsWritten()));
        QCOMPARE(SettingsDocument::writtenBy(QTreeWidget()), QByteArray());
    }
};

KORVEL_TEST(TestSettingsDocument)

} // namespace tst_settingsdocument

#include "tst_settingsdocument.moc"
