#include "StormWorld.h"

#include "Scenes.h"
#include "ShapeLayer.h"

#include <TQFoundation/TQMore.h>

#include <QtCore/qcoreapplication.h>
#include <QtGui/qguiapplication.h>
#include <QtQuick/qquickitem.h>

#include <algorithm>

namespace TQFoundation::Testing {
namespace {

const QString flag = QStringLiteral("KeyOfDidShowGuide");

void deliverPostedEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

StormWorld::StormWorld() : m_formerPalette(QGuiApplication::palette())
{
    m_windows.reserve(maximumWindows);
}

StormWorld::~StormWorld()
{
    QGuiApplication::setPalette(m_formerPalette);
}

void StormWorld::perform(const Step &step)
{
    static constexpr void (StormWorld::*actions[])(const Step &){
#define TQ_STORM_METHOD(name) &StormWorld::name,
        TQ_STORM_ACTIONS(TQ_STORM_METHOD)
#undef TQ_STORM_METHOD
    };
    m_platform->calls.clear();
    m_isInput = step.action == Step::Action::click || step.action == Step::Action::pressKey;
    (this->*actions[static_cast<std::size_t>(step.action)])(step);
    updateScenes();
    deliverPostedEvents();
    adoptViews();
    checkRules();
}

void StormWorld::expect(bool holds, const char *rule)
{
    if (!holds && !brokenRule)
        brokenRule = rule;
}

QQuickWindow *StormWorld::window(std::uint32_t number) const
{
    const auto *const picked = pick(m_windows, number);
    return picked ? picked->get() : nullptr;
}

QQuickWindow *StormWorld::visibleWindow(std::uint32_t number) const
{
    QQuickWindow *const picked = window(number);
    return picked && picked->isVisible() ? picked : nullptr;
}

bool StormWorld::hasKeyWindow() const
{
    return m_sceneState == ActivationState::foregroundActive && m_keyWindow < m_windows.size()
        && m_windows[m_keyWindow]->isVisible();
}

void StormWorld::updateScenes()
{
    QList<QWindow *> visible;
    for (const auto &each : m_windows) {
        if (each->isVisible())
            visible.append(each.get());
    }
    const QWindow *const key = m_keyWindow < m_windows.size() ? m_windows[m_keyWindow].get() : nullptr;
    m_platform->scenes = {scene(m_sceneState, visible, key)};
}

void StormWorld::passTime(int milliseconds)
{
    m_clock.pass(milliseconds);
    for (const auto &guide : m_guides) {
        guide->untilButtonEnabled -= milliseconds;
        guide->untilRemoved -= milliseconds;
        guide->untilAnimationsEnd -= milliseconds;
    }
}

// A background makes its view once it is in a window.
void StormWorld::adoptViews()
{
    std::erase_if(m_backgrounds, [](const auto &background) { return !background; });
    for (const auto &background : m_backgrounds) {
        const QList<QQuickItem *> children = background->childItems();
        for (QQuickItem *child : children) {
            auto *view = qobject_cast<AnimationView *>(child);
            if (!view || std::ranges::any_of(m_views, [&](const View &known) { return known.view == view; }))
                continue;
            m_views.push_back({nullptr, view, false, 0});
            start(m_views.back());
        }
    }
}

void StormWorld::start(View &view)
{
    view.isStarted = true;
    expect(view.view->shapeLayer(), "the first tick runs at once");
}

void StormWorld::checkRules()
{
    expect(m_platform->defaults.value(flag).typeId() == QMetaType::QString
               || TQGuideView::shouldShowGuide() == !m_isFlagStored,
           "the guide is not shown again once the flag is stored");
    for (const auto &guide : m_guides)
        checkGuide(*guide);
    for (View &view : m_views)
        checkView(view);
    for (const auto &object : m_engineObjects)
        expect(m_engine || !object, "an engine's objects are destroyed with it");
    const auto top = TQMore::topViewController();
    expect((top != nullptr) == hasKeyWindow(), "there is a top controller if and only if a window is key");
    if (top)
        expect(!top->presentedViewController(), "the top controller presents nothing");
}

void StormWorld::checkGuide(const Guide &guide)
{
    expect(guide.completions == (guide.isFinished ? 1 : 0), "the completion is called once, at the end");
    expect(guide.taps <= guide.paragraphs, "no tap counts after the last paragraph");
    if (!guide.view)
        return;
    const TQGuideView &view = *guide.view;
    expect(view.opacity() >= 0 && view.opacity() <= 1, "the opacity is between 0 and 1");
    if (guide.isFinished && guide.untilRemoved <= 0)
        expect(!view.parentItem(), "a finished guide removes itself");
    if (view.nextButton())
        expect(view.nextButton()->isEnabled() == guide.canTap(), "the button is enabled if and only if a tap counts");
    if (view.guideLabel() && guide.wasShown)
        expect(view.guideLabel()->property("text").toString().startsWith(u"Paragraph"), "a paragraph is shown");
    if (!guide.held && !view.parentItem())
        expect(guide.untilAnimationsEnd > 0, "a guide without owner is destroyed");
}

void StormWorld::checkView(View &view)
{
    if (!view.view) {
        expect(!view.isStarted, "a started background stays alive");
        expect(!view.held, "a held view stays alive");
        return;
    }
    const ShapeLayer *layer = view.view->shapeLayer();
    expect(view.isStarted == (layer != nullptr), "a view has a layer from its first tick on");
    if (!layer)
        return;
    expect(layer->animations().size() == 3 && layer->path.curves.size() == 4, "a layer is one line with 3 animations");
    const double now = m_platform->mediaTime();
    const double begin = layer->animations().front().beginTime.value_or(now + 1);
    counts.ticks += begin != view.lastTick ? 1 : 0;
    view.lastTick = begin;
    expect(begin <= now && now - begin <= 10, "a view ticks every ten seconds");
    expect(layer->strokeColor.alpha == 0.2F, "the line's alpha is 0.2");
}

void StormWorld::releaseAll()
{
    for (const auto &guide : m_guides)
        guide->held.reset();
    for (View &view : m_views)
        view.held.reset();
    m_engine.reset();
    for (const auto &background : m_backgrounds)
        delete background;
    m_windows.clear();
    m_controllers.clear();
    for (const auto &view : m_controllersViews)
        delete view;
}

void StormWorld::tearDown()
{
    releaseAll();
    updateScenes();
    passTime(1400);
    deliverPostedEvents();
    for (const auto &guide : m_guides) {
        if (guide->view && guide->view->parentItem())
            guide->view->setParentItem(nullptr);
    }
    deliverPostedEvents();
    for (const auto &guide : m_guides)
        expect(!guide->view, "no guide outlives its owners");
    for (const View &view : m_views)
        expect((view.view != nullptr) == view.isStarted, "only started views outlive their owners");
    for (const auto &controller : m_allControllers)
        expect(controller.expired(), "no controller outlives its owners");
    const auto timers = m_platform->timers;
    for (const auto &timer : timers) {
        if (const auto alive = timer.lock())
            alive->invalidate();
    }
    deliverPostedEvents();
    for (const View &view : m_views)
        expect(!view.view, "no view outlives its timer");
}

} // namespace TQFoundation::Testing
