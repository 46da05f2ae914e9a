#pragma once

#include <functional>

class QQuickItem;

namespace TQFoundation {

/// Animates the opacity of \a item from its current value to \a opacity (0 to 1) within \a seconds, with ease-in-out,
/// and then calls \a completion, which must not be empty.
///
/// The completion runs exactly once and after the full duration, also if a later animation of the same item has taken
/// over the opacity or the item was destroyed. It is kept, with everything that it captures, until it has run. It does
/// not run if the application object is destroyed first. GUI thread.
void animateOpacity(QQuickItem *item, double opacity, double seconds, std::function<void()> completion);

} // namespace TQFoundation
