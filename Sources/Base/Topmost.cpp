#include "Topmost.h"

#include <QtQuick/qquickitem.h>

#include <algorithm>

namespace TQFoundation {

void addAsTopmostChild(QQuickItem *item, QQuickItem *host)
{
    if (!item || !host || item == host || item->isAncestorOf(host))
        return;
    // The layer in which Qt Quick Controls shows the popups of a window.
    constexpr double popups = 1000001;
    double highest = popups;
    const QQuickItem *last = nullptr;
    const QList<QQuickItem *> siblings = host->childItems();
    for (const QQuickItem *sibling : siblings) {
        if (sibling == item)
            continue;
        highest = std::max(highest, sibling->z());
        last = sibling;
    }
    // Of children with the same z, which one has that is too large to add to, the last lies on top.
    item->setZ(highest + 1);
    item->setParentItem(host);
    if (last)
        item->stackAfter(last);
}

} // namespace TQFoundation
