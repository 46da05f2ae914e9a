#pragma once

#include <functional>

class QQuickItem;
class QSGNode;

namespace TQFoundation {

class ShapeLayer;

/// Media time in seconds, as the animations of a layer count it. Any thread.
using MediaClock = std::function<double()>;

/// Draws \a layer, or nothing for null: what `QQuickItem::updatePaintNode()` of \a item returns, made anew or \a old
/// updated. It is drawn in points from the item's origin, beyond the item's size too.
///
/// From then on the node follows the media time by itself, frame by frame in the scene graph's thread, until nothing of
/// the layer changes any more. Nothing runs while the item is hidden, transparent or outside its window. \a mediaTime
/// outlives the node. Thread of the scene graph, while the main thread waits.
QSGNode *updateLayerNode(QSGNode *old, QQuickItem *item, const ShapeLayer *layer, const MediaClock &mediaTime);

} // namespace TQFoundation
