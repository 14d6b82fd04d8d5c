// The form put together for a document.
#include "companions/settings/formpane.h"

#include "companions/settings/fieldrow.h"
#include "companions/settings/state.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

namespace {

/// Whether a setting stands in the form of a document, or of the language without one.
bool belongs(const fields::Field &field, const vocabulary::Method *method)
{
    if (field.section == fields::Section::Language)
        return !method;
    const vocabulary::Setting *setting = vocabulary::findSetting(field.key);
    return method && setting && vocabulary::isRead(*setting, method->document);
}

QLabel *newText(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

/// What stands above the fields of a document.
QString introduction(const vocabulary::Method &method)
{
    if (method.document == vocabulary::SummaryOrder)
        return FormPane::tr("This document prints nothing.");
    QStringList others;
    for (const vocabulary::Method &other : vocabulary::methods()) {
        if (other.group == method.group && other.name != method.name
            && other.document != vocabulary::SummaryOrder)
            others.append(vocabulary::titleOf(other));
    }
    return others.isEmpty()
               ? QString()
               : FormPane::tr("The same settings lay out: %1.").arg(others.join(u", "_s));
}

} // namespace

FormPane::FormPane(State &settings, QStringList catalogues, QWidget *parent)
    : QScrollArea(parent)
    , state(settings)
    , folders(std::move(catalogues))
{
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
}

void FormPane::showDocument(const vocabulary::Method *method)
{
    rows.clear();
    currentRow = nullptr;
    group = method ? method->group : vocabulary::group::language;
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    if (const QString text = method ? introduction(*method) : QString(); !text.isEmpty())
        layout->addWidget(newText(text));
    warning = newText({});
    warning->setObjectName(u"groupWarning"_s);
    warning->hide();
    layout->addWidget(warning);
    addSections(*layout, method);
    layout->addStretch(1);
    setWidget(content); // and the one before goes
}

void FormPane::addSections(QVBoxLayout &layout, const vocabulary::Method *method)
{
    std::optional<fields::Section> section;
    for (const fields::Field &field : fields::all()) {
        if (!belongs(field, method))
            continue;
        if (section != field.section) {
            section = field.section;
            auto *heading = newText(fields::headingOf(field.section));
            QFont font = heading->font();
            font.setBold(true);
            heading->setFont(font);
            layout.addWidget(heading);
        }
        addField(layout, method ? method->group : vocabulary::group::language, field.key);
    }
}

void FormPane::addField(QVBoxLayout &layout, QLatin1StringView inGroup, QLatin1StringView key)
{
    auto *row = new FieldRow(state, fields::pathOf(inGroup, key), folders);
    layout.addWidget(row);
    rows.append(row);
    connect(row, &FieldRow::entered, this, [this, row] {
        currentRow = row;
        ensureWidgetVisible(row, 0, 4);
        emit entered(row->path());
    });
}

QWidget *FormPane::lastField() const
{
    return rows.isEmpty() ? nullptr : rows.constLast()->field();
}

void FormPane::refresh(const QList<hints::Hint> &found)
{
    QStringList ofGroup;
    for (const hints::Hint &hint : found) {
        if (hint.setting.size() == 2 && hint.setting[1] == group)
            ofGroup.append(u"⚠ "_s + hint.text);
    }
    warning->setText(ofGroup.join(u'\n'));
    warning->setVisible(!ofGroup.isEmpty());
    for (FieldRow *row : rows) {
        QString text;
        for (const hints::Hint &hint : found) {
            if (hint.setting == row->path())
                text = hint.text;
        }
        row->refresh(text);
    }
}

bool FormPane::choose(const QStringList &path)
{
    const auto row = std::find_if(rows.cbegin(), rows.cend(),
                                  [&](const FieldRow *each) { return each->path() == path; });
    if (row == rows.cend())
        return false;
    (*row)->field()->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace korvel::settings
