#pragma once

#include <QtCore/qstring.h>

/// The store page that lists all the developer's apps.
namespace TQFoundation::DeveloperPage {

/// The title of a row or button that leads to the page, in the user's language. Translated on its first read and then
/// kept for the life of the process. Any thread.
QString title();

/// Opens the page in the system's handler. Does nothing if its address is not a URL. GUI thread.
void open();

} // namespace TQFoundation::DeveloperPage
