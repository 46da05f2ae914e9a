#include <RecordingPlatform.h>

#include <TQFoundation/TQGuideView.h>
#include <TQFoundation/TQMore.h>

#include <QGuiApplication>

#include <cstdlib>

using namespace TQFoundation;

// A test of a host that replaces the system by a recording platform.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const Testing::InstalledRecordingPlatform platform;
    platform->storefront = QStringLiteral("USA");
    platform->infoDictionary = {{QStringLiteral("CFBundleName"), QStringLiteral("Grove")},
                                {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("2.3.1")},
                                {QStringLiteral("CFBundleVersion"), QStringLiteral("57")}};
    const bool isRight = TQMore::versionText() == QStringLiteral("Version 2.3.1(57)") && TQGuideView::shouldShowGuide()
        && platform->calls.last() == QStringLiteral("userDefault(KeyOfDidShowGuide)");
    return isRight ? EXIT_SUCCESS : EXIT_FAILURE;
}
