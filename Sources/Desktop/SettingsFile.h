#pragma once

#include <QtCore/qbytearray.h>

namespace TQFoundation {

/// The bytes of a settings file in the INI format after the boolean \a key has been set in \a content.
///
/// QSettings loses comments, and lines that it cannot parse, when it rewrites a file. This changes or adds one line and
/// keeps every other byte. The key's line is changed in place where QSettings writes it: at the top or below
/// "[General]". Otherwise the new line comes first, where no quote and no group of the file can reach it; an unusual
/// line of the key, such as one with blanks, then overrides it. A \a content with a byte of zero, or with two byte
/// order marks at its start, is not text and is returned unchanged.
///
/// \a key is a name without a group, of letters and digits in ASCII. Any thread.
QByteArray settingsFileWith(const QByteArray &content, const QByteArray &key, bool value);

} // namespace TQFoundation
