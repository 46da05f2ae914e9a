// Two static libraries of one program use the library: it is there once, with its texts and its QML module.

#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlapplicationengine.h>

bool isGuideDue();
QString versionRow();

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("TQ Studio"));
    if (!isGuideDue() || !versionRow().contains(u"2.3.1"))
        qFatal("the parts do not share the host's name and settings");
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick; import TQFoundation\n"
                    "Window { visible: true; title: TQMore.versionText; TQAppView { app: TQApp.hazel; width: 300 } }");
    if (engine.rootObjects().isEmpty())
        qFatal("the QML module is missing");
    return QGuiApplication::exec();
}
