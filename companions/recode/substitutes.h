// What is printed for characters that a code page lacks.
#pragma once

namespace korvel::recode {

/**
 * A character that is like another one: the letter without its accent, an ASCII mark for a
 * typographic one, the first letter of a ligature.
 *
 * @return 0 where none is. It may be one that a code page lacks, too: what is like that one may be
 *         asked for then. Asking on and on ends. It is no control character, and none of ")", "(",
 *         "/" and "=", which mean something to the printer.
 */
char16_t likeCharacter(char32_t character);

} // namespace korvel::recode
