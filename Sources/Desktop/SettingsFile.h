#pragma once

#include <QtCore/qbytearray.h>

namespace TQFoundation {

/// Whether QSettings can rewrite a settings file in the INI format, with the bytes \a content, without losing anything.
///
/// QSettings rewrites the whole file to store one value. It loses comments, lines that it cannot parse, all but the
/// last value of a repeated key, and values that it cannot decode. The answer is true for files that QSettings wrote
/// itself, and for an empty one. If in doubt it is false.
///
/// Reads nothing but \a content. Decoding a broken `@Variant(…)` makes Qt log a line. Any thread.
bool canRewriteSettingsFile(const QByteArray &content);

} // namespace TQFoundation
