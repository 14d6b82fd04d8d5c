// A settings file that is being edited: opened, compared with its view, saved.
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <memory>

class QTreeWidget;

namespace korvel::settings {

/**
 * The file behind a list view of the settings store. The view holds the edits; the file changes
 * only when it is saved.
 */
class SettingsDocument
{
    Q_DECLARE_TR_FUNCTIONS(korvel::settings::SettingsDocument)

public:
    /// @param file path of a settings file, valid UTF-16, which need not exist
    explicit SettingsDocument(const QString &file);

    [[nodiscard]] QString path() const { return filePath; }
    [[nodiscard]] bool exists() const;

    /// Makes another file the one that is saved to, in the place of what it holds, in the notation
    /// that the renderer reads.
    void moveTo(const QString &file);

    /// Whether the file is in the XML notation, of which the renderer reads nothing.
    [[nodiscard]] bool isXml() const { return notation == u"xml"; }

    /// Reads the file into a new view, and notes what it holds. A missing file gives an empty view.
    std::unique_ptr<QTreeWidget> read();

    /// Why the file cannot be read, in one line; empty when it can, or when there is none.
    [[nodiscard]] QString readError() const;

    /// Whether the file is another one than when it was read or saved last.
    [[nodiscard]] bool hasChanged() const;

    /// What of a view, or of the file behind it, would not be read back after saving, a line each.
    [[nodiscard]] QStringList losses(const QTreeWidget &view) const;

    /**
     * Writes a view to the file, and makes its folder if there is none. The file that was there is
     * kept beside it, with "~" at the end of its name.
     *
     * @return why nothing was saved, in one line; empty when it was. The file then is as it was.
     */
    QString save(const QTreeWidget &view);

    /// What save() writes for a view, in the notation of the file.
    [[nodiscard]] QByteArray written(const QTreeWidget &view) const
    {
        return writtenBy(view, notation);
    }

    /// What the store writes for a view, in the brace notation: what the renderer reads.
    [[nodiscard]] static QByteArray writtenBy(const QTreeWidget &view);

private:
    [[nodiscard]] static QByteArray writtenBy(const QTreeWidget &view, const QString &notation);
    [[nodiscard]] QByteArray bytesOnDisk() const;

    QString filePath;
    QString notation;    // of the store: "cfg", or "xml" for a file that begins with '<'
    QByteArray lastSeen; // the file when it was read or saved last
    QByteArray source;   // what the view was read from, or saved as
    bool existed = false;
};

} // namespace korvel::settings
