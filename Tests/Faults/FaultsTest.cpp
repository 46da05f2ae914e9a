#include "AnimationView.h"
#include "Environment.h"
#include "GuideHost.h"
#include "ShapeLayer.h"

#include <QtGui/qimage.h>
#include <QtQuick/qquickitem.h>

#include <memory>

namespace TQFoundation {
namespace {

/// An app whose guide lies over its background when something goes wrong.
class Fault : public Testing::GuideHost
{
protected:
    Fault()
    {
        background->setParentItem(window.contentItem());
        background->setColor(Color::systemRed());
        background->createTimer();
    }

    std::shared_ptr<AnimationView> background = AnimationView::initWithFrame({0, 0, 390, 700});
};

TEST_F(Fault, AScreenThatIsUnpluggedChangesNothingForWhatIsShown)
{
    const auto guide = shown(paragraphs(2));
    clock.pass(600);
    platform->bounds = {0, 0};
    platform->scale = 1;
    platform->scenes = {};
    platform->advance(35);
    EXPECT_EQ(background->shapeLayer()->animations().front().beginTime, 30);
    EXPECT_EQ(screenWidth(), 390) << "as it was first read";
    guide->nextGuide();
    clock.pass(800);
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EQ(completed, 1);
    EXPECT_FALSE(guide->parentItem());
}

TEST_F(Fault, AGuideThatIsMadeWithoutAScreenIsEmptyButGoesOn)
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

TEST_F(Fault, WhatLosesItsWindowIsDrawnTheSameInAnother)
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
    // The background still shines through.
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
