#pragma once

#include <QtCore/qbytearray.h>
#include <QtCore/qvariant.h>

namespace TQFoundation {

/// Parses the top-level dictionary of an XML property list. Each value keeps its type: QString, qlonglong, double,
/// bool, QDateTime, QByteArray, QVariantList or QVariantMap. The last value of a repeated key wins.
///
/// Empty if the list is not well-formed, its root is not a dictionary, it declares entities, it nests deeper than 64
/// levels or it is larger than largestInfoPlist. Any thread.
QVariantMap parseInfoPlist(const QByteArray &xml);

/// Largest size in bytes; real lists have a few thousand.
inline constexpr qsizetype largestInfoPlist = 1 << 20;

} // namespace TQFoundation
