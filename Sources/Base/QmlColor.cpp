#include "QmlColor.h"

#include <QtQml/qqmlinfo.h>

namespace TQFoundation {

std::optional<Color> colorFromQml(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<Color>())
        return value.value<Color>();
    QColor color;
    if (value.typeId() == QMetaType::QColor)
        color = value.value<QColor>();
    else if (value.typeId() != QMetaType::QString || !(color = QColor::fromString(value.toString())).isValid())
        return std::nullopt;
    return Color({color.redF(), color.greenF(), color.blueF(), color.alphaF()});
}

std::optional<Color> colorForProperty(const QVariant &value, const QObject *object, const char *name)
{
    const auto color = colorFromQml(value);
    if (!color)
        qmlWarning(object) << name << ": expected a tqColor or a color";
    return color;
}

} // namespace TQFoundation
