#pragma once

#include <QtCore/qstring.h>
#include <QtCore/qvariant.h>

#include <memory>

class QObject;

namespace TQFoundation {

/// Creates the root object of the QML file at \a path (a file, or a resource that begins with a colon) with the initial
/// \a properties.
///
/// The engine is the library's own, because objects created by a host's engine lose their signal handlers when it is
/// destroyed. It loads nothing from a network and is destroyed with the application object. Null if the file is missing
/// or has errors. The caller owns the object. Requires an application object. GUI thread.
std::unique_ptr<QObject> makeFromNib(const QString &path, const QVariantMap &properties = {});

/// Whether an import path of the library's engine has the QML module in the folder \a name ("QtWebEngine"). GUI thread.
bool hasQmlModule(const QString &name);

/// Parent for objects that must be destroyed before the application object is. Never null. GUI thread.
QObject *applicationScope();

/// Hides all windows of Qt Quick if the calling thread, which is the GUI thread, ends the process by `exit()` while the
/// application object exists. No render thread then uses objects that `exit()` destroys. Later calls do nothing.
void hideWindowsAtExit();

/// Deletes \a object in the event loop, because one of its own handlers may be running; at once if the application
/// object is destroyed. An item leaves its window immediately. A deleter for shared pointers. GUI thread.
void deferredDelete(QObject *object);

} // namespace TQFoundation
