// What the entities of a job's DTD may expand to.
#pragma once

#include <QHash>
#include <QString>

namespace korvel::app {

/**
 * Keeps count of a job's entities, whose references can make gigabytes, or an endless run, of a
 * few hundred bytes.
 *
 * Names are those of general entities as they stand; "%" begins that of a parameter entity.
 */
class Entities
{
public:
    /// Takes note of an entity and its text; false when the job's entities are too many or too
    /// long, or refer to themselves.
    bool declare(const QString &name, const QString &text);

    /// Whether no entity was declared.
    [[nodiscard]] bool isEmpty() const { return texts.isEmpty(); }

    /// Whether an entity of that name was declared.
    [[nodiscard]] bool isDeclared(const QString &name) const { return texts.contains(name); }

    /// Takes note of a reference in the job; false when they come to too much. A name that was
    /// not declared, such as "amp", stands for nothing.
    bool refer(const QString &name);

private:
    /// What one reference comes to. Both are counted up to just beyond the limit of a text.
    struct Expansion
    {
        qint64 text = 0;       // characters
        qint64 references = 0; // further references on the way
    };

    [[nodiscard]] Expansion expand(const QString &name, QHash<QString, Expansion> &known) const;

    QHash<QString, QString> texts;
    QHash<QString, Expansion> expansions;
    qint64 declaredText = 0;
    qint64 referred = 0;
};

} // namespace korvel::app
