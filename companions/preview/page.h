// Papers as a page for a browser.
#pragma once

#include "companions/preview/shown.h"

#include <QByteArray>
#include <QString>

namespace korvel::preview {

/**
 * An HTML page of papers, complete in itself: small ones in columns, each of which opens; what was
 * found and registered in each; sums by kind. It can be read, searched and printed without its
 * script, which adds a search field. No text of a job or a name becomes markup.
 */
QByteArray pageOf(const QList<Shown> &shown, const Reading &reading, const QString &title);

} // namespace korvel::preview
