#include "TQRandomBackgroundView.h"

#include "QmlColor.h"
#include "TQFoundation/AnimationView.h"

namespace TQFoundation {

TQRandomBackgroundView::TQRandomBackgroundView(QQuickItem *parent) : TQRandomBackgroundView(Color(), parent) {}

// Sets the parent last: a parent in a window starts the background, which needs the colour.
TQRandomBackgroundView::TQRandomBackgroundView(const Color &color, QQuickItem *parent) : m_color(color)
{
    setParent(parent);
    setParentItem(parent);
}

TQRandomBackgroundView::~TQRandomBackgroundView() = default;

void TQRandomBackgroundView::setColor(const Color &color)
{
    if (m_color == color)
        return;
    m_color = color;
    updateView();
    Q_EMIT colorChanged();
}

void TQRandomBackgroundView::setQmlColor(const QVariant &value)
{
    if (const auto color = colorForProperty(value, this, "color"))
        setColor(*color);
}

void TQRandomBackgroundView::updateView()
{
    if (!m_view) {
        if (!isComponentComplete() || !window())
            return;
        m_view = AnimationView::initWithFrame({});
        m_view->setParentItem(this);
        m_view->setSize(size());
    }
    m_view->setColor(m_color);
    m_view->createTimer();
}

void TQRandomBackgroundView::componentComplete()
{
    QQuickItem::componentComplete();
    updateView();
}

void TQRandomBackgroundView::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (m_view)
        m_view->setSize(newGeometry.size());
}

void TQRandomBackgroundView::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange && data.window)
        updateView();
}

} // namespace TQFoundation
