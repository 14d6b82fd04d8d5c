// The limits of a settings file: groups, settings, names and values, each at its edge and beyond.
#include "config/config.h"
#include "support/test.h"

namespace tst_tree {

constexpr qsizetype mostGroups = 262144;
constexpr qsizetype mostSettings = 262144;
constexpr qsizetype mostText = 16777216;

/// A store of settings in memory.
class Store : public libconfig::Config
{
public:
    using Config::document;

    explicit Store(const QByteArray &bytes, const QString &notation = "cfg")
    {
        readBytes(bytes, "settings", notation);
    }

    /// Groups of the toolkit's tree, the file's own element left out, and settings.
    [[nodiscard]] std::pair<qsizetype, qsizetype> counts() const
    {
        std::pair<qsizetype, qsizetype> sum{-1, 0};
        add(document->documentElement(), sum);
        return sum;
    }

private:
    static void add(const QDomElement &group, std::pair<qsizetype, qsizetype> &sum)
    {
        ++sum.first;
        sum.second += group.attributes().count();
        for (QDomElement child = group.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            add(child, sum);
    }
};

QByteArray times(qsizetype count, const QByteArray &piece) { return piece.repeated(count); }

class TestTree : public QObject
{
    Q_OBJECT

private slots:
    /// "k" and "last" are groups too; a group has an `x` in it, or it would leave no trace.
    void groups_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<qsizetype>("others");
        QTest::addColumn<qsizetype>("kept");
        QTest::addColumn<QString>("last");

        for (const QString notation : {"cfg", "xml"}) {
            const auto row = [&](const char *name, qsizetype others, qsizetype kept,
                                 const QString &last) {
                QTest::addRow("%s, %s", qPrintable(notation), name)
                    << notation << others << kept << last;
            };
            row("one below", mostGroups - 3, mostGroups - 1, "9");
            row("as many as can be", mostGroups - 2, mostGroups, "9");
            row("one more", mostGroups - 1, mostGroups, "");
        }
    }

    void groups()
    {
        QFETCH(QString, notation);
        QFETCH(qsizetype, others);
        QFETCH(qsizetype, kept);
        QFETCH(QString, last);
        // Groups of groups, so that none but the last has a setting: these have a limit too.
        const qsizetype pairs = others / 2;
        const bool odd = others % 2 != 0;
        const QByteArray file = notation == "cfg"
                                    ? "k:{" + times(pairs, "a:{b:{:{};};};")
                                          + (odd ? "a:{:{};};" : "") + "last:{y=9;};z=1;};"
                                    : "<k z='1'>" + times(pairs, "<a><b/></a>")
                                          + (odd ? "<a/>" : "") + "<last y='9'/></k>";
        const Store store(file, notation);
        QCOMPARE(store.lookup("k.last.y"), last);
        QCOMPARE(store.lookup("k.z"), "1");
        QCOMPARE(store.counts().first, kept);
    }

    void settings_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<qsizetype>("others");
        QTest::addColumn<QString>("last");

        for (const QString notation : {"cfg", "xml"}) {
            const auto row = [&](const char *name, qsizetype others, const QString &last) {
                QTest::addRow("%s, %s", qPrintable(notation), name) << notation << others << last;
            };
            row("one below", mostSettings - 2, "9");
            row("as many as can be", mostSettings - 1, "9");
            row("one more", mostSettings, "");
        }
    }

    void settings()
    {
        QFETCH(QString, notation);
        QFETCH(qsizetype, others);
        QFETCH(QString, last);
        // Eight settings a group: groups have a limit too.
        const qsizetype groups = others / 8;
        const qsizetype rest = others % 8;
        QByteArray file = notation == "cfg" ? "k:{" : "<k>";
        const auto group = [&](qsizetype count) {
            QByteArray inner;
            for (qsizetype i = 0; i < count; ++i)
                inner += notation == "cfg" ? 's' + QByteArray::number(i) + "=1;"
                                           : " s" + QByteArray::number(i) + "='1'";
            return notation == "cfg" ? "a:{" + inner + "};" : "<a" + inner + "/>";
        };
        file += times(groups, group(8)) + (rest > 0 ? group(rest) : "");
        file += notation == "cfg" ? "last:{y=9;};};" : "<last y='9'/></k>";
        const Store store(file, notation);
        QCOMPARE(store.lookup("k.last.y"), last);
        QCOMPARE(store.lookup("k.a.s7"), "1");
        QCOMPARE(store.counts().second, std::min(others + 1, mostSettings));
    }

    /// A name or a value that takes the last character there is room for. In XML, names are short.
    void text_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QByteArray>("file"); // with # for what is long
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<qsizetype>("others"); // characters of all other names and values

        const auto row = [](const char *name, const QString &notation, const QByteArray &file,
                            const QString &key, const QString &value, qsizetype others) {
            QTest::newRow(name) << notation << file << key << value << others;
        };
        row("a value", "cfg", "k:{v=\"#\";};", "k.v", "#", 2);
        row("a value in XML", "xml", "<k v='#'/>", "k.v", "#", 2);
        row("a name", "cfg", "k:{#=1;};", "k.#", "1", 2);
        row("a name of a group", "cfg", "k:{#:{v=1;};};", "k.#.v", "1", 3);
        row("many values", "cfg", "k:{u=\"1234567890\";v=\"#\";};", "k.v", "#", 13);
    }

    void text()
    {
        QFETCH(QString, notation);
        QFETCH(QByteArray, file);
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(qsizetype, others);
        for (const qsizetype beyond : {-1, 0, 1}) {
            const QByteArray text = times(mostText - others + beyond, "x");
            const Store store(QByteArray(file).replace("#", text), notation);
            const QString expected = beyond > 0 ? QString() : QString(value).replace("#", text);
            QVERIFY(store.lookup(QString(key).replace("#", text)) == expected);
        }
    }

    /// What is too long for the whole of a file is read over without being kept, and what stands
    /// behind it counts.
    void tooLong_data()
    {
        QTest::addColumn<QByteArray>("file");

        const QByteArray text = times(mostText + 1, "x");
        QTest::newRow("a value") << "k:{v=" + text + ";last=9;};";
        QTest::newRow("a name") << "k:{" + text + "=1;last=9;};";
        QTest::newRow("a name of a group") << "k:{" + text + ":{v=1;};last=9;};";
        QTest::newRow("text before a group") << "k:{a:" + text + "{v=1;};last=9;};";
        QTest::newRow("text behind a group") << "k:{a:{v=1;}" + text + ";last=9;};";
        QTest::newRow("white space before a name")
            << "k:{" + times(mostText + 1, "\t") + "last=9;};";
        QTest::newRow("white space before a value")
            << "k:{last=" + times(mostText + 1, "\r") + "9;};";
    }

    void tooLong()
    {
        QFETCH(QByteArray, file);
        QCOMPARE(Store(file).lookup("k.last"), "9");
    }
};

KORVEL_TEST(TestTree)

} // namespace tst_tree

#include "tst_tree.moc"
