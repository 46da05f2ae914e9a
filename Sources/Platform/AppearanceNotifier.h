#pragma once

#include <QtCore/qobject.h>

namespace TQFoundation {

/// Tells objects that platform().appearance() has changed. GUI thread.
class AppearanceNotifier : public QObject
{
    Q_OBJECT

public:
    static AppearanceNotifier &instance();

Q_SIGNALS:
    void changed();

private:
    AppearanceNotifier() = default;
};

} // namespace TQFoundation
