import QtQuick
import TQFoundation

Item {
    TQRandomBackgroundView {
        objectName: "background"
        anchors.fill: parent
        color: TQApp.hazel.tintColor
    }
}
