#pragma once

#include "KeyboardFocus.h"

#include <QtCore/qbytearray.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qtest.h>

#include <gtest/gtest.h>

#include <memory>

namespace TQFoundation::Testing {

/// A host window that shows an object made from QML source. An error in the source fails the test.
class QmlWindow
{
public:
    explicit QmlWindow(const QByteArray &qml, QSize size = {390, 200})
    {
        window.setColor(Qt::white);
        window.resize(size);
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport TQFoundation\n" + qml, QUrl(QStringLiteral("qrc:/Host.qml")));
        object.reset(component.create());
        EXPECT_TRUE(object) << component.errorString().toStdString();
        if ((item = qobject_cast<QQuickItem *>(object.get())))
            item->setParentItem(window.contentItem());
        EXPECT_TRUE(showWithFocus(window));
    }

    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QObject> object;
    QQuickItem *item = nullptr; ///< the root object; null if it is not an item
};

} // namespace TQFoundation::Testing
