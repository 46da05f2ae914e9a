#pragma once

#include "RecordingPlatform.h"
#include "ShapeLayer.h"

#include <TQFoundation/AnimationView.h>

#include <QtGui/qguiapplication.h>
#include <QtGui/qpalette.h>

#include <gtest/gtest.h>

namespace TQFoundation::Testing {

/// Backgrounds on a recording platform.
class BackgroundTest : public ::testing::Test
{
protected:
    static std::shared_ptr<AnimationView> ticking(const Color &color = {})
    {
        const auto view = AnimationView::initWithFrame({});
        view->setColor(color);
        view->createTimer();
        return view;
    }

    // The line that a view draws; copied, because the next tick replaces it.
    static ShapeLayer line(const AnimationView &view)
    {
        EXPECT_TRUE(view.shapeLayer());
        return view.shapeLayer() ? *view.shapeLayer() : ShapeLayer();
    }

    static void setAppearance(QRgb ground, QRgb text)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor::fromRgb(ground));
        palette.setColor(QPalette::WindowText, QColor::fromRgb(text));
        QGuiApplication::setPalette(palette);
    }

    void invalidateTimer(std::size_t index = 0)
    {
        const auto timer = platform->timers.at(index).lock();
        ASSERT_TRUE(timer);
        timer->invalidate();
    }

    InstalledRecordingPlatform platform;
};

} // namespace TQFoundation::Testing
