// The limits on settings files: deep groups, many settings, long names and values.
#include "support/limits.h"
#include "support/store.h"
#include "support/test.h"

namespace tst_limitssettings {

/// A group of the brace notation within others of the same name: `depth` of them in all.
QByteArray nestedGroups(int depth, const QByteArray &inner)
{
    return times(depth, "g:{") + inner + times(depth, "};");
}

QByteArray nestedElements(int depth, const QByteArray &attributes)
{
    return times(depth - 1, "<g>") + "<g " + attributes + "/>" + times(depth - 1, "</g>");
}

/// The key of a setting within that many groups.
QString nestedKey(int depth, const QString &setting)
{
    return QString("g.").repeated(depth) + setting;
}

class TestLimitsSettings : public QObject
{
    Q_OBJECT

private slots:
    void settingsGroups_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<int>("depth");
        QTest::addColumn<bool>("read");

        for (const char *notation : {"cfg", "xml"}) {
            const auto row = [&](const char *title, int depth, bool read) {
                QTest::addRow("%s: %s", notation, title) << QString(notation) << depth << read;
            };
            row("999 deep", 999, true);
            row("1,000 deep", 1000, true);
            row("1,001 deep", 1001, false);
            row("200,000 deep", 200000, false);
        }
    }

    void settingsGroups()
    {
        QFETCH(QString, notation);
        QFETCH(int, depth);
        QFETCH(bool, read);
        const bool xml = notation == "xml";
        // The deepest group, beside it one that is no deeper than the limit, and what follows both.
        const QByteArray bytes = xml ? "<g>" + nestedElements(depth - 1, "s=\"deep\"")
                                           + "<g s=\"near\"/><h s=\"after\"/></g>"
                                     : "g:{" + nestedGroups(depth - 1, "s = deep;")
                                           + "g:{ s = near; }; h:{ s = after; }; s = here; };";
        const FileStore settings(bytes, notation);
        QCOMPARE(settings.lookup(nestedKey(depth, "s")), QString(read ? "deep" : ""));
        QCOMPARE(settings.lookup(nestedKey(depth + 1, "s")), QString());
        QCOMPARE(settings.lookup("g.g.s"), QString("near"));
        QCOMPARE(settings.lookup("g.h.s"), QString("after"));
        QCOMPARE(settings.lookup("g.s"), QString(xml ? "" : "here"));
    }

    void settingsOfTheDeepestGroupThatIsRead_data() { settingsNotations(); }

    void settingsOfTheDeepestGroupThatIsRead()
    {
        QFETCH(QString, notation);
        // The thousandth group has settings before and after one that is too deep.
        const QByteArray bytes =
            notation == "xml"
                ? times(999, "<g>") + R"(<g a="before" b="after"><g s="deep"/></g>)"
                      + times(999, "</g>")
                : nestedGroups(1000, "a = before; g:{ s = deep; g:{ s = deeper; }; }; b = after;");
        const FileStore settings(bytes, notation);
        QCOMPARE(settings.lookup(nestedKey(1000, "a")), QString("before"));
        QCOMPARE(settings.lookup(nestedKey(1000, "b")), QString("after"));
        QCOMPARE(settings.lookup(nestedKey(1001, "s")), QString());
    }

    void groupsWithoutAnEnd()
    {
        const FileStore settings("g:{ s = read; " + times(200000, "g:{ s = x; "), "cfg");
        QCOMPARE(settings.lookup("g.s"), QString("read"));
        QCOMPARE(settings.lookup(nestedKey(1000, "s")), QString("x"));
        QCOMPARE(settings.lookup(nestedKey(1001, "s")), QString());
    }

    void malformedXmlSettings()
    {
        const FileStore settings("<g s=\"read\">" + times(50000, "<g>"), "xml");
        QCOMPARE(settings.lookup("g.s"), QString());
    }

    void deepSettingsInARun()
    {
        const Shop shop("korvel:{ doc:{ " + nestedGroups(200000, "s = x;")
                        + "quantityFieldWidth = 3; }; };");
        VERIFY_QUIET(shop.render(
            R"(<job><method name="printPartialOrder"/><receipe number="2" name="X"/></job>)"));
        QCOMPARE(difference(shop.output(), "=o\n" + line("  2 X" + times(25, " ")) + "=o\n"),
                 QString());
    }

    /// A megabyte of groups is read; of twelve the first part is, and the rest is read over.
    void manySettingsInARun()
    {
        constexpr auto job =
            R"(<job><method name="printPartialOrder"/><receipe number="2" name="X"/></job>)";
        const QByteArray sound = "doc:{ quantityFieldWidth = 3; };";
        const QByteArray printed = "=o\n" + line("  2 X" + times(25, " ")) + "=o\n";
        for (const QByteArray &groups :
             {times(120000, "a:{b=1;};") + sound, sound + times(1200000, "a:{b=1;};")}) {
            const Shop shop("korvel:{" + groups + "};");
            VERIFY_QUIET(shop.render(job));
            QCOMPARE(difference(shop.output(), printed), QString());
        }
    }

    void namesAndValues_data() { settingsNotations(); }

    void namesAndValues()
    {
        QFETCH(QString, notation);
        for (const int length : {2047, 2048, 2049, 100000}) {
            const QByteArray group = times(length, "g");
            const QByteArray name = times(length, "n");
            const QByteArray value = times(length, "v");
            if (notation == "xml" && length > 4096)
                continue; // the toolkit takes no longer name for well-formed
            const FileStore settings(notation == "xml" ? "<k><" + group + ' ' + name + "=\"" + value
                                                             + "\" o=\"other\"/></k>"
                                                       : "k: { " + group + ": { " + name + " = \""
                                                             + value + "\"; o = \"other\"; }; };",
                                     notation);
            const auto lookup = [&](const QByteArray &setting) {
                return settings.lookup("k." + QString(group) + '.' + setting).toUtf8();
            };
            QCOMPARE(difference(lookup(name), value), QString());
            QCOMPARE(lookup(name.chopped(1)), QByteArray());
            QCOMPARE(lookup("o"), QByteArray("other"));
        }
    }

    void longSettings_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QByteArray>("piece");

        QTest::newRow("settings of a group") << 50000 << QByteArray("s# = v;\n");
        QTest::newRow("the same setting again") << 50000 << QByteArray("s = v;\n");
        QTest::newRow("groups") << 50000 << QByteArray("g#: { s = v; };\n");
        QTest::newRow("the same group again") << 50000 << QByteArray("g: { s = v; };\n");
        QTest::newRow("empty groups") << 50000 << QByteArray("g#: { };\n");
        QTest::newRow("groups without a name") << 50000 << QByteArray(": { s = v; };\n");
        QTest::newRow("settings without a name") << 50000 << QByteArray("= v;\n");
        QTest::newRow("stray text") << 50000 << QByteArray("stray } ; ");
    }

    void longSettings()
    {
        QFETCH(int, count);
        count /= slowness;
        QFETCH(QByteArray, piece);
        const Shop shop(
            "korvel: { solddoc: { quantityFieldWidth = 3; }; doc: {\n"
            + each(count, [&](const QByteArray &i) { return QByteArray(piece).replace('#', i); })
            + "}; };");
        VERIFY_QUIET(shop.render(R"(<job><method name="printSold"/>
            <receipe quantity="7" description="X" amount="9"/></job>)"));
        // 32 - 3 - 3 characters for the description.
        QCOMPARE(
            difference(shop.output(), "=o\n" + line("  7 x X" + times(25, ".") + '9') + "=o\n"),
            QString());
    }

private:
    static void settingsNotations()
    {
        QTest::addColumn<QString>("notation");

        QTest::newRow("braces") << "cfg";
        QTest::newRow("XML") << "xml";
    }
};

KORVEL_TEST(TestLimitsSettings)

} // namespace tst_limitssettings

#include "tst_limitssettings.moc"
