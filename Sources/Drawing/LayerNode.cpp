#include "LayerNode.h"

#include "ShapeLayer.h"
#include "StrokeGeometry.h"
#include "StrokeMask.h"
#include "StrokeMesh.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qrunnable.h>
#include <QtCore/qthread.h>
#include <QtCore/qtimer.h>
#include <QtGui/qimage.h>
#include <QtGui/qpainter.h>
#include <QtGui/qscreen.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsggeometry.h>
#include <QtQuick/qsgmaterial.h>
#include <QtQuick/qsgmaterialshader.h>
#include <QtQuick/qsgrendernode.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <unordered_map>
#include <utility>

namespace TQFoundation {
namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

// How long the toolkit itself puts off an update that the main thread asks for.
constexpr Seconds updateDelay = std::chrono::milliseconds(5);

/// Where a node lies.
struct Placement
{
    QMatrix4x4 toScene; ///< From the node's coordinates to those of the window, or of the layer that it is drawn into.
    bool isInWindow = true; ///< Whether it is drawn into the window itself.
};

Placement placement(const QSGNode *node)
{
    Placement found;
    for (; node; node = node->parent()) {
        if (node->type() == QSGNode::TransformNodeType)
            found.toScene = static_cast<const QSGTransformNode *>(node)->matrix() * found.toScene;
        if (node->type() == QSGNode::RootNodeType) {
            found.isInWindow = !node->parent();
            break;
        }
    }
    return found;
}

QRectF bounds(const StrokeGeometry &stroke)
{
    QRectF all;
    for (const StrokePart &part : stroke.parts) {
        const auto [left, right] = std::ranges::minmax(part.corners, {}, &Point::x);
        const auto [top, bottom] = std::ranges::minmax(part.corners, {}, &Point::y);
        all |= QRectF(QPointF(left.x, top.y), QPointF(right.x, bottom.y));
    }
    return all;
}

/// Follows one layer in time. What draws it on one kind of scene graph derives from it, and may set the matrix.
class LayerNode : public QSGTransformNode
{
public:
    LayerNode(QQuickWindow *window, MediaClock mediaTime) : m_window(window), m_mediaTime(std::move(mediaTime))
    {
        setFlag(UsePreprocess);
        m_rendered = QObject::connect(
            window, &QQuickWindow::afterRendering, window, [this] { askForFrame(); }, Qt::DirectConnection);
        m_swapped = QObject::connect(
            window, &QQuickWindow::frameSwapped, window, [this] { keepPace(); }, Qt::DirectConnection);
    }

    ~LayerNode() override
    {
        *m_rests = false;
        QObject::disconnect(m_rendered);
        QObject::disconnect(m_swapped);
    }

    void setLayer(const ShapeLayer &layer)
    {
        const double rate = m_window->screen() ? m_window->screen()->refreshRate() : 60;
        m_interval = Seconds(1 / std::clamp(rate, 1.0, 1000.0));
        if (!m_layer || m_layer->path != layer.path || m_layer->lineWidth != layer.lineWidth)
            m_stroke.reset();
        m_layer = layer;
        // The main thread is awake now. To set a timer when the layer comes to rest, it would have to be woken.
        const double now = m_mediaTime();
        for (const BasicAnimation &animation : layer.animations()) {
            if (*animation.beginTime > now)
                wakeIn(*animation.beginTime - now);
        }
    }

    void preprocess() override
    {
        m_frameStart = Clock::now();
        const double scale = m_window->effectiveDevicePixelRatio();
        if (!m_stroke || m_scale != scale) {
            m_scale = scale;
            m_stroke = strokeGeometry(m_layer->path, m_layer->lineWidth);
            m_bounds = bounds(*m_stroke);
            strokeChanged();
        }
        const Placement place = placement(parent());
        const double now = m_mediaTime();
        present(m_layer->presentation(now), place.toScene);
        const bool isSeen = !place.isInWindow
            || place.toScene.mapRect(m_bounds).intersects(QRectF(QPointF(), QSizeF(m_window->size())));
        if (const auto next = m_layer->nextChange(now); next && isSeen)
            m_wait = place.isInWindow ? *next - now : 0;
        else
            m_wait.reset();
    }

protected:
    /// The stroke is another one, or the scale of its window.
    virtual void strokeChanged() = 0;

    /// Shows the layer like this. The node lies in the scene as the matrix says.
    virtual void present(const Presentation &presentation, const QMatrix4x4 &toScene) = 0;

    QQuickWindow *window() const { return m_window; }
    const ShapeLayer &layer() const { return *m_layer; }
    const StrokeGeometry &stroke() const { return *m_stroke; }
    double scale() const { return m_scale; }

private:
    // After the scene was rendered, because a change within preprocess() goes unnoticed where the node is drawn into a
    // layer of the scene graph.
    void askForFrame()
    {
        const std::optional<double> wait = std::exchange(m_wait, std::nullopt);
        *m_rests = wait.value_or(0) > 0;
        if (!wait)
            return;
        if (*m_rests) {
            wakeIn(*wait);
            return;
        }
        markDirty(DirtyUsePreprocess); // the only kind that makes no renderer paint everything anew
        const Seconds passed = Clock::now() - m_frameStart;
        if (isInMainThread() && isEarly(passed)) {
            *m_rests = true;
            wakeIn(std::max(Seconds(m_interval - updateDelay - passed).count(), 0.0));
        } else {
            m_window->update();
        }
    }

    // Where a display does not hold up those who draw faster than it shows, nobody else does. The main thread never
    // sleeps here; its frames are put off instead.
    void keepPace()
    {
        const Seconds passed = Clock::now() - m_frameStart;
        if (!isInMainThread() && isEarly(passed))
            QThread::usleep(static_cast<unsigned long>(Seconds(m_interval - passed).count() * 1e6));
    }

    // A display may take a few frames at once before it holds up the next.
    bool isEarly(Seconds passed)
    {
        m_earlyFrames = passed < 0.75 * m_interval ? m_earlyFrames + 1 : 0;
        return m_earlyFrames > 3;
    }

    static bool isInMainThread() { return QThread::currentThread() == QCoreApplication::instance()->thread(); }

    // The scene graph's thread has no timers while it rests. The main thread's makes it go on without taking part, if
    // it rests by then. It begins to rest before it looks for a timer, so that it sees in time if one has just run out.
    void wakeIn(double seconds)
    {
        seconds = std::min(seconds, 1e6);
        const auto wakesAt = Clock::now() + std::chrono::duration_cast<Clock::duration>(Seconds(seconds));
        if (m_wakesAt > Clock::now() && m_wakesAt <= wakesAt + std::chrono::milliseconds(1))
            return;
        m_wakesAt = wakesAt;
        const auto milliseconds = static_cast<int>(std::ceil(1000 * seconds));
        const bool isThreaded = !isInMainThread();
        const auto wake = [window = m_window, rests = m_rests, isThreaded] {
            if (!rests->exchange(false))
                return;
            const auto update = [window] { window->update(); };
            if (isThreaded && window->isExposed())
                window->scheduleRenderJob(QRunnable::create(update), QQuickWindow::NoStage);
            else
                update();
        };
        const auto wait = [window = m_window, milliseconds, wake] {
            QTimer::singleShot(milliseconds, Qt::PreciseTimer, window, wake);
        };
        QMetaObject::invokeMethod(m_window, wait);
    }

    QQuickWindow *m_window;
    const MediaClock m_mediaTime;
    std::optional<ShapeLayer> m_layer;
    std::optional<StrokeGeometry> m_stroke;
    QRectF m_bounds;
    double m_scale = 1;
    Seconds m_interval{1.0 / 60};
    Clock::time_point m_frameStart;
    std::optional<double> m_wait; // seconds from the frame that is being drawn until it changes
    const std::shared_ptr<std::atomic<bool>> m_rests = std::make_shared<std::atomic<bool>>(false); // until it is woken
    Clock::time_point m_wakesAt;
    int m_earlyFrames = 0;
    QMetaObject::Connection m_rendered;
    QMetaObject::Connection m_swapped;
};

/// Draws on the software backend, which has no geometry of its own: square by square, and only where something changed.
class MaskedLayerNode final : public LayerNode
{
public:
    using LayerNode::LayerNode;
    ~MaskedLayerNode() override { forget(); }

protected:
    void strokeChanged() override { m_isCurrent = false; }

    void present(const Presentation &presentation, const QMatrix4x4 &toScene) override
    {
        const double end = presentation.strokeEnd * stroke().length;
        if (!m_isCurrent || m_toScene != toScene || end < m_mask.drawnLength())
            startAnew(toScene);
        const bool isRecolored = setColor(layer().strokeColor, presentation.opacity);
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

private:
    /// One square of the picture.
    class TileNode final : public QSGRenderNode
    {
    public:
        TileNode(MaskedLayerNode &layer, const StrokeMask::Tile &tile) : m_layer(layer), m_tile(tile)
        {
            setFlag(OwnedByParent, false);
        }

        RenderingFlags flags() const override { return BoundedRectRendering; }

        // A little smaller, so that what the renderer rounds up does not reach into the next one.
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

    void forget()
    {
        removeAllChildNodes();
        m_nodes.clear();
        m_mask = {};
    }

    void startAnew(const QMatrix4x4 &toScene)
    {
        forget();
        m_isCurrent = true;
        m_toScene = toScene;
        bool isInvertible = false;
        // The squares lie on the pixels of the window.
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

    bool setColor(const Rgba &color, double opacity)
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

    void paint(const StrokeMask::Tile &tile, const QSGRenderNode::RenderState &state, double opacity)
    {
        auto *painter = static_cast<QPainter *>(
            window()->rendererInterface()->getResource(window(), QSGRendererInterface::PainterResource));
        painter->setWorldTransform({});
        m_picture.assign(static_cast<std::size_t>(tile.width) * static_cast<std::size_t>(tile.height), 0);
        m_mask.paint(tile, m_colors, m_picture.data(), tile.width);
        QImage image(reinterpret_cast<const uchar *>(m_picture.data()), tile.width, tile.height,
                     qsizetype{4} * tile.width, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(m_mask.scale());
        painter->setClipRegion(*state.clipRegion(), Qt::ReplaceClip);
        painter->setOpacity(opacity);
        painter->drawImage(QPointF(tile.left, tile.top) / m_mask.scale(), image);
    }

    bool m_isCurrent = false;
    QMatrix4x4 m_toScene;
    StrokeMask m_mask;
    Rgba m_color;
    double m_opacity = -1;
    StrokeMask::Colors m_colors{};
    std::unordered_map<std::uint64_t, std::unique_ptr<TileNode>> m_nodes;
    std::vector<std::uint32_t> m_picture; // of the tile that is being painted
};

/// How the triangles of a mesh are painted: as a band, or as squares.
class StrokeMaterial final : public QSGMaterial
{
public:
    enum class Kind { band, square };

    explicit StrokeMaterial(Kind kind) : m_kind(kind)
    {
        // Nothing is gained from drawing it together with other nodes, and the length of the line would not fit in.
        setFlag(Blending | RequiresFullMatrix);
    }

    QVector4D color; // premultiplied
    float end = 0; // the length of the line that is drawn

    QSGMaterialType *type() const override
    {
        static std::array<QSGMaterialType, 2> types;
        return &types[static_cast<std::size_t>(m_kind)];
    }

    QSGMaterialShader *createShader(QSGRendererInterface::RenderMode) const override { return new Shader(m_kind); }

    int compare(const QSGMaterial *other) const override { return this < other ? -1 : this > other ? 1 : 0; }

private:
    class Shader final : public QSGMaterialShader
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

    Kind m_kind;
};

float startOf(const StrokeMesh::BandVertex &vertex)
{
    return vertex.length;
}

float startOf(const StrokeMesh::SquareVertex &vertex)
{
    return std::ranges::min(vertex.length);
}

template <typename Vertex>
struct Triangles
{
    std::vector<Vertex> vertices;
    std::vector<std::uint32_t> indices;
};

// The triangles of which some lies before that length of the line.
template <typename Vertex>
Triangles<Vertex> reached(const std::vector<Vertex> &vertices, const std::vector<std::uint32_t> &indices, double length)
{
    Triangles<Vertex> kept;
    constexpr auto none = std::numeric_limits<std::uint32_t>::max();
    std::vector<std::uint32_t> places(vertices.size(), none);
    for (std::size_t first = 0; first < indices.size(); first += 3) {
        const auto corners = std::span(indices).subspan(first, 3);
        if (std::ranges::none_of(corners, [&](std::uint32_t index) { return startOf(vertices[index]) < length; }))
            continue;
        for (const std::uint32_t index : corners) {
            if (places[index] == none) {
                places[index] = static_cast<std::uint32_t>(kept.vertices.size());
                kept.vertices.push_back(vertices[index]);
            }
            kept.indices.push_back(places[index]);
        }
    }
    return kept;
}

/// Triangles of a stroke that are painted alike.
class TrianglesNode final : public QSGGeometryNode
{
public:
    TrianglesNode(StrokeMaterial::Kind kind, const QSGGeometry::AttributeSet &attributes)
        : material(kind),
          m_geometry(attributes, 0, 0, QSGGeometry::UnsignedIntType)
    {
        m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
        setGeometry(&m_geometry);
        setMaterial(&material);
        setFlag(OwnedByParent, false);
    }

    template <typename Vertex>
    void setTriangles(const Triangles<Vertex> &triangles)
    {
        m_geometry.allocate(static_cast<int>(triangles.vertices.size()), static_cast<int>(triangles.indices.size()));
        std::ranges::copy(triangles.vertices, static_cast<Vertex *>(m_geometry.vertexData()));
        std::ranges::copy(triangles.indices, m_geometry.indexDataAsUInt());
        markDirty(DirtyGeometry);
    }

    bool isEmpty() const { return m_geometry.indexCount() == 0; }

    StrokeMaterial material;

private:
    QSGGeometry m_geometry;
};

const QSGGeometry::AttributeSet &bandAttributes()
{
    static const std::array attributes{QSGGeometry::Attribute::create(0, 2, QSGGeometry::FloatType, true),
                                       QSGGeometry::Attribute::create(1, 3, QSGGeometry::FloatType)};
    static const QSGGeometry::AttributeSet set{attributes.size(), sizeof(StrokeMesh::BandVertex), attributes.data()};
    return set;
}

const QSGGeometry::AttributeSet &squareAttributes()
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

/// Draws with a graphics processor: two numbers in each frame, and the next stretch of the line every now and then.
/// What is not drawn yet would cost as much as what is.
class MeshLayerNode final : public LayerNode
{
public:
    using LayerNode::LayerNode;
    ~MeshLayerNode() override { removeAllChildNodes(); }

protected:
    void strokeChanged() override
    {
        m_mesh = strokeMesh(stroke(), scale());
        m_sent = 0;
    }

    void present(const Presentation &presentation, const QMatrix4x4 &) override
    {
        const Rgba &color = layer().strokeColor;
        const float alpha = color.alpha * static_cast<float>(presentation.opacity);
        // Beyond the end, so that nothing of the last pixels is lost to rounding.
        const double length = stroke().length;
        const double end = presentation.strokeEnd >= 1 ? 2 * length + 1 : presentation.strokeEnd * length;
        if (end + 1 > m_sent)
            send(end + 1 + length / 16);
        for (TrianglesNode *node : {&m_band, &m_squares}) {
            node->material.color = QVector4D(color.red * alpha, color.green * alpha, color.blue * alpha, alpha);
            node->material.end = static_cast<float>(end);
        }
    }

private:
    void send(double length)
    {
        m_sent = length;
        m_band.setTriangles(reached(m_mesh.band, m_mesh.bandIndices, length));
        m_squares.setTriangles(reached(m_mesh.squares, m_mesh.squareIndices, length));
        for (TrianglesNode *node : {&m_band, &m_squares}) {
            if (node->isEmpty() && node->parent())
                removeChildNode(node);
            else if (!node->isEmpty() && !node->parent())
                appendChildNode(node);
        }
    }

    StrokeMesh m_mesh;
    double m_sent = 0; // the length of the line whose triangles are there
    TrianglesNode m_band{StrokeMaterial::Kind::band, bandAttributes()};
    TrianglesNode m_squares{StrokeMaterial::Kind::square, squareAttributes()};
};

} // namespace

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
