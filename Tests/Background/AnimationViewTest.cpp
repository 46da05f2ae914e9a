#include "AnimationViewFixture.h"
#include "DeathTest.h"
#include "DriftPath.h"
#include "QmlWindow.h"
#include <TQFoundation/Environment.h>

#include <QtCore/qmetaobject.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::trapSignal;
using KeyPath = BasicAnimation::KeyPath;

using AnimationViewTest = Testing::BackgroundTest;

// Making one.

TEST_F(AnimationViewTest, IsMadeIdleWithItsFrame)
{
    const auto view = AnimationView::initWithFrame({3, 4, 50, 60});
    EXPECT_EQ(view->position(), QPointF(3, 4));
    EXPECT_EQ(view->size(), QSizeF(50, 60));
    EXPECT_EQ(view->color(), Color());
    EXPECT_FALSE(view->shapeLayer());
    EXPECT_FALSE(view->parentItem());
    EXPECT_TRUE(view->isEnabled());
    EXPECT_TRUE(platform->timers.empty());
    platform->advance(100);
    EXPECT_FALSE(view->shapeLayer()) << "it does not start by itself";
}

TEST_F(AnimationViewTest, WorksLikeNewIfDecodedFromQml)
{
    std::shared_ptr<AnimationView> view;
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import TQFoundation\nAnimationView { width: 70 }", QUrl(QStringLiteral("qrc:/Nib.qml")));
        view = AnimationView::initDecoded(std::unique_ptr<QObject>(component.create()));
        ASSERT_TRUE(view) << component.errorString().toStdString();
    }
    EXPECT_EQ(view->width(), 70);
    EXPECT_EQ(view->color(), Color());
    EXPECT_FALSE(view->shapeLayer());
    view->createTimer();
    const std::weak_ptr<AnimationView> kept = view;
    view.reset();
    platform->advance(10);
    EXPECT_FALSE(kept.expired()) << "held by its timer";
}

TEST_F(AnimationViewTest, LeavesItsQmlFileIfDecoded)
{
    std::shared_ptr<AnimationView> view;
    {
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport TQFoundation\nItem { AnimationView {} }",
                          QUrl(QStringLiteral("qrc:/Nib.qml")));
        const std::unique_ptr<QObject> root(component.create());
        ASSERT_TRUE(root) << component.errorString().toStdString();
        auto *item = qobject_cast<QQuickItem *>(root.get());
        view = AnimationView::initDecoded(std::unique_ptr<QObject>(item->childItems().constFirst()));
        ASSERT_TRUE(view);
        EXPECT_EQ(view->parentItem(), item) << "where it stays for the time being";
    }
    EXPECT_FALSE(view->parentItem());
    view->createTimer();
    EXPECT_TRUE(view->shapeLayer());
}

TEST_F(AnimationViewTest, DecodesOnlyAnimationViews)
{
    bool destroyed = false;
    auto item = std::make_unique<QQuickItem>();
    QObject::connect(item.get(), &QObject::destroyed, [&] { destroyed = true; });
    EXPECT_FALSE(AnimationView::initDecoded(std::move(item)));
    EXPECT_TRUE(destroyed);
    EXPECT_FALSE(AnimationView::initDecoded(nullptr));
}

TEST_F(AnimationViewTest, TakesNoInput)
{
    const auto view = ticking();
    EXPECT_EQ(view->acceptedMouseButtons(), Qt::NoButton);
    EXPECT_FALSE(view->acceptTouchEvents());
    EXPECT_FALSE(view->acceptHoverEvents());
    EXPECT_FALSE(view->flags().testFlag(QQuickItem::ItemIsFocusScope));
}

// Starting.

TEST_F(AnimationViewTest, CreatesStoresFiresAndSchedulesInThisOrder)
{
    const auto view = AnimationView::initWithFrame({});
    platform->calls.clear();
    // The first tick unparents the item while the timer fires.
    QQuickItem child(view.get());
    QObject::connect(&child, &QQuickItem::parentChanged, &child, [&] {
        platform->calls += QStringLiteral("tick");
        view->createTimer(); // changes nothing, because the timer is stored by now
    });
    view->createTimer();
    EXPECT_EQ(platform->calls,
              QStringList({QStringLiteral("makeTimer(10)"), QStringLiteral("timer.fire()"), QStringLiteral("tick"),
                           QStringLiteral("timer.schedule()")}));
}

TEST_F(AnimationViewTest, TicksBeforeCreateTimerReturns)
{
    EXPECT_EQ(line(*ticking()).path.curves.size(), 4U);
}

TEST_F(AnimationViewTest, IgnoresASecondCreateTimer)
{
    const auto view = ticking();
    const ShapeLayer first = line(*view);
    platform->calls.clear();
    view->createTimer();
    EXPECT_EQ(platform->calls, QStringList());
    EXPECT_EQ(line(*view), first);
    EXPECT_EQ(platform->timers.size(), 1U);
}

TEST_F(AnimationViewTest, TicksEveryTenSecondsSinceTheTimerWasMade)
{
    platform->stall(3);
    const auto view = ticking();
    for (int tick = 1; tick <= 5; ++tick) {
        const ShapeLayer before = line(*view);
        platform->advance(9.999);
        EXPECT_EQ(line(*view), before);
        platform->advance(0.001 + 1e-9);
        EXPECT_NE(line(*view), before);
        platform->advance(-1e-9);
        EXPECT_NEAR(*line(*view).animations().front().beginTime, 3 + 10 * tick, 1e-6);
    }
}

TEST_F(AnimationViewTest, TicksOnceAfterAStallAndKeepsTheGrid)
{
    const auto view = ticking();
    platform->stall(47);
    platform->advance(0);
    EXPECT_EQ(line(*view).animations().front().beginTime, 47);
    platform->advance(3);
    EXPECT_EQ(line(*view).animations().front().beginTime, 50);
}

TEST_F(AnimationViewTest, PublishesUpdateTimerToTheMetaObject)
{
    const int index = AnimationView::staticMetaObject.indexOfSlot("updateTimer()");
    ASSERT_GE(index, 0);
    EXPECT_EQ(AnimationView::staticMetaObject.method(index).access(), QMetaMethod::Private);
}

// The line of a tick.

TEST_F(AnimationViewTest, DrawsAClosedLineTwoPointsWide)
{
    const ShapeLayer drawn = line(*ticking());
    EXPECT_EQ(drawn.lineWidth, 2);
    EXPECT_TRUE(drawn.path.isClosed);
    ASSERT_EQ(drawn.path.curves.size(), 4U);
    EXPECT_EQ(drawn.path.curves.back().end, drawn.path.start);
    EXPECT_EQ(drawn.model, Presentation()) << "opaque and whole while nothing animates";
}

TEST_F(AnimationViewTest, AnimatesFadeInStrokeAndFadeOut)
{
    platform->stall(5);
    const std::vector<BasicAnimation> expected{{KeyPath::opacity, 0, 1, 1, 5, {}},
                                               {KeyPath::strokeEnd, 0, 1, 9, 5, {}},
                                               {KeyPath::opacity, 1, 0, 1, 5 + 9.2, {}}};
    EXPECT_EQ(line(*ticking()).animations(), expected);
}

TEST_F(AnimationViewTest, GrowsFromTheFirstPointAlongThePath)
{
    const ShapeLayer drawn = line(*ticking());
    EXPECT_EQ(drawn.presentation(0), (Presentation{0, 0}));
    EXPECT_EQ(drawn.presentation(4.5), (Presentation{1, 0.5}));
    EXPECT_EQ(drawn.presentation(9.1), (Presentation{1, 1}));
}

TEST_F(AnimationViewTest, ReplacesTheLineAtAFifthOfItsOpacity)
{
    const auto view = ticking();
    platform->advance(9.999'999);
    EXPECT_NEAR(line(*view).presentation(platform->mediaTime()).opacity, 0.2, 1e-5);
    platform->advance(0.000'001 + 1e-9);
    EXPECT_NEAR(line(*view).presentation(platform->mediaTime()).opacity, 0, 1e-5) << "the next line";
}

// Which slot a point lies in, from 0, clockwise from the top right; -1 for none.
int slotOf(const Point &point)
{
    const double halfWidth = 195;
    const double halfHeight = 422;
    const auto rise = [&](double along) { return std::trunc(along * halfHeight / halfWidth); };
    if (point.x >= halfWidth && point.y == halfHeight - rise(point.x - halfWidth))
        return 0;
    if (point.x >= halfWidth && point.y == halfHeight + rise(point.x - halfWidth))
        return 1;
    if (point.x <= halfWidth && point.y == halfHeight + rise(point.x))
        return 2;
    if (point.x <= halfWidth && point.y == halfHeight - rise(point.x))
        return 3;
    return -1;
}

// Whether a control point lies where those of a curve that ends at a point of the slot may lie.
bool isControlPointOf(int slot, const Point &point)
{
    const auto within = [](double value, double middle, double reach) { return std::abs(value - middle) <= reach; };
    switch (slot) {
    case 0:
        return point.y >= 0 && point.y <= 422 && within(point.x, 195, std::trunc(point.y * 195 / 422));
    case 1:
        return point.x >= 195 && point.x <= 390 && within(point.y, 422, std::trunc((point.x - 195) * 422 / 195));
    case 2:
        return point.y >= 422 && point.y <= 844 && within(point.x, 195, std::trunc(point.y * 195 / 422));
    default:
        return point.x >= 0 && point.x <= 195 && within(point.y, 422, std::trunc(point.x * 422 / 195));
    }
}

TEST_F(AnimationViewTest, RunsOnceThroughTheFourQuarters)
{
    const auto view = ticking();
    std::set<int> firstSlots;
    std::set<std::pair<double, double>> starts;
    for (int tick = 0; tick < 2000; ++tick, platform->advance(10)) {
        const Path path = line(*view).path;
        std::vector<Point> points{path.start};
        for (const CubicCurve &curve : path.curves)
            points.push_back(curve.end);
        // A point in the very middle belongs to several slots, and has its control points in the corner.
        const auto onAnAxis = [](const Point &point) { return point.x == 195 || point.y == 422; };
        if (std::ranges::any_of(points, onAnAxis))
            continue;
        const int first = slotOf(points[0]);
        firstSlots.insert(first);
        starts.insert({points[0].x, points[0].y});
        for (int index = 0; index < 4; ++index) {
            ASSERT_EQ(slotOf(points[static_cast<std::size_t>(index)]), (first + index) % 4);
            const CubicCurve &curve = path.curves[static_cast<std::size_t>(index)];
            const int slot = slotOf(curve.end);
            ASSERT_TRUE(isControlPointOf(slot, curve.control1)) << slot;
            ASSERT_TRUE(isControlPointOf(slot, curve.control2)) << slot;
        }
    }
    EXPECT_EQ(firstSlots, (std::set<int>{0, 1, 2, 3}));
    EXPECT_GT(starts.size(), 400U) << "of about 770 places";
}

TEST_F(AnimationViewTest, UsesTheScreenSizeReadFirst)
{
    const auto view = AnimationView::initWithFrame({0, 0, 20, 10});
    platform->bounds = {10, 10};
    view->setSize({800, 600});
    view->createTimer();
    double lowest = 0;
    for (int tick = 0; tick < 50; ++tick, platform->advance(10)) {
        for (const CubicCurve &curve : line(*view).path.curves)
            lowest = std::max(lowest, curve.end.y);
    }
    EXPECT_GT(lowest, 600);
    EXPECT_LE(lowest, 844);
}

// Its colour.

TEST_F(AnimationViewTest, DrawsTheClearDefaultInTranslucentBlack)
{
    EXPECT_EQ(line(*ticking()).strokeColor, (Rgba{0, 0, 0, 0.2F}));
}

TEST_F(AnimationViewTest, ReplacesAnyAlpha)
{
    for (const float alpha : {0.0F, 0.1F, 0.2F, 0.5F, 1.0F})
        EXPECT_EQ(line(*ticking(Rgba{0.25F, 0.5F, 0.75F, alpha})).strokeColor, (Rgba{0.25F, 0.5F, 0.75F, 0.2F}));
}

TEST_F(AnimationViewTest, ReadsTheColourOncePerTick)
{
    const auto view = ticking(Rgba{1, 0, 0});
    const ShapeLayer first = line(*view);
    platform->advance(4);
    platform->calls.clear();
    view->setColor(Rgba{0, 1, 0, 0.7F});
    EXPECT_EQ(view->color(), Color(Rgba{0, 1, 0, 0.7F}));
    EXPECT_EQ(line(*view), first);
    EXPECT_EQ(platform->calls, QStringList()) << "setting it triggers nothing";
    platform->advance(5.9);
    EXPECT_EQ(line(*view), first);
    platform->advance(0.2);
    EXPECT_EQ(line(*view).strokeColor, (Rgba{0, 1, 0, 0.2F}));
}

TEST_F(AnimationViewTest, ResolvesTheAppearanceAtEachTick)
{
    setAppearance(qRgb(250, 250, 250), qRgb(0, 0, 0));
    const auto view = ticking(Color(Rgba{1, 0, 0}, Rgba{0, 0, 1}));
    EXPECT_EQ(line(*view).strokeColor, (Rgba{1, 0, 0, 0.2F}));
    setAppearance(qRgb(20, 20, 20), qRgb(240, 240, 240));
    EXPECT_EQ(line(*view).strokeColor, (Rgba{1, 0, 0, 0.2F}));
    platform->advance(10);
    EXPECT_EQ(line(*view).strokeColor, (Rgba{0, 0, 1, 0.2F}));
    platform->currentAppearance = Appearance::light;
    appearanceChanged();
    EXPECT_EQ(line(*view).strokeColor, (Rgba{0, 0, 1, 0.2F}));
    platform->advance(10);
    EXPECT_EQ(line(*view).strokeColor, (Rgba{1, 0, 0, 0.2F})) << "the platform outweighs the palette";
}

// One layer at a time.

TEST_F(AnimationViewTest, UnparentsChildItemsWithoutDestroyingThem)
{
    const auto view = ticking();
    QQuickItem grandchildren;
    QQuickItem one;
    QQuickItem two;
    one.setParentItem(view.get());
    two.setParentItem(view.get());
    grandchildren.setParentItem(&one);
    platform->advance(9.9);
    EXPECT_EQ(view->childItems().size(), 2);
    platform->advance(0.1 + 1e-9);
    EXPECT_TRUE(view->childItems().isEmpty());
    EXPECT_EQ(one.childItems(), QList<QQuickItem *>{&grandchildren}) << "which keeps what it holds itself";
    two.setParentItem(view.get());
    platform->advance(10);
    EXPECT_FALSE(two.parentItem()) << "at every tick";
}

TEST_F(AnimationViewTest, RemovesTheOldLineBeforeDrawingPoints)
{
    const auto view = ticking();
    QQuickItem child(view.get());
    bool gone = false;
    QObject::connect(&child, &QQuickItem::parentChanged, &child, [&] { gone = !view->shapeLayer(); });
    platform->advance(10);
    EXPECT_TRUE(gone);
    EXPECT_TRUE(view->shapeLayer());
}

TEST_F(AnimationViewTest, SurvivesChildrenThatDestroyOrMoveOthers)
{
    const auto view = ticking();
    QQuickItem elsewhere;
    QQuickItem first(view.get());
    auto *second = new QQuickItem(view.get());
    QQuickItem third(view.get());
    QObject::connect(&first, &QQuickItem::parentChanged, &first, [&] {
        delete second;
        third.setParentItem(&elsewhere);
    });
    platform->advance(10);
    EXPECT_TRUE(view->childItems().isEmpty());
    EXPECT_EQ(third.parentItem(), &elsewhere) << "no child of the view by then";
}

} // namespace
} // namespace TQFoundation
