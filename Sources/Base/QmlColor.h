#pragma once

#include "TQFoundation/Color.h"

#include <QtCore/qobjectdefs.h>
#include <QtCore/qvariant.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqml.h>

#include <optional>

namespace TQFoundation {

/// The QML value type `tqColor`: a Color with its values rounded to `color`.
///
/// An extension object: the QML engine reinterprets a Color as a QmlColor, so this class has no other member.
/// `Rectangle { color: TQApp.hazel.tintColor.resolved(isDark) }`. GUI thread.
class QmlColor
{
    Q_GADGET
    QML_FOREIGN(TQFoundation::Color)
    QML_VALUE_TYPE(tqColor)
    QML_EXTENDED(TQFoundation::QmlColor)
    /// `color`: the value in light appearance. Default: transparent. Example: `TQApp.fir.tintColor.light`.
    Q_PROPERTY(QColor light READ light CONSTANT FINAL)
    /// `color`: the value in dark appearance. Default: transparent. Example: `TQApp.fir.tintColor.dark`.
    Q_PROPERTY(QColor dark READ dark CONSTANT FINAL)

public:
    QColor light() const { return painted(m_color.resolved(Appearance::light)); }
    QColor dark() const { return painted(m_color.resolved(Appearance::dark)); }

    /// The value in dark appearance if \a isDark, else in light. `tint.resolved(true)`.
    Q_INVOKABLE QColor resolved(bool isDark) const { return isDark ? dark() : light(); }

    /// Black or white, whichever has more contrast with the colour as a background. `tint.textColor(true)`.
    Q_INVOKABLE QColor textColor(bool isDark) const { return painted(m_color.textColor(appearance(isDark))); }

    /// The colour mixed with black or white until its contrast with the opaque \a background is at least 4.5; unchanged
    /// if it already is. `tint.legibleOn("black", true)`.
    Q_INVOKABLE QColor legibleOn(const QColor &background, bool isDark) const
    {
        return painted(TQFoundation::legibleOn(m_color.resolved(appearance(isDark)),
                                               {background.redF(), background.greenF(), background.blueF()}));
    }

private:
    static Appearance appearance(bool isDark) { return isDark ? Appearance::dark : Appearance::light; }
    static QColor painted(const Rgba &rgba) { return QColor::fromRgbF(rgba.red, rgba.green, rgba.blue, rgba.alpha); }

    Color m_color;
};

/// The colour of a QML value: a `tqColor`, a `color`, or a string that is a text form of a `color` ("red", "#f00",
/// "#80ff0000"). Null for any other value. Any thread.
std::optional<Color> colorFromQml(const QVariant &value);

/// colorFromQml() for the property \a name of \a object, which QML declares as `var`: Qt 6.4 rejects string literals
/// for properties of custom value types. If null, reports a QML error that names the property. GUI thread.
std::optional<Color> colorForProperty(const QVariant &value, const QObject *object, const char *name);

} // namespace TQFoundation
