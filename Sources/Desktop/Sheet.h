#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>

#include <memory>

class QQuickWindow;

namespace TQFoundation {

/// One of the library's own screens while it is shown: a modal popup of Qt Quick Controls, made from a QML file of the
/// bundle's folder Desktop. Main thread only.
class Sheet
{
public:
    Sheet() = default;
    Sheet(const Sheet &) = delete;
    Sheet &operator=(const Sheet &) = delete;
    ~Sheet();

    /// Shows the sheet \a name over everything in \a window. Its property "page" becomes \a page, which lives as long
    /// as the sheet does. False, and nothing is shown, where there is no window or the file cannot be loaded.
    bool open(const QString &name, std::unique_ptr<QObject> page, QQuickWindow *window);

    /// Lets the sheet slide out and frees it then. Does nothing where none is open.
    void close();

private:
    QPointer<QObject> m_popup;
};

} // namespace TQFoundation
