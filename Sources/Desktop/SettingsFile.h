#pragma once

#include <QtCore/qbytearray.h>

namespace TQFoundation {

/// The bytes of a settings file in the INI format after the boolean \a key has been set in \a content.
///
/// When QSettings rewrites a file, comments and lines that it cannot parse are lost. This function changes or adds one
/// line and keeps all other bytes. If the key has a line at the top or below "[General]", that line is changed.
/// Otherwise the new line becomes the first of the file, before every group and every quote. A later line of the key
/// that is written in another way, for example with blanks, then overrides it. If \a content has a byte of zero or
/// begins with two byte order marks, it is not text and is returned unchanged.
///
/// \a key is a name without a group, of letters and digits in ASCII. Any thread.
QByteArray settingsFileWith(const QByteArray &content, const QByteArray &key, bool value);

} // namespace TQFoundation
