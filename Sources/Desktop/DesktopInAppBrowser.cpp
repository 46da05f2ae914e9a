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

// The web view shares its pictures through OpenGL, which has to be said before there is an application, and would end
// the process otherwise.
[[maybe_unused]] const bool sharesContexts = [] {
    if (QCoreApplication::instance())
        return false;
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    return true;
}();

// The web view's sandbox ends the process of a superuser, who has to renounce it.
bool runsWithoutItsSandbox()
{
#ifdef Q_OS_UNIX
    return geteuid() == 0 && qgetenv("QTWEBENGINE_DISABLE_SANDBOX") != "1";
#else
    return false;
#endif
}

// Asked of the context itself, because the attribute may have been set too late.
bool canShowPages()
{
    return QOpenGLContext::globalShareContext() && !runsWithoutItsSandbox()
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
    // Dismissing lets go of the browser.
    const auto alive = weak_from_this().lock();
    dismiss();
}

} // namespace TQFoundation
