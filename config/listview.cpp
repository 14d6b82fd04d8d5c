// The tree as an editable list view, and the view back as the tree and its file.
#include "config/config.h"
#include "config/configuration.h"

#include <QHeaderView>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

QTreeWidget *KVConfiguration::newConfigListView() const { return Config::newConfigListView(); }

namespace libconfig {

QTreeWidget *Config::newConfigListView() const { return buildConfigListView(); }

QTreeWidget *Config::buildConfigListView() const
{
    auto view = std::make_unique<QTreeWidget>();
    view->setColumnCount(1);
    view->setHeaderLabels({u"ConfigurationFile"_s});
    view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    if (document)
        buildConfigListView(document->documentElement(), view.get());
    return view.release();
}

void Config::buildConfigListView(const QDomNode &node, QTreeWidget *view) const
{
    buildRows(node, node.isElement() ? new QTreeWidgetItem(view) : nullptr);
}

void Config::buildConfigListView(const QDomNode &node, QTreeWidgetItem *parent) const
{
    buildRows(node, node.isElement() && parent ? new QTreeWidgetItem(parent) : nullptr);
}

/// Fills the row of a group, and adds the rows of its settings and of its groups below it.
void Config::buildRows(const QDomNode &node, QTreeWidgetItem *groupRow) const
{
    if (groupRow) {
        const QDomElement group = node.toElement();
        groupRow->setText(0, group.tagName());
        for (const QString &setting : settingNames(group)) {
            auto *nameRow = new QTreeWidgetItem(groupRow, {setting});
            auto *valueRow = new QTreeWidgetItem(nameRow, {group.attribute(setting)});
            valueRow->setFlags(valueRow->flags() | Qt::ItemIsEditable);
        }
    }
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        buildConfigListView(child, groupRow);
}

void Config::loadListView(const QTreeWidget *view)
{
    if (!view)
        return;
    takeListView(view);
    if (fileFormat == "cfg"_L1)
        buildConfigFile(QString());
    else if (fileFormat == "xml"_L1)
        buildConfigXmlFile(QString());
}

void Config::takeListView(const QTreeWidget *view)
{
    document.clear();
    for (int i = 0; view && i < view->topLevelItemCount(); ++i)
        loadListView(view->topLevelItem(i), document.get());
}

void Config::loadListView(const QTreeWidgetItem *item, QDomDocument *tree)
{
    QDomElement top = tree->createElement(item->text(0));
    tree->appendChild(top);
    loadRows(item, top, *tree);
}

void Config::loadListView(const QTreeWidgetItem *item, QDomNode parent)
{
    QDomElement group = parent.ownerDocument().createElement(item->text(0));
    parent.appendChild(group);
    loadRows(item, group, parent);
}

bool Config::isSetting(const QTreeWidgetItem *row)
{
    return row->childCount() > 0 && row->child(0)->childCount() == 0;
}

/// Reads the rows below a group's: settings go to the group itself, groups to the first child of
/// the node that the group was appended to.
void Config::loadRows(const QTreeWidgetItem *item, QDomElement &group, const QDomNode &parent)
{
    for (int i = 0; i < item->childCount(); ++i) {
        const QTreeWidgetItem *row = item->child(i);
        if (isSetting(row))
            document.set(group, row->text(0), row->child(0)->text(0));
        else
            loadListView(row, parent.firstChild());
    }
}

} // namespace libconfig
