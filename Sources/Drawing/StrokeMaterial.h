#pragma once

#include <QtGui/qvector4d.h>
#include <QtQuick/qsgmaterial.h>

namespace TQFoundation {

/// Material of the triangles of a StrokeMesh: its shaders cut them at the stroke end and compute their coverage.
class StrokeMaterial final : public QSGMaterial
{
public:
    /// Which triangles it paints.
    enum class Kind { band, square };

    explicit StrokeMaterial(Kind kind);

    QVector4D color; ///< Uniform: premultiplied sRGB.
    float end = 0; ///< Uniform: the arc length that is drawn, in points.

    QSGMaterialType *type() const override;
    QSGMaterialShader *createShader(QSGRendererInterface::RenderMode mode) const override;

private:
    class Shader;

    Kind m_kind;
};

} // namespace TQFoundation
