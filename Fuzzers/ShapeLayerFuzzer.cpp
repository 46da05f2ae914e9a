// Layers with arbitrary animations at arbitrary media times, and timers on arbitrary grids. Animated values must stay
// between their end values, and must not change once nothing animates.

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
    const auto mediaTime = [&] { return data.ConsumeFloatingPointInRange(-1e6, 1e6); };
    ShapeLayer layer;
    std::size_t added = 0;
    while (data.remaining_bytes() > 16 && added < 8) {
        BasicAnimation animation{.keyPath = data.ConsumeBool() ? BasicAnimation::KeyPath::opacity
                                                               : BasicAnimation::KeyPath::strokeEnd,
                                 .fromValue = data.ConsumeProbability<double>(),
                                 .toValue = data.ConsumeProbability<double>(),
                                 .duration = data.ConsumeFloatingPointInRange(1e-9, 1e6)};
        if (data.ConsumeBool())
            animation.beginTime = mediaTime();
        if (data.ConsumeBool())
            animation.key = data.ConsumeBool() ? "one" : "two";
        layer.addAnimation(animation, mediaTime());
        ++added;
    }
    require(layer.animations().size() <= added);
    constexpr double tolerance = 1e-9;
    double now = mediaTime();
    for (int step = 0; step < 64; ++step) {
        const Presentation presented = layer.presentation(now);
        require(presented.opacity >= -tolerance && presented.opacity <= 1 + tolerance);
        require(presented.strokeEnd >= -tolerance && presented.strokeEnd <= 1 + tolerance);
        if (!layer.isAnimating(now)) {
            require(presented == layer.model && layer.presentation(now + 1e6) == layer.model);
            break;
        }
        now += data.ConsumeFloatingPointInRange(1e-6, 1e5);
    }

    const double start = mediaTime();
    const double interval = data.ConsumeFloatingPointInRange(1e-3, 1e6);
    const double later = start + data.ConsumeFloatingPointInRange(0.0, 1e6);
    const double tick = nextTick(start, interval, later);
    require(tick > later && tick - later <= interval * (1 + 1e-6) + 1e-6);
    return 0;
}
