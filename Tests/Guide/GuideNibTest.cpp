#include "GuideHost.h"
#include "Languages.h"
#include "Layout.h"
#include "ScreenReader.h"
#include "TouchScreen.h"

#include <TQFoundation/TQApp.h>

#include <QtGui/qguiapplication.h>
#include <QtGui/qpa/qwindowsysteminterface.h>
#include <QtGui/qpalette.h>
#include <QtGui/qscreen.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickrendercontrol.h>
#include <QtQuick/qquickview.h>

#include <algorithm>
#include <cmath>

namespace TQFoundation {
namespace {

using Testing::keyScene;
using Testing::ScreenReader;
using Testing::useLanguage;

void setAppearance(Appearance appearance)
{
    QPalette palette;
    palette.setColor(QPalette::Window, appearance == Appearance::dark ? Qt::black : Qt::white);
    palette.setColor(QPalette::WindowText, appearance == Appearance::dark ? Qt::white : Qt::black);
    QGuiApplication::setPalette(palette);
}

Rgba shownColor(const QObject *item)
{
    const auto color = item->property("color").value<QColor>();
    return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

QQuickItem *part(const QQuickItem *button, const char *name)
{
    return button->findChild<QQuickItem *>(QLatin1String(name));
}

QRectF sceneRect(const QQuickItem *item)
{
    return item->mapRectToScene({0, 0, item->width(), item->height()});
}

// The Flickable that contains the label.
QQuickItem *scroller(const TQGuideView &guide)
{
    QQuickItem *item = guide.guideLabel();
    while (item && !item->inherits("QQuickFlickable"))
        item = item->parentItem();
    return item;
}

class GuideNib : public Testing::GuideHost
{
protected:
    std::shared_ptr<TQGuideView> shownIn(QSize size, const QString &text, const QString &next = QStringLiteral("Two"))
    {
        window.resize(size);
        platform->bounds = size;
        auto guide = shown({text, next});
        clock.pass(600);
        window.grabWindow();
        return guide;
    }

    static QString longText() { return QStringLiteral("The quick brown fox jumps over the lazy dog. ").repeated(40); }
};

// Colors.

TEST_F(GuideNib, HasLegibleColorsOnEveryTint)
{
    for (const Appearance appearance : {Appearance::light, Appearance::dark}) {
        setAppearance(appearance);
        for (const TQApp &app : TQApp::allCases()) {
            const auto guide = TQGuideView::initFromNib(app.tintColor(), {QStringLiteral("Text")}, nullptr);
            const Rgba ground = app.tintColor().resolved(appearance);
            const Rgba text = shownColor(guide->guideLabel());
            const Rgba disc = shownColor(part(guide->nextButton(), "disc"));
            const Rgba arrow = shownColor(part(guide->nextButton(), "arrow"));
            EXPECT_GE(contrast(text, ground), 4.5) << app.id().toStdString();
            EXPECT_GE(contrast(disc, ground), 4.5) << app.id().toStdString();
            EXPECT_GE(contrast(arrow, disc), 4.5) << app.id().toStdString();
            EXPECT_EQ(text.alpha, 1);
        }
    }
}

TEST_F(GuideNib, FollowsAppearanceWhileShown)
{
    setAppearance(Appearance::light);
    const auto guide = TQGuideView::initFromNib(Color::label(), {QStringLiteral("Text")}, nullptr);
    EXPECT_EQ(shownColor(guide->guideLabel()), (Rgba{1, 1, 1})) << "white on a black background";
    setAppearance(Appearance::dark);
    EXPECT_EQ(shownColor(guide->guideLabel()), (Rgba{0, 0, 0}));
    platform->currentAppearance = Appearance::light;
    appearanceChanged();
    EXPECT_EQ(shownColor(guide->guideLabel()), (Rgba{1, 1, 1})) << "the platform outweighs the palette";
}

TEST_F(GuideNib, PaintsWholeOverlayWithOpacityOfItsColor)
{
    window.setColor(Qt::white);
    const auto guide = TQGuideView::initFromNib(Rgba{1, 0, 0}, {QStringLiteral("Text")}, nullptr);
    guide->showGuide();
    clock.pass(600);
    EXPECT_EQ(window.grabWindow().pixelColor(2, 2), QColor(255, 0, 0));
    guide->setBackgroundColor(Rgba{1, 0, 0, 0.2F});
    const QColor seen = window.grabWindow().pixelColor(2, 2);
    EXPECT_NEAR(seen.green(), 204, 2);
    EXPECT_EQ(shownColor(guide->guideLabel()), (Rgba{0, 0, 0})) << "the translucent background counts as light";
}

// Layout.

TEST_F(GuideNib, KeepsLargeButtonInsideWindow)
{
    for (const QSize size : {QSize(320, 568), QSize(390, 844), QSize(820, 1180), QSize(1280, 800), QSize(320, 240)}) {
        const auto guide = shownIn(size, longText());
        const QRectF button = sceneRect(guide->nextButton());
        EXPECT_GE(button.width(), 44);
        EXPECT_GE(button.height(), 44);
        EXPECT_TRUE(QRectF(QPointF(), QSizeF(size)).contains(button)) << size.width();
        EXPECT_LE(sceneRect(scroller(*guide)).bottom(), button.top()) << "the text stays above the button";
        guide->setParentItem(nullptr);
    }
}

TEST_F(GuideNib, CentersParagraphThatFits)
{
    const auto guide = shownIn({390, 844}, QStringLiteral("Short."));
    EXPECT_FALSE(scroller(*guide)->property("interactive").toBool());
    EXPECT_NEAR(sceneRect(guide->guideLabel()).center().y(), sceneRect(scroller(*guide)).center().y(), 1);
}

TEST_F(GuideNib, ScrollsLongParagraphByTouchWheelAndKeys)
{
    const auto guide = shownIn({320, 480}, longText());
    QQuickItem *const page = scroller(*guide);
    EXPECT_GE(page->property("contentHeight").toDouble(), guide->guideLabel()->height());
    QTest::keyClick(&window, Qt::Key_End);
    EXPECT_NEAR(page->property("contentY").toDouble(), page->property("contentHeight").toDouble() - page->height(), 1);
    EXPECT_LE(sceneRect(guide->guideLabel()).bottom(), sceneRect(page).bottom()) << "the last line is visible";
    QTest::keyClick(&window, Qt::Key_Home);
    EXPECT_EQ(page->property("contentY").toDouble(), 0);
    std::vector<double> places;
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Up, Qt::Key_PageUp}) {
        QTest::keyClick(&window, key);
        places.push_back(page->property("contentY").toDouble());
    }
    EXPECT_GT(places[0], 0);
    EXPECT_GT(places[1], places[0]);
    EXPECT_NEAR(places[2], places[0], 0.01);
    EXPECT_EQ(std::pair(places[3], places[4]), std::pair(0.0, 0.0));

    QWheelEvent wheel({100, 100}, {100, 100}, {0, -200}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&window, &wheel);
    clock.pass(1000);
    EXPECT_GT(page->property("contentY").toDouble(), 0);
    QTest::keyClick(&window, Qt::Key_Home);

    QPointingDevice *const screen = QTest::createTouchDevice();
    QTest::touchEvent(&window, screen).press(0, {100, 300});
    for (int y = 290; y >= 150; y -= 10)
        QTest::touchEvent(&window, screen).move(0, {100, y});
    EXPECT_GT(page->property("contentY").toDouble(), 50);
    QTest::touchEvent(&window, screen).move(0, {100, 460});
    EXPECT_EQ(page->property("contentY").toDouble(), 0);
    QTest::touchEvent(&window, screen).release(0, {100, 460});
    EXPECT_FALSE(platform->calls.contains(QStringLiteral("softImpact()")));
}

TEST_F(GuideNib, KeepsScrollPositionAtTouchCancel)
{
    const auto guide = shownIn({320, 480}, longText());
    QPointingDevice *const screen = QTest::createTouchDevice();
    QTest::touchEvent(&window, screen).press(0, {100, 300});
    for (int y = 290; y >= 200; y -= 10)
        QTest::touchEvent(&window, screen).move(0, {100, y});
    const double before = scroller(*guide)->property("contentY").toDouble();
    EXPECT_GT(before, 0);
    QWindowSystemInterface::handleTouchCancelEvent<QWindowSystemInterface::SynchronousDelivery>(&window, screen);
    EXPECT_NEAR(scroller(*guide)->property("contentY").toDouble(), before, 1);
}

TEST_F(GuideNib, StartsNextParagraphAtTop)
{
    const auto guide = shownIn({320, 480}, longText(), longText() + u'.');
    QTest::keyClick(&window, Qt::Key_End);
    guide->nextGuide();
    clock.pass(400);
    EXPECT_EQ(scroller(*guide)->property("contentY").toDouble(), 0);
}

TEST_F(GuideNib, FitsTwiceTheTextSize)
{
    const auto guide = shownIn({320, 568}, longText());
    const double before = guide->guideLabel()->property("font").value<QFont>().pixelSize();
    QFont font = QGuiApplication::font();
    font.setPointSizeF(40);
    QGuiApplication::setFont(font);
    const auto large = shownIn({320, 568}, longText());
    EXPECT_GE(large->guideLabel()->property("font").value<QFont>().pixelSize(), 1.8 * before);
    EXPECT_LE(sceneRect(large->guideLabel()).right(), 320);
    EXPECT_TRUE(scroller(*large)->property("interactive").toBool());
    EXPECT_TRUE(QRectF(0, 0, 320, 568).contains(sceneRect(large->nextButton())));
}

TEST_F(GuideNib, KeepsLayoutWholeInResizedWindows)
{
    const QSize sizes[] = {{320, 568}, {1280, 800}, {390, 844}, {240, 240}, {820, 1180}};
    for (const double points : {9.0, 18.0}) {
        QFont font = QGuiApplication::font();
        font.setPointSizeF(points);
        QGuiApplication::setFont(font);
        for (const QString &paragraph : TQApp(TQApp::hazel).guideText()) {
            platform->bounds = {1600, 1600};
            const auto guide = shown({paragraph});
            clock.pass(600);
            for (const QSize size : sizes) {
                window.resize(size);
                QCoreApplication::processEvents();
                window.grabWindow();
                EXPECT_EQ(Testing::Layout::flawsOf(guide.get()), QStringList()) << size.width();
            }
            guide->setParentItem(nullptr);
        }
    }
}

TEST_F(GuideNib, LimitsLineLengthInWideWindow)
{
    const auto guide = shownIn({2560, 1440}, longText());
    const double size = guide->guideLabel()->property("font").value<QFont>().pixelSize();
    EXPECT_LE(guide->guideLabel()->width(), 30 * size);
    EXPECT_NEAR(sceneRect(guide->guideLabel()).center().x(), 1280, 1);
}

TEST_F(GuideNib, KeepsContentInsideResizedWindow)
{
    // A small window on a larger screen grows.
    platform->bounds = {1000, 900};
    window.resize(390, 500);
    const auto guide = shown({longText()});
    clock.pass(600);
    window.grabWindow();
    EXPECT_EQ(guide->shownArea(), QRectF(0, 0, 390, 500));
    EXPECT_TRUE(QRectF(0, 0, 390, 500).contains(sceneRect(guide->nextButton())));
    window.resize(800, 600);
    QCoreApplication::processEvents();
    window.grabWindow();
    EXPECT_EQ(guide->shownArea(), QRectF(0, 0, 800, 600));
    EXPECT_EQ(guide->size(), QSizeF(1000, 900));
}

TEST_F(GuideNib, KeepsParagraphAndLayoutInRotatedPhone)
{
    const Testing::TouchScreen screen;
    const QStringList paragraphs = TQApp(TQApp::hazel).guideText();
    const auto rotate = [this] {
        window.resize(window.size().transposed());
        QCoreApplication::processEvents();
        window.grabWindow();
    };
    for (const QSize size : {QSize(320, 568), QSize(360, 800), QSize(390, 844), QSize(430, 932)}) {
        platform->bounds = size;
        window.resize(size);
        const auto guide = shown(paragraphs);
        clock.pass(600);
        for (const QString &paragraph : paragraphs) {
            EXPECT_EQ(textOf(*guide), paragraph);
            EXPECT_EQ(Testing::Layout::flawsOf(guide.get()), QStringList()) << window.width();
            rotate();
            EXPECT_EQ(textOf(*guide), paragraph);
            EXPECT_EQ(guide->shownArea().size(), QSizeF(window.size()));
            EXPECT_EQ(Testing::Layout::flawsOf(guide.get()), QStringList()) << window.width();
            screen.tap(guide->nextButton());
            clock.pass(200);
            rotate();
            clock.pass(600);
        }
        EXPECT_EQ(guide->parentItem(), nullptr);
    }
    EXPECT_EQ(completed, 4);
}

TEST_F(GuideNib, FillsWindowLargerThanScreen)
{
    platform->bounds = {320, 480};
    window.resize(700, 800);
    window.setColor(Qt::white);
    const auto guide = shown({longText()});
    guide->setBackgroundColor(Rgba{1, 0, 0});
    clock.pass(600);
    const QImage seen = window.grabWindow();
    EXPECT_EQ(guide->size(), QSizeF(320, 480));
    EXPECT_EQ(guide->shownArea(), QRectF(0, 0, 700, 800));
    for (const QPoint corner : {QPoint(2, 2), QPoint(697, 2), QPoint(2, 797), QPoint(697, 797)})
        EXPECT_EQ(seen.pixelColor(corner), QColor(255, 0, 0));
    const QRectF button = sceneRect(guide->nextButton());
    EXPECT_GT(button.bottom(), 700);
    QTest::mouseClick(&window, Qt::LeftButton, {}, button.center().toPoint());
    EXPECT_FALSE(guide->nextButton()->isEnabled());
    window.resize(900, 500);
    QCoreApplication::processEvents();
    window.grabWindow();
    EXPECT_EQ(guide->shownArea(), QRectF(0, 0, 900, 500));
}

TEST_F(GuideNib, FillsWindowWhoseContentItemHasNoSize)
{
    QQuickRenderControl control;
    QQuickWindow offscreen(&control);
    offscreen.resize(390, 500);
    offscreen.contentItem()->setSize({0, 0});
    platform->scenes = keyScene(&offscreen);
    const auto guide = shown({longText()});
    clock.pass(600);
    control.polishItems();
    EXPECT_EQ(guide->shownArea(), QRectF(0, 0, 390, 500));
    EXPECT_TRUE(QRectF(0, 0, 390, 500).contains(sceneRect(guide->nextButton())));
    offscreen.resize(300, 400);
    control.polishItems();
    EXPECT_EQ(guide->shownArea(), QRectF(0, 0, 300, 400));
}

TEST_F(GuideNib, FillsQuickViewWithoutSource)
{
    QQuickView view;
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(390, 500);
    view.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
    platform->scenes = keyScene(&view);
    const auto guide = shown({longText()});
    clock.pass(600);
    view.grabWindow();
    EXPECT_EQ(guide->shownArea(), QRectF(0, 0, 390, 500));
}

TEST_F(GuideNib, KeepsContentInsideClippingHost)
{
    platform->scenes = {};
    QQuickItem host(window.contentItem());
    host.setPosition({50, 60});
    host.setSize({200, 150});
    host.setClip(true);
    const auto guide = made({longText()});
    guide->showGuide(nullptr, &host);
    clock.pass(600);
    window.grabWindow();
    EXPECT_EQ(guide->shownArea(), QRectF(0, 0, 200, 150));
    host.setPosition({-100, 60});
    window.grabWindow();
    EXPECT_EQ(guide->shownArea(), QRectF(100, 0, 100, 150)) << "only the part inside the window counts";
    guide->setParentItem(nullptr);
}

TEST_F(GuideNib, KeepsContentClearOfSystemBars)
{
    QScreen *screen = window.screen();
    const QRect whole = screen->geometry();
    const auto setBars = [&](int top, int bottom) {
        QWindowSystemInterface::handleScreenGeometryChange(screen, whole, whole.adjusted(0, top, 0, -bottom));
        QCoreApplication::processEvents();
    };
    platform->bounds = whole.size();
    window.showFullScreen();
    setBars(30, 20);
    const auto guide = shown({longText()});
    clock.pass(600);
    window.grabWindow();
    EXPECT_EQ(guide->shownArea(), QRectF(0, 30, whole.width(), whole.height() - 50));
    setBars(0, 0);
    window.grabWindow();
    EXPECT_EQ(guide->shownArea(), QRectF(QPointF(), whole.size()));
}

TEST_F(GuideNib, KeepsContentClearOfSystemBarsInWindowThatExtendsBelowThem)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 10, 0)
    constexpr Qt::WindowType extends = Qt::ExpandedClientAreaHint;
#else
    constexpr Qt::WindowType extends = Qt::MaximizeUsingFullscreenGeometryHint;
#endif
    QScreen *screen = window.screen();
    const QRect whole = screen->geometry();
    window.setGeometry(whole);
    QWindowSystemInterface::handleScreenGeometryChange(screen, whole, whole.adjusted(0, 30, 0, -20));
    const auto guide = shown({longText()});
    clock.pass(600);
    window.grabWindow();
    EXPECT_EQ(guide->shownArea(), QRectF(QPointF(), window.size())) << "the system places other windows";
    window.setFlag(extends);
    window.grabWindow();
    const QRectF clear = QRectF(screen->availableGeometry()).translated(window.mapFromGlobal(QPointF()));
    EXPECT_EQ(guide->shownArea(), clear & QRectF(QPointF(), window.size()));
}

TEST_F(GuideNib, MirrorsLayoutForRightToLeftLanguages)
{
    useLanguage("en");
    const auto left = shownIn({390, 844}, QStringLiteral("Text"));
    EXPECT_GT(sceneRect(left->nextButton()).center().x(), 195);
    EXPECT_EQ(part(left->nextButton(), "arrow")->rotation(), 0);
    useLanguage("ar");
    const auto right = shownIn({390, 844}, QStringLiteral("نص"));
    EXPECT_LT(sceneRect(right->nextButton()).center().x(), 195);
    EXPECT_EQ(part(right->nextButton(), "arrow")->rotation(), 180);
}

// The button.

TEST_F(GuideNib, KeepsButtonLookWhileDisabled)
{
    const auto guide = shownIn({390, 700}, QStringLiteral("Text"));
    const QRect place = sceneRect(guide->nextButton()).toAlignedRect();
    const QImage on = window.grabWindow().copy(place);
    guide->nextButton()->setEnabled(false);
    EXPECT_EQ(window.grabWindow().copy(place), on);
}

TEST_F(GuideNib, ShowsKeyboardFocusOnButton)
{
    const auto guide = shownIn({390, 700}, QStringLiteral("Text"));
    const auto isMarked = [&] { return guide->nextButton()->property("visualFocus").toBool(); };
    EXPECT_FALSE(isMarked());
    QTest::keyClick(&window, Qt::Key_Tab);
    EXPECT_TRUE(isMarked());
}

TEST_F(GuideNib, HasOneControl)
{
    const auto guide = made(paragraphs(3));
    const QList<QQuickItem *> items = guide->findChildren<QQuickItem *>();
    EXPECT_EQ(std::ranges::count_if(items, &QQuickItem::activeFocusOnTab), 1);
}

// Untrusted paragraphs.

TEST_F(GuideNib, ShowsMarkupAsPlainText)
{
    const QString markup = QStringLiteral("<h1>a</h1><img src=\"http://127.0.0.1:9/x.png\"><a href=\"x\">b</a>&lt;");
    const auto guide = shownIn({390, 844}, markup);
    EXPECT_EQ(textOf(*guide), markup);
    EXPECT_EQ(guide->guideLabel()->property("textFormat").toInt(), static_cast<int>(Qt::PlainText));
    EXPECT_GT(guide->guideLabel()->property("implicitWidth").toDouble(), 390) << "every character has a width";
}

TEST_F(GuideNib, ShowsHostileCharactersAsText)
{
    const QString hostile = QStringLiteral("a") + QChar::Null + QChar(0x202E) + QStringLiteral("b") + QChar(0xD800)
        + QStringLiteral("c") + QChar(0x2066) + QStringLiteral("\r\n\u2028\u2029d") + QChar(0xFFFF);
    const auto guide = shownIn({390, 844}, hostile);
    EXPECT_EQ(textOf(*guide), hostile);
    EXPECT_TRUE(guide->nextButton()->isEnabled());
}

TEST_F(GuideNib, ShowsAndLeavesHugeParagraph)
{
    const QString huge = QStringLiteral("All work and no play. ").repeated((1 << 20) / 22);
    const auto guide = shownIn({390, 844}, huge);
    EXPECT_EQ(textOf(*guide), huge);
    QTest::keyClick(&window, Qt::Key_End);
    window.grabWindow();
    guide->nextGuide();
    clock.pass(800);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Two"));
}

TEST_F(GuideNib, ShowsEmptyParagraph)
{
    const auto guide = shownIn({390, 844}, QString());
    EXPECT_EQ(textOf(*guide), QString());
    guide->nextGuide();
    clock.pass(800);
    EXPECT_EQ(textOf(*guide), QStringLiteral("Two"));
}

// Assistive technology.

TEST_F(GuideNib, AnnouncesEachParagraph)
{
    const ScreenReader reader;
    const auto guide = shown(paragraphs(3));
    EXPECT_EQ(reader.alerts(), paragraphs(1));
    clock.pass(600);
    guide->nextGuide();
    clock.pass(390);
    EXPECT_EQ(reader.alerts(), paragraphs(1)) << "not before the text changes";
    clock.pass(410);
    EXPECT_EQ(reader.alerts(), paragraphs(2));
    guide->nextGuide();
    clock.pass(800);
    guide->nextGuide();
    clock.pass(600);
    EXPECT_EQ(reader.alerts(), paragraphs(3)) << "the end is not announced";
}

TEST_F(GuideNib, AnnouncesFocusWhenItsWindowBecomesActive)
{
    const ScreenReader reader;
    QQuickWindow next;
    // A screen reader turns to the window then, away from what was announced before.
    QObject::connect(&next, &QWindow::activeChanged, &next, [] { ScreenReader::focused().clear(); });
    const auto guide = made(paragraphs(1));
    platform->scenes.clear();
    guide->showGuide(&next);
    clock.pass(600);
    next.show();
    next.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&next));
    EXPECT_EQ(reader.focused(), QStringList(QStringLiteral("Next")));
}

TEST_F(GuideNib, AnnouncesFocusWhenScreenReaderStarts)
{
    const auto guide = shown(paragraphs(1));
    clock.pass(600);
    const ScreenReader reader;
    EXPECT_EQ(reader.focused(), QStringList());
    QCoreApplication::processEvents();
    EXPECT_EQ(reader.focused(), QStringList(QStringLiteral("Next")));
}

TEST_F(GuideNib, AnnouncesFocusOnceIfScreenReaderStartsBeforeItsWindowIsActive)
{
    QQuickWindow next;
    QObject::connect(&next, &QWindow::activeChanged, &next, [] { ScreenReader::focused().clear(); });
    const auto guide = made(paragraphs(1));
    platform->scenes.clear();
    guide->showGuide(&next);
    clock.pass(600);
    next.show();
    const ScreenReader reader;
    next.requestActivate();
    QWindowSystemInterface::flushWindowSystemEvents();
    ASSERT_TRUE(next.isActive());
    QCoreApplication::processEvents();
    EXPECT_EQ(reader.focused(), QStringList(QStringLiteral("Next")));
}

TEST_F(GuideNib, HasAccessibleNamesAndRoles)
{
    const ScreenReader reader;
    const auto guide = shown(paragraphs(2));
    EXPECT_EQ(reader.describes(guide.get())->role(), QAccessible::Dialog);
    QAccessibleInterface *const label = reader.describes(guide->guideLabel());
    EXPECT_EQ(label->role(), QAccessible::StaticText);
    EXPECT_EQ(label->text(QAccessible::Name), QStringLiteral("Paragraph 0"));
    QAccessibleInterface *const button = reader.describes(guide->nextButton());
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_EQ(button->text(QAccessible::Name), QStringLiteral("Next"));
    EXPECT_EQ(button->text(QAccessible::Description), QStringLiteral("Paragraph 0"));
    EXPECT_TRUE(button->state().focused);
}

TEST_F(GuideNib, ExposesParagraphAndButtonInAccessibleTree)
{
    const ScreenReader reader;
    const auto guide = shown(paragraphs(2));
    clock.pass(600);
    EXPECT_EQ(reader.tree(guide.get()),
              "Dialog '' focused\n StaticText 'Paragraph 0' focusable read only\n Button 'Next' focusable focused");
}

TEST_F(GuideNib, PressesButtonByAccessibleAction)
{
    const ScreenReader reader;
    const auto guide = shown(paragraphs(2));
    const auto press = [&] {
        QAccessibleActionInterface *const actions = reader.describes(guide->nextButton())->actionInterface();
        ASSERT_TRUE(actions);
        actions->doAction(QAccessibleActionInterface::pressAction());
    };
    press();
    EXPECT_FALSE(guide->nextButton()->isEnabled());
    press();
    EXPECT_EQ(platform->calls.count(QStringLiteral("softImpact()")), 1) << "not while the button is disabled";
    clock.pass(800);
    press();
    EXPECT_EQ(completed, 1);
}

TEST_F(GuideNib, TranslatesButtonName)
{
    useLanguage("zh-CN");
    EXPECT_EQ(TQGuideView::nextButtonName(), QStringLiteral("下一步"));
}

} // namespace
} // namespace TQFoundation
