#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qobject.h>
#include <QtCore/qrect.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>

#include <memory>

namespace TQFoundation {

class ShapeLayer;

/// Animated background: every ten seconds a new closed line through random points of the screen draws itself and begins
/// to fade.
///
/// The line is laid out for the whole screen, whose size is read once. It is neither scaled nor clipped to the view,
/// and the screen's top left corner is that of the view. Between two ticks the GUI thread does nothing. The view takes
/// no input and is ignored by assistive technology. It is meant to have no child items: each tick unparents them.
///
/// Held by `std::shared_ptr`. After createTimer(), the timer holds the view too: it lives and ticks, in a window or
/// not, until the timer is invalidated or the application object is destroyed. QML hosts use `TQRandomBackgroundView`
/// instead. GUI thread only.
///
/// On GPUs, about one line in a thousand has a pixel whose opacity differs visibly from the exact one (by up to 23 of
/// 255), because more than six parts of the line meet there. A rotated item may show single wrong pixels.
class TQFOUNDATION_EXPORT AnimationView : public QQuickItem, public std::enable_shared_from_this<AnimationView>
{
    Q_OBJECT
    QML_ELEMENT

public:
    /// For initDecoded() and QML. If no shared pointer holds the view when createTimer() runs, its timer does not
    /// either. A screen size that is negative or not finite stops the process.
    explicit AnimationView(QQuickItem *parent = nullptr);
    ~AnimationView() override;

    /// Makes a view that has no parent item and does not tick. \a frame is its geometry in points, in the coordinates
    /// of its later parent.
    static std::shared_ptr<AnimationView> initWithFrame(const QRectF &frame);

    /// Takes over a view that a QML file made, which then no longer depends on its engine. Returns null and destroys
    /// \a decoded if that is not an AnimationView.
    static std::shared_ptr<AnimationView> initDecoded(std::unique_ptr<QObject> decoded);

    /// The colour of the line; by default clear, which draws black. The next tick reads it once, in the system's
    /// appearance at that time, and replaces its alpha by 0.2.
    Color color() const;
    /// Sets the colour. Redraws nothing.
    void setColor(const Color &color);

    /// Starts the timer. The first tick runs before this returns, the later ones at whole multiples of ten seconds from
    /// now. Later calls do nothing. A tick stops the process if a side of the screen is shorter than two points, or so
    /// long that 64-bit integers overflow.
    void createTimer();

    /// The current line, owned by the view and valid until its next tick; null before the first one. Internal.
    const ShapeLayer *shapeLayer() const;

protected:
    /// @{ Overrides; subclasses call them.
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    /// @}

private Q_SLOTS:
    void updateTimer();

private:
    void removeSublayers();

    struct Stored;
    std::unique_ptr<Stored> m_stored; // hides the types of the core from hosts
};

} // namespace TQFoundation
