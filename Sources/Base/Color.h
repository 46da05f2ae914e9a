#pragma once

#include "TQFoundation/tqfoundation_export.h"

#include <cmath>

class QDebug;

namespace TQFoundation {

/// The appearance of the user interface: dark text on a light background, or light text on a dark one.
enum class Appearance { light, dark };

/// One sRGB colour of four single-precision components, each from 0 to 1, not premultiplied. Opaque black by default.
struct Rgba
{
    float red = 0; ///< From 0 to 1.
    float green = 0; ///< From 0 to 1.
    float blue = 0; ///< From 0 to 1.
    float alpha = 1; ///< From 0 (transparent) to 1 (opaque).

    /// Whether all components are equal as numbers; a NaN is equal to nothing.
    friend constexpr bool operator==(const Rgba &, const Rgba &) = default;
};

/// The relative luminance of \a color as WCAG 2.1 defines it, from 0 (black) to 1 (white). Ignores alpha.
inline double luminance(const Rgba &color) noexcept
{
    const auto linear = [](double component) {
        return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

/// The contrast ratio of two opaque colours as WCAG 2.1 defines it, from 1 (equal) to 21 (black and white). The order
/// of the arguments does not matter. WCAG requires 4.5 between text and background.
inline double contrast(const Rgba &one, const Rgba &other) noexcept
{
    const double brighter = std::fmax(luminance(one), luminance(other));
    const double darker = std::fmin(luminance(one), luminance(other));
    return (brighter + 0.05) / (darker + 0.05);
}

/// \a color laid over the opaque \a background (source-over compositing). The result is opaque.
inline Rgba composited(const Rgba &color, const Rgba &background) noexcept
{
    return {std::lerp(background.red, color.red, color.alpha), std::lerp(background.green, color.green, color.alpha),
            std::lerp(background.blue, color.blue, color.alpha)};
}

/// Black or white, whichever has more contrast with the opaque \a background: always at least 4.5.
inline Rgba blackOrWhiteOn(const Rgba &background) noexcept
{
    constexpr Rgba black{0, 0, 0};
    constexpr Rgba white{1, 1, 1};
    return contrast(black, background) > contrast(white, background) ? black : white;
}

/// \a color mixed with as little black or white as needed for a contrast of at least 4.5 with the opaque
/// \a background; unchanged if it already has that. A translucent colour is composited first, so the result is opaque.
inline Rgba legibleOn(const Rgba &color, const Rgba &background) noexcept
{
    constexpr double minimum = 4.55; // 4.5, and a margin for rounding to 8 bits
    const Rgba opaque = composited(color, background);
    if (contrast(opaque, background) >= minimum)
        return opaque;
    // Bisection over the share of black or white.
    Rgba end = blackOrWhiteOn(background);
    float low = 0;
    float high = 1;
    for (int step = 0; step < 16; ++step) {
        end.alpha = (low + high) / 2;
        (contrast(composited(end, opaque), background) >= minimum ? high : low) = end.alpha;
    }
    end.alpha = high;
    return composited(end, opaque);
}

/// A colour of the catalogue or of a host: either one sRGB value, or a pair that follows light and dark appearance.
///
/// A plain value. Components keep their single precision until they are painted, because QColor rounds them to 16 bits.
/// Nothing is clamped: the caller avoids components outside 0 to 1. Any thread.
class Color
{
public:
    /// Transparent black.
    constexpr Color() noexcept : Color(Rgba{0, 0, 0, 0}) {}

    /// The same colour in both appearances.
    constexpr Color(Rgba rgba) noexcept : Color(rgba, rgba) {}

    /// A dynamic colour: \a light in light appearance, \a dark in dark appearance.
    constexpr Color(Rgba light, Rgba dark) noexcept : m_light(light), m_dark(dark) {}

    /// The colour of body text.
    static constexpr Color label() noexcept { return {{0, 0, 0}, {1, 1, 1}}; }
    /// The system's standard accent blue.
    static constexpr Color systemBlue() noexcept { return {bytes(0, 122, 255), bytes(10, 132, 255)}; }
    /// The system's neutral grey; the same in both appearances.
    static constexpr Color systemGray() noexcept { return {bytes(142, 142, 147), bytes(142, 142, 147)}; }
    /// The system's standard red.
    static constexpr Color systemRed() noexcept { return {bytes(255, 59, 48), bytes(255, 69, 58)}; }

    /// The value to paint in \a appearance.
    constexpr Rgba resolved(Appearance appearance) const noexcept
    {
        return appearance == Appearance::dark ? m_dark : m_light;
    }

    /// Black or white, whichever has more contrast with this colour as a background: at least 4.5 if it is opaque. A
    /// translucent one is composited over white in light appearance and over black in dark.
    Rgba textColor(Appearance appearance) const noexcept
    {
        constexpr Rgba black{0, 0, 0};
        constexpr Rgba white{1, 1, 1};
        return blackOrWhiteOn(composited(resolved(appearance), appearance == Appearance::dark ? black : white));
    }

    /// Whether the values for light and dark appearance differ.
    constexpr bool isDynamic() const noexcept { return m_light != m_dark; }

    /// Whether both colours are equal in light and in dark appearance.
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
/// Writes "Color(Rgba(…))", or "Color(Rgba(…), Rgba(…))", light and dark, for a dynamic colour.
TQFOUNDATION_EXPORT QDebug operator<<(QDebug debug, const Color &color);

} // namespace TQFoundation
