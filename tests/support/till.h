// Names to try, and a till that prints elements of a document under settings.
#pragma once

#include "printer/company/companyprinterdriver.h"
#include "support/bytes.h"
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/streams.h"
#include "support/temporaryhome.h"
#include "support/vocabularytables.h"

#include <QMap>

#include <algorithm>

inline QStringList namesOfTheVocabulary()
{
    return sorted(column(vocabulary::methods(), &vocabulary::Method::name)
                  + column(vocabulary::methods(), &vocabulary::Method::group)
                  + column(vocabulary::elements(), &vocabulary::Element::name)
                  + column(vocabulary::attributes(), &vocabulary::Attribute::name)
                  + column(vocabulary::settings(), &vocabulary::Setting::key));
}

/// All names of the vocabulary, these in other letter cases, and invented ones.
inline const QStringList &names()
{
    static const QStringList all = [] {
        QStringList result = {"foo", "item", "recipe", "x_method", "printNothing"};
        for (const QString &name : namesOfTheVocabulary()) {
            const QChar first = name.front();
            result += {name, name.toUpper(), name.toLower(),
                       (first.isUpper() ? first.toLower() : first.toUpper()) + name.mid(1)};
        }
        return sorted(result);
    }();
    return all;
}

/// The names for which a test holds, in one text.
template<typename Holds>
inline QString namesThat(Holds holds)
{
    QStringList found;
    std::copy_if(names().begin(), names().end(), std::back_inserter(found), holds);
    return found.join(' ');
}

using Settings = QMap<QString, QString>;

/// Columns with room between them, and every switch off.
// clang-format off
inline const Settings everythingOff = {
    {"quantityFieldWidth",   "4"    },
    {"priceFieldWidth",      "8"    },
    {"totalPriceFieldWidth", "9"    },
    {"paperWidth",           "50"   },
    {"paperRows",            "40"   },
    {"style",                "plain"},
    {"topMargin",            "2"    },
    {"descriptionWidth",     "20"   },
};
// clang-format on

inline Settings everythingOn()
{
    Settings settings = everythingOff;
    for (const vocabulary::Setting &row : vocabulary::settings())
        if (row.kind == vocabulary::Kind::Switch)
            settings.insert(row.key, "true");
    return settings;
}

/// Settings with these switches turned; an empty name is none.
inline Settings with(Settings settings, const QStringList &keys, const QString &value)
{
    for (const QString &key : keys)
        if (!key.isEmpty())
            settings.insert(key, value);
    return settings;
}

using Attributes = QMap<QString, QString>;

/// An attribute that has no row.
inline const Attributes another({std::pair(QString("z"), QString("any"))});

/// An element of a job: its attributes in the order of their names, then others.
inline QString tag(const QString &name, const Attributes &attributes, const Attributes &others = {})
{
    QString text = '<' + name;
    for (const Attributes &some : {attributes, others})
        for (const auto &[attribute, value] : some.toStdMap())
            text += ' ' + attribute + "=\"" + value + '"';
    return text + "/>";
}

/// The attributes of an element, all with the same value.
inline Attributes plainAttributes(const vocabulary::Element &element, vocabulary::Document document)
{
    Attributes attributes;
    for (const vocabulary::Attribute &row : vocabulary::attributesOf(element.name, document))
        attributes.insert(row.name, "5");
    return attributes;
}

/// An element, and after the printer the element that prints its name.
inline QString shownTag(const vocabulary::Element &element, const Attributes &attributes,
                        const Attributes &others = {})
{
    return tag(element.name, attributes, others) + (element.name == "printers" ? "<headers/>" : "");
}

/// A document's printer under some settings, which stand in the document's group alone. One at a
/// time: the last one made has the settings of all.
class Till
{
public:
    Till(const vocabulary::Method &document, const Settings &settings)
        : method(document.name)
        , home(settingsFile(documentGroup(QByteArray(document.group.data()), written(settings))))
        , path(home.path() + "/stream.out")
        , frame(linesOf(stream({})))
    {
    }

    /// What the printer gets of these elements.
    [[nodiscard]] QByteArray stream(const QString &elements) const
    {
        QFile::remove(path); // some file systems wait for the disk when a file is emptied
        {
            CompanyPrinterDriver driver(path, false);
            const QString job = "<job><method name=\"" + method + "\"/>" + elements + "</job>";
            if (!readJob(driver, job))
                qFatal("not read: %s", qPrintable(job));
        }
        return bytesOf(path);
    }

    /// The same between what opens and what closes the section.
    [[nodiscard]] QStringList lines(const QString &elements) const
    {
        const QStringList all = linesOf(stream(elements));
        return all.mid(frame.size() - 1, all.size() - frame.size());
    }

    /// What the engine asks of any printer for these elements.
    [[nodiscard]] QStringList calls(const QString &elements) const
    {
        return RecordingDriver().callsOf(method, elements);
    }

private:
    static QByteArray written(const Settings &settings)
    {
        QByteArray text;
        for (const auto &[key, value] : settings.toStdMap())
            text += key.toUtf8() + " = \"" + value.toUtf8() + "\"; ";
        return text;
    }

    QString method;
    TemporaryHome home;
    QString path;
    QStringList frame;
};
