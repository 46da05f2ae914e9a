import QtQuick
import QtQuick.Controls.Basic
import TQFoundation

Window {
    id: root; width: 390; height: 640; visible: true
    title: TQApp.name
    readonly property tqApp app: TQApp.hazel

    TQRandomBackgroundView {
        anchors.fill: parent
        color: root.app.tintColor
    }
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
        Button {
            anchors.horizontalCenter: parent.horizontalCenter
            text: TQMore.feedbackText
            onClicked: TQMore.sendFeedbackEmail(root.app.tintColor, "")
        }
    }
    TQAppView {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: 16 }
        app: root.app
    }
    TQGuide { id: guide; tintColor: root.app.tintColor; descriptions: root.app.guideText }
    Component.onCompleted: if (app.guideText.length > 0 && guide.shouldShowGuide()) guide.showGuide(root)
}
