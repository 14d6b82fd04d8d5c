// What the editor says is wrong, in the language of its user: the words of the checker and of the
// preview.
#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/preview/codes.h"
#include "support/answers.h"
#include "support/settingseditor.h"
#include "support/settingstext.h"
#include "support/test.h"

#include <QTranslator>

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
        if (!catalogue.load("korvel-settings_" + name, KORVEL_BINARY_DIR "/companions/settings"))
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
                 QString("Zu breit für das Papier: Zeilen mit mehr als 32 Zeichen "
                         "oder kein Platz für die Bezeichnung."));
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
        const Language german("de");
        const TemporaryHome home(example("korvel.conf"));
        const QString path = home.path() + "/job.xml";
        writeFile(path, "<printjob>\n<method name=\"printFullOrderReceipt\"/>\n"
                        "<recipe number=\"1\" name=\"Tea\" price=\"2.00\" totalPrice=\"2.00\"/>\n"
                        "</printjob>\n");
        Editor editor(home.settingsPath());
        answers.give({path});
        editor.shortcut(Qt::Key_J);
        QTRY_VERIFY_WITH_TIMEOUT(!editor.findings().isEmpty(), longEnough);
        QCOMPARE(
            editor.findings(),
            QStringList("Auftrag, Zeile 3: kein Dokument kennt <recipe>: nichts wird gedruckt; "
                        "ist \"receipe\" gemeint?"));
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
            for (const check::Finding &finding : found)
                QVERIFY2(finding.text.contains("[["), qPrintable(name + ": " + finding.text));
        }
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
    Answers answers;
};

KORVEL_TEST(TestSettingsFindings)

} // namespace tst_settingsfindings

#include "tst_settingsfindings.moc"
