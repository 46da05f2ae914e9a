#pragma once

class QQuickItem;
class QSGNode;

namespace TQFoundation {

class ShapeLayer;

/// Draws a layer; returns the node, made anew or updated. Called while the main thread waits. A null layer: nothing is
/// drawn.
QSGNode *updateLayerNode(QSGNode *old, QQuickItem *item, const ShapeLayer *layer);

} // namespace TQFoundation
