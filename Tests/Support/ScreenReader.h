#pragma once

#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qaccessible.h>
#include <QtGui/qpa/qplatformaccessibility.h>
#include <QtGui/qpa/qplatformintegration.h>

#include <QtCore/qstringlist.h>

namespace TQFoundation::Testing {

/// A screen reader that runs for as long as it lives and keeps what it is told to read out at once. Made before what it
/// reads. Qt knows no public way to make one.
class ScreenReader
{
public:
    ScreenReader()
    {
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

private:
    static void setActive(bool active)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }
};

} // namespace TQFoundation::Testing
