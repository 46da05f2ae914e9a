#include <TQFoundation/Color.h>
#include <TQFoundation/TQApp.h>

#include <QtGui/qrgb.h>

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace TQFoundation {
namespace {

TEST(Color, KeepsComponentsBitForBit)
{
    constexpr Rgba rgba{0.5803922F, 0.09019608F, 0.3176471F, 0.25F};
    EXPECT_EQ(Color(rgba).resolved(Appearance::light), rgba);
    EXPECT_EQ(Color(rgba).resolved(Appearance::dark), rgba);
}

TEST(Color, ComponentsAreOpaqueBlackByDefault)
{
    EXPECT_EQ(Rgba(), (Rgba{0, 0, 0, 1}));
}

TEST(Color, OfOneValueIsNotDynamic)
{
    EXPECT_FALSE(Color(Rgba{1, 0, 0}).isDynamic());
    EXPECT_FALSE(Color(Rgba{1, 0, 0}, Rgba{1, 0, 0}).isDynamic());
}

TEST(Color, OfTwoValuesFollowsTheAppearance)
{
    constexpr Color color(Rgba{1, 0, 0}, Rgba{0, 1, 0});
    EXPECT_TRUE(color.isDynamic());
    EXPECT_EQ(color.resolved(Appearance::light), (Rgba{1, 0, 0}));
    EXPECT_EQ(color.resolved(Appearance::dark), (Rgba{0, 1, 0}));
}

TEST(Color, IsTransparentByDefault)
{
    EXPECT_EQ(Color().resolved(Appearance::light), (Rgba{0, 0, 0, 0}));
    EXPECT_EQ(Color(), Color(Rgba{0, 0, 0, 0}));
}

TEST(Color, LabelIsBlackInLightAndWhiteInDark)
{
    EXPECT_EQ(Color::label().resolved(Appearance::light), (Rgba{0, 0, 0}));
    EXPECT_EQ(Color::label().resolved(Appearance::dark), (Rgba{1, 1, 1}));
}

TEST(Color, HasTheUsualSystemColors)
{
    struct Expected
    {
        Color color;
        QRgb light;
        QRgb dark;
    };
    for (const auto &[color, light, dark] : {Expected{Color::systemBlue(), qRgb(0, 122, 255), qRgb(10, 132, 255)},
                                             Expected{Color::systemGray(), qRgb(142, 142, 147), qRgb(142, 142, 147)},
                                             Expected{Color::systemRed(), qRgb(255, 59, 48), qRgb(255, 69, 58)}}) {
        for (const auto &[appearance, expected] : {std::pair(Appearance::light, light), {Appearance::dark, dark}}) {
            const Rgba rgba = color.resolved(appearance);
            EXPECT_FLOAT_EQ(rgba.red * 255, static_cast<float>(qRed(expected)));
            EXPECT_FLOAT_EQ(rgba.green * 255, static_cast<float>(qGreen(expected)));
            EXPECT_FLOAT_EQ(rgba.blue * 255, static_cast<float>(qBlue(expected)));
            EXPECT_EQ(rgba.alpha, 1);
        }
    }
}

TEST(LegibleOn, MakesEveryTintLegible)
{
    for (const TQApp app : TQApp::allCases()) {
        for (const auto &[appearance, backgrounds] :
             {std::pair(Appearance::light, std::array{Rgba{1, 1, 1}, Rgba{0.99F, 0.93F, 0.92F}}),
              std::pair(Appearance::dark, std::array{Rgba{0.11F, 0.11F, 0.12F}, Rgba{0.23F, 0.14F, 0.15F}})}) {
            for (const Rgba &background : backgrounds)
                EXPECT_GE(contrast(legibleOn(app.tintColor().resolved(appearance), background), background), 4.5);
        }
    }
}

TEST(LegibleOn, KeepsLegibleColors)
{
    constexpr Rgba blue{0, 0, 0.5F};
    EXPECT_EQ(legibleOn(blue, {1, 1, 1}), blue);
}

TEST(LegibleOn, ChangesColorsAsLittleAsNeeded)
{
    for (int red = 0; red <= 8; ++red) {
        for (int green = 0; green <= 8; ++green) {
            for (int background = 0; background <= 8; ++background) {
                const auto component = [](int eighths) { return static_cast<float>(eighths) / 8; };
                const Rgba opaque{component(background), component(background), component(background)};
                const Rgba color{component(red), component(green), 0.5F};
                const Rgba legible = legibleOn(color, opaque);
                EXPECT_GE(contrast(legible, opaque), 4.5);
                EXPECT_TRUE(legible == color || contrast(legible, opaque) < 4.56);
                EXPECT_EQ(legibleOn(legible, opaque), legible);
            }
        }
    }
}

TEST(LegibleOn, CompositesTranslucentColors)
{
    constexpr Rgba white{1, 1, 1};
    EXPECT_GE(contrast(legibleOn({0, 0, 0, 0}, white), white), 4.5);
    EXPECT_EQ(legibleOn({0, 0, 0, 0.9F}, white).alpha, 1);
}

TEST(Contrast, IsLargestForBlackAndWhite)
{
    EXPECT_DOUBLE_EQ(luminance(Rgba{0, 0, 0}), 0);
    EXPECT_NEAR(luminance(Rgba{1, 1, 1}), 1, 1e-12);
    EXPECT_NEAR(contrast(Rgba{0, 0, 0}, Rgba{1, 1, 1}), 21, 1e-9);
    EXPECT_NEAR(contrast(Rgba{1, 1, 1}, Rgba{0, 0, 0}), 21, 1e-9);
    EXPECT_DOUBLE_EQ(contrast(Rgba{1, 0, 0}, Rgba{1, 0, 0}), 1);
}

TEST(Contrast, MatchesTheGuidelines)
{
    // The lightest grey that is legible on white.
    const float grey = 0x76 / 255.0F;
    EXPECT_NEAR(contrast(Rgba{grey, grey, grey}, Rgba{1, 1, 1}), 4.54, 0.005);
    EXPECT_NEAR(contrast(Rgba{1, 0, 0}, Rgba{1, 1, 1}), 3.998, 0.001);
}

TEST(Color, HasLegibleTextColorIfOpaque)
{
    for (int red = 0; red <= 15; ++red) {
        for (int green = 0; green <= 15; ++green) {
            for (int blue = 0; blue <= 15; ++blue) {
                const Rgba background{static_cast<float>(red) / 15, static_cast<float>(green) / 15,
                                      static_cast<float>(blue) / 15};
                const Rgba text = Color(background).textColor(Appearance::light);
                EXPECT_TRUE(text == (Rgba{0, 0, 0}) || text == (Rgba{1, 1, 1}));
                EXPECT_GE(contrast(text, background), 4.5);
            }
        }
    }
}

TEST(Color, CompositesTranslucentColorsForText)
{
    constexpr Color clear(Rgba{0, 0, 0, 0});
    EXPECT_EQ(clear.textColor(Appearance::light), (Rgba{0, 0, 0}));
    EXPECT_EQ(clear.textColor(Appearance::dark), (Rgba{1, 1, 1}));
    // Greys next to the one on which black and white are equally legible.
    EXPECT_EQ(Color(Rgba{0, 0, 0, 0.53F}).textColor(Appearance::light), (Rgba{0, 0, 0}));
    EXPECT_EQ(Color(Rgba{0, 0, 0, 0.55F}).textColor(Appearance::light), (Rgba{1, 1, 1}));
    EXPECT_EQ(Color(Rgba{1, 1, 1, 0.47F}).textColor(Appearance::dark), (Rgba{0, 0, 0}));
    EXPECT_EQ(Color(Rgba{1, 1, 1, 0.45F}).textColor(Appearance::dark), (Rgba{1, 1, 1}));
}

} // namespace
} // namespace TQFoundation
