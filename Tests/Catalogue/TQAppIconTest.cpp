#include "QmlWindow.h"
#include "RecordingPlatform.h"

#include <TQFoundation/TQApp.h>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::QmlWindow;

TEST(TQAppIcon, ShowsTheIconOfAnyApp)
{
    const InstalledRecordingPlatform platform;
    const QmlWindow host("TQAppIcon { property int changes: 0; property var seen: app\n"
                         "app: TQApp.birch; onAppChanged: ++changes }");
    EXPECT_EQ(host.item->size(), QSizeF(36, 36));
    EXPECT_FALSE(host.item->property("empty").toBool());
    const auto picture = [&] { return const_cast<QQuickWindow &>(host.window).grabWindow(); };
    const QImage birch = picture();
    const int changes = host.item->property("changes").toInt();
    host.item->setProperty("app", QVariant::fromValue(TQApp(TQApp::birch)));
    EXPECT_EQ(host.item->property("changes"), QVariant(changes));
    host.item->setProperty("app", QVariant::fromValue(TQApp(TQApp::fir)));
    EXPECT_EQ(host.item->property("changes"), QVariant(changes + 1));
    EXPECT_EQ(host.item->property("seen").value<TQApp>(), TQApp::fir) << "bindings follow";
    EXPECT_NE(picture(), birch);
}

TEST(TQAppIcon, IsEmptyWithoutAnImage)
{
    const InstalledRecordingPlatform platform;
    platform->scale = 0;
    const QmlWindow host("TQAppIcon { app: TQApp.birch }");
    EXPECT_TRUE(host.item->property("empty").toBool());
}

TEST(TQAppIcon, HasAUrlForImages)
{
    const InstalledRecordingPlatform platform;
    const QmlWindow host("Image { source: TQApp.birch.iconUrl; sourceSize: Qt.size(36, 36) }");
    EXPECT_EQ(host.item->property("status").toInt(), 1) << "Image.Ready";
    EXPECT_EQ(host.item->size(), QSizeF(36, 36));
    platform->root = QStringLiteral("/elsewhere");
    EXPECT_EQ(TQApp::birch.iconUrl(), QUrl(QStringLiteral("file:///elsewhere/Icons/birch.png")));
}

} // namespace
} // namespace TQFoundation
