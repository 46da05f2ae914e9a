#pragma once

#include <TQFoundation/Platform.h>

#include <QtGui/qwindow.h>

namespace TQFoundation::Testing {

/// Returns a window scene with \a windows, of which \a key is the key window; null if no window is key.
inline Scene scene(ActivationState state, const QList<QWindow *> &windows, const QWindow *key = nullptr)
{
    Scene made{state, true, {}};
    for (QWindow *window : windows)
        made.windows.append({window, window == key});
    return made;
}

/// Returns the scenes of an app with one active scene, in which \a window is the only window and key.
inline QList<Scene> keyScene(QWindow *window)
{
    return {scene(ActivationState::foregroundActive, {window}, window)};
}

} // namespace TQFoundation::Testing
