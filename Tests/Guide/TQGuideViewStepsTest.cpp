#include "DeathTest.h"
#include "RecordingGuideView.h"

#include <QtGui/qpa/qwindowsysteminterface.h>
#include <QtQuick/qquickitem.h>

#include <algorithm>
#include <cstdio>
#include <limits>

namespace TQFoundation {
namespace {

using Testing::RecordingGuideView;
using Testing::recordingNib;
using Testing::trapSignal;

const QString flag = QStringLiteral("KeyOfDidShowGuide");

using TQGuideViewSteps = Testing::RecordingGuideHost;

TEST_F(TQGuideViewSteps, EndsAtFirstTapOfOneParagraph)
{
    const auto guide = shown(paragraphs(1));
    clock.pass(600);
    click(guide->nextButton());
    EXPECT_EQ(platform->defaults.value(flag), QVariant(true));
    EXPECT_EQ(completed, 1);
    EXPECT_EQ(guide->opacity(), 1);
    clock.pass(590);
    EXPECT_TRUE(guide->parentItem());
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 0"));
    clock.pass(10);
    EXPECT_EQ(guide->opacity(), 0);
    EXPECT_EQ(guide->parentItem(), nullptr);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 0")) << "the text never changes";
    EXPECT_FALSE(guide->nextButton()->isEnabled()) << "the button is never enabled again";
}

TEST_F(TQGuideViewSteps, ChangesTextTwiceForThreeParagraphs)
{
    const auto guide = shown(paragraphs(3));
    clock.pass(600);
    for (int tap = 1; tap <= 2; ++tap) {
        const QString before = QStringLiteral("Paragraph %1").arg(tap - 1);
        const QString after = QStringLiteral("Paragraph %1").arg(tap);
        EXPECT_EQ(textOf(*guide), before);
        EXPECT_TRUE(guide->nextButton()->isEnabled());
        click(guide->nextButton());
        EXPECT_FALSE(guide->nextButton()->isEnabled());
        clock.pass(390);
        EXPECT_EQ(textOf(*guide), before);
        clock.pass(10);
        EXPECT_EQ(textOf(*guide), after);
        clock.pass(390);
        EXPECT_FALSE(guide->nextButton()->isEnabled());
        clock.pass(10);
        EXPECT_TRUE(guide->nextButton()->isEnabled());
        EXPECT_TRUE(TQGuideView::shouldShowGuide());
        EXPECT_EQ(completed, 0);
    }
    click(guide->nextButton());
    EXPECT_EQ(completed, 1);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 2"));
    clock.pass(600);
    EXPECT_EQ(guide->parentItem(), nullptr);
}

TEST_F(TQGuideViewSteps, IncrementsIndexBeforeTextChanges)
{
    const auto guide = recording(paragraphs(3));
    guide->showGuide();
    guide->nextGuide();
    EXPECT_EQ(guide->index(), 1);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 0"));
    clock.pass(800);
    guide->nextGuide();
    EXPECT_EQ(guide->index(), 2);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 1"));
}

TEST_F(TQGuideViewSteps, TakesParagraphStepInOrder)
{
    const auto guide = recording(paragraphs(2));
    guide->showGuide();
    clock.pass(600);
    platform->calls.clear();
    QObject::connect(guide->nextButton(), &QQuickItem::enabledChanged, guide.get(), [&] {
        platform->calls += guide->TQGuideView::nextButton()->isEnabled() ? QStringLiteral("on") : QStringLiteral("off");
    });
    QObject::connect(guide->guideLabel(), SIGNAL(textChanged(QString)), guide.get(), SIGNAL(backgroundColorChanged()));
    QObject::connect(guide.get(), &TQGuideView::backgroundColorChanged, guide.get(),
                     [&] { platform->calls += QStringLiteral("text"); });
    QObject::connect(guide->guideLabel(), &QQuickItem::opacityChanged, guide.get(), [&] {
        const double opacity = guide->TQGuideView::guideLabel()->opacity();
        if (opacity == 0 || opacity == 1)
            platform->calls += QStringLiteral("label %1").arg(opacity);
    });
    RecordingGuideView::log().clear();
    guide->nextGuide();
    EXPECT_EQ(RecordingGuideView::log().mid(0, 5),
              (QStringList{QStringLiteral("nextButton"), QStringLiteral("updateIndex"), QStringLiteral("index"),
                           QStringLiteral("descriptions"), QStringLiteral("guideLabel")}));
    clock.pass(800);
    EXPECT_EQ(platform->calls,
              (QStringList{QStringLiteral("softImpact()"), QStringLiteral("off"), QStringLiteral("label 0"),
                           QStringLiteral("text"), QStringLiteral("label 1"), QStringLiteral("on")}));
}

TEST_F(TQGuideViewSteps, TakesLastStepInOrder)
{
    const auto guide = recording(paragraphs(1));
    guide->showGuide();
    clock.pass(600);
    platform->calls.clear();
    QObject::connect(guide->nextButton(), &QQuickItem::enabledChanged, guide.get(),
                     [&] { platform->calls += QStringLiteral("off"); });
    QObject::connect(guide.get(), &QQuickItem::opacityChanged, guide.get(), [&] {
        if (!platform->calls.contains(QStringLiteral("fades")))
            platform->calls += QStringLiteral("fades");
    });
    QObject::connect(guide.get(), &QQuickItem::parentChanged, guide.get(),
                     [&] { platform->calls += QStringLiteral("removed"); });
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EQ(platform->calls,
              (QStringList{QStringLiteral("softImpact()"), QStringLiteral("off"),
                           QStringLiteral("setUserDefault(KeyOfDidShowGuide, true)"), QStringLiteral("completeClosure"),
                           QStringLiteral("fades"), QStringLiteral("removed")}));
}

TEST_F(TQGuideViewSteps, LooksUpOutletsAgainInEachStep)
{
    const auto guide = shown(paragraphs(2));
    clock.pass(600);
    QQuickItem *const firstButton = guide->nextButton();
    QQuickItem button;
    QQuickItem label;
    button.setEnabled(false);
    label.setOpacity(0);
    guide->nextGuide();
    clock.pass(200);
    guide->setNextButton(&button);
    guide->setGuideLabel(&label);
    clock.pass(400);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 1"));
    EXPECT_LT(label.opacity(), 1);
    EXPECT_FALSE(button.isEnabled());
    clock.pass(200);
    EXPECT_EQ(label.opacity(), 1);
    EXPECT_TRUE(button.isEnabled());
    EXPECT_FALSE(firstButton->isEnabled());
}

TEST_F(TQGuideViewSteps, StoresFlagBeforeFadeOutEnds)
{
    const auto guide = shown(paragraphs(1));
    clock.pass(600);
    guide->nextGuide();
    clock.pass(300);
    EXPECT_TRUE(guide->parentItem());
    EXPECT_FALSE(TQGuideView::shouldShowGuide());
}

TEST_F(TQGuideViewSteps, CallsClosureBeforeFadeOutStarts)
{
    TQGuideView *fading = nullptr;
    double opacity = 0;
    bool stored = false;
    const auto guide = TQGuideView::initFromNib(Color::label(), paragraphs(1), [&] {
        opacity = fading->opacity();
        stored = !TQGuideView::shouldShowGuide();
    });
    fading = guide.get();
    guide->showGuide();
    clock.pass(600);
    guide->nextGuide();
    EXPECT_EQ(opacity, 1);
    EXPECT_TRUE(stored);
}

TEST_F(TQGuideViewSteps, SkipsEmptyClosure)
{
    const auto guide = TQGuideView::initFromNib(Color::label(), paragraphs(1), nullptr);
    guide->showGuide();
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EQ(guide->parentItem(), nullptr);
    EXPECT_FALSE(TQGuideView::shouldShowGuide());
}

TEST_F(TQGuideViewSteps, KeepsClosureAfterCall)
{
    const auto guide = recording(paragraphs(1));
    guide->showGuide();
    guide->nextGuide();
    EXPECT_TRUE(guide->completeClosure());
}

TEST_F(TQGuideViewSteps, TreatsCallWithAnySenderAsTap)
{
    for (const QVariant &sender : {QVariant(), QVariant(7), QVariant(QStringLiteral("text"))}) {
        const auto guide = shown(paragraphs(2));
        platform->calls.clear();
        guide->nextGuide(sender);
        EXPECT_EQ(platform->calls, QStringList(QStringLiteral("softImpact()")));
        EXPECT_FALSE(guide->nextButton()->isEnabled());
        clock.pass(800);
        EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 1"));
        EXPECT_TRUE(guide->nextButton()->isEnabled());
        guide->setParentItem(nullptr);
    }
    const auto guide = shown(paragraphs(2));
    ASSERT_TRUE(QMetaObject::invokeMethod(guide.get(), "nextGuide", Q_ARG(QVariant, QVariant::fromValue(&window))));
    clock.pass(800);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 1"));
}

TEST_F(TQGuideViewSteps, PlaysImpactAndPulseOncePerTap)
{
    const auto guide = shown(paragraphs(3));
    int pulses = 0;
    QObject::connect(guide.get(), &TQGuideView::tapped, guide.get(), [&] { ++pulses; });
    double smallest = 1;
    QObject::connect(guide->nextButton(), &QQuickItem::scaleChanged, guide.get(),
                     [&] { smallest = std::min(smallest, guide->nextButton()->scale()); });
    for (int tap = 1; tap <= 3; ++tap) {
        guide->nextGuide();
        EXPECT_EQ(platform->calls.count(QStringLiteral("softImpact()")), tap);
        EXPECT_EQ(pulses, tap);
        clock.pass(400);
        EXPECT_NEAR(smallest, 0.9, 0.02);
        EXPECT_EQ(guide->nextButton()->scale(), 1) << "the pulse has ended";
        smallest = 1;
        clock.pass(400);
    }
}

TEST_F(TQGuideViewSteps, AcceptsTapsOnButtonOnly)
{
    const auto guide = shown(paragraphs(2));
    clock.pass(600);
    QTest::mouseClick(&window, Qt::LeftButton, {}, {5, 5});
    click(guide->guideLabel());
    EXPECT_FALSE(platform->calls.contains(QStringLiteral("softImpact()")));
}

TEST_F(TQGuideViewSteps, IgnoresTapsDuringAnimations)
{
    const auto guide = shown(paragraphs(2));
    clock.pass(600);
    for (int tap = 0; tap < 4; ++tap) {
        click(guide->nextButton());
        QTest::keyClick(&window, Qt::Key_Return);
        clock.pass(100);
    }
    EXPECT_EQ(platform->calls.count(QStringLiteral("softImpact()")), 1);
    clock.pass(400);
    click(guide->nextButton());
    clock.pass(100);
    click(guide->nextButton());
    EXPECT_EQ(platform->calls.count(QStringLiteral("softImpact()")), 2);
    EXPECT_EQ(completed, 1);
}

TEST_F(TQGuideViewSteps, CompletesFadesAcrossSuspension)
{
    const auto suspend = [this] {
        constexpr auto setState =
            QWindowSystemInterface::handleApplicationStateChanged<QWindowSystemInterface::SynchronousDelivery>;
        setState(Qt::ApplicationSuspended, false);
        window.hide();
        clock.jump(3'600'000);
        window.show();
        setState(Qt::ApplicationActive, false);
    };
    const auto guide = shown(paragraphs(2));
    clock.pass(300);
    suspend();
    EXPECT_EQ(guide->opacity(), 1);
    click(guide->nextButton());
    clock.pass(200);
    suspend();
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 1"));
    clock.pass(200);
    suspend();
    EXPECT_EQ(guide->guideLabel()->opacity(), 1);
    EXPECT_TRUE(guide->nextButton()->isEnabled());
    EXPECT_EQ(completed, 0);
    click(guide->nextButton());
    clock.pass(300);
    suspend();
    EXPECT_EQ(guide->parentItem(), nullptr);
    EXPECT_EQ(completed, 1);
}

TEST_F(TQGuideViewSteps, AdvancesAtTapDuringFadeIn)
{
    const auto guide = shown(paragraphs(2));
    clock.pass(300);
    EXPECT_NEAR(guide->opacity(), 0.5, 1e-3);
    click(guide->nextButton());
    EXPECT_FALSE(guide->nextButton()->isEnabled());
    clock.pass(300);
    EXPECT_EQ(guide->opacity(), 1) << "the fade-in continues";
    clock.pass(500);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 1"));
}

TEST_F(TQGuideViewSteps, FadesOutFromCurrentOpacity)
{
    const auto guide = shown(paragraphs(1));
    clock.pass(300);
    guide->nextGuide();
    double highest = 0;
    QObject::connect(guide.get(), &QQuickItem::opacityChanged, guide.get(),
                     [&] { highest = std::max(highest, guide->opacity()); });
    clock.pass(590);
    EXPECT_LE(highest, 0.5) << "the fade-out replaces the fade-in";
    EXPECT_TRUE(guide->parentItem());
    clock.pass(10);
    EXPECT_EQ(guide->parentItem(), nullptr);
}

TEST_F(TQGuideViewSteps, StopsProcessAtCallAfterEnd)
{
    EXPECT_EXIT(
        {
            const auto guide = shown(paragraphs(1));
            guide->nextGuide();
            clock.pass(600);
            guide->nextGuide();
            clock.pass(390);
            std::fprintf(stderr, "still there");
            clock.pass(10);
        },
        testing::KilledBySignal(trapSignal), "still there");
}

TEST_F(TQGuideViewSteps, StopsProcessAtCallPastEndDuringChange)
{
    EXPECT_EXIT(
        {
            const auto guide = shown(paragraphs(2));
            clock.pass(600);
            guide->nextGuide();
            guide->nextGuide();
            std::fprintf(stderr, "still there");
            clock.pass(400);
        },
        testing::KilledBySignal(trapSignal), "still there");
}

TEST_F(TQGuideViewSteps, ShowsCurrentParagraphAfterTwoCalls)
{
    const auto guide = shown(paragraphs(4));
    clock.pass(600);
    guide->nextGuide();
    clock.pass(200);
    guide->nextGuide();
    clock.pass(200);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 2")) << "the first completion runs on time";
    clock.pass(400);
    EXPECT_TRUE(guide->nextButton()->isEnabled());
    clock.pass(200);
    EXPECT_EQ(guide->guideLabel()->opacity(), 1);
}

TEST_F(TQGuideViewSteps, StopsProcessIfIndexOverflows)
{
    const auto guide = recording(paragraphs(1));
    guide->setIndex(std::numeric_limits<std::int64_t>::max());
    EXPECT_EXIT(guide->nextGuide(), testing::KilledBySignal(trapSignal), "");
}

TEST_F(TQGuideViewSteps, StopsProcessIfIndexIsNegative)
{
    const auto guide = recording(paragraphs(1));
    guide->setIndex(-1);
    EXPECT_EXIT(guide->showGuide(), testing::KilledBySignal(trapSignal), "");
}

TEST_F(TQGuideViewSteps, StopsProcessIfOutletIsMissing)
{
    const auto withoutButton = recording(paragraphs(2), recordingNib("guideLabel: label"));
    withoutButton->showGuide();
    EXPECT_EXIT(withoutButton->nextGuide(), testing::KilledBySignal(trapSignal), "");
    const auto withoutLabel = recording(paragraphs(2), recordingNib("nextButton: button"));
    EXPECT_EXIT(withoutLabel->nextGuide(), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(withoutLabel->showGuide(), testing::KilledBySignal(trapSignal), "");
}

TEST_F(TQGuideViewSteps, StopsProcessIfLabelIsDestroyedDuringFadeOut)
{
    const auto guide = shownRecording(paragraphs(2));
    guide->nextGuide();
    clock.pass(200);
    EXPECT_EXIT((delete guide->guideLabel(), clock.pass(200)), testing::KilledBySignal(trapSignal), "");
}

TEST_F(TQGuideViewSteps, ToleratesLabelDestroyedDuringFadeIn)
{
    const auto guide = shownRecording(paragraphs(2));
    guide->nextGuide();
    clock.pass(600);
    delete guide->guideLabel();
    clock.pass(200);
    EXPECT_TRUE(guide->nextButton()->isEnabled());
}

TEST_F(TQGuideViewSteps, StopsProcessIfButtonIsDestroyedDuringChange)
{
    const auto guide = shownRecording(paragraphs(2));
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EXIT((delete guide->nextButton(), clock.pass(200)), testing::KilledBySignal(trapSignal), "");
}

TEST_F(TQGuideViewSteps, EndsWithoutLabel)
{
    const auto guide = shownRecording(paragraphs(1));
    delete guide->guideLabel();
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EQ(guide->parentItem(), nullptr);
}

} // namespace
} // namespace TQFoundation
