// Shows one window, prints its private memory in KiB after its first frame, and exits.

#include "Memory.h"

#include <QtCore/qlocale.h>
#include <QtCore/qtextstream.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlapplicationengine.h>
#include <QtQuick/qquickwindow.h>

#include <cstdlib>

int main(int argc, char *argv[])
{
    // A language with a translation table, because loading it is part of the cost.
    QLocale::setDefault(QLocale(QStringLiteral("de-DE")));
    const QGuiApplication application(argc, argv);
    const QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/" QML_MODULE "/Main.qml")));
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window || window->title() != QStringLiteral("Version 2.3.1(57)"))
        return 1;
    // Without destructors, because shutdown is not measured.
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window,
        [] {
            QTextStream(stdout) << memory();
            std::_Exit(0);
        },
        Qt::DirectConnection);
    return QGuiApplication::exec();
}
