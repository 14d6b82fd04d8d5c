// Settings files, put together from the groups of documents.
#pragma once

#include <QByteArray>

/// One document's group of a settings file: "receiptdoc" and the like, and its settings as written.
inline QByteArray documentGroup(const QByteArray &name, const QByteArray &settings)
{
    return "    " + name + ":\n    {\n        " + settings + "\n    };\n";
}

/// A settings file of these groups.
inline QByteArray settingsFile(const QByteArray &groups)
{
    return "korvel:\n{\n" + groups + "};\n";
}
