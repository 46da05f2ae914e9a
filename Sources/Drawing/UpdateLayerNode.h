#pragma once

#include "LayerNode.h"

class QQuickItem;

namespace TQFoundation {

/// Draws \a layer, or nothing for null, in points from the origin of \a item, also beyond its size.
///
/// For QQuickItem::updatePaintNode(): returns a new node or \a old updated; the scene graph owns it. \a mediaTime is
/// valid as long as the node. Call during synchronisation (GUI thread blocked).
QSGNode *updateLayerNode(QSGNode *old, QQuickItem *item, const ShapeLayer *layer, const MediaClock &mediaTime);

} // namespace TQFoundation
