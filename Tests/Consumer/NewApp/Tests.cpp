#include <RecordingPlatform.h>

#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQMore.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <cstdlib>

using namespace TQFoundation;

namespace {

void require(bool condition, const char *what)
{
    if (condition)
        return;
    qWarning("failed: %s", what);
    std::exit(EXIT_FAILURE);
}

QQuickItem *itemNamed(const QString &name, QQuickItem *parent)
{
    for (QQuickItem *child : parent->childItems()) {
        if (QQuickItem *const found = child->objectName() == name ? child : itemNamed(name, child))
            return found;
    }
    return nullptr;
}

QQuickItem *click(const QQuickWindow &window, const QString &name)
{
    QQuickItem *const item = itemNamed(name, window.contentItem());
    require(item && QMetaObject::invokeMethod(item, "clicked"), qPrintable(name));
    return item;
}

} // namespace

// Opens the app on a recording platform, in the country of the first argument, and taps rows of the More screen.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const Testing::InstalledRecordingPlatform platform;
    platform->storefront = QCoreApplication::arguments().value(1);
    platform->infoDictionary = {{QStringLiteral("CFBundleName"), QStringLiteral("New App")}};

    const QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/App/Main.qml")));
    auto *const window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    require(window && window->title() == QStringLiteral("New App"), "a window with the app's name");
    platform->scenes = {{ActivationState::foregroundActive, true, {{window, true}}}};

    const TQApp app = TQApp::hazel;
    click(*window, QStringLiteral("more"));
    click(*window, QStringLiteral("review"));
    require(platform->calls.contains(QStringLiteral("openUrl(%1)").arg(app.reviewLink())), "the review form");
    const QString region = click(*window, QStringLiteral("region"))->property("text").toString();
    require(region == TQMore::icpOrBlogText(app.icp()), "the first region row");
    click(*window, QStringLiteral("feedback"));
    require(platform->mailComposer.lock() != nullptr, "the mail composer");
    return EXIT_SUCCESS;
}
