#include "AnimationView.h"
#include "Environment.h"
#include "GuideHost.h"
#include "ShapeLayer.h"

#include <QtGui/qimage.h>
#include <QtQuick/qquickitem.h>

#include <memory>

namespace TQFoundation {
namespace {

/// An app that shows a guide over a background while a fault occurs.
class FaultTolerance : public Testing::GuideHost
{
protected:
    FaultTolerance()
    {
        background->setParentItem(window.contentItem());
        background->setColor(Color::systemRed());
        background->createTimer();
    }

    std::shared_ptr<AnimationView> background = AnimationView::initWithFrame({0, 0, 390, 700});
};

TEST_F(FaultTolerance, GuideAndBackgroundContinueWithoutScreen)
{
    const auto guide = shown(paragraphs(2));
    clock.pass(600);
    platform->bounds = {0, 0};
    platform->scale = 1;
    platform->scenes = {};
    platform->advance(35);
    EXPECT_EQ(background->shapeLayer()->animations().front().beginTime, 30);
    EXPECT_EQ(screenWidth(), 390) << "the value that was read first";
    guide->nextGuide();
    clock.pass(800);
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EQ(completed, 1);
    EXPECT_FALSE(guide->parentItem());
}

TEST_F(FaultTolerance, GuideMadeWithoutScreenIsEmptyButFinishes)
{
    platform->bounds = {0, 0};
    platform->scenes = {};
    const auto guide = made(paragraphs(2));
    EXPECT_EQ(guide->size(), QSizeF(0, 0));
    guide->showGuide(&window);
    clock.pass(600);
    EXPECT_EQ(guide->parentItem(), window.contentItem());
    guide->nextGuide();
    clock.pass(800);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 1"));
    guide->nextGuide();
    clock.pass(600);
    EXPECT_FALSE(guide->parentItem());
}

TEST_F(FaultTolerance, ItemsLookTheSameAfterTheirWindowIsDestroyed)
{
    auto first = std::make_unique<QQuickWindow>();
    QQuickWindow second;
    for (QQuickWindow *each : {first.get(), &second}) {
        each->resize(window.size());
        each->setColor(Qt::white);
        each->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(each));
    }
    platform->scenes = {};
    background->setParentItem(first->contentItem());
    const auto guide = made(paragraphs(1));
    guide->showGuide(first.get());
    // Halfway through the fade-in, so that the background is visible through the guide.
    clock.pass(300);
    platform->advance(4.5);
    const QImage before = first->grabWindow();
    const QImage bare = second.grabWindow();
    background->setParentItem(second.contentItem());
    guide->setParentItem(second.contentItem());
    first.reset();
    const QImage after = second.grabWindow();
    EXPECT_FALSE(before.isNull());
    EXPECT_FALSE(bare == after);
    EXPECT_TRUE(before == after);
    guide->nextGuide();
    clock.pass(600);
    EXPECT_FALSE(guide->parentItem());
}

} // namespace
} // namespace TQFoundation
