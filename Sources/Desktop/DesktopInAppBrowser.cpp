#include "DesktopInAppBrowser.h"

#include "BrowserPage.h"
#include "LibraryEngine.h"
#include "TQFoundation/Platform.h"

#include <QtCore/qcoreapplication.h>
#include <QtGui/qopenglcontext.h>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace TQFoundation {
namespace {

// Qt WebEngine aborts the process without shared OpenGL contexts, which must be requested before the application
// exists.
[[maybe_unused]] const bool isContextSharingRequested = [] {
    if (QCoreApplication::instance())
        return false;
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    return true;
}();

// Qt WebEngine exits if the sandbox is enabled and the user is root.
bool isSandboxImpossible()
{
#ifdef Q_OS_UNIX
    return geteuid() == 0 && qgetenv("QTWEBENGINE_DISABLE_SANDBOX") != "1";
#else
    return false;
#endif
}

// The application attribute is no proof of a shared context: it may have been set too late.
bool canShowPages()
{
    return QOpenGLContext::globalShareContext() && !isSandboxImpossible()
        && hasQmlModule(QStringLiteral("QtWebEngine"));
}

} // namespace

DesktopInAppBrowser::DesktopInAppBrowser(const QUrl &url) : m_url(url) {}

void DesktopInAppBrowser::setPreferredControlTintColor(const Color &color)
{
    m_tint = color;
}

void DesktopInAppBrowser::setDismissButtonStyle(DismissButtonStyle) {}

void DesktopInAppBrowser::setModalPresentationStyle(ModalPresentationStyle) {}

void DesktopInAppBrowser::appear(QQuickWindow *window)
{
    if (canShowPages()) {
        auto page = std::make_unique<BrowserPage>();
        page->tint = m_tint;
        page->url = m_url;
        connect(page.get(), &BrowserPage::closed, this, &DesktopInAppBrowser::close);
        if (m_sheet.open(QStringLiteral("BrowserSheet"), std::move(page), window))
            return;
    }
    close();
    platform().openUrl(m_url);
}

void DesktopInAppBrowser::disappear()
{
    m_sheet.close();
}

void DesktopInAppBrowser::close()
{
    // Dismissing may release the last other reference.
    const auto self = weak_from_this().lock();
    dismiss();
}

} // namespace TQFoundation
