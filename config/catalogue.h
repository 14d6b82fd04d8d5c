// The catalogue of labels that settings name.
#pragma once

#include <QLocale>
#include <QString>

namespace korvel::catalogue {

using namespace Qt::Literals::StringLiterals;

inline constexpr auto byLocale = "/"_L1;            // a file that leaves the choice to the locale
inline constexpr auto beforeLocale = "/korvel_"_L1; // of the name that the locale completes

/**
 * The name that the toolkit completes to a catalogue's: folder and file with nothing between them.
 *
 * @param folder empty, or the folder of the catalogues
 * @param file   empty, byLocale for the catalogue of the system's locale, or another that begins
 *               with a slash
 */
inline QString nameOf(const QString &folder, const QString &file)
{
    if (file == byLocale)
        return folder + beforeLocale + QLocale::system().name();
    return folder + file;
}

} // namespace korvel::catalogue
