#include "Layout.h"
#include "MailHost.h"

#include <QtGui/qpa/qwindowsysteminterface.h>
#include <QtGui/qscreen.h>

namespace TQFoundation {
namespace {

using Testing::Layout;

class Sheet : public Testing::MailHost
{};

TEST_F(Sheet, SlidesInAndIsDestroyedAfterSlidingOut)
{
    TQMore::sendFeedbackEmail(std::nullopt, {});
    EXPECT_GE(button("Send")->mapToScene({}).y(), window->height());
    slide();
    EXPECT_LT(button("Send")->mapToScene({}).y(), 60);
    const QPointer<QQuickItem> content = button("Send");
    click(button("Cancel"));
    clock.pass(100);
    EXPECT_TRUE(content && content->isVisible()) << "still on its way";
    slide();
    EXPECT_FALSE(content);
    EXPECT_FALSE(isShown());
}

TEST_F(Sheet, KeepsFocusFromItemsBelow)
{
    QQuickItem host(window->contentItem());
    host.setSize({390, 844});
    host.setFocus(true);
    compose();
    EXPECT_FALSE(host.hasActiveFocus());
    for (int press = 0; press < 12; ++press) {
        QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Tab);
        ASSERT_TRUE(window->activeFocusItem());
        EXPECT_NE(window->activeFocusItem(), &host);
    }
}

TEST_F(Sheet, StaysClearOfSystemBars)
{
    QScreen *const screen = window->screen();
    const QRect whole = screen->geometry();
    const auto setBars = [&](const QMargins &bars) {
        QWindowSystemInterface::handleScreenGeometryChange(screen, whole, whole.marginsRemoved(bars));
        settle();
        window->grabWindow();
    };
    window->showFullScreen();
    compose();
    const QQuickItem *const sheet = Layout::popupOf(message());
    const QRectF usual = sheet->mapRectToScene(QRectF({}, sheet->size()));
    EXPECT_EQ(usual.center(), QRectF(whole).center());
    setBars({0, whole.height() / 2, 0, 20});
    EXPECT_GE(button("Send")->mapToScene({}).y(), whole.height() / 2);
    EXPECT_LE(sheet->mapToScene({0, sheet->height()}).y(), whole.height() - 20);
    setBars({whole.width() / 2, 0, 0, 0});
    EXPECT_GE(button("Cancel")->mapToScene({}).x(), whole.width() / 2);
    setBars({});
    EXPECT_EQ(sheet->mapRectToScene(QRectF({}, sheet->size())), usual);
}

TEST_F(Sheet, IsDestroyedWithItsWindow)
{
    compose();
    const QPointer<QQuickItem> content = button("Send");
    root.reset();
    window.reset();
    settle();
    EXPECT_FALSE(content);
}

TEST_F(Sheet, AppearsAboveScreensThatAHostPresents)
{
    QQuickItem view;
    view.setSize({390, 844});
    view.setAcceptedMouseButtons(Qt::AllButtons);
    root->present(std::make_shared<ViewController>(&view));
    TQMore::sendFeedbackEmail(std::nullopt, {});
    slide();
    click(button("Cancel"));
    EXPECT_EQ(root->results.size(), 0);
    EXPECT_FALSE(button("Cancel") && TQMore::topViewController() != root->presentedViewController());
}

} // namespace
} // namespace TQFoundation
