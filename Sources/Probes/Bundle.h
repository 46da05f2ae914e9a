#pragma once

#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qstring.h>
#include <QtCore/qurl.h>
#include <QtGui/qimage.h>

namespace TQFoundation {

/// A resource folder with the subfolders Icons and Translations. A plain value that owns nothing. Any thread.
class TQFOUNDATION_EXPORT Bundle
{
public:
    /// The folder \a root, without a trailing slash. A missing folder is a bundle without images and tables.
    explicit Bundle(QString root) : m_root(std::move(root)) {}

    /// The folder, without a trailing slash.
    const QString &root() const { return m_root; }

    /// The PNG image \a name (without folder and extension); null if it is missing or broken. Decoded at each call.
    /// It is in full size, unless the bundle stores it in a size that is a whole multiple of \a side (pixels, at least
    /// 1).
    QImage image(const QString &name, int side) const;

    /// The URL of the image \a name in full size, which need not exist, for QML's `Image.source`.
    QUrl imageUrl(const QString &name) const;

    /// The translation of \a key, or \a key itself if there is no table or no entry.
    ///
    /// The table is that of the first of the user's languages that has one. Languages are read once per process, and
    /// each folder's table once, on its first look-up: later changes of either show at the next launch.
    QString localizedString(const QString &key) const;

    /// The same for texts of the library's own sheets and of accessibility, which have a context of their own.
    QString interfaceString(const QString &key) const;

private:
    QString imagePath(const QString &name) const
    {
        return m_root + QStringLiteral("/Icons/") + name + QStringLiteral(".png");
    }

    QString m_root;
};

/// The library's own bundle: Platform::resourceRoot(), which is read at each call. Any thread.
TQFOUNDATION_EXPORT Bundle libraryBundle();

/// The translation of \a text from the library's own bundle. \a text is both the key and the fallback. Any thread.
TQFOUNDATION_EXPORT QString localizedInLibrary(const QString &text);

} // namespace TQFoundation
