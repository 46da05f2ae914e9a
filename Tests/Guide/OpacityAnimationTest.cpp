#include "OpacityAnimation.h"
#include "GuideHost.h"

#include <QtQuick/qquickitem.h>

namespace TQFoundation {
namespace {

using OpacityAnimation = Testing::GuideHost;

// Value of the cubic Bézier curve with the control points (0.42, 0) and (0.58, 1) at \a progress.
double easeInOut(double progress)
{
    double low = 0;
    double high = 1;
    for (int halving = 0; halving < 60; ++halving) {
        const double t = (low + high) / 2;
        const double x = 3 * (1 - t) * (1 - t) * t * 0.42 + 3 * (1 - t) * t * t * 0.58 + t * t * t;
        (x < progress ? low : high) = t;
    }
    return 3 * (1 - low) * low * low + low * low * low;
}

TEST_F(OpacityAnimation, FollowsEaseInOut)
{
    QQuickItem item;
    item.setOpacity(0.2);
    animateOpacity(&item, 0.7, 0.4, [] {});
    for (int tenth = 0; tenth <= 10; ++tenth) {
        EXPECT_NEAR(item.opacity(), 0.2 + 0.5 * easeInOut(tenth / 10.0), 1e-3) << tenth;
        clock.pass(40);
    }
    EXPECT_EQ(item.opacity(), 0.7);
}

TEST_F(OpacityAnimation, FollowsEaseInOutInGuide)
{
    EXPECT_NEAR(easeInOut(0.5), 0.5, 1e-9);
    const auto guide = shown(paragraphs(2));
    QList<double> fadeIn{guide->opacity()};
    for (int moment = 0; moment < 4; ++moment) {
        clock.pass(200);
        fadeIn += guide->opacity();
    }
    const QList<double> expected{0, easeInOut(1.0 / 3), easeInOut(2.0 / 3), 1, 1};
    for (int moment = 0; moment < 5; ++moment)
        EXPECT_NEAR(fadeIn[moment], expected[moment], 1e-3) << moment;

    guide->nextGuide();
    QList<double> change{guide->guideLabel()->opacity()};
    for (int moment = 0; moment < 4; ++moment) {
        clock.pass(200);
        change += guide->guideLabel()->opacity();
    }
    const QList<double> expectedChange{1, 0.5, 0, 0.5, 1};
    for (int moment = 0; moment < 5; ++moment)
        EXPECT_NEAR(change[moment], expectedChange[moment], 1e-3) << moment;
    EXPECT_EQ(guide->opacity(), 1) << "only the label changes";

    guide->nextGuide();
    QList<double> fadeOut{guide->opacity()};
    for (int moment = 0; moment < 4; ++moment) {
        clock.pass(200);
        fadeOut += guide->opacity();
    }
    const QList<double> expectedOut{1, easeInOut(2.0 / 3), easeInOut(1.0 / 3), 0, 0};
    for (int moment = 0; moment < 5; ++moment)
        EXPECT_NEAR(fadeOut[moment], expectedOut[moment], 1e-3) << moment;
}

TEST_F(OpacityAnimation, CompletesOnceAfterItsFullDuration)
{
    QQuickItem item;
    QStringList completions;
    animateOpacity(&item, 0, 0.4, [&] { completions += QStringLiteral("first"); });
    clock.pass(200);
    animateOpacity(&item, 1, 0.4, [&] { completions += QStringLiteral("second"); });
    EXPECT_NEAR(item.opacity(), 0.5, 1e-3) << "starts from the current value";
    clock.pass(190);
    EXPECT_EQ(completions, QStringList());
    clock.pass(10);
    EXPECT_EQ(completions, QStringList(QStringLiteral("first")));
    EXPECT_GT(item.opacity(), 0.5) << "the later animation owns the opacity";
    clock.pass(200);
    EXPECT_EQ(completions, QStringList({QStringLiteral("first"), QStringLiteral("second")}));
    clock.pass(1000);
    EXPECT_EQ(completions.size(), 2);
}

TEST_F(OpacityAnimation, LeavesOtherItemsAlone)
{
    QQuickItem one;
    QQuickItem other;
    animateOpacity(&one, 0, 0.4, [] {});
    animateOpacity(&other, 0.5, 0.4, [] {});
    clock.pass(400);
    EXPECT_EQ(one.opacity(), 0);
    EXPECT_EQ(other.opacity(), 0.5);
}

TEST_F(OpacityAnimation, CompletesWithoutItsItem)
{
    auto item = std::make_unique<QQuickItem>();
    const auto captured = std::make_shared<int>(0);
    animateOpacity(item.get(), 0, 0.4, [captured] { ++*captured; });
    item.reset();
    clock.pass(390);
    EXPECT_EQ(*captured, 0);
    EXPECT_EQ(captured.use_count(), 2);
    clock.pass(10);
    EXPECT_EQ(*captured, 1);
    EXPECT_EQ(captured.use_count(), 1) << "the completion is released";
}

} // namespace
} // namespace TQFoundation
