#pragma once

#include <QtCore/qglobal.h>

/// The English texts of the More screen, which are also their translation keys. Texts that name the developer or the
/// store are in DeveloperIdentity.h.
namespace TQFoundation::MoreKeys {

//: Title of a row of the More screen.
inline constexpr const char *privacy = QT_TRANSLATE_NOOP("TQFoundation", "Privacy Policy");
//: Title of a row of the More screen that leads to writing to the developer.
inline constexpr const char *feedback = QT_TRANSLATE_NOOP("TQFoundation", "Contact");
//: Title of a row of the More screen.
inline constexpr const char *threads = QT_TRANSLATE_NOOP("TQFoundation", "Follow me on Social Media Platforms");
//: Title of a row of the More screen.
inline constexpr const char *blog = QT_TRANSLATE_NOOP("TQFoundation", "Browse My Personal Website");

//: Stands before the version number, as in "Version 2.3.1(57)".
inline constexpr const char *version = QT_TRANSLATE_NOOP("TQFoundation", "Version");

//: Begins the subject of a feedback mail, before the app's name; ends in one blank.
inline constexpr const char *feedbackSubject = QT_TRANSLATE_NOOP("TQFoundation", "Contact: ");

} // namespace TQFoundation::MoreKeys
