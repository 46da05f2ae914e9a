#include "LayerNode.h"

#include <QtQuick/qsgnode.h>

namespace TQFoundation {

QSGNode *updateLayerNode(QSGNode *old, QQuickItem *, const ShapeLayer *)
{
    delete old;
    return nullptr;
}

} // namespace TQFoundation
