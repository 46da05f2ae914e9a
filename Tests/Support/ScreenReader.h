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

/// A screen reader that runs for as long as it lives and keeps what it is told to read out at once. Made before what it
/// reads. Qt knows no public way to make one.
class ScreenReader
{
public:
    ScreenReader()
    {
        // Qt looks once for what QML says of items, and never again where no QML has been loaded by then.
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nItem {}", {});
        EXPECT_TRUE(component.isReady());

        setActive(true);
        QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
            if (event->type() == QAccessible::Alert && event->accessibleInterface())
                alerts() += event->accessibleInterface()->text(QAccessible::Name);
        });
        alerts().clear();
    }
    ScreenReader(const ScreenReader &) = delete;
    ScreenReader &operator=(const ScreenReader &) = delete;
    ~ScreenReader()
    {
        QAccessible::installUpdateHandler(nullptr);
        setActive(false);
    }

    /// What it was told to read out, in order.
    static QStringList &alerts()
    {
        static auto *const texts = new QStringList;
        return *texts;
    }

    /// What it is told of an object, never null.
    static QAccessibleInterface *describes(QObject *object)
    {
        QAccessibleInterface *description = QAccessible::queryAccessibleInterface(object);
        EXPECT_TRUE(description);
        return description;
    }

    /// What it finds of \a object and all that is in it, in the order of reading: a line for each, of its depth in
    /// blanks, its role, its name, and whether it takes the focus, has it, or cannot be changed.
    static std::string tree(QObject *object) { return linesOf(describes(object), 0).join(u'\n').toStdString(); }

    /// Presses a control as the user of a screen reader does.
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
        QString line = QString(depth, u' ')
            + QLatin1String(QMetaEnum::fromType<QAccessible::Role>().valueToKey(from->role())) + u" '"
            + from->text(QAccessible::Name) + u'\'';
        const std::pair<bool, const char *> words[] = {
            {state.focusable, "focusable"}, {state.focused, "focused"}, {state.readOnly, "read only"}};
        for (const auto &[holds, word] : words) {
            if (holds)
                line += u' ' + QLatin1String(word);
        }
        QStringList lines(line);
        for (int index = 0; index < from->childCount(); ++index)
            lines += linesOf(from->child(index), depth + 1);
        return lines;
    }

    static void setActive(bool active)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }
};

} // namespace TQFoundation::Testing
