#include <QGuiApplication>
#include <QWindow>

// A host that links the library and does not use it.
int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QWindow window;
    window.show();
    return application.exec();
}
