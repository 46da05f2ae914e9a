#pragma once

class QQuickWindow;

namespace TQFoundation {

/// The first key window of the first scene of the platform that is a window scene and active in the foreground.
///
/// No other scene is tried, also if that one has no windows or none of them is key. Null if there is no such scene or
/// window, or if the window is not a QQuickWindow or was destroyed. Not owned. GUI thread.
QQuickWindow *keyWindow();

} // namespace TQFoundation
