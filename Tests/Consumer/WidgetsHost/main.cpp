#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>

#include <QApplication>
#include <QMainWindow>
#include <QQuickWidget>
#include <QTimer>

using namespace TQFoundation;

// A Qt Widgets host that shows the guide in its QQuickWidget.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    auto *page = new QQuickWidget(QUrl(QStringLiteral("qrc:/Page.qml")));
    page->setResizeMode(QQuickWidget::SizeRootObjectToView);
    window.setCentralWidget(page);
    window.resize(390, 844);
    window.show();
    window.activateWindow();

    QTimer::singleShot(500, &window, [page] {
        const TQApp app = TQApp::hazel;
        const auto guide = TQGuideView::initFromNib(app.tintColor(), app.guideText(), nullptr);
        guide->showGuide(page->quickWindow());
        if (guide->window() != page->quickWindow())
            qFatal("the guide is not in the page's window");
    });
    return QApplication::exec();
}
