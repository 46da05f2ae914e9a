#include "QmlValue.h"
#include "RecordingPlatform.h"

#include <TQFoundation/Color.h>

namespace TQFoundation {
namespace {

using Testing::InstalledRecordingPlatform;
using Testing::qmlValue;

TEST(QmlColor, ResolvesForLightAndDark)
{
    const InstalledRecordingPlatform platform;
    EXPECT_EQ(qmlValue("color", "TQApp.hazel.tintColor.light").value<QColor>(), QColor(Qt::black));
    EXPECT_EQ(qmlValue("color", "TQApp.hazel.tintColor.dark").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(qmlValue("color", "TQApp.hazel.tintColor.resolved(true)").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(qmlValue("color", "TQApp.birch.tintColor.resolved(false)").value<QColor>().rgb(), qRgb(148, 23, 81));
    EXPECT_EQ(qmlValue("tqColor", "TQApp.fir.tintColor").value<Color>(), Color::systemGray());
}

} // namespace
} // namespace TQFoundation
