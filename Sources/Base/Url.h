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

/// The URL of the file or resource at \a path; a resource path begins with a colon. Any thread.
inline QUrl urlOfFile(const QString &path)
{
    return path.startsWith(u':') ? QUrl(QString(u"qrc" + path)) : QUrl::fromLocalFile(path);
}

} // namespace TQFoundation
