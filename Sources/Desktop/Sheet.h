#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>

#include <memory>

class QQuickWindow;

namespace TQFoundation {

/// A screen of the library: a modal Qt Quick Controls popup, loaded from a QML file in the bundle's folder Desktop.
///
/// Destroying this object deletes an open popup without animation. GUI thread only.
class Sheet
{
public:
    Sheet() = default;
    Sheet(const Sheet &) = delete;
    Sheet &operator=(const Sheet &) = delete;
    ~Sheet();

    /// Shows the popup of the file \a name (without extension) on top of everything in \a window. Its property "page"
    /// is set to \a page, which the popup owns. The popup is deleted when the window is destroyed. Returns false and
    /// shows nothing if \a window is null or being destroyed, or if the file cannot be loaded. Call it once.
    bool open(const QString &name, std::unique_ptr<QObject> page, QQuickWindow *window);

    /// Slides the popup out and deletes it afterwards. Does nothing if it is not open.
    void close();

private:
    // A child of the application scope while it exists; null before open() and after close().
    QPointer<QObject> m_popup;
};

} // namespace TQFoundation
