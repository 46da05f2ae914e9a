#include <TQFoundation/AnimationView.h>
#include <TQFoundation/Platform.h>
#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>

#include <QtCore/qcoreapplication.h>

/// Shows a guide and starts a background. Returns the library's platform, or null if something is missing.
extern "C" Q_DECL_EXPORT const void *use()
{
    using namespace TQFoundation;
    QQuickWindow window;
    window.show();
    const auto guide = TQGuideView::initFromNib(TQApp::fir.tintColor(), {QStringLiteral("One")}, {});
    guide->showGuide(&window);
    guide->nextGuide();
    const auto background = AnimationView::initWithFrame({});
    background->setParentItem(window.contentItem());
    background->createTimer();
    QCoreApplication::processEvents();
    return guide->parentItem() && !TQApp::fir.icon().isNull() ? &platform() : nullptr;
}
