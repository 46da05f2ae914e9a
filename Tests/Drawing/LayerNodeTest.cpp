#include "CountedWindow.h"
#include "LayerItem.h"
#include "RecordingPlatform.h"
#include "StrokeReference.h"

#include <QtCore/qelapsedtimer.h>
#include <QtGui/qscreen.h>
#include <QtQuick/qsgrendernode.h>
#include <QtQuick/qsgsimplerectnode.h>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace TQFoundation {
namespace {

using Testing::CountedWindow;
using Testing::darkness;
using Testing::InstalledRecordingPlatform;
using Testing::LayerItem;

constexpr int darkest = 51; // of a line with an alpha of 0.2
// Windows have an alpha channel on Wayland; Qt repaints the edge of a part of one with an alpha of 254 there.
constexpr int repaintRounding = 1;

// The darkest pixel of a picture, or of a part of it.
int darkestOf(const QImage &picture, QRect area = {})
{
    if (area.isNull())
        area = picture.rect();
    int most = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            most = std::max(most, darkness(picture, x, y));
    }
    return most;
}

// How far the most different pixels of two pictures are apart.
int farthest(const QImage &one, const QImage &other)
{
    EXPECT_EQ(one.size(), other.size());
    int most = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            most = std::max(most, std::abs(darkness(one, x, y) - darkness(other, x, y)));
    }
    return most;
}

Path straight(Point start, Point end)
{
    return {start, {CubicCurve{start, end, end}}};
}

/// A rectangle of one colour.
class ColorItem : public QQuickItem
{
public:
    explicit ColorItem(QQuickItem *parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

    void setColor(const QColor &color)
    {
        m_color = color;
        update();
    }

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *) override
    {
        auto *node = old ? static_cast<QSGSimpleRectNode *>(old) : new QSGSimpleRectNode;
        node->setRect(boundingRect());
        node->setColor(m_color);
        return node;
    }

private:
    QColor m_color = Qt::white;
};

/// An item that counts how often it is painted. Software backend only.
class WitnessItem : public QQuickItem
{
public:
    explicit WitnessItem(QQuickItem *parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

    int paintings = 0;

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *) override { return old ? old : new Witness(*this); }

private:
    class Witness : public QSGRenderNode
    {
    public:
        explicit Witness(WitnessItem &item) : m_item(item) {}
        RenderingFlags flags() const override { return BoundedRectRendering; }
        QRectF rect() const override { return m_item.boundingRect(); }
        void render(const RenderState *) override { ++m_item.paintings; }

    private:
        WitnessItem &m_item;
    };
};

class LayerInAWindow : public testing::Test
{
protected:
    LayerInAWindow() { platform->records = false; }

    void goTo(double time) { platform->stall(time - platform->mediaTime()); }

    InstalledRecordingPlatform platform;
    std::mt19937_64 random{11};
};

TEST_F(LayerInAWindow, FollowsTheTimeline)
{
    CountedWindow window({100, 40});
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), 0));
    // The end of the drawn part, in points, and its opacity.
    struct Moment
    {
        double time;
        double end;
        double opacity;
    };
    for (const Moment moment : {Moment{0, 5, 0},
                                {0.5, 10, 0.5},
                                {1, 15, 1},
                                {4.5, 50, 1},
                                {9, 95, 1},
                                {9.1, 95, 1},
                                {9.2, 95, 1},
                                {9.7, 95, 0.5},
                                {9.9, 95, 0.3},
                                {10.1, 95, 0.1},
                                {10.2, 95, 1}}) {
        goTo(moment.time);
        const QImage shown = window.grabWindow();
        const double scale = window.effectiveDevicePixelRatio();
        for (int x = 0; x < shown.width(); ++x) {
            const double place = (x + 0.5) / scale;
            const double share = place < 5 || place > moment.end ? 0 : 1;
            if (std::abs(place - 5) > 1 && std::abs(place - moment.end) > 1) {
                EXPECT_NEAR(darkness(shown, x, static_cast<int>(20 * scale)), darkest * share * moment.opacity, 1)
                    << moment.time << " s, " << place;
            }
        }
    }
}

TEST_F(LayerInAWindow, ShowsTheLayersColour)
{
    CountedWindow window({100, 40});
    LayerItem item(window.contentItem());
    ShapeLayer layer;
    layer.path = straight({5, 20}, {95, 20});
    layer.lineWidth = 4;
    layer.strokeColor = {1, 0.5F, 0, 0.5F};
    item.setLayer(layer);
    const QImage shown = window.grabWindow();
    const QColor color = shown.pixelColor(shown.width() / 2, shown.height() / 2);
    EXPECT_NEAR(color.red(), 255, 1);
    EXPECT_NEAR(color.green(), 191, 1);
    EXPECT_NEAR(color.blue(), 128, 1);
    // In a window of its own, since a colour may be kept from the frame before.
    CountedWindow other({100, 40});
    LayerItem black(other.contentItem());
    layer.strokeColor = {0, 0, 0, 1};
    black.setLayer(layer);
    EXPECT_EQ(darkestOf(other.grabWindow()), 255);
}

TEST_F(LayerInAWindow, DrawsNothingWithoutALayer)
{
    CountedWindow window({100, 40});
    LayerItem item(window.contentItem());
    EXPECT_EQ(darkestOf(window.grabWindow()), 0);
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), 0));
    goTo(4.5);
    EXPECT_EQ(darkestOf(window.grabWindow()), darkest);
    item.setLayer({});
    EXPECT_EQ(darkestOf(window.grabWindow()), 0);
    EXPECT_TRUE(window.rests());
    item.setLayer(ShapeLayer());
    EXPECT_EQ(darkestOf(window.grabWindow()), 0) << "a path without length";
}

TEST_F(LayerInAWindow, IgnoresTheSizeOfItsItem)
{
    CountedWindow window({100, 40});
    LayerItem item(window.contentItem());
    ShapeLayer layer = Testing::driftingLayer(straight({5, 20}, {95, 20}), -9.1);
    item.setLayer(layer);
    const QImage without = window.grabWindow();
    EXPECT_EQ(darkestOf(without), darkest);
    item.setSize({10, 10});
    EXPECT_EQ(window.grabWindow(), without);
    item.setSize({1000, 1000});
    EXPECT_EQ(window.grabWindow(), without);
}

TEST_F(LayerInAWindow, IsClippedByAClippingParent)
{
    CountedWindow window({100, 40});
    QQuickItem around(window.contentItem());
    around.setClip(true);
    around.setX(20);
    around.setSize({32, 40});
    LayerItem item(&around);
    item.setX(-20);
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), -9.1));
    const QImage shown = window.grabWindow();
    const double scale = window.effectiveDevicePixelRatio();
    for (int x = 0; x < shown.width(); ++x) {
        const double place = (x + 0.5) / scale;
        EXPECT_EQ(darkness(shown, x, static_cast<int>(20 * scale)), place > 20 && place < 52 ? darkest : 0) << place;
    }
}

TEST_F(LayerInAWindow, TakesTheOpacityOfItsItem)
{
    CountedWindow window({100, 40});
    LayerItem item(window.contentItem());
    item.setOpacity(0.5);
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), -9.1));
    EXPECT_NEAR(darkestOf(window.grabWindow()), darkest / 2.0, 1);
}

TEST_F(LayerInAWindow, ReappearsAfterAScaleOfZero)
{
    CountedWindow window({100, 40});
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), -9.1));
    item.setScale(0);
    EXPECT_EQ(darkestOf(window.grabWindow()), 0);
    item.setScale(1);
    EXPECT_NEAR(darkestOf(window.grabWindow()), darkest, 1);
}

TEST_F(LayerInAWindow, RequestsFramesOnlyWhileAnimating)
{
    CountedWindow window;
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(Testing::randomPath(random), 0));
    EXPECT_TRUE(window.moves());
    goTo(5);
    EXPECT_TRUE(window.moves());
    goTo(11);
    EXPECT_TRUE(window.rests());
}

TEST_F(LayerInAWindow, DrawsNoFasterThanTheRefreshRate)
{
    CountedWindow window({100, 40}); // small, so that a frame takes little time
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), 0));
    ASSERT_TRUE(window.moves());
    QElapsedTimer clock;
    clock.start();
    const int before = window.frames;
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.frames >= before + 25; }));
    EXPECT_GE(static_cast<double>(clock.elapsed()), 0.8 * 25'000 / window.screen()->refreshRate());
}

TEST_F(LayerInAWindow, ContinuesAtTheRightPlaceAfterBeingHidden)
{
    CountedWindow window({100, 40});
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), 0));
    goTo(2);
    EXPECT_TRUE(window.moves());
    const auto drawnTo = [&] {
        const QImage shown = window.grabWindow();
        int last = 0;
        for (int x = 0; x < shown.width(); ++x) {
            if (darkness(shown, x, shown.height() / 2) == darkest)
                last = x;
        }
        return last / window.effectiveDevicePixelRatio();
    };
    for (const bool byOpacity : {false, true}) {
        byOpacity ? item.setOpacity(0) : item.setVisible(false);
        EXPECT_TRUE(window.rests());
        EXPECT_LE(darkestOf(window.grabWindow()), repaintRounding);
        EXPECT_TRUE(window.rests());
        platform->stall(2);
        byOpacity ? item.setOpacity(1) : item.setVisible(true);
        EXPECT_TRUE(window.moves());
        EXPECT_NEAR(drawnTo(), 5 + 10 * platform->mediaTime(), 1.5);
    }
}

TEST_F(LayerInAWindow, RequestsNoFramesOutsideItsWindow)
{
    CountedWindow window({100, 40});
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), 0));
    goTo(2);
    EXPECT_TRUE(window.moves());
    item.setX(200);
    EXPECT_TRUE(window.rests());
    item.setX(50);
    EXPECT_TRUE(window.moves());
}

TEST_F(LayerInAWindow, RequestsNoFramesInAHiddenWindow)
{
    CountedWindow window;
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(Testing::randomPath(random), 0));
    goTo(2);
    EXPECT_TRUE(window.moves());
    window.hide();
    EXPECT_TRUE(window.rests());
    window.show();
    EXPECT_TRUE(window.moves());
}

TEST_F(LayerInAWindow, SurvivesTheLossOfItsSceneGraph)
{
    CountedWindow window;
    window.setPersistentSceneGraph(false);
    window.setPersistentGraphics(false);
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(Testing::randomPath(random), 0));
    goTo(4);
    EXPECT_TRUE(window.moves());
    // No picture is taken before the last round: Qt 6.4 shows no more frames of a hidden window on Wayland otherwise.
    for (int round = 0; round < 3; ++round) {
        window.hide();
        window.releaseResources();
        QCoreApplication::processEvents();
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        EXPECT_TRUE(window.moves());
    }
    const QImage shown = window.grabWindow();
    EXPECT_EQ(darkestOf(shown), darkest);
    CountedWindow fresh;
    LayerItem same(fresh.contentItem());
    random.seed(11);
    same.setLayer(Testing::driftingLayer(Testing::randomPath(random), 0));
    EXPECT_EQ(shown, fresh.grabWindow());
}

TEST_F(LayerInAWindow, MovesFromWindowToWindow)
{
    CountedWindow first({200, 200});
    CountedWindow second({200, 200});
    LayerItem item(first.contentItem());
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), 0));
    goTo(5);
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(first.moves());
        EXPECT_EQ(darkestOf(first.grabWindow()), darkest);
        item.setParentItem(second.contentItem());
        EXPECT_TRUE(second.moves());
        EXPECT_TRUE(first.rests());
        EXPECT_EQ(darkestOf(first.grabWindow()), 0);
        EXPECT_EQ(darkestOf(second.grabWindow()), darkest);
        item.setParentItem(nullptr);
        EXPECT_TRUE(second.rests());
        item.setParentItem(first.contentItem());
    }
}

TEST_F(LayerInAWindow, OutlivesItsWindow)
{
    LayerItem item;
    item.setLayer(Testing::driftingLayer(Testing::randomPath(random), 0));
    for (int round = 0; round < 3; ++round) {
        CountedWindow window;
        item.setParentItem(window.contentItem());
        EXPECT_TRUE(window.moves());
    }
    EXPECT_EQ(item.window(), nullptr);
}

TEST_F(LayerInAWindow, ShowsTheSameInTwoWindows)
{
    CountedWindow first;
    CountedWindow second;
    LayerItem one(first.contentItem());
    LayerItem other(second.contentItem());
    const ShapeLayer layer = Testing::driftingLayer(Testing::randomPath(random), 0);
    one.setLayer(layer);
    other.setLayer(layer);
    goTo(3);
    EXPECT_TRUE(first.moves());
    EXPECT_TRUE(second.moves());
    const QImage shown = first.grabWindow();
    EXPECT_EQ(darkestOf(shown), darkest);
    EXPECT_EQ(shown, second.grabWindow());
    goTo(11);
    EXPECT_TRUE(first.rests());
    EXPECT_TRUE(second.rests());
}

TEST_F(LayerInAWindow, DrawsTwentyItemsAtOnce)
{
    CountedWindow window({400, 400});
    std::vector<std::unique_ptr<LayerItem>> items;
    for (int row = 0; row < 20; ++row) {
        items.push_back(std::make_unique<LayerItem>(window.contentItem()));
        items.back()->setY(20 * row);
        items.back()->setLayer(Testing::driftingLayer(straight({5, 10}, {395, 10}), 0.1 * row));
    }
    goTo(5);
    EXPECT_TRUE(window.moves());
    const QImage shown = window.grabWindow();
    const double scale = window.effectiveDevicePixelRatio();
    for (int row = 0; row < 20; ++row) {
        const double end = 5 + 390 * (5 - 0.1 * row) / 9;
        const auto y = static_cast<int>((20 * row + 10) * scale);
        EXPECT_EQ(darkness(shown, static_cast<int>((end - 2) * scale), y), darkest) << row;
        EXPECT_EQ(darkness(shown, static_cast<int>((end + 2) * scale), y), 0) << row;
    }
    goTo(13);
    EXPECT_TRUE(window.rests());
}

TEST_F(LayerInAWindow, ReplacesTheOldLayer)
{
    CountedWindow window({200, 200});
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {195, 20}), 0));
    goTo(9.1);
    EXPECT_EQ(darkestOf(window.grabWindow()), darkest);
    item.setLayer(Testing::driftingLayer(straight({5, 100}, {195, 100}), 9.1));
    goTo(14);
    const QImage shown = window.grabWindow();
    const double scale = window.effectiveDevicePixelRatio();
    EXPECT_EQ(darkestOf(shown.copy(0, 0, shown.width(), static_cast<int>(60 * scale))), 0);
    EXPECT_EQ(darkness(shown, static_cast<int>(50 * scale), static_cast<int>(100 * scale)), darkest);
    EXPECT_TRUE(window.moves());
}

TEST_F(LayerInAWindow, IsDrawnIntoLayersOfTheSceneGraph)
{
    CountedWindow window({100, 40});
    if (window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software)
        GTEST_SKIP() << "the toolkit itself draws nothing right into a layer there";
    QQuickItem around(window.contentItem());
    around.setSize({100, 40});
    LayerItem item(&around);
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), 0));
    goTo(5);
    const QImage plain = window.grabWindow();
    auto *layer = around.property("layer").value<QObject *>();
    ASSERT_TRUE(layer);
    layer->setProperty("enabled", true);
    EXPECT_TRUE(window.moves());
    EXPECT_LE(farthest(window.grabWindow(), plain), 1);
    goTo(9.1);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QImage shown = window.grabWindow();
        return darkness(shown, static_cast<int>(90 * window.effectiveDevicePixelRatio()), shown.height() / 2)
            == darkest;
    }));
    goTo(11);
    EXPECT_TRUE(window.rests());
}

// The picture on the screen after many frames, each of which painted changes only.
TEST_F(LayerInAWindow, PaintsNothingTwiceAmongChangingItems)
{
    if (QGuiApplication::platformName() != u"offscreen")
        GTEST_SKIP() << "only there the screen can be looked at";
    struct Scene
    {
        explicit Scene(const Path &path)
        {
            // On whole pixels at every scale; else the toolkit itself repaints the wrong ones.
            beneath.setPosition({10, 4});
            beneath.setSize({56, 60});
            item.setX(3);
            item.setLayer(Testing::driftingLayer(path, 0));
            above.setPosition({70, 6});
            above.setSize({22, 14});
        }

        void setFrame(int frame)
        {
            beneath.setColor(frame % 2 ? QColor(250, 250, 250) : Qt::white);
            above.setColor(frame % 3 ? QColor(0, 0, 0, 10) : QColor(0, 0, 0, 20));
        }

        CountedWindow window{{200, 200}};
        ColorItem beneath{window.contentItem()};
        LayerItem item{window.contentItem()};
        ColorItem above{window.contentItem()};
    };
    const Path path{{20, 20}, {CubicCurve{{180, 20}, {180, 180}, {20, 180}}}, true};
    constexpr int frames = 60;
    Scene changing(path);
    for (int frame = 1; frame <= frames; ++frame) {
        goTo(frame * 0.151);
        changing.setFrame(frame);
        const int before = changing.window.frames;
        ASSERT_TRUE(QTest::qWaitFor([&] { return changing.window.frames > before; }));
    }
    EXPECT_TRUE(changing.window.moves());
    const QImage screen = changing.window.screen()->grabWindow(changing.window.winId()).toImage();
    Scene fresh(path);
    fresh.setFrame(frames);
    EXPECT_EQ(screen, fresh.window.grabWindow().copy(screen.rect()));
}

TEST_F(LayerInAWindow, PaintsOnlyChangedTiles)
{
    CountedWindow window({400, 40});
    if (window.rendererInterface()->graphicsApi() != QSGRendererInterface::Software)
        GTEST_SKIP() << "elsewhere a frame is always painted whole";
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {395, 20}), 0));
    WitnessItem witness(window.contentItem());
    witness.setPosition({32, 0});
    witness.setSize({16, 40});
    goTo(0.5);
    EXPECT_TRUE(window.moves());
    goTo(4);
    EXPECT_TRUE(window.moves());
    const int before = witness.paintings;
    EXPECT_GT(before, 0);
    for (int frame = 0; frame < 20; ++frame) {
        goTo(4 + 0.1 * frame);
        const int framesBefore = window.frames;
        ASSERT_TRUE(QTest::qWaitFor([&] { return window.frames > framesBefore + 1; }));
    }
    EXPECT_EQ(witness.paintings, before);
    goTo(9.4);
    EXPECT_TRUE(QTest::qWaitFor([&] { return witness.paintings > before; })) << "it fades out as a whole";
}

TEST_F(LayerInAWindow, ReappearsAfterItsCover)
{
    CountedWindow window({100, 40});
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(straight({5, 20}, {95, 20}), -9.1));
    const QImage plain = window.grabWindow();
    {
        ColorItem cover(window.contentItem());
        cover.setSize({100, 40});
        EXPECT_LE(darkestOf(window.grabWindow()), repaintRounding);
    }
    EXPECT_LE(farthest(window.grabWindow(), plain), repaintRounding);
}

TEST_F(LayerInAWindow, FollowsTheSizeOfItsWindow)
{
    CountedWindow window({100, 40});
    LayerItem item(window.contentItem());
    item.setLayer(Testing::driftingLayer(Testing::randomPath(random), -9.1));
    window.resize(390, 844);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.grabWindow().width() >= 390; }));
    CountedWindow other({390, 844});
    LayerItem same(other.contentItem());
    random.seed(11);
    same.setLayer(Testing::driftingLayer(Testing::randomPath(random), -9.1));
    EXPECT_EQ(window.grabWindow(), other.grabWindow());
}

} // namespace
} // namespace TQFoundation
