#include "DeathTest.h"
#include "DriftPath.h"
#include "QmlWindow.h"
#include "RecordingPlatform.h"
#include "ShapeLayer.h"

#include <TQFoundation/AnimationView.h>
#include <TQFoundation/Environment.h>

#include <QtCore/qmetaobject.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpalette.h>

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

class Background : public testing::Test
{
protected:
    static std::shared_ptr<AnimationView> ticking(const Color &color = {})
    {
        const auto view = AnimationView::initWithFrame({});
        view->setColor(color);
        view->createTimer();
        return view;
    }

    // The line that a view draws; copied, because the next tick replaces it.
    static ShapeLayer line(const AnimationView &view)
    {
        EXPECT_TRUE(view.shapeLayer());
        return view.shapeLayer() ? *view.shapeLayer() : ShapeLayer();
    }

    static void setAppearance(QRgb ground, QRgb text)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor::fromRgb(ground));
        palette.setColor(QPalette::WindowText, QColor::fromRgb(text));
        QGuiApplication::setPalette(palette);
    }

    void invalidateTimer(std::size_t index = 0)
    {
        const auto timer = platform->timers.at(index).lock();
        ASSERT_TRUE(timer);
        timer->invalidate();
    }

    InstalledRecordingPlatform platform;
};

// Making one.

TEST_F(Background, IsMadeWithAFrameAndNothingElse)
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

TEST_F(Background, DecodedFromAQmlFileWorksLikeOneMadeInCode)
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

TEST_F(Background, DecodedOutOfALargerFileBelongsToItNoLonger)
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

TEST_F(Background, WhatIsNoBackgroundDecodesToNothing)
{
    bool destroyed = false;
    auto item = std::make_unique<QQuickItem>();
    QObject::connect(item.get(), &QObject::destroyed, [&] { destroyed = true; });
    EXPECT_FALSE(AnimationView::initDecoded(std::move(item)));
    EXPECT_TRUE(destroyed);
    EXPECT_FALSE(AnimationView::initDecoded(nullptr));
}

TEST_F(Background, TakesNoInput)
{
    const auto view = ticking();
    EXPECT_EQ(view->acceptedMouseButtons(), Qt::NoButton);
    EXPECT_FALSE(view->acceptTouchEvents());
    EXPECT_FALSE(view->acceptHoverEvents());
    EXPECT_FALSE(view->flags().testFlag(QQuickItem::ItemIsFocusScope));
}

// Starting.

TEST_F(Background, StartsInTheOrderCreateStoreFireSchedule)
{
    const auto view = AnimationView::initWithFrame({});
    platform->calls.clear();
    // What an item does as the first tick takes it off happens while the timer fires.
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

TEST_F(Background, TheFirstTickRunsBeforeCreateTimerReturns)
{
    EXPECT_EQ(line(*ticking()).path.curves.size(), 4U);
}

TEST_F(Background, ASecondCreateTimerChangesNothing)
{
    const auto view = ticking();
    const ShapeLayer first = line(*view);
    platform->calls.clear();
    view->createTimer();
    EXPECT_EQ(platform->calls, QStringList());
    EXPECT_EQ(line(*view), first);
    EXPECT_EQ(platform->timers.size(), 1U);
}

TEST_F(Background, TicksEveryTenSecondsFromTheMakingOfTheTimer)
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

TEST_F(Background, AfterAStallOneTickRunsAndTheGridStays)
{
    const auto view = ticking();
    platform->stall(47);
    platform->advance(0);
    EXPECT_EQ(line(*view).animations().front().beginTime, 47);
    platform->advance(3);
    EXPECT_EQ(line(*view).animations().front().beginTime, 50);
}

TEST_F(Background, TheTickIsASlotThatTheObjectSystemKnows)
{
    const int index = AnimationView::staticMetaObject.indexOfSlot("updateTimer()");
    ASSERT_GE(index, 0);
    EXPECT_EQ(AnimationView::staticMetaObject.method(index).access(), QMetaMethod::Private);
}

// The line of a tick.

TEST_F(Background, ItsLineIsTwoPointsWideAndCloses)
{
    const ShapeLayer drawn = line(*ticking());
    EXPECT_EQ(drawn.lineWidth, 2);
    EXPECT_TRUE(drawn.path.isClosed);
    ASSERT_EQ(drawn.path.curves.size(), 4U);
    EXPECT_EQ(drawn.path.curves.back().end, drawn.path.start);
    EXPECT_EQ(drawn.model, Presentation()) << "opaque and whole while nothing animates";
}

TEST_F(Background, ItsAnimationsFadeInDrawAndBeginToFadeOut)
{
    platform->stall(5);
    const std::vector<BasicAnimation> expected{{KeyPath::opacity, 0, 1, 1, 5, {}},
                                               {KeyPath::strokeEnd, 0, 1, 9, 5, {}},
                                               {KeyPath::opacity, 1, 0, 1, 5 + 9.2, {}}};
    EXPECT_EQ(line(*ticking()).animations(), expected);
}

TEST_F(Background, GrowsFromItsFirstPointInTheOrderOfThePath)
{
    const ShapeLayer drawn = line(*ticking());
    EXPECT_EQ(drawn.presentation(0), (Presentation{0, 0}));
    EXPECT_EQ(drawn.presentation(4.5), (Presentation{1, 0.5}));
    EXPECT_EQ(drawn.presentation(9.1), (Presentation{1, 1}));
}

TEST_F(Background, TheNextTickComesWhenAFifthOfTheLineIsLeft)
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

TEST_F(Background, EachLineGoesOnceAroundTheScreenThroughItsFourQuarters)
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

TEST_F(Background, IsLaidOutForTheScreenOfItsMakingWhateverItsSize)
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

TEST_F(Background, LeftClearDrawsBlackAtAFifth)
{
    EXPECT_EQ(line(*ticking()).strokeColor, (Rgba{0, 0, 0, 0.2F}));
}

TEST_F(Background, TheAlphaIsReplacedWhateverItWas)
{
    for (const float alpha : {0.0F, 0.1F, 0.2F, 0.5F, 1.0F})
        EXPECT_EQ(line(*ticking(Rgba{0.25F, 0.5F, 0.75F, alpha})).strokeColor, (Rgba{0.25F, 0.5F, 0.75F, 0.2F}));
}

TEST_F(Background, AColourStaysUntilTheNextTick)
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

TEST_F(Background, TakesLightOrDarkAtItsTickAndKeepsIt)
{
    setAppearance(qRgb(250, 250, 250), qRgb(0, 0, 0));
    const auto view = ticking(Color(Rgba{1, 0, 0}, Rgba{0, 0, 1}));
    EXPECT_EQ(line(*view).strokeColor, (Rgba{1, 0, 0, 0.2F}));
    setAppearance(qRgb(20, 20, 20), qRgb(240, 240, 240));
    EXPECT_EQ(line(*view).strokeColor, (Rgba{1, 0, 0, 0.2F}));
    platform->advance(10);
    EXPECT_EQ(line(*view).strokeColor, (Rgba{0, 0, 1, 0.2F}));
}

// One layer at a time.

TEST_F(Background, EachTickTakesOffAllItemsThatOthersAddedAndDestroysNone)
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

TEST_F(Background, TheOldLineGoesBeforeTheNewOneIsMade)
{
    const auto view = ticking();
    QQuickItem child(view.get());
    bool gone = false;
    QObject::connect(&child, &QQuickItem::parentChanged, &child, [&] { gone = !view->shapeLayer(); });
    platform->advance(10);
    EXPECT_TRUE(gone);
    EXPECT_TRUE(view->shapeLayer());
}

TEST_F(Background, AnItemThatDestroysOrMovesOthersAsItIsTakenOffDoesNoHarm)
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

// When it asks for frames.

/// Counts how often it is asked what to draw.
class CountedView : public AnimationView
{
public:
    int drawn = 0;

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override
    {
        ++drawn;
        return AnimationView::updatePaintNode(node, data);
    }
};

TEST_F(Background, IsDrawnAnewAtEachTickAndOnlyThen)
{
    QQuickWindow window;
    CountedView view;
    view.setParentItem(window.contentItem());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    view.createTimer();
    window.grabWindow();
    EXPECT_GT(view.drawn, 0);
    for (int tick = 0; tick < 3; ++tick) {
        const int before = view.drawn;
        view.setColor(Rgba{1, 0, 0});
        platform->advance(9);
        window.grabWindow();
        EXPECT_EQ(view.drawn, before);
        platform->advance(1);
        window.grabWindow();
        EXPECT_EQ(view.drawn, before + 1);
    }
}

TEST_F(Background, ThatIsInvisibleAsksForNoFrameAndIsDrawnWhenItIsSeenAgain)
{
    QQuickWindow window;
    QQuickItem page;
    page.setParentItem(window.contentItem());
    CountedView view;
    view.setParentItem(&page);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    view.createTimer();
    window.grabWindow();
    EXPECT_GT(view.drawn, 0);
    page.setVisible(false);
    window.grabWindow();
    QCoreApplication::processEvents();
    int frames = 0;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&] { ++frames; });
    const int before = view.drawn;
    platform->advance(30);
    QTest::qWait(50); // as long as a frame that was asked for would take
    EXPECT_EQ(frames, 0);
    EXPECT_EQ(view.drawn, before);
    page.setVisible(true);
    window.grabWindow();
    EXPECT_EQ(view.drawn, before + 1);
}

// Who holds it.

TEST_F(Background, NeverStartedGoesWithItsLastHolder)
{
    auto view = AnimationView::initWithFrame({});
    const std::weak_ptr<AnimationView> watched = view;
    view.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_FALSE(platform->calls.contains(QStringLiteral("timer.invalidate()")));
}

TEST_F(Background, OnceStartedItsTimerHoldsIt)
{
    const std::weak_ptr<AnimationView> view = ticking();
    ASSERT_FALSE(view.expired());
    const ShapeLayer before = line(*view.lock());
    platform->advance(10);
    ASSERT_FALSE(view.expired());
    EXPECT_NE(line(*view.lock()), before) << "and it ticks without a window";
}

TEST_F(Background, KeepsTickingWhenItIsTakenOffAndWhenItsWindowGoes)
{
    const std::weak_ptr<AnimationView> watched = ticking();
    {
        QQuickWindow window;
        watched.lock()->setParentItem(window.contentItem());
        platform->advance(10);
        watched.lock()->setParentItem(nullptr);
        const ShapeLayer before = line(*watched.lock());
        platform->advance(10);
        EXPECT_NE(line(*watched.lock()), before);
        watched.lock()->setParentItem(window.contentItem());
    }
    ASSERT_FALSE(watched.expired());
    EXPECT_FALSE(watched.lock()->window());
    const ShapeLayer before = line(*watched.lock());
    platform->advance(10);
    EXPECT_NE(line(*watched.lock()), before);
}

TEST_F(Background, GoesWhenItsTimerIsInvalidatedFromOutside)
{
    const std::weak_ptr<AnimationView> view = ticking();
    platform->calls.clear();
    invalidateTimer();
    EXPECT_TRUE(view.expired());
    EXPECT_EQ(platform->calls.count(QStringLiteral("timer.invalidate()")), 2) << "once more by its teardown";
    EXPECT_TRUE(platform->timers.front().expired());
    platform->advance(100);
}

TEST_F(Background, WhoseTimerWasInvalidatedStaysStillAndIsHeldByItsHostAlone)
{
    auto view = ticking();
    const std::weak_ptr<AnimationView> watched = view;
    const ShapeLayer last = line(*view);
    invalidateTimer();
    platform->advance(100);
    EXPECT_EQ(line(*view), last);
    view->createTimer();
    EXPECT_EQ(platform->timers.size(), 1U) << "its timer is set all the same";
    view.reset();
    EXPECT_TRUE(watched.expired());
}

TEST_F(Background, ATimerInvalidatedDuringTheFirstTickEndsIt)
{
    auto view = AnimationView::initWithFrame({});
    const std::weak_ptr<AnimationView> watched = view;
    QQuickItem child(view.get());
    child.setParent(nullptr);
    QObject::connect(&child, &QQuickItem::parentChanged, &child, [&] { invalidateTimer(); });
    AnimationView *raw = view.get();
    QObject::connect(&child, &QQuickItem::parentChanged, &child, [&] { view.reset(); });
    raw->createTimer();
    EXPECT_TRUE(watched.expired()) << "and createTimer() came to its end all the same";
    platform->advance(100);
}

TEST_F(Background, ThatNoSharedPointerHoldsTakesItsTimerWithIt)
{
    {
        AnimationView view;
        view.createTimer();
        EXPECT_TRUE(view.shapeLayer());
        platform->advance(10);
    }
    EXPECT_EQ(platform->calls.last(), QStringLiteral("timer.invalidate()"));
    platform->advance(100);
}

TEST_F(Background, ManyTickIndependently)
{
    std::vector<std::shared_ptr<AnimationView>> views;
    for (int count = 0; count < 20; ++count) {
        views.push_back(ticking());
        platform->advance(0.25);
    }
    platform->advance(100);
    for (std::size_t index = 0; index < views.size(); ++index)
        EXPECT_EQ(line(*views[index]).animations().front().beginTime, 100 + 0.25 * static_cast<double>(index));
}

// What stops the process.

TEST_F(Background, CanBeMadeWithoutAScreen)
{
    platform->bounds = {0, 0};
    EXPECT_FALSE(AnimationView::initWithFrame({})->shapeLayer());
}

using BackgroundDeathTest = Background;

TEST_F(BackgroundDeathTest, ATickOnAScreenLessThanTwoPointsWideOrHighStopsTheProcess)
{
    for (const QSizeF &bounds : {QSizeF(0, 0), QSizeF(1.9, 844), QSizeF(390, 1.9)}) {
        // A point in the very middle of its range divides by nothing, so several ticks it is.
        const auto tickAFewTimes = [&] {
            platform->bounds = bounds;
            const auto view = ticking();
            platform->advance(100);
        };
        EXPECT_EXIT(tickAFewTimes(), testing::KilledBySignal(trapSignal), "");
    }
}

TEST_F(BackgroundDeathTest, AScreenThatIsNotFiniteOrNegativeOrTooLargeStopsTheProcess)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const QSizeF &bounds : {QSizeF(std::numeric_limits<double>::quiet_NaN(), 844), QSizeF(390, infinity),
                                 QSizeF(-390, 844), QSizeF(390, -844), QSizeF(1e19, 844)}) {
        EXPECT_EXIT((platform->bounds = bounds, AnimationView::initWithFrame({})), testing::KilledBySignal(trapSignal),
                    "");
    }
}

TEST_F(BackgroundDeathTest, OverflowStopsTheProcess)
{
    EXPECT_EXIT((platform->bounds = QSizeF(1e18, 1e18), ticking()), testing::KilledBySignal(trapSignal), "");
}

// A hundred and sixteen days of ticks.

#ifdef __GLIBC__
TEST_F(Background, AMillionTicksKeepTheGridAndTheMemory)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    constexpr int ticks = 50'000;
#else
    constexpr int ticks = 1'000'000;
#endif
    constexpr int warmUp = 1000;
    platform->records = false;
    QQuickWindow window;
    window.show();
    const auto view = ticking(Rgba{1, 0, 0});
    view->setParentItem(window.contentItem());
    std::size_t usedBefore = 0;
    for (int tick = 1; tick <= ticks; ++tick) {
        platform->advance(10);
        ASSERT_EQ(view->shapeLayer()->animations().front().beginTime, 10.0 * tick);
        ASSERT_EQ(view->shapeLayer()->animations().size(), 3U);
        if (tick == warmUp)
            usedBefore = mallinfo2().uordblks;
    }
    EXPECT_NEAR(static_cast<double>(mallinfo2().uordblks), static_cast<double>(usedBefore), 4096);
    EXPECT_EQ(platform->timers.size(), 1U);
}
#endif

TEST(BackgroundAlone, OutlivesThePlatformThatMadeItsTimer)
{
    std::shared_ptr<AnimationView> view;
    {
        const InstalledRecordingPlatform platform;
        view = AnimationView::initWithFrame({});
        view->createTimer();
    }
    const QPointer<AnimationView> observed = view.get();
    view.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(observed);
}

} // namespace
} // namespace TQFoundation
