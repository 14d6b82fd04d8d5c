// Lines as the printer gets them.
#pragma once

#include "support/bytes.h"

/// The command that prints a line.
inline QByteArray line(const QByteArray &text) { return "=\"/(" + text + " )\n"; }

/// The same as linesOf() shows it.
inline QString shownLine(const QByteArray &text) { return linesOf(line(text)).constFirst(); }
