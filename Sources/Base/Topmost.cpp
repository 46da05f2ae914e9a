#include "Topmost.h"

#include <QtQuick/qquickitem.h>

#include <algorithm>

namespace TQFoundation {

void addAsTopmostChild(QQuickItem *item, QQuickItem *host)
{
    if (!item || !host || item == host || item->isAncestorOf(host))
        return;
    constexpr double popupLayer = 1000001; // z of the popup overlay of Qt Quick Controls
    double highest = popupLayer;
    const QQuickItem *last = nullptr;
    const QList<QQuickItem *> siblings = host->childItems();
    for (const QQuickItem *sibling : siblings) {
        if (sibling == item)
            continue;
        highest = std::max(highest, sibling->z());
        last = sibling;
    }
    // Adding 1 to a very large z does not change it; then the order of the children decides.
    item->setZ(highest + 1);
    item->setParentItem(host);
    if (last)
        item->stackAfter(last);
}

bool isAbove(const QQuickItem *item, const QQuickItem *other)
{
    while (item->parentItem() && !item->parentItem()->isAncestorOf(other))
        item = item->parentItem();
    const QQuickItem *const parent = item->parentItem();
    if (!parent)
        return false;
    while (other->parentItem() != parent)
        other = other->parentItem();
    const QList<QQuickItem *> siblings = parent->childItems();
    return item->z() > other->z() || (item->z() == other->z() && siblings.indexOf(item) > siblings.indexOf(other));
}

} // namespace TQFoundation
