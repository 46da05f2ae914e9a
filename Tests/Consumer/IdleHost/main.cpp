#include <QGuiApplication>
#include <QWindow>

// A host that links the library without using it.
int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QWindow window;
    window.show();
    return application.exec();
}
