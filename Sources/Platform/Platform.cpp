#include "Platform.h"

#include <QtCore/qdebug.h>

namespace TQFoundation {

RepeatingTimer::~RepeatingTimer() = default;

Platform::~Platform() = default;

QDebug operator<<(QDebug debug, const SceneWindow &window)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "SceneWindow(" << window.window.data() << (window.isKey ? ", isKey)" : ")");
}

QDebug operator<<(QDebug debug, const Scene &scene)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "Scene(" << scene.activationState << (scene.isWindowScene ? ", isWindowScene" : "")
                           << ", " << scene.windows << ')';
}

} // namespace TQFoundation
