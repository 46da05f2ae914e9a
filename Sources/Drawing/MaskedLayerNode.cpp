#include "MaskedLayerNode.h"

#include <QtGui/qimage.h>
#include <QtGui/qpainter.h>
#include <QtQuick/qquickwindow.h>

#include <cmath>
#include <utility>

namespace TQFoundation {

/// Render node of one tile. The map that finds it by its place owns it.
class MaskedLayerNode::TileNode final : public QSGRenderNode
{
public:
    TileNode(MaskedLayerNode &layer, const StrokeMask::Tile &tile) : m_layer(layer), m_tile(tile)
    {
        setFlag(OwnedByParent, false);
    }

    RenderingFlags flags() const override { return BoundedRectRendering; }

    // Slightly smaller, because the renderer rounds up and must not reach into the next tile.
    QRectF rect() const override
    {
        const double scale = m_layer.m_mask.scale();
        return QRectF(m_tile.left / scale, m_tile.top / scale, m_tile.width / scale, m_tile.height / scale)
            .adjusted(0.01, 0.01, -0.01, -0.01);
    }

    void render(const RenderState *state) override { m_layer.paint(m_tile, *state, inheritedOpacity()); }

private:
    MaskedLayerNode &m_layer;
    const StrokeMask::Tile &m_tile;
};

MaskedLayerNode::MaskedLayerNode(QQuickWindow *window, MediaClock mediaTime) : LayerNode(window, std::move(mediaTime))
{}

MaskedLayerNode::~MaskedLayerNode()
{
    clear();
}

void MaskedLayerNode::updatePresentation(const Presentation &presentation, const QMatrix4x4 &toScene)
{
    const double end = presentation.strokeEnd * stroke().length;
    if (!m_isMaskCurrent || m_toScene != toScene || end < m_mask.drawnLength())
        resetMask(toScene);
    const bool isRecolored = updateColors(layer().strokeColor, presentation.opacity);
    m_mask.drawUpTo(end);
    for (auto &[place, tile] : m_mask.tiles()) {
        std::unique_ptr<TileNode> &node = m_nodes[place];
        if (!node) {
            node = std::make_unique<TileNode>(*this, tile);
            appendChildNode(node.get());
        } else if (tile.isChanged || isRecolored) {
            node->markDirty(DirtyMaterial);
        }
        tile.isChanged = false;
    }
}

void MaskedLayerNode::clear()
{
    removeAllChildNodes();
    m_nodes.clear();
    m_mask = {};
}

void MaskedLayerNode::resetMask(const QMatrix4x4 &toScene)
{
    clear();
    m_isMaskCurrent = true;
    m_toScene = toScene;
    bool isInvertible = false;
    // Tiles are aligned to the pixels of the window.
    setMatrix(toScene.inverted(&isInvertible));
    if (!isInvertible)
        return;
    StrokeGeometry inPixels = stroke();
    for (StrokePart &part : inPixels.parts) {
        for (Point &corner : part.corners) {
            const QPointF pixel = toScene.map(QPointF(corner.x, corner.y)) * scale();
            corner = {pixel.x(), pixel.y()};
        }
    }
    m_mask = StrokeMask(std::move(inPixels), scale());
}

bool MaskedLayerNode::updateColors(const Rgba &color, double opacity)
{
    if (m_color == color && m_opacity == opacity)
        return false;
    m_color = color;
    m_opacity = opacity;
    for (int covered = 0; covered <= StrokeMask::samples; ++covered) {
        const double alpha = opacity * static_cast<double>(color.alpha) * covered / StrokeMask::samples;
        const auto byte = [&](float part) {
            return static_cast<int>(std::lround(255 * alpha * static_cast<double>(part)));
        };
        m_colors[static_cast<std::size_t>(covered)] =
            qRgba(byte(color.red), byte(color.green), byte(color.blue), byte(1));
    }
    return true;
}

void MaskedLayerNode::paint(const StrokeMask::Tile &tile, const QSGRenderNode::RenderState &state, double opacity)
{
    auto *painter = static_cast<QPainter *>(
        window()->rendererInterface()->getResource(window(), QSGRendererInterface::PainterResource));
    painter->setWorldTransform({});
    m_pixels.assign(static_cast<std::size_t>(tile.width) * static_cast<std::size_t>(tile.height), 0);
    m_mask.paint(tile, m_colors, m_pixels.data(), tile.width);
    QImage image(reinterpret_cast<const uchar *>(m_pixels.data()), tile.width, tile.height, qsizetype{4} * tile.width,
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(m_mask.scale());
    painter->setClipRegion(*state.clipRegion(), Qt::ReplaceClip);
    painter->setOpacity(opacity);
    painter->drawImage(QPointF(tile.left, tile.top) / m_mask.scale(), image);
}

} // namespace TQFoundation
