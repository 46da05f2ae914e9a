#pragma once

#include "LayerNode.h"
#include "StrokeMaterial.h"

#include <QtQuick/qsggeometry.h>

#include <optional>

namespace TQFoundation {

/// Draws a layer on the GPU: the mesh is uploaded once per stroke, and each frame updates two uniforms.
class MeshLayerNode final : public LayerNode
{
public:
    using LayerNode::LayerNode;
    ~MeshLayerNode() override { removeAllChildNodes(); }

protected:
    void updateStroke() override;
    void updatePresentation(const Presentation &presentation, const QMatrix4x4 &toScene) override;

private:
    /// The triangles of a mesh that share a material. A member of the layer's node, which does not own it.
    class TrianglesNode final : public QSGGeometryNode
    {
    public:
        TrianglesNode(StrokeMaterial::Kind kind, const QSGGeometry::AttributeSet &attributes);

        /// Replaces the triangles; indices have 16 bits if that suffices.
        template <typename Vertex>
        void setTriangles(const std::vector<Vertex> &vertices, const std::vector<std::uint32_t> &indices);

        StrokeMaterial material;

    private:
        const QSGGeometry::AttributeSet &m_attributes;
        std::optional<QSGGeometry> m_geometry;
    };

    static const QSGGeometry::AttributeSet &bandAttributes();
    static const QSGGeometry::AttributeSet &squareAttributes();

    TrianglesNode m_band{StrokeMaterial::Kind::band, bandAttributes()};
    TrianglesNode m_squares{StrokeMaterial::Kind::square, squareAttributes()};
};

} // namespace TQFoundation
