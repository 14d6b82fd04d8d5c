// Paths: bytes to texts and back without a loss, and files opened under exactly these bytes.
#include "config/path.h"
#include "support/bytenames.h"
#include "support/test.h"

#include <QScopeGuard>
#include <QSet>
#include <QTemporaryDir>

#include <random>
#include <thread>

namespace tst_path {

using korvel::path::Kind;

QString decoded(const QByteArray &bytes) { return korvel::path::fromBytes(bytes); }

QByteArray encoded(const QString &path) { return korvel::path::toBytes(path); }

/// Bytes that are no UTF-8, as they stand in a path.
QString lone(const QByteArray &bytes)
{
    QString text;
    for (const char byte : bytes)
        text += QChar(0xDC00 + uchar(byte));
    return text;
}

class TestPath : public QObject
{
    Q_OBJECT

private slots:
    void texts_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("path");
        const auto row = [](const char *what, const QByteArray &bytes, const QString &path) {
            QTest::newRow(what) << bytes << path;
        };

        row("nothing", "", "");
        row("a plain path", "/home/shop/job.xml", "/home/shop/job.xml");
        row("a letter of two bytes", "caff\xC3\xA8", QString("caff") + QChar(0xE8));
        row("a character of three bytes", "\xE2\x82\xAC", QChar(0x20AC));
        row("a character of four bytes, a pair", "\xF0\x9F\x98\x80",
            QString(QChar(0xD83D)) + QChar(0xDE00));
        row("the last character of all", "\xF4\x8F\xBF\xBF",
            QString(QChar(0xDBFF)) + QChar(0xDFFF));
        row("a byte order mark stays", "\xEF\xBB\xBFx", QString(QChar(0xFEFF)) + 'x');
        row("a byte order mark behind a byte stays", "\xFF\xEF\xBB\xBFx",
            lone("\xFF") + QChar(0xFEFF) + 'x');
        row("a replacement character stays", "\xEF\xBF\xBD", QChar(0xFFFD));
        row("a byte beyond ASCII", "b\xE8t", 'b' + lone("\xE8") + 't');
        row("the first byte beyond ASCII", "\x80", lone("\x80"));
        row("the last byte", "\xFF", lone("\xFF"));
        row("half a character at the end", "x\xC3", 'x' + lone("\xC3"));
        row("two thirds of a character", "\xE2\x82/", lone("\xE2\x82") + '/');
        row("a byte behind a character", "\xC3\xA8\xE8", QChar(0xE8) + lone("\xE8"));
        row("a byte behind a pair", "\xF0\x9F\x98\x80\x80",
            QString(QChar(0xD83D)) + QChar(0xDE00) + lone("\x80"));
        row("a pair in six bytes", "\xED\xA0\xBD\xED\xB8\x80", lone("\xED\xA0\xBD\xED\xB8\x80"));
        row("the first half of a pair", "\xED\xA0\x80", lone("\xED\xA0\x80"));
        row("what stands for a byte, in three bytes", "\xED\xB3\xA8", lone("\xED\xB3\xA8"));
        row("an overlong slash", "\xC0\xAF", lone("\xC0\xAF"));
        row("an overlong NUL", "\xC0\x80", lone("\xC0\x80"));
        row("an overlong slash of three bytes", "\xE0\x80\xAF", lone("\xE0\x80\xAF"));
        row("beyond the last character", "\xF4\x90\x80\x80", lone("\xF4\x90\x80\x80"));
    }

    void texts()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, path);
        QCOMPARE(decoded(bytes), path);
        QCOMPARE(encoded(path), bytes);
    }

    void allBytesComeBack()
    {
        QByteArray bytes;
        const auto check = [&] { return encoded(decoded(bytes)) == bytes; };
        for (int first = 1; first < 256; ++first) {
            bytes = QByteArray(1, char(first));
            QVERIFY2(check(), bytes.toHex());
            for (int second = 1; second < 256; ++second) {
                bytes = QByteArray(1, char(first)) + char(second);
                QVERIFY2(check(), bytes.toHex());
            }
        }
        // Every lead of three and four bytes with what may follow it, and what may not.
        for (int lead = 0xE0; lead < 256; ++lead)
            for (int second = 0x70; second < 0xD0; ++second)
                for (const char *rest : {"", "\x80", "\xBF", "\x7F", "\x80\x80", "\xBF\xBF"}) {
                    bytes = QByteArray(1, char(lead)) + char(second) + rest;
                    QVERIFY2(check(), bytes.toHex());
                }
    }

    void randomBytesComeBack()
    {
        std::mt19937 random(7);
        // Such bytes often begin or go on with a character.
        const QByteArray likely = "a:/\x80\x9F\xA0\xBB\xBF\xC3\xE8\xED\xEF\xF0\xF4\xFF";
        QSet<QString> paths;
        QSet<QByteArray> all;
        for (int i = 0; i < 20000; ++i) {
            QByteArray bytes;
            for (auto length = random() % 12; length > 0; --length)
                bytes += i % 2 == 0 ? char(1 + random() % 255)
                                    : likely[qsizetype(random() % size_t(likely.size()))];
            const QString path = decoded(bytes);
            QVERIFY2(encoded(path) == bytes, bytes.toHex());
            QCOMPARE(path.isValidUtf16(), bytes.isValidUtf8());
            paths.insert(path);
            all.insert(bytes);
        }
        QCOMPARE(paths.size(), all.size()); // no two bytes are the same path
    }

    void forToolkit_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("path");
        const auto row = [](const char *what, const QByteArray &bytes, const QString &path) {
            QTest::newRow(what) << bytes << path;
        };

        row("a name", "name", "name");
        row("absolute", "/:name", "/:name");
        row("empty", "", "");
        row("a colon first", ":name", "./:name");
        row("colons first", "::/name", "./::/name");
        row("a colon inside", "a:name", "a:name");
        row("a letter beyond ASCII", "\xC3\xA8", QChar(0xE8));
        row("no UTF-8", "b\xE8t", "");
        row("a colon first and no UTF-8", ":\xFF", "");
    }

    void forToolkit()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, path);
        QCOMPARE(korvel::path::forToolkit(decoded(bytes)), path);
    }

    void kinds_data() { addByteNames(); }

    void kinds()
    {
        QFETCH(QByteArray, name);
        const QByteArray path = inFolder(name);
        QCOMPARE(korvel::path::kindOf(decoded(path)), Kind::Nothing);
        writeNamed(path, "x");
        QCOMPARE(korvel::path::kindOf(decoded(path)), Kind::File);
        QCOMPARE(korvel::path::kindOf(decoded(path + "/x")), Kind::Nothing);
        std::filesystem::remove(path.toStdString());
        std::filesystem::create_directory(path.toStdString());
        QCOMPARE(korvel::path::kindOf(decoded(path)), Kind::Other);
        std::filesystem::remove(path.toStdString());
        std::filesystem::create_symlink("missing", path.toStdString());
        QCOMPARE(korvel::path::kindOf(decoded(path)), Kind::Nothing);
    }

    void kindsOfWhatIsNoFile()
    {
        QCOMPARE(korvel::path::kindOf(QString()), Kind::Nothing);
        QCOMPARE(korvel::path::kindOf("."), Kind::Other);
        QCOMPARE(korvel::path::kindOf("/dev/null"), Kind::Other);
        QCOMPARE(mkfifo(inFolder("fifo").constData(), 0600), 0);
        QCOMPARE(korvel::path::kindOf(decoded(inFolder("fifo"))), Kind::Other);
    }

    void opensAnyName_data() { addByteNames(); }

    void opensAnyName()
    {
        QFETCH(QByteArray, name);
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder->path()));
        const auto restore = qScopeGuard([&] { QDir::setCurrent(before); });
        for (const QByteArray &path : {name, inFolder(name)}) {
            QFile written;
            QVERIFY(korvel::path::open(written, decoded(path), QIODevice::WriteOnly));
            written.write("one\n");
            written.close();
            QFile read;
            QVERIFY(korvel::path::open(read, decoded(path), QIODevice::ReadOnly));
            QCOMPARE(read.readAll(), "one\n");
            QCOMPARE(namesIn(folder->path().toUtf8()), QByteArrayList{name});
            std::filesystem::remove(path.toStdString());
        }
    }

    // What opening does to a file is what the toolkit's does to one of a plain name.

    void opensAsTheToolkit_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("name");

        // clang-format off
        const std::pair<const char *, QIODevice::OpenMode> modes[] = {
            {"to read",               QIODevice::ReadOnly                       },
            {"to write",              QIODevice::WriteOnly                      },
            {"to read and write",     QIODevice::ReadWrite                      },
            {"to append",             QIODevice::Append                         },
            {"to write and append",   QIODevice::WriteOnly | QIODevice::Append  },
            {"to read and append",    QIODevice::ReadWrite | QIODevice::Append  },
            {"to empty, read, write", QIODevice::ReadWrite | QIODevice::Truncate},
            {"to write, as text",     QIODevice::WriteOnly | QIODevice::Text    },
        };
        // clang-format on
        for (const auto &[what, mode] : modes)
            for (const char *name :
                 {"file", "missing", "folder", "folder/missing", "file/below", "missing/below",
                  "link", "dangling", ".", "/dev/null", "/dev/full"})
                QTest::addRow("%s: %s", what, name) << int(mode) << name;
    }

    void opensAsTheToolkit()
    {
        QFETCH(int, mode);
        QFETCH(QString, name);
        const auto outcome = [&](const auto &open) {
            const QTemporaryDir place;
            const QString path = name.startsWith('/') ? name : place.filePath(name);
            writeNamed(place.filePath("file").toUtf8(), "before\n");
            QDir(place.path()).mkdir("folder");
            QFile::link("file", place.filePath("link"));
            QFile::link("new", place.filePath("dangling"));

            QStringList said;
            QFile file;
            const bool opened = open(file, path, QIODevice::OpenMode(mode));
            said.append(opened ? "opened" : "not opened");
            if (opened) {
                said.append(QString::number(file.openMode().toInt(), 16));
                said.append(file.isSequential() ? "sequential" : "with places");
                said.append(QString::number(file.pos()));
                said.append(QString::number(file.size()));
                said.append(file.isReadable() ? file.read(100) : "unread");
                said.append(QString::number(file.isWritable() ? file.write("new\n") : 0));
                said.append(file.flush() ? "flushed" : "not flushed");
                said.append(fcntl(file.handle(), F_GETFD) == FD_CLOEXEC ? "own" : "inherited");
                file.close();
            }
            for (const QByteArray &entry : namesIn(place.path().toUtf8())) {
                const QString child = place.filePath(entry);
                said.append(entry + ": " + bytesNamed(child.toUtf8()) + ' '
                            + QString::number(int(QFile::permissions(child)), 16));
            }
            return said;
        };
        QCOMPARE(outcome(korvel::path::open),
                 outcome([](QFile &file, const QString &path, QIODevice::OpenMode how) {
                     file.setFileName(path);
                     return file.open(how);
                 }));
    }

    void saysWhyItDoesNotOpen()
    {
        const auto reason = [](const QString &path, QIODevice::OpenMode mode) {
            QFile file;
            return korvel::path::open(file, path, mode) ? 0 : errno;
        };
        writeNamed(inFolder("b\xE8t"), "x");
        QCOMPARE(reason(decoded(inFolder("missing\xE8")), QIODevice::ReadOnly), ENOENT);
        QCOMPARE(reason(decoded(inFolder("b\xE8t/x")), QIODevice::ReadOnly), ENOTDIR);
        QCOMPARE(reason(folder->path(), QIODevice::ReadOnly), EISDIR);
        QCOMPARE(reason(folder->path(), QIODevice::WriteOnly), EISDIR);
        QCOMPARE(reason("", QIODevice::ReadOnly), ENOENT);
    }

    void closesWithTheFile()
    {
        int descriptor = -1;
        {
            QFile file;
            QVERIFY(korvel::path::open(file, decoded(inFolder(":\xFF")), QIODevice::WriteOnly));
            descriptor = file.handle();
            QVERIFY(fcntl(descriptor, F_GETFD) >= 0);
        }
        QCOMPARE(fcntl(descriptor, F_GETFD), -1);
    }

    void fifosOfAnyName()
    {
        const QByteArray name = inFolder(":\xE8");
        QCOMPARE(mkfifo(name.constData(), 0600), 0);
        std::thread writer([&] {
            QFile file;
            if (korvel::path::open(file, decoded(name), QIODevice::WriteOnly))
                file.write("through\n");
        });
        const auto join = qScopeGuard([&] { writer.join(); });
        QFile file;
        QVERIFY(korvel::path::open(file, decoded(name), QIODevice::ReadOnly));
        QVERIFY(file.isSequential());
        QCOMPARE(file.readAll(), "through\n");
    }

    void home_data()
    {
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<QByteArray>("path");
        const auto row = [](const char *what, const QByteArray &variable, const QByteArray &path) {
            QTest::newRow(what) << variable << path;
        };

        row("unset", QByteArray(), "/");
        row("empty", "", "/");
        row("a folder", "/home/shop", "/home/shop");
        row("slashes and dots", "/home//./shop/x/..//", "/home/shop");
        row("relative", "shop/", "shop");
        row("a colon first", ":shop/", ":shop");
        row("no UTF-8", "/home/b\xE8t/", "/home/b\xE8t");
        row("a byte order mark first", "\xEF\xBB\xBFshop", "\xEF\xBB\xBFshop");
        row("a byte order mark first, left as it is", "\xEF\xBB\xBFx/../shop//",
            "\xEF\xBB\xBFx/../shop//");
        row("no UTF-8, and dots", "b\xE8t/\xFF/../x", "b\xE8t/x");
    }

    void home()
    {
        QFETCH(QByteArray, variable);
        QFETCH(QByteArray, path);
        const QByteArray before = qgetenv("HOME");
        const auto restore = qScopeGuard([&] { qputenv("HOME", before); });
        if (variable.isNull())
            qunsetenv("HOME");
        else
            qputenv("HOME", variable);
        QCOMPARE(encoded(korvel::path::home()), path);
    }

    void init() { folder = std::make_unique<QTemporaryDir>(); }

    void cleanup() { const Sweeper sweeper(folder->path()); }

private:
    [[nodiscard]] QByteArray inFolder(const QByteArray &name) const
    {
        return folder->path().toUtf8() + '/' + name;
    }

    std::unique_ptr<QTemporaryDir> folder;
};

KORVEL_TEST(TestPath)

} // namespace tst_path

#include "tst_path.moc"
