#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QGuiApplication::setOrganizationName("TQ Studio");
    QQmlApplicationEngine engine(QUrl("qrc:/Main.qml"));
    return engine.rootObjects().isEmpty() ? 1 : application.exec();
}
