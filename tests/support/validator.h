// Jobs validated by a schema.
#pragma once

#include "support/files.h"
#include "support/program.h"

#include <QByteArrayList>
#include <QTemporaryDir>

#include <algorithm>

/// What xmllint ends with.
enum XmlLint {
    Valid = 0,
    Invalid = 3,
    BadSchema = 5,
};

/// A folder with a schema in it, by which jobs are validated.
class Validator
{
public:
    /// @param option of xmllint, for the language of the schema
    Validator(const QString &option, const QByteArray &schema)
        : language(option)
    {
        writeFile(path("schema"), schema);
    }

    /// What the validator says of a job.
    [[nodiscard]] Run run(const QByteArray &job) const { return run(QStringList("-"), job); }

    /// Which of these jobs are valid.
    [[nodiscard]] QList<bool> areValid(const QByteArrayList &jobs) const
    {
        QStringList names;
        for (const QByteArray &job : jobs) {
            names.append(QString("%1.xml").arg(names.size()));
            writeFile(path(names.last()), job);
        }
        const QStringList said = QString::fromUtf8(run(names, {}).standardError).split('\n');
        QList<bool> valid;
        for (const QString &name : names) {
            const bool accepted = said.contains(name + " validates");
            const bool refused = said.contains(name + " fails to validate");
            const bool malformed = std::any_of(said.begin(), said.end(), [&](const QString &line) {
                return line.startsWith(name + ':') && line.contains(": parser error : ");
            });
            if (accepted == (refused || malformed))
                qFatal("not validated: %s", qPrintable(name));
            valid.append(accepted);
        }
        return valid;
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    [[nodiscard]] Run run(const QStringList &jobs, const QByteArray &standardInput) const
    {
        return runProgram("xmllint", QStringList{"--nonet", "--noout", language, "schema"} + jobs,
                          {folder.path(), {}, standardInput});
    }

    QTemporaryDir folder;
    QString language;
};
