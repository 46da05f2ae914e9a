#pragma once

#include <QtCore/qurl.h>

#include <optional>

namespace TQFoundation {

/// Parses \a text in strict mode. Null if it is empty or violates RFC 3986: blanks, control characters and broken
/// percent encoding are errors, not corrected. Any thread.
inline std::optional<QUrl> urlFromString(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    if (url.isEmpty() || !url.isValid())
        return std::nullopt;
    return url;
}

} // namespace TQFoundation
