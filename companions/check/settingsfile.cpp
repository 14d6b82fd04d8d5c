// The settings of a file, gone through group by group.
#include "companions/check/settingsfile.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace check {

SettingsFile::SettingsFile(const QString &path)
    : Config(path, u"cfg"_s)
{
    if (QFile file(path); file.open(QIODevice::ReadOnly))
        text = QString::fromLatin1(file.readAll());
}

QList<SettingsFile::Entry> SettingsFile::entries() const
{
    QList<Entry> found;
    if (!document)
        return found;
    const QDomElement top = document->documentElement();
    for (const QString &key : settingNames(top))
        found.append({{}, key, top.attribute(key), 0, false, placeOf({key})});
    bool first = true;
    for (QDomElement group = top.firstChildElement(); !group.isNull();
         group = group.nextSiblingElement()) {
        addEntries(group, {group.tagName()}, first, found);
        first = false;
    }
    QHash<QStringList, int> counts;
    for (Entry &entry : found)
        entry.occurrence = counts[entry.groups + QStringList(entry.key)]++;
    return found;
}

QString SettingsFile::value(QLatin1StringView group, QLatin1StringView key) const
{
    return lookup(u"korvel."_s + group + u'.' + key);
}

bool SettingsFile::isOn(QLatin1StringView group, QLatin1StringView key) const
{
    return value(group, key) == "true"_L1;
}

int SettingsFile::number(QLatin1StringView group, QLatin1StringView key) const
{
    return value(group, key).toInt();
}

void SettingsFile::addEntries(const QDomElement &group, const QStringList &names, bool searched,
                              QList<Entry> &entries) const
{
    for (const QString &key : settingNames(group))
        entries.append(
            {names, key, group.attribute(key), 0, searched, placeOf(names + QStringList(key))});
    for (QDomElement inner = group.firstChildElement(); !inner.isNull();
         inner = inner.nextSiblingElement())
        addEntries(inner, names + QStringList(inner.tagName()), searched, entries);
}

/// Where the last of these names stands behind the others: groups, then a setting. The store does
/// not keep places: this is the first one that fits, in a group that is not closed before it.
Place SettingsFile::placeOf(const QStringList &names) const
{
    const auto pattern = [](const QString &name, const QString &mark) {
        return QRegularExpression(u"(?<!\\w)"_s + QRegularExpression::escape(name) + u"\\s*"_s
                                  + mark);
    };
    qsizetype group = 0;
    for (const QString &name : names.first(names.size() - 1))
        group = std::max<qsizetype>(text.indexOf(pattern(name, u":"_s), group), group);

    const QRegularExpression setting = pattern(names.constLast(), u"="_s);
    qsizetype at = text.indexOf(setting, group);
    while (names.size() > 1 && at >= 0
           && QStringView(text).sliced(group, at - group).contains(u'}')) {
        group = text.indexOf(pattern(names[names.size() - 2], u":"_s), group + 1);
        if (group < 0)
            break;
        at = text.indexOf(setting, group);
    }
    const QStringView before = QStringView(text).first(std::max<qsizetype>(at, 0));
    return {before.count(u'\n') + 1, before.size() - before.lastIndexOf(u'\n')};
}

} // namespace check
