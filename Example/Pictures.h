#pragma once

#include "Options.h"

class QQuickWindow;

/// Takes pictures of the example's screens with a PicturePlatform installed. GUI thread.
namespace Pictures {

/// Writes the pictures that \a options ask for to the folder `options.shots`, which is made if it is missing, and
/// prints the path of each. `screens` are "guide" (for an app that has one), "home", "more" and "sheet"; with
/// `backgroundOnly` they are moments of the background's cycle. False, after a message on stderr, if a picture cannot
/// be written or a sheet cannot be shown.
bool take(QQuickWindow *window, const Options &options);

} // namespace Pictures
