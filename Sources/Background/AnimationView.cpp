#include "AnimationView.h"

#include "DriftPath.h"
#include "LibraryEngine.h"
#include "ShapeLayer.h"
#include "ShuffledDistribution.h"
#include "TQFoundation/AppearanceObserver.h"
#include "TQFoundation/Environment.h"
#include "TQFoundation/Platform.h"
#include "UpdateLayerNode.h"

#include <QtCore/qpointer.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qjsengine.h>

#include <optional>
#include <utility>

namespace TQFoundation {
namespace {

constexpr double period = 10; // seconds

DriftScreen screen()
{
    return {screenWidth(), screenHeight()};
}

ShuffledDistribution shuffled(const IntegerRange &range)
{
    return {range.lowest, range.highest};
}

} // namespace

struct AnimationView::Stored
{
    ShuffledDistribution randomPositiveX = shuffled(driftRanges(screen()).positiveX);
    ShuffledDistribution randomNegativeX = shuffled(driftRanges(screen()).negativeX);
    ShuffledDistribution randomPositiveY = shuffled(driftRanges(screen()).positiveY);
    ShuffledDistribution randomNegativeY = shuffled(driftRanges(screen()).negativeY);
    Color color;
    std::shared_ptr<RepeatingTimer> timer;
    std::vector<Point> transitPoints;
    std::optional<ShapeLayer> shapeLayer;

    RandomSource random()
    {
        const auto drawFrom = [](ShuffledDistribution &source) { return [&source] { return source.nextInt(); }; };
        return {[] { return static_cast<std::uint32_t>(ShuffledDistribution(0, 3).nextInt()); },
                drawFrom(randomPositiveX),
                drawFrom(randomNegativeX),
                drawFrom(randomPositiveY),
                drawFrom(randomNegativeY),
                [](std::int64_t lowest, std::int64_t highest) -> IntegerSource {
                    return [source = ShuffledDistribution(lowest, highest)]() mutable { return source.nextInt(); };
                }};
    }
};

AnimationView::AnimationView(QQuickItem *parent) : QQuickItem(parent), m_stored(std::make_unique<Stored>())
{
    setFlag(ItemHasContents);
    hideWindowsAtExit();
}

AnimationView::~AnimationView()
{
    if (m_stored->timer)
        m_stored->timer->invalidate();
    m_stored->timer = nullptr;
}

std::shared_ptr<AnimationView> AnimationView::initWithFrame(const QRectF &frame)
{
    std::shared_ptr<AnimationView> view(new AnimationView, deferredDelete);
    view->setPosition(frame.topLeft());
    view->setSize(frame.size());
    return view;
}

std::shared_ptr<AnimationView> AnimationView::initDecoded(std::unique_ptr<QObject> decoded)
{
    auto *view = qobject_cast<AnimationView *>(decoded.get());
    if (!view)
        return nullptr;
    static_cast<void>(decoded.release());
    view->setParent(nullptr);
    QJSEngine::setObjectOwnership(view, QJSEngine::CppOwnership);
    return {view, deferredDelete};
}

Color AnimationView::color() const
{
    return m_stored->color;
}

void AnimationView::setColor(const Color &color)
{
    m_stored->color = color;
}

const ShapeLayer *AnimationView::shapeLayer() const
{
    return m_stored->shapeLayer ? &*m_stored->shapeLayer : nullptr;
}

void AnimationView::createTimer()
{
    if (m_stored->timer)
        return;
    const auto alive = weak_from_this().lock();
    const auto timer = platform().makeTimer(period, [this, alive] { updateTimer(); });
    m_stored->timer = timer;
    timer->fire();
    timer->schedule();
}

void AnimationView::updateTimer()
{
    removeSublayers();

    const RandomSource random = m_stored->random();
    m_stored->transitPoints = getTransitPoints(screen(), random);

    ShapeLayer line;
    line.path = driftPath(m_stored->transitPoints, screen(), random);
    line.lineWidth = 2;
    line.strokeColor = m_stored->color.resolved(AppearanceObserver::current());
    line.strokeColor.alpha = 0.2F;

    using KeyPath = BasicAnimation::KeyPath;
    const double now = platform().mediaTime();
    line.addAnimation({.keyPath = KeyPath::opacity, .fromValue = 0, .toValue = 1, .duration = 1}, now);
    line.addAnimation({.keyPath = KeyPath::strokeEnd, .fromValue = 0, .toValue = 1, .duration = 9}, now);
    // The next tick replaces the line at a fifth of its opacity; that is part of the look.
    line.addAnimation(
        {.keyPath = KeyPath::opacity, .fromValue = 1, .toValue = 0, .duration = 1, .beginTime = now + 9.2}, now);

    m_stored->shapeLayer = std::move(line);
    // An invisible view requests no frame; itemChange() does so later.
    if (isVisible())
        update();
}

void AnimationView::removeSublayers()
{
    m_stored->shapeLayer.reset();
    const QList<QQuickItem *> items = childItems();
    // A handler of parentChanged() may destroy or move other children.
    const QList<QPointer<QQuickItem>> children(items.begin(), items.end());
    for (const QPointer<QQuickItem> &child : children) {
        if (child && child->parentItem() == this)
            child->setParentItem(nullptr);
    }
}

void AnimationView::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged && data.boolValue)
        update();
}

QSGNode *AnimationView::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    return updateLayerNode(node, this, shapeLayer(), [] { return platform().mediaTime(); });
}

} // namespace TQFoundation
