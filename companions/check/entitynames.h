// The names that web pages have for characters, and XML has not.
#pragma once

#include <QStringView>

namespace korvel::check {

/// The character that a name stands for in web pages, such as "egrave" or "nbsp"; 0 where it is
/// none of a Latin letter or a common sign.
char16_t namedCharacter(QStringView name);

} // namespace korvel::check
