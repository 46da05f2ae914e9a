#include "Storm.h"

#include "AnimationClock.h"
#include "AnimationView.h"
#include "Environment.h"
#include "RecordingPlatform.h"
#include "Scenes.h"
#include "ShapeLayer.h"
#include "TQApp.h"
#include "TQGuideView.h"
#include "TQMore.h"
#include "TQRandomBackgroundView.h"
#include "ViewController.h"

#include <QtGui/qevent.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpalette.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <regex>
#include <sstream>

namespace TQFoundation::Testing {
namespace {

using Action = Step::Action;

const QString flag = QStringLiteral("KeyOfDidShowGuide");

constexpr std::size_t mostWindows = 3;
constexpr std::size_t mostGuides = 3;
constexpr std::size_t mostViews = 6;
constexpr std::size_t mostControllers = 6;

/// A guide beside what is expected of it. Times are milliseconds that are left.
struct Guide
{
    std::shared_ptr<TQGuideView> held; // null once the app has let go of it
    QPointer<TQGuideView> view;
    int paragraphs = 0;
    int taps = 0;
    int untilButtonIsOn = 0;
    int untilRemoved = 0;
    int untilUnheld = 0; // by animations
    bool isShown = false; // added once, so that a click may reach it
    bool isFinished = false;
    int completions = 0;

    bool mayTap() const { return view && !isFinished && untilButtonIsOn <= 0; }
};

/// A background's view beside what is expected of it.
struct View
{
    std::shared_ptr<AnimationView> held;
    QPointer<AnimationView> view;
    bool isStarted = false;
    double lastTick = 0; // as it was last seen
};

void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// An app, its user and its system.
class World
{
public:
    World() : formerPalette(QGuiApplication::palette()) { windows.reserve(mostWindows); }

    ~World() { QGuiApplication::setPalette(formerPalette); }

    void perform(const Step &step);
    void check();
    void end();

    std::optional<std::string> failure;
    Tally tally;

private:
    void expect(bool holds, const char *rule)
    {
        if (!holds && !failure)
            failure = rule;
    }

    template <typename Things>
    static auto *pick(Things &things, std::uint32_t number)
    {
        return things.empty() ? nullptr : &things[number % things.size()];
    }

    QQuickWindow *window(std::uint32_t number)
    {
        const auto *const picked = pick(windows, number);
        return picked ? picked->get() : nullptr;
    }

    bool hasKeyWindow() const
    {
        return sceneState == ActivationState::foregroundActive && key < windows.size() && windows[key]->isVisible();
    }

    static Color colour(std::uint32_t number)
    {
        const std::array colours{Color(), Color::systemBlue(), Color::systemRed(), TQApp::hazel.tintColor()};
        return colours[number % colours.size()];
    }

    void makeWindow(const Step &step);
    void destroyWindow(std::uint32_t number);
    void updateScenes();
    void pass(int milliseconds);
    void advance(double seconds);
    void makeGuide(int paragraphs);
    void showGuide(const Step &step);
    void placeBackground(const Step &step);
    void adoptViews();
    void started(View &view);
    void present(const Step &step);
    void startEngine(const Step &step);
    void askEverything() const;
    void checkGuide(const Guide &guide);
    void checkView(View &view);

    QPalette formerPalette;
    InstalledRecordingPlatform platform;
    AnimationClock clock;
    std::vector<std::unique_ptr<QQuickWindow>> windows;
    std::size_t key = 0; // of windows; none where it is their number or more
    ActivationState sceneState = ActivationState::foregroundActive;
    std::vector<std::unique_ptr<Guide>> guides;
    std::vector<QPointer<TQRandomBackgroundView>> backgrounds;
    std::vector<View> views;
    std::vector<std::shared_ptr<ViewController>> controllers;
    std::vector<std::weak_ptr<ViewController>> everyController;
    std::vector<QPointer<QQuickItem>> controllersViews;
    std::unique_ptr<QQmlEngine> engine;
    std::vector<QPointer<QObject>> enginesObjects;
    bool isFlagged = false;
    bool isInput = false; // a step of the user is being done
};

void World::updateScenes()
{
    QList<QWindow *> visible;
    for (const auto &each : windows) {
        if (each->isVisible())
            visible.append(each.get());
    }
    platform->scenes = {scene(sceneState, visible, key < windows.size() ? windows[key].get() : nullptr)};
}

void World::makeWindow(const Step &step)
{
    if (windows.size() == mostWindows)
        return;
    auto made = std::make_unique<QQuickWindow>();
    made->resize(100 + static_cast<int>(step.one % 200), 100 + static_cast<int>(step.two % 300));
    made->show();
    QObject::connect(made.get(), &QQuickWindow::afterRendering, made.get(), [this] { ++tally.frames; });
    windows.push_back(std::move(made));
    updateScenes();
}

void World::destroyWindow(std::uint32_t number)
{
    if (windows.empty())
        return;
    const auto index = static_cast<std::ptrdiff_t>(number % windows.size());
    const auto gone = std::move(windows[static_cast<std::size_t>(index)]);
    windows.erase(windows.begin() + index);
    updateScenes();
}

void World::pass(int milliseconds)
{
    clock.pass(milliseconds);
    for (const auto &guide : guides) {
        guide->untilButtonIsOn -= milliseconds;
        guide->untilRemoved -= milliseconds;
        guide->untilUnheld -= milliseconds;
    }
}

void World::advance(double seconds)
{
    platform->advance(seconds);
    for (View &view : views) {
        if (view.isStarted)
            expect(view.view, "a started background lives on");
    }
}

void World::makeGuide(int paragraphs)
{
    std::erase_if(guides, [](const auto &guide) { return !guide->view; });
    if (guides.size() == mostGuides)
        return;
    QStringList texts;
    for (int number = 0; number < paragraphs; ++number)
        texts += QStringLiteral("Paragraph %1 <b>&amp;</b>").arg(number);
    auto owned = std::make_unique<Guide>();
    Guide *guide = owned.get();
    guide->paragraphs = paragraphs;
    guide->held = TQGuideView::initFromNib(colour(static_cast<std::uint32_t>(paragraphs)), texts, [this, guide] {
        ++guide->completions;
        expect(platform->defaults.value(flag).toBool(), "the flag is stored before the app is told");
    });
    guide->view = guide->held.get();
    QObject::connect(guide->held.get(), &TQGuideView::tapped, guide->held.get(), [this, guide] {
        expect(guide->mayTap(), "no tap counts while the button is off");
        ++guide->taps;
        ++tally.taps;
        tally.tapsByInput += isInput ? 1 : 0;
        tally.finishedGuides += guide->taps == guide->paragraphs ? 1 : 0;
        guide->isFinished = guide->taps == guide->paragraphs;
        (guide->isFinished ? guide->untilRemoved : guide->untilButtonIsOn) = guide->isFinished ? 600 : 800;
        guide->untilUnheld = std::max(guide->untilUnheld, guide->isFinished ? 600 : 800);
        isFlagged = isFlagged || guide->isFinished;
    });
    guides.push_back(std::move(owned));
}

void World::showGuide(const Step &step)
{
    const auto *const picked = pick(guides, step.one);
    if (!picked || !(*picked)->view || (*picked)->isFinished)
        return;
    Guide &guide = **picked;
    QQuickWindow *first = step.two % 2 ? window(step.two / 2) : nullptr;
    QQuickWindow *second = window(step.two / 8);
    QQuickItem *host = step.two % 3 && second ? second->contentItem() : nullptr;
    guide.view->showGuide(first, host);
    guide.isShown = true;
    ++tally.shownGuides;
    guide.untilUnheld = std::max(guide.untilUnheld, 600);
    if (hasKeyWindow())
        host = windows[key]->contentItem();
    else if (first)
        host = first->contentItem();
    if (!host)
        return;
    expect(guide.view->parentItem() == host, "a guide is shown in the key window or else where its caller says");
    const QList<QQuickItem *> siblings = host->childItems();
    expect(siblings.last() == guide.view
               && std::ranges::all_of(siblings, [&](const QQuickItem *item) { return item->z() <= guide.view->z(); }),
           "a guide is shown on top of all that its host holds");
}

// Views that belong to a background are made where that is placed.
void World::adoptViews()
{
    std::erase_if(backgrounds, [](const auto &background) { return !background; });
    for (const auto &background : backgrounds) {
        const QList<QQuickItem *> children = background->childItems();
        for (QQuickItem *child : children) {
            auto *view = qobject_cast<AnimationView *>(child);
            if (!view || std::ranges::any_of(views, [&](const View &known) { return known.view == view; }))
                continue;
            views.push_back({nullptr, view, false, 0});
            started(views.back());
        }
    }
}

void World::started(View &view)
{
    view.isStarted = true;
    expect(view.view->shapeLayer(), "the first tick runs at once");
}

void World::placeBackground(const Step &step)
{
    if (views.size() >= mostViews || backgrounds.size() >= mostViews)
        return;
    QQuickWindow *place = window(step.two);
    backgrounds.emplace_back(new TQRandomBackgroundView(colour(step.one), place ? place->contentItem() : nullptr));
    adoptViews();
}

void World::present(const Step &step)
{
    if (controllers.size() < mostControllers) {
        auto *view = step.two % 3 ? new QQuickItem : nullptr;
        controllersViews.emplace_back(view);
        controllers.push_back(std::make_shared<ViewController>(view));
        everyController.emplace_back(controllers.back());
    }
    const auto next = controllers[step.one % controllers.size()];
    const auto former = TQMore::topViewController();
    if (step.two % 4 == 0) {
        controllers[step.two % controllers.size()]->present(next);
    } else if (former) {
        former->present(next);
        tally.presentations += former->presentedViewController() == next ? 1 : 0;
    }
}

void World::startEngine(const Step &step)
{
    if (engine)
        return;
    engine = std::make_unique<QQmlEngine>();
    QQmlComponent component(engine.get());
    component.setData(R"(
import QtQuick
import TQFoundation

Item {
    id: root

    property alias background: background

    width: 300
    height: 200

    TQRandomBackgroundView { id: background; anchors.fill: parent; color: TQApp.cedar.tintColor }
    TQAppView { app: TQApp.hazel; width: 200; y: 100; focus: true }
    Text { text: TQApp.name + TQMore.versionText; textFormat: Text.PlainText }
}
)",
                      QUrl(QStringLiteral("qrc:/Host.qml")));
    auto *item = qobject_cast<QQuickItem *>(component.create());
    expect(item, "a host written in QML starts");
    if (!item)
        return;
    item->setParent(engine.get());
    enginesObjects.emplace_back(item);
    if (views.size() < mostViews)
        backgrounds.emplace_back(item->property("background").value<TQRandomBackgroundView *>());
    else
        delete item->property("background").value<TQRandomBackgroundView *>();
    if (QQuickWindow *place = window(step.one))
        item->setParentItem(place->contentItem());
    adoptViews();
}

void World::askEverything() const
{
    for (const TQApp &app : TQApp::allCases()) {
        static_cast<void>(app.guideText());
        static_cast<void>(TQMore::icpOrBlogText(app.icp()));
        static_cast<void>(TQMore::blogOrSocialUrl(app.icp()));
        static_cast<void>(app.appLink() + app.reviewLink());
        static_cast<void>(app.tintColor());
    }
    static_cast<void>(TQApp::name() + TQApp::version() + TQApp::buildNumber() + TQMore::versionText());
    static_cast<void>(screenWidth() + screenHeight() + screenScale());
    static_cast<void>(isChn());
    static_cast<void>(TQMore::privacyText() + TQMore::feedbackUrl() + TQMore::moreAppUrl());
}

void World::perform(const Step &step)
{
    platform->calls.clear();
    const std::uint32_t one = step.one;
    const std::uint32_t two = step.two;
    isInput = step.action == Action::click || step.action == Action::press;
    switch (step.action) {
    case Action::makeWindow:
        makeWindow(step);
        break;
    case Action::destroyWindow:
        destroyWindow(one);
        break;
    case Action::hideOrShowWindow:
        if (QQuickWindow *picked = window(one))
            picked->setVisible(!picked->isVisible());
        break;
    case Action::resizeWindow:
        if (QQuickWindow *picked = window(one))
            picked->resize(1 + static_cast<int>(two % 400), 1 + static_cast<int>(two / 400 % 500));
        break;
    case Action::moveKey:
        key = one % (mostWindows + 1);
        if (key < windows.size())
            windows[key]->requestActivate();
        break;
    case Action::changeScene:
        sceneState = two % 2 ? ActivationState::foregroundActive : static_cast<ActivationState>(one % 4);
        break;
    case Action::click:
        if (QQuickWindow *picked = window(one);
            picked && picked->isVisible() && picked->width() > 1 && picked->height() > 1) {
            QPoint place(static_cast<int>(two % static_cast<std::uint32_t>(picked->width())),
                         static_cast<int>(two / 512 % static_cast<std::uint32_t>(picked->height())));
            // Half of them where the button is, if there is one.
            const auto *const guide = pick(guides, one / 4);
            if (guide && (*guide)->view && (*guide)->view->window() == picked && (*guide)->view->nextButton()
                && two % 2) {
                const QQuickItem *button = (*guide)->view->nextButton();
                const QPoint middle = button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint();
                if (QRect({}, picked->size()).contains(middle))
                    place = middle;
            }
            QTest::mouseClick(picked, Qt::LeftButton, {}, place);
        }
        break;
    case Action::press:
        if (QQuickWindow *picked = window(one); picked && picked->isVisible()) {
            constexpr std::array keys{Qt::Key_Return, Qt::Key_Space, Qt::Key_Tab,  Qt::Key_Escape,
                                      Qt::Key_Left,   Qt::Key_Right, Qt::Key_Home, Qt::Key_A};
            QTest::keyClick(picked, keys[two % keys.size()]);
        }
        break;
    case Action::wheel:
        if (QQuickWindow *picked = window(one); picked && picked->isVisible()) {
            QWheelEvent event(QPointF(5, 5), picked->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, two % 2 ? 120 : -120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(picked, &event);
        }
        break;
    case Action::passTime:
        pass(std::array{10, 20, 50, 200, 400, 800}[one % 6]);
        break;
    case Action::tick:
        advance(one % 25 + (two % 4) / 4.0);
        break;
    case Action::stall:
        platform->stall(one % 100);
        advance(0);
        break;
    case Action::makeGuide:
        makeGuide(1 + static_cast<int>(one % 4));
        break;
    case Action::showGuide:
        showGuide(step);
        break;
    case Action::tapGuide:
        if (const auto *const guide = pick(guides, one); guide && (*guide)->mayTap())
            (*guide)->view->nextGuide();
        break;
    case Action::takeGuideOff:
        if (const auto *const guide = pick(guides, one); guide && (*guide)->view)
            (*guide)->view->setParentItem(nullptr);
        break;
    case Action::letGoOfGuide:
        if (const auto *const guide = pick(guides, one))
            (*guide)->held.reset();
        break;
    case Action::editFlag: {
        const std::array<QVariant, 6> values{QVariant(), true, 1, QStringLiteral("true"), false, 2.0};
        const std::size_t chosen = one % values.size();
        platform->defaults.insert(flag, values[chosen]);
        isFlagged = chosen == 1 || chosen == 2;
        break;
    }
    case Action::placeBackground:
        placeBackground(step);
        break;
    case Action::recolour:
        if (const auto *const background = pick(backgrounds, one); background && *background)
            (*background)->setColor(colour(two));
        else if (const auto *const view = pick(views, one); view && view->view)
            view->view->setColor(colour(two));
        break;
    case Action::moveBackground:
        if (const auto *const background = pick(backgrounds, one); background && *background) {
            QQuickWindow *place = two % 4 ? window(two / 4) : nullptr;
            (*background)->setParentItem(place ? place->contentItem() : nullptr);
            (*background)->setSize(QSizeF(two % 300, one % 300));
        }
        break;
    case Action::removeBackground:
        if (const auto *const background = pick(backgrounds, one); background && *background)
            delete *background;
        break;
    case Action::makeView:
        if (views.size() < mostViews) {
            auto view = AnimationView::initWithFrame(QRectF(one % 50, two % 50, 200, 200));
            if (QQuickWindow *place = window(two))
                view->setParentItem(place->contentItem());
            views.push_back({view, view.get(), false, 0});
        }
        break;
    case Action::startView:
        if (auto *const view = pick(views, one); view && view->view) {
            view->view->createTimer();
            started(*view);
        }
        break;
    case Action::addChildToView:
        if (auto *const view = pick(views, one); view && view->view)
            (new QQuickItem(view->view))->setParentItem(view->view);
        break;
    case Action::letGoOfView:
        if (auto *const view = pick(views, one)) {
            if (view->held && two % 2)
                view->held->setParentItem(nullptr);
            view->held.reset();
        }
        break;
    case Action::present:
        present(step);
        break;
    case Action::dismiss:
        if (const auto top = TQMore::topViewController(); top && two % 2)
            top->dismiss();
        else if (const auto *const controller = pick(controllers, one))
            (*controller)->dismiss();
        break;
    case Action::letGoOfController:
        if (!controllers.empty())
            controllers.erase(controllers.begin() + static_cast<std::ptrdiff_t>(one % controllers.size()));
        break;
    case Action::setRoot:
        if (QQuickWindow *picked = window(one)) {
            auto root = two % 3 ? std::make_shared<ViewController>(picked->contentItem()) : nullptr;
            if (root)
                everyController.emplace_back(root);
            ViewController::setRoot(picked, root);
        }
        break;
    case Action::deleteControllersView:
        if (const auto *const view = pick(controllersViews, one))
            delete *view;
        break;
    case Action::startEngine:
        startEngine(step);
        break;
    case Action::teardownEngine:
        engine.reset();
        break;
    case Action::changeAppearance: {
        QPalette palette;
        palette.setColor(QPalette::Window, one % 2 ? Qt::white : Qt::black);
        palette.setColor(QPalette::WindowText, one % 2 ? Qt::black : Qt::white);
        QGuiApplication::setPalette(palette);
        break;
    }
    case Action::mirror:
        QGuiApplication::setLayoutDirection(one % 2 ? Qt::RightToLeft : Qt::LeftToRight);
        break;
    case Action::askEverything:
        askEverything();
        break;
    case Action::count:
        break;
    }
    updateScenes();
    settle();
    adoptViews();
    check();
}

void World::checkGuide(const Guide &guide)
{
    expect(guide.completions == (guide.isFinished ? 1 : 0), "the app is told once, at the end");
    expect(guide.taps <= guide.paragraphs, "no tap leads past the end");
    if (!guide.view)
        return;
    const TQGuideView &view = *guide.view;
    expect(view.opacity() >= 0 && view.opacity() <= 1, "the opacity is a share");
    if (guide.isFinished && guide.untilRemoved <= 0)
        expect(!view.parentItem(), "a finished guide removes itself");
    if (view.nextButton())
        expect(view.nextButton()->isEnabled() == (guide.mayTap()), "the button is on when a tap may come");
    if (view.guideLabel() && guide.isShown)
        expect(view.guideLabel()->property("text").toString().startsWith(u"Paragraph"), "a paragraph is shown");
    if (!guide.held && !view.parentItem())
        expect(guide.untilUnheld > 0, "a guide that nobody holds has gone");
}

void World::checkView(View &view)
{
    if (!view.view) {
        expect(!view.isStarted, "a started background lives on");
        expect(!view.held, "what is held lives");
        return;
    }
    const ShapeLayer *layer = view.view->shapeLayer();
    expect(view.isStarted == (layer != nullptr), "a layer is drawn from the first tick on");
    if (!layer)
        return;
    expect(layer->animations().size() == 3 && layer->path.curves.size() == 4, "one line with its three animations");
    const double now = platform->mediaTime();
    const double begin = layer->animations().front().beginTime.value_or(now + 1);
    tally.ticks += begin != view.lastTick ? 1 : 0;
    view.lastTick = begin;
    expect(begin <= now && now - begin <= 10, "a tick comes every ten seconds");
    expect(layer->strokeColor.alpha == 0.2F, "the line is always as translucent");
}

void World::check()
{
    expect(platform->defaults.value(flag).typeId() == QMetaType::QString
               || TQGuideView::shouldShowGuide() == !isFlagged,
           "the flag is never undone");
    for (const auto &guide : guides)
        checkGuide(*guide);
    for (View &view : views)
        checkView(view);
    for (const auto &gone : enginesObjects)
        expect(engine || !gone, "what an engine owns goes with it");
    const auto top = TQMore::topViewController();
    expect((top != nullptr) == hasKeyWindow(), "there is a controller to present on where a window is key");
    if (top)
        expect(!top->presentedViewController(), "nothing lies on top of the top");
}

void World::end()
{
    for (const auto &guide : guides)
        guide->held.reset();
    for (View &view : views)
        view.held.reset();
    engine.reset();
    for (const auto &background : backgrounds)
        delete background;
    windows.clear();
    controllers.clear();
    for (const auto &view : controllersViews)
        delete view;
    updateScenes();
    pass(1400);
    settle();
    for (const auto &guide : guides) {
        if (guide->view && guide->view->parentItem())
            guide->view->setParentItem(nullptr);
    }
    settle();
    for (const auto &guide : guides)
        expect(!guide->view, "no guide outlives its owners");
    for (const View &view : views)
        expect((view.view != nullptr) == view.isStarted, "of the backgrounds only those live that tick");
    for (const auto &controller : everyController)
        expect(controller.expired(), "no controller outlives its owners");
    const auto timers = platform->timers;
    for (const auto &timer : timers) {
        if (const auto alive = timer.lock())
            alive->invalidate();
    }
    settle();
    for (const View &view : views)
        expect(!view.view, "no background outlives its timer");
}

constexpr std::array names{
#define TQ_STORM_NAME(name) #name,
    TQ_STORM_ACTIONS(TQ_STORM_NAME)
#undef TQ_STORM_NAME
};

} // namespace

Steps stormOf(std::uint32_t seed, int count)
{
    std::mt19937 random(seed);
    // What a user does comes more often than what an app or its system does.
    std::vector<Action> often;
    for (std::size_t number = 0; number < names.size(); ++number)
        often.push_back(static_cast<Action>(number));
    for (const Action action : {Action::passTime, Action::click, Action::tapGuide, Action::showGuide, Action::tick})
        often.insert(often.end(), 3, action);
    Steps steps;
    for (int number = 0; number < count; ++number) {
        const Action action = often[random() % often.size()];
        const std::uint32_t one = static_cast<std::uint32_t>(random() % 1000);
        steps.push_back({action, one, static_cast<std::uint32_t>(random() % 200'000)});
    }
    return steps;
}

std::optional<std::string> broken(const Steps &steps, Tally *tally)
{
    World world;
    for (std::size_t number = 0; number < steps.size(); ++number) {
        world.perform(steps[number]);
        if (world.failure)
            return *world.failure + ", broken by step " + std::to_string(number) + ", "
                + names[static_cast<std::size_t>(steps[number].action)];
    }
    world.end();
    if (tally) {
        tally->shownGuides += world.tally.shownGuides;
        tally->taps += world.tally.taps;
        tally->tapsByInput += world.tally.tapsByInput;
        tally->finishedGuides += world.tally.finishedGuides;
        tally->ticks += world.tally.ticks;
        tally->presentations += world.tally.presentations;
        tally->frames += world.tally.frames;
    }
    if (world.failure)
        return *world.failure + ", seen at the end";
    return std::nullopt;
}

// Takes out ever smaller stretches (Zeller and Hildebrandt, "Simplifying and Isolating Failure-Inducing Input", 2002).
Steps shrunk(Steps steps, const std::function<bool(const Steps &)> &fails)
{
    for (std::size_t stretch = std::max<std::size_t>(1, steps.size() / 2); stretch > 0;) {
        bool isSmaller = false;
        for (std::size_t at = 0; at < steps.size();) {
            Steps fewer(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(at));
            fewer.insert(fewer.end(), steps.begin() + static_cast<std::ptrdiff_t>(std::min(at + stretch, steps.size())),
                         steps.end());
            if (fails(fewer)) {
                steps = std::move(fewer);
                isSmaller = true;
            } else {
                at += stretch;
            }
        }
        if (!isSmaller || stretch > 1)
            stretch /= 2;
    }
    return steps;
}

std::string asCode(const Steps &steps)
{
    std::ostringstream code;
    code << "    const Steps steps{\n";
    for (const Step &step : steps)
        code << "        {Step::Action::" << names[static_cast<std::size_t>(step.action)] << ", " << step.one << ", "
             << step.two << "},\n";
    code << "    };\n    EXPECT_EQ(broken(steps), std::nullopt);\n";
    return code.str();
}

Steps fromCode(const std::string &code)
{
    static const std::regex pattern(R"(Action::(\w+), (\d+), (\d+))");
    Steps steps;
    for (std::sregex_iterator match(code.begin(), code.end(), pattern), end; match != end; ++match) {
        const auto name = std::ranges::find(names, match->str(1));
        if (name != names.end())
            steps.push_back({static_cast<Action>(name - names.begin()),
                             static_cast<std::uint32_t>(std::stoul(match->str(2))),
                             static_cast<std::uint32_t>(std::stoul(match->str(3)))});
    }
    return steps;
}

} // namespace TQFoundation::Testing
