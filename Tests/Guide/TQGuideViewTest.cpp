#include "DeathTest.h"
#include "RecordingGuideView.h"

#include <QtQuick/qquickitem.h>

#include <cmath>
#include <limits>
#include <utility>

namespace TQFoundation {
namespace {

using Testing::NibBundle;
using Testing::RecordingGuideView;
using Testing::trapSignal;

const QString flag = QStringLiteral("KeyOfDidShowGuide");

using TQGuideViewFlag = Testing::GuideHost;
using TQGuideViewFactory = Testing::RecordingGuideHost;
using TQGuideViewOwnership = Testing::GuideHost;

TEST_F(TQGuideViewFlag, ShowsGuideIfNothingIsStored)
{
    EXPECT_TRUE(TQGuideView::shouldShowGuide());
    EXPECT_EQ(platform->calls, QStringList(QStringLiteral("userDefault(KeyOfDidShowGuide)"))) << "writes nothing";
}

TEST_F(TQGuideViewFlag, ShowsGuideIfFalseIsStored)
{
    platform->defaults[flag] = false;
    EXPECT_TRUE(TQGuideView::shouldShowGuide());
}

TEST_F(TQGuideViewFlag, HidesGuideIfTrueIsStored)
{
    platform->defaults[flag] = true;
    EXPECT_FALSE(TQGuideView::shouldShowGuide());
}

TEST_F(TQGuideViewFlag, ShowsGuideIfAStringIsStored)
{
    for (const char *text : {"true", "1", "YES", ""}) {
        platform->defaults[flag] = QLatin1String(text);
        EXPECT_TRUE(TQGuideView::shouldShowGuide()) << text;
    }
}

TEST_F(TQGuideViewFlag, CountsOnlyTheNumberOneAsTrue)
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

TEST_F(TQGuideViewFlag, ShowsGuideIfAnotherTypeIsStored)
{
    for (const QVariant &other : {QVariant(QByteArray("true")), QVariant(QVariantList{true}),
                                  QVariant(QStringList{QStringLiteral("true")}), QVariant(QChar(u'1'))}) {
        platform->defaults[flag] = other;
        EXPECT_TRUE(TQGuideView::shouldShowGuide()) << other.typeName();
    }
}

TEST_F(TQGuideViewFactory, TakesItsStepsInOrder)
{
    RecordingGuideView::log().clear();
    const auto guide = recording(paragraphs(2));
    EXPECT_EQ(RecordingGuideView::log(),
              (QStringList{QStringLiteral("backgroundColorChanged"), QStringLiteral("setDescriptions"),
                           QStringLiteral("setCompleteClosure")}));
    EXPECT_EQ(platform->calls, (QStringList{QStringLiteral("screenBounds()"), QStringLiteral("screenBounds()")}))
        << "width and height are read separately";
    EXPECT_EQ(guide->backgroundColor(), Color::systemBlue());
    EXPECT_EQ(guide->index(), 0);
    EXPECT_EQ(guide->opacity(), 1);
    EXPECT_EQ(guide->parentItem(), nullptr);
    EXPECT_EQ(textOf(*guide), QString()) << "the label does not change";
    EXPECT_TRUE(guide->nextButton()->isEnabled());
}

TEST_F(TQGuideViewFactory, SetsCurrentScreenSizeOnce)
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
    EXPECT_EQ(guide->size(), QSizeF(1234.5, 777)) << "the size does not change later";
}

TEST_F(TQGuideViewFactory, LoadsNibAtEachCall)
{
    const auto guide = recording(paragraphs(1));
    platform->root = QStringLiteral(":/qt-project.org/imports/TQFoundation");
    EXPECT_FALSE(std::dynamic_pointer_cast<RecordingGuideView>(made(paragraphs(1))));
}

TEST_F(TQGuideViewFactory, ExposesOutletsAndActionInMetaObject)
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

TEST_F(TQGuideViewFactory, KeepsOutletsWeak)
{
    const auto guide = recording(paragraphs(1));
    delete guide->guideLabel();
    delete guide->nextButton();
    EXPECT_EQ(guide->guideLabel(), nullptr);
    EXPECT_EQ(guide->nextButton(), nullptr);
}

TEST_F(TQGuideViewFactory, ChangesPropertiesInPlace)
{
    const auto guide = recording(paragraphs(1));
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

TEST_F(TQGuideViewFactory, SignalsEachChangeOnce)
{
    const auto guide = made(paragraphs(2));
    QQuickItem label;
    QQuickItem button;
    std::vector<QQuickItem *> seen;
    QObject::connect(guide.get(), &TQGuideView::guideLabelChanged, guide.get(),
                     [&] { seen.push_back(guide->guideLabel()); });
    QObject::connect(guide.get(), &TQGuideView::nextButtonChanged, guide.get(),
                     [&] { seen.push_back(guide->nextButton()); });
    int colors = 0;
    QObject::connect(guide.get(), &TQGuideView::backgroundColorChanged, guide.get(), [&] { ++colors; });
    for (int round = 0; round < 2; ++round) {
        guide->setGuideLabel(&label);
        guide->setNextButton(&button);
        guide->setBackgroundColor(Color::label());
    }
    EXPECT_EQ(seen, (std::vector{&label, &button}));
    EXPECT_EQ(colors, 1);
}

TEST_F(TQGuideViewFactory, ShowsItsWholeAreaWithoutAWindow)
{
    const auto guide = made(paragraphs(1));
    EXPECT_FALSE(guide->size().isEmpty());
    EXPECT_EQ(guide->shownArea(), QRectF(QPointF(), guide->size()));
}

TEST_F(TQGuideViewFactory, StopsProcessIfNibIsUnusable)
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

TEST_F(TQGuideViewOwnership, HostKeepsOverlayUntilGuideEnds)
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

TEST_F(TQGuideViewOwnership, AnimationKeepsOverlayWithoutHost)
{
    platform->scenes = {};
    std::weak_ptr<TQGuideView> guide = shown(paragraphs(1));
    clock.pass(590);
    EXPECT_FALSE(guide.expired());
    clock.pass(10);
    EXPECT_TRUE(guide.expired());
}

TEST_F(TQGuideViewOwnership, AnimationsKeepOverlayAfterHostIsDestroyed)
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

TEST_F(TQGuideViewOwnership, ClosureMayDestroyHost)
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

TEST_F(TQGuideViewOwnership, DefersDeletionDuringButtonHandler)
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

TEST_F(TQGuideViewOwnership, SurvivesItsWindow)
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

TEST_F(TQGuideViewOwnership, MayBeDestroyedWithoutSharedOwner)
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
