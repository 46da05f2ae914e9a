import QtQuick
import TQFoundation

Item {
    id: root

    property int count: 1

    Repeater {
        model: root.count

        TQRandomBackgroundView {
            objectName: "background"
            anchors.fill: parent
            color: TQApp.hazel.tintColor
        }
    }
}
