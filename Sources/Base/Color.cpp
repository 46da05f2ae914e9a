#include "Color.h"

#include <QtCore/qdebug.h>

namespace TQFoundation {

QDebug operator<<(QDebug debug, Appearance appearance)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << (appearance == Appearance::dark ? "dark" : "light");
}

QDebug operator<<(QDebug debug, const Rgba &rgba)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "Rgba(" << rgba.red << ", " << rgba.green << ", " << rgba.blue << ", " << rgba.alpha
                           << ')';
}

QDebug operator<<(QDebug debug, const Color &color)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "Color(" << color.resolved(Appearance::light);
    if (color.isDynamic())
        debug << ", " << color.resolved(Appearance::dark);
    return debug << ')';
}

} // namespace TQFoundation
