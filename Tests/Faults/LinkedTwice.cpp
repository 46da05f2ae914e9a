// A host that does not link the library loads two plugins that do. Both must use the same instance of it.

#include <QtCore/qlibrary.h>
#include <QtGui/qguiapplication.h>

#include <cstdio>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    const void *platforms[2] = {};
    QLibrary plugins[2] = {QLibrary(QString::fromLocal8Bit(argv[1])), QLibrary(QString::fromLocal8Bit(argv[2]))};
    for (int number = 0; number < 2; ++number) {
        using Use = const void *(*)();
        const auto use = reinterpret_cast<Use>(plugins[number].resolve("use"));
        if (!use) {
            std::puts(qPrintable(plugins[number].errorString()));
            return 2;
        }
        platforms[number] = use();
    }
    // The library stays loaded as long as one of them uses it.
    plugins[0].unload();
    using Use = const void *(*)();
    const void *again = reinterpret_cast<Use>(plugins[1].resolve("use"))();
    return platforms[0] && platforms[0] == platforms[1] && again == platforms[0] ? 0 : 3;
}
