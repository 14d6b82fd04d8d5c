// The page of papers for a browser.
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

namespace tst_previewhtml {

class TestPreviewHtml : public QObject
{
    Q_OBJECT

private slots:
    void papers()
    {
        const Desk desk(documentOf("Ciao"));
        VERIFY_ENDED(desk.run({"--columns=4", "-o", "y.html", "x.out"}), 0);
        const QByteArray page = bytesOf(desk.path("y.html"));
        QVERIFY(page.startsWith("<!DOCTYPE html>\n"));
        QVERIFY(page.endsWith("</html>\n"));
        QVERIFY(page.contains("<title>x.out</title>"));
        QVERIFY(page.contains("<pre>\nCiao\n</pre>"));
        QVERIFY(page.contains("--columns: 4\""));
        const Run run = desk.run({"--columns=4", "-o-", "--format=html", "x.out"});
        VERIFY_ENDED(run, 0);
        QVERIFY(run.standardOutput == page);
    }

    /// Rows have the marks that they have in the terminal.
    void rows()
    {
        const Desk desk("=o\n=\"/(Lungo )\n=o\n=K\n=C1\n=S\r\n=V/$50\r\n=T1\n=X\n");
        VERIFY_ENDED(desk.run({"-q", "--columns=4", "-o", "y.html", "x.out"}), 1);
        const QByteArray page = bytesOf(desk.path("y.html"));
        QVERIFY(page.contains("<pre>\nLung<b>o</b>\n<i></i>"
                              "<span class=\"deducted\">DEDU<b>CTION</b>\n"));
        QVERIFY(page.contains(">=X\\n\n</span></pre>"));
        QVERIFY(page.contains("<article id=\"paper1\" class=\"wrong\">"));
        QVERIFY(page.contains(
            "<li>x.out:9: byte 42: error: unknown command: &quot;X&quot; does not belong here "
            "[unknown-command]</li>"));
    }

    /// Texts and names of files are texts, whatever they hold.
    void markup()
    {
        const Desk desk({});
        const QString name = "<img src=x onerror=alert(1)>&\"'.out";
        writeFile(desk.path(name), documentOf("</pre><script>alert(1)</script>&amp;\"'"));
        VERIFY_ENDED(desk.run({"-o", "y.html", name}), 0);
        const QByteArray page = bytesOf(desk.path("y.html"));
        QVERIFY(page.contains(
            "<pre>\n&lt;/pre&gt;&lt;script&gt;alert(1)&lt;/script&gt;&amp;<b>amp;&quot;"));
        QCOMPARE(page.count("<script"), 1);
        QCOMPARE(page.count("</pre"), 1);
        QCOMPARE(page.count("<img"), 0);
        QVERIFY(page.contains("title=\"&lt;img src=x onerror=alert(1)&gt;&amp;&quot;"));
    }

    /// Nor does a job, or what is found in it.
    void markupInAJob()
    {
        const Desk desk({});
        writeFile(desk.path("a.xml"), "<job><method name=\"printPartialOrder\"/><receipe "
                                      "number=\"&lt;b>\" name=\"&lt;i>Pane&lt;/i>\"/></job>");
        const Run run = preview({"-q", "-o-", "--format=html", "a.xml"},
                                {desk.folder.path(), {"HOME=" + desk.path(".")}, {}});
        QVERIFY(run.exited && run.status != 2);
        QVERIFY(run.standardOutput.contains("&lt;i&gt;Pane&lt;/i&gt;"));
        QVERIFY(!run.standardOutput.contains("<i>Pane"));
        QVERIFY(!run.standardOutput.contains("<b>\""));
    }

    /// Names and texts bring no character that does not print.
    void controlCharacters()
    {
        const Desk desk({});
        writeFile(desk.path("a\nb\033.out"), documentOf("c\033\002d"));
        VERIFY_ENDED(desk.run({"-o", "y.html", "a\nb\033.out"}), 0);
        const QByteArray page = bytesOf(desk.path("y.html"));
        QVERIFY(page.contains("<title>a�b�.out</title>"));
        QVERIFY(page.contains("<pre>\nc��d\n</pre>"));
        QVERIFY(std::none_of(page.begin(), page.end(), [](char c) {
            return c == 0x7f || (static_cast<unsigned char>(c) < 0x20 && c != '\n');
        }));
    }

    /// The page is one file.
    void noReferenceToElsewhere()
    {
        const Run run = preview({"-q", "-o-", "--format=html", examples});
        VERIFY_ENDED(run, 0);
        for (const char *const reference : {"http:", "https:", "url(", "src=", "@import"})
            QVERIFY2(!run.standardOutput.contains(reference), reference);
        int links = 0;
        for (const auto &link : QRegularExpression("href=\"([^\"]*)\"")
                                    .globalMatch(QString::fromUtf8(run.standardOutput))) {
            const QByteArray target = link.captured(1).toUtf8();
            QVERIFY2(target.startsWith('#')
                         && run.standardOutput.contains("id=\"" + target.mid(1) + '"'),
                     target.constData());
            ++links;
        }
        QCOMPARE(links, 2 * 13); // each paper opens and closes
    }

    /// 20.00 and 40.00 are registered; the receipt and the orders have no sum.
    void sums()
    {
        const Run run = preview({"-q", "-o-", "--format=html", "fiscal-receipt.out",
                                 "fiscal-receipt-summary.out", "receipt.out", "kitchen-order.out"},
                                {examples, {}, {}});
        VERIFY_ENDED(run, 0);
        const QByteArray page = run.standardOutput;
        QVERIFY(page.contains("<p>fiscal receipt · sum 20.00</p>"));
        QVERIFY(page.contains("<p>fiscal receipt · sum 40.00</p>"));
        QVERIFY(page.contains("<p>receipt</p>"));
        QVERIFY(
            page.contains("<tr><th scope=\"row\">Fiscal receipts</th><td>2</td><td>60.00</td>"));
        QVERIFY(page.contains("<tr><th scope=\"row\">Receipts</th><td>1</td><td>–</td>"));
        QVERIFY(page.contains("<tr><th scope=\"row\">Other documents</th><td>1</td><td>–</td>"));
        QCOMPARE(page.count("<article "), 4);
    }

    /// An amount is missing.
    void rowsThatAreNotCounted()
    {
        const QByteArray row = "=R1/$/*1/(A)\n";
        for (const auto &[rows, words] : {std::pair(row, "(1 row not counted) · "),
                                          std::pair(row + row, "(2 rows not counted) · ")}) {
            const Desk desk("=K\n=C1\n" + rows + "=S\r\n=T1\n");
            const Run run = desk.run({"-q", "-o-", "--format=html", "x.out"});
            QVERIFY2(run.standardOutput.contains("sum 0.00 " + QByteArray(words)),
                     run.standardOutput.constData());
        }
    }
};

KORVEL_TEST(TestPreviewHtml)

} // namespace tst_previewhtml

#include "tst_previewhtml.moc"
