// All that findings in settings files say: a row for each code.
#pragma once

#include "companions/check/codes.h"

namespace korvel::check {

// clang-format off
inline constexpr CodeInfo settingsCodes[] = {
    // The settings as a whole.
    {Code::NoSettings, Level::Error, "no-settings"_L1,
     QT_TRANSLATE_NOOP("findings", "nothing of the file is read: %1"),
     "The file has no settings that documents read: it is empty, is written in another notation, "
     "or its first group is not `korvel`. Every setting is at its default."_L1,
     "Begin with `korvel: {`, in small letters, with the documents' groups inside, and end with "
     "`};`; `examples/korvel.conf` has all groups."_L1},
    {Code::ByteOrderMark, Level::Error, "byte-order-mark"_L1,
     QT_TRANSLATE_NOOP("findings", "nothing of the file is read: %1; save it as plain ASCII"),
     "A byte order mark stands in front of the file and becomes part of the first group's name. "
     "Every setting is at its default."_L1,
     "Save the file as plain ASCII, or as UTF-8 without a byte order mark."_L1},
    {Code::Comment, Level::Error, "comment"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "%1 is read as part of what follows: %2 is lost; there are no comments"),
     "A comment or a stray text stands between settings. There are no comments: the text becomes "
     "part of the next name, or swallows more than that where it has a colon, an equals sign or a "
     "brace."_L1,
     "Take the text out. A setting that is left out on purpose can be deleted."_L1},
    {Code::Unterminated, Level::Error, "unterminated"_L1,
     "%1",
     "A mark of the notation is missing, is another one, or stands where it should not: the `;` "
     "behind a value or a `}`, the `:`, `{` or `}` of a group, the `=` of a setting. What follows "
     "is misread up to the next such mark, or further."_L1,
     "Put the mark where the finding points: settings are written `name = \"value\";`, groups "
     "`name: { ... };`."_L1},
    {Code::LostGroup, Level::Error, "lost-group"_L1,
     QT_TRANSLATE_NOOP("findings", "%1: its settings are lost%2"),
     "A group of a document, or the language, is lost with all its settings, which are at their "
     "defaults: its name is misspelt, has another text in it or is missing, or the group stands in "
     "another one, or in a second `korvel`."_L1,
     "Write the name as in `examples/korvel.conf`, in small letters and with nothing beside it, "
     "and the group directly in `korvel`."_L1},
    {Code::Catalogue, Level::Error, "catalogue"_L1,
     QT_TRANSLATE_NOOP("findings", "labels stay English: %1"),
     "The settings name a catalogue of labels that cannot be loaded."_L1,
     "Correct `basedir` and `file`: the catalogue's path is one behind the other, with nothing put "
     "between them, so `file` begins with a slash."_L1},

    // The settings.
    {Code::Columns, Level::Warning, "columns"_L1,
     "%1",
     "The columns of a document leave no room for the description, one of them has a negative "
     "width, or its lines are wider than the printer's 32 characters."_L1,
     "Make the columns narrower, so that the description has at least one character, and set "
     "paperWidth to 32 or less."_L1},
    {Code::UnreadKey, Level::Warning, "unread-key"_L1,
     QT_TRANSLATE_NOOP("findings", "nothing reads %1: %2"),
     "No document reads the setting, or a group that is like none of a document: its name is "
     "misspelt, it stands outside the group of a document, or it is commented out and takes "
     "nothing else along."_L1,
     "Correct the name or the place; upper and lower case are different. What is left out on "
     "purpose can be deleted."_L1},
    {Code::Duplicate, Level::Warning, "duplicate"_L1,
     QT_TRANSLATE_NOOP("findings", "%1 stands here a second time: %2"),
     "A setting stands twice in a group: the last one counts. Or a group stands twice: of a "
     "setting that is in both, the first one that is not empty counts."_L1,
     "Delete the one that is not meant."_L1},
    {Code::NotTrue, Level::Warning, "not-true"_L1,
     QT_TRANSLATE_NOOP("findings", "%1 is %2 and counts as off%3"),
     "A switch is neither true nor false, and counts as off."_L1,
     "Write exactly true, in small letters and without blanks, to switch it on."_L1},
    {Code::NotANumber, Level::Warning, "not-a-number"_L1,
     QT_TRANSLATE_NOOP("findings", "%1 is %2, no whole number, and counts as 0%3"),
     "A width or a count is no whole number, and counts as 0."_L1,
     "Write digits alone."_L1},
};
// clang-format on

} // namespace korvel::check
