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
    const auto shown = [](const QString &text) { return text.toUtf8(); };
    std::printf("name=%s version=%s build=%s more=%s guide=%d screen=%gx%g@%g china=%d\n",
                shown(TQApp::name()).constData(), shown(TQApp::version()).constData(),
                shown(TQApp::buildNumber()).constData(), shown(TQMore::privacyText()).constData(),
                TQGuideView::shouldShowGuide(), screenWidth(), screenHeight(), screenScale(), isChn());
    std::fflush(stdout);
}

// Asks everything, with no more of an application than a service has.
int withoutDisplay(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    describe();
    return 0;
}

// Stores numbers as an app of the same name does beside it.
int writing(int argc, char *argv[])
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

// Opens the filing site and says who shows it.
int browsing(int argc, char *argv[])
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
            QCoreApplication::quit();
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    window.show();
    window.requestActivate();
    QTimer::singleShot(20'000, &application, [] { QCoreApplication::exit(4); });
    return application.exec();
}

} // namespace

// A host that goes through its guide before a background and ends, whatever is wrong with the system. What it is told
// to do on the way makes something go wrong.
int main(int argc, char *argv[])
{
    const auto isTold = [&](const char *word) { return argc > 1 && std::strcmp(argv[1], word) == 0; };
    if (isTold("without-display"))
        return withoutDisplay(argc, argv);
    if (isTold("writing"))
        return writing(argc, argv);
    if (isTold("browsing"))
        return browsing(argc, argv);

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
        if (isTold("losing-home"))
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
