#pragma once

#include "TQFoundation/tqfoundation_export.h"

namespace TQFoundation {

// One-time values: each is read from the platform on its first use and kept for the life of the process. A later
// rotation or change of screen or storefront shows at the next launch. Reading one reads no other. Initialisation is
// thread-safe.

/// The width of the main screen in points; 0 without a screen. First read on the GUI thread, then any thread.
TQFOUNDATION_EXPORT double screenWidth();

/// The height of the main screen in points; 0 without a screen. First read on the GUI thread, then any thread.
TQFOUNDATION_EXPORT double screenHeight();

/// The device pixel ratio of the main screen; 1 without a screen. First read on the GUI thread, then any thread.
TQFOUNDATION_EXPORT double screenScale();

/// Whether the user's storefront is mainland China ("CHN"). An unknown storefront deliberately counts as "CHN". Any
/// thread.
TQFOUNDATION_EXPORT bool isChn();

} // namespace TQFoundation
