// Findings put in words, and where they lead.
#include "companions/settings/findingslist.h"

#include "companions/preview/findings.h"
#include "vocabulary/paper.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

namespace {

constexpr int settingRole = Qt::UserRole;
constexpr int rowRole = Qt::UserRole + 1;
constexpr int most = 20; // that are listed

using Rows = QList<preview::PaperRow>;

/// The line of the paper, counted from 1, for a finding that prints none: what follows it. 0 for an
/// empty paper.
qsizetype lineOf(const preview::Finding &finding, const QByteArray &stream, const Rows &rows)
{
    if (finding.row > 0)
        return finding.row;
    Rows before = preview::paperOf(stream.first(finding.offset), vocabulary::lineWidth);
    // A section that the cut leaves open has a sum that the paper has elsewhere.
    while (!before.isEmpty() && before.constLast().kind == preview::PaperRow::Kind::Computed)
        before.removeLast();
    return std::min(before.size() + 1, rows.size());
}

/// A finding in words, by its line of the paper: nobody who looks at paper counts bytes.
QString wordsOf(const preview::Finding &finding, qsizetype line)
{
    static const QRegularExpression bytes(
        u" ((that begins |opened )?at byte \\d+|\\((byte|octet) \\d+\\))"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QString text = QString(finding.text).remove(bytes);
    return line > 0 ? FindingsList::tr("Line %1: %2").arg(line).arg(text) : text;
}

/// Lines in their order: "2, 19–26".
QString spelt(const QList<qsizetype> &lines)
{
    QStringList runs;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const qsizetype first = lines[i];
        while (i + 1 < lines.size() && lines[i + 1] == lines[i] + 1)
            ++i;
        runs.append(first == lines[i] ? QString::number(first)
                                      : QString::number(first) + u'–' + QString::number(lines[i]));
    }
    return runs.join(u", "_s);
}

/// All lines that are too wide, in one finding.
QString wordsOfWide(const QList<qsizetype> &lines, const Rows &rows)
{
    qsizetype longest = 0;
    for (const qsizetype line : lines)
        longest = std::max(longest, rows.value(line - 1).text.size());
    const QString words =
        lines.size() == 1
            ? FindingsList::tr("Line %1 is wider than the paper: %2 characters, of %3.")
            : FindingsList::tr("Lines %1 are wider than the paper: up to %2 characters, of %3.");
    return words.arg(spelt(lines)).arg(longest).arg(vocabulary::lineWidth);
}

} // namespace

FindingsList::FindingsList(QWidget *parent)
    : QListWidget(parent)
{
    setAccessibleName(tr("What is wrong"));
    setWordWrap(true);
    setAlternatingRowColors(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setSpacing(1);
    setMinimumHeight(fontMetrics().lineSpacing() + 8);
    connect(this, &QListWidget::itemActivated, this, &FindingsList::choose);
    connect(this, &QListWidget::itemClicked, this, &FindingsList::choose);
}

void FindingsList::add(const QString &text, const QStringList &setting, int row)
{
    if (count() > most)
        return;
    auto *item = new QListWidgetItem(count() == most ? u"…"_s : text, this);
    item->setData(settingRole, setting);
    item->setData(rowRole, row);
}

void FindingsList::addOfPaper(const QByteArray &stream, const Rows &rows, const QString &columns)
{
    const QList<preview::Finding> found = preview::findings(stream, vocabulary::lineWidth);
    QList<qsizetype> wide;
    for (const preview::Finding &finding : found) {
        if (finding.code == preview::Code::TooWide && finding.row > 0)
            wide.append(finding.row);
    }
    if (!wide.isEmpty())
        add(wordsOfWide(wide, rows) + (columns.isEmpty() ? QString() : u' ' + columns), {},
            static_cast<int>(wide.constFirst()) - 1);
    for (const preview::Finding &finding : found) {
        if (finding.code == preview::Code::TooWide && finding.row > 0)
            continue;
        const qsizetype line = lineOf(finding, stream, rows);
        add(wordsOf(finding, line), {}, static_cast<int>(line) - 1);
    }
}

QStringList FindingsList::textsFrom(int first) const
{
    QStringList texts;
    for (int i = first; i < count(); ++i)
        texts.append(item(i)->text());
    return texts;
}

int FindingsList::wholeHeight() const
{
    // The hints of rows do not know how the words are broken, the rows as they are laid out do.
    const int rows = count() == 0 ? 0
                                  : visualItemRect(item(count() - 1)).bottom() + 1
                                        - visualItemRect(item(0)).top();
    return rows + 2 * (frameWidth() + spacing());
}

void FindingsList::choose(const QListWidgetItem *item)
{
    if (const QStringList setting = item->data(settingRole).toStringList(); !setting.isEmpty())
        emit settingChosen(setting);
    else if (const int row = item->data(rowRole).toInt(); row >= 0)
        emit rowChosen(row);
}

} // namespace korvel::settings
