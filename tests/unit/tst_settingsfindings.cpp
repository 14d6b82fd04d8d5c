// What the editor says is wrong, in the language of its user: the words of the checker and of the
// preview.
#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/paper/paper.h"
#include "companions/preview/codes.h"
#include "companions/settings/findingslist.h"
#include "support/answers.h"
#include "support/built.h"
#include "support/settingseditor.h"
#include "support/settingstext.h"
#include "support/test.h"

#include <QTranslator>

#include <algorithm>

namespace tst_settingsfindings {

using namespace korvel;

/// Puts each text of findings in a pair of brackets.
class Brackets : public QTranslator
{
public:
    Brackets() { QCoreApplication::installTranslator(this); }
    ~Brackets() override { QCoreApplication::removeTranslator(this); }

    Q_DISABLE_COPY_MOVE(Brackets)

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text,
                                    const char * /*disambiguation*/, int /*n*/) const override
    {
        return QString(context) == "findings" ? "[[" + QString::fromUtf8(text) + "]]" : QString();
    }
};

/// The editor's texts in a language, as long as it lives.
class Language
{
public:
    explicit Language(const QString &name)
    {
        if (!catalogue.load("korvel-settings_" + name, built::path("/companions/settings")))
            qFatal("no catalogue");
        QCoreApplication::installTranslator(&catalogue);
    }

private:
    QTranslator catalogue;
};

class TestSettingsFindings : public QObject
{
    Q_OBJECT

private slots:
    void aPaperTooNarrow()
    {
        const Language german("de");
        const TemporaryHome home(QByteArray(example("korvel.conf"))
                                     .replace("paperWidth = \"32\"", "paperWidth = \"12\""));
        const Editor editor(home.settingsPath());
        QTRY_VERIFY_WITH_TIMEOUT(!editor.findings().isEmpty(), longEnough);
        QCOMPARE(editor.findings().constFirst(),
                 QString("Papierbreite: Zu breit für das Papier: Zeilen mit mehr als 32 Zeichen "
                         "oder kein Platz für die Bezeichnung."));
    }

    /// The paper of the sample receipt begins with a line and its separator; the titles of the
    /// columns are its 19th line, seven items follow, the total is the 28th. A title or a total has
    /// one blank behind the quantity, an item " x ": 3 + 1 + 7 + 40 characters, or 53.
    void columnsTooWide()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.edit("receiptdoc.totalPriceFieldWidth", "40");
        const QStringList expected = {
            "Amount column: Too wide for the paper: lines of more than 32 characters, or no room "
            "for the description.",
            "Lines 19–26, 28 are wider than the paper: up to 53 characters, of 32. Quantity column "
            "3, Price column 7, Amount column 40.",
        };
        QTRY_COMPARE_WITH_TIMEOUT(editor.findings(), expected, longEnough);
        // It stands at the field too.
        editor.showForm();
        QVERIFY(editor.number("receiptdoc.totalPriceFieldWidth")
                    ->accessibleDescription()
                    .contains("Too wide"));
        editor.edit("receiptdoc.totalPriceFieldWidth", "8");
        QTRY_COMPARE_WITH_TIMEOUT(editor.findings(), QStringList(), longEnough);
    }

    /// Nothing of such a file is read, whatever stands in it.
    void aFirstGroupOfAnotherName()
    {
        const TemporaryHome home("# of 1998\nkorvel: { receiptdoc: { paperWidth = 40; }; };");
        const Editor editor(home.settingsPath());
        const QString said = "The renderer reads nothing of this file: its first group is called "
                             "\"# of 1998 korvel\", and not \"korvel\".";
        QTRY_COMPARE_WITH_TIMEOUT(editor.findings().value(0), said, longEnough);
        QVERIFY(!editor.findings().join('\n').contains("Paper width:"));
        for (const QString title : {"Receipt", "Language"})
            QVERIFY(editor.documents()
                        ->findItems(title, Qt::MatchExactly)
                        .constFirst()
                        ->toolTip()
                        .startsWith(said));
    }

    void aCatalogueThatIsNotThere()
    {
        const TemporaryHome home(
            settingsFile("language: { basedir = \"/nowhere\"; file = \"/korvel_xx.qm\"; };"));
        const Editor editor(home.settingsPath());
        const QString said = "labels stay English: no catalogue is found as "
                             "/nowhere/korvel_xx.qm.qm, /nowhere/korvel_xx.qm, /nowhere/korvel_xx, "
                             "/nowhere/korvel.qm, /nowhere/korvel";
        QTRY_VERIFY_WITH_TIMEOUT(editor.findings().join('\n').contains(said), longEnough);
        const auto found = editor.documents()->findItems("Language", Qt::MatchExactly);
        QCOMPARE(found.constFirst()->toolTip(), said);
        QVERIFY(!found.constFirst()->icon().isNull());
    }

    /// A section that is opened in front of the first line, and one behind lines.
    void aSectionThatIsNeverClosed()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        const QString job = home.path() + "/own.xml";
        writeFile(job, "<printjob>\n<method name=\"printFullOrderReceipt\"/>\n"
                       "<receipt serialnumber=\"7\"/>\n<block>\n");
        answers.give({job});
        editor.shortcut(Qt::Key_J);
        QTRY_COMPARE_WITH_TIMEOUT(
            editor.findings().value(1),
            QString("Line 1: the receipt section opened here is never closed"), longEnough);
        const auto *list = editor.child<QListWidget>("findings");
        emit editor.child<QListWidget>("findings")->itemActivated(list->item(1));
        QTRY_COMPARE_WITH_TIMEOUT(editor.paper()->lit(), QList<int>{0}, longEnough);
    }

    void linesOfWhatPrintsNone()
    {
        // Two lines, then a section that is opened inside another one, a line, and the end.
        const QByteArray stream = "=o/*1\n" + line("one") + line("two") + "=o/*1\n" + line("three");
        settings::FindingsList list;
        list.addOfPaper(stream, preview::paperOf(stream, 32), {});
        QCOMPARE(list.textsFrom(0),
                 QStringList({"Line 3: the receipt section is still open where the receipt section "
                              "is opened",
                              "Line 3: the receipt section opened here is never closed"}));
    }

    /// The columns of the receipt are 3, 7 and 8 wide, and three blanks part them from a paper
    /// of 12.
    void theCheckersWords()
    {
        const Language german("de");
        const check::SettingsFile settings(
            "korvel: { receiptdoc: { paperWidth = \"12\"; quantityFieldWidth = \"3\"; "
            "priceFieldWidth = \"7\"; totalPriceFieldWidth = \"8\"; }; };");
        const QList<check::Finding> found = check::checkSettings(settings);
        QCOMPARE(found.size(), 1);
        QVERIFY2(found[0].text.startsWith("die Spalten des Dokuments (Beleg, Beleg in Kurzform) "
                                          "lassen der Bezeichnung keinen Platz: "),
                 qPrintable(found[0].text));
        QVERIFY2(found[0].text.endsWith(" von 12 Zeichen"), qPrintable(found[0].text));
    }

    void aJobOfOnesOwn()
    {
        QCOMPARE(
            saidOf("<recipe number=\"1\" name=\"Tea\" price=\"2.00\" totalPrice=\"2.00\"/>\n"),
            QStringList("Auftrag, Zeile 3: kein Dokument kennt <recipe>: nichts wird gedruckt; "
                        "ist \"receipe\" gemeint?"));
    }

    void aJobThatIsNotWellFormed()
    {
        QCOMPARE(saidOf("<receipe number=\"1\" name=\"Caf&eacute;\" price=\"2.00\"/>\n").value(0),
                 QString("Auftrag, Zeile 3: XML kennt &eacute; nicht; \"é\" oder &#233; schreiben: "
                         "hinter dieser Stelle wurde nichts geprüft"));
    }

    void malformedXml_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QString>("words");

        const QByteArray method = "<printjob><method name=\"printFullOrderReceipt\"/>";
        const QByteArray unquoted = method + "<receipe number=1/></printjob>";
        QTest::newRow("German") << "de" << unquoted
                                << "ein Wert ohne Anführungszeichen; \"1\" schreiben: ";
        QTest::newRow("Spanish") << "es" << unquoted << "un valor sin comillas; escriba \"1\": ";
        QTest::newRow("French") << "fr" << unquoted
                                << "une valeur sans guillemets\u00a0; écrivez \"1\"\u00a0: ";
        QTest::newRow("Italian") << "it" << unquoted
                                 << "un valore senza virgolette; scrivere \"1\": ";
        QTest::newRow("another end tag")
            << "de" << method + "<block>\n</blok></printjob>"
            << "</blok>, wo <block> aus Zeile 1 geschlossen werden muss: ";
        QTest::newRow("a character")
            << "de" << method + "<receipe number=\"1\"; price=\"2\"/></printjob>"
            << "\";\" kann nicht hinter einem Wert stehen; Attribute trennen nur Leerzeichen: ";
    }

    void malformedXml()
    {
        QFETCH(QString, language);
        QFETCH(QByteArray, job);
        QFETCH(QString, words);
        const Language translated(language);
        const QList<check::Finding> found = check::checkJob(job, nullptr);
        const auto fault =
            std::find_if(found.begin(), found.end(), [](const check::Finding &finding) {
                return finding.code == check::Code::MalformedXml;
            });
        QVERIFY(fault != found.end());
        QVERIFY2(fault->text.startsWith(words), qPrintable(fault->text));
    }

    /// Whatever is found goes through the catalogue.
    void allWordsAreAskedFor_data()
    {
        QTest::addColumn<QString>("folder");
        const QDir cases(KORVEL_SOURCE_DIR "/tests/check");
        for (const QString &name : cases.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            QTest::newRow(qPrintable(name)) << cases.filePath(name);
    }

    void allWordsAreAskedFor()
    {
        QFETCH(QString, folder);
        const Brackets brackets;
        const QDir cases(folder);
        for (const QString &name : cases.entryList({"*.xml", "*.conf"}, QDir::Files)) {
            QFile file(cases.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray bytes = file.readAll();
            const QList<check::Finding> found =
                name.endsWith(".conf") ? check::checkSettings(check::SettingsFile(bytes))
                                       : check::checkJob(bytes, nullptr);
            for (const check::Finding &finding : found) {
                // what is wrong with the XML is a text of its own, in front of the wording's
                const bool isXml = finding.code == check::Code::MalformedXml;
                QVERIFY2(finding.text.contains(isXml ? "[[[[" : "[["),
                         qPrintable(name + ": " + finding.text));
            }
        }
    }

    /// 2 at 7.00 and 2 at 4.50 without 3.00 are 20.00; a row has 32 characters.
    void theWordsOnThePaper_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("German") << "de"
                                << QStringList{"ABZUG                      -3.00",
                                               "Summe (der Vorschau)       20.00"};
        QTest::newRow("Spanish") << "es"
                                 << QStringList{"DESCUENTO                  -3.00",
                                                "Suma (de la vista previa)  20.00"};
        QTest::newRow("French") << "fr"
                                << QStringList{"DÉDUCTION                  -3.00",
                                               "Somme (de l'aperçu)        20.00"};
        QTest::newRow("Italian") << "it"
                                 << QStringList{"DETRAZIONE                 -3.00",
                                                "Somma (dell'anteprima)     20.00"};
    }

    void theWordsOnThePaper()
    {
        QFETCH(QString, language);
        QFETCH(QStringList, words);
        const Language translated(language);
        QStringList rows;
        for (const preview::PaperRow &row :
             preview::paperOf(example("expected/fiscal-receipt.out"), 32))
            rows.append(row.text);
        QCOMPARE(rows.value(rows.size() - 3), words[0]);
        QCOMPARE(rows.value(rows.size() - 1), words[1]);
    }

    void thePreviewsWords()
    {
        const Brackets brackets;
        for (const preview::CodeInfo &row : preview::codes()) {
            const QString words = QString(row.wording);
            QVERIFY2(words.startsWith("[["), qPrintable(words));
        }
    }

private:
    /// What a German editor says of a receipt with this item, which somebody opens.
    QStringList saidOf(const QByteArray &item)
    {
        const Language german("de");
        const TemporaryHome home(example("korvel.conf"));
        const QString path = home.path() + "/job.xml";
        writeFile(path, "<printjob>\n<method name=\"printFullOrderReceipt\"/>\n" + item
                            + "</printjob>\n");
        Editor editor(home.settingsPath());
        answers.give({path});
        editor.shortcut(Qt::Key_J);
        if (!QTest::qWaitFor([&] { return !editor.findings().isEmpty(); }, longEnough))
            return {};
        return editor.findings();
    }

    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsFindings)

} // namespace tst_settingsfindings

#include "tst_settingsfindings.moc"
