#include "StrokeMesh.h"

#include "MeshPart.h"
#include "StrokeReference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace TQFoundation {
namespace {

/// Software rasteriser for the mesh, with the arithmetic of its shaders.
class Rasterizer
{
public:
    Rasterizer(const StrokeMesh &mesh, double end, double scale, int width, int height)
        : m_scale(scale),
          m_end(end),
          m_width(width),
          m_height(height),
          m_covered(static_cast<std::size_t>(width * height)),
          m_times(m_covered.size())
    {
        draw(mesh.band, mesh.bandIndices, [this](const auto &corners, Point place) {
            const double left = at(corners, place, [](const auto &vertex) { return vertex.left; });
            const double right = at(corners, place, [](const auto &vertex) { return vertex.right; });
            const double length = at(corners, place, [](const auto &vertex) { return vertex.length; });
            return std::max(within(left) + within(right) - 1, 0.0) * within(m_end - length);
        });
        draw(mesh.squares, mesh.squareIndices, [this](const auto &corners, Point place) {
            constexpr int samples = 64;
            int covered = 0;
            for (int k = 0; k < samples; ++k) {
                const Point sample{place.x + ((k + 0.5) / samples - 0.5) / m_scale,
                                   place.y + (std::fmod(k * 19 + 0.5, samples) / samples - 0.5) / m_scale};
                bool isCovered = false;
                for (std::size_t part = 0; part < StrokeMesh::mostParts; ++part) {
                    double least = m_end - at(corners, sample, [&](const auto &vertex) { return vertex.length[part]; });
                    const auto value = [&](std::size_t edge) {
                        return at(corners, sample, [&](const auto &vertex) { return vertex.within[part][edge]; });
                    };
                    if (value(3) > StrokeConstants::discMarker)
                        least =
                            std::min(least, value(3) - StrokeConstants::discMarker - std::hypot(value(0), value(1)));
                    else
                        least = std::min({least, value(0), value(1), value(2), value(3)});
                    isCovered = isCovered || least >= 0;
                }
                covered += isCovered;
            }
            return static_cast<double>(covered) / samples;
        });
    }

    double covered(int x, int y) const { return m_covered[index(x, y)]; }

    int timesPainted(int x, int y) const { return m_times[index(x, y)]; }

private:
    std::size_t index(int x, int y) const { return static_cast<std::size_t>(y * m_width + x); }

    double within(double distance) const { return std::clamp(distance * m_scale + 0.5, 0.0, 1.0); }

    template <typename Vertex>
    static double cross(const Vertex &a, const Vertex &b, Point place)
    {
        return (double{b.x} - a.x) * (place.y - a.y) - (double{b.y} - a.y) * (place.x - a.x);
    }

    // Interpolates a vertex attribute linearly over a triangle.
    template <typename Vertex, typename Quantity>
    static double at(const std::array<const Vertex *, 3> &corners, Point place, Quantity quantity)
    {
        const auto [a, b, c] = corners;
        const double area = cross(*a, *b, {c->x, c->y});
        return (cross(*b, *c, place) * quantity(*a) + cross(*c, *a, place) * quantity(*b)
                + cross(*a, *b, place) * quantity(*c))
            / area;
    }

    // Fill rule: a point on an edge belongs to exactly one of the two triangles.
    template <typename Vertex>
    static bool isInside(const Vertex &a, const Vertex &b, Point place)
    {
        const double side = cross(a, b, place);
        return side > 0 || (side == 0 && (b.y > a.y || (b.y == a.y && b.x < a.x)));
    }

    template <typename Vertex, typename Shader>
    void draw(const std::vector<Vertex> &vertices, const std::vector<std::uint32_t> &indices, Shader shader)
    {
        for (std::size_t first = 0; first < indices.size(); first += 3) {
            std::array<const Vertex *, 3> corners{};
            for (std::size_t k = 0; k < 3; ++k)
                corners[k] = &vertices[indices[first + k]];
            const double area = cross(*corners[0], *corners[1], {corners[2]->x, corners[2]->y});
            if (area == 0)
                continue;
            if (area < 0)
                std::swap(corners[1], corners[2]);
            const auto [a, b, c] = corners;
            const auto pixel = [&](double least, int limit) {
                return std::clamp(static_cast<int>(std::floor(least * m_scale)), 0, limit);
            };
            const int left = pixel(std::min({a->x, b->x, c->x}), m_width - 1);
            const int right = pixel(std::max({a->x, b->x, c->x}), m_width - 1);
            const int top = pixel(std::min({a->y, b->y, c->y}), m_height - 1);
            const int bottom = pixel(std::max({a->y, b->y, c->y}), m_height - 1);
            for (int y = top; y <= bottom; ++y) {
                for (int x = left; x <= right; ++x) {
                    const Point place{(x + 0.5) / m_scale, (y + 0.5) / m_scale};
                    if (!isInside(*a, *b, place) || !isInside(*b, *c, place) || !isInside(*c, *a, place))
                        continue;
                    m_covered[index(x, y)] += shader(corners, place);
                    ++m_times[index(x, y)];
                }
            }
        }
    }

    double m_scale;
    double m_end;
    int m_width;
    int m_height;
    std::vector<double> m_covered;
    std::vector<int> m_times;
};

class StrokeMeshAtScales : public testing::TestWithParam<double>
{};

TEST_P(StrokeMeshAtScales, NoPixelIsFarOffCairo)
{
    const double scale = GetParam();
    const auto width = static_cast<int>(390 * scale);
    const auto height = static_cast<int>(844 * scale);
    std::mt19937_64 random(12);
    for (int round = 0; round < Testing::pathsAt(scale); ++round) {
        const Path path = Testing::randomPath(random);
        const StrokeGeometry stroke = strokeGeometry(path, 2);
        const StrokeMesh mesh = strokeMesh(stroke, scale);
        for (const double share : {0.06, 0.3, 0.55, 0.9, 1.0}) {
            const Rasterizer rasterizer(mesh, share < 1 ? share * stroke.length : 2 * stroke.length, scale, width,
                                        height);
            EXPECT_EQ(Testing::differences(path, share, scale, width, height,
                                           [&](int x, int y) { return 51 * rasterizer.covered(x, y); }),
                      "")
                << "path " << round << " drawn to " << share;
        }
    }
}

TEST_P(StrokeMeshAtScales, NoPixelIsPaintedTwice)
{
    const double scale = GetParam();
    const auto width = static_cast<int>(390 * scale);
    const auto height = static_cast<int>(844 * scale);
    std::mt19937_64 random(13);
    for (int round = 0; round < 20; ++round) {
        const Rasterizer rasterizer(strokeMesh(strokeGeometry(Testing::randomPath(random), 2), scale), 1e9, scale,
                                    width, height);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                EXPECT_LE(rasterizer.timesPainted(x, y), 1) << "path " << round << " in " << x << ',' << y;
        }
    }
}

// Ends at many positions around the border of one square of the mesh.
TEST_P(StrokeMeshAtScales, DrawsEndsAtAnyPosition)
{
    const double scale = GetParam();
    const auto size = static_cast<int>(64 * scale);
    for (const Point start : {Point{8, 37}, Point{8, 60}, Point{35, 3}, Point{60, 35}, Point{37, 60}}) {
        for (double shift = -2; shift <= 10; shift += 0.125) {
            for (const Point end : {Point{32 + shift, 36}, Point{36, 32 + shift}}) {
                const Path path{start, {CubicCurve{start, end, end}}};
                const Rasterizer rasterizer(strokeMesh(strokeGeometry(path, 2), scale), 1e9, scale, size, size);
                EXPECT_EQ(Testing::differences(path, 1, scale, size, size,
                                               [&](int x, int y) { return 51 * rasterizer.covered(x, y); }),
                          "")
                    << start.x << ',' << start.y << " to " << end.x << ',' << end.y;
            }
        }
    }
}

TEST(MeshPart, TouchesWhatPixelsAroundADiscMaySee)
{
    StrokePart disc{{{{10, 10}, {12, 10}, {11, 11}, {10, 12}}}};
    disc.isBend = true;
    const MeshPart part(disc, 0.5);
    EXPECT_TRUE(part.touches({12.4, 9, 20, 11}));
    EXPECT_FALSE(part.touches({12.6, 9, 20, 11}));
}

// Each vertex and square costs time on every frame.
TEST(StrokeMesh, HasNoMoreThanItNeeds)
{
    std::mt19937_64 random(12);
    std::size_t parts = 0;
    std::size_t vertices = 0;
    std::size_t corners = 0;
    for (int round = 0; round < 100; ++round) {
        const StrokeGeometry stroke = strokeGeometry(Testing::randomPath(random), 2);
        const StrokeMesh mesh = strokeMesh(stroke, 2);
        parts += stroke.parts.size();
        vertices += mesh.band.size();
        corners += mesh.squares.size();
    }
    EXPECT_NEAR(static_cast<double>(parts), 32'047, 100);
    EXPECT_NEAR(static_cast<double>(vertices), 183'225, 500);
    EXPECT_NEAR(static_cast<double>(corners), 40'560, 100);
}

TEST(StrokeMesh, IsTheSameLeftOfTheOriginAndAbove)
{
    const auto squares = [](double shift) {
        const Point start{10 + shift, 10 + shift};
        const Path loop{start, {{{90 + shift, 90 + shift}, {10 + shift, 90 + shift}, {90 + shift, 10 + shift}}}, false};
        return strokeMesh(strokeGeometry(loop, 2), 1).squares.size();
    };
    EXPECT_GT(squares(0), 0U);
    EXPECT_EQ(squares(-2048), squares(0));
}

TEST(StrokeMesh, DrawsAJoinWhenTheLineReachesIt)
{
    constexpr Point corner{30, 10};
    const Path path{{10, 10}, {{{10, 10}, corner, corner}, {corner, {30, 30}, {30, 30}}}, false};
    const StrokeMesh mesh = strokeMesh(strokeGeometry(path, 4), 1);
    EXPECT_EQ(Rasterizer(mesh, 19, 1, 40, 40).covered(31, 8), 0);
    EXPECT_EQ(Rasterizer(mesh, 21, 1, 40, 40).covered(31, 8), 1);
}

INSTANTIATE_TEST_SUITE_P(StrokeMesh, StrokeMeshAtScales, testing::Values(1, 1.5, 2, 3),
                         [](const auto &scale) { return std::to_string(std::lround(10 * scale.param)) + "Tenths"; });

} // namespace
} // namespace TQFoundation
