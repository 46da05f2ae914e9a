#include "RecordingPlatform.h"
#include "Scenes.h"

#include <TQFoundation/TQMore.h>
#include <TQFoundation/ViewController.h>

#include <QtQuick/qquickwindow.h>

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

using Testing::keyScene;
using Testing::scene;

class TQMoreTopViewController : public testing::Test
{
protected:
    Testing::InstalledRecordingPlatform platform;
    QQuickWindow window;
    QQuickWindow other;
};

TEST_F(TQMoreTopViewController, IsTheRootOfTheKeyWindow)
{
    platform->scenes = {scene(ActivationState::foregroundActive, {&other, &window}, &window)};
    EXPECT_EQ(TQMore::topViewController(), ViewController::rootOf(&window));
    EXPECT_EQ(TQMore::topViewController()->view(), window.contentItem());
}

TEST_F(TQMoreTopViewController, IsNullWithoutScenes)
{
    EXPECT_EQ(TQMore::topViewController(), nullptr);
}

TEST_F(TQMoreTopViewController, IgnoresInactiveScenes)
{
    for (const auto state :
         {ActivationState::foregroundInactive, ActivationState::background, ActivationState::unattached}) {
        platform->scenes = {scene(state, {&window}, &window)};
        EXPECT_EQ(TQMore::topViewController(), nullptr);
        platform->scenes += scene(ActivationState::foregroundActive, {&other}, &other);
        EXPECT_EQ(TQMore::topViewController(), ViewController::rootOf(&other));
    }
}

TEST_F(TQMoreTopViewController, IgnoresScenesThatAreNoWindowScenes)
{
    Scene car = scene(ActivationState::foregroundActive, {&window}, &window);
    car.isWindowScene = false;
    platform->scenes = {car};
    EXPECT_EQ(TQMore::topViewController(), nullptr);
    platform->scenes += scene(ActivationState::foregroundActive, {&other}, &other);
    EXPECT_EQ(TQMore::topViewController(), ViewController::rootOf(&other));
}

TEST_F(TQMoreTopViewController, IsNullIfTheFirstSceneHasNoKeyWindow)
{
    platform->scenes = {scene(ActivationState::foregroundActive, {&window}),
                        scene(ActivationState::foregroundActive, {&other}, &other)};
    EXPECT_EQ(TQMore::topViewController(), nullptr);
}

TEST_F(TQMoreTopViewController, UsesTheFirstOfSeveralKeyWindows)
{
    platform->scenes = keyScene(&window) + keyScene(&other);
    platform->scenes[0].windows += platform->scenes[1].windows;
    EXPECT_EQ(TQMore::topViewController(), ViewController::rootOf(&window));
}

TEST_F(TQMoreTopViewController, IsNullForAWindowWithoutQtQuick)
{
    QWindow plain;
    platform->scenes = keyScene(&plain);
    EXPECT_EQ(TQMore::topViewController(), nullptr);
}

TEST_F(TQMoreTopViewController, IsNullForADestroyedWindow)
{
    {
        QQuickWindow gone;
        platform->scenes = keyScene(&gone);
    }
    EXPECT_EQ(TQMore::topViewController(), nullptr);
}

TEST_F(TQMoreTopViewController, FollowsTheChainOfPresentations)
{
    platform->scenes = keyScene(&window);
    const auto a = std::make_shared<ViewController>();
    const auto b = std::make_shared<ViewController>();
    TQMore::topViewController()->present(a);
    EXPECT_EQ(TQMore::topViewController(), a);
    TQMore::topViewController()->present(b);
    EXPECT_EQ(TQMore::topViewController(), b);
    a->dismiss();
    EXPECT_EQ(TQMore::topViewController(), a);
}

TEST_F(TQMoreTopViewController, EntersNoContainers)
{
    platform->scenes = keyScene(&window);
    QQuickItem page(window.contentItem());
    const ViewController childOfTheRoot(&page);
    EXPECT_EQ(TQMore::topViewController()->view(), window.contentItem());
}

TEST_F(TQMoreTopViewController, IsLookedUpAtEachCall)
{
    platform->scenes = keyScene(&window);
    const auto first = TQMore::topViewController();
    platform->scenes = keyScene(&other);
    EXPECT_NE(TQMore::topViewController(), first);
    EXPECT_EQ(platform->calls.count(QStringLiteral("connectedScenes()")), 2);
}

} // namespace
} // namespace TQFoundation
