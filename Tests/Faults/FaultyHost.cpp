#include <TQFoundation/AnimationView.h>
#include <TQFoundation/DesktopPlatform.h>
#include <TQFoundation/Environment.h>
#include <TQFoundation/Platform.h>
#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>
#include <TQFoundation/TQMore.h>
#include <TQFoundation/ViewController.h>

#include <QtCore/qdir.h>
#include <QtCore/qtimer.h>
#include <QtGui/qguiapplication.h>
#include <QtQuick/qquickwindow.h>

#include <cstdio>
#include <cstring>
#include <memory>

using namespace TQFoundation;

namespace {

void describe()
{
    const auto bytes = [](const QString &text) { return text.toUtf8(); };
    std::printf("name=%s version=%s build=%s more=%s guide=%d screen=%gx%g@%g china=%d\n",
                bytes(TQApp::name()).constData(), bytes(TQApp::version()).constData(),
                bytes(TQApp::buildNumber()).constData(), bytes(TQMore::privacyText()).constData(),
                TQGuideView::shouldShowGuide(), screenWidth(), screenHeight(), screenScale(), isChn());
    std::fflush(stdout);
}

// Reads everything with a QCoreApplication only, as a service would.
int runWithoutDisplay(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    describe();
    return 0;
}

// Stores settings while another process of the same app does so too.
int storeSettings(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Faults"));
    QCoreApplication::setApplicationName(QStringLiteral("FaultyHost"));
    for (int number = 0; number < 40; ++number) {
        platform().setUserDefault(QString(QLatin1String(argv[2]) + QString::number(number)), number);
        QCoreApplication::processEvents();
    }
    platform().setUserDefault(QStringLiteral("KeyOfDidShowGuide"), true);
    QCoreApplication::processEvents();
    return 0;
}

class PrintingPlatform final : public DesktopPlatform
{
public:
    void openUrl(const QUrl &url) override
    {
        std::printf("system %s\n", url.toEncoded().constData());
        std::fflush(stdout);
    }
};

// Opens the filing site and prints whether the in-app browser or the system shows it. With "close" the browser is
// closed before the app ends.
int openFilingSite(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    installPlatform(std::make_unique<PrintingPlatform>());
    QQuickWindow window;
    window.resize(200, 300);
    const auto root = std::make_shared<ViewController>(window.contentItem());
    ViewController::setRoot(&window, root);
    QObject::connect(
        &window, &QWindow::activeChanged, &application,
        [&] {
            TQMore::openUrl(QStringLiteral("https://beian.miit.gov.cn"), TQApp::hazel.tintColor());
            std::puts(TQMore::topViewController() == root ? "no sheet" : "sheet");
            if (argc > 2)
                root->dismiss();
            QTimer::singleShot(argc > 2 ? 1000 : 0, &application, &QCoreApplication::quit);
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    window.show();
    window.requestActivate();
    QTimer::singleShot(20'000, &application, [] { QCoreApplication::exit(4); });
    return application.exec();
}

} // namespace

// A host that shows its guide over a background and ends after the last paragraph, whatever is wrong with the system.
// Its first argument chooses another run or a fault that occurs meanwhile.
int main(int argc, char *argv[])
{
    const auto isMode = [&](const char *word) { return argc > 1 && std::strcmp(argv[1], word) == 0; };
    if (isMode("without-display"))
        return runWithoutDisplay(argc, argv);
    if (isMode("store-settings"))
        return storeSettings(argc, argv);
    if (isMode("open-filing-site"))
        return openFilingSite(argc, argv);

    QGuiApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Faults"));
    QCoreApplication::setApplicationName(QStringLiteral("FaultyHost"));
    describe();
    QQuickWindow window;
    window.resize(200, 300);
    window.show();
    const auto background = AnimationView::initWithFrame({0, 0, 200, 300});
    background->setParentItem(window.contentItem());
    background->createTimer();
    const auto guide = TQGuideView::initFromNib(
        TQApp::hazel.tintColor(), {QStringLiteral("One"), QStringLiteral("Two")}, [] { std::puts("completed"); });
    guide->showGuide(&window);
    QTimer::singleShot(100, guide.get(), [&] { guide->nextGuide(); });
    QTimer::singleShot(1200, guide.get(), [&] {
        if (isMode("remove-home"))
            QDir(QDir::homePath()).removeRecursively();
        guide->nextGuide();
    });
    QObject::connect(guide.get(), &QQuickItem::parentChanged, &application, [&] {
        if (!guide->parentItem())
            QCoreApplication::quit();
    });
    QTimer::singleShot(20'000, &application, [] { QCoreApplication::exit(4); });
    const int result = application.exec();
    describe();
    return result;
}
