// What the schemas of jobs tell an editor: each element and attribute in words.
#include "companions/check/schema.h"
#include "companions/check/schematexts.h"
#include "support/test.h"

#include <QXmlStreamReader>

namespace tst_schematexts {

namespace check = korvel::check;

/// A name that a schema declares, and the texts that stand at it.
struct Declaration
{
    QString path; // "receipe" or "receipe/name"
    QStringList texts;
};

/// All declarations with a name, in the order of the schema. A value of an enumeration counts as a
/// name.
QList<Declaration> declarationsOf(const QByteArray &schema)
{
    QList<Declaration> declarations;
    QXmlStreamReader xml(schema);
    QString element;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = xml.attributes().value("name").toString();
        if (xml.name() == u"element" && !name.isEmpty()) {
            element = name;
            declarations.append({name, {}});
        } else if (xml.name() == u"attribute" && !name.isEmpty()) {
            declarations.append({element + '/' + name, {}});
        } else if (xml.name() == u"enumeration") {
            declarations.append({'=' + xml.attributes().value("value").toString(), {}});
        } else if (xml.name() == u"documentation" && !declarations.isEmpty()) {
            declarations.last().texts.append(xml.readElementText());
        }
    }
    if (xml.hasError())
        qFatal("%s", qPrintable(xml.errorString()));
    return declarations;
}

/// The texts at each declaration of a path, those of a declaration behind each other.
QStringList textsAt(const QList<Declaration> &declarations, const QString &path)
{
    QStringList texts;
    for (const Declaration &declaration : declarations)
        if (declaration.path == path)
            texts += declaration.texts;
    return texts;
}

class TestSchemaTexts : public QObject
{
    Q_OBJECT

private slots:
    void everyNameIsExplained_data()
    {
        QTest::addColumn<QByteArray>("schema");
        QTest::newRow("RELAX NG") << check::relaxNgSchema();
        QTest::newRow("XSD") << check::xmlSchema();
    }

    void everyNameIsExplained()
    {
        QFETCH(QByteArray, schema);
        const QList<Declaration> declarations = declarationsOf(schema);
        for (const Declaration &declaration : declarations) {
            if (declaration.path == "method/name" && declaration.texts.isEmpty())
                continue; // its values are
            QVERIFY2(!declaration.texts.isEmpty(), qPrintable(declaration.path));
            for (const QString &text : declaration.texts) {
                QVERIFY2(!text.trimmed().isEmpty(), qPrintable(declaration.path));
                QVERIFY2(!text.contains('`') && !text.contains('\n'), qPrintable(text));
            }
        }
        for (const vocabulary::Element &row : vocabulary::elements())
            QVERIFY2(!textsAt(declarations, row.name).isEmpty(), row.name.data());
        for (const vocabulary::Attribute &row : vocabulary::attributes())
            QVERIFY2(!textsAt(declarations, row.element + QString('/') + row.name).isEmpty(),
                     row.name.data());
    }

    void relaxNg()
    {
        const QList<Declaration> declarations = declarationsOf(check::relaxNgSchema());
        QCOMPARE(textsAt(declarations, "method/name").mid(0, 2),
                 QStringList({"kitchen order", "full order"}));
        QCOMPARE(textsAt(declarations, "statement"), QStringList("a movement: date, type, amount"));
        QCOMPARE(textsAt(declarations, "orderinfo/table").value(0),
                 "\"Table:\" and the value; switched on by the setting printTable");
        QCOMPARE(textsAt(declarations, "variant/number"),
                 QStringList({"the quantity", "the quantity", "the quantity"})); // of 3 documents
    }

    /// What differs from document to document stands behind their names.
    void xsd()
    {
        const QList<Declaration> declarations = declarationsOf(check::xmlSchema());
        QCOMPARE(textsAt(declarations, "=printFullOrder"), QStringList("full order"));
        QCOMPARE(textsAt(declarations, "statement"),
                 QStringList("statement of account: a movement: date, type, amount"));
        QCOMPARE(
            textsAt(declarations, "company"),
            QStringList("a centred line for each attribute's value, in the order of the job; a "
                        "separator; switched on by the setting printCompany"));
        QCOMPARE(textsAt(declarations, "variant/number"), QStringList("the quantity"));
        QCOMPARE(textsAt(declarations, "receipe/number"),
                 QStringList({"kitchen order, full order, receipt, invoice, delivery note: the "
                              "quantity",
                              "fiscal receipt: the quantity, which is registered"}));
        QCOMPARE(textsAt(declarations, "total/price"),
                 QStringList({"full order, receipt, summary receipt: the total",
                              "fiscal receipt, summary fiscal receipt: not read: the printer adds "
                              "up by itself"}));
    }
};

KORVEL_TEST(TestSchemaTexts)

} // namespace tst_schematexts

#include "tst_schematexts.moc"
