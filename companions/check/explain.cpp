// How the codes of findings are explained.
#include "companions/check/explain.h"

#include "companions/check/examples.h"
#include "companions/check/words.h"

#include <algorithm>

namespace korvel::check {

namespace {

const qsizetype longestLevel = levelName(Level::Warning).size();

/// Lines, each with blanks before it.
QString indented(QString lines) { return u"    "_s + lines.replace(u'\n', "\n    "_L1) + u'\n'; }

/// Lines without the blanks that the first begins with.
QString dedented(const QString &lines)
{
    const QString text = lines.trimmed();
    const QString blanks = lines.first(lines.indexOf(text));
    return blanks.isEmpty() ? text : QString(text).replace(u'\n' + blanks, u"\n"_s);
}

QString firstSentence(QLatin1StringView text)
{
    const qsizetype end = text.indexOf(". "_L1);
    return end < 0 ? text : text.first(end + 1);
}

QString shown(const Example &example)
{
    QString text;
    if (!example.settings.isEmpty())
        text += u"\nFor example, the settings\n\n"_s + indented(settingsOf(example, example.wrong));
    if (!example.job.isEmpty())
        text += (text.isEmpty() ? u"\nFor example, the job\n\n"_s : u"\nand the job\n\n"_s)
                + indented(jobOf(example, example.wrong));
    return text + u"\nmended by\n\n"_s + indented(dedented(mendedLinesOf(example)));
}

} // namespace

QString explained(const CodeInfo &row)
{
    QString text = row.name + u" ("_s + levelName(row.level) + u")\n\n"_s + row.meaning + u"\n\n"_s
                   + row.advice + u'\n';
    if (const Example *example = exampleOf(row.code))
        text += shown(*example);
    return text + u"\n--ignore "_s + row.name + u" leaves such findings out.\n"_s;
}

QString codeList()
{
    qsizetype longest = 0;
    for (const CodeInfo &row : codes())
        longest = std::max(longest, row.name.size());
    QString text;
    for (const CodeInfo &row : codes())
        text += QString(row.name).leftJustified(longest + 2)
                + QString(levelName(row.level)).leftJustified(longestLevel + 2)
                + firstSentence(row.meaning) + u'\n';
    return text;
}

QString noSuchCode(const QString &name)
{
    QStringList names;
    for (const CodeInfo &row : codes())
        names.append(row.name);
    QString near = orNearest(name, names);
    if (near.isEmpty() && !name.isEmpty())
        near = orLonger(name, names);
    return u"there is no code "_s + quoted(name) + (near.isEmpty() ? u";"_s : near)
           + u" --list-codes shows all"_s;
}

} // namespace korvel::check
