// A host with a property list embedded by tq_add_host_info(). Checks that its entries are read unchanged, and that the
// list beside the executable is ignored.

#include <TQFoundation/TQApp.h>

#include <QtGui/qguiapplication.h>

#include <cstdio>

int main(int argc, char *argv[])
{
    using TQFoundation::TQApp;
    const auto isAsWritten = [] {
        return TQApp::name() == QStringLiteral("A <b>& \"c\" ; $<1:x> @y@ ${z} é") && TQApp::version().isEmpty()
            && TQApp::buildNumber().isEmpty();
    };
    const bool withoutApplication = isAsWritten();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const bool withApplication = isAsWritten();
    std::printf("%s, %s\n", TQApp::name().toUtf8().constData(), TQApp::buildNumber().toUtf8().constData());
    return withoutApplication && withApplication ? 0 : 1;
}
