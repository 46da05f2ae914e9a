#include "DeathTest.h"
#include "GuideHost.h"

#include <QtQml/qqml.h>
#include <QtQuick/qquickitem.h>

#include <cmath>
#include <limits>
#include <utility>

namespace TQFoundation {
namespace {

using Testing::NibBundle;
using Testing::trapSignal;

const QString flag = QStringLiteral("KeyOfDidShowGuide");

/// An overlay that writes down how it is used, and lets a test set what is protected.
class ProbeGuideView : public TQGuideView
{
    Q_OBJECT

public:
    using TQGuideView::TQGuideView;

    static QStringList &log()
    {
        static QStringList *const calls = new QStringList;
        return *calls;
    }

    QQuickItem *guideLabel() const override { return note("guideLabel"), TQGuideView::guideLabel(); }
    QQuickItem *nextButton() const override { return note("nextButton"), TQGuideView::nextButton(); }
    std::int64_t index() const override { return note("index"), TQGuideView::index(); }
    void updateIndex(const std::function<void(std::int64_t &)> &change) override
    {
        note("updateIndex");
        TQGuideView::updateIndex(change);
    }
    QStringList descriptions() const override { return note("descriptions"), TQGuideView::descriptions(); }
    void setDescriptions(const QStringList &descriptions) override
    {
        note("setDescriptions");
        TQGuideView::setDescriptions(descriptions);
    }
    std::function<void()> completeClosure() const override
    {
        return note("completeClosure"), TQGuideView::completeClosure();
    }
    void setCompleteClosure(const std::function<void()> &closure) override
    {
        note("setCompleteClosure");
        TQGuideView::setCompleteClosure(closure);
    }

    using TQGuideView::setIndex;
    using TQGuideView::updateCompleteClosure;
    using TQGuideView::updateDescriptions;

private:
    static void note(const char *call) { log() += QLatin1String(call); }
};

QByteArray probeNib(const QByteArray &outlets = "guideLabel: label; nextButton: button")
{
    return "import QtQuick\nimport TQFoundationTests\nProbeGuideView { " + outlets
        + "\nText { id: label }\nItem { id: button } }";
}

class Guide : public Testing::GuideHost
{
protected:
    std::shared_ptr<ProbeGuideView> probe(const QStringList &texts, const QByteArray &nib = probeNib())
    {
        static const int type [[maybe_unused]] =
            qmlRegisterType<ProbeGuideView>("TQFoundationTests", 1, 0, "ProbeGuideView");
        const NibBundle bundle(nib);
        platform->root = bundle.root();
        const auto guide = std::dynamic_pointer_cast<ProbeGuideView>(made(texts));
        EXPECT_TRUE(guide);
        return guide;
    }

    std::shared_ptr<ProbeGuideView> shownProbe(const QStringList &texts)
    {
        const auto guide = probe(texts);
        guide->showGuide();
        return guide;
    }
};

// The height at which the curve with the control points (0.42, 0) and (0.58, 1) passes the given share of its width.
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

// Whether it is shown: what is stored.

TEST_F(Guide, ShowsWhereNothingIsStored)
{
    EXPECT_TRUE(TQGuideView::shouldShowGuide());
    EXPECT_EQ(platform->calls, QStringList(QStringLiteral("userDefault(KeyOfDidShowGuide)"))) << "and writes nothing";
}

TEST_F(Guide, ShowsWhereFalseIsStored)
{
    platform->defaults[flag] = false;
    EXPECT_TRUE(TQGuideView::shouldShowGuide());
}

TEST_F(Guide, DoesNotShowWhereTrueIsStored)
{
    platform->defaults[flag] = true;
    EXPECT_FALSE(TQGuideView::shouldShowGuide());
}

TEST_F(Guide, ShowsWhereAStringIsStored)
{
    for (const char *text : {"true", "1", "YES", ""}) {
        platform->defaults[flag] = QLatin1String(text);
        EXPECT_TRUE(TQGuideView::shouldShowGuide()) << text;
    }
}

TEST_F(Guide, OfNumbersOnlyOneCountsAsTrue)
{
    for (const QVariant &one :
         {QVariant(1), QVariant(1U), QVariant(1LL), QVariant(1ULL), QVariant(1.0), QVariant(1.0F)}) {
        platform->defaults[flag] = one;
        EXPECT_FALSE(TQGuideView::shouldShowGuide()) << one.typeName();
    }
    for (const QVariant &other : {QVariant(0), QVariant(2), QVariant(-1LL), QVariant(0.5), QVariant(std::nan("")),
                                  QVariant(std::numeric_limits<qulonglong>::max())}) {
        platform->defaults[flag] = other;
        EXPECT_TRUE(TQGuideView::shouldShowGuide()) << other.typeName();
    }
}

TEST_F(Guide, ShowsWhereAnythingElseIsStored)
{
    for (const QVariant &other : {QVariant(QByteArray("true")), QVariant(QVariantList{true}),
                                  QVariant(QStringList{QStringLiteral("true")}), QVariant(QChar(u'1'))}) {
        platform->defaults[flag] = other;
        EXPECT_TRUE(TQGuideView::shouldShowGuide()) << other.typeName();
    }
}

// The factory.

TEST_F(Guide, TheFactoryTakesItsStepsInOrder)
{
    ProbeGuideView::log().clear();
    const auto guide = probe(paragraphs(2));
    EXPECT_EQ(ProbeGuideView::log(),
              (QStringList{QStringLiteral("setDescriptions"), QStringLiteral("setCompleteClosure")}));
    EXPECT_EQ(platform->calls, (QStringList{QStringLiteral("screenBounds()"), QStringLiteral("screenBounds()")}))
        << "width and height are read separately";
    EXPECT_EQ(guide->backgroundColor(), Color::systemBlue());
    EXPECT_EQ(guide->index(), 0);
    EXPECT_EQ(guide->opacity(), 1);
    EXPECT_EQ(guide->parentItem(), nullptr);
    EXPECT_EQ(textOf(*guide), QString()) << "the label is not touched";
    EXPECT_TRUE(guide->nextButton()->isEnabled());
}

TEST_F(Guide, TheFrameIsTheScreensAtTheTimeOfTheFactoryCall)
{
    platform->bounds = {1234.5, 777};
    const auto guide = made(paragraphs(1));
    EXPECT_EQ(guide->position(), QPointF(0, 0));
    EXPECT_EQ(guide->size(), QSizeF(1234.5, 777));
    platform->bounds = {777, 1234.5};
    guide->showGuide();
    window.resize(500, 300);
    clock.pass(100);
    EXPECT_EQ(guide->position(), QPointF(0, 0));
    EXPECT_EQ(guide->size(), QSizeF(1234.5, 777)) << "nothing resizes it later";
}

TEST_F(Guide, EachFactoryCallLoadsTheNibOfTheLibrarysBundleAnew)
{
    const auto guide = probe(paragraphs(1));
    platform->root = QStringLiteral(":/qt-project.org/imports/TQFoundation");
    EXPECT_FALSE(std::dynamic_pointer_cast<ProbeGuideView>(made(paragraphs(1))));
}

TEST_F(Guide, TheNibsObjectIsAnOverlayWithItsOutletsAndActionInTheMetaObject)
{
    const auto guide = made(paragraphs(1));
    for (const char *outlet : {"guideLabel", "nextButton"}) {
        const QMetaProperty property =
            TQGuideView::staticMetaObject.property(TQGuideView::staticMetaObject.indexOfProperty(outlet));
        EXPECT_TRUE(property.isReadable() && property.isWritable()) << outlet;
        EXPECT_TRUE(property.read(guide.get()).value<QQuickItem *>()) << outlet;
    }
    EXPECT_GE(TQGuideView::staticMetaObject.indexOfMethod("nextGuide(QVariant)"), 0);
    EXPECT_EQ(guide->guideLabel()->opacity(), 1);
    EXPECT_TRUE(guide->nextButton()->isEnabled());
}

TEST_F(Guide, OutletsAreWeak)
{
    const auto guide = probe(paragraphs(1));
    delete guide->guideLabel();
    delete guide->nextButton();
    EXPECT_EQ(guide->guideLabel(), nullptr);
    EXPECT_EQ(guide->nextButton(), nullptr);
}

TEST_F(Guide, PropertiesCanBeChangedInPlace)
{
    const auto guide = probe(paragraphs(1));
    guide->updateIndex([](std::int64_t &index) { index += 5; });
    EXPECT_EQ(guide->index(), 5);
    guide->updateDescriptions([](QStringList &texts) { texts += QStringLiteral("More"); });
    EXPECT_EQ(guide->descriptions().size(), 2);
    guide->updateCompleteClosure([](std::function<void()> &closure) { closure = nullptr; });
    EXPECT_FALSE(guide->completeClosure());
    guide->updateGuideLabel([](TQGuideView::Outlet &label) { label = nullptr; });
    guide->updateNextButton([](TQGuideView::Outlet &button) { button = nullptr; });
    EXPECT_EQ(guide->guideLabel(), nullptr);
    EXPECT_EQ(guide->nextButton(), nullptr);
}

TEST_F(Guide, ANibThatIsMissingOrBrokenOrOfAnotherClassStopsTheProcess)
{
    platform->root = QStringLiteral(":/NoSuchBundle");
    EXPECT_EXIT(made(paragraphs(1)), testing::KilledBySignal(trapSignal), "");
    for (const char *qml : {"import QtQuick\nItem {}", "import QtQml\nQtObject {}", "import QtQuick\nText { broken",
                            "import QtQuick\nimport NoSuchModule\nItem {}", ""}) {
        const NibBundle bundle(qml);
        platform->root = bundle.root();
        EXPECT_EXIT(made(paragraphs(1)), testing::KilledBySignal(trapSignal), "") << qml;
    }
}

// The steps.

TEST_F(Guide, OfOneParagraphEndsOnTheFirstTap)
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

TEST_F(Guide, OfThreeParagraphsChangesTheTextTwiceAndThenEnds)
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

TEST_F(Guide, TheIndexCountsUpRightAfterATapBeforeTheNewTextShows)
{
    const auto guide = probe(paragraphs(3));
    guide->showGuide();
    guide->nextGuide();
    EXPECT_EQ(guide->index(), 1);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 0"));
    clock.pass(800);
    guide->nextGuide();
    EXPECT_EQ(guide->index(), 2);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 1"));
}

TEST_F(Guide, FadesByTheEaseInOutCurve)
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

TEST_F(Guide, AStepTowardsTheNextParagraphTakesItsOrder)
{
    const auto guide = probe(paragraphs(2));
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
    ProbeGuideView::log().clear();
    guide->nextGuide();
    EXPECT_EQ(ProbeGuideView::log().mid(0, 5),
              (QStringList{QStringLiteral("nextButton"), QStringLiteral("updateIndex"), QStringLiteral("index"),
                           QStringLiteral("descriptions"), QStringLiteral("guideLabel")}));
    clock.pass(800);
    EXPECT_EQ(platform->calls,
              (QStringList{QStringLiteral("softImpact()"), QStringLiteral("off"), QStringLiteral("label 0"),
                           QStringLiteral("text"), QStringLiteral("label 1"), QStringLiteral("on")}));
}

TEST_F(Guide, TheLastStepTakesItsOrder)
{
    const auto guide = probe(paragraphs(1));
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

TEST_F(Guide, TheFlagIsAlreadyStoredWhileTheOverlayFadesOut)
{
    const auto guide = shown(paragraphs(1));
    clock.pass(600);
    guide->nextGuide();
    clock.pass(300);
    EXPECT_TRUE(guide->parentItem());
    EXPECT_FALSE(TQGuideView::shouldShowGuide());
}

TEST_F(Guide, TheClosureRunsBeforeTheOverlayStartsToFade)
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

TEST_F(Guide, AMissingClosureIsSkipped)
{
    const auto guide = TQGuideView::initFromNib(Color::label(), paragraphs(1), nullptr);
    guide->showGuide();
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EQ(guide->parentItem(), nullptr);
    EXPECT_FALSE(TQGuideView::shouldShowGuide());
}

TEST_F(Guide, TheClosureIsKeptAfterItHasRun)
{
    const auto guide = probe(paragraphs(1));
    guide->showGuide();
    guide->nextGuide();
    EXPECT_TRUE(guide->completeClosure());
}

TEST_F(Guide, ACallFromCodeWithAnySenderIsATap)
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

TEST_F(Guide, EachTapGivesOneSoftImpactAndOnePulse)
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
        EXPECT_EQ(guide->nextButton()->scale(), 1) << "and the button is itself again";
        smallest = 1;
        clock.pass(400);
    }
}

TEST_F(Guide, TheButtonAloneTakesTaps)
{
    const auto guide = shown(paragraphs(2));
    clock.pass(600);
    QTest::mouseClick(&window, Qt::LeftButton, {}, {5, 5});
    click(guide->guideLabel());
    EXPECT_FALSE(platform->calls.contains(QStringLiteral("softImpact()")));
}

TEST_F(Guide, TapsAreIgnoredWhileTheTextChangesAndWhileItFadesOut)
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

TEST_F(Guide, ATapDuringTheFadeInAdvancesAtOnce)
{
    const auto guide = shown(paragraphs(2));
    clock.pass(300);
    EXPECT_NEAR(guide->opacity(), 0.5, 1e-3);
    click(guide->nextButton());
    EXPECT_FALSE(guide->nextButton()->isEnabled());
    clock.pass(300);
    EXPECT_EQ(guide->opacity(), 1) << "the fade-in goes on";
    clock.pass(500);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 1"));
}

TEST_F(Guide, AGuideThatEndsDuringTheFadeInFadesOutFromWhereItStands)
{
    const auto guide = shown(paragraphs(1));
    clock.pass(300);
    guide->nextGuide();
    double highest = 0;
    QObject::connect(guide.get(), &QQuickItem::opacityChanged, guide.get(),
                     [&] { highest = std::max(highest, guide->opacity()); });
    clock.pass(590);
    EXPECT_LE(highest, 0.5) << "the fade-in has lost the overlay";
    EXPECT_TRUE(guide->parentItem());
    clock.pass(10);
    EXPECT_EQ(guide->parentItem(), nullptr);
}

TEST_F(Guide, ATapPastTheEndFromCodeStopsTheProcess)
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

TEST_F(Guide, CallsThatPushTheIndexPastTheEndDuringAChangeStopTheProcess)
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

TEST_F(Guide, TwoCallsDuringOneChangeShowTheParagraphAsItThenStands)
{
    const auto guide = shown(paragraphs(4));
    clock.pass(600);
    guide->nextGuide();
    clock.pass(200);
    guide->nextGuide();
    clock.pass(200);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Paragraph 2")) << "the first completion comes at its time";
    clock.pass(400);
    EXPECT_TRUE(guide->nextButton()->isEnabled());
    clock.pass(200);
    EXPECT_EQ(guide->guideLabel()->opacity(), 1);
}

TEST_F(Guide, AnIndexThatOverflowsStopsTheProcess)
{
    const auto guide = probe(paragraphs(1));
    guide->setIndex(std::numeric_limits<std::int64_t>::max());
    EXPECT_EXIT(guide->nextGuide(), testing::KilledBySignal(trapSignal), "");
}

TEST_F(Guide, AnIndexBelowTheParagraphsStopsTheProcess)
{
    const auto guide = probe(paragraphs(1));
    guide->setIndex(-1);
    EXPECT_EXIT(guide->showGuide(), testing::KilledBySignal(trapSignal), "");
}

TEST_F(Guide, AnOutletThatWasNeverConnectedStopsTheProcess)
{
    const auto withoutButton = probe(paragraphs(2), probeNib("guideLabel: label"));
    withoutButton->showGuide();
    EXPECT_EXIT(withoutButton->nextGuide(), testing::KilledBySignal(trapSignal), "");
    const auto withoutLabel = probe(paragraphs(2), probeNib("nextButton: button"));
    EXPECT_EXIT(withoutLabel->nextGuide(), testing::KilledBySignal(trapSignal), "");
    EXPECT_EXIT(withoutLabel->showGuide(), testing::KilledBySignal(trapSignal), "");
}

TEST_F(Guide, ALabelThatGoesDuringItsFadeOutStopsTheProcess)
{
    const auto guide = shownProbe(paragraphs(2));
    guide->nextGuide();
    clock.pass(200);
    delete guide->guideLabel();
    EXPECT_EXIT(clock.pass(200), testing::KilledBySignal(trapSignal), "");
}

TEST_F(Guide, ALabelThatGoesDuringItsFadeInIsNotMissed)
{
    const auto guide = shownProbe(paragraphs(2));
    guide->nextGuide();
    clock.pass(600);
    delete guide->guideLabel();
    clock.pass(200);
    EXPECT_TRUE(guide->nextButton()->isEnabled());
}

TEST_F(Guide, AButtonThatGoesDuringAChangeStopsTheProcess)
{
    const auto guide = shownProbe(paragraphs(2));
    guide->nextGuide();
    clock.pass(600);
    delete guide->nextButton();
    EXPECT_EXIT(clock.pass(200), testing::KilledBySignal(trapSignal), "");
}

TEST_F(Guide, TheLastTapNeedsNoLabel)
{
    const auto guide = shownProbe(paragraphs(1));
    delete guide->guideLabel();
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EQ(guide->parentItem(), nullptr);
}

// Ownership.

TEST_F(Guide, TheHostHoldsTheOverlayAndLetsItGoWhenItEnds)
{
    std::weak_ptr<TQGuideView> guide = shown(paragraphs(1));
    clock.pass(700);
    ASSERT_FALSE(guide.expired());
    guide.lock()->nextGuide();
    clock.pass(590);
    ASSERT_FALSE(guide.expired());
    clock.pass(10);
    EXPECT_TRUE(guide.expired());
}

TEST_F(Guide, AnOverlayWithoutAHostLivesUntilItsAnimationHasEnded)
{
    platform->scenes = {};
    std::weak_ptr<TQGuideView> guide = shown(paragraphs(1));
    clock.pass(590);
    EXPECT_FALSE(guide.expired());
    clock.pass(10);
    EXPECT_TRUE(guide.expired());
}

TEST_F(Guide, AnimationsHoldTheOverlayWhenItsHostGoes)
{
    auto host = std::make_unique<QQuickWindow>();
    platform->scenes = Testing::keyScene(host.get());
    std::weak_ptr<TQGuideView> guide = shown(paragraphs(2));
    clock.pass(600);
    guide.lock()->nextGuide();
    clock.pass(100);
    host.reset();
    ASSERT_FALSE(guide.expired());
    clock.pass(690);
    ASSERT_FALSE(guide.expired());
    EXPECT_FALSE(guide.lock()->nextButton()->isEnabled());
    clock.pass(10);
    EXPECT_TRUE(guide.expired());
}

TEST_F(Guide, AClosureMayDestroyTheHost)
{
    auto host = std::make_unique<QQuickWindow>();
    platform->scenes = Testing::keyScene(host.get());
    auto guide = TQGuideView::initFromNib(Color::label(), paragraphs(1), [&] { host.reset(); });
    guide->showGuide();
    clock.pass(600);
    const std::weak_ptr<TQGuideView> observed = std::exchange(guide, nullptr);
    observed.lock()->nextGuide();
    EXPECT_FALSE(host);
    clock.pass(590);
    EXPECT_FALSE(observed.expired());
    clock.pass(10);
    EXPECT_TRUE(observed.expired());
}

TEST_F(Guide, IsDestroyedInItsTurnWhenItsOwnButtonEndsIt)
{
    TQGuideView *raw = nullptr;
    {
        const auto guide =
            TQGuideView::initFromNib(Color::label(), paragraphs(1), [&] { raw->setParentItem(nullptr); });
        raw = guide.get();
        guide->showGuide();
    }
    clock.pass(600);
    const QPointer<TQGuideView> guide(raw);
    click(raw->nextButton());
    EXPECT_FALSE(guide.isNull());
    clock.pass(600);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(guide.isNull());
}

TEST_F(Guide, SurvivesTheWindowWhoseAppStillHoldsIt)
{
    auto host = std::make_unique<QQuickWindow>();
    platform->scenes = Testing::keyScene(host.get());
    const auto guide = shown(paragraphs(1));
    host.reset();
    EXPECT_EQ(guide->parentItem(), nullptr);
    EXPECT_EQ(guide->window(), nullptr);
    clock.pass(600);
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EQ(completed, 1);
}

TEST_F(Guide, AnOverlayThatNobodyAdoptedMayGoAtAnyMoment)
{
    auto guide = std::make_unique<TQGuideView>();
    QQuickItem label;
    guide->setGuideLabel(&label);
    guide->setParentItem(window.contentItem());
    guide.reset();
    clock.pass(100);
}

} // namespace
} // namespace TQFoundation

#include "TQGuideViewTest.moc"
