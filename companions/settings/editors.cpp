// What the fields show, and what becomes of a choice.
#include "companions/settings/editors.h"

#include "companions/settings/fields.h"
#include "vocabulary/limits.h"
#include "vocabulary/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QSignalBlocker>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

namespace {

// What an entry of the list of catalogues stands for.
constexpr int folderRole = Qt::UserRole;
constexpr int fileRole = Qt::UserRole + 1;

QVariant toVariant(const std::optional<QString> &text)
{
    return text ? QVariant(*text) : QVariant();
}

std::optional<QString> fromVariant(const QVariant &text)
{
    return text.isValid() ? std::optional(text.toString()) : std::nullopt;
}

/// A language by its own name; the catalogue's where there is none.
QString languageOf(const QString &catalogue)
{
    const QString code = catalogue.section(u'_', 1);
    const QLocale locale(code);
    if (locale.language() == QLocale::C)
        return catalogue;
    QString name = locale.nativeLanguageName();
    if (code.contains(u'_'))
        return fields::capitalised(name);
    // "español de España": the toolkit takes a language for that of its first country.
    const auto spoken =
        QLocale::matchingLocales(locale.language(), locale.script(), QLocale::AnyTerritory);
    for (const QLocale &other : spoken) {
        const QString plain = other.nativeLanguageName();
        if (!plain.isEmpty() && name.contains(plain))
            name = plain;
    }
    return fields::capitalised(name);
}

} // namespace

NumberBox::NumberBox(int least, int standard, QWidget *parent)
    : QSpinBox(parent)
    , standardNumber(standard)
{
    setRange(least - 1, vocabulary::limit::widestPad);
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QSpinBox::valueChanged, this, [this](int number) {
        emit chosen(number == none() ? std::nullopt : std::optional(QString::number(number)));
    });
}

void NumberBox::show(const std::optional<QString> &text)
{
    const QSignalBlocker quiet(this);
    bool isNumber = false;
    const int number = text.value_or(QString()).toInt(&isNumber);
    const bool fits = isNumber && number > none() && number <= maximum();
    setSpecialValueText(text ? u'"' + *text + u'"' : fields::notSet());
    setValue(fits ? number : none());
}

bool NumberBox::isBeingTyped() const
{
    return text() != (value() == none() ? specialValueText() : textFromValue(value()));
}

void NumberBox::stepBy(int steps)
{
    if (value() == none() && steps > 0)
        setValue(standardNumber);
    else
        QSpinBox::stepBy(steps);
}

/// A wheel that scrolls the form changes nothing on its way, not even the field that was chosen.
void NumberBox::wheelEvent(QWheelEvent *event) { event->ignore(); }

/// "not set" gives way to what is typed.
void NumberBox::focusInEvent(QFocusEvent *event)
{
    QSpinBox::focusInEvent(event);
    if (value() == none())
        QTimer::singleShot(0, this, &QSpinBox::selectAll);
}

SwitchBox::SwitchBox(QWidget *parent)
    : QCheckBox(parent)
{
    setTristate(true);
}

void SwitchBox::show(const std::optional<QString> &text)
{
    const bool isOn = text == vocabulary::on;
    setCheckState(!text ? Qt::PartiallyChecked : isOn ? Qt::Checked : Qt::Unchecked);
    if (!text)
        setText(fields::notSet());
    else if (isOn)
        setText(tr("on"));
    else if (*text == "false"_L1)
        setText(tr("off"));
    else
        setText(tr("off (\"%1\")").arg(*text));
}

void SwitchBox::nextCheckState()
{
    emit chosen(checkState() == Qt::Checked ? u"false"_s : QString(vocabulary::on));
}

CatalogueBox::CatalogueBox(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(10);
    connect(this, &QComboBox::activated, this, [this](int index) {
        emit chosen(fromVariant(itemData(index, folderRole)),
                    fromVariant(itemData(index, fileRole)));
    });
}

void CatalogueBox::show(const std::optional<QString> &folder, const std::optional<QString> &file,
                        const QStringList &folders)
{
    clear();
    const auto add = [&](const QString &text, const std::optional<QString> &itsFolder,
                         const std::optional<QString> &itsFile) {
        addItem(text);
        setItemData(count() - 1, toVariant(itsFolder), folderRole);
        setItemData(count() - 1, toVariant(itsFile), fileRole);
    };
    add(tr("%1: labels in English").arg(fields::notSet()), {}, {});
    for (const QString &place : folders) {
        const QStringList names = QDir(place).entryList({u"korvel_*.qm"_s}, QDir::Files);
        for (const QString &name : names) {
            const QString catalogue = name.chopped(3);
            add(languageOf(catalogue), place, u'/' + catalogue);
            setItemData(count() - 1, QString(place + u'/' + name), Qt::ToolTipRole);
        }
    }
    const QString named = folder.value_or(QString()) + file.value_or(QString());
    int current = named.isEmpty() && !file ? 0 : -1;
    for (int i = 1; i < count() && current < 0; ++i) {
        const QString path = itemData(i, folderRole).toString() + itemData(i, fileRole).toString();
        if (path == named || path + ".qm"_L1 == named)
            current = i;
    }
    if (current < 0) {
        current = count();
        add(named.isEmpty()  ? tr("%1: labels in English").arg(fields::emptyValue())
            : file == "/"_L1 ? tr("the language of the system")
                             : u'"' + named + u'"',
            folder, file);
        setItemData(current, named, Qt::ToolTipRole);
    }
    setCurrentIndex(current);
}

void CatalogueBox::wheelEvent(QWheelEvent *event) { event->ignore(); }

} // namespace korvel::settings
