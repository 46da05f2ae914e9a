#pragma once

#include "Sheet.h"
#include "TQFoundation/InAppBrowser.h"

#include <QtCore/qurl.h>

#include <memory>

namespace TQFoundation {

/// The in-app browser of desktops: a sheet with the web view of Qt WebEngine. The engine is loaded when a browser is
/// first presented. If it is missing or cannot run, the page opens in the system's browser instead. Cookies, cache and
/// history are kept in memory and deleted with the sheet. GUI thread only.
class DesktopInAppBrowser final : public InAppBrowser, public std::enable_shared_from_this<DesktopInAppBrowser>
{
    Q_OBJECT

public:
    /// A browser for \a url, owned by a shared pointer. Loads nothing yet.
    explicit DesktopInAppBrowser(const QUrl &url);

    /// Sets the colour of the buttons. It is adjusted until it is legible on the sheet. Blue by default.
    void setPreferredControlTintColor(const Color &color) override;
    /// Ignored: the button is an icon, named "Close" for screen readers.
    void setDismissButtonStyle(DismissButtonStyle style) override;
    /// Ignored: the browser is always a sheet.
    void setModalPresentationStyle(ModalPresentationStyle style) override;

protected:
    /// Opens the sheet over \a window. If that fails, dismisses the browser and opens the page in the system's browser.
    void appear(QQuickWindow *window) override;
    void disappear() override;

private:
    // Dismisses the browser as the user does.
    void close();

    QUrl m_url;
    Color m_tint = Color::systemBlue();
    Sheet m_sheet;
};

} // namespace TQFoundation
