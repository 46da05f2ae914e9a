#pragma once

#include "TQFoundation/Color.h"

#include <QtCore/qobjectdefs.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqml.h>

namespace TQFoundation {

/// The QML face of Color, the value type `tqColor`: what it is in light and in dark appearance, rounded to QColor.
///
/// Has no state besides the colour that it extends: the QML engine lays it over that value.
class QmlColor
{
    Q_GADGET
    QML_FOREIGN(TQFoundation::Color)
    QML_VALUE_TYPE(tqColor)
    QML_EXTENDED(TQFoundation::QmlColor)
    Q_PROPERTY(QColor light READ light CONSTANT FINAL)
    Q_PROPERTY(QColor dark READ dark CONSTANT FINAL)

public:
    QColor light() const { return painted(m_color.resolved(Appearance::light)); }
    QColor dark() const { return painted(m_color.resolved(Appearance::dark)); }

    /// The colour in dark appearance where \a darkAppearance is true, else in light.
    Q_INVOKABLE QColor resolved(bool darkAppearance) const { return darkAppearance ? dark() : light(); }

    /// Black or white, whichever is easier to read on the colour.
    Q_INVOKABLE QColor textColor(bool darkAppearance) const
    {
        return painted(m_color.textColor(darkAppearance ? Appearance::dark : Appearance::light));
    }

    /// The colour as it can be read on an opaque \a ground: darker or brighter where it has to be.
    Q_INVOKABLE QColor legibleOn(const QColor &ground, bool darkAppearance) const
    {
        const Rgba below{ground.redF(), ground.greenF(), ground.blueF()};
        return painted(
            TQFoundation::legibleOn(m_color.resolved(darkAppearance ? Appearance::dark : Appearance::light), below));
    }

private:
    static QColor painted(const Rgba &rgba) { return QColor::fromRgbF(rgba.red, rgba.green, rgba.blue, rgba.alpha); }

    Color m_color;
};

} // namespace TQFoundation
