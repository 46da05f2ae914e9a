#pragma once

#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qaccessible.h>
#include <QtGui/qpa/qplatformaccessibility.h>
#include <QtGui/qpa/qplatformintegration.h>

#include <QtCore/qmetaobject.h>
#include <QtCore/qstringlist.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace TQFoundation::Testing {

/// Fake screen reader: activates accessibility until it is destroyed and records alerts and focus. Make it before the
/// items that it reads. It uses private Qt API, because there is no public way to activate accessibility in both
/// directions.
class ScreenReader
{
public:
    ScreenReader()
    {
        // Works around Qt: it looks once for the accessible properties of QML, so load some QML first.
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nItem {}", {});
        EXPECT_TRUE(component.isReady());

        setActive(true);
        QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
            if (event->type() == QAccessible::Alert && event->accessibleInterface())
                alerts() += event->accessibleInterface()->text(QAccessible::Name);
            if (event->type() == QAccessible::Focus && event->accessibleInterface())
                focused() += event->accessibleInterface()->text(QAccessible::Name);
        });
        alerts().clear();
        focused().clear();
    }
    ScreenReader(const ScreenReader &) = delete;
    ScreenReader &operator=(const ScreenReader &) = delete;
    ~ScreenReader()
    {
        QAccessible::installUpdateHandler(nullptr);
        setActive(false);
    }

    /// The texts of all alerts in their order.
    static QStringList &alerts()
    {
        static auto *const texts = new QStringList;
        return *texts;
    }

    /// The names of all objects that were announced as focused, in their order.
    static QStringList &focused()
    {
        static auto *const names = new QStringList;
        return *names;
    }

    /// Returns the accessible interface of \a object; a missing one fails the test.
    static QAccessibleInterface *describes(QObject *object)
    {
        QAccessibleInterface *description = QAccessible::queryAccessibleInterface(object);
        EXPECT_TRUE(description);
        return description;
    }

    /// Returns the accessible tree below \a object in reading order, one line per object: indented by its depth, with
    /// its role, its name, and the states focusable, focused and read only. Left out, because it depends on the version
    /// of Qt: that a disabled object is focusable, that an unfocusable one is read only, the client area of a window.
    static std::string tree(QObject *object) { return linesOf(describes(object), 0).join(u'\n').toStdString(); }

    /// Performs the press action of \a object's accessible interface.
    static void press(QObject *object)
    {
        QAccessibleActionInterface *const actions = describes(object)->actionInterface();
        ASSERT_TRUE(actions);
        actions->doAction(QAccessibleActionInterface::pressAction());
    }

private:
    static QStringList linesOf(const QAccessibleInterface *from, qsizetype depth)
    {
        const QAccessible::State state = from->state();
        if (state.invisible)
            return {};
        const bool isEnabled = !from->object() || from->object()->property("enabled") != QVariant(false);
        const bool isListed = from->role() != QAccessible::Client;
        QString line = QString(depth, u' ')
            + QLatin1String(QMetaEnum::fromType<QAccessible::Role>().valueToKey(from->role())) + u" '"
            + from->text(QAccessible::Name) + u'\'';
        const std::pair<bool, const char *> words[] = {{state.focusable && isEnabled, "focusable"},
                                                       {state.focused, "focused"},
                                                       {state.readOnly && state.focusable, "read only"}};
        for (const auto &[holds, word] : words) {
            if (holds)
                line += u' ' + QLatin1String(word);
        }
        QStringList lines;
        if (isListed)
            lines += line;
        for (int index = 0; index < from->childCount(); ++index)
            lines += linesOf(from->child(index), depth + isListed);
        return lines;
    }

    static void setActive(bool active)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }
};

} // namespace TQFoundation::Testing
