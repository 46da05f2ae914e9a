#pragma once

#include "Path.h"

#include "TQFoundation/Color.h"

#include <optional>
#include <string>
#include <vector>

namespace TQFoundation {

/// A number of a layer that goes from one value to another at an even pace, and is the layer's own again afterwards.
struct BasicAnimation
{
    /// What it animates.
    enum class KeyPath { opacity, strokeEnd };

    KeyPath keyPath = KeyPath::opacity;
    double fromValue = 0;
    double toValue = 0;
    double duration = 0; ///< Seconds, more than 0.
    std::optional<double> beginTime{}; ///< Media time in seconds; not set: when it is added.
    std::string key{}; ///< An animation replaces the earlier one of the same key; without a key it replaces none.

    friend bool operator==(const BasicAnimation &, const BasicAnimation &) = default;
};

/// What is drawn of a layer at one moment.
struct Presentation
{
    double opacity = 1; ///< From 0 to 1, on top of the colour's own alpha.
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
    Presentation model; ///< What is drawn while nothing animates.

    /// Adds \a animation at the media time \a now, which is when it begins unless it says otherwise.
    void addAnimation(BasicAnimation animation, double now);

    /// In the order in which they were added, each with its begin time.
    const std::vector<BasicAnimation> &animations() const { return m_animations; }

    /// What is drawn at the media time \a now. An animation counts from its begin time until just before its end; of
    /// several of one number, the one added last.
    Presentation presentation(double now) const;

    /// When the presentation changes next, from the media time \a now on: \a now while an animation runs, else the next
    /// begin time. Nothing once all have ended.
    std::optional<double> nextChange(double now) const;

    friend bool operator==(const ShapeLayer &, const ShapeLayer &) = default;

private:
    std::vector<BasicAnimation> m_animations;
};

} // namespace TQFoundation
