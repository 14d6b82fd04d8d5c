// A field for each kind of setting, and its menu.
#include "companions/settings/fieldrow.h"

#include "companions/settings/editors.h"
#include "companions/settings/fields.h"
#include "companions/settings/hints.h"
#include "companions/settings/state.h"
#include "vocabulary/paper.h"

#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

namespace {

namespace key = vocabulary::key;
namespace language = vocabulary::language;

/// What a setting means, from the table that has it.
const char *meaningOf(const QString &name)
{
    if (const vocabulary::Setting *setting = vocabulary::findSetting(name))
        return setting->meaning;
    for (const vocabulary::LanguageSetting &setting : vocabulary::languageSettings()) {
        if (name == setting.key)
            return setting.meaning;
    }
    return "";
}

/// A value as the menu shows it.
QString shown(const std::optional<QString> &value)
{
    return value ? value->isEmpty() ? u"\"\""_s : QString(*value).replace(u'&', "&&"_L1)
                 : fields::notSet();
}

} // namespace

FieldRow::FieldRow(State &settings, const QStringList &setting, const QStringList &catalogues,
                   QWidget *parent)
    : QWidget(parent)
    , state(settings)
    , settingPath(setting)
    , meaning(hints::translated(meaningOf(setting.constLast())))
    , editor(makeEditor(catalogues))
    , label(new QLabel)
    , meaningLabel(new QLabel(meaning))
    , warningLabel(new QLabel)
    , more(new QToolButton)
{
    const QString title = fields::titleOf(setting.constLast());
    editor->setObjectName(setting.sliced(1).join(u'.'));
    editor->setAccessibleName(title);
    editor->setToolTip(setting.join(u'.'));
    editor->installEventFilter(this);
    setFocusProxy(editor);
    lay(title);
}

void FieldRow::lay(const QString &title)
{
    label->setText(title);
    label->setToolTip(settingPath.join(u'.'));
    label->setTextFormat(Qt::PlainText);
    for (QLabel *text : {label, meaningLabel, warningLabel})
        text->setWordWrap(true);
    meaningLabel->setTextFormat(Qt::PlainText);
    dimMeaning();
    warningLabel->setTextFormat(Qt::PlainText);
    more->setText(u"…"_s);
    more->setAutoRaise(true);
    more->setFocusPolicy(Qt::NoFocus); // the menu Edit has the same for the keyboard
    more->setAccessibleName(tr("Restore: %1").arg(title));
    more->setPopupMode(QToolButton::InstantPopup);
    more->setMenu(new QMenu(more));
    connect(more->menu(), &QMenu::aboutToShow, this, &FieldRow::fillMenu);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 2, 0, 6);
    grid->setVerticalSpacing(1);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    grid->addWidget(label, 0, 0);
    grid->addWidget(editor, 0, 1);
    grid->addWidget(more, 0, 2);
    grid->addWidget(meaningLabel, 1, 0, 1, 3);
    grid->addWidget(warningLabel, 2, 0, 1, 3);
}

/// Not every theme has a colour for what stands behind.
void FieldRow::dimMeaning()
{
    QPalette colours = palette();
    QColor dimmed = colours.color(QPalette::WindowText);
    dimmed.setAlphaF(0.65F);
    colours.setColor(QPalette::WindowText, dimmed);
    meaningLabel->setPalette(colours);
}

void FieldRow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        dimMeaning();
    QWidget::changeEvent(event);
}

QWidget *FieldRow::makeEditor(const QStringList &catalogues)
{
    const vocabulary::Setting *setting = vocabulary::findSetting(settingPath.constLast());
    if (!setting)
        return settingPath.constLast() == language::file ? makeCatalogues(catalogues) : makeText();
    if (setting->kind == vocabulary::Kind::Number)
        return makeNumber(setting->key);
    if (setting->kind == vocabulary::Kind::Text)
        return makeText();
    auto *box = new SwitchBox;
    connect(box, &SwitchBox::chosen, this,
            [this](const auto &text) { state.set(settingPath, text); });
    showValue = [box](const auto &text) { box->show(text); };
    return box;
}

QWidget *FieldRow::makeNumber(QLatin1StringView name)
{
    // A negative length leaves names whole.
    const int least = name == key::descriptionWidth ? -1 : 0;
    const int standard = name == key::paperWidth ? vocabulary::lineWidth : 0;
    auto *box = new NumberBox(least, standard);
    connect(box, &NumberBox::chosen, this,
            [this](const auto &text) { state.set(settingPath, text); });
    showValue = [box](const auto &text) { box->show(text); };
    return box;
}

QWidget *FieldRow::makeText()
{
    auto *line = new QLineEdit;
    connect(line, &QLineEdit::editingFinished, this, [this, line] {
        if (line->text() != state.value(settingPath).value_or(QString()))
            state.set(settingPath, line->text());
    });
    showValue = [line](const auto &text) {
        line->setPlaceholderText(text ? fields::emptyValue() : fields::notSet());
        if (line->text() != text.value_or(QString()))
            line->setText(text.value_or(QString()));
    };
    return line;
}

QWidget *FieldRow::makeCatalogues(const QStringList &catalogues)
{
    auto *box = new CatalogueBox;
    const QStringList folderPath = fields::pathOf(vocabulary::group::language, language::basedir);
    connect(box, &CatalogueBox::chosen, this, [=](const auto &folder, const auto &file) {
        state.history().beginMacro(tr("labels: %1").arg(box->currentText()));
        state.set(folderPath, folder);
        state.set(settingPath, file);
        state.history().endMacro();
    });
    showValue = [=](const auto &file) {
        const auto folder = state.value(folderPath);
        QStringList folders = catalogues;
        if (folder && !folder->isEmpty() && !folders.contains(*folder))
            folders.prepend(*folder);
        box->show(folder, file, folders);
    };
    return box;
}

void FieldRow::refresh(const QString &warning)
{
    const auto value = state.value(settingPath);
    showValue(value);
    QFont font = label->font();
    font.setItalic(!value);
    label->setFont(font);
    editor->setFont(font);
    warningLabel->setText(warning.isEmpty() ? QString() : u"⚠ "_s + warning);
    warningLabel->setVisible(!warning.isEmpty());
    QStringList description{meaning};
    if (!value)
        description.append(fields::notSet());
    else if (value->isEmpty())
        description.append(fields::emptyValue());
    if (!warning.isEmpty())
        description.append(warning);
    editor->setAccessibleDescription(description.join(u". "_s));
}

void FieldRow::unset() { state.set(settingPath, std::nullopt); }

void FieldRow::restoreFile() { state.set(settingPath, state.fileValue(settingPath)); }

void FieldRow::restoreSample() { state.set(settingPath, state.sampleValue(settingPath)); }

void FieldRow::fillMenu()
{
    QMenu &menu = *more->menu();
    menu.clear();
    const auto value = state.value(settingPath);
    const auto add = [&](const QString &text, const std::optional<QString> &then, auto slot) {
        menu.addAction(text, this, slot)->setEnabled(value != then);
    };
    add(tr("Not set"), std::nullopt, &FieldRow::unset);
    add(tr("As in the file: %1").arg(shown(state.fileValue(settingPath))),
        state.fileValue(settingPath), &FieldRow::restoreFile);
    add(tr("As in the sample: %1").arg(shown(state.sampleValue(settingPath))),
        state.sampleValue(settingPath), &FieldRow::restoreSample);
}

/// Whether the field holds what the state does not have yet.
bool FieldRow::isBeingTyped() const
{
    if (const auto *number = qobject_cast<const NumberBox *>(editor))
        return number->isBeingTyped();
    const auto *line = qobject_cast<const QLineEdit *>(editor);
    return line && line->text() != state.value(settingPath).value_or(QString());
}

/// What is typed is undone by the field, and given up by Escape; what was chosen is undone by the
/// window.
bool FieldRow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != editor)
        return false;
    if (event->type() == QEvent::FocusIn)
        emit entered();
    if (event->type() == QEvent::KeyPress && isBeingTyped()
        && static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        showValue(state.value(settingPath));
        return true;
    }
    if (event->type() != QEvent::ShortcutOverride || isBeingTyped())
        return false;
    const auto *key = static_cast<const QKeyEvent *>(event);
    const bool undoes = (key->modifiers() & Qt::ControlModifier) != 0
                        && (key->key() == Qt::Key_Z || key->key() == Qt::Key_Y);
    if (undoes)
        event->ignore();
    return undoes;
}

} // namespace korvel::settings
