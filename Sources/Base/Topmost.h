#pragma once

class QQuickItem;

namespace TQFoundation {

/// Makes \a item a child of \a host that lies on top of all its other children, the popups of a window among them; one
/// that is its child already is raised. Its geometry stays. Does nothing where either is null, or \a host is \a item or
/// lies inside it. Main thread.
void addAsTopmostChild(QQuickItem *item, QQuickItem *host);

} // namespace TQFoundation
