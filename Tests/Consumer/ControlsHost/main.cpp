#include <TQFoundation/TQApp.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>

// A Qt Quick Controls host with a QML module of its own that passes an app of the catalogue from C++ to QML.
int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.setInitialProperties(
        {{QStringLiteral("app"), QVariant::fromValue(TQFoundation::TQApp(TQFoundation::TQApp::fir))}});
    engine.load(QUrl(QStringLiteral("qrc:/Orchard/Main.qml")));
    return engine.rootObjects().isEmpty() ? 1 : application.exec();
}
