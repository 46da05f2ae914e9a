#include "StrokeMask.h"

#include "StrokeReference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace TQFoundation {
namespace {

using Testing::Coverage;

StrokeMask maskOf(const Path &path, double scale, double lineWidth = 2)
{
    StrokeGeometry stroke = strokeGeometry(path, lineWidth);
    for (StrokePart &part : stroke.parts) {
        for (Point &corner : part.corners)
            corner = {corner.x * scale, corner.y * scale};
    }
    return {std::move(stroke), scale};
}

constexpr StrokeMask::Colors grays = [] {
    StrokeMask::Colors colors{};
    for (std::size_t covered = 0; covered < colors.size(); ++covered)
        colors[covered] = static_cast<std::uint32_t>((255 * covered + 32) / StrokeMask::samples);
    return colors;
}();

Coverage imageOf(const StrokeMask &mask, int width, int height)
{
    Coverage image{width, height, std::vector<std::uint8_t>(static_cast<std::size_t>(width * height))};
    for (const auto &[place, tile] : mask.tiles()) {
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(tile.width * tile.height));
        mask.paint(tile, grays, pixels.data(), tile.width);
        for (int y = std::max(0, -tile.top); y < std::min(tile.height, height - tile.top); ++y) {
            for (int x = std::max(0, -tile.left); x < std::min(tile.width, width - tile.left); ++x) {
                image.pixels[static_cast<std::size_t>((tile.top + y) * width + tile.left + x)] =
                    static_cast<std::uint8_t>(pixels[static_cast<std::size_t>(y * tile.width + x)]);
            }
        }
    }
    return image;
}

Coverage drawn(const Path &path, double share, double scale, int width, int height)
{
    StrokeMask mask = maskOf(path, scale);
    mask.drawUpTo(share * strokeGeometry(path, 2).length);
    return imageOf(mask, width, height);
}

TEST(StrokeMask, CoverageIsCoveredAreaOfEachPixel)
{
    // From (2.25, 3.5) to (6.75, 5.5): a quarter of the first column, half of the first and last row.
    const Path path{{2.25, 4.5}, {CubicCurve{{2.25, 4.5}, {6.75, 4.5}, {6.75, 4.5}}}};
    const Coverage shown = drawn(path, 1, 1, 10, 10);
    const std::array expectedColumns{0.0, 0.0, 0.75, 1.0, 1.0, 1.0, 0.75, 0.0, 0.0, 0.0};
    const std::array expectedRows{0.0, 0.0, 0.0, 0.5, 1.0, 0.5, 0.0, 0.0, 0.0, 0.0};
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 10; ++x) {
            const double expected =
                expectedColumns[static_cast<std::size_t>(x)] * expectedRows[static_cast<std::size_t>(y)];
            EXPECT_NEAR(shown.at(x, y) / 255.0, expected, 0.05) << x << ',' << y;
        }
    }
}

TEST(StrokeMask, CrossingHasSameCoverageAsLine)
{
    const Path path{{10, 10},
                    {{{10, 10}, {40, 40}, {40, 40}}, {{40, 40}, {40, 10}, {40, 10}}, {{40, 10}, {10, 40}, {10, 40}}}};
    const Coverage shown = drawn(path, 1, 2, 100, 100);
    EXPECT_EQ(shown.at(50, 50), 255);
    EXPECT_EQ(std::ranges::max(shown.pixels), 255);
    StrokeMask mask = maskOf(path, 2);
    mask.drawUpTo(1e9);
    StrokeMask::Colors colors{};
    colors[StrokeMask::samples] = 7;
    for (const auto &[place, tile] : mask.tiles()) {
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(tile.width * tile.height));
        mask.paint(tile, colors, pixels.data(), tile.width);
        for (const std::uint32_t pixel : pixels)
            EXPECT_TRUE(pixel == 0 || pixel == 7) << "coverage never exceeds 100 %";
    }
}

TEST(StrokeMask, HasNoSeamsBetweenParts)
{
    std::mt19937_64 random(3);
    for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
        for (int round = 0; round < 10; ++round) {
            const Path path = Testing::randomPath(random);
            const StrokeGeometry stroke = strokeGeometry(path, 2);
            const auto width = static_cast<int>(390 * scale);
            const auto height = static_cast<int>(844 * scale);
            const Coverage shown = drawn(path, 1, scale, width, height);
            // Pixels at the ends of parts lie entirely inside the line.
            for (const StrokePart &part : stroke.parts) {
                const Point end = part.end();
                const auto x = static_cast<int>(std::floor(end.x * scale));
                const auto y = static_cast<int>(std::floor(end.y * scale));
                if (!part.seams[1] || x < 0 || y < 0 || x >= width || y >= height || scale < 1.5)
                    continue;
                EXPECT_EQ(shown.at(x, y), 255) << "at scale " << scale << " in " << x << ',' << y;
            }
        }
    }
}

TEST(StrokeMask, StepSizeDoesNotChangeTheImage)
{
    std::mt19937_64 random(4);
    for (int round = 0; round < 10; ++round) {
        const Path path = Testing::randomPath(random);
        const double length = strokeGeometry(path, 2).length;
        StrokeMask mask = maskOf(path, 2);
        for (double end = 0; end < length; end += std::uniform_real_distribution<double>(0.01, 30)(random))
            mask.drawUpTo(end);
        mask.drawUpTo(length);
        StrokeMask byParts = maskOf(path, 2);
        for (const StrokePart &part : strokeGeometry(path, 2).parts)
            byParts.drawUpTo(part.to);
        const std::vector<std::uint8_t> atOnce = drawn(path, 1, 2, 780, 1688).pixels;
        EXPECT_EQ(imageOf(mask, 780, 1688).pixels, atOnce);
        EXPECT_EQ(imageOf(byParts, 780, 1688).pixels, atOnce);
    }
}

TEST(StrokeMask, DrawingLessThanBeforeChangesNothing)
{
    std::mt19937_64 random(5);
    StrokeMask mask = maskOf(Testing::randomPath(random), 1);
    mask.drawUpTo(300);
    for (auto &[place, tile] : mask.tiles())
        tile.isChanged = false;
    mask.drawUpTo(200);
    mask.drawUpTo(300);
    EXPECT_EQ(mask.drawnLength(), 300);
    for (const auto &[place, tile] : mask.tiles())
        EXPECT_FALSE(tile.isChanged);
}

TEST(StrokeMask, MarksOnlyGrowingTilesAsChanged)
{
    const Path path{{8, 8}, {CubicCurve{{8, 8}, {300, 8}, {300, 8}}}};
    StrokeMask mask = maskOf(path, 3);
    mask.drawUpTo(100);
    for (auto &[place, tile] : mask.tiles())
        tile.isChanged = false;
    mask.drawUpTo(102);
    for (const auto &[place, tile] : mask.tiles())
        EXPECT_EQ(tile.isChanged, tile.x == (8 + 101) / StrokeMask::tilePoints) << tile.x;
}

TEST(StrokeMask, TilesAreAlignedAndDoNotOverlap)
{
    std::mt19937_64 random(6);
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 2.75, 3.0}) {
        StrokeMask mask = maskOf(Testing::randomPath(random), scale);
        mask.drawUpTo(1e9);
        for (const auto &[place, tile] : mask.tiles()) {
            const auto pixel = [&](int tiles) {
                return static_cast<int>(std::lround(tiles * StrokeMask::tilePoints * scale));
            };
            EXPECT_EQ(tile.left, pixel(tile.x));
            EXPECT_EQ(tile.left + tile.width, pixel(tile.x + 1));
            EXPECT_EQ(tile.top, pixel(tile.y));
            EXPECT_EQ(tile.top + tile.height, pixel(tile.y + 1));
        }
    }
}

TEST(StrokeMask, MemoryIsProportionalToLineLength)
{
    std::mt19937_64 random(7);
    for (int round = 0; round < 20; ++round) {
        const Path path = Testing::randomPath(random);
        StrokeMask mask = maskOf(path, 3);
        mask.drawUpTo(1e9);
        std::size_t pixels = 0;
        for (const auto &[place, tile] : mask.tiles()) {
            pixels +=
                64 * static_cast<std::size_t>(std::ranges::count_if(tile.blocks, [](int block) { return block >= 0; }));
        }
        EXPECT_LE(static_cast<double>(pixels), 22 * 3 * strokeGeometry(path, 2).length);
    }
}

TEST(StrokeMask, IgnoresPartsFarOffScreen)
{
    const Path path{{-1e6, -1e6}, {{{1e6, 0}, {0, 1e6}, {1e6, 1e6}}, {{2e6, 0}, {1e6, -1e6}, {390, 400}}}, true};
    StrokeMask mask = maskOf(path, 3);
    mask.drawUpTo(1e12);
    EXPECT_LE(mask.tiles().size(), 4 * 2 * 2 * 16384U / 48);
    StrokeMask beyond = maskOf({{40'000, 0}, {CubicCurve{{50'000, 0}, {50'000, 9000}, {40'000, 9000}}}, true}, 1);
    beyond.drawUpTo(1e12);
    EXPECT_TRUE(beyond.tiles().empty());
}

/// Compares the mask with a stroke drawn by Cairo, at one scale.
class StrokeMaskAtScales : public testing::TestWithParam<double>
{};

TEST_P(StrokeMaskAtScales, NoPixelIsFarOffCairo)
{
    const double scale = GetParam();
    const auto width = static_cast<int>(390 * scale);
    const auto height = static_cast<int>(844 * scale);
    std::mt19937_64 random(8);
    for (int round = 0; round < Testing::pathsAt(scale); ++round) {
        const Path path = Testing::randomPath(random);
        const StrokeGeometry stroke = strokeGeometry(path, 2);
        StrokeMask mask = maskOf(path, scale);
        for (const double share : {0.06, 0.3, 0.55, 0.9, 1.0}) {
            mask.drawUpTo(share * stroke.length);
            const Coverage shown = imageOf(mask, width, height);
            EXPECT_EQ(Testing::differences(path, share, scale, width, height,
                                           [&](int x, int y) { return 0.2 * shown.at(x, y); }),
                      "")
                << "path " << round << " drawn to " << share;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(StrokeMask, StrokeMaskAtScales, testing::Values(1, 1.25, 1.5, 2, 3),
                         [](const auto &scale) { return std::to_string(std::lround(100 * scale.param)) + "Percent"; });

// Each tile and block costs time on every frame.
TEST(StrokeMask, HasNoMoreThanItNeeds)
{
    std::mt19937_64 random(12);
    std::size_t tiles = 0;
    std::ptrdiff_t blocks = 0;
    for (int round = 0; round < 20; ++round) {
        StrokeMask mask = maskOf(Testing::randomPath(random), 2);
        mask.drawUpTo(1e9);
        tiles += mask.tiles().size();
        for (const auto &[place, tile] : mask.tiles())
            blocks += std::ranges::count_if(tile.blocks, [](std::int32_t block) { return block >= 0; });
    }
    EXPECT_NEAR(static_cast<double>(tiles), 2814, 10);
    EXPECT_NEAR(static_cast<double>(blocks), 15'046, 50);
}

} // namespace
} // namespace TQFoundation
