// Shows one window and ends at its first frame.

#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlapplicationengine.h>
#include <QtQuick/qquickwindow.h>

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/" QML_MODULE "/Main.qml")));
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window)
        return 1;
    QObject::connect(window, &QQuickWindow::frameSwapped, &application, &QCoreApplication::quit, Qt::QueuedConnection);
    return QGuiApplication::exec();
}
