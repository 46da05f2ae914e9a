#include "TickGrid.h"

#include <algorithm>
#include <cmath>

namespace TQFoundation {

double nextTick(double start, double interval, double now) noexcept
{
    const double passed = std::max(0.0, std::floor((now - start) / interval));
    const double next = start + (passed + 1) * interval;
    // The division may round up to a multiple that is still ahead, or down to one that is not later than now.
    if (next - interval > now && passed >= 1)
        return next - interval;
    return next > now ? next : next + interval;
}

} // namespace TQFoundation
