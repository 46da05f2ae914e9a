#include "MailHost.h"

namespace TQFoundation {
namespace {

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
