#include "TickGrid.h"

#include <algorithm>
#include <cmath>

namespace TQFoundation {

double nextTick(double start, double interval, double now) noexcept
{
    const auto tick = [=](double count) { return start + count * interval; };
    const double passed = std::max(0.0, std::floor((now - start) / interval));
    // The division may round up to a tick that is still ahead, or down to the one before now.
    if (passed >= 1 && tick(passed) > now)
        return tick(passed);
    return tick(passed + 1) > now ? tick(passed + 1) : tick(passed + 2);
}

} // namespace TQFoundation
