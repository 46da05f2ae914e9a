// FirstUse STEP [qml]: shows a window, takes STEP twice and prints the cost of both as one line of JSON.
//
// STEP is `text` (the cheapest that a QML engine can make), `guide`, `mail`, `long-mail` (100 KB of HTML), `page` (the
// in-app browser) or `row`, which is flicked the second time. With `qml` the host has a QML engine of its own that runs
// already. "gui" is the CPU time of the GUI thread from the call to the first frame that shows its result, "longest"
// that of the longest event until the screen rests, both in milliseconds. "memory" is the private memory that is added,
// in KiB. Sheets need Platform's own programs: `mail` a sendmail, `page` Qt WebEngine and a display.

#include "Memory.h"

#include <TQFoundation/InAppBrowser.h>
#include <TQFoundation/Platform.h>
#include <TQFoundation/TQApp.h>
#include <TQFoundation/TQGuideView.h>
#include <TQFoundation/TQMore.h>
#include <TQFoundation/ViewController.h>

#include <QtCore/qeventloop.h>
#include <QtCore/qtextstream.h>
#include <QtCore/qtimer.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>

using namespace TQFoundation;
using namespace std::chrono_literals;

namespace {

double cpuTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

/// Notes the longest event.
class Application final : public QGuiApplication
{
public:
    using QGuiApplication::QGuiApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        const double before = cpuTime();
        const bool outer = m_depth++ == 0;
        const bool handled = QGuiApplication::notify(receiver, event);
        --m_depth;
        if (outer)
            longest = std::max(longest, cpuTime() - before);
        return handled;
    }

    double longest = 0;

private:
    int m_depth = 0;
};

void rest(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

void measure(Application &application, QQuickWindow &window, const char *name, const std::function<void()> &step)
{
    rest(500ms);
    const qint64 memoryBefore = memory();
    application.longest = 0;
    QEventLoop frame;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &frame, &QEventLoop::quit);
    const double before = cpuTime();
    step();
    const double called = cpuTime() - before;
    window.update();
    frame.exec();
    const double shown = cpuTime() - before;
    rest(1s);
    QTextStream(stdout) << '"' << name << "\": {\"gui\": " << shown
                        << ", \"longest\": " << std::max(called, application.longest)
                        << ", \"memory\": " << memory() - memoryBefore << '}';
}

std::unique_ptr<QQuickItem> make(QQmlEngine &engine, const char *source, QQuickItem *parent)
{
    QQmlComponent component(&engine);
    component.setData(source, {});
    auto *item = qobject_cast<QQuickItem *>(component.create());
    if (!item)
        qFatal("%s", qPrintable(component.errorString()));
    item->setParentItem(parent);
    return std::unique_ptr<QQuickItem>(item);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QSG_RENDER_LOOP", "threaded");
    Application application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const QString step = arguments.value(1);
    std::unique_ptr<QQmlEngine> engine;
    std::unique_ptr<QQuickItem> host;
    QQuickWindow window;
    window.resize(390, 844);
    if (arguments.value(2) == u"qml") {
        engine = std::make_unique<QQmlEngine>();
        host = make(*engine, "import QtQuick\nText { text: \"Host\" }", window.contentItem());
    }
    window.show();
    window.requestActivate();

    QString message(QStringLiteral("<p>Hello</p>"));
    if (step == u"long-mail")
        message = QStringLiteral("<p>The quick brown fox jumps over the lazy dog.</p>").repeated(2000);
    std::unique_ptr<QQuickItem> item;
    std::shared_ptr<TQGuideView> guide;
    const std::function<void()> steps = [&] {
        if (step == u"text") {
            if (!engine)
                engine = std::make_unique<QQmlEngine>();
            item = make(*engine, "import QtQuick\nText { text: \"Hello\" }", window.contentItem());
        } else if (step == u"row" && item) {
            QMetaObject::invokeMethod(item.get(), "flick", Q_ARG(double, -2000), Q_ARG(double, 0));
        } else if (step == u"row") {
            item =
                make(*engine, "import TQFoundation\nTQAppView { width: 200; app: TQApp.hazel }", window.contentItem());
        } else if (step == u"guide") {
            guide = TQGuideView::initFromNib(TQApp::hazel.tintColor(), {QStringLiteral("Hello")}, [] {});
            guide->showGuide(&window);
        } else if (step == u"page") {
            const QUrl closedPort(QStringLiteral("http://127.0.0.1:9"));
            ViewController::rootOf(&window)->present(platform().makeInAppBrowser(closedPort));
        } else if (step.endsWith(u"mail")) {
            TQMore::sendFeedbackEmail({}, message);
        } else {
            qFatal("unknown step");
        }
    };
    QTextStream(stdout) << '{';
    measure(application, window, "first", steps);
    const auto root = ViewController::rootOf(&window);
    if (guide)
        guide->setParentItem(nullptr);
    root->dismiss();
    QTextStream(stdout) << ", ";
    measure(application, window, "second", steps);
    QTextStream(stdout) << "}\n";
    QTextStream(stdout).flush();
    std::_Exit(0);
}
