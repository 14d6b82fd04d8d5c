// The limits on entities of jobs: how many, how much text, and how often they are referred to.
#include "support/limits.h"
#include "support/test.h"

namespace tst_limitsentities {

QByteArray entity(const QByteArray &name, const QByteArray &text)
{
    return "<!ENTITY " + name + " \"" + text + "\">";
}

class TestLimitsEntities : public QObject
{
    Q_OBJECT

private slots:
    /// The name is printed, or the job ends before its first element.
    void entities_data()
    {
        QTest::addColumn<QByteArray>("declarations");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("printed"); // null when the job ends

        const auto row = [](const char *title, const QByteArray &declarations,
                            const QByteArray &name, const QByteArray &printed) {
            QTest::newRow(title) << declarations << name << printed;
        };
        const QByteArray ends;

        // How many.
        const auto general = [](const QByteArray &i) { return entity("e" + i, "text" + i); };
        const auto parameter = [](const QByteArray &i) { return entity("% p" + i, "text" + i); };
        const auto external = [](const QByteArray &i) {
            return "<!ENTITY x" + i + " SYSTEM \"missing" + i + "\">";
        };
        row("63 entities", each(63, general), "&e62;", "text62");
        row("64 entities", each(64, general), "&e63;", "text63");
        row("65 entities", each(65, general), "&e0;", ends);
        row("3 parameter entities", each(3, parameter), "X", "X");
        row("4 parameter entities, more than the reader takes", each(4, parameter), "X", ends);
        row("64 external entities", each(64, external), "X", "X");
        row("65 external entities", each(65, external), "X", ends);
        row("64 of all kinds", each(30, general) + each(31, external) + each(3, parameter), "&e9;",
            "text9");
        row("65 of all kinds", each(30, general) + each(32, external) + each(3, parameter), "&e9;",
            ends);
        row("100,000 entities", each(100000, general), "X", ends);

        // How much text.
        row("no text", entity("e", ""), "&e;", "");
        for (const int length : {4095, 4096, 4097}) {
            const auto named = [&](const char *what) {
                return QByteArray(what) + ' ' + QByteArray::number(length);
            };
            const QByteArray text = times(length, "x");
            row(named("a text of"), entity("e", text), "&e;", length > 4096 ? ends : text);
            row(named("a text that is not referred to, of"), entity("e", text), "X",
                length > 4096 ? ends : "X");
            row(named("two texts that come to"),
                entity("e", times(4000, "x")) + entity("f", times(length - 4000, "y")), "&f;",
                length > 4096 ? ends : times(length - 4000, "y"));
            row(named("character references that come to"), entity("e", times(length, "&#120;")),
                "&e;", length > 4096 ? ends : text);

            // 1,023 of its own, three times 1,023 beside 3, 4 or 5 further ones.
            const QByteArray inner = entity("i", times(1023, "x"));
            const QByteArray outer = entity("o", "&i;&i;&i;" + times(length - 4092, "y"));
            const QByteArray expanded = times(3069, "x") + times(length - 4092, "y");
            row(named("nested texts that come to"), inner + outer, "&o;",
                length > 4096 ? ends : expanded);
            row(named("nested texts, declared in reverse order, that come to"), outer + inner,
                "&o;", length > 4096 ? ends : expanded);
            row(named("texts nested by character references that come to"),
                inner + entity("o", "&#38;i;&#x26;i;&i;" + times(length - 4092, "y")), "&o;",
                length > 4096 ? ends : expanded);
            row(named("texts of parameter entities that come to"),
                entity("% i", times(1023, "x"))
                    + entity("o", "%i;%i;%i;" + times(length - 4092, "y")),
                "&o;", length > 4096 ? ends : expanded);
        }
        row("a text of 3,000,000", entity("e", times(3000000, "x")), "X", ends);
        row("ten times ten, five deep",
            entity("a", times(10, "x")) + entity("b", times(10, "&a;"))
                + entity("c", times(10, "&b;")) + entity("d", times(10, "&c;"))
                + entity("e", times(10, "&d;")),
            "X", ends);
        row("ten times ten, sixty deep in reverse order",
            each(60,
                 [](const QByteArray &i) {
                     return entity("e" + QByteArray::number(60 - i.toInt()),
                                   times(10, "&e" + QByteArray::number(59 - i.toInt()) + ';'));
                 })
                + entity("e0", "x"),
            "X", ends);

        // Without an end, or without a text.
        row("an entity of itself", entity("a", "&a;"), "&a;", ends);
        row("an entity of itself that is not referred to", entity("a", "&a;"), "X", ends);
        row("two entities of each other", entity("a", "&b;") + entity("b", "&a;"), "&a;", ends);
        row("entities in a circle",
            entity("a", "&b;") + entity("b", "&c;") + entity("c", "&d;") + entity("d", "&b;"), "X",
            ends);
        row("a circle by character references",
            entity("a", "&#38;b;") + entity("b", "&#x26;#38;a;") + entity("b2", "&#38;a;"), "X",
            "X"); // "&#38;a;" is a text of its own: nothing refers to it again
        row("a true circle by character references",
            entity("a", "&#38;b;") + entity("b", "&#x26;a;"), "&a;", ends);
        row("a parameter entity of itself", entity("% a", "&#37;a;") + "%a;", "X", ends);
        row("two parameter entities of each other",
            entity("% a", "&#37;b;") + entity("% b", "&#37;a;") + "%a;", "X", ends);
        row("empty texts, twenty times twenty, fifty deep",
            entity("e0", "")
                + each(50,
                       [](const QByteArray &i) {
                           return entity("e" + QByteArray::number(i.toInt() + 1),
                                         times(20, "&e" + i + ';'));
                       }),
            "X", ends);
        row("empty texts, twenty parameter entities deep",
            entity("% e0", "")
                + each(20,
                       [](const QByteArray &i) {
                           return entity("% e" + QByteArray::number(i.toInt() + 1),
                                         times(20, "&#37;e" + i + ';'));
                       })
                + "%e20;",
            "X", ends);
        row("a chain without branches",
            entity("e0", "end")
                + each(63,
                       [](const QByteArray &i) {
                           return entity("e" + QByteArray::number(i.toInt() + 1), "&e" + i + ';');
                       }),
            "&e63;", "end");
    }

    void entities()
    {
        QFETCH(QByteArray, declarations);
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, printed);
        const Shop shop(noSettings);
        VERIFY_QUIET(shop.render(fiscalJob(declaring(declarations), sale(name))));
        QCOMPARE(difference(shop.output(), printed.isNull()
                                               ? QByteArray()
                                               : fiscalOpening + saleRow(printed) + fiscalClosing),
                 QString());
    }

    void charactersReferredToInAll_data()
    {
        QTest::addColumn<int>("references"); // of one character each, after 1,048,320
        QTest::addColumn<int>("printed");
        QTest::addColumn<bool>("sound");

        QTest::newRow("1,048,575") << 255 << 255 << true;
        QTest::newRow("1,048,576") << 256 << 256 << true;
        QTest::newRow("1,048,577") << 257 << 256 << false;
        QTest::newRow("many more") << 20000 << 256 << false;
    }

    void charactersReferredToInAll()
    {
        QFETCH(int, references);
        QFETCH(int, printed);
        QFETCH(bool, sound);
        const Shop shop(noSettings);
        const QByteArray text = times(4095, "x");
        VERIFY_QUIET(
            shop.render(fiscalJob(declaring(entity("e", text) + entity("f", "y")),
                                  times(256, sale("&e;")) + times(references, sale("&f;")))));
        QCOMPARE(difference(shop.output(), fiscalOpening + times(256, saleRow(text))
                                               + times(printed, saleRow("y"))
                                               + (sound ? fiscalClosing : QByteArray())),
                 QString());
    }

    void referencesByLongNamesCount()
    {
        // However the name lies in the blocks that the job is read in.
        const Shop shop(noSettings);
        const QByteArray name = times(1500, "n");
        const QByteArray text = times(4096, "x");
        VERIFY_QUIET(shop.render(
            fiscalJob(declaring(entity(name, text)), times(300, sale('&' + name + ';')))));
        QCOMPARE(difference(shop.output(), fiscalOpening + times(256, saleRow(text))), QString());
    }

    void referencesBetweenTagsCount()
    {
        const Shop shop(noSettings);
        VERIFY_QUIET(
            shop.render(fiscalJob(declaring(entity("e", times(4096, "x"))),
                                  sale("A") + times(256, "&e;") + sale("B") + "&e;" + sale("C"))));
        QCOMPARE(difference(shop.output(), fiscalOpening + saleRow("A") + saleRow("B")), QString());
    }

    void referencesToEmptyTextsThatReferOnCount()
    {
        // One reference comes to 1,000 further ones: 1,048 of them stay within the limit.
        const Shop shop(noSettings);
        VERIFY_QUIET(
            shop.render(fiscalJob(declaring(entity("e", "") + entity("f", times(1000, "&e;"))),
                                  times(1048, "&f;") + sale("A") + "&f;" + sale("B"))));
        QCOMPARE(difference(shop.output(), fiscalOpening + saleRow("A")), QString());
    }
};

KORVEL_TEST(TestLimitsEntities)

} // namespace tst_limitsentities

#include "tst_limitsentities.moc"
