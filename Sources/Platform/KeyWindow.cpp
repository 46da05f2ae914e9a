#include "KeyWindow.h"

#include "TQFoundation/Platform.h"

#include <QtQuick/qquickwindow.h>

#include <algorithm>

namespace TQFoundation {

QQuickWindow *keyWindow()
{
    const QList<Scene> scenes = platform().connectedScenes();
    const auto scene = std::ranges::find_if(scenes, [](const Scene &candidate) {
        return candidate.activationState == ActivationState::foregroundActive && candidate.isWindowScene;
    });
    if (scene == scenes.end())
        return nullptr;
    const auto key = std::ranges::find_if(
        scene->windows, [](const SceneWindow &candidate) { return candidate.isKey && candidate.window; });
    return key == scene->windows.end() ? nullptr : qobject_cast<QQuickWindow *>(key->window.data());
}

} // namespace TQFoundation
