#include <TQFoundation/TQApp.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>

// A host with an engine, controls and types of its own, which hands an app of the catalogue in from C++.
int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.setInitialProperties(
        {{QStringLiteral("app"), QVariant::fromValue(TQFoundation::TQApp(TQFoundation::TQApp::fir))}});
    engine.load(QUrl(QStringLiteral("qrc:/Orchard/Main.qml")));
    return engine.rootObjects().isEmpty() ? 1 : application.exec();
}
