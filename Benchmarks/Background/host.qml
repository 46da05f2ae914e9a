import QtQuick
import TQFoundation

// One rectangle, with as many backgrounds as asked for.
Item {
    id: root

    property int count: 0

    Rectangle {
        width: 100
        height: 100
        color: "#c0c0c0"
    }

    Repeater {
        model: root.count

        TQRandomBackgroundView {
            anchors.fill: parent
            color: TQApp.hazel.tintColor
        }
    }
}
