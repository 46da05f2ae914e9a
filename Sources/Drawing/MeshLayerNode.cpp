#include "MeshLayerNode.h"

#include <algorithm>
#include <array>
#include <span>

namespace TQFoundation {
namespace {

float firstReached(const StrokeMesh::BandVertex &vertex)
{
    return vertex.length;
}

float firstReached(const StrokeMesh::SquareVertex &vertex)
{
    return std::ranges::min(vertex.length);
}

} // namespace

MeshLayerNode::TrianglesNode::TrianglesNode(StrokeMaterial::Kind kind, const QSGGeometry::AttributeSet &attributes)
    : material(kind),
      m_attributes(attributes)
{
    setMaterial(&material);
    setFlag(OwnedByParent, false);
}

template <typename Vertex>
void MeshLayerNode::TrianglesNode::setTriangles(const std::vector<Vertex> &vertices,
                                                const std::vector<std::uint32_t> &indices, double length)
{
    const auto isReached = [&](std::uint32_t index) { return firstReached(vertices[index]) < length; };
    std::vector<std::uint32_t> reached;
    for (std::span rest(indices); !rest.empty(); rest = rest.subspan(3)) {
        const auto triangle = rest.first(3);
        if (std::ranges::any_of(triangle, isReached))
            reached.insert(reached.end(), triangle.begin(), triangle.end());
    }
    const bool isSmall = vertices.size() <= 0xffff;
    m_geometry.emplace(m_attributes, static_cast<int>(vertices.size()), static_cast<int>(reached.size()),
                       isSmall ? QSGGeometry::UnsignedShortType : QSGGeometry::UnsignedIntType);
    m_geometry->setDrawingMode(QSGGeometry::DrawTriangles);
    std::ranges::copy(vertices, static_cast<Vertex *>(m_geometry->vertexData()));
    if (isSmall)
        std::ranges::transform(reached, m_geometry->indexDataAsUShort(),
                               [](std::uint32_t index) { return static_cast<quint16>(index); });
    else
        std::ranges::copy(reached, m_geometry->indexDataAsUInt());
    setGeometry(&*m_geometry);
}

const QSGGeometry::AttributeSet &MeshLayerNode::bandAttributes()
{
    static const std::array attributes{QSGGeometry::Attribute::create(0, 2, QSGGeometry::FloatType, true),
                                       QSGGeometry::Attribute::create(1, 3, QSGGeometry::FloatType)};
    static const QSGGeometry::AttributeSet set{attributes.size(), sizeof(StrokeMesh::BandVertex), attributes.data()};
    return set;
}

const QSGGeometry::AttributeSet &MeshLayerNode::squareAttributes()
{
    static const std::array attributes = [] {
        std::array<QSGGeometry::Attribute, 8> vectors;
        for (int k = 0; k < 8; ++k)
            vectors[static_cast<std::size_t>(k)] = QSGGeometry::Attribute::create(k, 4, QSGGeometry::FloatType, k == 0);
        return vectors;
    }();
    static const QSGGeometry::AttributeSet set{attributes.size(), sizeof(StrokeMesh::SquareVertex), attributes.data()};
    return set;
}

void MeshLayerNode::updateStroke()
{
    m_mesh = strokeMesh(stroke(), scale());
    m_uploadedLength = 0;
}

void MeshLayerNode::upload(double length)
{
    m_uploadedLength = length;
    m_band.setTriangles(m_mesh.band, m_mesh.bandIndices, length);
    m_squares.setTriangles(m_mesh.squares, m_mesh.squareIndices, length);
    for (TrianglesNode *node : {&m_band, &m_squares}) {
        // Only if it has to: a node that comes or goes makes the renderer sort the whole scene again.
        if (node->isEmpty() && node->parent())
            removeChildNode(node);
        else if (!node->isEmpty() && !node->parent())
            appendChildNode(node);
    }
}

void MeshLayerNode::updatePresentation(const Presentation &presentation, const QMatrix4x4 &)
{
    const Rgba &color = layer().strokeColor;
    const float alpha = color.alpha * static_cast<float>(presentation.opacity);
    // A complete line ends beyond its length, so that no pixel of it is lost to rounding.
    const double length = stroke().length;
    const double end = presentation.strokeEnd >= 1 ? 2 * length + 1 : presentation.strokeEnd * length;
    // A pixel shows a part from half a pixel before its start.
    if (end + 1 > m_uploadedLength)
        upload(end + 1 + length / 32);
    for (TrianglesNode *node : {&m_band, &m_squares}) {
        node->material.color = QVector4D(color.red * alpha, color.green * alpha, color.blue * alpha, alpha);
        node->material.end = static_cast<float>(end);
    }
}

} // namespace TQFoundation
