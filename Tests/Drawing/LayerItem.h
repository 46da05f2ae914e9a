#pragma once

#include "ShapeLayer.h"
#include "UpdateLayerNode.h"

#include <TQFoundation/Platform.h>

#include <QtQuick/qquickitem.h>

#include <optional>

namespace TQFoundation::Testing {

/// An item that shows one layer.
class LayerItem : public QQuickItem
{
public:
    explicit LayerItem(QQuickItem *parent = nullptr) : QQuickItem(parent) { setFlag(ItemHasContents); }

    void setLayer(std::optional<ShapeLayer> layer)
    {
        m_layer = std::move(layer);
        update();
    }

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override
    {
        return updateLayerNode(node, this, m_layer ? &*m_layer : nullptr, [] { return platform().mediaTime(); });
    }

private:
    std::optional<ShapeLayer> m_layer;
};

/// A layer with the animations of the background, which begin at the media time \a now: it fades in for a second, draws
/// itself for nine, stands still, and fades out from 9.2 to 10.2 seconds.
inline ShapeLayer driftingLayer(const Path &path, double now, Rgba color = {0, 0, 0, 0.2F})
{
    ShapeLayer layer;
    layer.path = path;
    layer.lineWidth = 2;
    layer.strokeColor = color;
    using KeyPath = BasicAnimation::KeyPath;
    layer.addAnimation({KeyPath::opacity, 0, 1, 1, {}, {}}, now);
    layer.addAnimation({KeyPath::strokeEnd, 0, 1, 9, {}, {}}, now);
    layer.addAnimation({KeyPath::opacity, 1, 0, 1, now + 9.2, {}}, now);
    return layer;
}

} // namespace TQFoundation::Testing
