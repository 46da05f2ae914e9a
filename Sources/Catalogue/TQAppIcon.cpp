#include "TQAppIcon.h"

#include <QtCore/qmetaobject.h>
#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgimagenode.h>

namespace TQFoundation {

TQAppIcon::TQAppIcon(QQuickItem *parent) : QQuickItem(parent)
{
    setImplicitSize(TQApp::iconSide, TQApp::iconSide);
    setFlag(ItemHasContents);
}

void TQAppIcon::setApp(TQApp app)
{
    if (m_app == app)
        return;
    m_app = app;
    if (isComponentComplete())
        readIcon();
    Q_EMIT appChanged();
}

QString TQAppIcon::caseName() const
{
    const auto cases = QMetaEnum::fromType<TQApp::Case>();
    QString name = QLatin1String(cases.valueToKey(static_cast<int>(TQApp::Case(app()))));
    if (!name.isEmpty())
        name.front() = name.front().toUpper();
    return name;
}

void TQAppIcon::componentComplete()
{
    QQuickItem::componentComplete();
    if (m_app)
        readIcon();
}

void TQAppIcon::readIcon()
{
    const bool wasEmpty = isEmpty();
    m_image = m_app->icon();
    m_imageChanged = true;
    update();
    if (isEmpty() != wasEmpty)
        Q_EMIT emptyChanged();
}

QSGNode *TQAppIcon::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGImageNode *>(oldNode);
    if (isEmpty() || width() <= 0 || height() <= 0) {
        delete node;
        return nullptr;
    }
    if (!node || m_imageChanged) {
        if (!node) {
            node = window()->createImageNode();
            node->setOwnsTexture(true);
            node->setFiltering(QSGTexture::Linear);
        }
        node->setTexture(window()->createTextureFromImage(m_image));
        m_imageChanged = false;
    }
    node->setRect(boundingRect());
    return node;
}

} // namespace TQFoundation
