#pragma once

#include <QtCore/qglobal.h>

/// The store page that lists all the developer's apps.
namespace TQFoundation::DeveloperPage {

/// What a row or button that leads there says; a key of the translation tables.
//: Title of a row that leads to the developer's other apps.
inline constexpr const char *title = QT_TRANSLATE_NOOP("TQFoundation", "More Apps I Developed");

/// Hands the page to the system. Does nothing where its address is no URL. Main thread.
void open();

} // namespace TQFoundation::DeveloperPage
