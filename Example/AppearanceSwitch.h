#pragma once

#include "GrovePlatform.h"

#include <QtCore/qobject.h>

/// Passes the appearance that the user chose in the window on to the platform. GUI thread.
class AppearanceSwitch : public QObject
{
    Q_OBJECT

public:
    /// \a platform must outlive it.
    explicit AppearanceSwitch(GrovePlatform &platform) : m_platform(platform) {}

public Q_SLOTS:
    /// Makes the app dark or light, whatever the system is.
    void setDark(bool isDark)
    {
        m_platform.setAppearance(isDark ? TQFoundation::Appearance::dark : TQFoundation::Appearance::light);
    }

private:
    GrovePlatform &m_platform;
};
