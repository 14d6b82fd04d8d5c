// What sound jobs have in their attributes: names, quantities, amounts, in the style of one till.
#pragma once

#include "support/generator.h"

class SoundValues
{
public:
    explicit SoundValues(unsigned seed)
        : random(seed)
    {
    }

    /// An amount of hundredths as the job writes it.
    [[nodiscard]] QString amount(qint64 hundredths) const
    {
        const QString digits = QString::number(std::abs(hundredths)).rightJustified(3, '0');
        QString whole = digits.chopped(2);
        const QString separators[] = {"", style.mark == u'.' ? "," : ".", " ", "'"};
        if (whole.size() > 3)
            whole.insert(whole.size() - 3, separators[style.thousands]);
        const QString number = (hundredths < 0 ? "-" : "") + whole + style.mark + digits.right(2);
        const char *signs[] = {"%1", "%1", "%1 \u20AC", "\u20AC %1", "%1 EUR"};
        return QString::fromUtf8(signs[style.currency]).arg(number);
    }

    Generator random;

protected:
    struct Style // of a job's amounts
    {
        QChar mark;
        int thousands; // which separator
        int currency;  // which sign, and where
    };

    bool chance(int of) { return random.below(of) == 0; }

    QString oneOf(const QList<const char *> &texts)
    {
        return QString::fromUtf8(random.oneOf(texts));
    }

    QString number(int limit) { return QString::number(random.below(limit)); }

    QString itemName()
    {
        return oneOf({"Caffè", "Spaghetti alle vongole", "Menù di lavoro 2", "Acqua (0,5 l",
                      "Käsespätzle mit Röstzwiebeln", "Weißbier 0,5 l", "Mineralwasser still",
                      "Crème brûlée", "Bœuf à l'ancienne", "Verre de vin \"maison\"",
                      "Jamón ibérico", "Piña colada", "Café con leche", "Fish & Chips",
                      "Total Recall Burger", "Tea < 1 pint", "Coperto", "Pfand"});
    }

    QString personName()
    {
        return oneOf({"Mario Rossi", "Officine Bianchi S.r.l.", "Jörg Müller",
                      "Gaststätte zur Post", "Élodie Lefèvre", "L'Épicerie & Fils", "José Núñez",
                      "Smith & Sons Ltd."});
    }

    QString address()
    {
        return oneOf({"Via Po 9, 10124 Torino", "Hauptstraße 5,80331 München",
                      "12 rue de l'Église, 75001 Paris, France", "Calle Mayor 1", "",
                      "1 High Street, , London"});
    }

    QString day() { return QString("%1/05/2026").arg(random.below(28) + 1, 2, 10, QChar('0')); }

    struct Quantity
    {
        QString text;
        qint64 thousandths;
    };

    /// Mostly pieces, sometimes a weight.
    Quantity quantity()
    {
        if (!chance(5)) {
            const int pieces = chance(9) ? 24 : random.below(5) + 1;
            return {QString::number(pieces), pieces * 1000LL};
        }
        const int grams = random.below(2900) + 100;
        const QChar mark = style.mark;
        return {QString("%1%2%3").arg(grams / 1000).arg(mark).arg(grams % 1000, 3, 10, QChar('0')),
                grams};
    }

    int price() { return chance(20) ? 123450 : 5 * (random.below(700) + 1); }

    /// A product, rounded up or down.
    qint64 times(const Quantity &quantity, qint64 hundredths)
    {
        const qint64 product = quantity.thousandths * hundredths;
        return (product + (chance(2) ? 0 : product % 1000 == 0 ? 0 : 1000)) / 1000;
    }

    /// A price for the printer: with a comma or a point, whatever the job's others have.
    QString registered(qint64 hundredths)
    {
        const QString digits = QString::number(std::abs(hundredths)).rightJustified(3, '0');
        return (hundredths < 0 ? "-" : "") + digits.chopped(2) + (chance(2) ? ',' : '.')
               + digits.right(2);
    }

    Style style{};
};
