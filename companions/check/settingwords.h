// Names and values of settings files: how they are shown, and what is meant by them.
#pragma once

#include "companions/check/vocabulary.h"

namespace korvel::check {

/// A text of a settings file as its author sees it: editors mostly write UTF-8, and the renderer
/// reads it as Latin-1. A character that does not show is spelt out: <U+00A0>.
QString asSeen(const QString &latin1);

/// Whether a name begins like a comment of any language.
bool isCommentedOut(QStringView name);

/// Whether a name is one of these, or misspelt so that it can be told which.
bool isNear(const QString &name, const QStringList &names);

/// The group of a document, or "language", that the name of a group stands for; empty for none.
QString meantGroup(const QString &name);

/// The keys that a group of a document, or "language", may have.
const QStringList &keysOf(QAnyStringView group);

/// The key that the name of a setting stands for in such a group; empty for none.
QString meantKey(QAnyStringView group, const QString &name);

/// What a value stands for that is no value of its kind; empty when it cannot be told.
QString meantValue(vocabulary::Kind kind, const QString &value);

} // namespace korvel::check
