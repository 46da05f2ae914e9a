#include <TQFoundation/ViewController.h>

#include "QmlWindow.h"
#include "Scenes.h"

#include <QtQuick/qquickwindow.h>

#include <gtest/gtest.h>

namespace TQFoundation {
namespace {

using Controller = std::shared_ptr<ViewController>;

Controller controller(QQuickItem *view = nullptr)
{
    return std::make_shared<ViewController>(view);
}

TEST(ViewController, GivesEachWindowOneRoot)
{
    QQuickWindow one;
    QQuickWindow other;
    const Controller root = ViewController::rootOf(&one);
    ASSERT_TRUE(root);
    EXPECT_EQ(root->view(), one.contentItem());
    EXPECT_EQ(ViewController::rootOf(&one), root);
    EXPECT_NE(ViewController::rootOf(&other), root);
}

TEST(ViewController, GivesOtherWindowsNoRoot)
{
    QWindow window;
    EXPECT_EQ(ViewController::rootOf(&window), nullptr);
    EXPECT_EQ(ViewController::rootOf(nullptr), nullptr);
}

TEST(ViewController, UsesRootOfHost)
{
    QQuickWindow window;
    const Controller own = controller();
    ViewController::setRoot(&window, own);
    EXPECT_EQ(ViewController::rootOf(&window), own);
    ViewController::setRoot(&window, nullptr);
    EXPECT_NE(ViewController::rootOf(&window), own);
    ViewController::setRoot(nullptr, own);
}

TEST(ViewController, IsReleasedWithItsWindow)
{
    std::weak_ptr<ViewController> root;
    std::weak_ptr<ViewController> presented;
    {
        QQuickWindow window;
        root = ViewController::rootOf(&window);
        const Controller next = controller();
        root.lock()->present(next);
        presented = next;
    }
    EXPECT_TRUE(root.expired());
    EXPECT_TRUE(presented.expired());
}

TEST(ViewController, ShowsViewOnTopUntilDismissed)
{
    Testing::QmlWindow host("Item { Rectangle { z: 5 } }");
    QQuickItem view;
    const Controller next = controller(&view);
    const Controller root = ViewController::rootOf(&host.window);
    root->present(next);
    EXPECT_EQ(root->presentedViewController(), next);
    EXPECT_EQ(view.parentItem(), host.window.contentItem());
    const QList<QQuickItem *> siblings = host.window.contentItem()->childItems();
    for (const QQuickItem *sibling : siblings)
        EXPECT_TRUE(sibling == &view || sibling->z() < view.z());
    next->dismiss();
    EXPECT_EQ(root->presentedViewController(), nullptr);
    EXPECT_EQ(view.parentItem(), nullptr);
}

TEST(ViewController, PresentsInWindowOfNearestViewBelow)
{
    QQuickWindow window;
    QQuickItem view;
    const Controller hosts = controller();
    const Controller next = controller(&view);
    ViewController::rootOf(&window)->present(hosts);
    hosts->present(next);
    EXPECT_EQ(view.window(), &window);
}

TEST(ViewController, PresentsInWindowOfRootWithoutView)
{
    QQuickWindow window;
    QQuickItem views[2];
    const Controller root = controller();
    ViewController::setRoot(&window, root);
    const Controller first = controller(&views[0]);
    root->present(first);
    EXPECT_EQ(views[0].window(), &window);
    root->dismiss();
    const Controller hosts = controller();
    root->present(hosts);
    hosts->present(first);
    EXPECT_EQ(views[0].window(), &window) << "through a controller without a view";
    root->dismiss();
    ViewController::setRoot(&window, nullptr);
    const Controller second = controller(&views[1]);
    root->present(second);
    EXPECT_EQ(views[1].window(), nullptr) << "a former root has no window";
}

TEST(ViewController, PresentsInWindowOfRootWhoseViewIsElsewhere)
{
    QQuickWindow window;
    QQuickItem detached;
    QQuickItem view;
    ViewController::setRoot(&window, controller(&detached));
    ViewController::rootOf(&window)->present(controller(&view));
    EXPECT_EQ(view.window(), &window);
}

TEST(ViewController, DismissesAllControllersAbove)
{
    QQuickWindow window;
    QQuickItem views[3];
    const Controller root = ViewController::rootOf(&window);
    const Controller first = controller(&views[0]);
    const Controller second = controller(&views[1]);
    const Controller third = controller(&views[2]);
    root->present(first);
    first->present(second);
    second->present(third);
    root->dismiss();
    EXPECT_EQ(root->presentedViewController(), nullptr);
    EXPECT_EQ(first->presentedViewController(), nullptr);
    EXPECT_EQ(second->presentedViewController(), nullptr);
    for (const QQuickItem &view : views)
        EXPECT_EQ(view.parentItem(), nullptr);
    // Each of them can be presented again.
    third->present(first);
    EXPECT_EQ(third->presentedViewController(), first);
}

TEST(ViewController, IsDismissedBeforeItDisappears)
{
    class Leaving final : public ViewController
    {
    public:
        using ViewController::ViewController;
        bool isDismissed = false;

    protected:
        void disappear() override
        {
            dismiss(); // without effect
            isDismissed = true;
        }
    };
    const Controller root = controller();
    const auto leaving = std::make_shared<Leaving>(nullptr);
    root->present(leaving);
    leaving->dismiss();
    EXPECT_TRUE(leaving->isDismissed);
    EXPECT_EQ(root->presentedViewController(), nullptr);
}

TEST(ViewController, RefusesUnpresentableControllers)
{
    const Controller root = controller();
    const Controller first = controller();
    const Controller second = controller();
    root->dismiss();
    root->present(nullptr);
    root->present(root);
    EXPECT_EQ(root->presentedViewController(), nullptr);
    root->present(first);
    root->present(second);
    EXPECT_EQ(root->presentedViewController(), first) << "one at a time";
    second->present(first);
    EXPECT_EQ(second->presentedViewController(), nullptr) << "presented elsewhere";
    first->present(root);
    EXPECT_EQ(first->presentedViewController(), nullptr) << "the chain has no cycle";
}

TEST(ViewController, OutlivesItsViewAndPresenter)
{
    auto view = std::make_unique<QQuickItem>();
    const Controller next = controller(view.get());
    controller()->present(next);
    EXPECT_FALSE(next->presentedViewController());
    view.reset();
    EXPECT_EQ(next->view(), nullptr);
    next->dismiss();
    Controller root = controller();
    root->present(next);
    root.reset();
    next->dismiss();
}

} // namespace
} // namespace TQFoundation
