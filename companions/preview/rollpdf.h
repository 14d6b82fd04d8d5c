// Rolls of paper as a PDF. Needs a QGuiApplication.
#pragma once

#include "companions/paper/paper.h"
#include "companions/preview/dotpdf.h"
#include "companions/preview/look.h"

#include <QBuffer>
#include <QByteArray>
#include <QPainter>
#include <QPdfWriter>
#include <QString>

#include <functional>

namespace korvel::preview {

class Picture;

/// A PDF of one roll behind the other, each in the paper's own size, on as many pages as it needs.
class RollPdf
{
public:
    /// @param columns characters in a line of the paper
    RollPdf(int columns, const Look &look, const QString &title);

    /// What prints all rows of a roll.
    using PrintRows = std::function<void(const Roll::TakeRow &take)>;

    /// Adds a roll, on one page at least. Its rows are printed twice, and one page of them is held.
    void add(const PrintRows &print);

    QByteArray end();

private:
    void addPage(const Picture &page);

    const int columns;
    const Look look;
    DotPdf dots; // of a look of whole dots; the others' is the writer's
    QBuffer text;
    QPdfWriter writer;
    QPainter painter; // goes first
};

} // namespace korvel::preview
