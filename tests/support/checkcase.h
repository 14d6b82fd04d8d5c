// A case of the checker: a file of tests/check, with remarks on what is found in it.
#pragma once

#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/recode/codepage.h"
#include "support/bytes.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

/// A job (.xml), alone or beside settings (.conf) of its name, or settings alone.
struct CheckCase
{
    QByteArray job, settings;            // empty when there are none
    QStringList expected;                // what its remarks expect: 3:5 error no-method "words"
    QString charset;                     // the printer's code page; empty for none
    QStringList near;                    // the files from which it differs in one thing
    QStringList jobLines, settingsLines; // without remarks

    /// @param path with either ending
    explicit CheckCase(const QString &path)
        : job(bytesOf(withoutEnding(path) + ".xml"))
        , settings(bytesOf(withoutEnding(path) + ".conf"))
        , jobLines(takeRemarks(job))
        , settingsLines(takeRemarks(settings))
    {
        if (!settings.isEmpty())
            blankRemarks();
    }

    [[nodiscard]] QStringList findings() const // as remarks expect them
    {
        const korvel::check::SettingsFile read(settings);
        const auto page = korvel::recode::CodePage::named(charset.toUtf8());
        QStringList found;
        for (const korvel::check::Finding &finding :
             job.isEmpty()
                 ? checkSettings(read)
                 : checkJob(job, settings.isEmpty() ? nullptr : &read, page ? &*page : nullptr))
            found.append(QString("%1:%2 ").arg(finding.place.line).arg(finding.place.column)
                         + levelName(infoOf(finding.code).level) + ' ' + infoOf(finding.code).name
                         + " \"" + finding.text + '"');
        return found;
    }

    [[nodiscard]] bool finds(const QString &code) const
    {
        return !findings().filter(QRegularExpression("^\\S+ \\S+ " + code + ' ')).isEmpty();
    }

    /// In how many lines it differs from another case; having no settings is a line.
    [[nodiscard]] qsizetype differencesFrom(const CheckCase &other) const
    {
        return differences(jobLines, other.jobLines)
               + (settings.isEmpty() == other.settings.isEmpty()
                      ? differences(settingsLines, other.settingsLines)
                      : 1);
    }

    /// Remarks as they are written, a line each: a comment, or an instruction where the words have
    /// "--". Settings know neither; there it is a group that holds nothing, and blank when the
    /// settings are read. One may go on in the next line.
    [[nodiscard]] QString remarks(const QString &kind, const QStringList &all) const
    {
        QString lines;
        for (const QString &words : all)
            lines += QString(job.isEmpty()          ? "\n%1: %2 {};"
                             : words.contains("--") ? "\n<?%1: %2 ?>"
                                                    : "\n<!-- %1: %2 -->")
                         .arg(kind, words);
        return lines;
    }

private:
    static QString withoutEnding(const QString &path) { return path.left(path.lastIndexOf('.')); }

    static const QRegularExpression &remark()
    {
        static const QRegularExpression expression(
            R"(\n?[ ]*(?:<!-- |<\?)?(expect|near|charset): (.*?)(?: -->| \?>| \{\};))",
            QRegularExpression::DotMatchesEverythingOption);
        return expression;
    }

    void blankRemarks()
    {
        QString text = QString::fromLatin1(settings);
        for (const auto &match : remark().globalMatch(QString(text)))
            for (qsizetype i = match.capturedStart(); i < match.capturedEnd(); ++i)
                if (text[i] != '\n')
                    text[i] = ' ';
        settings = text.toLatin1();
    }

    QStringList takeRemarks(const QByteArray &bytes)
    {
        static const QRegularExpression lineEnd("\n *");
        QString text = QString::fromLatin1(bytes); // a byte order mark is part of the first line
        for (const auto &match : remark().globalMatch(text)) {
            const QString words =
                QString::fromUtf8(match.captured(2).toLatin1()).replace(lineEnd, " ");
            if (match.captured(1) == "charset")
                charset = words;
            else
                (match.captured(1) == "near" ? near : expected).append(words);
        }
        return text.remove(remark()).trimmed().split('\n');
    }

    /// Between what two texts begin with and what they end with.
    static qsizetype differences(const QStringList &a, const QStringList &b)
    {
        const auto begin = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
        const auto end = std::mismatch(a.rbegin(), std::make_reverse_iterator(begin.first),
                                       b.rbegin(), std::make_reverse_iterator(begin.second));
        return std::max(end.first.base() - begin.first, end.second.base() - begin.second);
    }
};
