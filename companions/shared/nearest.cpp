// How far names are from each other.
#include "companions/shared/nearest.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace korvel::shared {

namespace {

/// Steps from one name to another: a letter added, left out, replaced or swapped with the next.
qsizetype steps(QStringView from, QStringView to)
{
    const qsizetype columns = to.size() + 1;
    std::vector<qsizetype> before(static_cast<std::size_t>(columns));
    std::vector<qsizetype> last(before.size());
    std::vector<qsizetype> now(before.size());
    std::iota(last.begin(), last.end(), 0);
    const auto cell = [](std::vector<qsizetype> &row, qsizetype i) -> qsizetype & {
        return row[static_cast<std::size_t>(i)];
    };
    for (qsizetype i = 1; i <= from.size(); ++i) {
        cell(now, 0) = i;
        for (qsizetype j = 1; j < columns; ++j) {
            const bool same = from[i - 1] == to[j - 1];
            cell(now, j) = std::min(
                {cell(last, j) + 1, cell(now, j - 1) + 1, cell(last, j - 1) + (same ? 0 : 1)});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                cell(now, j) = std::min(cell(now, j), cell(before, j - 2) + 1);
        }
        before.swap(last);
        last.swap(now);
    }
    return last.back();
}

} // namespace

QString nearest(QStringView misspelt, const QStringList &names)
{
    QString best;
    // Two slips, but not so many that a short name becomes another one.
    qsizetype fewest = std::min<qsizetype>(2, (misspelt.size() - 1) / 2) + 1;
    for (const QString &name : names) {
        if (name.compare(misspelt, Qt::CaseInsensitive) == 0)
            return name;
        if (std::abs(name.size() - misspelt.size()) >= fewest)
            continue; // each step changes the length by one at most
        if (const qsizetype count = steps(misspelt, name); count < fewest) {
            fewest = count;
            best = name;
        }
    }
    return best;
}

QString longerOrShorter(const QString &name, const QStringList &names)
{
    const auto found = std::find_if(names.begin(), names.end(), [&](const QString &other) {
        return other.startsWith(name) || name.startsWith(other);
    });
    return found == names.end() ? QString() : *found;
}

} // namespace korvel::shared
