#include "AppearanceNotifier.h"

namespace TQFoundation {

AppearanceNotifier &AppearanceNotifier::instance()
{
    static AppearanceNotifier notifier;
    return notifier;
}

} // namespace TQFoundation
