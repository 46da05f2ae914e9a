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

/// A quiet moving background: every ten seconds a new closed line through random points of the screen draws itself and
/// begins to fade.
///
/// The line is laid out for the whole screen, whose size is read once, and is neither scaled nor clipped to the view,
/// at whose top left corner the screen's begins. Between the ticks no code of the main thread runs. The view takes no
/// input and is not seen by assistive technology. It is meant to have no child items: each tick takes those that it has
/// off the view.
///
/// Held by `std::shared_ptr`. Once createTimer() has run, the timer holds the view as well: it lives and ticks, in a
/// window or not, until the timer is invalidated or the application object goes. Hosts written in QML declare
/// `TQRandomBackgroundView` instead. Main thread only.
class TQFOUNDATION_EXPORT AnimationView : public QQuickItem, public std::enable_shared_from_this<AnimationView>
{
    Q_OBJECT
    QML_ELEMENT

public:
    /// A view as a QML file makes it, for initDecoded(). One that no shared pointer holds when createTimer() runs is
    /// not held by its timer either. A screen size that is not finite, or negative, stops the process.
    explicit AnimationView(QQuickItem *parent = nullptr);
    ~AnimationView() override;

    /// Makes a view that is not in any window yet and does not tick. \a frame is in the coordinates of its parent item.
    static std::shared_ptr<AnimationView> initWithFrame(const QRectF &frame);

    /// Takes over a view that a QML file made: from then on it is as one made by initWithFrame(), whatever becomes of
    /// the engine. Null, and \a decoded destroyed, where that is no AnimationView.
    static std::shared_ptr<AnimationView> initDecoded(std::unique_ptr<QObject> decoded);

    /// The colour of the line, `clear` at first, which draws black. Only the next tick reads it, once: it takes light
    /// or dark as the system's appearance is then, and sets the alpha to 0.2 whatever it was.
    Color color() const;
    /// Sets the colour. Redraws nothing.
    void setColor(const Color &color);

    /// Starts the ticking: the first tick runs before this returns, the next ones come at whole multiples of ten
    /// seconds from now. Does nothing the second time. A tick on a screen of which a side is less than two points long,
    /// or so long that the numbers overflow, stops the process.
    void createTimer();

    /// The line that is being drawn; null before the first tick. For the library's own use.
    const ShapeLayer *shapeLayer() const;

protected:
    /// @{ What the toolkit tells the item. A class that overrides it passes it on.
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    /// @}

private Q_SLOTS:
    void updateTimer();

private:
    void removeSublayers();

    struct Stored;
    std::unique_ptr<Stored> m_stored; // so that hosts do not see what the line is made of
};

} // namespace TQFoundation
