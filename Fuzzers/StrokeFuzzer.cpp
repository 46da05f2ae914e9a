// Strokes of arbitrary paths. All numbers must be finite, each part must cover a range of the arc length, coverage must
// never decrease or exceed 100 %, and no pixel outside a tile's image may be written.

#include "Require.h"
#include "StrokeGeometry.h"
#include "StrokeMask.h"
#include "StrokeMesh.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <map>
#include <vector>

using namespace TQFoundation;
using Fuzzing::require;

namespace {

double coordinate(FuzzedDataProvider &data)
{
    switch (data.ConsumeIntegralInRange(0, 7)) {
    case 0:
        return data.ConsumeFloatingPoint<double>();
    case 1:
        return data.ConsumeFloatingPointInRange(-3000.0, 3000.0);
    case 2:
        return data.ConsumeIntegralInRange(0, 32) / 8.0;
    default:
        return data.ConsumeIntegralInRange(-200, 800);
    }
}

void checkGeometry(const StrokeGeometry &stroke)
{
    require(std::isfinite(stroke.length) && stroke.length >= 0);
    for (const StrokePart &part : stroke.parts) {
        require(part.from >= 0 && part.from <= part.to && part.to <= stroke.length);
        for (const Point &corner : part.corners)
            require(std::isfinite(corner.x) && std::isfinite(corner.y));
        for (const HalfPlane &edge : edges(part))
            require(std::isfinite(edge.x) && std::isfinite(edge.y) && std::isfinite(edge.offset));
        if (!part.isJoin()) {
            const HalfPlane along = lengthAlong(part);
            require(std::isfinite(along.x) && std::isfinite(along.y) && std::isfinite(along.offset));
        }
    }
}

void checkMesh(const StrokeGeometry &stroke, double scale)
{
    const StrokeMesh mesh = strokeMesh(stroke, scale);
    require(mesh.bandIndices.size() % 3 == 0 && mesh.squareIndices.size() % 3 == 0);
    require(std::ranges::all_of(mesh.bandIndices, [&](std::uint32_t index) { return index < mesh.band.size(); }));
    require(std::ranges::all_of(mesh.squareIndices, [&](std::uint32_t index) { return index < mesh.squares.size(); }));
    for (const StrokeMesh::BandVertex &vertex : mesh.band)
        require(std::isfinite(vertex.x) && std::isfinite(vertex.y) && std::isfinite(vertex.left)
                && std::isfinite(vertex.right) && std::isfinite(vertex.length));
    for (const StrokeMesh::SquareVertex &vertex : mesh.squares)
        require(std::isfinite(vertex.x) && std::isfinite(vertex.y)
                && std::ranges::all_of(vertex.length, [](float length) { return std::isfinite(length); }));
}

// Returns the number of covered samples of each pixel, for each tile.
std::map<std::uint64_t, std::vector<std::uint32_t>> painted(const StrokeMask &mask)
{
    StrokeMask::Colors colors{};
    for (std::size_t count = 0; count < colors.size(); ++count)
        colors[count] = static_cast<std::uint32_t>(count);
    std::map<std::uint64_t, std::vector<std::uint32_t>> images;
    for (const auto &[place, tile] : mask.tiles()) {
        require(tile.width > 0 && tile.height > 0);
        // Exactly as large as the tile, so that AddressSanitizer detects writes outside it.
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(tile.width) * static_cast<std::size_t>(tile.height));
        mask.paint(tile, colors, pixels.data(), tile.width);
        require(std::ranges::all_of(pixels, [](std::uint32_t count) { return count <= StrokeMask::samples; }));
        images.emplace(place, std::move(pixels));
    }
    return images;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const auto point = [&] { return Point{coordinate(data), coordinate(data)}; };
    const double width = data.ConsumeBool() ? 2 : coordinate(data) / 16;
    const double scale = data.PickValueInArray({1.0, 1.5, 2.0, 3.0});
    Path path{point(), {}, data.ConsumeBool()};
    while (data.remaining_bytes() > 0 && path.curves.size() < 4)
        path.curves.push_back({point(), point(), point()});

    const StrokeGeometry stroke = strokeGeometry(path, width);
    checkGeometry(stroke);
    // Mesh and mask are made for thin lines of about a screen's length; larger inputs only take longer.
    if (width > 64)
        return 0;
    checkMesh(stroke, scale);
    Path scaledPath = path;
    const auto toPixels = [scale](Point &place) { place = {place.x * scale, place.y * scale}; };
    toPixels(scaledPath.start);
    for (CubicCurve &curve : scaledPath.curves) {
        toPixels(curve.control1);
        toPixels(curve.control2);
        toPixels(curve.end);
    }
    StrokeGeometry pixels = strokeGeometry(scaledPath, width * scale);
    const double length = pixels.length;
    if (length > 20000)
        return 0;
    StrokeMask mask(std::move(pixels), scale);
    auto before = painted(mask);
    require(before.empty());
    for (const double share : {0.0, 0.3, 0.31, 0.9, 0.5, 1.0}) {
        mask.drawUpTo(length * share);
        require(mask.drawnLength() <= length);
        auto now = painted(mask);
        for (const auto &[place, pixelsBefore] : before) {
            require(now.count(place) == 1 && now[place].size() == pixelsBefore.size());
            require(std::ranges::equal(pixelsBefore, now[place], std::less_equal<>()));
        }
        before = std::move(now);
    }
    return 0;
}
