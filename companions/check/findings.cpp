// The order of findings, and how each is shown.
#include "companions/check/findings.h"

#include <algorithm>

namespace korvel::check {

void sortByPlace(QList<Finding> &findings)
{
    std::stable_sort(findings.begin(), findings.end(), [](const Finding &a, const Finding &b) {
        return std::pair(a.place.line, a.place.column) < std::pair(b.place.line, b.place.column);
    });
}

QString lineOf(const QString &file, const Finding &finding)
{
    return shared::inOneLine(file) + u':' + QString::number(finding.place.line) + u':'
           + QString::number(finding.place.column) + u": "_s
           + shared::toldFinding(infoOf(finding.code), finding.text);
}

QJsonObject toJson(const QString &file, const Finding &finding)
{
    const CodeInfo &info = infoOf(finding.code);
    return {
        {u"file"_s, file},
        {u"line"_s, finding.place.line},
        {u"column"_s, finding.place.column},
        {u"level"_s, QString(levelName(info.level))},
        {u"code"_s, QString(info.name)},
        {u"text"_s, finding.text},
    };
}

} // namespace korvel::check
