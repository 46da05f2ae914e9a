#include <QGuiApplication>
#include <QIcon>
#include <QQmlApplicationEngine>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("TQ Studio"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/App/icon.png")));
    QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/App/Main.qml")));
    return engine.rootObjects().isEmpty() ? 1 : application.exec();
}
