// Words that tills use for what jobs call otherwise, in five languages.
#pragma once

#include <QStringList>

namespace korvel::check {

/// The first name of a list that means what a word means, whatever its letter case, accents and
/// joints; empty when none does.
QString synonymOf(const QString &word, const QStringList &names);

/// Whether a word is that of a figure: a quantity, a price, a discount, a tax.
bool meansFigure(const QString &word);

/// Whether a word is that of a day or a time of day.
bool meansTime(const QString &word);

} // namespace korvel::check
