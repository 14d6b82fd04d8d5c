// How the codes of findings are listed and explained.
#include "companions/shared/codes.h"

#include "companions/shared/nearest.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace korvel::shared {

namespace {

QString firstSentence(QLatin1StringView text)
{
    const qsizetype end = text.indexOf(". "_L1);
    return end < 0 ? text : text.first(end + 1);
}

} // namespace

Phrase::operator QString() const { return QCoreApplication::translate("findings", text); }

QLatin1StringView levelName(Level level)
{
    return level == Level::Error ? "error"_L1 : "warning"_L1;
}

QString explained(const CodeWords &row, const QString &example)
{
    return row.name + u" ("_s + levelName(row.level) + u")\n\n"_s + row.meaning + u"\n\n"_s
           + row.advice + u'\n' + example + u"\n--ignore "_s + row.name
           + u" leaves such findings out.\n"_s;
}

QString codeList(const QList<CodeWords> &rows)
{
    qsizetype longest = 0;
    for (const CodeWords &row : rows)
        longest = std::max(longest, row.name.size());
    const qsizetype longestLevel = levelName(Level::Warning).size();
    QString text;
    for (const CodeWords &row : rows)
        text += QString(row.name).leftJustified(longest + 2)
                + QString(levelName(row.level)).leftJustified(longestLevel + 2)
                + firstSentence(row.meaning) + u'\n';
    return text;
}

QString noSuchCode(const QString &name, const QStringList &names)
{
    QString meant = nearest(name, names);
    if (meant.isEmpty() && !name.isEmpty())
        meant = longerOrShorter(name, names);
    const QString question = u"; did you mean \""_s + meant + u"\"?"_s;
    return u"there is no code "_s + quoted(name) + (meant.isEmpty() ? u";"_s : question)
           + u" --list-codes shows all"_s;
}

QString toldFinding(const CodeWords &row, const QString &text)
{
    return levelName(row.level) + u": "_s + text + u" ["_s + row.name + u"]\n"_s;
}

} // namespace korvel::shared
