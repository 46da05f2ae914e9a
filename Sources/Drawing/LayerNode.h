#pragma once

#include "FramePacer.h"
#include "ShapeLayer.h"
#include "StrokeGeometry.h"

#include <QtCore/qobject.h>
#include <QtQuick/qsgnode.h>

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>

class QMatrix4x4;
class QQuickWindow;

namespace TQFoundation {

/// Media time in seconds, in which the animations of a layer are given. Any thread.
using MediaClock = std::function<double()>;

/// Scene-graph node that draws one layer and advances it by itself, frame by frame on the render thread.
///
/// It asks its window for the next frame as long as an animation of the layer has not ended, paced by FramePacer.
/// Nothing runs while the item is hidden, transparent or outside its window. A subclass draws on one kind of backend
/// and may set the node's matrix. Lives on the render thread, like every node.
class LayerNode : public QSGTransformNode
{
public:
    /// \a window shows the node until the node is destroyed; \a mediaTime is called in each frame.
    LayerNode(QQuickWindow *window, MediaClock mediaTime);
    ~LayerNode() override;

    /// Copies the layer. Call during synchronisation (GUI thread blocked).
    void setLayer(const ShapeLayer &layer);

    void preprocess() override;

protected:
    /// The stroke or the device pixel ratio is another one.
    virtual void updateStroke() = 0;

    /// Prepares the node for drawing \a presentation. \a toScene maps the node's coordinates to those of the window,
    /// or of the scene-graph layer that it is drawn into.
    virtual void updatePresentation(const Presentation &presentation, const QMatrix4x4 &toScene) = 0;

    QQuickWindow *window() const { return m_window; }
    const ShapeLayer &layer() const { return *m_layer; }
    const StrokeGeometry &stroke() const { return *m_stroke; }
    /// Pixels per point.
    double scale() const { return m_scale; }

private:
    void onRendered();
    void onSwapped();
    void requestFrameIn(double seconds);

    QQuickWindow *const m_window;
    const MediaClock m_mediaTime;
    std::optional<ShapeLayer> m_layer;
    std::optional<StrokeGeometry> m_stroke;
    double m_scale = 1;

    FramePacer m_pacer;
    // Shared with callbacks on the GUI thread that may outlive the node.
    const std::shared_ptr<std::atomic<double>> m_refreshRate = std::make_shared<std::atomic<double>>(60);
    const std::shared_ptr<std::atomic<bool>> m_isTimerPending = std::make_shared<std::atomic<bool>>(false);
    bool m_needsFrame = false; // after the frame that is being rendered
    bool m_isRequested = false; // whether the next frame was asked for at once
    bool m_wasRequested = false; // whether the frame that is being rendered was asked for
    bool m_isWaiting = false; // whether the next frame was asked for by a timer
    bool m_isSynchronized = false; // whether the GUI thread took part in this frame
    std::array<QMetaObject::Connection, 4> m_connections;
};

} // namespace TQFoundation
