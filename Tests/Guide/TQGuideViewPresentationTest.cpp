#include "DeathTest.h"
#include "GuideHost.h"
#include "QmlWindow.h"

#include <QtQuick/qquickitem.h>

#include <cstdio>
#include <limits>

namespace TQFoundation {
namespace {

using Testing::keyScene;
using Testing::NibBundle;
using Testing::QmlWindow;
using Testing::scene;
using Testing::trapSignal;

class TQGuideViewPresentation : public Testing::GuideHost
{
protected:
    // The parent of a guide that is shown with the given fallbacks.
    QQuickItem *hostChosen(QQuickWindow *inWindow, QQuickItem *orInView)
    {
        guide = made(paragraphs(1));
        guide->showGuide(inWindow, orInView);
        return guide->parentItem();
    }

    QQuickWindow other;
    QQuickItem view;
    std::shared_ptr<TQGuideView> guide;
};

// Choice of the host.

TEST_F(TQGuideViewPresentation, PrefersKeyWindowToArguments)
{
    EXPECT_EQ(hostChosen(&other, &view), window.contentItem());
}

TEST_F(TQGuideViewPresentation, UsesGivenWindowWithoutActiveScene)
{
    for (const ActivationState state :
         {ActivationState::foregroundInactive, ActivationState::background, ActivationState::unattached}) {
        platform->scenes = {scene(state, {&window}, &window)};
        EXPECT_EQ(hostChosen(&other, &view), other.contentItem());
    }
    platform->scenes = {};
    EXPECT_EQ(hostChosen(&other, &view), other.contentItem());
}

TEST_F(TQGuideViewPresentation, UsesGivenViewWithoutActiveScene)
{
    platform->scenes = {};
    EXPECT_EQ(hostChosen(nullptr, &view), &view);
}

TEST_F(TQGuideViewPresentation, UsesArgumentsWithoutKeyWindow)
{
    platform->scenes = {scene(ActivationState::foregroundActive, {&window})};
    EXPECT_EQ(hostChosen(&other, &view), other.contentItem());
    EXPECT_EQ(hostChosen(nullptr, &view), &view);
}

TEST_F(TQGuideViewPresentation, SearchesFirstActiveSceneOnly)
{
    platform->scenes = {scene(ActivationState::foregroundActive, {&window}),
                        scene(ActivationState::foregroundActive, {&other}, &other)};
    EXPECT_EQ(hostChosen(nullptr, &view), &view);
}

TEST_F(TQGuideViewPresentation, UsesArgumentsIfKeyWindowIsNotQuick)
{
    QWindow plain;
    platform->scenes = keyScene(&plain);
    EXPECT_EQ(hostChosen(&other, nullptr), other.contentItem());
}

TEST_F(TQGuideViewPresentation, FadesInWithoutHost)
{
    platform->scenes = {};
    EXPECT_EQ(hostChosen(nullptr, nullptr), nullptr);
    EXPECT_EQ(guide->window(), nullptr);
    EXPECT_EQ(guide->opacity(), 0);
    clock.pass(600);
    EXPECT_EQ(guide->opacity(), 1);
    EXPECT_EQ(guide->parentItem(), nullptr);
}

TEST_F(TQGuideViewPresentation, UsesKeyWindowInAnyOrder)
{
    for (QQuickWindow *key : {&window, &other}) {
        platform->scenes = {scene(ActivationState::foregroundActive, {&window, &other}, key)};
        EXPECT_EQ(hostChosen(&window, &view), key->contentItem());
    }
}

// Effects of the call.

TEST_F(TQGuideViewPresentation, ShowsTextAtOnceAndFadesIn)
{
    const auto shownGuide = shown(paragraphs(2));
    EXPECT_EQ(textOf(*shownGuide), QStringLiteral("Paragraph 0"));
    EXPECT_EQ(shownGuide->opacity(), 0);
    EXPECT_TRUE(shownGuide->nextButton()->isEnabled());
    clock.pass(590);
    EXPECT_LT(shownGuide->opacity(), 1);
    clock.pass(10);
    EXPECT_EQ(shownGuide->opacity(), 1);
}

TEST_F(TQGuideViewPresentation, TakesItsStepsInOrder)
{
    guide = made(paragraphs(1));
    platform->calls.clear();
    const auto note = [this](const char *step) {
        return [this, step] {
            if (!platform->calls.contains(QLatin1String(step)))
                platform->calls += QLatin1String(step);
        };
    };
    QObject::connect(guide.get(), &QQuickItem::opacityChanged, guide.get(), [&] {
        note(guide->opacity() == 0 ? "transparent" : guide->opacity() == 1 ? "opaque" : "fading")();
    });
    QObject::connect(guide->guideLabel(), SIGNAL(textChanged(QString)), guide.get(), SIGNAL(backgroundColorChanged()));
    QObject::connect(guide.get(), &TQGuideView::backgroundColorChanged, guide.get(), note("text"));
    QObject::connect(guide.get(), &QQuickItem::parentChanged, guide.get(), note("added"));
    guide->showGuide();
    clock.pass(600);
    EXPECT_EQ(platform->calls,
              (QStringList{QStringLiteral("transparent"), QStringLiteral("text"), QStringLiteral("connectedScenes()"),
                           QStringLiteral("added"), QStringLiteral("fading"), QStringLiteral("opaque")}));
}

TEST_F(TQGuideViewPresentation, StopsProcessWithoutParagraphs)
{
    EXPECT_EXIT(
        {
            guide = made({});
            QObject::connect(guide.get(), &QQuickItem::parentChanged, guide.get(),
                             [] { std::fprintf(stderr, "added"); });
            guide->showGuide();
        },
        testing::KilledBySignal(trapSignal), Testing::noMessage);
}

TEST_F(TQGuideViewPresentation, StopsProcessWithoutLabel)
{
    const NibBundle bundle("import TQFoundation\nTQGuideView {}");
    platform->root = bundle.root();
    guide = made(paragraphs(1));
    EXPECT_EXIT(guide->showGuide(), testing::KilledBySignal(trapSignal), "");
}

TEST_F(TQGuideViewPresentation, KeepsFrameInHostCoordinates)
{
    platform->scenes = {};
    view.setParentItem(window.contentItem());
    view.setPosition({40, 50});
    view.setSize({100, 100});
    EXPECT_EQ(hostChosen(nullptr, &view), &view);
    EXPECT_EQ(guide->position(), QPointF(0, 0));
    EXPECT_EQ(guide->size(), platform->bounds);
    EXPECT_EQ(guide->mapToScene({0, 0}), QPointF(40, 50));
}

TEST_F(TQGuideViewPresentation, RepeatsStepsAtSecondCall)
{
    const auto shownGuide = shown(paragraphs(3));
    clock.pass(600);
    shownGuide->nextGuide();
    clock.pass(800);
    platform->scenes = keyScene(&other);
    shownGuide->showGuide();
    EXPECT_EQ(shownGuide->opacity(), 0);
    EXPECT_EQ(textOf(*shownGuide), QStringLiteral("Paragraph 1")) << "the current paragraph";
    EXPECT_EQ(shownGuide->parentItem(), other.contentItem());
    clock.pass(600);
    EXPECT_EQ(shownGuide->opacity(), 1);
}

TEST_F(TQGuideViewPresentation, RestartsFadeInAtSecondCall)
{
    const auto shownGuide = shown(paragraphs(1));
    clock.pass(300);
    shownGuide->showGuide();
    EXPECT_EQ(shownGuide->opacity(), 0);
    clock.pass(300);
    EXPECT_NEAR(shownGuide->opacity(), 0.5, 1e-3);
    clock.pass(300);
    EXPECT_EQ(shownGuide->opacity(), 1);
}

TEST_F(TQGuideViewPresentation, StopsProcessIfShownAfterEnd)
{
    const auto shownGuide = shown(paragraphs(1));
    clock.pass(600);
    shownGuide->nextGuide();
    clock.pass(300);
    platform->scenes = keyScene(&other);
    EXPECT_EXIT(shownGuide->showGuide(), testing::KilledBySignal(trapSignal), "") << "the index is past the end";
    clock.pass(300);
    EXPECT_EQ(shownGuide->parentItem(), nullptr);
}

// Stacking order.

TEST_F(TQGuideViewPresentation, CoversAllSiblings)
{
    QQuickItem high(window.contentItem());
    high.setZ(5e7);
    const auto shownGuide = shown(paragraphs(1));
    EXPECT_GT(shownGuide->z(), high.z());
    QQuickItem later(window.contentItem());
    EXPECT_GT(shownGuide->z(), later.z());
}

TEST_F(TQGuideViewPresentation, CoversSiblingsWithInfiniteZ)
{
    QQuickItem highest(window.contentItem());
    highest.setZ(std::numeric_limits<double>::infinity());
    const auto shownGuide = shown(paragraphs(1));
    EXPECT_EQ(window.contentItem()->childItems().last(), shownGuide.get());
}

TEST_F(TQGuideViewPresentation, CoversOpenPopup)
{
    const QmlWindow host(
        "import QtQuick.Controls\nItem { width: 300; height: 300; Popup { visible: true; modal: true } }");
    platform->scenes = keyScene(const_cast<QQuickWindow *>(&host.window));
    guide = made(paragraphs(1));
    guide->showGuide();
    const QList<QQuickItem *> siblings = host.window.contentItem()->childItems();
    ASSERT_GE(siblings.size(), 3) << "the host's item, the popup overlay, the guide";
    for (const QQuickItem *sibling : siblings) {
        EXPECT_TRUE(sibling == guide.get() || sibling->z() < guide->z());
    }
}

TEST_F(TQGuideViewPresentation, CoversEarlierGuide)
{
    const auto first = shown(paragraphs(1));
    const auto second = shown(paragraphs(1));
    EXPECT_GT(second->z(), first->z());
}

TEST_F(TQGuideViewPresentation, RefusesItselfAsHost)
{
    platform->scenes = {};
    guide = made(paragraphs(1));
    guide->showGuide(nullptr, guide.get());
    EXPECT_EQ(guide->parentItem(), nullptr);
    guide->showGuide(nullptr, guide->nextButton());
    EXPECT_EQ(guide->parentItem(), nullptr);
    clock.pass(600);
}

} // namespace
} // namespace TQFoundation
