// Settings of any bytes, in both notations: read, asked, written and read again.
#include "config/config.h"
#include "fuzz/expect.h"
#include "support/bytes.h"

#include <QTemporaryDir>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

/// A file for the time of a run, in a folder that goes with the process.
QString scratchPath(const QString &name)
{
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

/// A scratch file that is not there: some file systems wait for the disk when one is emptied.
QString freshPath(const QString &name)
{
    const QString path = scratchPath(name);
    QFile::remove(path);
    return path;
}

/// A store filled from bytes, with what its writers make of it.
class Store : public libconfig::Config
{
public:
    Store(const QByteArray &bytes, const QString &notation)
    {
        QFile file(freshPath("settings"));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the settings");
        file.close();
        readFile(file.fileName(), notation);
    }

    /// The element that stands for the file.
    [[nodiscard]] QDomElement top() const { return document->documentElement(); }

    [[nodiscard]] QByteArray braces() const
    {
        buildConfigFile(freshPath("written"));
        return bytesOf(scratchPath("written"));
    }

    [[nodiscard]] QByteArray xml() const
    {
        buildConfigXmlFile(freshPath("written"));
        return bytesOf(scratchPath("written"));
    }
};

bool isLatin1(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c <= u'\xFF'; });
}

/// A name that reads back in the brace notation. Those read from it always do.
bool isBraceName(const QString &name)
{
    return isLatin1(name) && !name.contains(u':') && !name.contains(u'=') && !name.contains(u'}');
}

bool isBraceValue(const QString &value)
{
    return isLatin1(value) && !value.contains(u'"') && !value.contains(u';');
}

/// A plain XML name. There are others, which need not read back for the assertions below.
bool isXmlName(const QString &name)
{
    const auto isLetter = [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
    };
    return !name.isEmpty() && isLetter(name[0])
           && std::all_of(name.cbegin(), name.cend(), [&](QChar c) {
                  return isLetter(c) || (c >= u'0' && c <= u'9') || c == u'-' || c == u'.';
              });
}

/// A value that goes out into XML as it stands: no markup, no white space that becomes a blank.
bool isXmlValue(const QString &value)
{
    return std::all_of(value.cbegin(), value.cend(), [](QChar c) {
        return c >= u' ' && c != u'"' && c != u'<' && c != u'&' && !c.isSurrogate()
               && c <= u'\xFFFD';
    });
}

/// What there is in the part of a tree that is written and searched: the settings outside every
/// group and the first top-level group.
class Contents
{
public:
    explicit Contents(const QDomElement &top)
    {
        const QDomNamedNodeMap outside = top.attributes();
        for (int i = 0; i < outside.count(); ++i)
            addSetting(outside.item(i));
        xml = outside.isEmpty();
        if (const QDomNode first = top.firstChild(); !first.isNull())
            add(first, QString(), true);
    }

    bool braces = true;     // the brace notation holds it
    bool xml = true;        // so does XML
    bool fullGroups = true; // all nodes are groups that hold something
    QStringList found;      // keys of some settings that have a value and that a look-up must find

private:
    void addSetting(const QDomNode &setting)
    {
        braces = braces && isBraceName(setting.nodeName()) && isBraceValue(setting.nodeValue());
        xml = xml && isXmlName(setting.nodeName()) && isXmlValue(setting.nodeValue());
    }

    void add(const QDomNode &node, const QString &prefix, bool plain)
    {
        constexpr qsizetype enough = 50;

        const QDomElement group = node.toElement();
        if (group.isNull()) { // a comment, say: written as a group without a name
            braces = braces && !node.hasChildNodes();
            xml = fullGroups = false;
            return;
        }
        const QString name = group.tagName();
        const QDomNamedNodeMap settings = group.attributes();
        braces = braces && isBraceName(name);
        xml = xml && isXmlName(name);
        fullGroups = fullGroups && (!settings.isEmpty() || group.hasChildNodes());

        const bool plainGroup = plain && !name.contains(u'.');
        const QString groupPrefix = found.size() < enough ? prefix + name + u'.' : QString();
        for (int i = 0; i < settings.count(); ++i) {
            const QDomNode setting = settings.item(i);
            addSetting(setting);
            const QString settingName = setting.nodeName();
            if (plainGroup && found.size() < enough && !settingName.isEmpty()
                && !settingName.contains(u'.') && !setting.nodeValue().isEmpty())
                found.append(groupPrefix + settingName);
        }
        for (QDomNode child = group.firstChild(); !child.isNull(); child = child.nextSibling())
            add(child, groupPrefix, plainGroup);
    }
};

// What programs ask, and what none should.
const QStringList keys = {
    "korvel.language.basedir",
    "korvel.language.file",
    "korvel.doc.paperWidth",
    "korvel.doc.quantityFieldWidth",
    "korvel.prefiscaldoc.priceFieldWidth",
    "korvel.fiscaldoc.descriptionWidth",
    "korvel.receiptdoc.totalPriceFieldWidth",
    "korvel.receiptdoc.printCustomer",
    "korvel.invoicedoc.style",
    "korvel.deliverydoc.printDate",
    "korvel.reportdoc.paperRows",
    "korvel.solddoc.topMargin",
    "korvel.x",
    "korvel",
    "a",
    "a.x",
    "a.x.",
    "a.x..",
    "a.b",
    "a.b.x",
    "a.b.c.x",
    "a.b.c.d.x",
    "a..x",
    ".a.x",
    "",
    ".",
    "..",
    "....",
    " a . x ",
    "a.\u00E8",
};

QStringList answers(const Store &store, const QStringList &asked)
{
    QStringList values;
    for (const QString &key : asked)
        values.append(store.lookup(key));
    return values;
}

void run(const QByteArray &bytes, const QString &notation)
{
    const Store store(bytes, notation);
    const Contents contents(store.top());
    const QStringList asked = keys + contents.found;
    const QStringList values = answers(store, asked);
    for (qsizetype i = keys.size(); i < asked.size(); ++i)
        expect(!values[i].isEmpty(), "a setting that has a value is found");
    // A quote is taken out of a value and a semicolon ends it; names end at the other marks.
    expect(notation != "cfg" || contents.braces, "the brace notation holds what was read from it");

    const QByteArray braces = store.braces();
    const QByteArray xml = store.xml();
    expect(store.braces() == braces && store.xml() == xml, "a second writing is the same");

    if (contents.braces) {
        const Store again(braces, "cfg");
        expect(answers(again, asked) == values, "settings written in braces answer the same");
        expect(!contents.fullGroups || again.braces() == braces,
               "braces are rewritten as they are");
    }
    if (contents.xml) {
        const Store again(xml, "xml");
        expect(answers(again, asked) == values, "settings written as XML answer the same");
        expect(again.xml() == xml, "XML is rewritten as it is");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    run(bytes, "cfg");
    run(bytes, "xml");
    return 0;
}
