#include "Platform.h"

#include "AppearanceNotifier.h"

#include <QtCore/qdebug.h>

#include <utility>

namespace TQFoundation {
namespace {

std::unique_ptr<Platform> &installed()
{
    // Never destroyed: a render thread may still ask for the time while the process ends.
    static auto &current = *new std::unique_ptr<Platform>(makeDefaultPlatform());
    return current;
}

} // namespace

RepeatingTimer::~RepeatingTimer() = default;

Platform::~Platform() = default;

Platform &platform()
{
    return *installed();
}

std::unique_ptr<Platform> installPlatform(std::unique_ptr<Platform> next)
{
    return std::exchange(installed(), next ? std::move(next) : makeDefaultPlatform());
}

void appearanceChanged()
{
    Q_EMIT AppearanceNotifier::instance().changed();
}

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
