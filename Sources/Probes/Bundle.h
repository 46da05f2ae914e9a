#pragma once

#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qstring.h>
#include <QtGui/qimage.h>

namespace TQFoundation {

/// A folder of the library's resources: Icons/ and Translations/. A plain value that owns nothing.
class TQFOUNDATION_EXPORT Bundle
{
public:
    /// The folder \a root, which need not exist: then it has no images and no tables. Without a trailing slash.
    explicit Bundle(QString root) : m_root(std::move(root)) {}

    /// The folder, without a trailing slash.
    const QString &root() const { return m_root; }

    /// The image \a name (without folder and extension) at its full size; a null image where it is missing or broken.
    /// Any thread.
    QImage image(const QString &name) const;

    /// The entry of \a key in the bundle's table for the user's language, or \a key unchanged without table or entry.
    ///
    /// The language is the first of the user's languages that has a table. The user's languages are read once per
    /// process. Any thread.
    QString localizedString(const QString &key) const;

    /// The same for the texts of the library's own sheets and for assistive technology, which are no part of an app's
    /// texts.
    QString interfaceString(const QString &key) const;

private:
    QString entry(const char *context, const QString &key) const;

    QString m_root;
};

/// The library's own bundle, asked for afresh at every use. Any thread.
TQFOUNDATION_EXPORT Bundle libraryBundle();

/// The one translation rule of the library: \a text is both the key in the library's table and what comes back where
/// that has no entry. Any thread.
TQFOUNDATION_EXPORT QString localizedInLibrary(const QString &text);

} // namespace TQFoundation
