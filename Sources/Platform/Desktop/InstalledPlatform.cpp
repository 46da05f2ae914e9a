#include "DesktopPlatform.h"
#include "Platform.h"

#include <utility>

namespace TQFoundation {
namespace {

std::unique_ptr<Platform> &installed()
{
    static std::unique_ptr<Platform> current = std::make_unique<DesktopPlatform>();
    return current;
}

} // namespace

Platform &platform()
{
    return *installed();
}

std::unique_ptr<Platform> installPlatform(std::unique_ptr<Platform> next)
{
    if (!next)
        next = std::make_unique<DesktopPlatform>();
    return std::exchange(installed(), std::move(next));
}

} // namespace TQFoundation
