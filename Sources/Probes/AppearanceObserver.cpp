#include "AppearanceObserver.h"

#include "AppearanceNotifier.h"
#include "TQFoundation/Platform.h"

#include <QtCore/qcoreevent.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qpalette.h>

namespace TQFoundation {

AppearanceObserver::AppearanceObserver(QObject *parent) : QObject(parent)
{
    connect(&AppearanceNotifier::instance(), &AppearanceNotifier::changed, this, &AppearanceObserver::update);
    qGuiApp->installEventFilter(this);
}

Appearance AppearanceObserver::current()
{
    const QPalette palette = QGuiApplication::palette();
    const float ground = palette.color(QPalette::Window).lightnessF();
    const float text = palette.color(QPalette::WindowText).lightnessF();
    return platform().appearance().value_or(ground < text ? Appearance::dark : Appearance::light);
}

bool AppearanceObserver::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        update();
    return QObject::eventFilter(watched, event);
}

void AppearanceObserver::update()
{
    const bool isDark = current() == Appearance::dark;
    if (m_isDark == isDark)
        return;
    m_isDark = isDark;
    Q_EMIT isDarkChanged();
}

} // namespace TQFoundation
