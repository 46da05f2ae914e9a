#include "GuideHost.h"

#include <QtQuick/qquickitem.h>

#include <random>

namespace TQFoundation {
namespace {

using Testing::NibBundle;

enum class Step {
    pass,
    tap,
    click,
    showAgain,
    destroyLabel,
    destroyButton,
    hideWindow,
    destroyWindow,
    removeFromHost,
    releaseGuide
};

/// Walks one guide through random calls and events and checks its rules after each. Only calls that the guide allows:
/// none past the end, none that needs an outlet that was destroyed.
class GuideStorm : public testing::TestWithParam<unsigned>
{
protected:
    GuideStorm() { platform->root = bundle.root(); }

    void start()
    {
        window = std::make_unique<QQuickWindow>();
        window->resize(200, 200);
        window->show();
        platform->scenes = Testing::keyScene(window.get());
        platform->defaults.clear();
        paragraphs = 1 + below(4);
        QStringList texts;
        for (int number = 0; number < paragraphs; ++number)
            texts += QString::number(number);
        taps = completions = 0;
        untilButtonIsEnabled = untilRemoved = 0;
        isFinished = false;
        guide = TQGuideView::initFromNib(Color::systemRed(), texts, [this] { ++completions; });
        view = guide.get();
        guide->showGuide();
    }

    void take(Step step)
    {
        const bool mayTap = !isFinished && untilButtonIsEnabled <= 0 && view->nextButton();
        switch (step) {
        case Step::pass:
            pass(10 * below(60));
            break;
        case Step::tap:
            if (mayTap) {
                view->nextGuide();
                countTap();
            }
            break;
        case Step::click:
            click(mayTap);
            break;
        case Step::showAgain:
            if (!isFinished && view->guideLabel())
                view->showGuide();
            break;
        case Step::destroyLabel:
            if (untilButtonIsEnabled <= 0 && taps + 1 == paragraphs)
                delete view->guideLabel();
            break;
        case Step::destroyButton:
            if (isFinished)
                delete view->nextButton();
            break;
        default:
            changeHost(step);
        }
    }

    void check() const
    {
        ASSERT_EQ(platform->defaults.contains(QStringLiteral("KeyOfDidShowGuide")), isFinished);
        ASSERT_EQ(completions, isFinished ? 1 : 0);
        if (isFinished && untilRemoved <= 0) {
            ASSERT_TRUE(!view || !view->parentItem());
        }
        if (view && view->nextButton()) {
            ASSERT_EQ(view->nextButton()->isEnabled(), !isFinished && untilButtonIsEnabled <= 0)
                << untilButtonIsEnabled;
        }
    }

    void finish()
    {
        platform->scenes = {};
        window.reset();
        guide.reset();
        clock.pass(1400);
        settle();
        EXPECT_FALSE(view) << "nothing owns it any longer";
    }

    void settle()
    {
        platform->calls.clear();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    int below(unsigned limit) { return static_cast<int>(random() % limit); }

    std::mt19937 random{GetParam()};
    QPointer<TQGuideView> view;

private:
    void changeHost(Step step)
    {
        switch (step) {
        case Step::hideWindow:
            if (window)
                window->setVisible(!window->isVisible());
            break;
        case Step::destroyWindow:
            platform->scenes = {};
            window.reset();
            break;
        case Step::removeFromHost:
            view->setParentItem(nullptr);
            break;
        default:
            guide.reset();
        }
    }

    void click(bool mayTap)
    {
        const QQuickItem *const button = view->nextButton();
        if (!button || !view->window() || !window || !window->isVisible() || view->opacity() == 0)
            return;
        const bool counts = mayTap && button->isEnabled();
        const QPointF middle = button->mapToScene(QPointF(button->width() / 2, button->height() / 2));
        QTest::mouseClick(button->window(), Qt::LeftButton, {}, middle.toPoint());
        if (counts && platform->calls.contains(QStringLiteral("softImpact()")))
            countTap();
    }

    void countTap()
    {
        ++taps;
        isFinished = taps == paragraphs;
        (isFinished ? untilRemoved : untilButtonIsEnabled) = isFinished ? 600 : 800;
    }

    void pass(int milliseconds)
    {
        clock.pass(milliseconds);
        untilButtonIsEnabled -= milliseconds;
        untilRemoved -= milliseconds;
    }

    // A nib without animations of its own, whose items may be destroyed at any time.
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
    std::unique_ptr<QQuickWindow> window;
    std::shared_ptr<TQGuideView> guide;
    int paragraphs = 0;
    int taps = 0;
    int completions = 0;
    int untilButtonIsEnabled = 0; // milliseconds
    int untilRemoved = 0; // milliseconds
    bool isFinished = false;
};

TEST_P(GuideStorm, KeepsRulesAndLeaksNothing)
{
    for (int round = 0; round < 60 && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        start();
        const int steps = 5 + below(40);
        for (int done = 0; done < steps && view && !HasFailure(); ++done) {
            take(static_cast<Step>(below(40) > 30 ? below(10) : below(3)));
            settle();
            check();
        }
        finish();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, GuideStorm, testing::Range(1U, 11U));

} // namespace
} // namespace TQFoundation
