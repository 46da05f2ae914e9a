#pragma once

class QQuickItem;

namespace TQFoundation {

/// Makes \a item the topmost child of \a host, above the popups of its window; a child that it has already is raised.
/// Position and size do not change. Does nothing if either is null, if they are the same item or if \a item contains
/// \a host. GUI thread.
void addAsTopmostChild(QQuickItem *item, QQuickItem *host);

} // namespace TQFoundation
