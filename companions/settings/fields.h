// What the settings are called to people, and which of them stand together in the form.
#pragma once

#include "companions/check/vocabulary.h"

#include <QString>
#include <QStringList>

namespace korvel::settings::fields {

/// What stands together in the form, in its order.
enum class Section { Columns, Header, OrderInformation, Customer, Language, NoEffect };

struct Field
{
    QLatin1StringView key;
    Section section;
    const char *name; // within a sentence; catalogues have it in the context "fields"
};

/// All settings that are read, in the order of the form.
vocabulary::Rows<Field> all();

/// The row of a key; null when nothing reads it.
const Field *find(QAnyStringView key);

/// What a key is called, within a sentence; the key itself when nothing reads it.
QString nameOf(const QString &key);

/// The same as a heading.
QString titleOf(const QString &key);

/// What the form calls a setting, with its path behind; for what is in no form the path alone.
QString labelOf(const QStringList &path);

/// What stands for a value that is not there, and for one without a character.
QString notSet();
QString emptyValue();

/// The heading of a section.
QString headingOf(Section section);

/// A text with a capital letter first.
QString capitalised(QString text);

/// Where a setting stands: "korvel", its group, its key.
QStringList pathOf(QLatin1StringView group, QLatin1StringView key);

} // namespace korvel::settings::fields
