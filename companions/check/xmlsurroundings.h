// What stands around an error of the XML parser.
#pragma once

#include <QByteArrayView>
#include <QString>

namespace korvel::check {

// In place of a number of bytes: the fault begins at the reference, the tag or the quote that
// stands last in front of the error.
inline constexpr qsizetype toReference = -1;
inline constexpr qsizetype toTag = -2;
inline constexpr qsizetype toQuote = -3;
inline constexpr qsizetype toOpen = -4;    // at the element that is open
inline constexpr qsizetype toSection = -5; // at the last CDATA section

/// What stands around an error.
struct XmlSurroundings
{
    QByteArrayView before;
    QByteArrayView behind;
    bool inRoot;
    bool isLeft;          // see faultIn()
    bool inTag = false;   // behind the "<" of one and before its ">", in no value
    bool inValue = false; // of an attribute
    qsizetype tag = 0;    // where the last tag begins
    qsizetype quote = 0;  // and the last value of it, with its quote

    /// @param document as long as this lives; offset is its size at most
    XmlSurroundings(QByteArrayView document, qsizetype offset, bool isInRoot, bool isLeftOpen);

    /// Where a fault begins that is so far in front of the error.
    [[nodiscard]] qsizetype startOf(qsizetype lead) const;

    /// The name at the error, behind the mark of a reference.
    [[nodiscard]] QString name() const;

    /// The character at the error: "x", or U+0001 where it has no shape.
    [[nodiscard]] QString character() const;

    /// In quotes, the value at the error, which has none: up to a blank or the end of its tag.
    [[nodiscard]] QString value() const;

    [[nodiscard]] bool isAtForbidden() const;

    /// At a quote that people write, and XML does not know.
    [[nodiscard]] bool isAtOtherQuote() const;

    [[nodiscard]] bool isBehindBlank() const;

    [[nodiscard]] bool inReference() const;

    /// Whether the value goes on beyond its line.
    [[nodiscard]] bool leavesLine() const;

    /// Behind a value, which its quote ends.
    [[nodiscard]] bool isBehindValue() const;

    /// Behind the name of an end tag.
    [[nodiscard]] bool isBehindEndName() const;

    /// Behind a value that took in the name of the next: number="1 name="
    [[nodiscard]] bool tookNext() const;

    [[nodiscard]] bool hasAttributeBehind() const;

    /// "< receipe", where a tag may stand: behind another one.
    [[nodiscard]] bool beginsTagWithBlank() const;

    [[nodiscard]] bool isUnquoted() const;

    [[nodiscard]] bool lacksValue() const;

    /// Neither in an element nor in the document type.
    [[nodiscard]] bool isOutside() const;
};

} // namespace korvel::check
