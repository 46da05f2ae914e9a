#pragma once

class QQuickWindow;

namespace TQFoundation {

/// The key window of the app's active window scene: of the first scene that is active in the foreground and has
/// windows, the first window that is key. Other scenes are not tried. Null where there is none, or where that window is
/// not one of Qt Quick. Main thread.
QQuickWindow *keyWindow();

} // namespace TQFoundation
