// A host whose list is embedded by tq_add_host_info: its entries arrive as they were written, and a list beside the
// executable does not count.

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
