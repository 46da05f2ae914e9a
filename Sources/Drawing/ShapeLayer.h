#pragma once

#include "Path.h"

#include "TQFoundation/Color.h"

#include <optional>
#include <string>
#include <vector>

namespace TQFoundation {

/// A linear animation of one layer property; afterwards the property has its model value again.
struct BasicAnimation
{
    /// The property that it animates.
    enum class KeyPath { opacity, strokeEnd };

    KeyPath keyPath = KeyPath::opacity;
    double fromValue = 0;
    double toValue = 0;
    double duration = 0; ///< Seconds, more than 0.
    std::optional<double> beginTime{}; ///< Media time in seconds. Not set: the time at which it is added.
    std::string key{}; ///< An animation replaces the earlier one with its key; an empty key replaces none.

    friend bool operator==(const BasicAnimation &, const BasicAnimation &) = default;
};

/// The animated properties of a layer at one moment.
struct Presentation
{
    double opacity = 1; ///< From 0 to 1, multiplied with the alpha of the colour.
    double strokeEnd = 1; ///< The share of the path's length that is drawn, from 0 to 1.

    friend constexpr bool operator==(const Presentation &, const Presentation &) = default;
};

/// A line that is stroked, not filled, with mitred joins (limit 10) and butt ends, and its animations. A plain value:
/// it can be copied to another thread and evaluated there.
class ShapeLayer
{
public:
    Path path;
    double lineWidth = 1; ///< Points.
    Rgba strokeColor;
    Presentation model; ///< Drawn while nothing animates.

    /// Adds \a animation at the media time \a now, at which it begins if it has no begin time.
    void addAnimation(BasicAnimation animation, double now);

    /// In the order in which they were added, each with its begin time.
    const std::vector<BasicAnimation> &animations() const { return m_animations; }

    /// The properties at the media time \a now. An animation counts from its begin time until just before its end. If
    /// several animate one property, the one added last counts.
    Presentation presentation(double now) const;

    /// Whether an animation runs or is still to begin at the media time \a now.
    bool isAnimating(double now) const;

    friend bool operator==(const ShapeLayer &, const ShapeLayer &) = default;

private:
    std::vector<BasicAnimation> m_animations;
};

} // namespace TQFoundation
