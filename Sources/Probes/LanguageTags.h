#pragma once

#include <QtCore/qstringlist.h>

namespace TQFoundation {

/// The names to try for a translation table, best first: for each BCP 47 tag, in order, language_Script,
/// language_Territory and language ("zh_Hans", "zh_CN", "zh"). Invalid tags are skipped; each name appears once. Any
/// thread.
QStringList tableNames(const QStringList &languageTags);

} // namespace TQFoundation
