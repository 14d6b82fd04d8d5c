// The dialog's fields, and what names may be.
#include "companions/settings/adddialog.h"

#include "companions/settings/buttons.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

namespace {

QComboBox *newBox(const QStringList &names, const QString &objectName)
{
    auto *box = new QComboBox;
    box->setObjectName(objectName);
    box->setEditable(true);
    box->addItems(names);
    box->setCurrentIndex(-1);
    return box;
}

bool isName(const QString &text)
{
    static const QRegularExpression name(u"^[A-Za-z_][A-Za-z0-9_-]*$"_s);
    return name.match(text).hasMatch();
}

} // namespace

AddDialog::AddDialog(What what, const QStringList &groups, const QStringList &settings,
                     QStringList taken, QWidget *parent)
    : QDialog(parent)
    , takenNames(std::move(taken))
    , settingBox(newBox(settings, u"newSetting"_s))
    , valueLine(new QLineEdit)
    , buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(what == What::Group ? tr("Add a group") : tr("Add a setting"));
    auto *form = new QFormLayout(this);
    if (what == What::Group) {
        groupBox = newBox(groups, u"newGroup"_s);
        form->addRow(tr("&Group:"), groupBox);
    }
    form->addRow(tr("&Setting:"), settingBox);
    valueLine->setObjectName(u"newValue"_s);
    form->addRow(tr("&Value:"), valueLine);
    form->addRow(buttons);
    nameButtons(*buttons);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (const QComboBox *box : {groupBox, settingBox}) {
        if (box)
            connect(box, &QComboBox::editTextChanged, this, &AddDialog::check);
    }
    check();
}

QString AddDialog::group() const { return groupBox ? groupBox->currentText() : QString(); }

QString AddDialog::setting() const { return settingBox->currentText(); }

QString AddDialog::value() const { return valueLine->text(); }

void AddDialog::check()
{
    const bool good = isName(setting()) && (!groupBox || isName(group()))
                      && !takenNames.contains(groupBox ? group() : setting());
    buttons->button(QDialogButtonBox::Ok)->setEnabled(good);
}

} // namespace korvel::settings
