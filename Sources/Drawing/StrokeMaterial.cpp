#include "StrokeMaterial.h"

#include <QtCore/qstring.h>
#include <QtQuick/qsgmaterialshader.h>

#include <array>
#include <cstring>

namespace TQFoundation {

class StrokeMaterial::Shader final : public QSGMaterialShader
{
public:
    explicit Shader(Kind kind)
    {
        const QString file = QStringLiteral(":/qt-project.org/imports/TQFoundation/Shaders/")
            + (kind == Kind::band ? QStringLiteral("band") : QStringLiteral("square"));
        setShaderFileName(VertexStage, file + QStringLiteral(".vert.qsb"));
        setShaderFileName(FragmentStage, file + QStringLiteral(".frag.qsb"));
    }

    bool updateUniformData(RenderState &state, QSGMaterial *newMaterial, QSGMaterial *) override
    {
        const auto &material = *static_cast<StrokeMaterial *>(newMaterial);
        const QVector4D seen = material.color * state.opacity();
        char *data = state.uniformData()->data();
        if (state.isMatrixDirty())
            std::memcpy(data, state.combinedMatrix().constData(), 64);
        std::memcpy(data + 64, &seen, 16);
        std::memcpy(data + 80, &material.end, 4);
        return true;
    }
};

StrokeMaterial::StrokeMaterial(Kind kind) : m_kind(kind)
{
    // Keeps the renderer from merging it with other nodes, which would transform the vertices on the CPU.
    setFlag(Blending | RequiresFullMatrix);
}

QSGMaterialType *StrokeMaterial::type() const
{
    static std::array<QSGMaterialType, 2> types;
    return &types[static_cast<std::size_t>(m_kind)];
}

QSGMaterialShader *StrokeMaterial::createShader(QSGRendererInterface::RenderMode) const
{
    return new Shader(m_kind);
}

} // namespace TQFoundation
