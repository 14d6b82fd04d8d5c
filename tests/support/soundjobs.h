// Jobs with nothing wrong, as tills of several countries write them, made from a seed.
#pragma once

#include "companions/check/settingsfile.h"
#include "support/soundjob.h"
#include "support/soundvalues.h"

#include <utility>

class SoundJobs : public SoundValues
{
public:
    /// @param shop settings whose switches decide what is sent; null for any shop, which may leave
    ///             out all that has a switch
    explicit SoundJobs(unsigned seed, const korvel::check::SettingsFile *shop = nullptr)
        : SoundValues(seed)
        , settings(shop)
    {
    }

    /// A job of the document that a method asks for.
    SoundJob next(const QString &method)
    {
        job = {method, {}, chance(2), chance(3) ? u'\'' : u'"'};
        style = Style{chance(2) ? u',' : u'.', random.below(4), random.below(5)};
        // clang-format off
        const Document documents[] = {
            {"printPartialOrder",         "doc",          &SoundJobs::fillOrder         },
            {"printFullOrder",            "prefiscaldoc", &SoundJobs::fillFullOrder     },
            {"printFullOrderReceipt",     "receiptdoc",   &SoundJobs::fillReceipt       },
            {"printFullOrderInvoice",     "invoicedoc",   &SoundJobs::fillInvoice       },
            {"printFullOrderDelivery",    "deliverydoc",  &SoundJobs::fillOrder         },
            {"printFullOrderFiscal",      "fiscaldoc",    &SoundJobs::fillFiscal        },
            {"printAbstractOrder",        "doc",          &SoundJobs::fillNothing       },
            {"printAbstractOrderReceipt", "receiptdoc",   &SoundJobs::fillSummaryReceipt},
            {"printAbstractOrderInvoice", "invoicedoc",   &SoundJobs::fillSummaryInvoice},
            {"printAbstractOrderFiscal",  "fiscaldoc",    &SoundJobs::fillSummaryFiscal },
            {"printReport",               "reportdoc",    &SoundJobs::fillReport        },
            {"printSold",                 "solddoc",      &SoundJobs::fillSold          },
            {"printStatementOfAccount",   "reportdoc",    &SoundJobs::fillStatement     },
        };
        // clang-format on
        for (const Document &row : documents) {
            if (method != row.method)
                continue;
            group = row.group;
            (this->*row.fill)();
        }
        return job;
    }

private:
    struct Document
    {
        const char *method;
        const char *group; // of the settings
        void (SoundJobs::*fill)();
    };

    /// Sends what the settings switch on, else maybe.
    void may(SoundElement &element, const char *attribute, const char *key, const QString &value)
    {
        const bool on =
            settings && settings->isOn(QLatin1StringView(group), QLatin1StringView(key));
        if (on || chance(2))
            element.with({{attribute, value}});
    }

    void add(SoundElement element)
    {
        auto &rows = element.attributes;
        for (qsizetype i = rows.size(); element.name != "cancelledsummary" && i > 1; --i)
            std::swap(rows[i - 1], rows[random.below(int(i))]);
        job.elements.append(element);
    }

    /// Elements that most documents share, in any number.
    void addTop()
    {
        if (chance(2))
            add(SoundElement{"printers"}.with(
                {{"name", oneOf({"CASSA", "Küche", "BAR"})}, {"port", "9100"}}));
        for (const char *name : {"geometry", "logo"}) {
            if (chance(4))
                add(SoundElement{name});
        }
        if (chance(3))
            add(SoundElement{"headers"}.with({{"greeting", oneOf({"Benvenuti!", "Grüß Gott"})}}));
        if (chance(2))
            add(SoundElement{"company"}.with(
                {{"name", personName()}, {"number", number(99)}, {"vat", "P.IVA 01234567890"}}));
        for (const char *name : {"receipt", "invoice", "delivery"}) {
            if (chance(4))
                add(SoundElement{name}.needs({{"serialnumber", number(900) + "/2026"}}));
        }
        if (chance(4))
            return;
        SoundElement info{"orderinfo"};
        may(info, "date", "printDate", day());
        may(info, "time", "printTime", "20:" + number(50));
        may(info, "table", "printTable", oneOf({"7", "Terrasse 12", "bar"}));
        may(info, "waiter", "printWaiter", oneOf({"Lucia", "Jürgen", "Ana"}));
        may(info, "note", "printNote", oneOf({"senza glutine!", "Allergie: Nüsse", "para llevar"}));
        may(info, "credit", "printCredit", amount(random.below(9000)));
        add(info);
    }

    void addCustomer()
    {
        if (chance(2))
            return;
        SoundElement customer{"customer"};
        customer.needs({{"name", personName()}});
        may(customer, "billingaddress", "printBillingAddress", address());
        may(customer, "deliveryaddress", "printDeliveryAddress", address());
        may(customer, "telephone", "printTelephone", "+39 011 555 01" + number(90));
        may(customer, "licensenumber", "printLicenseNumber", "IT01122334455");
        may(customer, "fiscalcode", "printFiscalCode", "RSSMRA80A01L219M");
        add(customer);
    }

    /// An item with its amounts, which are given back.
    qint64 addItem(const char *name)
    {
        const Quantity sold = quantity();
        const bool discount = chance(8);
        const qint64 each = discount ? -5 * (random.below(20) + 1) : price();
        const qint64 all = discount ? each : times(sold, each);
        add(SoundElement{name}.needs(
            {{"number", discount ? "1" : sold.text},
             {"name", discount ? oneOf({"Sconto", "Rabatt", "Remise"}) : itemName()},
             {"price", amount(each)},
             {"totalPrice", amount(all)}}));
        return all;
    }

    /// A variant of the item before, maybe in it, with amounts or without; what it adds.
    qint64 addVariant(bool priced)
    {
        job.elements.last().holdsNext = chance(2);
        SoundElement variant{"variant"};
        const int pieces = random.below(3) + 1;
        const bool less = chance(2);
        const qint64 each = less ? 0 : 10 * random.below(20);
        variant.needs(
            {{"number", QString::number(pieces)},
             {"quantity", less ? "-1" : oneOf({"1", "2", "1.0"})},
             {"name", oneOf({"Rucola", "ohne Zwiebeln", "supplément fromage", "Latte"})}});
        if (priced)
            variant.needs({{"price", less ? "" : amount(each)},
                           {"totalPrice", less ? "" : amount(pieces * each)}});
        add(variant);
        return pieces * each;
    }

    void fillOrder()
    {
        addTop();
        addCustomer();
        for (int i = random.below(8); i >= 0; --i) {
            add(SoundElement{chance(4) ? "otherreceipe" : "receipe"}.needs(
                {{"number", quantity().text}, {"name", itemName()}}));
            if (chance(3))
                addVariant(false);
        }
    }

    void fillFullOrder()
    {
        addTop();
        addCustomer();
        qint64 sum = 0;
        for (int i = random.below(8); i >= 0; --i) {
            sum += addItem("receipe");
            if (chance(3))
                sum += addVariant(true);
        }
        if (chance(3))
            add(SoundElement{"receipe"}.with({{"number", "1"},
                                              {"name", "=Nota interna"},
                                              {"price", amount(500)},
                                              {"totalPrice", amount(500)}}));
        addTotal(sum);
    }

    void addTotal(qint64 sum) { add(SoundElement{"total"}.needs({{"price", amount(sum)}})); }

    void addNotPaid(qint64 sum)
    {
        if (chance(3))
            add(SoundElement{"notPaid"}.needs({{"price", amount(sum / 2)}}));
    }

    void fillReceipt()
    {
        addTop();
        addCustomer();
        qint64 sum = 0;
        for (int i = random.below(8); i >= 0; --i)
            sum += addItem("receipe");
        if (chance(4))
            add(SoundElement{"receipe"}.needs(
                {{"number", ""}, {"name", "senza zucchero"}, {"price", ""}, {"totalPrice", ""}}));
        addTotal(sum);
        addNotPaid(sum);
    }

    qint64 addKind()
    {
        const qint64 sum = chance(9) ? -250 : price() * (random.below(5) + 1LL);
        add(SoundElement{"receipe_type"}.needs(
            {{"number", quantity().text},
             {"name", oneOf({"Bevande", "Getränke", "Plats", "Vinos"})},
             {"price", amount(sum)}}));
        return sum;
    }

    void fillSummaryReceipt()
    {
        addTop();
        qint64 sum = 0;
        for (int i = random.below(5); i >= 0; --i)
            sum += addKind();
        addTotal(sum);
        addNotPaid(sum);
    }

    /// Tax lines of rows that have tax in them, or not.
    void addTaxes(const QList<qint64> &rows)
    {
        const bool net = chance(2);
        const int lines = std::min<int>(random.below(3) + 1, int(rows.size()));
        for (int line = 0; line < lines; ++line) {
            const int rate = QList<int>{40, 55, 100, 190, 220, 0}[random.below(6)]; // per mille
            qint64 sum = 0, rounded = 0;
            for (qsizetype i = line; i < rows.size(); i += lines) {
                sum += rows[i];
                rounded += qRound64(double(rows[i]) * rate / 1000);
            }
            const qint64 taxable = net ? sum : qRound64(double(sum) * 1000 / (1000 + rate));
            const qint64 tax = !net        ? sum - taxable
                               : chance(2) ? rounded
                                           : qRound64(double(sum) * rate / 1000);
            QString per = QString::number(rate / 10);
            if (rate % 10 != 0)
                per += style.mark + QString::number(rate % 10);
            add(SoundElement{"totals"}.needs({{"taxable", amount(taxable)},
                                              {"taxrate", per + oneOf({"%", " %", ""})},
                                              {"tax", amount(tax)},
                                              {"total", amount(taxable + tax)}}));
        }
    }

    void fillInvoice()
    {
        addTop();
        addCustomer();
        QList<qint64> rows;
        for (int i = random.below(8); i >= 0; --i)
            rows.append(addItem("receipe"));
        addTaxes(rows);
    }

    void fillSummaryInvoice()
    {
        addTop();
        addCustomer();
        QList<qint64> rows;
        for (int i = random.below(5); i >= 0; --i)
            rows.append(addKind());
        addTaxes(rows);
    }

    /// A deduction carries its price alone; tills often send the rest.
    qint64 addDeduction(const char *name)
    {
        SoundElement row{name};
        const qint64 price = -5 * (random.below(20) + 1);
        row.needs({{"price", registered(price)}});
        if (chance(2))
            row.with({{"department", "1"}, {"number", "2"}, {"name", "Sconto"}});
        add(row);
        return price;
    }

    void fillFiscal()
    {
        qint64 sum = 0;
        for (int i = random.below(8); i >= 0; --i) {
            const Quantity sold = quantity();
            const int each = price();
            add(SoundElement{"receipe"}.needs(
                {{"department", QString::number(random.below(12) + 1)},
                 {"number", sold.text},
                 {"name", itemName()},
                 {"price", registered(each)}}));
            sum += times(sold, each) + (chance(5) ? addDeduction("receipe") : 0);
        }
        if (!chance(3))
            add(SoundElement{"total"}.with({{"price", registered(sum)}}));
    }

    void fillSummaryFiscal()
    {
        qint64 sum = 0;
        for (int i = random.below(5); i >= 0; --i) {
            const qint64 all = price() * 3LL;
            SoundElement row{"receipe_type"};
            row.needs({{"department", "1"}, {"name", itemName()}, {"price", registered(all)}});
            if (chance(2))
                row.with({{"number", "3"}});
            add(row);
            sum += all + (chance(5) ? addDeduction("receipe_type") : 0);
        }
        if (!chance(3))
            add(SoundElement{"total"}.with({{"price", registered(sum)}}));
    }

    void fillNothing() { }

    void addReceiptsSummary()
    {
        SoundElement summary{"receiptssummary"};
        summary.needs({{"number", number(90)}, {"firstserial", "117"}, {"lastserial", "140"}});
        for (const char *name : {"notPaid", "cash", "creditCard", "bancomat", "other", "total"})
            summary.needs({{name, chance(5) ? QString() : amount(price())}});
        add(summary);
        for (int i = random.below(4); i > 0; --i)
            add(SoundElement{"taxrate_item"}.needs({{"taxrate", oneOf({"10", "22", "5.5"})},
                                                    {"taxable", amount(price())},
                                                    {"tax", amount(price())},
                                                    {"amount", amount(price())}}));
    }

    void addCancelled()
    {
        SoundElement summary{"cancelledsummary"};
        const int count = random.below(4);
        const bool totalFirst = chance(2);
        if (totalFirst)
            summary.needs({{"totals", amount(price())}});
        summary.needs({{"number", QString::number(count)}});
        if (!totalFirst)
            summary.needs({{"totals", amount(price())}});
        for (int i = 0; i < count; ++i)
            summary.with({{QString("serial%1").arg(i), number(900)},
                          {QString("total%1").arg(i), amount(price())},
                          {QString("rate%1").arg(i), "10"}});
        add(summary);
    }

    void fillReport()
    {
        addTop();
        add(SoundElement{"date"}.needs({{"begindate", day()}, {"enddate", day()}}));
        if (chance(2))
            add(SoundElement{"prefiscalssummary"}.needs(
                {{"number", number(90)}, {"total", amount(price())}}));
        if (chance(2))
            addCancelled();
        if (chance(2))
            addReceiptsSummary();
        if (chance(2))
            add(SoundElement{"invoicessummary"}.needs({{"number", number(90)},
                                                       {"firstserial", "31"},
                                                       {"lastserial", "40"},
                                                       {"taxable", amount(price())},
                                                       {"tax", amount(price())},
                                                       {"total", amount(price())}}));
    }

    void fillSold()
    {
        addTop();
        for (int i = random.below(8); i >= 0; --i)
            add(SoundElement{"receipe"}.needs({{"quantity", quantity().text},
                                               {"description", itemName()},
                                               {"amount", amount(price())}}));
    }

    void fillStatement()
    {
        addTop();
        add(SoundElement{"statement_list"});
        for (int i = random.below(8); i > 0; --i)
            add(SoundElement{"statement"}.needs(
                {{"date", day()},
                 {"type", oneOf({"payment", "caparra", "Anzahlung", "pago"})},
                 {"amount", amount(price())}}));
    }

    const korvel::check::SettingsFile *settings;
    SoundJob job;
    const char *group = "";
};
