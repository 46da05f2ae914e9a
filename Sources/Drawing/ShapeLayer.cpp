#include "ShapeLayer.h"

#include <algorithm>
#include <utility>

namespace TQFoundation {
namespace {

// One rule for both questions, so that the last frame shows the model.
bool hasEnded(const BasicAnimation &animation, double now)
{
    return now - *animation.beginTime >= animation.duration;
}

} // namespace

void ShapeLayer::addAnimation(BasicAnimation animation, double now)
{
    if (!animation.beginTime)
        animation.beginTime = now;
    if (!animation.key.empty())
        std::erase_if(m_animations, [&](const BasicAnimation &earlier) { return earlier.key == animation.key; });
    m_animations.push_back(std::move(animation));
}

Presentation ShapeLayer::presentation(double now) const
{
    Presentation presented = model;
    for (const BasicAnimation &animation : m_animations) {
        if (now < *animation.beginTime || hasEnded(animation, now))
            continue;
        const double progress = (now - *animation.beginTime) / animation.duration;
        double &number =
            animation.keyPath == BasicAnimation::KeyPath::opacity ? presented.opacity : presented.strokeEnd;
        number = animation.fromValue + (animation.toValue - animation.fromValue) * progress;
    }
    return presented;
}

bool ShapeLayer::isAnimating(double now) const
{
    return std::ranges::any_of(m_animations,
                               [now](const BasicAnimation &animation) { return !hasEnded(animation, now); });
}

} // namespace TQFoundation
