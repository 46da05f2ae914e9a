#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qvariant.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

#include <memory>

namespace TQFoundation {

class AnimationView;

/// Animated background of a screen: every ten seconds a new closed line draws itself and starts to fade. Placed in QML
/// or C++, usually below the content: `TQRandomBackgroundView { anchors.fill: parent; color: TQApp.hazel.tintColor }`.
///
/// As soon as the item is complete and in a window, it makes one AnimationView of its own size and starts its timer.
/// The line is laid out for the whole screen, not for the item. Later changes of colour or window reach that view and
/// do not restart it. Nothing stops the timer, not even destroying the item. The item accepts no input and has no
/// accessible interface. GUI thread only.
class TQFOUNDATION_EXPORT TQRandomBackgroundView : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant color READ qmlColor WRITE setQmlColor NOTIFY colorChanged REQUIRED FINAL)

public:
    /// Makes a background with the colour `clear`, for QML, where `color` is a required property.
    explicit TQRandomBackgroundView(QQuickItem *parent = nullptr);

    /// Makes a background of \a color, for C++.
    explicit TQRandomBackgroundView(const Color &color, QQuickItem *parent = nullptr);
    ~TQRandomBackgroundView() override;

    /// Colour of the line. Its alpha is replaced by 0.2.
    Color color() const { return m_color; }
    /// Sets the colour from the next tick on; the current line keeps its own.
    void setColor(const Color &color);

Q_SIGNALS:
    void colorChanged(); ///< The colour has a new value.

protected:
    /// @{ Qt Quick's event handlers. An override calls the base class.
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    /// @}

private:
    QVariant qmlColor() const { return QVariant::fromValue(m_color); }
    void setQmlColor(const QVariant &value);
    void updateView();

    Color m_color;
    std::shared_ptr<AnimationView> m_view; // null until the item is complete and in a window
};

} // namespace TQFoundation
