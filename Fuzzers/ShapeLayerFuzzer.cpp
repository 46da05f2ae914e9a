// Layers with arbitrary animations at arbitrary moments, and ticks on arbitrary grids. Numbers stay between those that
// they go between, and nothing changes before the next change.

#include "Require.h"
#include "ShapeLayer.h"
#include "TickGrid.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>

using namespace TQFoundation;
using Fuzzing::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const auto moment = [&] { return data.ConsumeFloatingPointInRange(-1e6, 1e6); };
    ShapeLayer layer;
    std::size_t most = 0;
    while (data.remaining_bytes() > 16 && most < 8) {
        BasicAnimation animation{.keyPath = data.ConsumeBool() ? BasicAnimation::KeyPath::opacity
                                                               : BasicAnimation::KeyPath::strokeEnd,
                                 .fromValue = data.ConsumeProbability<double>(),
                                 .toValue = data.ConsumeProbability<double>(),
                                 .duration = data.ConsumeFloatingPointInRange(1e-9, 1e6)};
        if (data.ConsumeBool())
            animation.beginTime = moment();
        if (data.ConsumeBool())
            animation.key = data.ConsumeBool() ? "one" : "two";
        layer.addAnimation(animation, moment());
        ++most;
    }
    require(layer.animations().size() <= most);
    constexpr double slack = 1e-9;
    double now = moment();
    for (int step = 0; step < 64; ++step) {
        const Presentation presented = layer.presentation(now);
        require(presented.opacity >= -slack && presented.opacity <= 1 + slack);
        require(presented.strokeEnd >= -slack && presented.strokeEnd <= 1 + slack);
        if (!layer.isAnimating(now)) {
            require(presented == layer.model && layer.presentation(now + 1e6) == layer.model);
            break;
        }
        now += data.ConsumeFloatingPointInRange(1e-6, 1e5);
    }

    const double made = moment();
    const double interval = data.ConsumeFloatingPointInRange(1e-3, 1e6);
    const double later = made + data.ConsumeFloatingPointInRange(0.0, 1e6);
    const double tick = nextTick(made, interval, later);
    require(tick > later && tick - later <= interval * (1 + 1e-6) + 1e-6);
    return 0;
}
