#pragma once

#include "LayerNode.h"
#include "StrokeMaterial.h"
#include "StrokeMesh.h"

#include <QtQuick/qsggeometry.h>

#include <optional>

namespace TQFoundation {

/// Draws a layer on the GPU. Each frame updates two uniforms. The mesh is uploaded in stretches, shortly before the pen
/// reaches them, because triangles that show nothing yet cost as much to draw as others.
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

        /// Replaces the triangles by those that begin before an arc length of \a length; indices have 16 bits if that
        /// suffices.
        template <typename Vertex>
        void setTriangles(const std::vector<Vertex> &vertices, const std::vector<std::uint32_t> &indices,
                          double length);

        bool isEmpty() const { return m_geometry->indexCount() == 0; }

        StrokeMaterial material;

    private:
        const QSGGeometry::AttributeSet &m_attributes;
        std::optional<QSGGeometry> m_geometry;
    };

    void upload(double length);
    static const QSGGeometry::AttributeSet &bandAttributes();
    static const QSGGeometry::AttributeSet &squareAttributes();

    StrokeMesh m_mesh;
    double m_uploadedLength = 0; // arc length before which all triangles are uploaded
    TrianglesNode m_band{StrokeMaterial::Kind::band, bandAttributes()};
    TrianglesNode m_squares{StrokeMaterial::Kind::square, squareAttributes()};
};

} // namespace TQFoundation
