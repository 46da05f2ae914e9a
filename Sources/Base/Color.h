#pragma once

#include "TQFoundation/tqfoundation_export.h"

#include <cmath>

class QDebug;

namespace TQFoundation {

/// How the system paints its windows: dark text on light ground, or light text on dark ground.
enum class Appearance { light, dark };

/// One sRGB colour of four single-precision components, each from 0 to 1, not premultiplied. Opaque black by default.
struct Rgba
{
    float red = 0; ///< From 0 to 1.
    float green = 0; ///< From 0 to 1.
    float blue = 0; ///< From 0 to 1.
    float alpha = 1; ///< From 0 for clear to 1 for opaque.

    /// Whether all components are equal as numbers; one that is not a number equals none.
    friend constexpr bool operator==(const Rgba &, const Rgba &) = default;
};

/// How bright a colour is, from 0 for black to 1 for white; its opacity does not count. The relative luminance of WCAG
/// 2.1.
inline double luminance(const Rgba &color) noexcept
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

/// How far apart two opaque colours are for the eye, from 1 to 21. The contrast ratio of WCAG 2.1, which asks for 4.5
/// between a text and its ground.
inline double contrast(const Rgba &one, const Rgba &other) noexcept
{
    const double brighter = std::fmax(luminance(one), luminance(other));
    const double darker = std::fmin(luminance(one), luminance(other));
    return (brighter + 0.05) / (darker + 0.05);
}

/// \a color as it can be read on an opaque \a ground, at 4.5 in contrast or more: the colour itself where it can, else
/// mixed with as much black or white as that takes. A translucent one is laid over the ground first.
inline Rgba legibleOn(const Rgba &color, const Rgba &ground) noexcept
{
    constexpr double enough = 4.55; // room for rounding when it is painted
    const auto mixed = [](const Rgba &from, const Rgba &to, float share) {
        return Rgba{std::lerp(from.red, to.red, share), std::lerp(from.green, to.green, share),
                    std::lerp(from.blue, to.blue, share)};
    };
    const Rgba seen = mixed(ground, color, color.alpha);
    if (contrast(seen, ground) >= enough)
        return seen;
    constexpr Rgba black{0, 0, 0};
    constexpr Rgba white{1, 1, 1};
    const Rgba &end = contrast(black, ground) > contrast(white, ground) ? black : white;
    // Between a share of the end that does not do and one that does.
    float low = 0;
    float high = 1;
    for (int halving = 0; halving < 16; ++halving) {
        const float middle = (low + high) / 2;
        (contrast(mixed(seen, end, middle), ground) >= enough ? high : low) = middle;
    }
    return mixed(seen, end, high);
}

/// A colour of the catalogue or of a host: either one sRGB value, or a pair that follows light and dark appearance.
///
/// A plain value. The components are kept bit for bit until something is painted, because a toolkit's own colour type
/// rounds them to 16 bits. Nothing is clamped: a component outside 0 to 1 is the caller's to avoid.
class Color
{
public:
    /// No colour: grey level 0, alpha 0.
    constexpr Color() noexcept : Color(Rgba{0, 0, 0, 0}) {}

    /// The same colour in both appearances.
    constexpr Color(Rgba rgba) noexcept : Color(rgba, rgba) {}

    /// A dynamic colour, \a light in light appearance and \a dark in dark appearance.
    constexpr Color(Rgba light, Rgba dark) noexcept : m_light(light), m_dark(dark) {}

    /// The colour of body text.
    static constexpr Color label() noexcept { return {{0, 0, 0}, {1, 1, 1}}; }
    /// The system's standard accent blue.
    static constexpr Color systemBlue() noexcept { return {bytes(0, 122, 255), bytes(10, 132, 255)}; }
    /// The system's neutral grey, the same in both appearances.
    static constexpr Color systemGray() noexcept { return {bytes(142, 142, 147), bytes(142, 142, 147)}; }
    /// The system's standard red.
    static constexpr Color systemRed() noexcept { return {bytes(255, 59, 48), bytes(255, 69, 58)}; }

    /// The value that is painted in \a appearance.
    constexpr Rgba resolved(Appearance appearance) const noexcept
    {
        return appearance == Appearance::dark ? m_dark : m_light;
    }

    /// Black or white, whichever is easier to read on the colour: at least 4.5 in contrast on an opaque one. What
    /// shines through a translucent one is taken for white in light appearance and black in dark.
    Rgba textColor(Appearance appearance) const noexcept
    {
        const Rgba ground = resolved(appearance);
        const float below = (1 - ground.alpha) * (appearance == Appearance::dark ? 0.0F : 1.0F);
        const Rgba seen{ground.red * ground.alpha + below, ground.green * ground.alpha + below,
                        ground.blue * ground.alpha + below};
        constexpr Rgba black{0, 0, 0};
        constexpr Rgba white{1, 1, 1};
        return contrast(black, seen) > contrast(white, seen) ? black : white;
    }

    /// Whether light and dark appearance differ.
    constexpr bool isDynamic() const noexcept { return m_light != m_dark; }

    /// Whether the colours are equal in light and in dark appearance.
    friend constexpr bool operator==(const Color &, const Color &) = default;

private:
    static constexpr Rgba bytes(int red, int green, int blue) noexcept
    {
        return {static_cast<float>(red) / 255.0F, static_cast<float>(green) / 255.0F,
                static_cast<float>(blue) / 255.0F};
    }

    Rgba m_light;
    Rgba m_dark;
};

/// Writes "light" or "dark".
TQFOUNDATION_EXPORT QDebug operator<<(QDebug debug, Appearance appearance);
/// Writes "Rgba(1, 0.4, 0.5, 1)".
TQFOUNDATION_EXPORT QDebug operator<<(QDebug debug, const Rgba &rgba);
/// Writes "Color(Rgba(…))", and of a dynamic colour light and dark: "Color(Rgba(…), Rgba(…))".
TQFOUNDATION_EXPORT QDebug operator<<(QDebug debug, const Color &color);

} // namespace TQFoundation
