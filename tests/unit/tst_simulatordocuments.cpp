// How what arrives on a connection is cut into documents.
#include "companions/simulator/documents.h"
#include "support/test.h"

#include "companions/preview/listing.h"
#include "support/streams.h"

namespace tst_simulatordocuments {

using namespace korvel::simulator;
using korvel::preview::Decoder;

QList<Document> documentsIn(const QByteArray &stream, qsizetype step)
{
    QList<Document> documents;
    Splitter splitter([&](const Document &document) { documents.append(document); });
    for (qsizetype at = 0; at < stream.size(); at += step)
        splitter.add(QByteArrayView(stream).sliced(at, std::min(step, stream.size() - at)));
    splitter.end();
    return documents;
}

/// "fiscal section closed: =K\n..." for each document.
QStringList described(const QList<Document> &documents)
{
    const QStringList ends = {"closed", "interrupted", "cut off"};
    QStringList lines;
    for (const Document &document : documents)
        lines.append(
            (document.section ? korvel::preview::sectionName(*document.section) : QString("none"))
            + ' ' + ends.at(int(document.end)) + ": "
            + document.bytes.toPercentEncoding(" =/*()\""));
    return lines;
}

QByteArrayList commandsOf(const QByteArray &stream)
{
    QByteArrayList commands;
    Decoder decoder(stream);
    while (const auto command = decoder.next())
        commands.append(encode(*command));
    return commands;
}

class TestSimulatorDocuments : public QObject
{
    Q_OBJECT

private slots:
    void split_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QStringList>("documents");
        const auto row = [](const char *name, const QByteArray &stream,
                            const QStringList &documents) {
            QTest::newRow(name) << stream << documents;
        };

        row("nothing", "", {});
        row("a document", "=o\n=o\n", {"document section closed: =o%0A=o%0A"});
        row("a receipt", "=o/*1\n=o\n", {"receipt section closed: =o/*1%0A=o%0A"});
        row("a fiscal receipt", "=K\n=C1\n=T1\n", {"fiscal section closed: =K%0A=C1%0A=T1%0A"});
        row("two of a kind", "=o\n=o\n=o\n=o\n",
            {"document section closed: =o%0A=o%0A", "document section closed: =o%0A=o%0A"});
        row("a job that opens nothing", "=o\n", {"document section closed: =o%0A"});
        row("a job that opens nothing, then a receipt", "=o\n=o/*1\n=o\n",
            {"document section closed: =o%0A", "receipt section closed: =o/*1%0A=o%0A"});
        row("a document without its end", "=o\nx\n", {"document section cut off: =o%0Ax%0A"});
        row("the end without its line feed", "=o\n=o", {"document section cut off: =o%0A=o"});
        row("a document that another one follows", "=o\nx\n=K\n=C1\n=T1\n",
            {"document section interrupted: =o%0Ax%0A",
             "fiscal section closed: =K%0A=C1%0A=T1%0A"});
        row("a fiscal receipt that a receipt follows", "=K\n=C1\n=o/*1\n=o\n",
            {"fiscal section interrupted: =K%0A=C1%0A", "receipt section closed: =o/*1%0A=o%0A"});
        row("bytes before", "x\n=o/*1\n=o\n",
            {"none interrupted: x%0A", "receipt section closed: =o/*1%0A=o%0A"});
        row("bytes behind", "=o/*1\n=o\nx",
            {"receipt section closed: =o/*1%0A=o%0A", "none cut off: x"});
        row("the end of another section", "=o/*1\n=T1\n=o\n",
            {"receipt section closed: =o/*1%0A=T1%0A=o%0A"});
        row("an end alone", "=T1\n", {"none cut off: =T1%0A"});
        row("half an opener", "=K\nx\n=C1\n", {"none cut off: =K%0Ax%0A=C1%0A"});
        row("an opener in a longer line", "x=o\n=o/*1x\n", {"none cut off: x=o%0A=o/*1x%0A"});
        row("an opener that begins twice", "=K\n=K\n=C1\n=T1\n",
            {"none interrupted: =K%0A", "fiscal section closed: =K%0A=C1%0A=T1%0A"});
    }

    void split()
    {
        QFETCH(QByteArray, stream);
        QFETCH(QStringList, documents);
        for (const qsizetype step : {1, 2, 3, 1000})
            QCOMPARE(described(documentsIn(stream, step)), documents);
    }

    /// Every byte is in one document, and no command in two.
    void nothingIsLostOrTakenApart()
    {
        for (const QByteArray &first : brokenStreams) {
            for (const QByteArray &second : brokenStreams) {
                const QByteArray stream = first + second;
                QByteArray bytes;
                QByteArrayList commands;
                for (const Document &document : documentsIn(stream, 7)) {
                    QCOMPARE(document.size, document.bytes.size());
                    bytes += document.bytes;
                    commands += commandsOf(document.bytes);
                }
                QCOMPARE(bytes, stream);
                QCOMPARE(commands, commandsOf(stream));
            }
        }
    }

    /// Of a document that is too large the first bytes are kept; the next one is whole.
    void aLargeDocument_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::newRow("the largest") << largestDocument;
        QTest::newRow("one byte more") << largestDocument + 1;
        QTest::newRow("much more") << 3 * largestDocument;
    }

    void aLargeDocument()
    {
        QFETCH(qint64, size);
        const QByteArray large = "=o\n" + QByteArray(size - 7, 'x') + "\n=o\n";
        QCOMPARE(large.size(), size);
        const QList<Document> documents = documentsIn(large + documentOf("a"), 60000);
        QCOMPARE(documents.size(), 2);
        QCOMPARE(documents[0].size, size);
        QVERIFY(documents[0].bytes == large.first(std::min(size, largestDocument)));
        QCOMPARE(documents[0].end, Document::End::Closed);
        QCOMPARE(documents[0].isWhole(), size <= largestDocument);
        QCOMPARE(documents[1].bytes, documentOf("a"));
        QVERIFY(documents[1].isWhole());
    }

    void aLargeDocumentThatIsInterrupted()
    {
        const QByteArray large = "=K\n=C1\n" + QByteArray(largestDocument, 'x') + '\n';
        const QList<Document> documents = documentsIn(large + documentOf("a"), 60000);
        QCOMPARE(documents.size(), 2);
        QCOMPARE(documents[0].size, large.size());
        QCOMPARE(documents[0].bytes.size(), largestDocument);
        QCOMPARE(documents[0].end, Document::End::Interrupted);
        QCOMPARE(documents[1].bytes, documentOf("a"));
    }
};

KORVEL_TEST(TestSimulatorDocuments)

} // namespace tst_simulatordocuments

#include "tst_simulatordocuments.moc"
