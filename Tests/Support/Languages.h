#pragma once

#include <QtCore/qlocale.h>
#include <QtCore/qstring.h>

namespace TQFoundation::Testing {

/// Makes \a tag the user's language. The library chooses its table once per process, so call it first.
inline void useLanguage(const char *tag)
{
    QLocale::setDefault(QLocale(QLatin1String(tag)));
}

/// Makes the library's bundle one that holds nothing.
inline QString emptyBundle()
{
    return QStringLiteral(":/NoSuchBundle");
}

} // namespace TQFoundation::Testing
