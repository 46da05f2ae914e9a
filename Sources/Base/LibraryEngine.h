#pragma once

#include <QtCore/qstring.h>
#include <QtCore/qvariant.h>

#include <memory>

class QObject;

namespace TQFoundation {

/// Makes the root object of the QML file at \a path with the given \a properties, in an engine that belongs to the
/// library: what a host's engine makes loses its handlers when that engine goes. The engine loads nothing from a
/// network and goes when the application object does. Null where the file is missing or in error.
///
/// The caller owns the object. Needs an application object. Main thread.
std::unique_ptr<QObject> makeFromNib(const QString &path, const QVariantMap &properties = {});

/// Whether files of the library can import the QML module in the folder \a name of an import path. Main thread.
bool hasQmlModule(const QString &name);

/// The object that everything belongs to which has to be gone before the application object is. Main thread.
QObject *untilApplicationEnds();

/// Takes \a object off the screen and deletes it when control is back in the event loop, because one of its own
/// handlers may be running, or at once where there is no application any more. For a shared pointer to call. Main
/// thread.
void deleteInItsTurn(QObject *object);

} // namespace TQFoundation
