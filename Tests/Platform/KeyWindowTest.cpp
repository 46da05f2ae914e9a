#include "KeyWindow.h"
#include "RecordingPlatform.h"
#include "Scenes.h"

#include <QtQuick/qquickwindow.h>

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

using Testing::keyScene;
using Testing::scene;

class KeyWindow : public testing::Test
{
protected:
    Testing::InstalledRecordingPlatform platform;
    QQuickWindow window;
    QQuickWindow other;
};

TEST_F(KeyWindow, IsNullWithoutScenes)
{
    EXPECT_EQ(keyWindow(), nullptr);
}

TEST_F(KeyWindow, IsFirstKeyWindowOfActiveScene)
{
    platform->scenes = {scene(ActivationState::foregroundActive, {&other, &window}, &window)};
    EXPECT_EQ(keyWindow(), &window);
    platform->scenes = keyScene(&window) + keyScene(&other);
    platform->scenes[0].windows += platform->scenes[1].windows;
    EXPECT_EQ(keyWindow(), &window);
}

TEST_F(KeyWindow, SkipsInactiveScenes)
{
    for (const auto state :
         {ActivationState::foregroundInactive, ActivationState::background, ActivationState::unattached}) {
        platform->scenes = {scene(state, {&window}, &window),
                            scene(ActivationState::foregroundActive, {&other}, &other)};
        EXPECT_EQ(keyWindow(), &other);
        platform->scenes.removeLast();
        EXPECT_EQ(keyWindow(), nullptr);
    }
}

TEST_F(KeyWindow, SkipsScenesThatAreNotWindowScenes)
{
    Scene car = scene(ActivationState::foregroundActive, {&window}, &window);
    car.isWindowScene = false;
    platform->scenes = {car, scene(ActivationState::foregroundActive, {&other}, &other)};
    EXPECT_EQ(keyWindow(), &other);
}

TEST_F(KeyWindow, TriesNoOtherSceneThanTheFirst)
{
    const Scene second = scene(ActivationState::foregroundActive, {&other}, &other);
    platform->scenes = {scene(ActivationState::foregroundActive, {&window}), second};
    EXPECT_EQ(keyWindow(), nullptr) << "no window is key";
    platform->scenes = {scene(ActivationState::foregroundActive, {}), second};
    EXPECT_EQ(keyWindow(), nullptr) << "no window at all";
}

TEST_F(KeyWindow, IsNullIfNotQuickOrDestroyed)
{
    QWindow plain;
    platform->scenes = keyScene(&plain);
    EXPECT_EQ(keyWindow(), nullptr);
    {
        QQuickWindow destroyed;
        platform->scenes = keyScene(&destroyed);
    }
    EXPECT_EQ(keyWindow(), nullptr);
}

TEST_F(KeyWindow, IsLookedUpAtEachCall)
{
    platform->scenes = keyScene(&window);
    EXPECT_EQ(keyWindow(), &window);
    platform->scenes = keyScene(&other);
    EXPECT_EQ(keyWindow(), &other);
}

} // namespace
} // namespace TQFoundation
