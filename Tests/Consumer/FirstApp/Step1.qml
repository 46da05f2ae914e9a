import QtQuick
import TQFoundation

Window {
    id: root; width: 390; height: 640; visible: true
    title: TQApp.name
    readonly property tqApp app: TQApp.hazel

    Column {
        anchors.centerIn: parent
        spacing: 12
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: TQApp.name
            font.pixelSize: 34
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: TQMore.versionText
        }
    }
}
