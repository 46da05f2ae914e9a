#pragma once

#include "Sheet.h"
#include "TQFoundation/InAppBrowser.h"

#include <QtCore/qurl.h>

#include <memory>

namespace TQFoundation {

/// The browser of a desktop: a sheet with the web view of Qt WebEngine, which is loaded when the browser is first
/// shown. Where that cannot be had, the page is handed to the system instead. It keeps nothing of what was seen: no
/// cookies, no cache, no history. Its look is the same in every style.
class DesktopInAppBrowser final : public InAppBrowser, public std::enable_shared_from_this<DesktopInAppBrowser>
{
    Q_OBJECT

public:
    explicit DesktopInAppBrowser(const QUrl &url);

    void setPreferredControlTintColor(const Color &color) override;
    void setDismissButtonStyle(DismissButtonStyle style) override;
    void setModalPresentationStyle(ModalPresentationStyle style) override;

protected:
    void appear(QQuickWindow *window) override;
    void disappear() override;

private:
    void close();

    QUrl m_url;
    Color m_tint = Color::systemBlue();
    Sheet m_sheet;
};

} // namespace TQFoundation
