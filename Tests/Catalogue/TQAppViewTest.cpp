#include "DeathTest.h"
#include "QmlWindow.h"
#include "RecordingPlatform.h"
#include "TouchScreen.h"

#include <TQFoundation/TQApp.h>

#include <QtGui/qaccessible.h>
#include <QtGui/qpainter.h>
#include <QtGui/qwindow.h>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::QmlWindow;

const QString openedPage = QStringLiteral("openUrl(https://apps.apple.com/developer/tq-studio/id9990000000)");

QByteArray row(TQApp app, const QByteArray &properties = "width: 390")
{
    const QByteArray name = QMetaEnum::fromType<TQApp::Case>().valueToKey(static_cast<int>(TQApp::Case(app)));
    return "TQAppView { focus: true; app: TQApp." + name + "; " + properties + " }";
}

// The visible icons, from left to right.
QList<QQuickItem *> shownIcons(const QmlWindow &host)
{
    QList<QQuickItem *> icons;
    QList<QQuickItem *> items{host.item};
    while (!items.isEmpty()) {
        QQuickItem *item = items.takeFirst();
        if (item->inherits("TQFoundation::TQAppIcon") && item->isVisible())
            icons += item;
        items += item->childItems();
    }
    std::ranges::sort(icons, {}, [](const QQuickItem *icon) { return icon->mapToScene({0, 0}).x(); });
    return icons;
}

TQApp appOf(const QQuickItem *icon)
{
    return icon->property("app").value<TQApp>();
}

QPoint middleOf(const QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

// Turns the mouse wheel by one notch over the row.
void turnWheel(QmlWindow &host, QPoint angleDelta)
{
    const QPointF place(100, 18);
    QWheelEvent turn(place, host.window.mapToGlobal(place), {}, angleDelta, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&host.window, &turn);
}

double scrolled(const QmlWindow &host)
{
    return host.item->property("contentX").toDouble();
}

// The number of icons in a row.
constexpr auto iconCount = static_cast<int>(TQApp::allCases().size()) - 1;
// The width of all icons, the gaps between them and the padding.
constexpr int contentWidth = iconCount * 36 + (iconCount - 1) * 8 + 2 * 16;

class TQAppView : public testing::Test
{
protected:
    int opened() const { return static_cast<int>(platform->calls.count(openedPage)); }

    InstalledRecordingPlatform platform;
};

using TQAppViewDeathTest = TQAppView;

TEST_F(TQAppView, ShowsTheOtherAppsInOrder)
{
    for (const TQApp own : TQApp::allCases()) {
        const QmlWindow host(row(own));
        QList<TQApp> expected;
        for (const TQApp app : TQApp::allCases()) {
            if (app != own)
                expected += app;
        }
        QList<TQApp> shown;
        for (const QQuickItem *icon : shownIcons(host))
            shown += appOf(icon);
        EXPECT_EQ(shown, expected);
    }
}

TEST_F(TQAppView, HasNoPublicMemberButApp)
{
    const QmlWindow host(row(TQApp::hazel));
    const QMetaObject *const type = host.item->metaObject();
    const QMetaObject *base = type;
    while (qstrcmp(base->className(), "QQuickFlickable") != 0)
        base = base->superClass();
    ASSERT_EQ(type->propertyCount(), base->propertyCount() + 1);
    EXPECT_STREQ(type->property(base->propertyCount()).name(), "app");
    ASSERT_EQ(type->methodCount(), base->methodCount() + 1);
    EXPECT_EQ(type->method(base->methodCount()).name(), "appChanged");
}

TEST_F(TQAppView, LaysOutIconsWithSpacingAndPadding)
{
    const QmlWindow host(row(TQApp::hazel));
    double x = 16;
    for (const QQuickItem *icon : shownIcons(host)) {
        EXPECT_EQ(icon->mapToItem(host.item, QPointF(0, 0)), QPointF(x, 0));
        EXPECT_EQ(icon->size(), QSizeF(36, 36));
        x += 44;
    }
    EXPECT_EQ(host.item->property("contentWidth").toDouble(), contentWidth);
    EXPECT_EQ(host.item->implicitHeight(), 36) << "no padding above or below";
}

TEST_F(TQAppView, CentresIconsVertically)
{
    const QmlWindow host(row(TQApp::hazel, "width: 390; height: 100"));
    for (const QQuickItem *icon : shownIcons(host))
        EXPECT_EQ(icon->mapToScene({0, 0}).y(), 32);
}

TEST_F(TQAppView, LeavesNoSlotForNullIcons)
{
    platform->scale = 0;
    const QmlWindow host(row(TQApp::hazel, "width: 20"));
    EXPECT_TRUE(shownIcons(host).isEmpty());
    EXPECT_EQ(host.item->property("contentWidth").toDouble(), 32);
}

TEST_F(TQAppViewDeathTest, ReadsItsIconsAtEachBuild)
{
    {
        const QmlWindow host(row(TQApp::hazel));
    }
    platform->root = QStringLiteral(":/NoSuchBundle");
    EXPECT_EXIT(const QmlWindow host(row(TQApp::hazel)), testing::KilledBySignal(Testing::trapSignal), "");
}

TEST_F(TQAppView, OpensThePageOnATapAnywhere)
{
    const QmlWindow host(row(TQApp::hazel, "width: 500; height: 60"), {500, 200});
    QList<QPoint> places{{2, 30}, {498, 30}, {100, 1}, {16 + 36 + 4, 30}};
    for (const QQuickItem *icon : shownIcons(host))
        places += middleOf(icon);
    for (const QPoint &place : std::as_const(places)) {
        const int before = opened();
        QTest::mouseClick(const_cast<QQuickWindow *>(&host.window), Qt::LeftButton, {}, place);
        EXPECT_EQ(opened(), before + 1) << place.x() << ',' << place.y();
    }
}

TEST_F(TQAppView, KeepsTapsFromHandlersBelow)
{
    for (const char *policy : {"DragThreshold", "WithinBounds", "ReleaseWithinBounds"}) {
        QmlWindow host("Item { property int taps; width: 390; height: 200; TapHandler { onTapped: ++parent.taps; "
                       "gesturePolicy: TapHandler."
                       + QByteArray(policy) + " } " + row(TQApp::hazel) + " }");
        const int before = opened();
        QTest::mouseClick(&host.window, Qt::LeftButton, {}, {40, 18});
        EXPECT_EQ(opened(), before + 1);
        QTest::mousePress(&host.window, Qt::LeftButton, {}, {180, 18});
        for (int x = 170; x >= 60; x -= 10)
            QTest::mouseMove(&host.window, {x, 18});
        QTest::mouseRelease(&host.window, Qt::LeftButton, {}, {60, 18});
        EXPECT_EQ(host.item->property("taps"), QVariant(0)) << policy;
        QTest::mouseClick(&host.window, Qt::LeftButton, {}, {40, 150});
        EXPECT_EQ(opened(), before + 1);
        EXPECT_EQ(host.item->property("taps"), QVariant(1)) << policy;
    }
}

TEST_F(TQAppView, OpensThePageOnATouch)
{
    QmlWindow host(row(TQApp::hazel));
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    QTest::touchEvent(&host.window, screen.get()).press(0, {40, 18});
    QTest::touchEvent(&host.window, screen.get()).release(0, {40, 18});
    EXPECT_EQ(opened(), 1);
}

TEST_F(TQAppView, ReadsTheRegionBeforeOpeningThePage)
{
    QmlWindow host(row(TQApp::hazel));
    platform->calls.clear();
    QTest::mouseClick(&host.window, Qt::LeftButton, {}, {40, 18});
    EXPECT_EQ(platform->calls, (QStringList{QStringLiteral("storefrontCountryCode()"), openedPage}));
}

TEST_F(TQAppView, OpensOnePageForAllHostsAndRegions)
{
    platform->storefront = QStringLiteral("USA");
    for (const TQApp own : TQApp::allCases()) {
        QmlWindow host(row(own));
        QTest::mouseClick(&host.window, Qt::LeftButton, {}, {40, 18});
    }
    EXPECT_EQ(opened(), iconCount + 1);
}

TEST_F(TQAppView, IgnoresTapsOutside)
{
    QmlWindow host(row(TQApp::hazel));
    QTest::mouseClick(&host.window, Qt::LeftButton, {}, {40, 60});
    EXPECT_EQ(opened(), 0);
}

TEST_F(TQAppView, ScrollsOnDragWithoutOpening)
{
    QmlWindow host(row(TQApp::hazel, "width: 200"));
    QTest::mousePress(&host.window, Qt::LeftButton, {}, {180, 18});
    for (int x = 170; x >= 60; x -= 10)
        QTest::mouseMove(&host.window, {x, 18}, 10);
    QTest::mouseRelease(&host.window, Qt::LeftButton, {}, {60, 18});
    EXPECT_GT(scrolled(host), 0);
    EXPECT_EQ(opened(), 0);
}

TEST_F(TQAppView, ScrollsOnATouchDragWithoutOpening)
{
    QmlWindow host(row(TQApp::hazel, "width: 320"));
    Testing::TouchScreen().drag(&host.window, {300, 18}, {100, 18});
    EXPECT_GT(scrolled(host), 0);
    EXPECT_EQ(opened(), 0);
}

TEST_F(TQAppView, IgnoresTheTapThatStopsAFlick)
{
    QmlWindow host(row(TQApp::hazel, "width: 200; flickDeceleration: 100"));
    ASSERT_TRUE(QMetaObject::invokeMethod(host.item, "flick", Q_ARG(double, -600.0), Q_ARG(double, 0.0)));
    ASSERT_TRUE(QTest::qWaitFor([&] { return scrolled(host) > 5; }));
    ASSERT_TRUE(host.item->property("moving").toBool());
    QTest::mouseClick(&host.window, Qt::LeftButton, {}, {100, 18});
    EXPECT_EQ(opened(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !host.item->property("moving").toBool(); }));
    QTest::mouseClick(&host.window, Qt::LeftButton, {}, {100, 18});
    EXPECT_EQ(opened(), 1);
}

TEST_F(TQAppView, ShowsNoScrollIndicator)
{
    QmlWindow host(row(TQApp::hazel, "width: 200; height: 60"), {200, 60});
    QTest::mousePress(&host.window, Qt::LeftButton, {}, {180, 30});
    for (int x = 170; x >= 60; x -= 10)
        QTest::mouseMove(&host.window, {x, 30}, 10);
    ASSERT_TRUE(host.item->property("moving").toBool());
    const QImage shown = host.window.grabWindow();
    QTest::mouseRelease(&host.window, Qt::LeftButton, {}, {60, 30});
    ASSERT_EQ(shown.size(), QSize(200, 60) * shown.devicePixelRatio());
    for (int y = 0; y < shown.height(); ++y) {
        // Above and below the icons.
        if (std::abs(y - shown.height() / 2) <= 19 * shown.devicePixelRatio())
            continue;
        for (int x = 0; x < shown.width(); ++x)
            ASSERT_EQ(shown.pixel(x, y), qRgb(255, 255, 255)) << x << ',' << y;
    }
}

TEST_F(TQAppView, DoesNotScrollIfIconsFit)
{
    QmlWindow host(row(TQApp::hazel, "width: 500"), {500, 200});
    QTest::keyClick(&host.window, Qt::Key_Right);
    QTest::keyClick(&host.window, Qt::Key_End);
    turnWheel(host, QPoint(0, -120));
    EXPECT_EQ(scrolled(host), 0);
}

TEST_F(TQAppView, ScrollsByArrowHomeAndEndKeys)
{
    QmlWindow host(row(TQApp::hazel, "width: 200"));
    QTest::keyClick(&host.window, Qt::Key_Left);
    EXPECT_EQ(scrolled(host), 0);
    QTest::keyClick(&host.window, Qt::Key_Right);
    EXPECT_EQ(scrolled(host), 44);
    QTest::keyClick(&host.window, Qt::Key_End);
    EXPECT_EQ(scrolled(host), contentWidth - 200);
    QTest::keyClick(&host.window, Qt::Key_Right);
    EXPECT_EQ(scrolled(host), contentWidth - 200);
    QTest::keyClick(&host.window, Qt::Key_Home);
    EXPECT_EQ(scrolled(host), 0);
    EXPECT_EQ(opened(), 0);
}

TEST_F(TQAppView, OpensThePageOnReturnEnterAndSpace)
{
    QmlWindow host(row(TQApp::hazel));
    EXPECT_TRUE(host.item->hasActiveFocus());
    QTest::keyClick(&host.window, Qt::Key_Return);
    QTest::keyClick(&host.window, Qt::Key_Enter);
    QTest::keyClick(&host.window, Qt::Key_Space);
    EXPECT_EQ(opened(), 3);
}

TEST_F(TQAppView, IgnoresKeyAutoRepeat)
{
    QmlWindow host(row(TQApp::hazel));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        const int before = opened();
        for (const bool repeated : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), repeated);
            QCoreApplication::sendEvent(&host.window, &press);
        }
        EXPECT_EQ(opened(), before + 1);
    }
}

TEST_F(TQAppView, TakesFocusByTab)
{
    QmlWindow host("FocusScope { focus: true; Item { focus: true; activeFocusOnTab: true } TQAppView { objectName: "
                   "\"row\"; app: TQApp.fir; width: 200 } }");
    QTest::keyClick(&host.window, Qt::Key_Tab);
    EXPECT_TRUE(host.item->findChild<QQuickItem *>(QStringLiteral("row"))->hasActiveFocus());
}

TEST_F(TQAppView, PassesWheelEventsOnAtItsEnds)
{
    QmlWindow host("Flickable { width: 200; height: 100; contentHeight: 400; TQAppView { objectName: \"row\"; app: "
                   "TQApp.fir; width: 200 } }");
    auto *row = host.item->findChild<QQuickItem *>(QStringLiteral("row"));
    const auto contentX = [&] { return row->property("contentX").toDouble(); };
    turnWheel(host, QPoint(0, -120));
    EXPECT_EQ(contentX(), 44);
    EXPECT_EQ(host.item->property("contentY").toDouble(), 0);
    for (double x = 44; x < contentWidth - 200; x += 44)
        turnWheel(host, QPoint(0, -120));
    EXPECT_EQ(contentX(), contentWidth - 200);
    turnWheel(host, QPoint(0, -120));
    EXPECT_EQ(contentX(), contentWidth - 200);
    EXPECT_TRUE(QTest::qWaitFor([&] { return host.item->property("contentY").toDouble() > 0; }));
}

TEST_F(TQAppView, StartsAtTheRightIfMirrored)
{
    QmlWindow host(
        row(TQApp::hazel, "width: 200; LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true"));
    const QList<QQuickItem *> icons = shownIcons(host);
    ASSERT_EQ(icons.size(), iconCount);
    EXPECT_EQ(appOf(icons.last()), TQApp::larch);
    EXPECT_EQ(icons.last()->mapToScene({0, 0}).x(), 200 - 16 - 36);
    QTest::keyClick(&host.window, Qt::Key_Left);
    EXPECT_EQ(icons.last()->mapToScene({0, 0}).x(), 200 - 16 - 36 + 44);
    turnWheel(host, QPoint(0, 120));
    EXPECT_EQ(icons.last()->mapToScene({0, 0}).x(), 200 - 16 - 36);
}

TEST_F(TQAppView, StartsAtTheRightIfOnlyItselfIsMirrored)
{
    QmlWindow host(row(TQApp::hazel, "width: 200; LayoutMirroring.enabled: true"));
    const QList<QQuickItem *> icons = shownIcons(host);
    EXPECT_EQ(appOf(icons.last()), TQApp::larch);
    EXPECT_EQ(icons.last()->mapToScene({0, 0}).x(), 200 - 16 - 36);
    QTest::keyClick(&host.window, Qt::Key_Left);
    EXPECT_EQ(icons.last()->mapToScene({0, 0}).x(), 200 - 16 - 36 + 44);
}

TEST_F(TQAppView, InheritsMirroring)
{
    QmlWindow host("Item { LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true; width: 390; "
                   + row(TQApp::hazel, "width: 200") + " }");
    const QList<QQuickItem *> icons = shownIcons(host);
    EXPECT_EQ(appOf(icons.last()), TQApp::larch);
    EXPECT_EQ(icons.last()->mapToScene({0, 0}).x(), 200 - 16 - 36);
}

TEST_F(TQAppView, ReturnsToItsStartWhenMirroringChanges)
{
    QmlWindow host(row(TQApp::hazel,
                       "width: 200; property bool arabic; LayoutMirroring.enabled: arabic; "
                       "LayoutMirroring.childrenInherit: true"));
    QTest::keyClick(&host.window, Qt::Key_Right);
    host.item->setProperty("arabic", true);
    EXPECT_EQ(shownIcons(host).last()->mapToScene({0, 0}).x(), 200 - 16 - 36);
    host.item->setProperty("arabic", false);
    EXPECT_EQ(shownIcons(host).first()->mapToScene({0, 0}).x(), 16);
}

TEST_F(TQAppView, AlignsRightIfMirroredAndWide)
{
    QmlWindow host(
        row(TQApp::hazel, "width: 500; LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true"),
        {500, 200});
    EXPECT_EQ(shownIcons(host).last()->mapToScene({0, 0}).x(), 500 - 16 - 36);
}

TEST_F(TQAppView, IsAnAccessibleButton)
{
    QmlWindow host(row(TQApp::hazel));
    QAccessible::setActive(true);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(host.item);
    ASSERT_TRUE(accessible);
    EXPECT_EQ(accessible->role(), QAccessible::Button);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("More Apps I Developed"));
    ASSERT_TRUE(accessible->actionInterface());
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(opened(), 1);

    QStringList names;
    for (QQuickItem *icon : shownIcons(host)) {
        QAccessibleInterface *part = QAccessible::queryAccessibleInterface(icon);
        ASSERT_TRUE(part);
        EXPECT_EQ(part->role(), QAccessible::Graphic);
        names += part->text(QAccessible::Name);
    }
    EXPECT_EQ(names.first(), QStringLiteral("Larch"));
    EXPECT_TRUE(names.contains(QStringLiteral("Alder")));
}

TEST_F(TQAppView, FollowsChangesOfApp)
{
    QmlWindow host(row(TQApp::hazel));
    host.item->setProperty("app", QVariant::fromValue(TQApp(TQApp::larch)));
    ASSERT_EQ(shownIcons(host).size(), iconCount);
    EXPECT_EQ(appOf(shownIcons(host).first()), TQApp::juniper);
}

// Run once per scale: CTest sets QT_SCALE_FACTOR.
TEST(TQAppViewPixels, DrawsThumbnailsPixelByPixel)
{
    const InstalledRecordingPlatform platform;
    platform->scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble();
    QmlWindow host(row(TQApp::hazel, "width: 440; height: 50"), {440, 60});
    const QImage shown = host.window.grabWindow();
    ASSERT_EQ(shown.size(), QSize(440, 60) * platform->scale);

    QImage expected(shown.size(), QImage::Format_ARGB32_Premultiplied);
    expected.setDevicePixelRatio(platform->scale);
    expected.fill(Qt::white);
    QPainter painter(&expected);
    double x = 16;
    for (const TQApp app : TQApp::allCases()) {
        if (app == TQApp::hazel)
            continue;
        painter.drawImage(QPointF(x, 7), app.icon());
        x += 44;
    }
    painter.end();

    int largestDifference = 0;
    for (int py = 0; py < shown.height(); ++py) {
        for (int px = 0; px < shown.width(); ++px) {
            const QRgb a = shown.pixel(px, py);
            const QRgb b = expected.pixel(px, py);
            largestDifference = std::max({largestDifference, std::abs(qRed(a) - qRed(b)),
                                          std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
        }
    }
    EXPECT_LE(largestDifference, 2) << "a thumbnail is neither moved nor scaled on its way to the screen";
}

} // namespace
} // namespace TQFoundation
