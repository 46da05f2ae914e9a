#include "StormWorld.h"

#include <TQFoundation/Environment.h>
#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQMore.h>

#include <QtGui/qevent.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQuick/qquickitem.h>
#include <QtTest/qtest.h>

#include <algorithm>
#include <array>

namespace TQFoundation::Testing {

Color StormWorld::color(std::uint32_t number)
{
    const std::array colors{Color(), Color::systemBlue(), Color::systemRed(), TQApp::hazel.tintColor()};
    return colors[number % colors.size()];
}

// Windows and scenes.

void StormWorld::makeWindow(const Step &step)
{
    if (m_windows.size() == maximumWindows)
        return;
    auto made = std::make_unique<QQuickWindow>();
    made->resize(100 + static_cast<int>(step.one % 200), 100 + static_cast<int>(step.two % 300));
    made->show();
    QObject::connect(made.get(), &QQuickWindow::afterRendering, made.get(), [this] { ++counts.frames; });
    m_windows.push_back(std::move(made));
    updateScenes();
}

void StormWorld::destroyWindow(const Step &step)
{
    if (m_windows.empty())
        return;
    const auto position = m_windows.begin() + static_cast<std::ptrdiff_t>(step.one % m_windows.size());
    const auto removed = std::move(*position);
    m_windows.erase(position);
    updateScenes();
}

void StormWorld::hideOrShowWindow(const Step &step)
{
    if (QQuickWindow *picked = window(step.one))
        picked->setVisible(!picked->isVisible());
}

void StormWorld::resizeWindow(const Step &step)
{
    if (QQuickWindow *picked = window(step.one))
        picked->resize(1 + static_cast<int>(step.two % 400), 1 + static_cast<int>(step.two / 400 % 500));
}

void StormWorld::changeKeyWindow(const Step &step)
{
    m_keyWindow = step.one % (maximumWindows + 1);
    if (m_keyWindow < m_windows.size())
        m_windows[m_keyWindow]->requestActivate();
}

void StormWorld::changeSceneState(const Step &step)
{
    m_sceneState = step.two % 2 ? ActivationState::foregroundActive : static_cast<ActivationState>(step.one % 4);
}

// User input and time.

// Every other click on a window with a guide hits the guide's button.
QPoint StormWorld::clickPosition(const Step &step, const QQuickWindow &target)
{
    const auto *const guide = pick(m_guides, step.one / 4);
    if (guide && (*guide)->view && (*guide)->view->window() == &target && (*guide)->view->nextButton()
        && step.two % 2) {
        const QQuickItem *button = (*guide)->view->nextButton();
        const QPoint middle = button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint();
        if (QRect({}, target.size()).contains(middle))
            return middle;
    }
    return {static_cast<int>(step.two % static_cast<std::uint32_t>(target.width())),
            static_cast<int>(step.two / 512 % static_cast<std::uint32_t>(target.height()))};
}

void StormWorld::click(const Step &step)
{
    QQuickWindow *picked = visibleWindow(step.one);
    if (picked && picked->width() > 1 && picked->height() > 1)
        QTest::mouseClick(picked, Qt::LeftButton, {}, clickPosition(step, *picked));
}

void StormWorld::pressKey(const Step &step)
{
    constexpr std::array keys{Qt::Key_Return, Qt::Key_Space, Qt::Key_Tab,  Qt::Key_Escape,
                              Qt::Key_Left,   Qt::Key_Right, Qt::Key_Home, Qt::Key_A};
    if (QQuickWindow *picked = visibleWindow(step.one))
        QTest::keyClick(picked, keys[step.two % keys.size()]);
}

void StormWorld::turnWheel(const Step &step)
{
    if (QQuickWindow *picked = visibleWindow(step.one)) {
        QWheelEvent event(QPointF(5, 5), picked->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, step.two % 2 ? 120 : -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(picked, &event);
    }
}

void StormWorld::runAnimations(const Step &step)
{
    passTime(std::array{10, 20, 50, 200, 400, 800}[step.one % 6]);
}

void StormWorld::advanceTime(const Step &step)
{
    m_platform->advance(step.one % 25 + (step.two % 4) / 4.0);
}

void StormWorld::stallTime(const Step &step)
{
    m_platform->stall(step.one % 100);
    m_platform->advance(0);
}

// Guides.

void StormWorld::makeGuide(const Step &step)
{
    std::erase_if(m_guides, [](const auto &guide) { return !guide->view; });
    if (m_guides.size() == maximumGuides)
        return;
    m_guides.push_back(std::make_unique<Guide>());
    Guide *const guide = m_guides.back().get();
    guide->paragraphs = 1 + static_cast<int>(step.one % 4);
    QStringList texts;
    for (int number = 0; number < guide->paragraphs; ++number)
        texts += QStringLiteral("Paragraph %1 <b>&amp;</b>").arg(number);
    const Color tint = color(static_cast<std::uint32_t>(guide->paragraphs));
    guide->held = TQGuideView::initFromNib(tint, texts, [this, guide] {
        ++guide->completions;
        expect(m_platform->defaults.value(QStringLiteral("KeyOfDidShowGuide")).toBool(),
               "the flag is stored before the completion");
    });
    guide->view = guide->held.get();
    QObject::connect(guide->held.get(), &TQGuideView::tapped, guide->held.get(), [this, guide] {
        expect(guide->canTap(), "no tap counts while the button is disabled");
        ++guide->taps;
        guide->isFinished = guide->taps == guide->paragraphs;
        ++counts.taps;
        counts.tapsByInput += m_isInput ? 1 : 0;
        counts.finishedGuides += guide->isFinished ? 1 : 0;
        const int duration = guide->isFinished ? 600 : 800;
        (guide->isFinished ? guide->untilRemoved : guide->untilButtonEnabled) = duration;
        guide->untilAnimationsEnd = std::max(guide->untilAnimationsEnd, duration);
        m_isFlagStored = m_isFlagStored || guide->isFinished;
    });
}

void StormWorld::showGuide(const Step &step)
{
    const auto *const picked = pick(m_guides, step.one);
    if (!picked || !(*picked)->view || (*picked)->isFinished)
        return;
    Guide &guide = **picked;
    QQuickWindow *first = step.two % 2 ? window(step.two / 2) : nullptr;
    QQuickWindow *second = window(step.two / 8);
    QQuickItem *host = step.two % 3 && second ? second->contentItem() : nullptr;
    guide.view->showGuide(first, host);
    guide.wasShown = true;
    ++counts.shownGuides;
    guide.untilAnimationsEnd = std::max(guide.untilAnimationsEnd, 600);
    if (hasKeyWindow())
        host = m_windows[m_keyWindow]->contentItem();
    else if (first)
        host = first->contentItem();
    if (!host)
        return;
    expect(guide.view->parentItem() == host, "a guide is shown in the key window, else in the caller's");
    const QList<QQuickItem *> siblings = host->childItems();
    expect(siblings.last() == guide.view
               && std::ranges::all_of(siblings, [&](const QQuickItem *item) { return item->z() <= guide.view->z(); }),
           "a guide is shown above its siblings");
}

void StormWorld::tapGuide(const Step &step)
{
    if (const auto *const guide = pick(m_guides, step.one); guide && (*guide)->canTap())
        (*guide)->view->nextGuide();
}

void StormWorld::unparentGuide(const Step &step)
{
    if (const auto *const guide = pick(m_guides, step.one); guide && (*guide)->view)
        (*guide)->view->setParentItem(nullptr);
}

void StormWorld::releaseGuide(const Step &step)
{
    if (const auto *const guide = pick(m_guides, step.one))
        (*guide)->held.reset();
}

void StormWorld::editFlag(const Step &step)
{
    const std::array<QVariant, 6> values{QVariant(), true, 1, QStringLiteral("true"), false, 2.0};
    const std::size_t chosen = step.one % values.size();
    m_platform->defaults.insert(QStringLiteral("KeyOfDidShowGuide"), values[chosen]);
    m_isFlagStored = chosen == 1 || chosen == 2;
}

// Backgrounds.

void StormWorld::addBackground(const Step &step)
{
    if (m_views.size() >= maximumViews || m_backgrounds.size() >= maximumViews)
        return;
    QQuickWindow *place = window(step.two);
    m_backgrounds.emplace_back(new TQRandomBackgroundView(color(step.one), place ? place->contentItem() : nullptr));
    adoptViews();
}

void StormWorld::changeColor(const Step &step)
{
    if (const auto *const background = pick(m_backgrounds, step.one); background && *background)
        (*background)->setColor(color(step.two));
    else if (const auto *const view = pick(m_views, step.one); view && view->view)
        view->view->setColor(color(step.two));
}

void StormWorld::moveBackground(const Step &step)
{
    const auto *const background = pick(m_backgrounds, step.one);
    if (!background || !*background)
        return;
    QQuickWindow *place = step.two % 4 ? window(step.two / 4) : nullptr;
    (*background)->setParentItem(place ? place->contentItem() : nullptr);
    (*background)->setSize(QSizeF(step.two % 300, step.one % 300));
}

void StormWorld::destroyBackground(const Step &step)
{
    if (const auto *const background = pick(m_backgrounds, step.one); background && *background)
        delete *background;
}

void StormWorld::makeView(const Step &step)
{
    if (m_views.size() >= maximumViews)
        return;
    auto view = AnimationView::initWithFrame(QRectF(step.one % 50, step.two % 50, 200, 200));
    if (QQuickWindow *place = window(step.two))
        view->setParentItem(place->contentItem());
    m_views.push_back({view, view.get(), false, 0});
}

void StormWorld::startView(const Step &step)
{
    if (auto *const view = pick(m_views, step.one); view && view->view) {
        view->view->createTimer();
        start(*view);
    }
}

void StormWorld::addChildToView(const Step &step)
{
    if (const auto *const view = pick(m_views, step.one); view && view->view)
        (new QQuickItem(view->view))->setParentItem(view->view);
}

void StormWorld::releaseView(const Step &step)
{
    if (auto *const view = pick(m_views, step.one)) {
        if (view->held && step.two % 2)
            view->held->setParentItem(nullptr);
        view->held.reset();
    }
}

// Modal screens.

void StormWorld::present(const Step &step)
{
    if (m_controllers.size() < maximumControllers) {
        auto *view = step.two % 3 ? new QQuickItem : nullptr;
        m_controllersViews.emplace_back(view);
        m_controllers.push_back(std::make_shared<ViewController>(view));
        m_allControllers.emplace_back(m_controllers.back());
    }
    const auto next = m_controllers[step.one % m_controllers.size()];
    const auto top = TQMore::topViewController();
    if (step.two % 4 == 0) {
        m_controllers[step.two % m_controllers.size()]->present(next);
    } else if (top) {
        top->present(next);
        counts.presentations += top->presentedViewController() == next ? 1 : 0;
    }
}

void StormWorld::dismiss(const Step &step)
{
    if (const auto top = TQMore::topViewController(); top && step.two % 2)
        top->dismiss();
    else if (const auto *const controller = pick(m_controllers, step.one))
        (*controller)->dismiss();
}

void StormWorld::releaseController(const Step &step)
{
    if (!m_controllers.empty())
        m_controllers.erase(m_controllers.begin() + static_cast<std::ptrdiff_t>(step.one % m_controllers.size()));
}

void StormWorld::setRoot(const Step &step)
{
    QQuickWindow *picked = window(step.one);
    if (!picked)
        return;
    auto root = step.two % 3 ? std::make_shared<ViewController>(picked->contentItem()) : nullptr;
    if (root)
        m_allControllers.emplace_back(root);
    ViewController::setRoot(picked, root);
}

void StormWorld::destroyControllersView(const Step &step)
{
    if (const auto *const view = pick(m_controllersViews, step.one))
        delete *view;
}

// The host and its system.

void StormWorld::startEngine(const Step &step)
{
    if (m_engine)
        return;
    m_engine = std::make_unique<QQmlEngine>();
    QQmlComponent component(m_engine.get());
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
    expect(item, "a QML host starts");
    if (!item)
        return;
    item->setParent(m_engine.get());
    m_engineObjects.emplace_back(item);
    auto *background = item->property("background").value<TQRandomBackgroundView *>();
    if (m_views.size() < maximumViews)
        m_backgrounds.emplace_back(background);
    else
        delete background;
    if (QQuickWindow *place = window(step.one))
        item->setParentItem(place->contentItem());
    adoptViews();
}

void StormWorld::destroyEngine(const Step &)
{
    m_engine.reset();
}

void StormWorld::changeAppearance(const Step &step)
{
    QPalette palette;
    palette.setColor(QPalette::Window, step.one % 2 ? Qt::white : Qt::black);
    palette.setColor(QPalette::WindowText, step.one % 2 ? Qt::black : Qt::white);
    QGuiApplication::setPalette(palette);
}

void StormWorld::changeLayoutDirection(const Step &step)
{
    QGuiApplication::setLayoutDirection(step.one % 2 ? Qt::RightToLeft : Qt::LeftToRight);
}

void StormWorld::readEverything(const Step &)
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

} // namespace TQFoundation::Testing
