#pragma once

#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qsize.h>

class QFont;
class QString;

namespace TQFoundation {

/// The size in points that \a string takes when drawn in \a font with no limit to its width and no other formatting.
///
/// Not rounded: a caller that sizes an item rounds up. Every kind of line break starts a line. Trailing blanks count,
/// and so does the overhang of a line's last glyph beyond its advance. An empty string is 0 wide and one line high.
/// Fallback fonts for missing characters count with their own heights. Nothing is cached. GUI thread, with an
/// application object.
TQFOUNDATION_EXPORT QSizeF sizeOfString(const QString &string, const QFont &font);

/// The width of sizeOfString().
TQFOUNDATION_EXPORT double widthOfString(const QString &string, const QFont &font);

/// The height of sizeOfString().
TQFOUNDATION_EXPORT double heightOfString(const QString &string, const QFont &font);

} // namespace TQFoundation
