// Shows one window and ends at its first frame.

#include <QtCore/qlocale.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlapplicationengine.h>
#include <QtQuick/qquickwindow.h>

#include <cstdlib>

int main(int argc, char *argv[])
{
    // A language that has a table, wherever this runs: reading it is part of what the library costs.
    QLocale::setDefault(QLocale(QStringLiteral("de-DE")));
    const QGuiApplication application(argc, argv);
    const QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/" QML_MODULE "/Main.qml")));
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window || window->title() != QStringLiteral("Version 2.3.1(57)"))
        return 1;
    // At once, because tearing down is no part of starting up.
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window, [] { std::_Exit(0); }, Qt::DirectConnection);
    return QGuiApplication::exec();
}
