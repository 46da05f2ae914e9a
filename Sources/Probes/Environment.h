#pragma once

#include "TQFoundation/tqfoundation_export.h"

namespace TQFoundation {

// Each value is worked out on its own first read and then kept for the life of the process: a later rotation, change of
// screen or of storefront shows at the next launch. Reading one computes no other. Concurrent first readers wait for
// the one that computes, and all read the same.

/// The width of the main screen in points; 0 without a screen. The first read belongs on the main thread.
TQFOUNDATION_EXPORT double screenWidth();

/// The height of the main screen in points; 0 without a screen. The first read belongs on the main thread.
TQFOUNDATION_EXPORT double screenHeight();

/// Pixels per point of the main screen; 1 without a screen. The first read belongs on the main thread.
TQFOUNDATION_EXPORT double screenScale();

/// Whether the user's store account belongs to mainland China. An unknown region deliberately counts as mainland China.
/// Any thread.
TQFOUNDATION_EXPORT bool isChn();

} // namespace TQFoundation
