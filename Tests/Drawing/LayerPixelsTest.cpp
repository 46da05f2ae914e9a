#include "CountedWindow.h"
#include "DriftPath.h"
#include "LayerItem.h"
#include "RecordingPlatform.h"
#include "StrokeReference.h"

#include <QtGui/qopenglcontext.h>
#include <QtGui/qscreen.h>
#include <QtGui/qtransform.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>

namespace TQFoundation {
namespace {

using Testing::CountedWindow;
using Testing::darkness;
using Testing::InstalledRecordingPlatform;
using Testing::LayerItem;

Path moved(Path path, const QTransform &transform)
{
    const auto move = [&](Point &place) {
        const QPointF there = transform.map(QPointF(place.x, place.y));
        place = {there.x(), there.y()};
    };
    move(path.start);
    for (CubicCurve &curve : path.curves) {
        move(curve.control1);
        move(curve.control2);
        move(curve.end);
    }
    return path;
}

// Without a driver Qt falls back to another interface, and the tests below would prove nothing of the one asked for.
TEST(LayerPixels, AreDrawnByTheInterfaceAskedFor)
{
    CountedWindow window;
    LayerItem item(window.contentItem());
    window.grabWindow();
    const QSGRendererInterface &renderer = *window.rendererInterface();
    if (qEnvironmentVariable("QT_QUICK_BACKEND") == u"software") {
        EXPECT_EQ(renderer.graphicsApi(), QSGRendererInterface::Software);
    } else if (qEnvironmentVariable("QSG_RHI_BACKEND") == u"vulkan") {
        EXPECT_EQ(renderer.graphicsApi(), QSGRendererInterface::Vulkan);
    } else {
        ASSERT_EQ(renderer.graphicsApi(), QSGRendererInterface::OpenGL);
        const auto *context =
            static_cast<QOpenGLContext *>(renderer.getResource(&window, QSGRendererInterface::OpenGLContextResource));
        EXPECT_EQ(context->isOpenGLES(), qEnvironmentVariableIsSet("TQ_OPENGL_ES"));
    }
}

// Runs for each scale, which CTest sets from outside, on each backend.
TEST(LayerPixels, MatchesAnotherLibrarysPixels)
{
    const InstalledRecordingPlatform platform;
    platform->records = false;
    CountedWindow window;
    const double scale = window.effectiveDevicePixelRatio();
    ASSERT_EQ(scale, qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble());
    LayerItem item(window.contentItem());
    std::mt19937_64 random(9);
    for (int round = 0; round < std::max(4, Testing::pathsAt(scale) / 5); ++round) {
        const Path path = Testing::randomPath(random);
        ShapeLayer layer;
        layer.path = path;
        layer.lineWidth = 2;
        layer.strokeColor = {0, 0, 0, 0.2F};
        const double now = platform->mediaTime();
        layer.addAnimation({BasicAnimation::KeyPath::strokeEnd, 0, 1, 8, {}, {}}, now);
        item.setLayer(layer);
        for (const double share : {0.0625, 0.25, 0.5, 0.875, 1.0}) {
            platform->stall(now + 8 * share - platform->mediaTime());
            const QImage shown = window.grabWindow();
            ASSERT_EQ(shown.size(), QSize(390, 844) * scale);
            EXPECT_EQ(Testing::differences(path, share, scale, shown.width(), shown.height(),
                                           [&](int x, int y) { return darkness(shown, x, y); }),
                      "")
                << "path " << round << " drawn to " << share;
        }
    }
}

TEST(LayerPixels, MatchesPixelsOfATransformedItem)
{
    const InstalledRecordingPlatform platform;
    platform->records = false;
    CountedWindow window;
    const double scale = window.effectiveDevicePixelRatio();
    LayerItem item(window.contentItem());
    item.setTransformOrigin(QQuickItem::TopLeft);
    std::mt19937_64 random(10);
    const Path path = Testing::randomPath(random);
    ShapeLayer layer;
    layer.path = path;
    layer.lineWidth = 2;
    layer.strokeColor = {0, 0, 0, 0.2F};
    item.setLayer(layer);
    const auto check = [&](const QTransform &transform) {
        const QImage shown = window.grabWindow();
        EXPECT_EQ(Testing::differences(moved(path, transform), 1, scale, shown.width(), shown.height(),
                                       [&](int x, int y) { return darkness(shown, x, y); }),
                  "")
            << transform.m12() << ',' << transform.dx();
    };
    item.setPosition({3.25, -7.5});
    check(QTransform::fromTranslate(3.25, -7.5));
    if (window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software) {
        item.setPosition({300, 100});
        item.setRotation(30);
        check(QTransform::fromTranslate(300, 100).rotate(30));
    }
    item.setRotation(0);
    item.setPosition({100, 0});
    check(QTransform::fromTranslate(100, 0));
}

/// The lines that the background draws on a screen of 390 by 844 points, in a reproducible order.
class DriftLines
{
public:
    Path next() { return driftPath(getTransitPoints(screen, m_source), screen, m_source); }

private:
    static constexpr DriftScreen screen{390, 844};

    std::int64_t draw(std::int64_t lowest, std::int64_t highest)
    {
        return std::uniform_int_distribution(lowest, highest)(m_random);
    }

    std::mt19937_64 m_random{17};
    const RandomSource m_source{[this] { return static_cast<std::uint32_t>(draw(0, 3)); },
                                [this] { return draw(195, 390); },
                                [this] { return draw(0, 195); },
                                [this] { return draw(0, 422); },
                                [this] { return draw(422, 844); },
                                [this](std::int64_t lowest, std::int64_t highest) -> IntegerSource {
                                    return [this, lowest, highest] { return draw(lowest, highest); };
                                }};
};

/// How an item that shows a line is placed, and how many lines had wrong pixels there.
struct Pose
{
    QPointF position;
    double rotation = 0;
    double scale = 1;
    int wrongLines = 0;

    QTransform transform() const
    {
        return QTransform::fromTranslate(position.x(), position.y()).rotate(rotation).scale(scale, scale);
    }
};

// AnimationView documents the bounds for the GPU. TQ_PIXEL_LINES sets the number of lines.
TEST(LayerPixels, MatchesTheLinesOfTheBackground)
{
    const InstalledRecordingPlatform platform;
    platform->records = false;
    CountedWindow window;
    const bool isExact = window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
    const double scale = window.effectiveDevicePixelRatio();
    LayerItem item(window.contentItem());
    item.setTransformOrigin(QQuickItem::TopLeft);
    DriftLines lines;
    const int count = qEnvironmentVariable("TQ_PIXEL_LINES", QStringLiteral("24")).toInt();
    // Plain twice, rotated twice, moved by parts of a pixel, and turned by half a turn.
    Pose poses[] = {{{0, 0}, 0, 1},    {{0, 0}, 0, 1},       {{60, 0}, 7, 1},
                    {{300, 0}, 30, 1}, {{40.25, 9.5}, 0, 1}, {{390, 844}, 0, -1}};
    for (int round = 0; round < count; ++round) {
        ShapeLayer layer;
        layer.path = lines.next();
        layer.lineWidth = 2;
        layer.strokeColor = {0, 0, 0, 0.2F};
        Pose &pose = poses[static_cast<std::size_t>(round) % std::size(poses)];
        item.setLayer(layer);
        item.setPosition(pose.position);
        item.setRotation(pose.rotation);
        item.setScale(pose.scale);
        const QImage shown = window.grabWindow();
        const std::string wrong =
            Testing::differences(moved(layer.path, pose.transform()), 1, scale, shown.width(), shown.height(),
                                 [&](int x, int y) { return darkness(shown, x, y); });
        pose.wrongLines += !wrong.empty();
        if (isExact) {
            EXPECT_EQ(wrong, "") << "line " << round;
        }
    }
    for (const Pose &pose : poses) {
        const double share = pose.wrongLines / (count / static_cast<double>(std::size(poses)));
        EXPECT_LE(share, count < 1000 ? 0.26 : pose.rotation != 0 ? 0.1 : 0.01) << pose.rotation << ", " << pose.scale;
        RecordProperty("wrong at " + std::to_string(pose.rotation) + " degrees, scale " + std::to_string(pose.scale),
                       pose.wrongLines);
    }
}

// Runs where CTest gives it two screens, of one and of two pixels a point.
TEST(LayerBetweenScreens, FollowsTheScaleOfItsScreen)
{
    const InstalledRecordingPlatform platform;
    platform->records = false;
    const QList<QScreen *> screens = QGuiApplication::screens();
    ASSERT_EQ(screens.size(), 2);
    CountedWindow window;
    LayerItem item(window.contentItem());
    std::mt19937_64 random(12);
    ShapeLayer layer;
    layer.path = Testing::randomPath(random);
    layer.lineWidth = 2;
    layer.strokeColor = {0, 0, 0, 0.2F};
    layer.addAnimation({BasicAnimation::KeyPath::strokeEnd, 0, 1, 8, {}, {}}, platform->mediaTime());
    item.setLayer(layer);
    for (int move = 0; move < 4; ++move) {
        window.hide();
        window.setScreen(screens[move % 2]);
        window.setPosition(screens[move % 2]->geometry().topLeft());
        window.show();
        const double scale = screens[move % 2]->devicePixelRatio();
        EXPECT_EQ(scale, move % 2 + 1);
        ASSERT_TRUE(QTest::qWaitFor([&] { return window.effectiveDevicePixelRatio() == scale; }));
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        platform->stall(1.5);
        EXPECT_TRUE(window.moves());
        const QImage shown = window.grabWindow();
        ASSERT_EQ(shown.size(), window.size() * scale);
        EXPECT_EQ(Testing::differences(layer.path, (move + 1) * 1.5 / 8, scale, shown.width(), shown.height(),
                                       [&](int x, int y) { return darkness(shown, x, y); }),
                  "")
            << "move " << move;
    }
}

} // namespace
} // namespace TQFoundation
