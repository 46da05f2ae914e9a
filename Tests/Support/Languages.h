#pragma once

#include <QtCore/qlocale.h>
#include <QtCore/qstring.h>

namespace TQFoundation::Testing {

/// Makes \a tag the user's language. The library chooses its translation table once per process, so call this first.
inline void useLanguage(const char *tag)
{
    QLocale::setDefault(QLocale(QLatin1String(tag)));
}

/// Returns a resource root that contains no resources, for RecordingPlatform::root.
inline QString emptyBundle()
{
    return QStringLiteral(":/NoSuchBundle");
}

} // namespace TQFoundation::Testing
