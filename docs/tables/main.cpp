// korvel-reference: writes the tables of the reference pages, or says which pages differ.
#include "docs/tables/tables.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace korvel::reference {

namespace {

enum ExitStatus {
    Done = 0,
    Different = 1, // with --check: a page is not as it would be written
    Trouble = 2,   // a page cannot be read, understood or written, or the command line is wrong
};

constexpr QByteArrayView tableBegin = "<!-- table: "; // and the table's name
constexpr QByteArrayView markerEnd = " -->";
constexpr QByteArrayView tableEnd = "<!-- end -->";

/// Says in one line why a page is not done; gives the status.
int complain(const QString &text, int status)
{
    std::fputs(qPrintable(u"korvel-reference: "_s + text + u'\n'), stderr);
    return status;
}

/// The table that a line of a page begins; nothing when it begins none.
std::optional<QString> tableBegunBy(const QByteArray &line)
{
    if (!line.startsWith(tableBegin) || !line.endsWith(markerEnd))
        return {};
    const qsizetype length = line.size() - tableBegin.size() - markerEnd.size();
    return QString::fromUtf8(line.sliced(tableBegin.size(), length));
}

/**
 * A page with its tables as they should be.
 *
 * @param error why nothing is given: the line, counted from 1, and what is wrong there
 */
std::optional<QByteArray> writtenAnew(const QByteArray &page, QString &error)
{
    QByteArrayList lines;
    QString open; // the table whose old lines are left out; empty outside
    int openedAt = 0;
    int number = 0;
    const auto fails = [&](int line, const QString &what) {
        error = QString::number(line) + u": "_s + what;
        return std::nullopt;
    };
    for (const QByteArray &line : page.split('\n')) {
        ++number;
        const std::optional<QString> name = tableBegunBy(line);
        if (!open.isEmpty() && name)
            break;
        if (line == tableEnd) {
            if (open.isEmpty())
                return fails(number, u"an end without a table"_s);
            open.clear();
        }
        if (open.isEmpty())
            lines.append(line);
        if (!name)
            continue;
        const QStringList table = tableOf(*name);
        if (table.isEmpty())
            return fails(number, u"there is no table \""_s + *name + u'"');
        open = *name;
        openedAt = number;
        lines.append('\n' + table.join(u'\n').toUtf8() + '\n');
    }
    if (!open.isEmpty())
        return fails(openedAt, u"the table \""_s + open + u"\" has no end"_s);
    return lines.join('\n');
}

/// Writes the tables of a page, or only compares them.
int bringInLine(const QString &path, bool checkOnly)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return complain(path + u": "_s + file.errorString(), Trouble);
    const QByteArray page = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return complain(path + u": "_s + file.errorString(), Trouble);
    file.close();

    QString error;
    const std::optional<QByteArray> anew = writtenAnew(page, error);
    if (!anew)
        return complain(path + u':' + error, Trouble);
    if (*anew == page)
        return Done;
    if (checkOnly)
        return complain(path + u": a table is not as it would be written"_s, Different);
    QSaveFile output(path);
    if (!output.open(QIODevice::WriteOnly) || output.write(*anew) != anew->size()
        || !output.commit())
        return complain(path + u": "_s + output.errorString(), Trouble);
    return Done;
}

int run(QStringList pages)
{
    const bool checkOnly = !pages.isEmpty() && pages.first() == "--check"_L1;
    if (checkOnly)
        pages.removeFirst();
    if (pages.isEmpty() || pages.first().startsWith(u'-'))
        return complain(u"usage: korvel-reference [--check] PAGE..."_s, Trouble);
    int status = Done;
    for (const QString &page : pages)
        status = std::max(status, bringInLine(page, checkOnly));
    return status;
}

} // namespace

} // namespace korvel::reference

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return korvel::reference::run(QCoreApplication::arguments().mid(1));
}
