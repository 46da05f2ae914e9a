#pragma once

#include "QmlWindow.h"

#include <QtCore/qvariant.h>

namespace TQFoundation::Testing {

/// The value of the QML property `property TYPE result: EXPRESSION`; an error in it fails the test.
inline QVariant qmlValue(const QByteArray &type, const QByteArray &expression)
{
    const QmlWindow host("Item { property " + type + " result: " + expression + " }");
    return host.item->property("result");
}

} // namespace TQFoundation::Testing
