#pragma once

#include <TQFoundation/Platform.h>

#include <QtGui/qwindow.h>

namespace TQFoundation::Testing {

/// A scene with windows, of which at most one is key.
inline Scene scene(ActivationState state, const QList<QWindow *> &windows, const QWindow *key = nullptr)
{
    Scene made{state, true, {}};
    for (QWindow *window : windows)
        made.windows.append({window, window == key});
    return made;
}

/// The app's only scene, whose only window is key.
inline QList<Scene> keyScene(QWindow *window)
{
    return {scene(ActivationState::foregroundActive, {window}, window)};
}

} // namespace TQFoundation::Testing
