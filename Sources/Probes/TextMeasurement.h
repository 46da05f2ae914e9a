#pragma once

#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qsize.h>

class QFont;
class QString;

namespace TQFoundation {

/// The size in points that \a string takes when drawn in \a font with no limit to its width and no other formatting.
///
/// Exactly as the toolkit lays it out, fractional parts included: a caller that sizes a view rounds up for itself.
/// Every kind of line break starts a line; trailing blanks count, and so does a last glyph that overhangs its advance.
/// An empty string is 0 wide and one line high. Fonts that stand in for missing characters count with their own
/// heights. Nothing is cached. Main thread, with an application object.
TQFOUNDATION_EXPORT QSizeF sizeOfString(const QString &string, const QFont &font);

/// The width of sizeOfString().
TQFOUNDATION_EXPORT double widthOfString(const QString &string, const QFont &font);

/// The height of sizeOfString().
TQFOUNDATION_EXPORT double heightOfString(const QString &string, const QFont &font);

} // namespace TQFoundation
