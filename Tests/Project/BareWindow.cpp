#include <QtCore/qtimer.h>
#include <QtGui/qguiapplication.h>
#include <QtQuick/qquickwindow.h>

#ifdef WITH_LIBRARY
#include <TQFoundation/Environment.h>
#include <TQFoundation/Platform.h>
#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>
#include <TQFoundation/TQMore.h>
#endif

// A Qt Quick window that closes by itself. Built twice: bare, and as a host that asks the library what every app asks
// at its launch. Whatever the second does to the system and the first does not is the library's doing.
int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Watched"));
    QCoreApplication::setApplicationName(QStringLiteral("BareWindow"));
    QQuickWindow window;
    window.resize(200, 200);
    window.show();
#ifdef WITH_LIBRARY
    using namespace TQFoundation;
    const bool finishes = application.arguments().contains(QStringLiteral("--finish"));
    const bool asked = TQApp::name() == QStringLiteral("Watched App") && TQApp::version() == QStringLiteral("9.8.7")
        && TQApp::buildNumber() == QStringLiteral("65") && TQGuideView::shouldShowGuide() && isChn()
        && screenWidth() > 0 && !TQMore::versionText().isEmpty() && !TQMore::privacyUrl().isEmpty()
        && !TQApp::hazel.guideText().isEmpty();
    if (!asked)
        return 3;
    if (finishes)
        platform().setUserDefault(QStringLiteral("KeyOfDidShowGuide"), true);
#endif
    QTimer::singleShot(300, &application, &QCoreApplication::quit);
    return application.exec();
}
