#pragma once

#include <functional>

class QQuickItem;

namespace TQFoundation {

/// Brings the opacity of \a item from where it stands to \a opacity within \a seconds, slow at both ends, and then runs
/// \a completion.
///
/// The completion runs once, and not before its time: also when a later animation of the same item has taken over the
/// opacity, or the item has gone. Until then it is kept with all that it holds. It does not run when the application
/// object goes first. Main thread.
void animateOpacity(QQuickItem *item, double opacity, double seconds, std::function<void()> completion);

} // namespace TQFoundation
