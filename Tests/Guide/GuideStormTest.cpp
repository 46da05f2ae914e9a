#include "GuideHost.h"

#include <QtQuick/qquickitem.h>

#include <random>
#include <vector>

namespace TQFoundation {
namespace {

using Testing::NibBundle;

/// What was done to a guide, in order, to be read when it went wrong.
enum class Step {
    pass,
    tap,
    click,
    showAgain,
    loseLabel,
    loseButton,
    hideWindow,
    destroyWindow,
    removeFromHost,
    letGo
};

class GuideStorm : public testing::TestWithParam<unsigned>
{
protected:
    GuideStorm() { platform->root = bundle.root(); }

    // A storm of one guide, within what its callers may do: no call that leads past the end, none that needs an outlet
    // that is gone.
    void storm(std::mt19937 &random)
    {
        auto window = std::make_unique<QQuickWindow>();
        window->resize(200, 200);
        window->show();
        platform->scenes = Testing::keyScene(window.get());
        platform->defaults.clear();
        const int count = 1 + static_cast<int>(random() % 4);
        QStringList texts;
        for (int number = 0; number < count; ++number)
            texts += QString::number(number);
        int completions = 0;
        auto guide = TQGuideView::initFromNib(Color::systemRed(), texts, [&] { ++completions; });
        const QPointer<TQGuideView> observed = guide.get();
        guide->showGuide();
        int taps = 0;
        int untilButtonIsOn = 0; // milliseconds
        int untilGone = 0;
        bool finished = false;
        const auto tapped = [&] {
            ++taps;
            finished = taps == count;
            (finished ? untilGone : untilButtonIsOn) = finished ? 600 : 800;
        };
        const int steps = 5 + static_cast<int>(random() % 40);
        for (int done = 0; done < steps && observed; ++done) {
            const bool hasLabel = observed->guideLabel();
            const bool hasButton = observed->nextButton();
            const bool mayTap = !finished && untilButtonIsOn <= 0 && hasButton;
            switch (static_cast<Step>(random() % 40 > 30 ? random() % 10 : random() % 3)) {
            case Step::pass: {
                const int passing = 10 * static_cast<int>(random() % 60);
                clock.pass(passing);
                untilButtonIsOn -= passing;
                untilGone -= passing;
                break;
            }
            case Step::tap:
                if (mayTap) {
                    observed->nextGuide();
                    tapped();
                }
                break;
            case Step::click:
                if (hasButton && observed->window() && window && window->isVisible() && observed->opacity() > 0) {
                    const bool counts = mayTap && observed->nextButton()->isEnabled();
                    click(observed->nextButton());
                    if (counts && platform->calls.contains(QStringLiteral("softImpact()")))
                        tapped();
                }
                break;
            case Step::showAgain:
                if (!finished && hasLabel)
                    observed->showGuide();
                break;
            case Step::loseLabel:
                if (untilButtonIsOn <= 0 && taps + 1 == count)
                    delete observed->guideLabel();
                break;
            case Step::loseButton:
                if (finished)
                    delete observed->nextButton();
                break;
            case Step::hideWindow:
                if (window)
                    window->setVisible(!window->isVisible());
                break;
            case Step::destroyWindow:
                platform->scenes = {};
                window.reset();
                break;
            case Step::removeFromHost:
                observed->setParentItem(nullptr);
                break;
            case Step::letGo:
                guide.reset();
                break;
            }
            platform->calls.clear();
            settle();
            ASSERT_EQ(platform->defaults.contains(QStringLiteral("KeyOfDidShowGuide")), finished);
            ASSERT_EQ(completions, finished ? 1 : 0);
            if (finished && untilGone <= 0) {
                ASSERT_TRUE(!observed || !observed->parentItem());
            }
            if (observed && observed->nextButton()) {
                ASSERT_EQ(observed->nextButton()->isEnabled(), !finished && untilButtonIsOn <= 0) << untilButtonIsOn;
            }
        }
        platform->scenes = {};
        window.reset();
        guide.reset();
        clock.pass(1400);
        settle();
        EXPECT_FALSE(observed) << "nobody holds it any longer";
    }

    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static void click(const QQuickItem *item)
    {
        const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(item->window(), Qt::LeftButton, {}, middle.toPoint());
    }

    // The look of the library's own nib stays out of it; its parts may be deleted without a word.
    const NibBundle bundle{R"(
import QtQuick
import QtQuick.Templates as T
import TQFoundation
TQGuideView {
    id: root
    guideLabel: label
    nextButton: button
    Text { id: label }
    T.AbstractButton { id: button; width: 60; height: 60; focus: true; onClicked: root.nextGuide(button) }
})"};
    Testing::InstalledRecordingPlatform platform;
    Testing::AnimationClock clock;
};

TEST_P(GuideStorm, LeavesNothingBehindAndBreaksNoRule)
{
    std::mt19937 random(GetParam());
    for (int guide = 0; guide < 60 && !HasFailure(); ++guide) {
        SCOPED_TRACE(guide);
        storm(random);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, GuideStorm, testing::Range(1U, 11U));

} // namespace
} // namespace TQFoundation
