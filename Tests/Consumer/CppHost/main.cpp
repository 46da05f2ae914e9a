#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>

#include <QGuiApplication>
#include <QQuickWindow>

using namespace TQFoundation;

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QQuickWindow window;
    window.setTitle(TQApp::name());
    window.resize(390, 844);
    window.show();

    if (TQGuideView::shouldShowGuide()) {
        const TQApp app = TQApp::hazel;
        const auto guide = TQGuideView::initFromNib(app.tintColor(), app.guideText(), [] { qInfo("Welcome."); });
        guide->showGuide(&window);
    }
    return application.exec();
}
