#include "Pictures.h"

#include "PicturePlatform.h"
#include "StartSheet.h"

#include <TQFoundation/TQGuideView.h>
#include <TQFoundation/TQMore.h>

#include <QtCore/qcoreapplication.h>
#include <QtCore/qdir.h>
#include <QtCore/qeventloop.h>
#include <QtCore/qtextstream.h>
#include <QtCore/qtimer.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>
#include <array>
#include <utility>

using namespace TQFoundation;

namespace {

TQGuideView *guideIn(const QQuickWindow &window)
{
    const QList<QQuickItem *> items = window.contentItem()->childItems();
    const auto guide = std::ranges::find_if(items, [](QQuickItem *item) { return qobject_cast<TQGuideView *>(item); });
    return guide == items.end() ? nullptr : static_cast<TQGuideView *>(*guide);
}

bool write(QQuickWindow *window, const QString &folder, const QString &name)
{
    QCoreApplication::processEvents();
    const QString path = QDir(folder).filePath(name + u".png");
    if (!QDir().mkpath(folder) || !window->grabWindow().save(path)) {
        QTextStream(stderr) << "Grove: cannot write " << path << '\n';
        return false;
    }
    QTextStream(stdout) << QDir(path).absolutePath() << '\n';
    return true;
}

void waitForFadeIn(const QQuickItem &guide)
{
    while (guide.opacity() < 1)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// Long enough for the sheet to slide in and, in the browser, for a local page to load.
bool openSheet(const Options &options)
{
    const auto below = TQMore::topViewController();
    presentStartSheet(options);
    QEventLoop loop;
    QTimer::singleShot(options.compose ? 500 : 3000, &loop, &QEventLoop::quit);
    loop.exec();
    if (TQMore::topViewController() != below)
        return true;
    QTextStream(stderr) << "Grove: the sheet cannot be shown\n";
    return false;
}

bool takeScreens(QQuickWindow *window, const Options &options)
{
    if (QQuickItem *guide = guideIn(*window)) {
        waitForFadeIn(*guide);
        if (!write(window, options.shots, QStringLiteral("guide")))
            return false;
        guide->setParentItem(nullptr);
    }
    for (const QString &screen : {QStringLiteral("home"), QStringLiteral("more")}) {
        window->setProperty("screenName", screen);
        if (!write(window, options.shots, screen))
            return false;
    }
    return !options.hasStartSheet() || (openSheet(options) && write(window, options.shots, QStringLiteral("sheet")));
}

// Either a whole cycle in even steps, or four moments: fading in, half drawn, complete, fading out.
bool takeBackground(QQuickWindow *window, const Options &options)
{
    const auto takeAt = [&](double seconds, const QString &name) {
        static_cast<PicturePlatform &>(platform()).now = seconds;
        window->update();
        return write(window, options.shots, u"background-" + name);
    };
    for (int frame = 0; frame < options.frames; ++frame) {
        if (!takeAt(10.0 * frame / options.frames, QStringLiteral("%1").arg(frame, 3, 10, QLatin1Char('0'))))
            return false;
    }
    return options.frames > 0 || std::ranges::all_of(std::array{0.5, 4.5, 9.1, 9.9}, [&](double seconds) {
               return takeAt(seconds, QString::number(seconds));
           });
}

} // namespace

bool Pictures::take(QQuickWindow *window, const Options &options)
{
    return options.backgroundOnly ? takeBackground(window, options) : takeScreens(window, options);
}
