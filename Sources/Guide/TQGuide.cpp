#include "TQGuide.h"

#include "QmlColor.h"

#include <QtCore/qpointer.h>

namespace TQFoundation {

void TQGuide::setTintColor(const QVariant &value)
{
    const auto color = colorForProperty(value, this, "tintColor");
    if (!color || m_tintColor == *color)
        return;
    m_tintColor = *color;
    Q_EMIT tintColorChanged();
}

void TQGuide::setDescriptions(const QStringList &descriptions)
{
    if (m_descriptions == descriptions)
        return;
    m_descriptions = descriptions;
    Q_EMIT descriptionsChanged();
}

void TQGuide::showGuide(QQuickWindow *inWindow, QQuickItem *orInView)
{
    const auto complete = [guide = QPointer(this)] {
        if (guide)
            Q_EMIT guide->completed();
    };
    TQGuideView::initFromNib(m_tintColor, m_descriptions, complete)->showGuide(inWindow, orInView);
}

} // namespace TQFoundation
