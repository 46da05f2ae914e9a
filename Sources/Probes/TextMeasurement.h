#pragma once

#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qsize.h>

class QFont;
class QString;

namespace TQFoundation {

/// The size in points that \a string takes when drawn in \a font, without wrapping or other formatting.
///
/// The height reaches from the top of the first line to the bottom of the last, as QPainter::drawText() stacks lines:
/// each line begins at a whole point, after the font's leading. The last line is not rounded; a caller that sizes an
/// item rounds up. QML's `Text` stacks lines the same way, but without the leading, which most fonts do not have.
///
/// A line feed (U+000A) or a line separator (U+2028) breaks a line, as in QML's `Text`. No other character does:
/// neither U+000B, U+000C, U+000D, U+0085 nor U+2029. Control characters such as a carriage return have no width. After
/// a break at the end comes an empty line, which `Text` leaves out in newer versions of Qt.
///
/// Trailing blanks count, and so does the overhang of a line's last glyph beyond its advance. An empty string is 0 wide
/// and one line high. Fallback fonts for missing characters count with their own heights. Lines may have any length.
/// Nothing is cached. GUI thread, with an application object.
TQFOUNDATION_EXPORT QSizeF sizeOfString(const QString &string, const QFont &font);

/// The width of sizeOfString().
TQFOUNDATION_EXPORT double widthOfString(const QString &string, const QFont &font);

/// The height of sizeOfString().
TQFOUNDATION_EXPORT double heightOfString(const QString &string, const QFont &font);

} // namespace TQFoundation
