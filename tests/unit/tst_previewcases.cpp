// The streams of tests/preview beside what the preview shows, in a folder for each kind of finding.
#include "companions/preview/findings.h"
#include "support/box.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/test.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace tst_previewcases {

using namespace korvel::preview;

const QString cases = KORVEL_SOURCE_DIR "/tests/preview/";
constexpr int columns = 32;

/// All folders but the one of streams with nothing wrong: the codes of findings.
QStringList kinds()
{
    return QDir(cases).entryList(QDir::Dirs).filter(QRegularExpression("^(?!clean$|\\.)"));
}

/// Whether two streams differ in one place alone, of eight bytes at most in either.
bool differLittle(const QByteArray &a, const QByteArray &b)
{
    const auto same = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
    const auto end = std::mismatch(a.rbegin(), a.rend() - same, b.rbegin(), b.rend() - same);
    return std::max(a.size(), b.size()) - same - (end.first - a.rbegin()) <= 8;
}

class TestPreviewCases : public QObject
{
    Q_OBJECT

private slots:
    void everyKindHasHitsAndNearMisses()
    {
        QStringList all;
        for (const CodeInfo &row : codes())
            if (row.code != Code::MoreErrors && row.code != Code::MoreWarnings)
                all.append(row.name);
        all.sort();
        QCOMPARE(kinds(), all);
        QVERIFY(!filesBelow(cases + "clean", "*.out").isEmpty());
        for (const QString &kind : kinds()) {
            const auto misses = filesBelow(cases + kind, "near-*.out").size();
            const auto files = filesBelow(cases + kind, "*.out").size();
            QVERIFY2(files > misses && misses > 0, qPrintable(kind));
        }
    }

    void streams_data()
    {
        QTest::addColumn<QString>("kind");
        const QRegularExpression ending("\\.[a-z]+$");
        QStringList paths = filesBelow(cases, "*").replaceInStrings(ending, {});
        paths.removeDuplicates();
        for (const QString &path : paths.filter(QRegularExpression("(?<!/pattern)$")))
            QTest::newRow(qPrintable(path.mid(cases.size()))) << path.section('/', -2, -2);
    }

    void streams()
    {
        QFETCH(QString, kind);
        const QString path = cases + QTest::currentDataTag();
        QVERIFY2(QFile::exists(path + ".out") && QFile::exists(path + ".paper"), "one is missing");
        const QByteArray stream = bytesOf(path + ".out");
        QString shown = boxed(paperOf(stream, columns), columns, false);
        QStringList found; // kinds
        for (const Finding &finding : findings(stream, columns)) {
            const CodeInfo &row = infoOf(finding.code);
            shown += QString("%1: byte %2: ").arg(finding.line).arg(finding.offset)
                     + korvel::shared::toldFinding(row, finding.text);
            found += row.name;
        }
        QCOMPARE(linesOf(shown.toUtf8()), linesOf(bytesOf(path + ".paper")));

        const bool nearMiss = path.contains("/near-");
        QCOMPARE(found.contains(kind), kinds().contains(kind) && !nearMiss);
        QVERIFY(kinds().contains(kind) || found.isEmpty());
        const QStringList all = filesBelow(cases + kind, "*.out");
        QVERIFY(!nearMiss || std::any_of(all.begin(), all.end(), [&](const QString &hit) {
            return !hit.contains("/near-") && differLittle(stream, bytesOf(hit));
        }));
    }
};

KORVEL_TEST(TestPreviewCases)

} // namespace tst_previewcases

#include "tst_previewcases.moc"
