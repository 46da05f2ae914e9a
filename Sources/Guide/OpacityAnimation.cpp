#include "OpacityAnimation.h"

#include "LibraryEngine.h"

#include <QtCore/qeasingcurve.h>
#include <QtCore/qpointer.h>
#include <QtCore/qvariantanimation.h>
#include <QtQuick/qquickitem.h>

#include <cmath>
#include <utility>

namespace TQFoundation {
namespace {

// Cubic Bézier curve with the control points (0.42, 0) and (0.58, 1): the "ease-in-out" of CSS Easing Functions
// Level 1.
QEasingCurve easeInOut()
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment({0.42, 0}, {0.58, 1}, {1, 1});
    return curve;
}

// Not a QPropertyAnimation: a second one of the same property would stop the first, without its finished().
class OpacityAnimation final : public QVariantAnimation
{
public:
    OpacityAnimation(QQuickItem *item, double opacity, double seconds, std::function<void()> completion)
        : QVariantAnimation(applicationScope()),
          m_item(item),
          m_completion(std::move(completion))
    {
        setStartValue(item->opacity());
        setEndValue(opacity);
        setDuration(static_cast<int>(std::lround(seconds * 1000)));
        setEasingCurve(easeInOut());
        connect(this, &QAbstractAnimation::finished, this, [this] { complete(); });
    }

    void release(const QQuickItem *item)
    {
        if (m_item == item)
            m_item = nullptr;
    }

protected:
    void updateCurrentValue(const QVariant &value) override
    {
        if (m_item)
            m_item->setOpacity(value.toDouble());
    }

private:
    void complete()
    {
        if (m_item)
            m_item->setOpacity(endValue().toDouble());
        const auto completion = std::exchange(m_completion, nullptr);
        completion();
    }

    QPointer<QQuickItem> m_item;
    std::function<void()> m_completion;
};

} // namespace

void animateOpacity(QQuickItem *item, double opacity, double seconds, std::function<void()> completion)
{
    const QObjectList others = applicationScope()->children();
    for (QObject *other : others) {
        if (auto *animation = dynamic_cast<OpacityAnimation *>(other))
            animation->release(item);
    }
    (new OpacityAnimation(item, opacity, seconds, std::move(completion)))->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace TQFoundation
