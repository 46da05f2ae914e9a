#pragma once

#include <QtCore/qbytearray.h>
#include <QtCore/qvariant.h>

namespace TQFoundation {

/// The top-level dictionary of an XML property list, each value with its own type: QString, qlonglong, double, bool,
/// QDateTime, QByteArray, QVariantList or QVariantMap. Of a key that stands twice the last value counts.
///
/// All or nothing: empty for anything that is not a well-formed list whose root is a dictionary, for one that declares
/// entities, nests deeper than 64 levels or is larger than largestInfoPlist. Any thread.
QVariantMap parseInfoPlist(const QByteArray &xml);

/// Bytes; real lists have a few thousand.
inline constexpr qsizetype largestInfoPlist = 1 << 20;

} // namespace TQFoundation
