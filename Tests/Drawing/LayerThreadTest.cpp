#include "CountedWindow.h"
#include "LayerItem.h"
#include "StrokeReference.h"

#include <QtCore/qabstracteventdispatcher.h>
#include <QtCore/qelapsedtimer.h>
#include <QtCore/qeventloop.h>
#include <QtCore/qtimer.h>
#include <QtGui/qscreen.h>

#include <memory>

namespace TQFoundation {
namespace {

using Testing::CountedWindow;
using Testing::LayerItem;

/// A layer that follows the real clock, drawn on a render thread.
class LayerInItsOwnThread : public testing::Test
{
protected:
    void SetUp() override
    {
        if (qEnvironmentVariable("QSG_RENDER_LOOP") != u"threaded")
            GTEST_SKIP() << "needs the threaded render loop";
        window = std::make_unique<CountedWindow>();
        item = std::make_unique<LayerItem>(window->contentItem());
    }

    // The software backend's thread may sleep for ever where its window goes in the middle of a frame.
    void TearDown() override
    {
        item.reset();
        EXPECT_TRUE(!window || window->rests());
    }

    // Wake-ups of the GUI thread within that time, without the one at its end.
    static int wakeUpsWithin(int milliseconds)
    {
        int wakeUps = 0;
        const auto counting = QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                                               [&] { ++wakeUps; });
        QEventLoop loop;
        QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
        QObject::disconnect(counting);
        return wakeUps - 1;
    }

    ShapeLayer layer(double duration)
    {
        ShapeLayer made;
        made.path = Testing::randomPath(random);
        made.lineWidth = 2;
        made.addAnimation({BasicAnimation::KeyPath::strokeEnd, 0, 1, duration, {}, {}}, platform().mediaTime());
        return made;
    }

    std::mt19937_64 random{14};
    std::unique_ptr<CountedWindow> window;
    std::unique_ptr<LayerItem> item;
};

TEST_F(LayerInItsOwnThread, LeavesTheGuiThreadAsleep)
{
    item->setLayer(layer(100));
    ASSERT_TRUE(window->moves());
    const int before = window->frames;
    EXPECT_LE(wakeUpsWithin(1500), 2);
    EXPECT_GE(window->frames - before, 20);
}

TEST_F(LayerInItsOwnThread, DrawsNoFasterThanTheRefreshRate)
{
    item->setLayer(layer(100));
    ASSERT_TRUE(window->moves());
    QElapsedTimer clock;
    clock.start();
    const int before = window->frames;
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->frames >= before + 50; }));
    EXPECT_GE(static_cast<double>(clock.elapsed()), 0.6 * 50'000 / window->screen()->refreshRate());
}

TEST_F(LayerInItsOwnThread, DrawsThroughAStandstillWithoutTheGuiThread)
{
    ShapeLayer standing = layer(0.1);
    const double now = platform().mediaTime();
    standing.addAnimation({BasicAnimation::KeyPath::opacity, 1, 0, 0.2, now + 0.6, {}}, now);
    item->setLayer(standing);
    QTest::qWait(200);
    const int before = window->frames;
    EXPECT_LE(wakeUpsWithin(300), 1);
    EXPECT_GE(window->frames - before, 5);
    EXPECT_TRUE(window->rests());
}

// No test of speed: without a brake a hundred frames take a twentieth of this time.
TEST_F(LayerInItsOwnThread, SlowsNoHostWithAStillLayer)
{
    if (window->rendererInterface()->graphicsApi() == QSGRendererInterface::Software)
        GTEST_SKIP() << "the toolkit itself slows down the software backend's thread";
    ShapeLayer still;
    still.path = Testing::randomPath(random);
    item->setLayer(still);
    std::atomic<bool> draws = true;
    const auto drawing = QObject::connect(
        window.get(), &QQuickWindow::frameSwapped, window.get(),
        [&] {
            if (draws)
                window->update();
        },
        Qt::DirectConnection);
    ASSERT_TRUE(window->moves());
    QElapsedTimer clock;
    clock.start();
    const int before = window->frames;
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->frames >= before + 100; }));
    EXPECT_LT(static_cast<double>(clock.elapsed()), 0.6 * 100'000 / window->screen()->refreshRate());
    draws = false;
    QObject::disconnect(drawing);
}

TEST_F(LayerInItsOwnThread, SurvivesHidingMovingAndSceneGraphLoss)
{
    CountedWindow other;
    window->setPersistentSceneGraph(false);
    window->setPersistentGraphics(false);
    item->setLayer(layer(100));
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(window->moves());
        item->setVisible(false);
        EXPECT_TRUE(window->rests());
        item->setVisible(true);
        EXPECT_TRUE(window->moves());
        window->hide();
        window->releaseResources();
        QCoreApplication::processEvents();
        window->show();
        EXPECT_TRUE(window->moves());
        item->setParentItem(other.contentItem());
        EXPECT_TRUE(other.moves());
        EXPECT_TRUE(window->rests());
        item->setParentItem(window->contentItem());
    }
    EXPECT_TRUE(other.rests());
}

} // namespace
} // namespace TQFoundation
