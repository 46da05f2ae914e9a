#include "QmlWindow.h"
#include "RecordingPlatform.h"
#include "ShapeLayer.h"

#include <TQFoundation/AnimationView.h>
#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQRandomBackgroundView.h>

#include <QtGui/qaccessible.h>
#include <QtGui/qimage.h>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::QmlWindow;

constexpr Rgba red{1, 0, 0};
constexpr Rgba green{0, 1, 0};

class TQRandomBackgroundViewTest : public testing::Test
{
protected:
    // The view of a background, or null before it is made.
    static AnimationView *viewIn(const QQuickItem *background)
    {
        const QList<QQuickItem *> children = background->childItems();
        EXPECT_LE(children.size(), 1);
        return children.isEmpty() ? nullptr : qobject_cast<AnimationView *>(children.first());
    }

    static Rgba drawnColor(const AnimationView *view)
    {
        EXPECT_TRUE(view && view->shapeLayer());
        return view && view->shapeLayer() ? view->shapeLayer()->strokeColor : Rgba();
    }

    static Rgba strokeColor(const Color &color)
    {
        Rgba drawn = color.resolved(Appearance::light);
        drawn.alpha = 0.2F;
        return drawn;
    }

    int timersMade() const { return static_cast<int>(platform->timers.size()); }

    InstalledRecordingPlatform platform;
};

TEST_F(TQRandomBackgroundViewTest, HasColorAtFirstTickInQml)
{
    const QmlWindow host("TQRandomBackgroundView { color: TQApp.larch.tintColor }");
    ASSERT_TRUE(host.item);
    EXPECT_EQ(drawnColor(viewIn(host.item)), strokeColor(TQApp::larch.tintColor()));
    EXPECT_EQ(timersMade(), 1);
}

TEST_F(TQRandomBackgroundViewTest, HasColorAtFirstTickInQmlWindow)
{
    // Here the item is in the window before its bindings are evaluated.
    const QmlWindow host("Window { TQRandomBackgroundView { color: TQApp.larch.tintColor } }");
    const auto *window = qobject_cast<QQuickWindow *>(host.object.get());
    ASSERT_TRUE(window);
    EXPECT_EQ(drawnColor(viewIn(window->contentItem()->childItems().constFirst())),
              strokeColor(TQApp::larch.tintColor()));
    EXPECT_EQ(timersMade(), 1);
}

TEST_F(TQRandomBackgroundViewTest, RequiresColorInQml)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import TQFoundation\nTQRandomBackgroundView {}", QUrl(QStringLiteral("qrc:/Host.qml")));
    const std::unique_ptr<QObject> object(component.create());
    EXPECT_FALSE(object);
    EXPECT_TRUE(component.errorString().contains(u"color")) << component.errorString().toStdString();
    EXPECT_EQ(timersMade(), 0);
}

TEST_F(TQRandomBackgroundViewTest, StartsWithParentInWindow)
{
    QQuickWindow window;
    TQRandomBackgroundView background(Color(red), window.contentItem());
    EXPECT_EQ(background.color(), Color(red));
    EXPECT_EQ(background.parentItem(), window.contentItem());
    EXPECT_EQ(background.parent(), window.contentItem()) << "which therefore owns it";
    EXPECT_EQ(drawnColor(viewIn(&background)), strokeColor(red));
}

TEST_F(TQRandomBackgroundViewTest, MakesNoViewOutsideAWindow)
{
    QQuickItem page;
    TQRandomBackgroundView background(Color(red), &page);
    background.setColor(green);
    EXPECT_FALSE(viewIn(&background));
    EXPECT_EQ(timersMade(), 0);
    QQuickWindow window;
    page.setParentItem(window.contentItem());
    EXPECT_EQ(drawnColor(viewIn(&background)), strokeColor(green));
    EXPECT_EQ(timersMade(), 1);
}

TEST_F(TQRandomBackgroundViewTest, EachInstanceHasItsOwnView)
{
    const QmlWindow host("Item { TQRandomBackgroundView { color: TQApp.larch.tintColor }\n"
                         "TQRandomBackgroundView { color: TQApp.birch.tintColor } }");
    const QList<QQuickItem *> backgrounds = host.item->childItems();
    ASSERT_EQ(backgrounds.size(), 2);
    EXPECT_NE(viewIn(backgrounds[0]), viewIn(backgrounds[1]));
    EXPECT_EQ(drawnColor(viewIn(backgrounds[0])), strokeColor(TQApp::larch.tintColor()));
    EXPECT_EQ(drawnColor(viewIn(backgrounds[1])), strokeColor(TQApp::birch.tintColor()));
    EXPECT_EQ(timersMade(), 2);
}

TEST_F(TQRandomBackgroundViewTest, ResizesItsView)
{
    QQuickWindow window;
    TQRandomBackgroundView background(Color(red), window.contentItem());
    EXPECT_EQ(viewIn(&background)->size(), QSizeF(0, 0)) << "without a size of its own";
    background.setSize({120, 80});
    EXPECT_EQ(viewIn(&background)->size(), QSizeF(120, 80));
    EXPECT_EQ(viewIn(&background)->position(), QPointF(0, 0));
    TQRandomBackgroundView sized{Color(red)};
    sized.setSize({30, 40});
    sized.setParentItem(window.contentItem());
    EXPECT_EQ(viewIn(&sized)->size(), QSizeF(30, 40));
}

TEST_F(TQRandomBackgroundViewTest, DrawsForWholeScreenWithoutSize)
{
    QQuickWindow window;
    window.setColor(Qt::white);
    window.resize(390, 844);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    TQRandomBackgroundView background(Color(Rgba{}), window.contentItem());
    platform->advance(9.1);
    const QImage image = window.grabWindow();
    for (const QPoint &corner : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        const QSize half = image.size() / 2;
        QImage blank(half, image.format());
        blank.fill(Qt::white);
        const QPoint place(corner.x() * half.width(), corner.y() * half.height());
        EXPECT_FALSE(image.copy(QRect(place, half)) == blank) << corner.x() << ',' << corner.y();
    }
    background.setSize(window.size());
    EXPECT_TRUE(window.grabWindow() == image);
}

TEST_F(TQRandomBackgroundViewTest, UpdatesDoNotRestartTheTimer)
{
    QQuickWindow window;
    TQRandomBackgroundView background(Color(red), window.contentItem());
    AnimationView *view = viewIn(&background);
    const ShapeLayer line = *view->shapeLayer();
    platform->calls.clear();
    for (int round = 0; round < 10; ++round) {
        background.setColor(red);
        background.setColor(green);
        background.setSize({10.0 * round, 10});
    }
    EXPECT_EQ(platform->calls, QStringList());
    EXPECT_EQ(viewIn(&background), view);
    EXPECT_EQ(*view->shapeLayer(), line);
}

TEST_F(TQRandomBackgroundViewTest, NewColorAppliesFromNextTick)
{
    const QmlWindow host("TQRandomBackgroundView { property bool other: false\n"
                         "color: other ? TQApp.birch.tintColor : TQApp.larch.tintColor }");
    const AnimationView *view = viewIn(host.item);
    host.item->setProperty("other", true);
    EXPECT_EQ(view->color(), TQApp::birch.tintColor());
    platform->advance(9.9);
    EXPECT_EQ(drawnColor(view), strokeColor(TQApp::larch.tintColor()));
    platform->advance(0.2);
    EXPECT_EQ(drawnColor(view), strokeColor(TQApp::birch.tintColor()));
}

TEST_F(TQRandomBackgroundViewTest, EmitsColorChangedOnlyForNewColor)
{
    TQRandomBackgroundView background{Color(red)};
    std::vector<Color> seen;
    QObject::connect(&background, &TQRandomBackgroundView::colorChanged,
                     [&] { seen.push_back(background.property("color").value<Color>()); });
    background.setColor(red);
    EXPECT_TRUE(seen.empty());
    background.setColor(green);
    EXPECT_EQ(seen, std::vector{Color(green)});
}

TEST_F(TQRandomBackgroundViewTest, KeepsTickingOutsideAnyWindow)
{
    QQuickWindow window;
    TQRandomBackgroundView background(Color(red), window.contentItem());
    AnimationView *view = viewIn(&background);
    background.setParentItem(nullptr);
    const ShapeLayer line = *view->shapeLayer();
    platform->advance(10);
    EXPECT_NE(*view->shapeLayer(), line);
    QQuickWindow other;
    background.setParentItem(other.contentItem());
    EXPECT_EQ(viewIn(&background), view) << "the item keeps its view";
    EXPECT_EQ(timersMade(), 1);
}

TEST_F(TQRandomBackgroundViewTest, ViewOutlivesItemWindowAndEngine)
{
    std::weak_ptr<AnimationView> view;
    {
        const QmlWindow host("TQRandomBackgroundView { color: TQApp.larch.tintColor }");
        view = viewIn(host.item)->weak_from_this();
    }
    ASSERT_FALSE(view.expired());
    EXPECT_FALSE(view.lock()->parentItem());
    const ShapeLayer line = *view.lock()->shapeLayer();
    platform->advance(10);
    ASSERT_FALSE(view.expired());
    EXPECT_NE(*view.lock()->shapeLayer(), line);
    platform->timers.front().lock()->invalidate();
    EXPECT_TRUE(view.expired());
}

TEST_F(TQRandomBackgroundViewTest, HoldsItsViewAfterTimerIsInvalidated)
{
    std::weak_ptr<AnimationView> view;
    QQuickWindow window;
    {
        TQRandomBackgroundView background(Color(red), window.contentItem());
        view = viewIn(&background)->weak_from_this();
        platform->timers.front().lock()->invalidate();
        EXPECT_FALSE(view.expired());
    }
    EXPECT_TRUE(view.expired());
}

TEST_F(TQRandomBackgroundViewTest, PassesInputToItemsBelow)
{
    const QmlWindow host("MouseArea { property int taps: 0; width: 100; height: 100; onClicked: ++taps\n"
                         "TQRandomBackgroundView { anchors.fill: parent; color: TQApp.larch.tintColor } }");
    QTest::mouseClick(const_cast<QQuickWindow *>(&host.window), Qt::LeftButton, {}, QPoint(50, 50));
    EXPECT_EQ(host.item->property("taps"), QVariant(1));
}

TEST_F(TQRandomBackgroundViewTest, HasNoAccessibleInterface)
{
    QAccessible::setActive(true);
    QmlWindow host("Item { TQRandomBackgroundView { anchors.fill: parent; color: TQApp.larch.tintColor }\n"
                   "Item { Accessible.role: Accessible.Button; Accessible.name: 'visible' } }");
    QAccessibleInterface *window = QAccessible::queryAccessibleInterface(&host.window);
    ASSERT_TRUE(window);
    ASSERT_EQ(window->childCount(), 1);
    EXPECT_EQ(window->child(0)->text(QAccessible::Name), QStringLiteral("visible"));
}

} // namespace
} // namespace TQFoundation
