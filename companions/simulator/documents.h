// What arrives on a connection, taken apart into documents.
#pragma once

#include "companions/paper/decoder.h"

#include <QByteArray>
#include <QByteArrayView>

#include <functional>
#include <optional>

namespace korvel::simulator {

/// No more bytes of one document are kept than these: 4 MiB.
inline constexpr qint64 largestDocument = 4'194'304;

/// A section of the stream, or what stands outside of any.
struct Document
{
    enum class End {
        Closed,      // by its command
        Interrupted, // another section was opened
        CutOff,      // the connection ended
    };

    std::optional<preview::Section> section; // none: bytes outside any
    End end = End::CutOff;
    QByteArray bytes; // as they arrived; the first of them where there were too many
    qint64 size = 0;  // bytes that arrived

    /// Whether it is all there, from the command that opens it to the one that closes it.
    [[nodiscard]] bool isWhole() const
    {
        return section && end == End::Closed && size == bytes.size();
    }
};

/**
 * Cuts the bytes of a connection into documents: every byte belongs to one, in order. A document
 * ends where its section is closed; where another section is opened, what came before ends, too.
 * What opens and closes sections is what preview::Decoder takes for it.
 *
 * However much arrives, no more is kept than largestDocument.
 */
class Splitter
{
public:
    using TakeDocument = std::function<void(const Document &)>;

    /// @param take gets each document as soon as it has ended
    explicit Splitter(TakeDocument take);

    /// Takes the bytes that arrived next, however many.
    void add(QByteArrayView bytes);

    /// The connection ended: so does what is open.
    void end();

private:
    void append(QByteArrayView bytes);
    void endLine();
    void open(preview::Section section, QByteArrayView command);
    void finish(Document::End how);

    const TakeDocument take;
    Document document;
    QByteArray line;       // the present one, as far as it may be a command
    QByteArray lineBefore; // likewise: a fiscal section is opened by two
};

} // namespace korvel::simulator
