#include "LayerNode.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qrunnable.h>
#include <QtCore/qthread.h>
#include <QtCore/qtimer.h>
#include <QtGui/qmatrix4x4.h>
#include <QtGui/qscreen.h>
#include <QtQuick/qquickwindow.h>

#include <chrono>
#include <cmath>
#include <utility>

namespace TQFoundation {
namespace {

/// The position of a node in the scene.
struct Placement
{
    QMatrix4x4 toScene; // to the coordinates of the window, or of the scene-graph layer around
    bool isInWindow = true;
};

Placement placement(const QSGNode *node)
{
    Placement found;
    for (; node; node = node->parent()) {
        if (node->type() == QSGNode::TransformNodeType)
            found.toScene = static_cast<const QSGTransformNode *>(node)->matrix() * found.toScene;
        if (node->type() == QSGNode::RootNodeType) {
            found.isInWindow = !node->parent();
            break;
        }
    }
    return found;
}

double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

bool isOnGuiThread()
{
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

double refreshRate(const QWindow &window)
{
    return window.screen() ? window.screen()->refreshRate() : 60;
}

} // namespace

LayerNode::LayerNode(QQuickWindow *window, MediaClock mediaTime) : m_window(window), m_mediaTime(std::move(mediaTime))
{
    setFlag(UsePreprocess);
    *m_refreshRate = refreshRate(*window);
    const auto updateRate = [window, rate = m_refreshRate] { *rate = refreshRate(*window); };
    m_connections = {
        QObject::connect(window, &QWindow::screenChanged, window, updateRate),
        QObject::connect(
            window, &QQuickWindow::afterSynchronizing, window, [this] { m_isSynchronized = true; },
            Qt::DirectConnection),
        QObject::connect(
            window, &QQuickWindow::afterRendering, window, [this] { onRendered(); }, Qt::DirectConnection),
        QObject::connect(
            window, &QQuickWindow::frameSwapped, window, [this] { onSwapped(); }, Qt::DirectConnection),
    };
}

LayerNode::~LayerNode()
{
    *m_isTimerPending = false;
    for (const QMetaObject::Connection &connection : m_connections)
        QObject::disconnect(connection);
}

void LayerNode::setLayer(const ShapeLayer &layer)
{
    if (!m_layer || m_layer->path != layer.path || m_layer->lineWidth != layer.lineWidth)
        m_stroke.reset();
    m_layer = layer;
}

void LayerNode::preprocess()
{
    const double scale = m_window->effectiveDevicePixelRatio();
    if (!m_stroke || m_scale != scale) {
        m_scale = scale;
        m_stroke = strokeGeometry(m_layer->path, m_layer->lineWidth);
        updateStroke();
    }
    if (m_isWaiting && !*m_isTimerPending)
        m_pacer.resume(now());
    const Placement place = placement(parent());
    const double time = m_mediaTime();
    updatePresentation(m_layer->presentation(time), place.toScene);
    const Bounds bounds = m_stroke->bounds();
    const QRectF area(QPointF(bounds.left, bounds.top), QPointF(bounds.right, bounds.bottom));
    const bool isSeen =
        !place.isInWindow || place.toScene.mapRect(area).intersects(QRectF(QPointF(), QSizeF(m_window->size())));
    m_needsFrame = isSeen && m_layer->isAnimating(time);
}

// Only after rendering: a change within preprocess() goes unnoticed if the node is drawn into a scene-graph layer.
void LayerNode::onRendered()
{
    m_wasRequested = std::exchange(m_isRequested, false) || (m_isWaiting && !*m_isTimerPending);
    m_isWaiting = false;
    if (!std::exchange(m_needsFrame, false))
        return;
    markDirty(DirtyUsePreprocess); // no other kind leaves the rest of the scene as it is painted
    m_pacer.setRefreshRate(*m_refreshRate);
    double delay = 0;
    if (isOnGuiThread())
        delay = m_pacer.holdBack({now(), true, false});
    else if (m_pacer.yieldsToHost(now()))
        delay = 1.5 * m_pacer.interval();
    m_isRequested = delay <= 0;
    if (m_isRequested)
        m_window->update();
    else
        requestFrameIn(delay);
}

void LayerNode::onSwapped()
{
    if (isOnGuiThread())
        return;
    const bool isSynchronized = std::exchange(m_isSynchronized, false);
    const double held = m_pacer.holdBack({now(), m_wasRequested, isSynchronized});
    if (m_isRequested && held > 0)
        QThread::usleep(static_cast<unsigned long>(held * 1e6));
}

// The render thread has no timers, so the GUI thread's makes it continue, without taking part in the frame if it can.
void LayerNode::requestFrameIn(double seconds)
{
    m_isWaiting = true;
    if (m_isTimerPending->exchange(true))
        return;
    const auto milliseconds = static_cast<int>(std::ceil(1000 * seconds));
    const bool isThreaded = !isOnGuiThread();
    const auto request = [window = m_window, isPending = m_isTimerPending, isThreaded] {
        if (!isPending->exchange(false))
            return;
        const auto update = [window] { window->update(); };
        if (isThreaded && window->isExposed())
            window->scheduleRenderJob(QRunnable::create(update), QQuickWindow::NoStage);
        else
            update();
    };
    QMetaObject::invokeMethod(m_window, [window = m_window, milliseconds, request] {
        QTimer::singleShot(milliseconds, Qt::PreciseTimer, window, request);
    });
}

} // namespace TQFoundation
