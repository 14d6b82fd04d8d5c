// Names and values brought back to those that documents read.
#include "companions/check/settingwords.h"

#include "companions/check/words.h"
#include "companions/shared/nearest.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// Whether a character takes no room on the screen, or that of a blank without being one.
bool isHidden(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Format:
    case QChar::Separator_Space:
        return character != u' ';
    case QChar::Other_Control:
        return character >= 0x80;
    default:
        return false;
    }
}

/// A text of Latin-1 bytes as UTF-8, if it can be that. Of a character at its end the store may
/// have taken the last byte for a blank.
QString decoded(const QString &latin1)
{
    const bool isLatin1 =
        std::all_of(latin1.begin(), latin1.end(), [](QChar c) { return c.unicode() <= 0xFF; });
    if (!isLatin1)
        return latin1;
    for (const char *cut : {"", "\xA0"}) {
        const QByteArray bytes = latin1.toLatin1() + cut;
        if (bytes.isValidUtf8())
            return QString::fromUtf8(bytes);
    }
    return latin1;
}

/// A name without what does not show, and without the marks of other notations around it.
QString bare(const QString &name)
{
    QString text;
    for (const uint character : decoded(name).toUcs4()) {
        if (!isHidden(character))
            text += QChar::fromUcs4(character);
    }
    static const QRegularExpression around(u"^[^\\pL\\pN]+|[^\\pL\\pN]+$"_s);
    return text.remove(around);
}

// What counts as on and as off in other notations and languages.
constexpr auto yes = " true yes y on 1 enabled si s\u00EC ja oui wahr vero vrai verdadero cierto ";
constexpr auto no = " false no n off 0 disabled nein non falsch falso faux ";

QString meantSwitch(const QString &value)
{
    const QString text = bare(value).toLower();
    for (const QString &word : {text.section(u' ', 0, 0), text.section(u' ', -1)}) {
        if (word.isEmpty())
            continue;
        if (QString::fromUtf8(yes).contains(u' ' + word + u' '))
            return vocabulary::on;
        if (QString::fromUtf8(no).contains(u' ' + word + u' '))
            return u"false"_s;
    }
    return shared::nearest(text, {vocabulary::on, u"false"_s});
}

QString meantNumber(const QString &value)
{
    bool isNumber = false;
    const int hexadecimal = value.startsWith("0x"_L1) ? value.toInt(&isNumber, 16) : 0;
    if (isNumber)
        return QString::number(hexadecimal);
    // Digits, parted by blanks or not, and something else around them.
    static const QRegularExpression digits(
        u"^[^\\d+-]*([+-]?\\d+(?:\\s+\\d+)*)(?:[.,]0*)?(?:[^\\d.,][^\\d]*)?$"_s);
    QString number = digits.match(decoded(value)).captured(1);
    number.removeIf([](QChar c) { return c.isSpace(); });
    const int meant = number.toInt(&isNumber);
    return isNumber ? QString::number(meant) : QString();
}

} // namespace

QString asSeen(const QString &latin1)
{
    if (std::all_of(latin1.begin(), latin1.end(), [](QChar c) { return c.unicode() < 0x80; }))
        return latin1;
    QString text;
    for (const uint character : decoded(latin1).toUcs4()) {
        if (isHidden(character))
            text += QString::asprintf("<U+%04X>", character);
        else
            text += QChar::fromUcs4(character);
    }
    return text;
}

bool isCommentedOut(QStringView name)
{
    constexpr QLatin1StringView marks[] = {"#"_L1, "//"_L1, "/*"_L1, ";"_L1, "--"_L1, "<!--"_L1};
    return std::any_of(std::begin(marks), std::end(marks),
                       [&](QLatin1StringView mark) { return name.startsWith(mark); });
}

bool isNear(const QString &name, const QStringList &names)
{
    return names.contains(name) || !shared::nearest(name, names).isEmpty();
}

QString meantGroup(const QString &name)
{
    const QStringList &known = vocabulary::groupNames();
    if (known.contains(name))
        return name;
    if (isCommentedOut(name))
        return {};
    const QString text = bare(name);
    if (const QString nearest = nearestName(text, known); !nearest.isEmpty())
        return nearest;
    static const QRegularExpression between(u"[^\\pL\\pN]+"_s);
    const QStringList words = text.split(between);
    for (const QString &word : words) {
        if (known.contains(word))
            return word;
    }
    for (const QString &word : words) {
        if (const QString nearest = shared::nearest(word, known); !nearest.isEmpty())
            return nearest;
    }
    constexpr qsizetype enough = 4; // letters to know a name by
    const auto found = std::find_if(known.begin(), known.end(), [&](const QString &group) {
        return group.size() > enough && text.size() >= enough
               && (group.startsWith(text, Qt::CaseInsensitive)
                   || text.startsWith(group, Qt::CaseInsensitive));
    });
    return found == known.end() ? QString() : *found;
}

const QStringList &keysOf(QAnyStringView group)
{
    static const QStringList ofLanguage = [] {
        QStringList keys;
        for (const vocabulary::LanguageSetting &row : vocabulary::languageSettings())
            keys.append(row.key);
        return keys;
    }();
    static const QStringList ofDocuments = [] {
        QStringList keys;
        for (const vocabulary::Setting &row : vocabulary::settings())
            keys.append(row.key);
        return keys;
    }();
    return group == vocabulary::group::language ? ofLanguage : ofDocuments;
}

QString meantKey(QAnyStringView group, const QString &name)
{
    const QStringList &keys = keysOf(group);
    if (keys.contains(name))
        return name;
    if (isCommentedOut(name))
        return {};
    const QString text = bare(name).section(u'.', -1); // without the path that it is looked up by
    const QString nearest = nearestName(text, keys);
    // Most switches begin with this.
    return nearest.isEmpty() ? shared::nearest(QString(u"print"_s + text), keys) : nearest;
}

QString meantValue(vocabulary::Kind kind, const QString &value)
{
    return kind == vocabulary::Kind::Switch   ? meantSwitch(value)
           : kind == vocabulary::Kind::Number ? meantNumber(value)
                                              : QString();
}

} // namespace korvel::check
