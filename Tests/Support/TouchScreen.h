#pragma once

#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qtest.h>

namespace TQFoundation::Testing {

/// One finger on a touch screen. Its events take the same way as those of a real screen.
class TouchScreen
{
public:
    /// Touches the middle of \a item.
    void tap(const QQuickItem *item) const
    {
        const QPoint middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
        drag(item->window(), middle, middle);
    }

    /// Touches \a window at \a from and moves to \a to in steps of at most 10 points.
    void drag(QWindow *window, QPoint from, QPoint to) const
    {
        const int steps = ((to - from).manhattanLength() + 9) / 10;
        QTest::touchEvent(window, m_device).press(0, from, window);
        for (int step = 1; step <= steps; ++step)
            QTest::touchEvent(window, m_device).move(0, from + (to - from) * step / steps, window);
        QTest::touchEvent(window, m_device).release(0, to, window);
    }

private:
    QPointingDevice *m_device = QTest::createTouchDevice(); // never deleted by Qt Test
};

} // namespace TQFoundation::Testing
