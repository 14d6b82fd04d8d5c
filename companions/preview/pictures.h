// Pictures and pages as the command line asks for them.
#pragma once

#include "companions/preview/shown.h"

#include <QCommandLineParser>
#include <QString>

#include <optional>

namespace korvel::preview {

/// A picture, or a page for a browser, that is asked for.
struct PictureRequest
{
    enum class Format { Png, Svg, Pdf, Html };

    QString path; // "-" for standard output
    Format format = Format::Png;
    bool thermal = false;
    bool transparent = false; // around the paper
    QString title;
};

/// Adds --output, --format, --look and --transparent.
void addPictureOptions(QCommandLineParser &parser);

/// Whether a picture is asked for, which needs a QGuiApplication.
bool wantsPicture(const QCommandLineParser &parser);

/**
 * The picture that these options ask for.
 *
 * @param error why they are wrong, in one line; empty when they ask for none
 */
std::optional<PictureRequest> pictureRequest(const QCommandLineParser &parser, QString &error);

/**
 * Makes the picture of what is shown and writes it; the status to end with, which is the one given
 * if all is well. A PDF has pages for each file, HTML a paper for each; all else holds one.
 */
int writePicture(const PictureRequest &request, const QList<Shown> &shown, const Reading &reading,
                 int status);

} // namespace korvel::preview
