#include "AnimationClock.h"
#include "Pictures.h"
#include "QmlWindow.h"
#include "RecordingPlatform.h"

namespace TQFoundation {
namespace {

using Testing::expectPicture;
using Testing::QmlWindow;

class RowPictures : public testing::Test
{
protected:
    Testing::InstalledRecordingPlatform platform;
    Testing::AnimationClock clock;
};

TEST_F(RowPictures, OfAScrolledRow)
{
    QmlWindow host("TQAppView { width: 260; app: TQApp.hazel }", {260, 60});
    expectPicture(host.window, "row");
    QTest::keyClick(&host.window, Qt::Key_Tab);
    QTest::keyClick(&host.window, Qt::Key_Right);
    clock.pass(50);
    expectPicture(host.window, "row-scrolls");
    QTest::keyClick(&host.window, Qt::Key_End);
    clock.pass(1000);
    expectPicture(host.window, "row-end");
}

TEST_F(RowPictures, FromRightToLeft)
{
    QmlWindow host("Item { LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true\n"
                   "TQAppView { width: 320; app: TQApp.birch; focus: true } }",
                   {320, 60});
    expectPicture(host.window, "row-mirrored");
}

} // namespace
} // namespace TQFoundation
