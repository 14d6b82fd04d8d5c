// What is wrong, below the paper: in words, by setting and by line of the paper.
#pragma once

#include "companions/paper/paper.h"

#include <QListWidget>
#include <QStringList>

namespace korvel::settings {

/// Each finding leads to what it is about, by a click or Enter. After a number of them stands "…".
class FindingsList : public QListWidget
{
    Q_OBJECT

public:
    explicit FindingsList(QWidget *parent = nullptr);

    /// Adds a finding. @param setting it leads to; else @param row of the paper, counted from 0
    void add(const QString &text, const QStringList &setting = {}, int row = -1);

    /// Adds what is wrong with the paper of a stream.
    /// @param columns said of lines that are too wide; empty where the columns fit
    void addOfPaper(const QByteArray &stream, const QList<preview::PaperRow> &rows,
                    const QString &columns);

    /// The texts from one on.
    [[nodiscard]] QStringList textsFrom(int first) const;

    /// The height at which all of it is seen.
    [[nodiscard]] int wholeHeight() const;

signals:
    void settingChosen(const QStringList &setting);
    void rowChosen(int row);

private:
    void choose(const QListWidgetItem *item);
};

} // namespace korvel::settings
