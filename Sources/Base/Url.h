#pragma once

#include <QtCore/qurl.h>

#include <optional>

namespace TQFoundation {

/// The URL that \a text is, or nothing for an empty text and for one that breaks the rules of RFC 3986. Any thread.
inline std::optional<QUrl> urlFromString(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    if (url.isEmpty() || !url.isValid())
        return std::nullopt;
    return url;
}

} // namespace TQFoundation
