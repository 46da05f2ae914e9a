#pragma once

class QQuickItem;

namespace TQFoundation {

/// Makes \a item the topmost child of \a host, above the popups of its window; a child that it has already is raised.
/// Position and size do not change. Does nothing if either is null, if they are the same item or if \a item contains
/// \a host. GUI thread.
void addAsTopmostChild(QQuickItem *item, QQuickItem *host);

/// Whether \a item is painted above \a other. False if they have no common ancestor or if one is the other or contains
/// it. Neither may be null. GUI thread.
bool isAbove(const QQuickItem *item, const QQuickItem *other);

} // namespace TQFoundation
