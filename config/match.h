// The rule by which a dotted key finds a setting, for either tree of the store.
#pragma once

#include <QString>

namespace libconfig {

/**
 * Looks below a node for the value of a key, whose first field must be the node's own name.
 *
 * @tparam Node a node that says whether it is null, a group, called like a field; its value of a
 *              setting; its first child and its next sibling
 */
template<typename Node>
QString match(const Node &node, QStringView key)
{
    const qsizetype firstDot = key.indexOf(u'.');
    if (!node.isGroup() || !node.isNamed(firstDot < 0 ? key : key.first(firstDot)))
        return {};

    const QStringView rest = firstDot < 0 ? QStringView() : key.sliced(firstDot + 1);
    const qsizetype secondDot = rest.indexOf(u'.');
    const bool thirdFieldIsEmpty =
        secondDot < 0 || secondDot + 1 == rest.size() || rest[secondDot + 1] == u'.';
    if (thirdFieldIsEmpty)
        return node.value(secondDot < 0 ? rest : rest.first(secondDot));

    const QStringView name = rest.first(secondDot);
    for (Node child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (!child.isNamed(name))
            continue;
        if (QString value = match(child, rest); !value.isEmpty())
            return value;
    }
    return {};
}

} // namespace libconfig
