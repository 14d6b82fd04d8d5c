// The words of the buttons.
#include "companions/settings/buttons.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>

namespace korvel::settings {

namespace {

struct Button
{
    QDialogButtonBox::StandardButton button;
    const char *text;
};

// clang-format off
constexpr Button named[] = {
    {QDialogButtonBox::Ok,      QT_TRANSLATE_NOOP("buttons", "OK")},
    {QDialogButtonBox::Cancel,  QT_TRANSLATE_NOOP("buttons", "&Cancel")},
    {QDialogButtonBox::Save,    QT_TRANSLATE_NOOP("buttons", "&Save")},
    {QDialogButtonBox::Discard, QT_TRANSLATE_NOOP("buttons", "&Discard")},
    {QDialogButtonBox::Yes,     QT_TRANSLATE_NOOP("buttons", "&Yes")},
    {QDialogButtonBox::No,      QT_TRANSLATE_NOOP("buttons", "&No")},
};
// clang-format on

} // namespace

void nameButtons(const QDialogButtonBox &buttons)
{
    for (const Button &row : named) {
        if (QPushButton *button = buttons.button(row.button))
            button->setText(QCoreApplication::translate("buttons", row.text));
    }
}

void nameButtons(const QMessageBox &box)
{
    if (const auto *buttons = box.findChild<QDialogButtonBox *>())
        nameButtons(*buttons);
}

} // namespace korvel::settings
