#pragma once

#include <QtCore/qstringlist.h>

namespace TQFoundation {

/// The names that a table for one of the user's languages may bear, best first: for each BCP 47 tag, in order,
/// language_Script, language_Territory and language ("zh_Hans", "zh_CN", "zh"). Tags that name no language are dropped,
/// and each name comes once. Any thread.
QStringList tableNames(const QStringList &languageTags);

} // namespace TQFoundation
