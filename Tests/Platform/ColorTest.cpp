#include <TQFoundation/Color.h>

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

TEST(Color, KeepsItsComponentsToTheLastBit)
{
    constexpr Rgba rgba{0.5803922F, 0.09019608F, 0.3176471F, 0.25F};
    EXPECT_EQ(Color(rgba).resolved(Appearance::light), rgba);
    EXPECT_EQ(Color(rgba).resolved(Appearance::dark), rgba);
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

TEST(Color, ByDefaultIsClear)
{
    EXPECT_EQ(Color().resolved(Appearance::light), (Rgba{0, 0, 0, 0}));
    EXPECT_EQ(Color(), Color(Rgba{0, 0, 0, 0}));
}

TEST(Color, LabelIsBlackOnLightAndWhiteOnDark)
{
    EXPECT_EQ(Color::label().resolved(Appearance::light), (Rgba{0, 0, 0}));
    EXPECT_EQ(Color::label().resolved(Appearance::dark), (Rgba{1, 1, 1}));
}

} // namespace
} // namespace TQFoundation
