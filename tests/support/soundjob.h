// A job with nothing wrong, in parts that a test can break.
#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QStringList>

#include <algorithm>

/// An element of a job. What no document does without is told apart, to be broken.
struct SoundElement
{
    QString name;
    QList<QPair<QString, QString>> attributes = {};
    QStringList required = {}; // names of these
    QString text = {};         // between its tags
    bool holdsNext = false;

    using Attributes = QList<QPair<QString, QString>>;

    SoundElement &with(const Attributes &more)
    {
        attributes += more;
        return *this;
    }

    SoundElement &needs(const Attributes &more)
    {
        for (const auto &row : more)
            required.append(row.first);
        return with(more);
    }

    /// The value of an attribute that is there.
    QString &operator[](const QString &attribute)
    {
        return std::find_if(attributes.begin(), attributes.end(),
                            [&](const auto &row) { return row.first == attribute; })
            ->second;
    }

    [[nodiscard]] bool has(const QString &attribute) const
    {
        return std::any_of(attributes.begin(), attributes.end(),
                           [&](const auto &row) { return row.first == attribute; });
    }
};

/// A job: its root in line 1, its method in line 2, each element in a line of its own.
struct SoundJob
{
    QString method;
    QList<SoundElement> elements;
    bool declared = false;   // with an XML declaration
    QChar quote = u'"';      // of values
    QString textBehind = {}; // the method

    static qsizetype lineOf(qsizetype element) { return element + 3; }

    [[nodiscard]] QByteArray xml() const
    {
        QString lines = declared ? "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" : "";
        lines += "<job>\n    <method name=\"" + method + "\"/>" + textBehind + '\n';
        QString ends;
        for (const SoundElement &element : elements) {
            lines += "    <" + element.name;
            for (const auto &[name, value] : element.attributes)
                lines += ' ' + name + '=' + quote + escaped(value) + quote;
            const QString end = "</" + element.name + '>';
            if (element.holdsNext)
                lines += '>' + element.text;
            else
                lines += (element.text.isEmpty() ? "/>" : '>' + element.text + end) + ends;
            ends = element.holdsNext ? end : QString();
            lines += '\n';
        }
        return (lines + "</job>\n").toUtf8();
    }

private:
    [[nodiscard]] QString escaped(const QString &value) const
    {
        return value.toHtmlEscaped().replace('\'', "&apos;");
    }
};
