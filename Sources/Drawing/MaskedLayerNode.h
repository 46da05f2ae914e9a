#pragma once

#include "LayerNode.h"
#include "StrokeMask.h"

#include <QtGui/qmatrix4x4.h>
#include <QtQuick/qsgrendernode.h>

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace TQFoundation {

/// Draws a layer on the software backend, which draws no custom geometry: one render node per tile of a coverage mask.
/// Only tiles that changed are painted again, unless the colour or opacity did.
class MaskedLayerNode final : public LayerNode
{
public:
    MaskedLayerNode(QQuickWindow *window, MediaClock mediaTime);
    ~MaskedLayerNode() override;

protected:
    void updateStroke() override { m_isMaskCurrent = false; }
    void updatePresentation(const Presentation &presentation, const QMatrix4x4 &toScene) override;

private:
    class TileNode;

    void clear();
    void resetMask(const QMatrix4x4 &toScene);
    bool updateColors(const Rgba &color, double opacity);
    void paint(const StrokeMask::Tile &tile, const QSGRenderNode::RenderState &state, double opacity);

    bool m_isMaskCurrent = false;
    QMatrix4x4 m_toScene;
    StrokeMask m_mask;
    Rgba m_color;
    double m_opacity = -1;
    StrokeMask::Colors m_colors{};
    std::unordered_map<std::uint64_t, std::unique_ptr<TileNode>> m_nodes;
    std::vector<std::uint32_t> m_pixels; // of the tile that is being painted
};

} // namespace TQFoundation
