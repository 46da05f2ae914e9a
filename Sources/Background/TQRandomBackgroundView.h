#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qvariant.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

#include <memory>

namespace TQFoundation {

class AnimationView;

/// The animated background as a host places it, in QML or C++, usually beneath its content:
/// `TQRandomBackgroundView { anchors.fill: parent; color: TQApp.hazel.tintColor }`.
///
/// The item makes one AnimationView, as large as itself, once it is complete and lies in a window; its ticking starts
/// there and then. What is drawn is laid out for the whole screen, not for the item. Each later update, which is a new
/// colour or another window, hands on the colour and disturbs nothing. Nothing stops the ticking, not even the end of
/// the item. It takes no input and is not seen by assistive technology. Main thread only.
class TQFOUNDATION_EXPORT TQRandomBackgroundView : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant color READ qmlColor WRITE setQmlColor NOTIFY colorChanged REQUIRED FINAL)

public:
    /// A background without a colour yet, as QML makes it.
    explicit TQRandomBackgroundView(QQuickItem *parent = nullptr);

    /// A background of \a color, as C++ makes it.
    explicit TQRandomBackgroundView(const Color &color, QQuickItem *parent = nullptr);
    ~TQRandomBackgroundView() override;

    /// The colour of the line, always drawn at alpha 0.2. A new one shows from the next tick on.
    Color color() const { return m_color; }
    /// Hands the colour on; the line that is being drawn keeps its own.
    void setColor(const Color &color);

Q_SIGNALS:
    void colorChanged(); ///< It was given another colour.

protected:
    /// @{ What the toolkit tells the item. A class that overrides it passes it on.
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    /// @}

private:
    QVariant qmlColor() const { return QVariant::fromValue(m_color); }
    void setQmlColor(const QVariant &value);
    void updateView();

    Color m_color;
    std::shared_ptr<AnimationView> m_view; // null until the item is placed
};

} // namespace TQFoundation
