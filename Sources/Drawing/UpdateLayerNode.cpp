#include "UpdateLayerNode.h"

#include "MaskedLayerNode.h"
#include "MeshLayerNode.h"

#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgrendererinterface.h>

namespace TQFoundation {

QSGNode *updateLayerNode(QSGNode *old, QQuickItem *item, const ShapeLayer *layer, const MediaClock &mediaTime)
{
    auto *node = static_cast<LayerNode *>(old);
    if (!layer) {
        delete node;
        return nullptr;
    }
    if (!node) {
        QQuickWindow *window = item->window();
        if (QSGRendererInterface::isApiRhiBased(window->rendererInterface()->graphicsApi()))
            node = new MeshLayerNode(window, mediaTime);
        else
            node = new MaskedLayerNode(window, mediaTime);
    }
    node->setLayer(*layer);
    return node;
}

} // namespace TQFoundation
