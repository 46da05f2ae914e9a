#include <TQFoundation/DesktopPlatform.h>
#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>

#include <QApplication>
#include <QMainWindow>
#include <QPointer>
#include <QQuickWidget>
#include <QTimer>

using namespace TQFoundation;

namespace {

constexpr QSize windowSize(390, 844);

// The library's screens appear in a QQuickWidget, and the background is laid out for the window.
class WidgetsPlatform : public DesktopPlatform
{
public:
    QPointer<QQuickWidget> page;

    QSizeF screenBounds() const override { return windowSize; }

    QList<Scene> connectedScenes() const override
    {
        return {{ActivationState::foregroundActive, true, {{page ? page->quickWindow() : nullptr, true}}}};
    }
};

} // namespace

// A Qt Widgets host that shows the guide in its QQuickWidget.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    auto widgetsPlatform = std::make_unique<WidgetsPlatform>();
    WidgetsPlatform &scenes = *widgetsPlatform;
    installPlatform(std::move(widgetsPlatform));

    QMainWindow window;
    auto *page = new QQuickWidget(QUrl(QStringLiteral("qrc:/Page.qml")));
    page->setResizeMode(QQuickWidget::SizeRootObjectToView);
    scenes.page = page;
    window.setCentralWidget(page);
    window.resize(windowSize);
    window.show();
    window.activateWindow();

    QTimer::singleShot(500, &window, [page] {
        const TQApp app = TQApp::hazel;
        const auto guide = TQGuideView::initFromNib(app.tintColor(), app.guideText(), nullptr);
        guide->showGuide();
        if (guide->window() != page->quickWindow() || guide->size() != QSizeF(windowSize))
            qFatal("the guide does not fill the page's window");
    });
    return QApplication::exec();
}
