// What the rules of a job share: the document so far, the settings, the findings; and the rules.
#pragma once

#include "companions/check/findings.h"
#include "companions/check/settingsfile.h"
#include "companions/check/vocabulary.h"
#include "companions/recode/codepage.h"

#include <QHash>
#include <QSet>

#include <optional>

namespace korvel::check {

/// Elements in another one that stand for its attributes.
struct SpelledOut
{
    const Tag *first = nullptr;
    QStringList names; // the first of them, each once
};

/// What an element selects, the method or what is meant for it.
struct Selection
{
    const vocabulary::Method *said = nullptr; // null when no document is called so
    const vocabulary::Method *read = nullptr; // whose elements stand behind it
    bool selects = false;                     // false for any other element
};

struct Context
{
    const Job &job;
    const SettingsFile *settings;               // null when none are given
    const recode::CodePage *charset;            // of the printer; null when none is given
    const vocabulary::Method *method = nullptr; // selected last; null before the first
    QList<Finding> findings = {};

    QHash<const Tag *, SpelledOut> spelledOut = {}; // by what they stand in
    QSet<const Tag *> forAttributes = {};           // all of them
    QHash<const Tag *, Selection> selections = {};  // by the elements that select
    QSet<const Tag *> lost = {}; // elements of which nothing is printed, though something should be
    QSet<const Tag *> doubtful = {}; // elements of whose figures something is said
    QChar decimalMark = {};          // of the first amount that has one
    bool mixesMarks = false;         // once that is said

    /// Notes a finding that says the wording of its code with these words.
    template<typename... Words>
    void note(Place place, Code code, const Words &...words)
    {
        findings.append({place, code, worded(code, words...), {}, 0});
    }

    /// Whether settings are given and switch this on in the document.
    [[nodiscard]] bool isOn(QLatin1StringView key) const
    {
        return settings && !key.isEmpty() && settings->isOn(method->group, key);
    }

    /// Whether settings are given and switch this off in the document. What has no switch is never
    /// off, nor is what a setting without a name may switch on.
    [[nodiscard]] bool isOff(QLatin1StringView key) const
    {
        return settings && !key.isEmpty() && !settings->isOn(method->group, key)
               && !settings->hasNameless(method->group);
    }
};

// methods.cpp

/// Finds what selects the job's documents, and which documents its elements are read as, before any
/// rule but after gatherContents().
void gatherMethods(Context &context);

/// The method, or what is meant for it; false when the job ends there.
bool checkMethod(Context &context, const Tag &tag);

// contents.cpp

/// Whether an element has an attribute of that name in any document.
bool isAttributeOf(const QString &element, const QString &name);

/// Whether a tag is an attribute spelt as an element: <price>7.00</price>. What it stands in says
/// so.
bool standsForAttribute(const Context &context, const Tag &tag);

/// Finds the elements that stand for attributes, before any rule.
void gatherContents(Context &context);

/// Notes a text in an element, or elements in it that stand for attributes; false when there is
/// none, and the attributes are to be looked for.
bool noteContents(Context &context, const Tag &tag);

// attributes.cpp

/// The attributes of an element that the document prints.
void checkAttributes(Context &context, const Tag &tag, const vocabulary::Element &element);

/// Notes an attribute that nothing reads; "unused" are names that the tag could have and has not.
void noteUnread(Context &context, const Tag &tag, const JobAttribute &attribute,
                const QStringList &unused);

// characters.cpp

/// Whether a value has a control character other than a line break.
bool hasControl(const JobAttribute &attribute);

/// The characters of a text that is printed or registered: those that are control characters, that
/// came of a wrong encoding, or that the printer's code page lacks.
///
/// @param bearer words for what has a control character
void checkCharacters(Context &context, const JobAttribute &attribute, const QString &bearer);

// texts.cpp

/// What is printed in a line.
void checkText(Context &context, const Tag &tag, const JobAttribute &attribute);

/// What is printed in lines, parted at commas.
void checkAddress(Context &context, const JobAttribute &attribute);

// amounts.cpp

/// An amount in hundredths; nothing for what is none, or has parts of a hundredth.
std::optional<qint64> hundredthsOf(const QString &value);

/// Whether an attribute says a figure, whatever reads it: by its name, or as an amount with
/// decimals. Elements that most documents share have names of their own choice beside theirs.
bool isFigure(const Tag &tag, const JobAttribute &attribute);

/// A quantity or a count that is printed as it is.
void checkQuantity(Context &context, const JobAttribute &attribute);

/// A tax rate that is printed as it is. Without tax it may be a word.
void checkRate(Context &context, const Tag &tag, const JobAttribute &attribute);

/// An amount that is printed as it is.
void checkAmount(Context &context, const JobAttribute &attribute);

/// The quantity of a variant, which prints as a sign.
void checkVariantQuantity(Context &context, const JobAttribute &attribute);

// salerows.cpp

/// Whether an attribute is sent to be registered.
bool isRegistered(const vocabulary::Attribute &row);

/// Whether a sale row is sent as a deduction, which carries its price alone.
bool isDeduction(const Tag &tag, const QList<vocabulary::Attribute> &known);

/// Likewise of the text of a price.
bool isDeduction(const QString &price);

/// Notes what a sale row lacks, or has empty, if anything.
void noteIncomplete(Context &context, const Tag &tag, const QStringList &lacking);

/// A text, a quantity or a price that is sent to be registered.
void checkRegistered(Context &context, vocabulary::Value kind, const JobAttribute &attribute);

// sums.cpp

/// The rows of a job beside each other: their own totals, the job's total, the tax.
void checkSums(Context &context);

// lines.cpp

/// The lines that the engine prints of these tags by the settings, which must be given.
void checkLines(Context &context, const QList<Tag> &tags);

} // namespace korvel::check
