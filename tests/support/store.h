// Settings files, and stores that show what derived classes see.
#pragma once

#include "config/config.h"
#include "support/bytes.h"
#include "support/files.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The customary form of a settings file.
inline const QByteArray customary = R"(korvel: 
{
    language: 
    {
        basedir = "/opt/lang";
        file = "/";
    };

    receiptdoc: 
    {
        descriptionWidth = "24";
        printLogo = "true";
    };

};
)";

/// The same settings in the XML notation.
inline const QByteArray customaryXml =
    R"(<korvel><language basedir="/opt/lang" file="/"/>)"
    R"(<receiptdoc descriptionWidth="24" printLogo="true"/></korvel>)";

inline const QStringList customaryTree = {"*", "  korvel",
                                          "    language basedir=|/opt/lang| file=|/|",
                                          "    receiptdoc descriptionWidth=|24| printLogo=|true|"};

/// A file that is there for the time of a test. Its name has no dot.
class SettingsFile
{
public:
    explicit SettingsFile(const QByteArray &bytes) { write(bytes); }

    void write(const QByteArray &bytes) { writeFile(path(), bytes); }

    /// The file's path, or that of another name in its folder.
    [[nodiscard]] QString path(const QString &name = "settings") const
    {
        return folder.filePath(name);
    }
    [[nodiscard]] QString folderPath() const { return folder.path(); }
    [[nodiscard]] QString missingPath() const { return path("missing"); }

private:
    QTemporaryDir folder;
};

/// A store that shows what derived classes see.
class Store : public libconfig::Config
{
public:
    using Config::Config;
    using Config::document;
    using Config::fileFormat;
    using Config::fileName;
    using Config::settingNames;
    using Config::stream;

    /// The tree, one node a line below its parent's: "*" is the element named as the file, and
    /// settings are written name=|value| in their order.
    [[nodiscard]] QStringList tree() const
    {
        QStringList lines;
        describe(*document, {}, lines);
        return lines;
    }

private:
    void describe(const QDomNode &parent, const QString &indent, QStringList &lines) const
    {
        for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
            QString line = indent + (node.nodeName() == fileName ? "*" : node.nodeName());
            const QDomElement group = node.toElement();
            const QStringList names = settingNames(group);
            for (const QString &name : names)
                line += ' ' + name + "=|" + group.attribute(name) + '|';
            if (names.size() != group.attributes().count())
                line += QString(" but %1 settings").arg(group.attributes().count());
            lines += line;
            describe(node, indent + "  ", lines);
        }
    }
};

/// A store on a file of its own, with what its writers make of it.
class FileStore : public Store
{
public:
    FileStore(const QByteArray &bytes, const QString &notation)
        : file(bytes)
    {
        readFile(file.path(), notation);
    }

    /// The file's path, or that of another name in its folder.
    [[nodiscard]] QString path(const QString &name = "settings") const { return file.path(name); }

    [[nodiscard]] QByteArray braces() const
    {
        buildConfigFile(path("braces"));
        return bytesOf(path("braces"));
    }

    [[nodiscard]] QByteArray xml() const
    {
        buildConfigXmlFile(path("xml"));
        return bytesOf(path("xml"));
    }

private:
    SettingsFile file;
};

inline QStringList treeOf(const QByteArray &bytes, const QString &notation)
{
    return FileStore(bytes, notation).tree();
}

inline QString lookupIn(const QByteArray &bytes, const QString &notation, const QString &key)
{
    return FileStore(bytes, notation).lookup(key);
}
