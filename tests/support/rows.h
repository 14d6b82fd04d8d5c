// Rows as the driver lays them out, and tables of what they should be.
#pragma once

#include "support/recordingdriver.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QTest>

#include <limits>

using Widths = QList<int>; // of quantity, price, total and paper

inline const Widths usual = {3, 7, 8, 32};
inline const QStringList coffee = {"2", "COFFEE", "1.20", "2.40"};
inline const QString alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

constexpr int greatest = std::numeric_limits<int>::max(); // width
constexpr int least = std::numeric_limits<int>::min();
constexpr int paddingLimit = 65536; // no pad and no rule is longer, whatever the settings say

inline QString dots(int count) { return QString(count, '.'); }

inline QString blanks(int count) { return QString(count, ' '); }

inline void setWidths(RecordingDriver &driver, const Widths &widths)
{
    driver.layout.quantityFieldWidth = widths[0];
    driver.layout.priceFieldWidth = widths[1];
    driver.layout.totalPriceFieldWidth = widths[2];
    driver.layout.paperWidth = widths[3];
}

inline QString rowOf(const Widths &widths, const QStringList &texts, QChar fill,
                     const QString &style)
{
    RecordingDriver driver;
    setWidths(driver, widths);
    return driver.descriptionRow(texts[0], texts[1], texts[2], texts[3], fill, style);
}

/// The columns of a table of rows; see row().
inline void addRowColumns()
{
    QTest::addColumn<Widths>("widths");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QChar>("fill");
    QTest::addColumn<QString>("expected");
}

/// A row of such a table. A '|' marks where a column ends and is no part of what is expected.
inline void row(const char *name, const Widths &widths, const QStringList &texts, QChar fill,
                const QString &columns)
{
    QTest::newRow(name) << widths << texts << fill << QString(columns).remove('|');
}
