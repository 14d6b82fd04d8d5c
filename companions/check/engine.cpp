// The engine run on the tags of a job, its commands in a text.
#include "companions/check/engine.h"

#include "companions/check/catalogue.h"
#include "companions/paper/paper.h"
#include "printer/company/companyprinterdriver.h"
#include "vocabulary/paper.h"

#include <QCoreApplication>
#include <QTranslator>
#include <QXmlAttributes>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Method;
namespace attribute = vocabulary::attribute;
namespace element = vocabulary::element;

class Driver : public CompanyPrinterDriver
{
public:
    using CompanyPrinterDriver::CompanyPrinterDriver;

    /// Lays the document out for paper no wider than this.
    void keepTo(int width) { layout.paperWidth = std::min(layout.paperWidth, width); }
};

bool hasRows(const Method &method)
{
    return std::any_of(
        std::begin(vocabulary::itemRows), std::end(vocabulary::itemRows),
        [&](const vocabulary::ItemRows &rows) { return (rows.documents & method.document) != 0; });
}

/// A value as the renderer reads it, with its line break, which XML makes a blank. Which one of
/// several does not matter to where the line ends.
QString readValue(const JobAttribute &attribute)
{
    QString value = attribute.value;
    if (attribute.lineBreak && !value.contains(u'\n') && !value.contains(u'\r'))
        if (const qsizetype blank = value.indexOf(u' ', 1); blank > 0)
            value[blank] = u'\n';
    return value;
}

/// The least that an attribute's value can be, to the same number of lines: nothing, but an amount
/// behind a label.
QString leastValue(const JobAttribute &attribute, const QList<vocabulary::Attribute> &known)
{
    for (const vocabulary::Attribute &row : known) {
        if (row.name == attribute.name && row.value == vocabulary::Value::Amount
            && row.column == vocabulary::NoColumn)
            return u"0.00"_s;
    }
    return attribute.value.startsWith(u'=') ? u"="_s : QString(); // leaves an item out
}

QXmlAttributes attributesFor(Trial trial, const Tag &tag, const Method &method)
{
    QList<vocabulary::Attribute> known;
    if (trial == Trial::Hollow)
        known = vocabulary::attributesOf(tag.name, method.document);
    QXmlAttributes attributes;
    for (const JobAttribute &row : tag.attributes)
        attributes.append(row.name, {}, row.name,
                          trial == Trial::Hollow ? leastValue(row, known) : readValue(row));
    return attributes;
}

} // namespace

void layOut(const QList<Tag> &tags, const SettingsFile &settings, Trial trial,
            const std::function<void(const Printed &)> &take)
{
    QTranslator translator;
    if (const QString path = catalogueOf(settings); trial != Trial::Hollow && !path.isEmpty()
                                                    && QCoreApplication::instance()
                                                    && translator.load(path))
        QCoreApplication::installTranslator(&translator);

    QString commands;
    Driver driver(settings.forEngine(), commands);
    driver.startDocument();
    const Method *method = nullptr;
    for (const Tag &tag : tags) {
        commands.resize(0); // and keeps its room
        if (tag.name == element::method) {
            const JobAttribute *name = tag.find(attribute::name);
            method = name ? vocabulary::findMethod(name->value) : nullptr;
            if (!method)
                return; // the engine would say so
            QXmlAttributes selected;
            selected.append(attribute::name, {}, attribute::name, method->name);
            driver.startElement({}, {}, tag.name, selected);
            if (trial == Trial::Narrow)
                driver.keepTo(hasRows(*method) ? vocabulary::lineWidth : 0);
        } else if (method) {
            driver.startElement({}, {}, tag.name, attributesFor(trial, tag, *method));
            take({tag, *method, commands});
        }
    }
}

QStringList rowsOf(const QString &commands)
{
    QStringList rows;
    preview::Decoder decoder(commands.toUtf8());
    while (const auto command = decoder.next())
        rows.append(preview::widestRow(*command, vocabulary::lineWidth));
    return rows;
}

} // namespace korvel::check
