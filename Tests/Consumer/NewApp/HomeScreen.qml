import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

Page {
    id: root

    required property tqApp app

    signal moreRequested()

    TQRandomBackgroundView {
        anchors.fill: parent
        color: root.app.tintColor
    }

    Column {
        anchors.centerIn: parent
        spacing: 12

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: TQApp.name
            font.pixelSize: 34
            textFormat: Text.PlainText
        }

        Button {
            objectName: "more"
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("More")
            onClicked: root.moreRequested()
        }
    }
}
