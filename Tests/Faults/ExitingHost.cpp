// An app that ends in the way of its first argument after the milliseconds of its second, while a background draws and
// a guide fades. It asks for the time once more after all static objects have been destroyed, as a render thread may.

#include <TQFoundation/AnimationView.h>
#include <TQFoundation/Platform.h>
#include <TQFoundation/TQGuideView.h>

#include <QtCore/qeventloop.h>
#include <QtCore/qtimer.h>
#include <QtGui/qguiapplication.h>
#include <QtQuick/qquickwindow.h>

#include <cstdlib>

using namespace TQFoundation;

namespace {

struct LateCaller
{
    ~LateCaller()
    {
        if (platform().mediaTime() <= 0)
            std::_Exit(3);
    }
};

const LateCaller lateCaller; // made before the platform, so destroyed after it

} // namespace

int main(int, char *argv[])
{
    int count = 1;
    QGuiApplication application(count, argv);
    const QByteArray way = argv[1];
    const int moment = std::atoi(argv[2]);
    QQuickWindow window;
    window.resize(400, 300);
    window.show();
    const auto background = AnimationView::initWithFrame({0, 0, 400, 300});
    background->setParentItem(window.contentItem());
    background->createTimer();
    const auto guide = TQGuideView::initFromNib(Color::systemBlue(), {QStringLiteral("Text")}, nullptr);
    guide->showGuide(&window);
    QEventLoop loop;
    QTimer::singleShot(moment, &window, [&] {
        if (moment % 2)
            guide->nextGuide();
        if (way == "exit")
            std::exit(0);
        if (way == "quick_exit")
            std::quick_exit(0);
        if (way == "quit")
            QCoreApplication::quit();
        if (way == "return")
            loop.quit();
        if (way == "close")
            window.close();
    });
    return way == "return" ? loop.exec() : QGuiApplication::exec();
}
