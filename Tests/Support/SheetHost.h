#pragma once

#include "AnimationClock.h"
#include "KeyboardFocus.h"
#include "RecordingPlatform.h"
#include "Scenes.h"

#include <TQFoundation/DesktopPlatform.h>
#include <TQFoundation/TQMore.h>
#include <TQFoundation/ViewController.h>

#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qtest.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace TQFoundation::Testing {

/// A host window that shows the real sheets, on a RecordingPlatform whose time the test advances.
class SheetHost : public testing::Test
{
protected:
    /// A desktop platform that searches `folders` for sendmail.
    class Desktop : public DesktopPlatform
    {
    public:
        QStringList folders;

    protected:
        QStringList programFolders() const override { return folders; }
    };

    /// A root controller that records its calls as a mail delegate.
    class Delegate : public ViewController
    {
    public:
        using ViewController::ViewController;

        QList<MailComposeResult> results;
        QStringList errors;

        void mailComposeController(MailComposer *controller, MailComposeResult result, const QString &error) override
        {
            results += result;
            errors += error;
            ViewController::mailComposeController(controller, result, error);
        }
    };

    SheetHost()
    {
        platform->storefront = QStringLiteral("CHN");
        platform->infoDictionary = {{QStringLiteral("CFBundleDisplayName"), QStringLiteral("Hazel Grid")},
                                    {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("2.3.1")},
                                    {QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
        platform->sheets = &desktop;
        desktop.folders = QStringList(programs.path());
        open({390, 844});
    }

    ~SheetHost() override
    {
        window.reset();
        settle();
    }

    /// Replaces the window by one of \a size.
    void open(QSize size)
    {
        window = std::make_unique<QQuickWindow>();
        window->setColor(Qt::white);
        window->resize(size);
        root = std::make_shared<Delegate>(window->contentItem());
        ViewController::setRoot(window.get(), root);
        EXPECT_TRUE(showWithFocus(*window));
        platform->scenes = keyScene(window.get());
    }

    /// Processes pending events and deferred deletions.
    static void settle()
    {
        for (int round = 0; round < 3; ++round) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    /// Lets a sheet finish sliding in or out.
    void slide()
    {
        clock.pass(500);
        settle();
    }

    /// Processes events until \a condition is true. False after 20 s.
    template <typename Condition>
    static bool comes(const Condition &condition)
    {
        return QTest::qWaitFor(condition, 20000);
    }

    /// The first visible item that inherits \a type and whose property "text" is \a text, or null.
    QQuickItem *item(const char *type, const QString &text, QQuickItem *from = nullptr) const
    {
        const QList<QQuickItem *> children = (from ? from : window->contentItem())->childItems();
        for (QQuickItem *child : children) {
            if (!child->isVisible())
                continue;
            if (isOf(child, type) && child->property("text").toString() == text)
                return child;
            if (QQuickItem *inside = item(type, text, child))
                return inside;
        }
        return nullptr;
    }

    QQuickItem *button(const char *text) const { return item("QQuickAbstractButton", QString::fromUtf8(text)); }
    QQuickItem *text(const char *text) const { return item("QQuickText", QString::fromUtf8(text)); }

    /// The first visible item that inherits \a type, or null.
    QQuickItem *itemOf(const char *type, QQuickItem *from = nullptr) const
    {
        const QList<QQuickItem *> children = (from ? from : window->contentItem())->childItems();
        for (QQuickItem *child : children) {
            if (child->isVisible()) {
                if (isOf(child, type))
                    return child;
                if (QQuickItem *inside = itemOf(type, child))
                    return inside;
            }
        }
        return nullptr;
    }

    void click(const QQuickItem *target)
    {
        ASSERT_TRUE(target);
        const QPointF middle = target->mapToScene(QPointF(target->width() / 2, target->height() / 2));
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, middle.toPoint());
        settle();
    }

    bool isShown() const { return TQMore::topViewController() != root; }

    /// Number of items in the window, including its popups.
    int itemCount() const { return static_cast<int>(window->contentItem()->findChildren<QQuickItem *>().size()); }

    /// A message handler that fails the test on any logged line, except for those that Qt WebEngine logs on startup.
    static void passOverTheEngine(QtMsgType, const QMessageLogContext &context, const QString &message)
    {
        // From Qt 6.8 on, Qt WebEngine probes the graphics card, which has no driver in an off-screen session.
        static constexpr QStringView probing[] = {
            u"QRhiGles2: Failed to create temporary context",
            u"QRhiGles2: Failed to create context",
            u"This plugin does not support createPlatformVulkanInstance",
            u"QVulkanInstance: Failed to initialize Vulkan",
            u"Failed to create platform Vulkan instance",
            u"Unable to detect GPU vendor.",
            u"Failed to create RHI for backend: OpenGL",
            u"GPUInfo not initialized on GpuInfoUpdate",
        };
        const bool isTheEngines = QByteArrayView(context.category).startsWith("qt.webengine")
            || message.startsWith(u"QWebEngine") || message.startsWith(u"Sandboxing disabled")
            || message.startsWith(u"No suitable graphics backend")
            || message.startsWith(u"Failed to create Vulkan instance: ")
            || std::ranges::find(probing, QStringView(message)) != std::end(probing);
        if (!isTheEngines)
            ADD_FAILURE() << "logged: " << message.toStdString();
    }

    InstalledRecordingPlatform platform;
    AnimationClock clock;
    QTemporaryDir programs;
    Desktop desktop;
    std::unique_ptr<QQuickWindow> window;
    std::shared_ptr<Delegate> root;

private:
    static bool isOf(const QObject *object, const char *type) { return object->inherits(type); }
};

} // namespace TQFoundation::Testing
