#include "Languages.h"
#include "Layout.h"
#include "MailHost.h"
#include "ScreenReader.h"

#include <QtCore/qscopeguard.h>
#include <QtGui/qaccessible.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpalette.h>
#include <QtGui/qtextobject.h>

#include <cmath>
#include <sys/stat.h>

namespace TQFoundation {
namespace {

using Result = ViewController::MailComposeResult;
using Testing::Layout;
using Testing::ScreenReader;

class MailSheet : public Testing::MailHost
{
protected:
    // The focused items after each press of \a key, until the first one has the focus again. Buttons must show it.
    std::string tabStops(Qt::Key key)
    {
        QStringList stops;
        const QQuickItem *const start = window->activeFocusItem();
        do {
            press(key);
            const QQuickItem *const item = window->activeFocusItem();
            EXPECT_TRUE(!item->inherits("QQuickAbstractButton") || item->property("visualFocus").toBool());
            stops += item == message() ? QStringLiteral("text") : item->property("text").toString();
        } while (window->activeFocusItem() != start && stops.size() < 20);
        return stops.join(QStringLiteral(", ")).toStdString();
    }
};

TEST_F(MailSheet, ShowsRecipientSubjectAndMessage)
{
    compose(QStringLiteral("<b>Hello</b> world"));
    EXPECT_TRUE(text("New Message"));
    EXPECT_TRUE(text("support@tqstudio.example"));
    EXPECT_EQ(subject()->property("text").toString(), QStringLiteral("Contact: Hazel Grid 2.3.1(57)"));
    EXPECT_EQ(document()->toPlainText(), QStringLiteral("Hello world"));
    EXPECT_TRUE(message()->hasActiveFocus());
}

TEST_F(MailSheet, ShowsProgressAndIsReadOnlyWhileSending)
{
    ASSERT_EQ(mkfifo(path("gate").constData(), 0600), 0);
    makeProgram("cat > '" + path("mail") + "'; cat '" + path("gate") + "'");
    compose(QStringLiteral("text"));
    click(button("Send"));
    EXPECT_TRUE(text("Sending…"));
    EXPECT_TRUE(button("Cancel")->isEnabled());
    EXPECT_FALSE(button("Send")->isEnabled());
    EXPECT_TRUE(message()->property("readOnly").toBool());
    QFile gate(programs.filePath(QStringLiteral("gate")));
    ASSERT_TRUE(gate.open(QIODevice::WriteOnly));
    gate.close();
    ASSERT_TRUE(comes([this] { return !isShown(); }));
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailSheet, EscapeAndBackKeysCancel)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Back}) {
        compose();
        QTest::keyClick(static_cast<QWindow *>(window.get()), key);
        EXPECT_FALSE(isShown());
        slide();
    }
    EXPECT_EQ(root->results, (QList{Result::cancelled, Result::cancelled}));
}

TEST_F(MailSheet, PressedButtonHasFocus)
{
    compose();
    const QQuickItem *const cancel = button("Cancel");
    QTest::mousePress(window.get(), Qt::LeftButton, {}, cancel->mapToScene({10, 10}).toPoint());
    EXPECT_TRUE(cancel->hasActiveFocus());
}

TEST_F(MailSheet, FollowsTheAppearanceOfThePlatform)
{
    compose();
    for (const bool isDark : {true, false}) {
        platform->currentAppearance = isDark ? Appearance::dark : Appearance::light;
        appearanceChanged();
        const QColor ink = text("New Message")->property("color").value<QColor>();
        EXPECT_EQ(ink, QColor(isDark ? Qt::white : Qt::black));
    }
}

TEST_F(MailSheet, FailureStandsOnAReddishGroundInEachAppearance)
{
    makeProgram("exit 75");
    compose();
    ASSERT_TRUE(sendAndWait());
    const QQuickItem *box = button("Try Again");
    while (box && !box->inherits("QQuickRectangle"))
        box = box->parentItem();
    ASSERT_TRUE(box);
    for (const bool isDark : {true, false}) {
        platform->currentAppearance = isDark ? Appearance::dark : Appearance::light;
        appearanceChanged();
        EXPECT_EQ(box->property("color").value<QColor>(), QColor(isDark ? 0x3B2426 : 0xFDECEB));
    }
}

TEST_F(MailSheet, ShowsColoredMessageOnWhite)
{
    compose(QStringLiteral("<p style='color: #222'>dark</p>"));
    EXPECT_EQ(message()->property("color").value<QColor>(), QColor(Qt::black));
    EXPECT_EQ(message()->parentItem()->property("color").value<QColor>(), QColor(Qt::white));
}

TEST_F(MailSheet, LinksHaveNoColorAndOpenNothing)
{
    QGuiApplication::setPalette(QPalette(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::black));
    compose(QStringLiteral("<a href='https://tqstudio.example'>link</a>"));
    const QTextCharFormat format = document()->begin().begin().fragment().charFormat();
    EXPECT_TRUE(format.isAnchor());
    EXPECT_FALSE(format.hasProperty(QTextFormat::ForegroundBrush));
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, message()->mapToScene({30, 25}).toPoint());
    EXPECT_TRUE(platform->calls.filter(QStringLiteral("openUrl")).isEmpty());
}

TEST_F(MailSheet, IsUsableByKeyboardAlone)
{
    makeKeepingProgram();
    compose();
    for (int press = 0; press < 8 && !button("Send")->hasActiveFocus(); ++press)
        QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Tab);
    EXPECT_TRUE(button("Send")->hasActiveFocus());
    QTest::keyClick(static_cast<QWindow *>(window.get()), Qt::Key_Return);
    ASSERT_TRUE(comes([this] { return !isShown(); }));
    EXPECT_EQ(root->results, QList{Result::sent});
}

TEST_F(MailSheet, FitsWindowsOfAnySize)
{
    const QSize sizes[] = {{320, 568}, {390, 844}, {1280, 800}, {240, 240}};
    for (const QSize size : sizes) {
        open(size);
        makeProgram("echo said >&2; exit 75");
        compose(QStringLiteral("text ").repeated(400));
        ASSERT_TRUE(sendAndWait());
        slide();
        const QRectF all({0, 0}, QSizeF(size));
        for (const char *name : {"Cancel", "Send"}) {
            const QQuickItem *const target = button(name);
            EXPECT_TRUE(all.contains(target->mapRectToScene(QRectF({0, 0}, target->size()))));
            EXPECT_GE(target->width(), 44);
            EXPECT_GE(target->height(), 44);
        }
        EXPECT_LE(message()->width(), 640);
        EXPECT_GE(message()->height(), message()->property("contentHeight").toDouble());
    }
}

TEST_F(MailSheet, ScrollsDownAndUpToTheCursor)
{
    compose(QStringLiteral("A line.<br>").repeated(300));
    const QQuickItem *const page = itemOf("QQuickFlickable");
    const auto cursorAt = [&](double share) {
        message()->setProperty("cursorPosition", std::floor(share * message()->property("length").toDouble()));
        settle();
        return message()->mapRectToItem(page, message()->property("cursorRectangle").toRectF());
    };
    EXPECT_NEAR(cursorAt(1).bottom(), page->height() - 16, 1);
    EXPECT_NEAR(cursorAt(0.5).top(), 16, 1);
    EXPECT_NEAR(cursorAt(0.25).top(), 16, 1);
}

TEST_F(MailSheet, GrowsItsButtonsWithTheirText)
{
    const QFont usual = QGuiApplication::font();
    QFont large = usual;
    large.setPointSizeF(24);
    QGuiApplication::setFont(large);
    const auto restore = qScopeGuard([&] { QGuiApplication::setFont(usual); });
    compose();
    const QQuickItem *const send = button("Send");
    const double lineHeight = send->property("contentItem").value<QQuickItem *>()->implicitHeight();
    EXPECT_GT(lineHeight, 44);
    EXPECT_EQ(send->height(), lineHeight + 12);
}

TEST_F(MailSheet, IsMirroredInRightToLeftLanguages)
{
    Testing::useLanguage("ar");
    TQMore::sendFeedbackEmail(std::nullopt, {});
    slide();
    const QQuickItem *const field = subject();
    ASSERT_TRUE(field);
    EXPECT_LT(field->mapToScene({}).x(), 30);
    EXPECT_LT(field->mapToScene({field->width(), 0}).x(), 380 - 30) << "its label is on the right";
}

TEST_F(MailSheet, TabOrderFollowsReadingOrderAndShowsFocus)
{
    makeProgram("exit 75");
    compose();
    EXPECT_EQ(tabStops(Qt::Key_Tab), "Cancel, Send, Contact: Hazel Grid 2.3.1(57), text");
    ASSERT_TRUE(sendAndWait());
    EXPECT_EQ(tabStops(Qt::Key_Tab), "Contact: Hazel Grid 2.3.1(57), text, Cancel, Send, Try Again");
    EXPECT_EQ(tabStops(Qt::Key_Backtab), "Send, Cancel, text, Contact: Hazel Grid 2.3.1(57), Try Again");
    type(message(), "x");
    press(Qt::Key_Escape);
    EXPECT_TRUE(button("Keep Writing")->property("visualFocus").toBool()) << "asked by a key, answered by a key";
    EXPECT_EQ(tabStops(Qt::Key_Tab), "Discard, Keep Writing");
    press(Qt::Key_Escape);
    EXPECT_TRUE(message()->hasActiveFocus());
    click(button("Cancel"));
    EXPECT_FALSE(button("Keep Writing")->property("visualFocus").toBool());
    press(Qt::Key_Backtab);
    press(Qt::Key_Space);
    EXPECT_FALSE(isShown());
}

TEST_F(MailSheet, FailureFocusesRetryButton)
{
    const ScreenReader reader;
    makeProgram("exit 75");
    compose();
    ASSERT_TRUE(sendAndWait());
    QQuickItem *const again = button("Try Again");
    EXPECT_TRUE(again->hasActiveFocus());
    EXPECT_EQ(reader.describes(again)->text(QAccessible::Description),
              QStringLiteral("The mail server cannot be reached. Check your connection and try again."));
}

TEST_F(MailSheet, ExposesRolesAndNamesToScreenReaders)
{
    const ScreenReader reader;
    compose();
    EXPECT_EQ(reader.tree(Layout::popupOf(button("Send"))), R"(Dialog '' focused
 Dialog 'New Message' focused
  Button 'Cancel' focusable
  Heading 'New Message'
  Button 'Send' focusable
  StaticText 'To: support@tqstudio.example' focusable read only
  EditableText 'Subject:' focusable
  EditableText 'Message' focusable focused)");
}

TEST_F(MailSheet, ExposesSendingAndFailureToScreenReaders)
{
    const ScreenReader reader;
    makeProgram("cat > /dev/null; exit 75");
    compose();
    QQuickItem *const sheet = Layout::popupOf(button("Send"));
    reader.press(button("Send"));
    EXPECT_EQ(reader.tree(sheet), R"(Dialog '' focused
 Dialog 'New Message' focused
  Button 'Cancel' focusable
  Heading 'Sending…'
  Button 'Send'
  ProgressBar 'Sending…'
  StaticText 'To: support@tqstudio.example' focusable read only
  EditableText 'Subject:' focusable read only
  EditableText 'Message' focusable focused read only)");
    ASSERT_TRUE(comes([this] { return isProblemShown(); }));
    EXPECT_EQ(reader.tree(sheet), R"(Dialog '' focused
 Dialog 'New Message' focused
  Button 'Cancel' focusable
  Heading 'New Message'
  Button 'Send' focusable
  AlertMessage 'The mail server cannot be reached. Check your connection and try again.'
   Button 'Try Again' focusable focused
  StaticText 'To: support@tqstudio.example' focusable read only
  EditableText 'Subject:' focusable
  EditableText 'Message' focusable)");
}

TEST_F(MailSheet, ScreenReaderReachesOnlyTheOpenQuestion)
{
    const ScreenReader reader;
    makeKeepingProgram();
    compose();
    type(message(), "x");
    reader.press(button("Cancel"));
    EXPECT_EQ(reader.tree(Layout::popupOf(button("Discard"))), R"(Dialog '' focused
 AlertMessage 'Discard this message? What you have written will be lost.'
  Button 'Discard' focusable
  Button 'Keep Writing' focusable focused)");
    reader.press(button("Send"));
    EXPECT_FALSE(text("Sending…"));
    reader.press(button("Keep Writing"));
    EXPECT_TRUE(message()->hasActiveFocus());
    reader.press(button("Send"));
    EXPECT_TRUE(text("Sending…"));
}

// Languages with long words, with dense writing and from right to left.
class MailSheetInLanguage : public MailSheet, public testing::WithParamInterface<const char *>
{
protected:
    MailSheetInLanguage() { Testing::useLanguage(GetParam()); }

    // Checks the popup that has the focus.
    void expectNoFlawsInAnyWindow()
    {
        const QSize sizes[] = {{320, 568}, {1280, 800}, {390, 844}, {240, 240}, {820, 1180}};
        for (const QSize size : sizes) {
            window->resize(size);
            settle();
            window->grabWindow();
            QQuickItem *const focused = window->activeFocusItem();
            EXPECT_EQ(Layout::flawsOf(Layout::popupOf(focused)), QStringList()) << size.width();
            if (focused != message()) {
                EXPECT_TRUE(Layout::isInSight(focused)) << size.width();
            }
        }
    }
};

TEST_P(MailSheetInLanguage, FitsResizedWindowsAtAnyTextSize)
{
    makeProgram("echo 'The server said why, at some length.' >&2; exit 75");
    for (const double points : {9.0, 18.0}) {
        QFont font = QGuiApplication::font();
        font.setPointSizeF(points);
        QGuiApplication::setFont(font);
        compose(QStringLiteral("text ").repeated(200));
        ASSERT_TRUE(message()->hasActiveFocus());
        expectNoFlawsInAnyWindow();
        press(Qt::Key_Backtab);
        press(Qt::Key_Backtab);
        press(Qt::Key_Return);
        ASSERT_TRUE(comes([this] { return !message()->property("readOnly").toBool(); }));
        ASSERT_TRUE(window->activeFocusItem()->inherits("QQuickAbstractButton"));
        expectNoFlawsInAnyWindow();
        type(message(), "x");
        press(Qt::Key_Escape);
        expectNoFlawsInAnyWindow();
        press(Qt::Key_Backtab);
        press(Qt::Key_Return);
        ASSERT_FALSE(isShown());
        slide();
    }
}

TEST_P(MailSheetInLanguage, StopQuestionFitsResizedWindows)
{
    makeProgram("exec sleep 1000");
    for (const double points : {9.0, 18.0}) {
        QFont font = QGuiApplication::font();
        font.setPointSizeF(points);
        QGuiApplication::setFont(font);
        compose();
        press(Qt::Key_Backtab);
        press(Qt::Key_Backtab);
        press(Qt::Key_Return);
        press(Qt::Key_Escape);
        ASSERT_TRUE(window->activeFocusItem()->inherits("QQuickAbstractButton"));
        expectNoFlawsInAnyWindow();
        press(Qt::Key_Backtab);
        press(Qt::Key_Return);
        ASSERT_FALSE(isShown());
        slide();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, MailSheetInLanguage, testing::Values("en", "de", "zh-Hans", "ar"),
                         [](const auto &language) { return std::string(language.param).substr(0, 2); });

} // namespace
} // namespace TQFoundation
