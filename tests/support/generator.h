// Jobs and settings made from a seed: the same ones from the same seed, on every machine.
#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <random>

/// A settings file, and what each of its keys must answer.
struct GeneratedSettings
{
    QByteArray braces;
    QList<QPair<QString, QString>> answers;
};

class Generator
{
public:
    explicit Generator(unsigned seed)
        : random(seed)
    {
    }

    /// A whole number from 0 on, below a limit.
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    /// One of the texts given.
    const char *oneOf(const QList<const char *> &texts)
    {
        return texts[below(static_cast<int>(texts.size()))];
    }

    /// A text of some characters, within and beyond ASCII.
    QString text(int longest)
    {
        const int length = below(longest + 1);
        QString result;
        while (result.size() < length)
            result +=
                QString::fromUtf8(oneOf({"a", "b", "X", "Y", "0", "9", " ", ".", ",", "-", "=",
                                         "/*(", "\u00E8", "\u00FC", "\u20AC", "\U0001F600"}));
        return result.size() > length ? result.left(length - 1) + 'z' : result;
    }

    /// A settings file of nested groups, their names and those of settings being used once.
    GeneratedSettings settings()
    {
        GeneratedSettings result;
        result.braces = "top:\n{\n" + groupBody("top", 4, result.answers) + "};\n";
        return result;
    }

    /// A settings file for the documents, with columns that leave room or not, and switches.
    QByteArray layout()
    {
        QByteArray groups;
        for (const char *name : {"doc", "prefiscaldoc", "fiscaldoc", "receiptdoc", "invoicedoc",
                                 "deliverydoc", "reportdoc", "solddoc"}) {
            groups += "    " + QByteArray(name) + ":\n    {\n";
            for (const char *setting : {"quantityFieldWidth", "priceFieldWidth",
                                        "totalPriceFieldWidth", "topMargin", "descriptionWidth"})
                groups +=
                    setting + QByteArray(" = \"") + QByteArray::number(below(12) - 1) + "\";\n";
            groups += "paperWidth = \"" + QByteArray::number(below(48)) + "\";\n";
            for (const char *flag :
                 {"Geometry", "Header", "Company", "DeliveryAddress", "BillingAddress", "Telephone",
                  "Date", "Table", "Customer", "LicenseNumber", "Credit", "Note"})
                groups += QByteArray("print") + flag + " = \"" + oneOf({"true", "false", "yes"})
                          + "\";\n";
            groups += "    };\n";
        }
        return "korvel:\n{\n" + groups + "};\n";
    }

    /// The elements of a job of one method.
    QByteArray elements(const QByteArray &method, int count)
    {
        QByteArray result = "<method name=\"" + method + "\"/>\n";
        for (int i = 0; i < count; ++i)
            result += element();
        return result;
    }

    /// The elements of a job of any one method.
    QByteArray elements(int count)
    {
        return elements(
            oneOf({"printPartialOrder", "printFullOrder", "printAbstractOrder",
                   "printFullOrderReceipt", "printAbstractOrderReceipt", "printFullOrderInvoice",
                   "printAbstractOrderInvoice", "printFullOrderDelivery", "printFullOrderFiscal",
                   "printAbstractOrderFiscal", "printReport", "printSold",
                   "printStatementOfAccount"}),
            count);
    }

    /// The elements of a fiscal receipt, full or summary.
    QByteArray fiscalElements(int count)
    {
        return elements(oneOf({"printFullOrderFiscal", "printAbstractOrderFiscal"}), count);
    }

    /// A whole job of these elements.
    static QByteArray job(const QByteArray &elements)
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<job>\n" + elements + "</job>\n";
    }

private:
    QByteArray element()
    {
        const QByteArray name = oneOf({"printers",
                                       "geometry",
                                       "headers",
                                       "logo",
                                       "company",
                                       "receipt",
                                       "invoice",
                                       "delivery",
                                       "orderinfo",
                                       "customer",
                                       "receipe",
                                       "receipe",
                                       "receipe",
                                       "otherreceipe",
                                       "receipe_type",
                                       "receipe_type",
                                       "variant",
                                       "total",
                                       "totals",
                                       "notPaid",
                                       "date",
                                       "prefiscalssummary",
                                       "receiptssummary",
                                       "taxrate_item",
                                       "statement",
                                       "statement_list",
                                       "invoicessummary",
                                       "cancelledsummary",
                                       "something-else"});
        QByteArray attributes;
        for (const char *attribute :
             {"name", "number", "price", "totalPrice", "quantity", "description", "amount",
              "serialnumber", "billingaddress", "department", "total", "type", "date"})
            if (below(2) == 0)
                attributes += QByteArray(" ") + attribute + "=\"" + attributeValue() + "\"";
        switch (below(4)) {
        case 0:
            return "<" + name + attributes + "></" + name + ">\n";
        case 1:
            return "<group><" + name + attributes + "/>text &amp; text</group>\n";
        case 2:
            return "<!-- <method/> --><" + name + attributes + "/>\n";
        default:
            return "<" + name + attributes + "/>\n";
        }
    }

    QByteArray attributeValue()
    {
        switch (below(6)) {
        case 0:
            return "TOTALE";
        case 1:
            return "&lt;&quot;&#232;";
        case 2:
        case 3:
            return QByteArray::number((below(20000) - 2000) / 100.0, 'f', 2);
        default:
            return text(24).toUtf8();
        }
    }

    QByteArray groupBody(const QString &path, int levels, QList<QPair<QString, QString>> &answers)
    {
        QByteArray body;
        for (int i = below(5); i >= 0; --i) {
            const QString name = QString("setting%1").arg(i);
            const QByteArray value = oneOf({"1", "two words", "  blanks  ", "", "{}:=", "\xE8\xFF",
                                            "true", "-3", "/opt/lang", "it's > 1"});
            body += name.toLatin1() + " = \"" + value + "\";\n";
            answers.append({path + '.' + name, QString::fromLatin1(value)});
        }
        for (int i = levels > 0 ? below(4) : 0; i > 0; --i) {
            const QString name = QString("group%1").arg(i);
            body += name.toLatin1() + ": {\n" + groupBody(path + '.' + name, levels - 1, answers)
                    + "};\n";
        }
        return body;
    }

    std::mt19937 random;
};
