#pragma once

#include <QtGui/qimage.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qtest.h>

#include <gtest/gtest.h>

#include <atomic>

namespace TQFoundation::Testing {

/// 0 for white, 255 for black.
inline int darkness(const QImage &picture, int x, int y)
{
    return 255 - qGray(picture.pixel(x, y));
}

/// A white window whose frames are counted.
class CountedWindow : public QQuickWindow
{
public:
    explicit CountedWindow(QSize size = {390, 844})
    {
        setColor(Qt::white);
        resize(size);
        connect(
            this, &QQuickWindow::frameSwapped, this, [this] { ++frames; }, Qt::DirectConnection);
        show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(this));
    }

    // Whether frames stop; waits for those under way.
    bool rests()
    {
        return QTest::qWaitFor([this] {
            const int before = frames;
            QTest::qWait(60);
            return frames == before;
        });
    }

    // Whether frames keep coming.
    bool moves()
    {
        const int before = frames;
        return QTest::qWaitFor([&] { return frames > before + 5; });
    }

    std::atomic<int> frames = 0;
};

} // namespace TQFoundation::Testing
