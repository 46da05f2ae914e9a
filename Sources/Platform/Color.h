#pragma once

namespace TQFoundation {

/// How the system paints its windows: dark text on light ground, or light text on dark ground.
enum class Appearance { light, dark };

/// One sRGB colour of four single-precision components, each from 0 to 1, not premultiplied. Opaque black by default.
struct Rgba
{
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 1;

    friend constexpr bool operator==(const Rgba &, const Rgba &) = default;
};

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

    constexpr Rgba resolved(Appearance appearance) const noexcept
    {
        return appearance == Appearance::dark ? m_dark : m_light;
    }

    /// Whether light and dark appearance differ.
    constexpr bool isDynamic() const noexcept { return m_light != m_dark; }

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

} // namespace TQFoundation
