// Sound jobs give no finding; one mistake in such a job gives one, of its kind and at its line.
#include "support/bytes.h"
#include "support/checkjobs.h"
#include "support/methods.h"
#include "support/soundjobs.h"
#include "support/test.h"

namespace tst_checksound {

namespace check = korvel::check;

constexpr int soundJobs = 2000;
constexpr int brokenJobs = 390; // of each mistake, where a document can have it

/// What a mistake must give; no code where the job cannot have that mistake.
struct Expected
{
    QString code;
    qsizetype line = 0;
};

bool isFiscal(const SoundJob &job) { return job.method.endsWith("Fiscal"); }
bool isInvoice(const SoundJob &job) { return job.method.endsWith("Invoice"); }

/// Whether the document prints nothing of it, on purpose.
bool isLeftOut(const SoundJob &job, SoundElement element)
{
    return job.method == "printFullOrder" && element.has("name") && element["name"].startsWith('=');
}

/// One of the elements for which something holds; -1 for none.
template<typename Holds>
qsizetype oneOf(Generator &random, const SoundJob &job, Holds holds)
{
    QList<qsizetype> places;
    for (qsizetype i = 0; i < job.elements.size(); ++i) {
        if (holds(job.elements[i]))
            places.append(i);
    }
    return places.isEmpty() ? -1 : places[random.below(int(places.size()))];
}

bool hasRequired(const SoundElement &element) { return !element.required.isEmpty(); }

bool isItem(const SoundElement &element)
{
    return element.has("totalPrice") && !element.required.isEmpty();
}

/// Replaces the last digit before the decimals by another one.
QString withAnotherDigit(const QString &amount)
{
    QString other = amount;
    for (qsizetype i = 0; i + 1 < amount.size(); ++i) {
        const bool isMark = amount[i] == '.' || amount[i] == ',';
        const bool decimals = i + 3 >= amount.size() || !amount[i + 3].isDigit();
        if (i > 0 && isMark && decimals)
            other[i - 1] = amount[i - 1] == '9' ? '4' : '9';
    }
    return other;
}

/// A name with a letter swapped, left out or in the other case, or a word of another till for it.
QString misspelt(Generator &random, const QString &name)
{
    static const QHash<QString, QStringList> words = {
        {"number", {"qty", "Menge", "cantidad"}}, {"price", {"prezzo", "Preis", "precio"}},
        {"name", {"nome", "Bezeichnung"}},        {"totalPrice", {"importo", "total"}},
        {"department", {"reparto", "dept"}},      {"amount", {"importo", "Betrag"}},
    };
    const int at = random.below(int(name.size()) - 1) + 1;
    switch (random.below(name.size() < 5 ? 2 : 4)) {
    case 0:
        if (const QStringList others = words.value(name); !others.isEmpty())
            return others[random.below(int(others.size()))];
        [[fallthrough]];
    case 1:
        return name.left(at) + (name[at].isUpper() ? name[at].toLower() : name[at].toUpper())
               + name.mid(at + 1);
    case 2:
        return name.left(at) + name.mid(at + 1);
    default:
        return name[1] + name.left(1) + name.mid(2);
    }
}

Expected dropAttribute(Generator &random, SoundJob &job)
{
    const qsizetype at = oneOf(random, job, hasRequired);
    if (at < 0)
        return {};
    SoundElement &element = job.elements[at];
    const QString name = element.required[random.below(int(element.required.size()))];
    element.attributes.removeIf([&](const auto &row) { return row.first == name; });
    return {isFiscal(job)                        ? "fiscal-incomplete"
            : element.name == "cancelledsummary" ? "cancelled-list"
                                                 : "missing-attribute",
            SoundJob::lineOf(at)};
}

Expected misspellAttribute(Generator &random, SoundJob &job)
{
    const qsizetype at = oneOf(random, job, hasRequired);
    if (at < 0)
        return {};
    SoundElement &element = job.elements[at];
    const QString name = element.required[random.below(int(element.required.size()))];
    for (auto &[attribute, value] : element.attributes) {
        if (attribute == name)
            attribute = misspelt(random, name);
    }
    return {element.name == "cancelledsummary" ? "cancelled-list" : "misspelt-attribute",
            SoundJob::lineOf(at)};
}

Expected changeTotal(Generator &random, SoundJob &job)
{
    const qsizetype at = oneOf(random, job, [](const SoundElement &element) {
        return element.name == "total" || element.name == "totals";
    });
    if (at < 0)
        return {};
    QString &value = job.elements[at][isInvoice(job) ? "total" : "price"];
    value = withAnotherDigit(value);
    return {isInvoice(job) ? "tax-sum" : "total-sum", SoundJob::lineOf(at)};
}

Expected changeTax(Generator &random, SoundJob &job)
{
    const qsizetype at =
        oneOf(random, job, [](const SoundElement &element) { return element.name == "totals"; });
    if (at < 0)
        return {};
    QString &value = job.elements[at][random.below(2) == 0 ? "tax" : "taxable"];
    value = withAnotherDigit(value);
    return {"tax-sum", SoundJob::lineOf(at)};
}

/// The amount of an item, or the price of a row that has nothing beside it.
Expected changeRow(Generator &random, SoundJob &job)
{
    const qsizetype at = oneOf(random, job, [](SoundElement element) {
        return isItem(element) && !element["totalPrice"].isEmpty();
    });
    if (at < 0)
        return {};
    QString &value = job.elements[at]["totalPrice"];
    value = withAnotherDigit(value);
    return {"row-sum", SoundJob::lineOf(at)};
}

Expected renameElement(Generator &random, SoundJob &job)
{
    const qsizetype at =
        oneOf(random, job, [&](const SoundElement &element) { return !isLeftOut(job, element); });
    if (at < 0)
        return {};
    QString &name = job.elements[at].name;
    const QStringList others = {name.left(1) + name.mid(2), name.toUpper(), name + "x", "articolo"};
    name = others[random.below(int(others.size()))];
    return {"unknown-element", SoundJob::lineOf(at)};
}

Expected addText(Generator &random, SoundJob &job)
{
    const qsizetype at =
        oneOf(random, job, [&](const SoundElement &element) { return !isLeftOut(job, element); });
    if (at < 0 || random.below(5) == 0) {
        job.textBehind = " Tavolo 7";
        return {"text-content", 2};
    }
    job.elements[at].text = "Tavolo 7";
    return {"text-content", SoundJob::lineOf(at)};
}

/// An element of another document, with a figure.
Expected addForeign(Generator &random, SoundJob &job)
{
    const SoundElement foreign = job.method == "printSold"
                                     ? SoundElement{"total"}.with({{"price", "9"}})
                                     : SoundElement{"taxrate_item"}.with({{"amount", "9"}});
    if (job.method == "printReport")
        return {};
    const qsizetype at = random.below(int(job.elements.size()) + 1);
    if (at > 0 && job.elements[at - 1].holdsNext)
        return {};
    job.elements.insert(at, foreign);
    return {"lost-element", SoundJob::lineOf(at)};
}

Expected dropTotal(Generator &, SoundJob &job)
{
    const qsizetype before = job.elements.size();
    job.elements.removeIf([](const SoundElement &element) {
        return element.name == "total" || element.name == "totals";
    });
    return {isFiscal(job) || job.elements.size() == before ? "" : "no-total", 2};
}

Expected addRowBehindTotal(Generator &, SoundJob &job)
{
    if (isFiscal(job) || job.elements.isEmpty()
        || !QStringList{"total", "totals", "notPaid"}.contains(job.elements.last().name))
        return {};
    for (const SoundElement &element : QList<SoundElement>(job.elements)) {
        if (!element.name.startsWith("receipe") || isLeftOut(job, element))
            continue;
        job.elements.append(element);
        job.elements.last().holdsNext = false;
        return {"behind-total", SoundJob::lineOf(job.elements.size() - 1)};
    }
    return {};
}

/// The mark of the last amount differs from those before it.
Expected mixMarks(Generator &, SoundJob &job)
{
    if (isFiscal(job) || job.elements.size() < 2 || job.elements.last().name != "total")
        return {};
    for (QChar &c : job.elements.last()["price"])
        c = c == '.' ? u',' : c == ',' ? u'.' : c;
    return {"decimal-comma", SoundJob::lineOf(job.elements.size() - 1)};
}

/// Values that the printer refuses.
Expected breakSaleRow(Generator &random, SoundJob &job)
{
    const bool full = job.method == "printFullOrderFiscal";
    const qsizetype at = isFiscal(job) ? oneOf(random, job,
                                               [](const SoundElement &row) { // no deduction
                                                   return row.required.contains("department");
                                               })
                                       : -1;
    if (at < 0)
        return {};
    struct Mistake
    {
        QString attribute, value, code;
    };
    const QList<Mistake> mistakes = {
        {"department", "Bar", "fiscal-department"}, {"department", "1/2", "ends-command"},
        {"price", "", "fiscal-incomplete"},         {"price", "gratis", "fiscal-amount"},
        {"name", "Acqua (0,5 l)", "ends-command"},  {"number", "0", "fiscal-quantity"},
        {"number", "-1", "fiscal-quantity"},        {"number", "1/2", "ends-command"},
    };
    const Mistake &mistake = mistakes[random.below(full ? 8 : 5)];
    job.elements[at][mistake.attribute] = mistake.value;
    return {mistake.code, SoundJob::lineOf(at)};
}

using Break = Expected (*)(Generator &, SoundJob &);

class TestCheckSound : public QObject
{
    Q_OBJECT

private slots:
    /// As any shop may send them, what has a switch sent or not.
    void soundJobsWithoutSettings()
    {
        SoundJobs jobs(1);
        for (int i = 0; i < soundJobs; ++i) {
            const QByteArray job = jobs.next(methodNames[i % methodNames.size()]).xml();
            const QStringList found = shown(check::checkJob(job, nullptr));
            QVERIFY2(found.isEmpty(), qPrintable(found.join('\n') + "\n" + job));
        }
    }

    /// As the sample shop sends them, beside its settings: those may switch off what is sent, and
    /// have columns for smaller figures.
    void soundJobsWithSettings()
    {
        const auto settings = settingsOf(bytesOf(KORVEL_SOURCE_DIR "/examples/korvel.conf"));
        SoundJobs jobs(2, settings.get());
        for (int i = 0; i < soundJobs; ++i) {
            const QByteArray job = jobs.next(methodNames[i % methodNames.size()]).xml();
            QCOMPARE(shown(check::checkJob(job, nullptr)), QStringList());
            auto findings = check::checkJob(job, settings.get());
            findings.removeIf([](const check::Finding &finding) {
                return finding.code == check::Code::SwitchedOff
                       || QString(check::infoOf(finding.code).name).startsWith("wide-");
            });
            QVERIFY2(findings.isEmpty(), qPrintable(shown(findings).join('\n') + "\n" + job));
        }
    }

    void broken_data()
    {
        QTest::addColumn<Break>("mistake");
        QTest::addColumn<int>("least"); // so many jobs have it

        // clang-format off
        QTest::newRow("an attribute that is missing")    << Break(dropAttribute)     << 300;
        QTest::newRow("a misspelt attribute")            << Break(misspellAttribute) << 300;
        QTest::newRow("a digit of the total")            << Break(changeTotal)       << 120;
        QTest::newRow("a digit of the tax")              << Break(changeTax)         << 50;
        QTest::newRow("a digit of a row")                << Break(changeRow)         << 60;
        QTest::newRow("an element of another name")      << Break(renameElement)     << 330;
        QTest::newRow("a text between tags")             << Break(addText)           << 350;
        QTest::newRow("an element of another document")  << Break(addForeign)        << 300;
        QTest::newRow("no total")                        << Break(dropTotal)         << 120;
        QTest::newRow("a row behind the total")          << Break(addRowBehindTotal) << 120;
        QTest::newRow("another decimal mark")            << Break(mixMarks)          << 50;
        QTest::newRow("what the printer refuses")        << Break(breakSaleRow)      << 50;
        // clang-format on
    }

    /// One finding, and no other that follows from it.
    void broken()
    {
        QFETCH(Break, mistake);
        QFETCH(int, least);
        SoundJobs jobs(3);
        int broken = 0;
        for (int i = 0; i < brokenJobs; ++i) {
            SoundJob job = jobs.next(methodNames[i % methodNames.size()]);
            const Expected expected = mistake(jobs.random, job);
            if (expected.code.isEmpty())
                continue;
            ++broken;
            const QByteArray xml = job.xml();
            const auto findings = check::checkJob(xml, nullptr);
            const bool one = findings.size() == 1
                             && check::infoOf(findings.first().code).name == expected.code
                             && findings.first().place.line == expected.line;
            QVERIFY2(one, qPrintable(QString("%1 in line %2 expected, found:\n%3\n%4")
                                         .arg(expected.code)
                                         .arg(expected.line)
                                         .arg(shown(findings).join('\n'), QString(xml))));
        }
        QVERIFY2(broken >= least, qPrintable(QString::number(broken)));
    }
};

KORVEL_TEST(TestCheckSound)

} // namespace tst_checksound

#include "tst_checksound.moc"
