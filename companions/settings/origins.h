// Which setting made which lines of the paper, found out by the renderer.
#pragma once

#include "companions/paper/paper.h"
#include "companions/shared/rendering.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

#include <optional>

namespace korvel::settings {

/// Rows of one paper that another one has not, or has otherwise; counted from 0.
QList<int> rowsThatDiffer(const QList<preview::PaperRow> &paper,
                          const QList<preview::PaperRow> &other);

/**
 * Renders a job once more with a setting changed, and compares the papers: the rows that differ are
 * those that the setting made. What is known of a paper is kept until there is another one.
 */
class Origins : public QObject
{
    Q_OBJECT

public:
    /// @param renderer path of korvel-print
    explicit Origins(const QString &renderer, QObject *parent = nullptr);

    /// Begins with another paper. @param settings what the store writes for the view
    void begin(const QByteArray &newJob, const QByteArray &newSettings,
               const QList<preview::PaperRow> &paper);

    /// Finds the rows of a setting; rowsFound() follows, unless something else is asked first.
    void findRows(const QStringList &setting);

    /// Finds which of these settings made a row: of several, the one that made the fewest others.
    /// makersFound() follows, unless something else is asked first.
    void findMakers(int row, const QList<QStringList> &settings);

signals:
    void rowsFound(const QStringList &setting, const QList<int> &rows);

    /// @param settings that made the row, the one that made the fewest others first; none at all
    void makersFound(int row, const QList<QStringList> &settings);

private:
    void next();
    void take(const shared::Rendered &rendered);
    void tell();
    [[nodiscard]] std::optional<QByteArray> changedSettings(const QStringList &setting) const;

    shared::Rendering rendering;
    QByteArray job;
    QByteArray settings;
    QList<preview::PaperRow> base;
    QHash<QStringList, QList<int>> known;
    QList<QStringList> asked;
    std::optional<int> askedRow;
};

} // namespace korvel::settings
