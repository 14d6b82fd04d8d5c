// The settings editor without its window: the file behind the view, the hints in the tree, the
// renderer as a child process.
#include "companions/settings/document.h"
#include "companions/settings/hints.h"
#include "companions/settings/rendering.h"
#include "support/bytenames.h"
#include "support/settingstext.h"
#include "support/shop.h"

#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace korvel::settings;

namespace {

const QString sampleFile = KORVEL_SOURCE_DIR "/examples/korvel.conf";

/// A file of the sample shop.
QByteArray example(const QString &name)
{
    return bytesOf(QString(KORVEL_SOURCE_DIR "/examples/") + name);
}

/// The sample settings as the store writes them, with an empty line behind every group.
QByteArray sampleAsWritten() { return example("korvel.conf").trimmed() + "\n\n"; }

void addRows(const QTreeWidgetItem *row, int depth, QStringList &lines)
{
    lines.append(QString(2 * depth, ' ') + row->text(0));
    for (int i = 0; i < row->childCount(); ++i)
        addRows(row->child(i), depth + 1, lines);
}

/// All rows of a view, indented by depth.
QStringList rowsOf(const QTreeWidget &view)
{
    QStringList lines;
    for (int i = 0; i < view.topLevelItemCount(); ++i)
        addRows(view.topLevelItem(i), 0, lines);
    return lines;
}

/// The row that names lead to below the file's: "korvel.receiptdoc.paperWidth", a repeated name
/// with its number, "doc#2"; null when there is none.
QTreeWidgetItem *rowAt(const QTreeWidget &view, const QString &path)
{
    QTreeWidgetItem *row = view.topLevelItem(0);
    for (const QString &step : path.split('.')) {
        const QString name = step.section('#', 0, 0);
        int left = std::max(1, step.section('#', 1, 1).toInt());
        QTreeWidgetItem *found = nullptr;
        for (int i = 0; row && i < row->childCount() && !found; ++i)
            if (row->child(i)->text(0) == name && --left == 0)
                found = row->child(i);
        row = found;
    }
    return row;
}

/// Sets a value as the view's editor does.
void setValue(const QTreeWidget &view, const QString &path, const QString &value)
{
    QTreeWidgetItem *row = rowAt(view, path);
    if (!row || row->childCount() != 1)
        qFatal("there is no setting %s", qPrintable(path));
    row->child(0)->setText(0, value);
}

/// A settings file in a folder of its own.
class File
{
public:
    explicit File(const QByteArray &bytes) { writeFile(path(), bytes); }

    [[nodiscard]] QString path() const { return folder.filePath("korvel.conf"); }
    [[nodiscard]] QString backup() const { return path() + '~'; }
    [[nodiscard]] QByteArray bytes() const { return bytesOf(path()); }

    const QTemporaryDir folder;
};

/// Lets no file grow beyond a size, as on a full disk, as long as it lives.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : signalBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit limit = before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, signalBefore);
    }

    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit before{};
    void (*signalBefore)(int);
};

/// The superuser may write everywhere. Where the test is his, it goes on as a user without rights
/// until this object goes.
class OrdinaryUser
{
public:
    OrdinaryUser()
        : changed(geteuid() == 0 && seteuid(nobody) == 0)
    {
    }

    ~OrdinaryUser()
    {
        if (changed && seteuid(0) != 0)
            qFatal("the test cannot go on as the superuser");
    }

    Q_DISABLE_COPY_MOVE(OrdinaryUser)

    [[nodiscard]] static bool isOne() { return geteuid() != 0; }

    /// Gives a file or a folder to that user.
    static void give(const QString &path)
    {
        if (geteuid() == 0 && chown(QFile::encodeName(path).constData(), nobody, gid_t(-1)) != 0)
            qFatal("%s cannot be given away", qPrintable(path));
    }

private:
    static constexpr uid_t nobody = 65534;
    bool changed;
};

/// Marked rows and what they say: "korvel.doc.printDate: ...". A value's row stands for itself.
QMap<QString, QString> marksOf(QTreeWidget &view)
{
    QMap<QString, QString> marks;
    for (QTreeWidgetItemIterator it(&view); *it; ++it) {
        if ((*it)->icon(0).isNull() != (*it)->toolTip(0).isEmpty())
            qFatal("a row has an icon or a tooltip alone");
        if ((*it)->icon(0).isNull())
            continue;
        QStringList path;
        for (QTreeWidgetItem *row = *it; row->parent(); row = row->parent())
            path.prepend(row->text(0));
        marks.insert(path.join('.'), (*it)->toolTip(0));
    }
    return marks;
}

void mark(QTreeWidget &view) { hints::mark(view, SettingsDocument::writtenBy(view)); }

/// A program that a shell runs.
QString script(const QTemporaryDir &folder, const QByteArray &lines)
{
    const QString path = folder.filePath("renderer");
    writeFile(path, "#!/bin/sh\n" + lines);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

constexpr auto longEnough = 30000; // milliseconds, for a run of the renderer on a busy machine

} // namespace

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    // The document.

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
        const QString line = "korvel.doc.style ";

        row("a usual value", doc, style, "b", {});
        row("an empty value", doc, style, "", {});
        row("blanks at both ends", doc, style, "  b  ", {});
        row("braces, colon and equals sign", doc, style, "{a: b} = c", {});
        row("letters of Latin-1", doc, style, QString::fromUtf8("Caffè Ñandú ÿ"), {});
        row("a quote", doc, style, "1\" wide", {line});
        // The rest of the value becomes a part of the next name.
        row("a semicolon", doc, style, "a; b", {line, "korvel.doc.paperWidth "});
        row("a semicolon in the last value", doc, "korvel.doc.paperWidth", "3; 2",
            {"korvel.doc.paperWidth "});
        row("a character beyond Latin-1", doc, style, QString::fromUtf8("5 €"), {line});
        row("an emoji", doc, style, QString::fromUtf8("\xF0\x9F\x8D\x95"), {line});
        row("a semicolon before a brace", doc, style, "a; };", {line, "korvel.doc.paperWidth "});
        row("the settings around are not named", doc, "korvel.doc.paperWidth", "3\"",
            {"korvel.doc.paperWidth "});

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
            {""});

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
        row("text behind the last setting", doc + "# the end\n", {}, {}, {""});
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

    void whatCannotBeRead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("a folder") << "folder";
        QTest::newRow("a FIFO") << "fifo";
        QTest::newRow("a file without the right") << "secret";
    }

    void whatCannotBeRead()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        QFile::setPermissions(folder.path(), QFile::Permissions(0x7755));
        const QString path = folder.filePath(name);
        if (name == "folder")
            QVERIFY(QDir().mkpath(path));
        else if (name == "fifo")
            QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        else
            writeFile(path, "korvel: { a = 1; };");
        if (name == "secret")
            QVERIFY(QFile::setPermissions(path, {}));
        const OrdinaryUser user;
        if (!OrdinaryUser::isOne())
            QSKIP("the superuser may read every file");
        SettingsDocument document(path);
        QVERIFY(document.exists());
        QVERIFY2(document.readError().contains(path), qPrintable(document.readError()));
        QVERIFY(!document.readError().contains('\n'));
        QCOMPARE(rowsOf(*document.read()), QStringList());
    }

    void whatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("name"); // of the settings file
        QTest::newRow("a folder in its place") << "folder";
        QTest::newRow("below a file") << "file/korvel.conf";
        QTest::newRow("far below a file") << "file/.korvel/conf/korvel.conf";
        QTest::newRow("no place for the previous file") << "kept.conf";
        QTest::newRow("a file without the right") << "readonly.conf";
        QTest::newRow("a folder without the right, a file") << "closed/korvel.conf";
        QTest::newRow("a folder without the right, none") << "closed/new.conf";
        QTest::newRow("a folder that cannot be made") << "closed/conf/korvel.conf";
    }

    void whatCannotBeWritten()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        QFile::setPermissions(folder.path(), QFile::Permissions(0x7755));
        OrdinaryUser::give(folder.path());
        const QByteArray before = settingsFile(documentGroup("doc", "paperWidth = 31;"));
        for (const char *file : {"file", "kept.conf", "readonly.conf", "closed/korvel.conf"}) {
            QVERIFY(QFileInfo(folder.filePath(file)).dir().mkpath("."));
            writeFile(folder.filePath(file), before);
            OrdinaryUser::give(folder.filePath(file));
        }
        QVERIFY(QDir().mkpath(folder.filePath("folder/inner")));
        QVERIFY(QDir().mkpath(folder.filePath("kept.conf~/inner")));
        OrdinaryUser::give(folder.filePath("closed"));
        QVERIFY(QFile::setPermissions(folder.filePath("readonly.conf"), QFile::ReadOwner));
        QVERIFY(
            QFile::setPermissions(folder.filePath("closed"), QFile::ReadOwner | QFile::ExeOwner));

        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        const QString path = folder.filePath(name);
        const bool existed = QFile::exists(path);
        {
            const OrdinaryUser user;
            if (!OrdinaryUser::isOne())
                QSKIP("the superuser may write every file");
            SettingsDocument document(path);
            (void)document.read();
            const QString error = document.save(*view);
            QVERIFY2(!error.isEmpty() && !error.contains('\n'), qPrintable(error));
            QVERIFY2(error.contains(folder.path()), qPrintable(error));
            QVERIFY2(!error.contains("Unknown error"), qPrintable(error));
        }
        QCOMPARE(QFile::exists(path), existed);
        if (QFileInfo(path).isFile())
            QCOMPARE(bytesOf(path), before);
        QVERIFY(QFile::setPermissions(folder.filePath("closed"),
                                      QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner));
    }

    // A name of a colon first is no resource of the toolkit's.
    void filesNamedLikeResources_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("a file") << ":korvel.conf";
        QTest::newRow("in a folder") << ":home/korvel.conf";
        QTest::newRow("in a folder's folder") << ":/conf/korvel.conf";
    }

    void filesNamedLikeResources()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        const auto restore = qScopeGuard([&] { QDir::setCurrent(before); });
        SettingsDocument document(name);
        QVERIFY(!document.exists());
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        QCOMPARE(document.save(*view), QString());
        const QString path = folder.path() + '/' + name;
        QCOMPARE(linesOf(bytesOf(path)), linesOf(sampleAsWritten()));

        QVERIFY(document.exists());
        QCOMPARE(document.readError(), QString());
        QCOMPARE(rowsOf(*document.read()).size(), rowsOf(*view).size());
        QCOMPARE(document.save(*view), QString());
        QCOMPARE(linesOf(bytesOf(path + '~')), linesOf(sampleAsWritten()));
    }

    // Where the working directory's name is no text, nothing is written under another one.
    void aWorkingDirectoryThatIsNoText()
    {
        const QTemporaryDir folder;
        const Sweeper sweeper(folder.path());
        const QByteArray odd = folder.path().toUtf8() + "/b\xE8t";
        std::filesystem::create_directory(odd.toStdString());
        const QString before = QDir::currentPath();
        std::filesystem::current_path(odd.toStdString());
        const auto restore = qScopeGuard([&] { QDir::setCurrent(before); });
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        QCOMPARE(SettingsDocument("conf/korvel.conf").save(*view), QString());
        QCOMPARE(linesOf(bytesNamed(odd + "/conf/korvel.conf")), linesOf(sampleAsWritten()));
        QCOMPARE(namesIn(folder.path().toUtf8()), QByteArrayList{"b\xE8t"});
    }

    void namesThatAreNoText_data()
    {
        QTest::addColumn<QByteArrayList>("arguments");
        QTest::addColumn<QByteArray>("home");
        QTest::addColumn<QByteArray>("said");
        const QByteArray noText = ": the name is not UTF-8\n";

        QTest::newRow("the file") << QByteArrayList{"b\xE8t"} << QByteArray()
                                  << "b\xEF\xBF\xBDt" + noText;
        QTest::newRow("a folder of the file") << QByteArrayList{":\xFF/\x1b"} << QByteArray()
                                              << ":\xEF\xBF\xBD/\xEF\xBF\xBD" + noText;
        QTest::newRow("HOME") << QByteArrayList() << QByteArray("b\xE8t")
                              << "HOME=b\xEF\xBF\xBDt" + noText;
        // The toolkit would keep the window's size below it.
        QTest::newRow("HOME and a file") << QByteArrayList{"korvel.conf"} << QByteArray("b\xE8t")
                                         << "HOME=b\xEF\xBF\xBDt" + noText;
    }

    void namesThatAreNoText()
    {
        QFETCH(QByteArrayList, arguments);
        QFETCH(QByteArray, home);
        QFETCH(QByteArray, said);
        const QTemporaryDir folder;
        const Run run = runWithBytes(KORVEL_SETTINGS, arguments, folder.path().toUtf8(), home);
        QVERIFY(run.exited);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(run.standardError, "korvel-settings: " + said);
        QCOMPARE(namesIn(folder.path().toUtf8()), QByteArrayList());
    }

    // The previous copy is worth more than none, as long as there is no newer one.
    void aBackupThatCannotBeRenewedIsKept()
    {
        const File file(example("korvel.conf"));
        writeFile(file.backup(), "an older one");
        SettingsDocument document(file.path());
        const auto view = document.read();
        {
            const FullDisk full(100);
            QVERIFY(!document.save(*view).isEmpty());
        }
        QCOMPARE(file.bytes(), example("korvel.conf"));
        QCOMPARE(bytesOf(file.backup()), QByteArray("an older one"));
    }

    void aFullDiskLosesNothing_data()
    {
        QTest::addColumn<QByteArray>("before"); // null: no file
        QTest::newRow("a file as long as the settings") << example("korvel.conf");
        QTest::newRow("a short file") << QByteArray("korvel: { doc: { style = a; }; };\n");
        QTest::newRow("no file") << QByteArray();
    }

    void aFullDiskLosesNothing()
    {
        QFETCH(QByteArray, before);
        const File file(before);
        if (before.isNull())
            QVERIFY(QFile::remove(file.path()));
        SettingsDocument document(file.path());
        (void)document.read();
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        QString error;
        {
            const FullDisk full(100);
            error = document.save(*view);
        }
        QVERIFY(!error.isEmpty());
        QCOMPARE(file.bytes(), before);
        QCOMPARE(QFile::exists(file.path()), !before.isNull());
        QCOMPARE(document.save(*view), QString());
        QCOMPARE(linesOf(file.bytes()), linesOf(sampleAsWritten()));
    }

    void writtenByIsWhatTheRendererReads()
    {
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        QCOMPARE(linesOf(SettingsDocument::writtenBy(*view)), linesOf(sampleAsWritten()));
        QCOMPARE(SettingsDocument::writtenBy(QTreeWidget()), QByteArray());
    }

    // The hints.

    void theSampleShopHasNoMarks()
    {
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        mark(*view);
        QCOMPARE(marksOf(*view), (QMap<QString, QString>()));
    }

    void marks_data()
    {
        QTest::addColumn<QByteArray>("groups"); // of korvel
        QTest::addColumn<QStringList>("rows");  // marked, by name
        QTest::addColumn<QString>("says");      // a word of the tooltip
        const auto row = [](const char *name, const QByteArray &groups, const QStringList &rows,
                            const QString &says) { QTest::newRow(name) << groups << rows << says; };
        const auto doc = [](const QByteArray &settings) { return "doc: { " + settings + " };"; };

        row("true", doc("printDate = true;"), {}, {});
        row("false is meant", doc("printDate = false;"), {}, {});
        row("an empty switch is a missing one", doc("printDate = ;"), {}, {});
        for (const char *value : {"True", "TRUE", "yes", "on", "1", "\" true \""}) {
            const QString text = QString(value).remove('"');
            row(value, doc(QByteArray("printDate = ") + value + ";"),
                {"korvel.doc.printDate", "korvel.doc.printDate." + text}, "off");
        }

        row("a number", doc("paperWidth = 30;"), {}, {});
        row("a number with a sign", doc("paperWidth = +30;"), {}, {});
        for (const char *value : {"3.0", "3,0", "0x3", "3 columns", "wide", "4294967296"})
            row(value, doc(QByteArray("quantityFieldWidth = ") + value + ";"),
                {"korvel.doc.quantityFieldWidth",
                 QString("korvel.doc.quantityFieldWidth.") + value},
                "0");

        row("a misspelt key", doc("paperwidth = 30;"),
            {"korvel.doc.paperwidth", "korvel.doc.paperwidth.30"}, "No document");
        row("a key of an unknown group", "docs: { paperWidth = 30; };",
            {"korvel.docs.paperWidth", "korvel.docs.paperWidth.30"}, "No document");
        row("a key outside a document's group", "paperWidth = 30;",
            {"korvel.paperWidth", "korvel.paperWidth.30"}, "No document");
        row("the keys of the language", "language: { basedir = /; file = /; };", {}, {});
        row("another key of the language", "language: { name = it; };",
            {"korvel.language.name", "korvel.language.name.it"}, "No document");
        row("a key too deep", doc("inner: { paperWidth = 30; };"),
            {"korvel.doc.inner.paperWidth", "korvel.doc.inner.paperWidth.30"}, "No document");

        // W - q - p - t - 3 characters for the description of a receipt, at least one.
        row("columns that leave one character",
            "receiptdoc: { quantityFieldWidth = 10; priceFieldWidth = 10; totalPriceFieldWidth = 8;"
            " paperWidth = 32; };",
            {}, {});
        row("columns that leave none",
            "receiptdoc: { quantityFieldWidth = 10; priceFieldWidth = 10; totalPriceFieldWidth = 9;"
            " paperWidth = 32; };",
            {"korvel.receiptdoc"}, "description");
        row("without paperWidth the device's 32 count",
            "receiptdoc: { quantityFieldWidth = 10; priceFieldWidth = 10; totalPriceFieldWidth = 9;"
            " };",
            {"korvel.receiptdoc"}, "description");
        row("the full order has two characters more",
            "prefiscaldoc: { quantityFieldWidth = 10; priceFieldWidth = 10;"
            " totalPriceFieldWidth = 10; };",
            {}, {});
        row("but no more than that",
            "prefiscaldoc: { quantityFieldWidth = 10; priceFieldWidth = 10;"
            " totalPriceFieldWidth = 11; };",
            {"korvel.prefiscaldoc"}, "description");
        row("the kitchen order has no prices",
            doc("quantityFieldWidth = 28; priceFieldWidth = 9; totalPriceFieldWidth = 9;"), {}, {});
        row("the kitchen order's quantity is too wide", doc("quantityFieldWidth = 29;"),
            {"korvel.doc"}, "description");
        row("a paper wider than the printer's", doc("paperWidth = 33;"),
            {"korvel.doc.paperWidth", "korvel.doc.paperWidth.33"}, "32");
        row("the second of two groups of a name",
            "doc: { printDate = true; }; doc: { printDate = yes; };",
            {"korvel.doc.printDate", "korvel.doc.printDate.yes"}, "off");
    }

    void marks()
    {
        QFETCH(QByteArray, groups);
        QFETCH(QStringList, rows);
        QFETCH(QString, says);
        const File file("korvel: {\n" + groups + "\n};\n");
        SettingsDocument document(file.path());
        const auto view = document.read();
        const QStringList before = rowsOf(*view);
        QSignalSpy edits(view.get(), &QTreeWidget::itemChanged);
        mark(*view);
        const QMap<QString, QString> marks = marksOf(*view);
        rows.sort();
        QCOMPARE(QStringList(marks.keys()), rows);
        for (const QString &text : marks)
            QVERIFY2(text.contains(says), qPrintable(text));
        QCOMPARE(edits.size(), 0);
        QCOMPARE(rowsOf(*view), before);
    }

    // Of two groups of a name the row with the value that is hardly meant is marked.
    void theMarkedRowIsTheOneThatIsMeant()
    {
        const File file(settingsFile("doc: { printDate = true; }; doc: { printDate = yes; };"));
        SettingsDocument document(file.path());
        const auto view = document.read();
        mark(*view);
        QVERIFY(rowAt(*view, "korvel.doc.printDate")->icon(0).isNull());
        QVERIFY(!rowAt(*view, "korvel.doc#2.printDate")->icon(0).isNull());
    }

    void aMarkGoesWithItsReason()
    {
        const File file(settingsFile("doc: { printDate = yes; };"));
        SettingsDocument document(file.path());
        const auto view = document.read();
        mark(*view);
        QCOMPARE(marksOf(*view).size(), 2);
        const QTreeWidgetItem *row = rowAt(*view, "korvel.doc.printDate");
        QCOMPARE(row->data(0, Qt::AccessibleDescriptionRole).toString(), row->toolTip(0));
        setValue(*view, "korvel.doc.printDate", "true");
        mark(*view);
        QCOMPARE(marksOf(*view).size(), 0);
        QCOMPARE(row->data(0, Qt::AccessibleDescriptionRole).toString(), QString());
        QCOMPARE(row->child(0)->data(0, Qt::AccessibleDescriptionRole).toString(), QString());
    }

    void meanings_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<QStringList>("parts"); // of the text, as plain text
        const auto row = [](const QString &path, const QStringList &parts) {
            QTest::newRow(qPrintable(path)) << path << parts;
        };
        row("korvel", {});
        row("korvel.doc", {"doc", "Read by: kitchen order, summary order."});
        row("korvel.prefiscaldoc", {"prefiscaldoc", "Read by: full order."});
        row("korvel.fiscaldoc", {"fiscaldoc", "Read by: fiscal receipt, summary fiscal receipt."});
        row("korvel.receiptdoc", {"receiptdoc", "Read by: receipt, summary receipt."});
        row("korvel.invoicedoc", {"invoicedoc", "Read by: invoice, summary invoice."});
        row("korvel.deliverydoc", {"deliverydoc", "Read by: delivery note."});
        row("korvel.reportdoc", {"reportdoc", "Read by: period report, statement of account."});
        row("korvel.solddoc", {"solddoc", "Read by: sold items."});
        row("korvel.receiptdoc.quantityFieldWidth",
            {"quantityFieldWidth", "width of the quantity column",
             "Read by: receipt, summary receipt."});
        row("korvel.receiptdoc.quantityFieldWidth.3",
            {"quantityFieldWidth", "width of the quantity column",
             "Read by: receipt, summary receipt."});
        row("korvel.doc.quantityFieldWidth",
            {"quantityFieldWidth", "width of the quantity column", "Read by: kitchen order."});
        row("korvel.reportdoc.priceFieldWidth",
            {"priceFieldWidth", "in a statement, of the amount", "Read by: statement of account."});
        row("korvel.fiscaldoc.descriptionWidth",
            {"descriptionWidth", "characters of an item's name that are sent",
             "Read by: fiscal receipt."});
        row("korvel.invoicedoc.topMargin", {"topMargin", "empty lines that geometry prints",
                                            "Read by: invoice, summary invoice."});
        row("korvel.language.basedir", {"basedir", "folder"});
        row("korvel.language.file", {"file", "catalogue"});
    }

    void meanings()
    {
        QFETCH(QString, row);
        QFETCH(QStringList, parts);
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        mark(*view);
        const QTreeWidgetItem *item = rowAt(*view, row);
        QVERIFY(item);
        const QString meaning = hints::meaningOf(item);
        if (parts.isEmpty())
            QCOMPARE(meaning, QString());
        for (const QString &part : parts)
            QVERIFY2(meaning.contains(part.toHtmlEscaped()), qPrintable(meaning));
    }

    void everySettingHasAMeaning()
    {
        SettingsDocument sample(sampleFile);
        const auto view = sample.read();
        int settings = 0;
        for (QTreeWidgetItemIterator it(view.get()); *it; ++it) {
            if ((*it)->flags() & Qt::ItemIsEditable) {
                ++settings;
                QVERIFY2(!hints::meaningOf(*it).isEmpty(), qPrintable((*it)->parent()->text(0)));
                QCOMPARE(hints::meaningOf(*it), hints::meaningOf((*it)->parent()));
            }
        }
        QCOMPARE(settings, int(example("korvel.conf").count('=')));
        QCOMPARE(hints::meaningOf(nullptr), QString());
    }

    void theMeaningSaysWhatTheMarkSays()
    {
        const File file(settingsFile("doc: { printDate = yes; nothing<b>known = 1; };"));
        SettingsDocument document(file.path());
        const auto view = document.read();
        mark(*view);
        const QTreeWidgetItem *row = rowAt(*view, "korvel.doc.printDate");
        QVERIFY(hints::meaningOf(row).contains(row->toolTip(0).toHtmlEscaped()));
        const QTreeWidgetItem *unknown = rowAt(*view, "korvel.doc.nothing<b>known");
        QVERIFY(hints::meaningOf(unknown).contains(unknown->toolTip(0).toHtmlEscaped()));
        QVERIFY(!hints::meaningOf(unknown).contains("<b>known"));
    }

    // The renderer.

    void theSampleShopIsRendered_data()
    {
        QTest::addColumn<QString>("name");
        const QDir jobs(KORVEL_SOURCE_DIR "/examples/jobs");
        const QStringList names = jobs.entryList({"*.xml"}, QDir::Files);
        QCOMPARE(names.size(), 13);
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << QFileInfo(name).baseName();
    }

    void theSampleShopIsRendered()
    {
        QFETCH(QString, name);
        const TemporaryHome home(settingsFile(documentGroup("receiptdoc", "paperWidth = 10;")));
        Rendering rendering(KORVEL_PRINT);
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        QSignalSpy failed(&rendering, &Rendering::failed);
        rendering.render(example("jobs/" + name + ".xml"), example("korvel.conf"));
        QVERIFY(rendered.wait(longEnough));
        QCOMPARE(linesOf(rendered[0][0].toByteArray()),
                 linesOf(example("expected/" + name + ".out")));
        QCOMPARE(rendered[0][0].toByteArray(), example("expected/" + name + ".out"));
        QCOMPARE(rendered[0][1].toString(), QString());
        QCOMPARE(failed.size(), 0);
        // The user's home is not touched.
        QCOMPARE(
            QDir(home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList({".korvel"}));
    }

    void theRendererIsHeard()
    {
        Rendering rendering(KORVEL_PRINT);
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        rendering.render("<printjob><method name=\"printNothing\"/></printjob>", {});
        QVERIFY(rendered.wait(longEnough));
        QVERIFY2(rendered[0][1].toString().contains("File Format Not Supported"),
                 qPrintable(rendered[0][1].toString()));
    }

    void theLatestRequestWins()
    {
        Rendering rendering(KORVEL_PRINT);
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        QSignalSpy failed(&rendering, &Rendering::failed);
        for (const char *name : {"kitchen-order", "invoice", "statement", "sold-items"})
            rendering.render(example(QString("jobs/%1.xml").arg(name)), example("korvel.conf"));
        rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
        QVERIFY(rendered.wait(longEnough));
        QTest::qWait(100);
        QCOMPARE(rendered.size(), 1);
        QCOMPARE(rendered[0][0].toByteArray(), example("expected/receipt.out"));
        QCOMPARE(failed.size(), 0);
    }

    void oneRunAfterTheOther()
    {
        Rendering rendering(KORVEL_PRINT);
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        for (const char *name : {"receipt", "kitchen-order", "receipt"}) {
            rendering.render(example(QString("jobs/%1.xml").arg(name)), example("korvel.conf"));
            QVERIFY(rendered.wait(longEnough));
            QCOMPARE(rendered.takeFirst()[0].toByteArray(),
                     example(QString("expected/%1.out").arg(name)));
        }
    }

    void whatFails_data()
    {
        QTest::addColumn<QByteArray>("lines"); // of the program; null: there is none
        QTest::newRow("there is none") << QByteArray();
        QTest::newRow("it ends with a status") << QByteArray("exit 3\n");
        QTest::newRow("it wrote, and ends with a status")
            << QByteArray("echo begun > \"$2\"\nexit 1\n");
        QTest::newRow("it is killed") << QByteArray("kill -9 $$\n");
        QTest::newRow("it writes nothing") << QByteArray("exit 0\n");
        QTest::newRow("it takes its output away") << QByteArray("rm -rf \"$HOME\"\n");
    }

    void whatFails()
    {
        QFETCH(QByteArray, lines);
        const QTemporaryDir folder;
        const QString program =
            lines.isNull() ? folder.filePath("renderer") : script(folder, lines);
        Rendering rendering(program);
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        QSignalSpy failed(&rendering, &Rendering::failed);
        for (int i = 0; i < 2; ++i) {
            rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
            QVERIFY(!failed.isEmpty() || failed.wait(longEnough));
            QCOMPARE(failed.size(), 1);
            const QString reason = failed.takeFirst()[0].toString();
            QVERIFY2(reason.contains(program) && !reason.contains('\n'), qPrintable(reason));
        }
        QCOMPARE(rendered.size(), 0);
    }

    // A stream of an earlier run is no answer to a later one.
    void anOldStreamIsNotShownAgain()
    {
        const QTemporaryDir folder;
        const QString once = folder.filePath("once");
        Rendering rendering(script(folder, "test -e " + once.toUtf8() + " && exit 0\ntouch "
                                               + once.toUtf8() + "\necho first > \"$2\"\n"));
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        QSignalSpy failed(&rendering, &Rendering::failed);
        rendering.render({}, {});
        QVERIFY(rendered.wait(longEnough));
        QCOMPARE(rendered[0][0].toByteArray(), QByteArray("first\n"));
        rendering.render({}, {});
        QVERIFY(failed.wait(longEnough));
        QCOMPARE(rendered.size(), 1);
    }

    void aHangingRunGivesWayToTheNext()
    {
        const QTemporaryDir folder;
        Rendering rendering(script(folder,
                                   "grep -q hang \"$1\" && exec sleep 600\nexec " KORVEL_PRINT
                                   " \"$1\" \"$2\"\n"));
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        QSignalSpy failed(&rendering, &Rendering::failed);
        rendering.render("<hang/>", example("korvel.conf"));
        QTest::qWait(200);
        rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
        QVERIFY(rendered.wait(9000));
        QCOMPARE(rendered[0][0].toByteArray(), example("expected/receipt.out"));
        QCOMPARE(failed.size(), 0);
    }

    void aHangingRunIsStopped()
    {
        const QTemporaryDir folder;
        const QString program = script(folder, "exec sleep 600\n");
        Rendering rendering(program);
        QSignalSpy failed(&rendering, &Rendering::failed);
        rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
        QVERIFY(failed.wait(longEnough));
        QVERIFY(failed[0][0].toString().contains(program));
    }

    void aHangingRunEndsWithTheObject()
    {
        const QTemporaryDir folder;
        const QString note = folder.filePath("process");
        {
            Rendering rendering(
                script(folder, "echo $$ > " + note.toUtf8() + "\nexec sleep 600\n"));
            rendering.render({}, {});
            QTRY_VERIFY_WITH_TIMEOUT(bytesOf(note).endsWith('\n'), longEnough);
        }
        const auto process = pid_t(bytesOf(note).trimmed().toInt());
        QVERIFY(process > 0);
        QCOMPARE(kill(process, 0), -1);
    }

    void theRendererIsFoundBesideTheProgramOrInThePath()
    {
        const QByteArray before = qgetenv("PATH");
        const QTemporaryDir folder;
        const QString here = QCoreApplication::applicationDirPath() + "/korvel-print";
        QVERIFY2(!QFile::exists(here), "the test stands beside a renderer");
        qputenv("PATH", QFile::encodeName(folder.path()));
        const QString none = Rendering::findRenderer();
        QVERIFY(QFile::rename(script(folder, "exit 0\n"), folder.filePath("korvel-print")));
        const QString inPath = Rendering::findRenderer();
        qputenv("PATH", before);
        QCOMPARE(none, QString("korvel-print"));
        QCOMPARE(inPath, folder.filePath("korvel-print"));
    }
};

QTEST_MAIN(TestSettings)

#include "tst_settings.moc"
