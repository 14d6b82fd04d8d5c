// Trials, one after the other.
#include "companions/settings/origins.h"

#include "companions/check/vocabulary.h"
#include "companions/settings/document.h"
#include "companions/settings/state.h"
#include "config/config.h"
#include "vocabulary/paper.h"

#include <QTreeWidget>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

namespace {

constexpr qsizetype mostCompared = 4000000; // pairs of rows

bool same(const preview::PaperRow &a, const preview::PaperRow &b)
{
    return a.kind == b.kind && a.text == b.text;
}

using Rows = QList<preview::PaperRow>;

/// The rows of one part that no longest common sequence with the other has.
void addUncommon(const Rows &paper, const Rows &other, qsizetype first, QList<int> &differing)
{
    const qsizetype width = other.size() + 1;
    QList<int> longest((paper.size() + 1) * width, 0);
    for (qsizetype i = paper.size() - 1; i >= 0; --i) {
        for (qsizetype k = other.size() - 1; k >= 0; --k)
            longest[i * width + k] =
                same(paper[i], other[k])
                    ? longest[(i + 1) * width + k + 1] + 1
                    : std::max(longest[(i + 1) * width + k], longest[i * width + k + 1]);
    }
    for (qsizetype i = 0, k = 0; i < paper.size();) {
        if (k < other.size() && same(paper[i], other[k])) {
            ++i;
            ++k;
        } else if (k < other.size() && longest[i * width + k + 1] >= longest[(i + 1) * width + k]) {
            ++k;
        } else {
            differing.append(static_cast<int>(first + i));
            ++i;
        }
    }
}

/// Another value of a number: none, so that all that it makes room for moves or goes.
std::optional<QString> otherNumber(const vocabulary::Setting &setting, int value)
{
    if (setting.key == vocabulary::key::topMargin)
        return value > 0 ? std::optional(u"0"_s) : std::nullopt;
    if (setting.key == vocabulary::key::descriptionWidth) // 0 is the printer's width
        return value == 1 ? u"2"_s : u"1"_s;
    if (setting.key == vocabulary::key::paperWidth)
        return QString::number(std::clamp(value == 0 ? vocabulary::lineWidth : value, 0, 65535)
                               + 1);
    return value > 0 ? u"0"_s : QString::number(vocabulary::lineWidth);
}

/// A value that makes another paper; none where none is known.
std::optional<QString> otherValue(const QString &key, const std::optional<QString> &value)
{
    const vocabulary::Setting *setting = vocabulary::findSetting(key);
    if (!setting)
        return value && !value->isEmpty() ? std::optional(QString()) : std::nullopt;
    if (setting->documents == 0)
        return {};
    if (setting->kind == vocabulary::Kind::Number)
        return otherNumber(*setting, value.value_or(QString()).toInt());
    return value == vocabulary::on ? std::optional(u"false"_s) : std::nullopt;
}

/// A switch makes lines, wherever these stand: what it leaves out may have centred those behind.
bool isSwitch(const QString &key)
{
    const vocabulary::Setting *setting = vocabulary::findSetting(key);
    return setting && setting->kind == vocabulary::Kind::Switch;
}

Rows withoutIndents(Rows rows)
{
    for (preview::PaperRow &row : rows)
        row.text = row.text.trimmed();
    return rows;
}

} // namespace

QList<int> rowsThatDiffer(const Rows &paper, const Rows &other)
{
    qsizetype begin = 0;
    const qsizetype shorter = std::min(paper.size(), other.size());
    while (begin < shorter && same(paper[begin], other[begin]))
        ++begin;
    qsizetype end = 0;
    while (end < shorter - begin
           && same(paper[paper.size() - 1 - end], other[other.size() - 1 - end]))
        ++end;
    const Rows middle = paper.sliced(begin, paper.size() - begin - end);
    const Rows otherMiddle = other.sliced(begin, other.size() - begin - end);
    QList<int> differing;
    if (middle.size() * otherMiddle.size() <= mostCompared && middle.size() != otherMiddle.size()) {
        addUncommon(middle, otherMiddle, begin, differing);
        return differing;
    }
    for (qsizetype i = 0; i < middle.size(); ++i) {
        if (i >= otherMiddle.size() || !same(middle[i], otherMiddle[i]))
            differing.append(static_cast<int>(begin + i));
    }
    return differing;
}

Origins::Origins(const QString &renderer, QObject *parent)
    : QObject(parent)
    , rendering(renderer)
{
    connect(&rendering, &shared::Rendering::ended, this, &Origins::take);
}

void Origins::begin(const QByteArray &newJob, const QByteArray &newSettings, const Rows &paper)
{
    job = newJob;
    settings = newSettings;
    base = paper;
    known.clear();
    asked.clear();
    askedRow.reset();
}

void Origins::findRows(const QStringList &setting)
{
    asked = {setting};
    askedRow.reset();
    next();
}

void Origins::findMakers(int row, const QList<QStringList> &allSettings)
{
    asked = allSettings;
    askedRow = row;
    next();
}

/// Renders for the first setting of which nothing is known, or tells what was asked.
void Origins::next()
{
    for (const QStringList &setting : std::as_const(asked)) {
        if (known.contains(setting))
            continue;
        if (const auto changed = changedSettings(setting)) {
            rendering.render(job, *changed);
            return;
        }
        known.insert(setting, {});
    }
    tell();
}

void Origins::take(const shared::Rendered &rendered)
{
    for (const QStringList &setting : std::as_const(asked)) {
        if (known.contains(setting))
            continue;
        const Rows other =
            rendered.isThere() ? preview::paperOf(rendered.stream, vocabulary::lineWidth) : base;
        known.insert(setting, isSwitch(setting.constLast())
                                  ? rowsThatDiffer(withoutIndents(base), withoutIndents(other))
                                  : rowsThatDiffer(base, other));
        next();
        return;
    }
}

void Origins::tell()
{
    const QList<QStringList> all = std::exchange(asked, {});
    if (!askedRow) {
        if (!all.isEmpty())
            emit rowsFound(all.constFirst(), known.value(all.constFirst()));
        return;
    }
    QList<QStringList> makers;
    for (const QStringList &setting : all) {
        if (known.value(setting).contains(*askedRow))
            makers.append(setting);
    }
    std::stable_sort(makers.begin(), makers.end(), [this](const auto &a, const auto &b) {
        return known.value(a).size() < known.value(b).size();
    });
    emit makersFound(*askedRow, makers);
}

/// The settings with another value for one of them; nothing where none makes another paper.
std::optional<QByteArray> Origins::changedSettings(const QStringList &setting) const
{
    libconfig::Config store;
    store.readBytes(settings, u"settings"_s, u"cfg"_s);
    State trial;
    trial.begin(std::unique_ptr<QTreeWidget>(store.newConfigListView()), {});
    const auto value = otherValue(setting.constLast(), trial.value(setting));
    if (!value)
        return {};
    trial.set(setting, value);
    return SettingsDocument::writtenBy(*trial.view());
}

} // namespace korvel::settings
